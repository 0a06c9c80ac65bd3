// What tests and measurements read of the page: `window.kelifcPage`. It does not change the page.

import type { Store } from './state';
import type { FrameStatistics, View } from './view';

export interface PageHook {
  /** What the last frame cost. */
  statistics(): FrameStatistics;
  /** The number of elements, and of those that no filter hides. */
  counts(): { elements: number; visible: number };
  /** The instance number of the selected element; null if none is selected. */
  selected(): number | null;
  /** The instance number of the element at a pixel of the window; null if there is none. */
  elementAt(x: number, y: number): number | null;
  /** The pixel of the window at which a world point is drawn; null if it is behind the camera. */
  project(x: number, y: number, z: number): [number, number] | null;
  /** The camera: target in world coordinates, angles in radians, height of the view in metres. */
  camera(): { target: number[]; azimuth: number; elevation: number; height: number;
    isPerspective: boolean };
}

declare global {
  interface Window {
    kelifcPage?: Readonly<PageHook>;
  }
}

export function placeHook(store: Store, view: View | null): void {
  const { model } = store;
  const origin = model.description.origin;
  const corner = () => view!.canvas.getBoundingClientRect();
  const idOf = (element: number) => (element < 0 ? null : model.elements.id[element]);
  window.kelifcPage = Object.freeze<PageHook>({
    statistics: () => ({
      ...(view?.statistics ?? { frames: 0, drawCalls: 0, triangles: 0, scriptMilliseconds: 0 }),
    }),
    counts: () => ({ elements: model.count, visible: store.visibleCount }),
    selected: () => idOf(store.state.selected),
    elementAt: (x, y) => {
      if (!view) return null;
      return idOf(view.picker.pick(x - corner().left, y - corner().top)?.element ?? -1);
    },
    project: (x, y, z) => {
      const at = view?.camera.project(x - origin[0], y - origin[1], z - origin[2]);
      return at ? [at[0] + corner().left, at[1] + corner().top] : null;
    },
    camera: () => {
      const state = view!.camera.state;
      return { ...state, target: state.target.map((c, i) => c + origin[i]) };
    },
  });
}
