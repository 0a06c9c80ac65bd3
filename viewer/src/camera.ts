// The camera: a target, two angles and the height of the view at the target.

import * as THREE from 'three';
import type { Box } from './model';

export interface CameraState {
  target: [number, number, number];
  /** Radians, from the x axis to the direction in which the camera stands. */
  azimuth: number;
  /** Radians, from the horizontal plane to that direction; 90 degrees at most. */
  elevation: number;
  /** The extent of the view along its vertical at the target, in metres. */
  height: number;
  isPerspective: boolean;
}

type ViewDirection = Pick<CameraState, 'azimuth' | 'elevation' | 'isPerspective'>;

export type ViewName = 'top' | 'front' | 'side' | 'iso';

const kQuarter = Math.PI / 2;
const kAngles: Record<ViewName, [number, number]> = {
  top: [-kQuarter, kQuarter],
  front: [-kQuarter, 0],
  side: [0, 0],
  iso: [-kQuarter / 2, Math.atan(Math.SQRT1_2)],
};
const kFieldOfView = (32 * Math.PI) / 180;
const kSmallestHeight = 0.01;
const kLargestHeight = 1e6;
/** The least distance that is drawn in perspective, as a share of that of the target. */
const kNearestShare = 0.02;
const kFitMargin = 1.1;
const kFitRounds = 6;
const kAnimationMilliseconds = 260;

interface Basis {
  right: THREE.Vector3;
  up: THREE.Vector3;
  back: THREE.Vector3;
}

function basisOf(azimuth: number, elevation: number): Basis {
  const [ca, sa] = [Math.cos(azimuth), Math.sin(azimuth)];
  const [ce, se] = [Math.cos(elevation), Math.sin(elevation)];
  return {
    right: new THREE.Vector3(-sa, ca, 0),
    up: new THREE.Vector3(-se * ca, -se * sa, ce),
    back: new THREE.Vector3(ce * ca, ce * sa, se),
  };
}

function clamp(value: number, low: number, high: number): number {
  return Math.min(high, Math.max(low, value));
}

export interface Ray {
  origin: THREE.Vector3;
  direction: THREE.Vector3;
}

function cornersOf(box: Box): THREE.Vector3[] {
  return Array.from({ length: 8 }, (_, i) => new THREE.Vector3(
    box[i & 1 ? 3 : 0], box[i & 2 ? 4 : 1], box[i & 4 ? 5 : 2]));
}

/** The smallest frame that shows points: its middle and its height. A point is given by its places
 *  to the right, upwards and towards the eye. `slope` is half of the height of the frame divided by
 *  the distance of the eye; 0 if the view is orthographic. */
function fittedFrame(
  points: readonly (readonly [number, number, number])[], aspect: number, slope: number,
): { x: number; y: number; height: number } {
  const frame = { x: 0, y: 0, height: 0 };
  // In perspective the middle depends on the height, so a few rounds improve both.
  for (let round = 0; round < kFitRounds; ++round) {
    frame.height = 0;
    for (const [x, y, z] of points) {
      const half = Math.max(Math.abs(y - frame.y), Math.abs(x - frame.x) / aspect);
      frame.height = Math.max(frame.height, 2 * (half + z * slope));
    }
    const scales = points.map(([, , z]) => 1 / Math.max(1 - (2 * slope * z) / frame.height, 1e-3));
    const middleOf = (places: number[]) => {
      const seen = places.map((place, i) => place * scales[i]);
      return (Math.min(...seen) + Math.max(...seen)) / 2;
    };
    frame.x += middleOf(points.map(([x]) => x - frame.x));
    frame.y += middleOf(points.map(([, y]) => y - frame.y));
  }
  return frame;
}

export class ViewCamera {
  state: CameraState = {
    target: [0, 0, 0], azimuth: kAngles.iso[0], elevation: kAngles.iso[1], height: 10,
    isPerspective: true,
  };
  /** The size of the view in CSS pixels. */
  width = 1;
  heightInPixels = 1;
  private readonly perspective = new THREE.PerspectiveCamera();
  private readonly orthographic = new THREE.OrthographicCamera();
  private animation = 0;

  /** `bounds` is the box of the model; `changed` is called after each change. */
  constructor(private readonly bounds: Box, private readonly changed: () => void) {
    for (const camera of [this.perspective, this.orthographic]) camera.matrixAutoUpdate = false;
  }

  get camera(): THREE.Camera {
    return this.state.isPerspective ? this.perspective : this.orthographic;
  }

  /** Sets the size of the view. The scale stays, so that the model does not jump when a panel
   *  opens. A size without an area is ignored. */
  resize(width: number, height: number): void {
    if (width < 1 || height < 1) return;
    const isFirst = this.heightInPixels <= 1;
    const scale = isFirst ? 1 : height / this.heightInPixels;
    this.width = width;
    this.heightInPixels = height;
    this.set({ height: this.state.height * scale });
  }

  /** Changes the state. With `isAnimated`, the view moves there unless the user prefers less
   *  motion. */
  set(change: Partial<CameraState>, isAnimated = false): void {
    cancelAnimationFrame(this.animation);
    const end = { ...this.state, ...change };
    end.elevation = clamp(end.elevation, -kQuarter, kQuarter);
    end.height = clamp(end.height, kSmallestHeight, kLargestHeight);
    const isStill = matchMedia('(prefers-reduced-motion: reduce)').matches;
    if (isAnimated && !isStill) this.animate(this.state, end);
    else this.use(end);
  }

  /** Looks from a side. The view is orthographic, and shows the box. */
  look(name: ViewName, box: Box): void {
    const [azimuth, elevation] = kAngles[name];
    const view = { azimuth, elevation, isPerspective: false };
    this.set({ ...view, ...this.fitted(box, view) }, true);
  }

  fit(box: Box, isAnimated = true): void {
    this.set(this.fitted(box, this.state), isAnimated);
  }

  /** Turns about a point, which keeps its place on the screen. */
  turn(azimuth: number, elevation: number, pivot?: THREE.Vector3): void {
    const s = this.state;
    const next = clamp(s.elevation + elevation, -kQuarter, kQuarter);
    const target = new THREE.Vector3(...s.target);
    if (pivot) {
      const old = basisOf(s.azimuth, s.elevation);
      const turned = basisOf(s.azimuth + azimuth, next);
      const arm = target.clone().sub(pivot);
      target.copy(pivot)
        .addScaledVector(turned.right, arm.dot(old.right))
        .addScaledVector(turned.up, arm.dot(old.up))
        .addScaledVector(turned.back, arm.dot(old.back));
    }
    this.set({ azimuth: s.azimuth + azimuth, elevation: next, target: target.toArray() });
  }

  /** Moves the view by pixels. */
  pan(x: number, y: number): void {
    const s = this.state;
    const metres = s.height / this.heightInPixels;
    const { right, up } = basisOf(s.azimuth, s.elevation);
    const target = new THREE.Vector3(...s.target)
      .addScaledVector(right, -x * metres).addScaledVector(up, y * metres);
    this.set({ target: target.toArray() });
  }

  /** Zooms by a factor; the point at the pixel keeps its place. */
  zoom(factor: number, x = this.width / 2, y = this.heightInPixels / 2): void {
    const s = this.state;
    const height = clamp(s.height * factor, kSmallestHeight, kLargestHeight);
    const metres = (s.height - height) / this.heightInPixels;
    const { right, up } = basisOf(s.azimuth, s.elevation);
    const target = new THREE.Vector3(...s.target)
      .addScaledVector(right, (x - this.width / 2) * metres)
      .addScaledVector(up, (this.heightInPixels / 2 - y) * metres);
    this.set({ height, target: target.toArray() });
  }

  /** The ray through a pixel, relative to the origin of the model. */
  ray(x: number, y: number): Ray {
    const ndc = [(2 * x) / this.width - 1, 1 - (2 * y) / this.heightInPixels];
    const near = new THREE.Vector3(ndc[0], ndc[1], -1).unproject(this.camera);
    const far = new THREE.Vector3(ndc[0], ndc[1], 1).unproject(this.camera);
    return { origin: near, direction: far.sub(near).normalize() };
  }

  /** The pixel of a point; null if it is behind the camera. */
  project(x: number, y: number, z: number): [number, number] | null {
    const p = new THREE.Vector3(x, y, z).project(this.camera);
    if (!(p.z >= -1 && p.z <= 1)) return null;
    return [((p.x + 1) / 2) * this.width, ((1 - p.y) / 2) * this.heightInPixels];
  }

  /** The length in metres of one pixel at a distance along the view. */
  metresPerPixel(point: THREE.Vector3): number {
    const s = this.state;
    const atTarget = s.height / this.heightInPixels;
    if (!s.isPerspective) return atTarget;
    const { back } = basisOf(s.azimuth, s.elevation);
    const distance = this.distance - back.dot(point.clone().sub(new THREE.Vector3(...s.target)));
    return (atTarget * Math.max(distance, 1e-3)) / this.distance;
  }

  private get distance(): number {
    return this.state.height / 2 / Math.tan(kFieldOfView / 2);
  }

  private fitted(box: Box, view: ViewDirection): Partial<CameraState> {
    if (box[0] > box[3]) return {};
    const { right, up, back } = basisOf(view.azimuth, view.elevation);
    const middle = new THREE.Vector3(
      (box[0] + box[3]) / 2, (box[1] + box[4]) / 2, (box[2] + box[5]) / 2);
    const corners = cornersOf(box).map((corner) => {
      const arm = corner.sub(middle);
      return [arm.dot(right), arm.dot(up), arm.dot(back)] as const;
    });
    const aspect = this.width / this.heightInPixels;
    const slope = view.isPerspective ? Math.tan(kFieldOfView / 2) : 0;
    const { x, y, height } = fittedFrame(corners, aspect, slope);
    const target = middle.addScaledVector(right, x).addScaledVector(up, y);
    return { target: target.toArray(), height: Math.max(height, 0.1) * kFitMargin };
  }

  private use(state: CameraState): void {
    this.state = state;
    this.apply();
  }

  private animate(start: CameraState, end: CameraState): void {
    const began = performance.now();
    const turn = end.azimuth - start.azimuth;
    const shortTurn = turn - 2 * Math.PI * Math.round(turn / (2 * Math.PI));
    const step = () => {
      const part = Math.min(1, (performance.now() - began) / kAnimationMilliseconds);
      const t = part * part * (3 - 2 * part);
      const mix = (a: number, b: number) => a + t * (b - a);
      const isLast = part >= 1;
      this.use({
        target: start.target.map((a, i) => mix(a, end.target[i])) as [number, number, number],
        azimuth: isLast ? end.azimuth : start.azimuth + t * shortTurn,
        elevation: mix(start.elevation, end.elevation),
        height: isLast ? end.height : start.height * Math.pow(end.height / start.height, t),
        isPerspective: end.isPerspective,
      });
      if (!isLast) this.animation = requestAnimationFrame(step);
    };
    step();
  }

  private apply(): void {
    const s = this.state;
    const { right, up, back } = basisOf(s.azimuth, s.elevation);
    const target = new THREE.Vector3(...s.target);
    const b = this.bounds;
    const isEmpty = b[0] > b[3];
    const centre = isEmpty ? target
      : new THREE.Vector3((b[0] + b[3]) / 2, (b[1] + b[4]) / 2, (b[2] + b[5]) / 2);
    const radius = isEmpty ? 1 : Math.hypot(b[3] - b[0], b[4] - b[1], b[5] - b[2]) / 2 + 0.1;
    const distance = this.distance;
    const depth = distance - back.dot(centre.sub(target));
    const far = Math.max(depth + radius, distance * 1e-2);
    // The nearer the plane, the coarser the depths: edges would show through what hides them.
    const near = s.isPerspective
      ? Math.max(depth - radius, far * 1e-4, distance * kNearestShare) : depth - radius;
    const camera = this.camera as THREE.PerspectiveCamera | THREE.OrthographicCamera;
    this.setLens(camera, near, far);
    camera.matrix.makeBasis(right, up, back)
      .setPosition(target.addScaledVector(back, distance));
    camera.matrixWorldNeedsUpdate = true;
    camera.updateMatrixWorld(true);
    this.changed();
  }

  private setLens(
    camera: THREE.PerspectiveCamera | THREE.OrthographicCamera, near: number, far: number,
  ): void {
    const aspect = this.width / this.heightInPixels;
    camera.near = near;
    camera.far = far;
    if (camera instanceof THREE.PerspectiveCamera) {
      camera.fov = (kFieldOfView * 180) / Math.PI;
      camera.aspect = aspect;
    } else {
      camera.top = this.state.height / 2;
      camera.bottom = -camera.top;
      camera.right = camera.top * aspect;
      camera.left = -camera.right;
    }
    camera.updateProjectionMatrix();
  }
}
