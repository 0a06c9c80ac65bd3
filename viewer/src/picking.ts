// Finds the element and the point under a pixel, without drawing.

import * as THREE from 'three';
import type { Ray, ViewCamera } from './camera';
import type { Model } from './model';
import type { Plane } from './section';
import type { Store } from './state';

export interface Hit {
  element: number;
  /** Relative to the origin of the model. */
  point: THREE.Vector3;
}

export type SnapKind = 'corner' | 'axisEnd' | 'face';

export interface Snap extends Hit {
  kind: SnapKind;
}

const kLinePixels = 7;
const kSnapPixels = 12;
const kNeighbours = [[0, 0], [6, 0], [-6, 0], [0, 6], [0, -6]] as const;

export class Picker {
  constructor(
    private readonly model: Model, private readonly store: Store,
    private readonly camera: ViewCamera, private readonly plane: () => Plane | null,
  ) {}

  /** What is drawn at a pixel; null if nothing is. */
  pick(x: number, y: number): Hit | null {
    const ray = this.camera.ray(x, y);
    if (this.store.state.display === 'solids') return this.pickSolid(ray, () => true);
    const line = this.pickLine(x, y, ray);
    if (line) return line;
    const isOutlined = (element: number) => this.model.elements.kind[element] !== 0;
    return this.pickSolid(ray, this.store.state.display === 'axes' ? isOutlined : () => true);
  }

  /** The point at a pixel, moved to a corner or to the end of an axis that is near. */
  snap(x: number, y: number): Snap | null {
    let hit: Hit | null = null;
    for (const [dx, dy] of kNeighbours) {
      hit = this.pick(x + dx, y + dy);
      if (hit) break;
    }
    const best = this.nearestCandidate(x, y, hit);
    if (best) return best;
    return hit ? { ...hit, kind: 'face' } : null;
  }

  private isShown(x: number, y: number, z: number): boolean {
    return !this.plane()?.isCutOff(x, y, z);
  }

  private nearestCandidate(x: number, y: number, hit: Hit | null): Snap | null {
    let best: Snap | null = null;
    let bestDistance = kSnapPixels;
    const offer = (element: number, kind: SnapKind, p: readonly [number, number, number]) => {
      const pixel = this.isShown(...p) ? this.camera.project(...p) : null;
      if (!pixel) return;
      const distance = Math.hypot(pixel[0] - x, pixel[1] - y);
      if (distance >= bestDistance) return;
      bestDistance = distance;
      best = { element, kind, point: new THREE.Vector3(...p) };
    };
    const isIdealised = this.store.state.display !== 'solids';
    for (const loop of this.model.loops) {
      if (!this.store.visible[loop.element] || !loop.count) continue;
      if (loop.element !== hit?.element && !isIdealised) continue;
      if (loop.isClosed) {
        if (!isIdealised) continue;
        for (let i = 0; i < loop.count; ++i) {
          offer(loop.element, 'corner', this.model.loopPoint(loop.first + i));
        }
      } else {
        offer(loop.element, 'axisEnd', this.model.loopPoint(loop.first));
        offer(loop.element, 'axisEnd', this.model.loopPoint(loop.first + loop.count - 1));
      }
    }
    if (hit && this.store.state.display !== 'axes') {
      for (const corner of this.cornersOf(hit.element)) offer(hit.element, 'corner', corner);
    }
    return best;
  }

  private *cornersOf(element: number): Generator<[number, number, number]> {
    const mesh = this.model.meshOf(element);
    if (!mesh) return;
    const ends = this.model.data.edges.subarray(
      2 * mesh.firstEdge, 2 * (mesh.firstEdge + mesh.edges));
    for (const vertex of new Set(ends)) yield this.model.vertex(element, mesh.firstVertex + vertex);
  }

  private pickSolid(ray: Ray, isPart: (element: number) => boolean): Hit | null {
    const candidates = this.boxesAlong(ray, 0).filter((c) => isPart(c.element));
    candidates.sort((a, b) => a.enter - b.enter);
    let best: Hit | null = null;
    let bestDistance = Infinity;
    for (const { element, enter } of candidates) {
      if (enter > bestDistance) break;
      const distance = this.hitMesh(element, ray, bestDistance);
      if (distance >= bestDistance) continue;
      bestDistance = distance;
      const point = ray.direction.clone().multiplyScalar(distance).add(ray.origin);
      best = { element, point };
    }
    return best;
  }

  /** The visible elements whose box, grown by a margin, a ray meets. */
  private boxesAlong(ray: Ray, margin: number): { element: number; enter: number }[] {
    const found: { element: number; enter: number }[] = [];
    const { boxes } = this.model;
    const origin = ray.origin.toArray();
    const inverse = ray.direction.toArray().map((d) => 1 / (d === 0 ? 1e-30 : d));
    for (let element = 0; element < this.model.count; ++element) {
      if (!this.store.visible[element]) continue;
      let enter = 0;
      let leave = Infinity;
      for (let axis = 0; axis < 3; ++axis) {
        const low = (boxes[6 * element + axis] - margin - 1e-4 - origin[axis]) * inverse[axis];
        const high = (boxes[6 * element + axis + 3] + margin + 1e-4 - origin[axis]) * inverse[axis];
        enter = Math.max(enter, Math.min(low, high));
        leave = Math.min(leave, Math.max(low, high));
      }
      if (enter <= leave && boxes[6 * element] <= boxes[6 * element + 3]) {
        found.push({ element, enter });
      }
    }
    return found;
  }

  /** The distance at which a ray meets the triangles of an element, if it is less than `limit`;
   *  otherwise infinity. */
  private hitMesh(element: number, ray: Ray, limit: number): number {
    const mesh = this.model.meshOf(element);
    if (!mesh) return Infinity;
    const matrix = this.matrixOf(element);
    if (matrix.determinant() === 0) return Infinity;
    const inverse = matrix.invert();
    const o = ray.origin.clone().applyMatrix4(inverse);
    // The direction keeps its length, so that distances are those of the model.
    const d = ray.origin.clone().add(ray.direction).applyMatrix4(inverse).sub(o);
    const { positions, triangles } = this.model.data;
    const [a, b, c] = [new THREE.Vector3(), new THREE.Vector3(), new THREE.Vector3()];
    let best = limit;
    const end = 3 * (mesh.firstTriangle + mesh.triangles);
    for (let t = 3 * mesh.firstTriangle; t < end; t += 3) {
      a.fromArray(positions, 3 * (mesh.firstVertex + triangles[t]));
      b.fromArray(positions, 3 * (mesh.firstVertex + triangles[t + 1]));
      c.fromArray(positions, 3 * (mesh.firstVertex + triangles[t + 2]));
      const distance = hitTriangle(o, d, a, b, c);
      if (distance >= best) continue;
      const p = ray.direction.clone().multiplyScalar(distance).add(ray.origin);
      if (this.isShown(p.x, p.y, p.z)) best = distance;
    }
    return best < limit ? best : Infinity;
  }

  private matrixOf(element: number): THREE.Matrix4 {
    const m = this.model.data.elementMatrix.subarray(12 * element, 12 * element + 12);
    return new THREE.Matrix4().set(
      m[0], m[3], m[6], m[9], m[1], m[4], m[7], m[10], m[2], m[5], m[8], m[11], 0, 0, 0, 1);
  }

  private pickLine(x: number, y: number, ray: Ray): Hit | null {
    const middle = new THREE.Vector3(...this.camera.state.target);
    const margin = 4 * kLinePixels * this.camera.metresPerPixel(middle);
    let best: Hit | null = null;
    let bestDistance = kLinePixels;
    for (const { element } of this.boxesAlong(ray, margin)) {
      for (const loop of this.model.loopsOf(element)) {
        for (let i = 0; i + (loop.isClosed ? 0 : 1) < loop.count; ++i) {
          const from = this.model.loopPoint(loop.first + i);
          const to = this.model.loopPoint(loop.first + ((i + 1) % loop.count));
          const near = this.nearSegment(x, y, from, to);
          if (!near || near.distance >= bestDistance) continue;
          bestDistance = near.distance;
          best = { element, point: near.point };
        }
      }
    }
    return best;
  }

  private nearSegment(
    x: number, y: number, from: [number, number, number], to: [number, number, number],
  ): { distance: number; point: THREE.Vector3 } | null {
    const p = this.camera.project(...from);
    const q = this.camera.project(...to);
    if (!p || !q) return null;
    const [dx, dy] = [q[0] - p[0], q[1] - p[1]];
    const size = dx * dx + dy * dy;
    const t = size > 0
      ? Math.min(1, Math.max(0, ((x - p[0]) * dx + (y - p[1]) * dy) / size)) : 0;
    const point = new THREE.Vector3(...from).lerp(new THREE.Vector3(...to), t);
    if (!this.isShown(point.x, point.y, point.z)) return null;
    return { distance: Math.hypot(p[0] + t * dx - x, p[1] + t * dy - y), point };
  }
}

/** The distance along a direction to a triangle, from both sides; infinity if it is missed. */
function hitTriangle(
  origin: THREE.Vector3, direction: THREE.Vector3, a: THREE.Vector3, b: THREE.Vector3,
  c: THREE.Vector3,
): number {
  const e1x = b.x - a.x, e1y = b.y - a.y, e1z = b.z - a.z;
  const e2x = c.x - a.x, e2y = c.y - a.y, e2z = c.z - a.z;
  const px = direction.y * e2z - direction.z * e2y;
  const py = direction.z * e2x - direction.x * e2z;
  const pz = direction.x * e2y - direction.y * e2x;
  const determinant = e1x * px + e1y * py + e1z * pz;
  if (determinant === 0) return Infinity;
  const tx = origin.x - a.x, ty = origin.y - a.y, tz = origin.z - a.z;
  const u = (tx * px + ty * py + tz * pz) / determinant;
  if (!(u >= 0 && u <= 1)) return Infinity;
  const qx = ty * e1z - tz * e1y;
  const qy = tz * e1x - tx * e1z;
  const qz = tx * e1y - ty * e1x;
  const v = (direction.x * qx + direction.y * qy + direction.z * qz) / determinant;
  if (!(v >= 0 && u + v <= 1)) return Infinity;
  const distance = (e2x * qx + e2y * qy + e2z * qz) / determinant;
  return distance >= 0 ? distance : Infinity;
}
