// Colours of elements and of the 3D view.

import type { Facet } from './model';

export type Rgb = [number, number, number];

// Colours that differ for readers with the common forms of colour blindness, too.
const kPalette = [
  '#7aa6dc', '#e5a95c', '#82bf8b', '#c793c9', '#dd7f72', '#62b8b6', '#b3a8e6', '#cdbb5f', '#98a4b3',
  '#e596ad', '#7fb2d0', '#a9c46f',
];
const kApproximate = '#e8963c';
const kExact = '#9db4cc';
const kPlain = '#c3c9d1';
const kNone = '#b9bcc2';

export function rgbOf(hex: string): Rgb {
  const value = parseInt(hex.slice(1), 16);
  return [(value >> 16) & 255, (value >> 8) & 255, value & 255];
}

export function cssOf(rgb: Rgb): string {
  return `rgb(${rgb.join(' ')})`;
}

function hslToRgb(hue: number, saturation: number, lightness: number): Rgb {
  const a = saturation * Math.min(lightness, 1 - lightness);
  const channel = (n: number) => {
    const k = (n + hue / 30) % 12;
    return Math.round(255 * (lightness - a * Math.max(-1, Math.min(k - 3, 9 - k, 1))));
  };
  return [channel(0), channel(8), channel(4)];
}

/** The colour of the label with this rank. The golden angle separates the hues beyond the
 *  palette. */
function rankColour(rank: number): Rgb {
  if (rank < kPalette.length) return rgbOf(kPalette[rank]);
  const lightness = 0.58 + 0.07 * (rank % 3);
  return hslToRgb((rank * 137.508) % 360, 0.45, lightness);
}

export const plainColour: Rgb = rgbOf(kPlain);

/** The colour of each label of a facet. */
export function coloursOf(facet: Facet): Rgb[] {
  if (facet.key === 'exactness') return [rgbOf(kExact), rgbOf(kApproximate), rgbOf(kNone)];
  let rank = 0;
  return facet.labels.map((_, label) => {
    if (label === facet.labels.length - 1) return rgbOf(kNone);
    return facet.counts[label] ? rankColour(rank++) : rgbOf(kNone);
  });
}

/** Colours of the 3D view, from the custom properties of the style sheet. */
export interface ViewColours {
  background: Rgb;
  edge: Rgb;
  cut: Rgb;
  cutEdge: Rgb;
  selected: Rgb;
  selectedEdge: Rgb;
  node: Rgb;
  isDark: boolean;
}

export function viewColours(): ViewColours {
  const style = getComputedStyle(document.documentElement);
  const read = (name: string) => rgbOf(style.getPropertyValue(name).trim());
  return {
    background: read('--view-background'),
    edge: read('--view-edge'),
    cut: read('--view-cut'),
    cutEdge: read('--view-cut-edge'),
    selected: read('--view-selected'),
    selectedEdge: read('--view-selected-edge'),
    node: read('--view-node'),
    isDark: style.getPropertyValue('--view-dark').trim() === '1',
  };
}
