// The section plane, and the outlines of the solids in it.

import * as THREE from 'three';
import { SegmentList, type Segments } from './lines';
import type { Box, Model } from './model';
import type { Section } from './state';

const kAxes = { x: 0, y: 1, z: 2 } as const;

/** Faces in the plane are cut off, too: those that are nearer to it than this, in metres. */
const kPlaneTolerance = 5e-4;

/** Points with dot(normal, point) > distance are cut off; they are relative to the origin. */
export class Plane {
  readonly normal: [number, number, number] = [0, 0, 0];
  readonly distance: number;
  /** Where the solids are cut along the axis. */
  readonly cut: number;

  constructor(readonly axis: number, readonly position: number, isFlipped: boolean) {
    const sign = isFlipped ? -1 : 1;
    this.normal[axis] = sign;
    this.distance = sign * position - kPlaneTolerance;
    this.cut = sign * this.distance;
  }

  isCutOff(x: number, y: number, z: number): boolean {
    const n = this.normal;
    return n[0] * x + n[1] * y + n[2] * z > this.distance;
  }

  /** A rectangle in the plane that covers the box. */
  quad(box: Box): THREE.BufferGeometry {
    const [u, v] = [(this.axis + 1) % 3, (this.axis + 2) % 3];
    const margin = 1;
    const corners = [[0, 0], [1, 0], [1, 1], [0, 0], [1, 1], [0, 1]];
    const points = corners.flatMap(([i, j]) => {
      const point = [0, 0, 0];
      point[this.axis] = this.position;
      point[u] = i ? box[u + 3] + margin : box[u] - margin;
      point[v] = j ? box[v + 3] + margin : box[v] - margin;
      return point;
    });
    const geometry = new THREE.BufferGeometry();
    geometry.setAttribute('position', new THREE.Float32BufferAttribute(points, 3));
    return geometry;
  }
}

/** The plane of a section; null if there is no section. */
export function planeOf(section: Section, model: Model): Plane | null {
  if (section.axis === 'none') return null;
  const axis = kAxes[section.axis];
  return new Plane(axis, section.position - model.description.origin[axis], section.isFlipped);
}

/** The smallest and largest world coordinate of the model along an axis. */
export function sectionRange(axis: Section['axis'], model: Model): [number, number] {
  const box = model.description.box;
  if (axis === 'none' || !box) return [0, 1];
  return [box[0][kAxes[axis]], box[1][kAxes[axis]]];
}

/** The segment in which a plane cuts a triangle; null if it does not cut it. */
function cutTriangle(corners: number[][], plane: Plane): [number[], number[]] | null {
  const heights = corners.map((p) => p[plane.axis] - plane.cut);
  const ends: number[][] = [];
  for (let i = 0; i < 3; ++i) {
    const j = (i + 1) % 3;
    if (heights[i] < 0 === heights[j] < 0) continue;
    const t = heights[i] / (heights[i] - heights[j]);
    ends.push(corners[i].map((c, k) => c + t * (corners[j][k] - c)));
  }
  return ends.length === 2 ? [ends[0], ends[1]] : null;
}

/** The lines in which a plane cuts the visible solids. */
export function cutSegments(model: Model, visible: Uint8Array, plane: Plane): Segments {
  const list = new SegmentList();
  const { boxes, data } = model;
  for (let element = 0; element < model.count; ++element) {
    const at = 6 * element + plane.axis;
    if (!visible[element] || !(boxes[at] < plane.cut && plane.cut < boxes[at + 3])) {
      continue;
    }
    const mesh = model.meshOf(element);
    if (!mesh) continue;
    const end = 3 * (mesh.firstTriangle + mesh.triangles);
    for (let t = 3 * mesh.firstTriangle; t < end; t += 3) {
      const corners = [0, 1, 2].map((k) =>
        model.vertex(element, mesh.firstVertex + data.triangles[t + k]));
      const cut = cutTriangle(corners, plane);
      if (cut) list.add(element, cut[0], cut[1]);
    }
  }
  return list.segments;
}
