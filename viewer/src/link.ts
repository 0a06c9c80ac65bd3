// The link that restores the view: the part of the address after #.

import { kFacetKeys, type Model } from './model';
import { byFacet, type PageState, type SectionAxis, type Store } from './state';
import type { View } from './view';

const kDelayMilliseconds = 250;
const kVersion = '1';

function numbers(text: string | null): number[] {
  return (text ?? '').split(',').map(Number);
}

function oneOf<T extends string>(text: string | null, values: readonly T[]): T | null {
  return values.find((value) => value === text) ?? null;
}

/** The view as the text of a link. */
export function encodeView(store: Store, view: View | null): string {
  const { state, model } = store;
  const parts = new URLSearchParams({ v: kVersion, d: state.display, c: state.colourBy });
  if (view) {
    const camera = view.camera.state;
    const target = camera.target.map((c, i) => c + model.description.origin[i]);
    parts.set('t', target.map((c) => c.toFixed(3)).join(','));
    parts.set('a', [camera.azimuth, camera.elevation].map((r) =>
      ((r * 180) / Math.PI).toFixed(2)).join(','));
    parts.set('h', camera.height.toPrecision(6));
    parts.set('p', camera.isPerspective ? '1' : '0');
  }
  const { axis, position, isFlipped } = state.section;
  if (axis !== 'none') parts.set('x', [axis, position.toFixed(3), isFlipped ? '1' : '0'].join(','));
  for (const key of kFacetKeys) {
    if (state.hidden[key].size) parts.set(`f.${key}`, [...state.hidden[key]].join('.'));
  }
  if (state.selected >= 0) parts.set('s', String(model.elements.id[state.selected]));
  if (state.search) parts.set('q', state.search.slice(0, 200));
  return parts.toString();
}

/** Places the camera. Without a complete camera in the link, all that is visible is shown. */
function readCamera(parts: URLSearchParams, model: Model, view: View): void {
  // The panels that the link opens have changed the size of the view.
  view.resize();
  const target = numbers(parts.get('t'));
  const angles = numbers(parts.get('a')).map((degrees) => (degrees * Math.PI) / 180);
  const height = Number(parts.get('h'));
  const isComplete = target.length === 3 && angles.length === 2 && height > 0
    && [...target, ...angles, height].every(Number.isFinite);
  if (!isComplete) {
    view.camera.fit(view.visibleBox(), false);
    return;
  }
  const origin = model.description.origin;
  view.camera.set({
    target: [target[0] - origin[0], target[1] - origin[1], target[2] - origin[2]],
    azimuth: angles[0], elevation: angles[1], height, isPerspective: parts.get('p') !== '0',
  });
}

function readHidden(parts: URLSearchParams, model: Model): PageState['hidden'] {
  return byFacet((key) => {
    const size = model.facet(key).labels.length;
    const labels = (parts.get(`f.${key}`) ?? '').split('.').filter(Boolean).map(Number);
    return new Set(labels.filter((l) => Number.isInteger(l) && l >= 0 && l < size));
  });
}

/** Restores the view of a link. A text that is not such a link changes nothing. */
export function restoreView(text: string, store: Store, view: View | null): boolean {
  const parts = new URLSearchParams(text.replace(/^#/, ''));
  if (parts.get('v') !== kVersion) return false;
  const model = store.model;
  const [axisText, position, flip] = (parts.get('x') ?? 'none,0,0').split(',');
  const axis = oneOf<SectionAxis>(axisText, ['x', 'y', 'z']) ?? 'none';
  const id = parts.get('s');
  store.set({
    display: oneOf(parts.get('d'), ['solids', 'axes', 'both']) ?? 'solids',
    colourBy: oneOf(parts.get('c'), [...kFacetKeys, 'none']) ?? 'class',
    hidden: readHidden(parts, model),
    section: {
      axis: Number.isFinite(Number(position)) ? axis : 'none', position: Number(position) || 0,
      isFlipped: flip === '1',
    },
    selected: id === null ? -1 : model.elements.id.indexOf(Number(id)),
    search: parts.get('q') ?? '',
  });
  if (view) readCamera(parts, model, view);
  return true;
}

/** Keeps the address in step with the view, and restores views when the address changes. */
export function followAddress(store: Store, view: View | null): void {
  let timer = 0;
  let written = location.hash;
  const write = () => {
    written = '#' + encodeView(store, view);
    try {
      history.replaceState(null, '', written);
    } catch {
      // Some browsers refuse this for local files or limit how often it is done.
    }
  };
  const later = () => {
    clearTimeout(timer);
    timer = window.setTimeout(write, kDelayMilliseconds);
  };
  store.listen(later);
  view?.onFrame(later);
  addEventListener('hashchange', () => {
    if (location.hash !== written) restoreView(location.hash, store, view);
  });
}
