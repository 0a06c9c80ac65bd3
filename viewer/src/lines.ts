// Lines of a constant width on the screen. One buffer of segments is one draw call.

import * as THREE from 'three';

export interface Segments {
  /** Six numbers per segment. */
  points: Float32Array;
  /** The element of each segment. */
  elements: Float32Array;
}

const kQuad = new Float32Array([0, -1, 0, 1, -1, 0, 1, 1, 0, 0, -1, 0, 1, 1, 0, 0, 1, 0]);

export function makeLineGeometry(segments: Segments): THREE.InstancedBufferGeometry {
  const geometry = new THREE.InstancedBufferGeometry();
  const buffer = new THREE.InstancedInterleavedBuffer(segments.points, 6);
  geometry.setAttribute('position', new THREE.BufferAttribute(kQuad, 3));
  geometry.setAttribute('from', new THREE.InterleavedBufferAttribute(buffer, 3, 0));
  geometry.setAttribute('to', new THREE.InterleavedBufferAttribute(buffer, 3, 3));
  geometry.setAttribute('element', new THREE.InstancedBufferAttribute(segments.elements, 1));
  geometry.instanceCount = segments.elements.length;
  return geometry;
}

/** Collects segments one by one. */
export class SegmentList {
  private readonly points: number[] = [];
  private readonly elements: number[] = [];

  add(element: number, a: readonly number[], b: readonly number[]): void {
    this.points.push(a[0], a[1], a[2], b[0], b[1], b[2]);
    this.elements.push(element);
  }

  get segments(): Segments {
    return {
      points: new Float32Array(this.points), elements: new Float32Array(this.elements),
    };
  }
}
