// Buffers of the edges of round surfaces. The shader draws those between a face that is seen and one
// that is not.

import * as THREE from 'three';
import type { MeshRange, Model } from './model';

const kLargestComponent = 511;

/** Packs a direction into three numbers of ten bits. */
function pack(x: number, y: number, z: number): number {
  const length = Math.hypot(x, y, z) || 1;
  const part = (value: number) =>
    Math.round((value / length) * kLargestComponent) + kLargestComponent + 1;
  return part(x) | (part(y) << 10) | (part(z) << 20);
}

/** The packed normal of a triangle. The arguments are where its corners begin in `p`. */
function normalOf(p: Float32Array, a: number, b: number, c: number): number {
  const ux = p[b] - p[a], uy = p[b + 1] - p[a + 1], uz = p[b + 2] - p[a + 2];
  const vx = p[c] - p[a], vy = p[c + 1] - p[a + 1], vz = p[c + 2] - p[a + 2];
  return pack(uy * vz - uz * vy, uz * vx - ux * vz, ux * vy - uy * vx);
}

/** Collects the round edges of meshes. Each edge has two vertices of its own, with the normals of
 *  the faces on its sides. */
export class RoundEdgeList {
  private readonly positions: Float32Array;
  private readonly sides: Uint32Array;
  private readonly elements: Float32Array;
  private vertices = 0;

  constructor(count: number) {
    this.positions = new Float32Array(6 * count);
    this.sides = new Uint32Array(4 * count);
    this.elements = new Float32Array(2 * count);
  }

  /** Adds the edges of a mesh. `points` are its vertices. */
  add(model: Model, mesh: MeshRange, points: Float32Array, element: number): void {
    const { roundEdges } = model.data;
    const end = 4 * (mesh.firstRoundEdge + mesh.roundEdges);
    for (let i = 4 * mesh.firstRoundEdge; i < end; i += 4) {
      const [a, b] = [3 * roundEdges[i], 3 * roundEdges[i + 1]];
      const sides = [
        normalOf(points, a, b, 3 * roundEdges[i + 2]),
        normalOf(points, b, a, 3 * roundEdges[i + 3]),
      ];
      for (const at of [a, b]) {
        this.positions.set(points.subarray(at, at + 3), 3 * this.vertices);
        this.sides.set(sides, 2 * this.vertices);
        this.elements[this.vertices++] = element;
      }
    }
  }

  /** Fills a geometry of line segments; null if there are no edges. `placement` replaces the
   *  elements of the vertices. */
  geometry<Geometry extends THREE.BufferGeometry>(
    base: Geometry, placement?: Record<string, THREE.InterleavedBufferAttribute>,
  ): Geometry | null {
    if (this.vertices === 0) return null;
    base.setAttribute('position', new THREE.BufferAttribute(this.positions, 3));
    base.setAttribute('sides', new THREE.BufferAttribute(this.sides, 2));
    const rest = placement ?? { element: new THREE.BufferAttribute(this.elements, 1) };
    for (const [name, attribute] of Object.entries(rest)) base.setAttribute(name, attribute);
    return base;
  }
}
