// Printing: the picture of the view in light colours, with the legend and the selected element.

import { make } from './dom';
import type { View } from './view';

/** Makes the page ready for printing. A browser does not keep the pixels of the 3D view, so a copy
 *  of them is printed. */
export function preparePrint(stage: HTMLElement, view: View): void {
  const copy = make('canvas', { class: 'print-only', attributes: { 'aria-hidden': 'true' } });
  const { dataset } = document.documentElement;
  let theme = dataset.theme;
  const useTheme = (name: string | undefined) => {
    if (dataset.theme === name) return;
    dataset.theme = name;
    view.applyTheme();
  };
  addEventListener('beforeprint', () => {
    theme = dataset.theme;
    useTheme('light');
    view.draw();
    copy.width = view.canvas.width;
    copy.height = view.canvas.height;
    copy.getContext('2d')?.drawImage(view.canvas, 0, 0);
    stage.append(copy);
  });
  addEventListener('afterprint', () => {
    copy.remove();
    useTheme(theme);
  });
}
