// Buffers of the idealisation: axes, outlines, mid planes and nodes.

import * as THREE from 'three';
import { SegmentList, makeLineGeometry } from './lines';
import type { Loop, Model } from './model';

type Point = [number, number, number];

/** Twice the area vector of a closed polyline. */
function areaVector(points: Point[]): Point {
  const sum: Point = [0, 0, 0];
  points.forEach((p, i) => {
    const q = points[(i + 1) % points.length];
    sum[0] += (p[1] - q[1]) * (p[2] + q[2]);
    sum[1] += (p[2] - q[2]) * (p[0] + q[0]);
    sum[2] += (p[0] - q[0]) * (p[1] + q[1]);
  });
  return sum;
}

/** Drops the coordinate along which a plane loop has the smallest extent. */
function dropAxis(normal: Point): (p: Point) => THREE.Vector2 {
  const [x, y, z] = normal.map(Math.abs);
  if (z >= x && z >= y) return (p) => new THREE.Vector2(p[0], p[1]);
  if (y >= x) return (p) => new THREE.Vector2(p[0], p[2]);
  return (p) => new THREE.Vector2(p[1], p[2]);
}

function isPlane(points: Point[], normal: Point): boolean {
  const size = Math.hypot(...normal);
  if (size === 0) return false;
  const n = normal.map((c) => c / size);
  const heights = points.map((p) => p[0] * n[0] + p[1] * n[1] + p[2] * n[2]);
  const extent = Math.sqrt(size);
  let low = Infinity;
  let high = -Infinity;
  for (const h of heights) {
    low = Math.min(low, h);
    high = Math.max(high, h);
  }
  return high - low <= 1e-3 * extent + 1e-4;
}

/** The triangles of the plane region that the closed loops of an element bound: the first loop is
 *  the outline, the others are holes. Empty if the outline is not plane. */
function fillOf(model: Model, loops: Loop[]): Point[] {
  const rings = loops.map((loop) =>
    Array.from({ length: loop.count }, (_, i) => model.loopPoint(loop.first + i)));
  const normal = areaVector(rings[0]);
  if (rings[0].length < 3 || !isPlane(rings[0], normal)) return [];
  const flat = dropAxis(normal);
  const holes = rings.slice(1).filter((ring) => ring.length >= 3);
  const all = [rings[0], ...holes].flat();
  const triangles = THREE.ShapeUtils.triangulateShape(
    rings[0].map(flat), holes.map((ring) => ring.map(flat)));
  return triangles.flat().map((index) => all[index]);
}

export interface IdealisedGeometry {
  /** The axes of members. */
  axes: THREE.InstancedBufferGeometry;
  /** The outlines of surfaces, of their holes and of openings. */
  outlines: THREE.InstancedBufferGeometry;
  planes: THREE.BufferGeometry;
  nodes: THREE.BufferGeometry;
}

function points(list: number[], elements: number[]): THREE.BufferGeometry {
  const geometry = new THREE.BufferGeometry();
  geometry.setAttribute('position', new THREE.Float32BufferAttribute(list, 3));
  geometry.setAttribute('element', new THREE.Float32BufferAttribute(elements, 1));
  return geometry;
}

/** Makes the buffers of the idealisation of all elements. */
export function makeIdealised(model: Model): IdealisedGeometry {
  const axes = new SegmentList();
  const outlines = new SegmentList();
  const nodes: number[] = [];
  const nodeElements: number[] = [];
  const planes: number[] = [];
  const planeElements: number[] = [];
  for (const loop of model.loops) {
    const last = loop.isClosed ? loop.count : loop.count - 1;
    for (let i = 0; i < last; ++i) {
      (loop.isClosed ? outlines : axes).add(loop.element, model.loopPoint(loop.first + i),
        model.loopPoint(loop.first + ((i + 1) % loop.count)));
    }
    if (!loop.isClosed && loop.count) {
      nodes.push(...model.loopPoint(loop.first), ...model.loopPoint(loop.first + loop.count - 1));
      nodeElements.push(loop.element, loop.element);
    }
  }
  for (let element = 0; element < model.count; ++element) {
    const closed = model.loopsOf(element).filter((loop) => loop.isClosed && !loop.isOpening);
    if (!closed.length) continue;
    for (const point of fillOf(model, closed)) {
      planes.push(...point);
      planeElements.push(element);
    }
  }
  return {
    axes: makeLineGeometry(axes.segments),
    outlines: makeLineGeometry(outlines.segments),
    planes: points(planes, planeElements),
    nodes: points(nodes, nodeElements),
  };
}
