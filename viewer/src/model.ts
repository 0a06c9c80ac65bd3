// The building with what the page derives from it: boxes, loops and facets.

import { kNoMesh, type BuildingData, type Description, type ElementColumns } from './data';
import { plainText, sizeInMillimetres } from './format';
import { strings } from './strings';

export type FacetKey = 'storey' | 'class' | 'kind' | 'profile' | 'material' | 'exactness';

export const kFacetKeys: readonly FacetKey[] = [
  'storey', 'class', 'kind', 'profile', 'material', 'exactness',
];

/** A property by which elements are filtered and coloured. */
export interface Facet {
  key: FacetKey;
  title: string;
  labels: string[];
  /** The index in `labels` for each element. */
  values: Uint32Array;
  /** The number of elements of each label. */
  counts: Uint32Array;
}

/** A range of the edges, triangles or vertices of a mesh. */
export interface MeshRange {
  firstVertex: number;
  vertices: number;
  firstTriangle: number;
  triangles: number;
  firstEdge: number;
  edges: number;
  firstRoundEdge: number;
  roundEdges: number;
}

export interface Loop {
  element: number;
  first: number;
  count: number;
  isClosed: boolean;
  /** True for the outline of an opening. */
  isOpening: boolean;
}

/** The kinds of loops in the data. */
const kAxisLoop = 0;
const kOpeningLoop = 2;

/** A box as six numbers: the smallest coordinates, then the largest. */
export type Box = [number, number, number, number, number, number];

export function emptyBox(): Box {
  return [Infinity, Infinity, Infinity, -Infinity, -Infinity, -Infinity];
}

function extend(boxes: Float32Array | Box, at: number, x: number, y: number, z: number): void {
  if (x < boxes[at]) boxes[at] = x;
  if (y < boxes[at + 1]) boxes[at + 1] = y;
  if (z < boxes[at + 2]) boxes[at + 2] = z;
  if (x > boxes[at + 3]) boxes[at + 3] = x;
  if (y > boxes[at + 4]) boxes[at + 4] = y;
  if (z > boxes[at + 5]) boxes[at + 5] = z;
}

export class Model {
  readonly description: Description;
  readonly elements: ElementColumns;
  readonly count: number;
  /** Six numbers per element, relative to the origin. The box of an element without geometry is
   *  empty. */
  readonly boxes: Float32Array;
  readonly loops: Loop[];
  readonly facets: Map<FacetKey, Facet>;
  private readonly loopStarts: Uint32Array;

  constructor(readonly data: BuildingData) {
    this.description = data.description;
    this.elements = data.description.elements;
    this.count = this.elements.count;
    this.loops = this.readLoops();
    this.loopStarts = this.indexLoops();
    this.boxes = this.boxesOfElements();
    this.facets = new Map(kFacetKeys.map((key) => [key, makeFacet(this, key)]));
  }

  facet(key: FacetKey): Facet {
    return this.facets.get(key)!;
  }

  meshOf(element: number): MeshRange | null {
    const mesh = this.data.elementMesh[element];
    return mesh === kNoMesh ? null : this.mesh(mesh);
  }

  mesh(index: number): MeshRange {
    const at = 6 * index;
    const m = this.data.meshes;
    return {
      firstVertex: m[at],
      vertices: m[at + 1],
      firstTriangle: m[at + 2],
      triangles: m[at + 3],
      firstEdge: m[at + 4],
      edges: m[at + 5],
      firstRoundEdge: this.data.meshRoundEdges[2 * index],
      roundEdges: this.data.meshRoundEdges[2 * index + 1],
    };
  }

  /** The loops of an element, in the order of the data. */
  loopsOf(element: number): Loop[] {
    return this.loops.slice(this.loopStarts[element], this.loopStarts[element + 1]);
  }

  /** A point of a loop, relative to the origin. */
  loopPoint(index: number): [number, number, number] {
    const p = this.data.loopPoints;
    return [p[3 * index], p[3 * index + 1], p[3 * index + 2]];
  }

  /** Transforms a vertex of a mesh by the matrix of an element. */
  vertex(element: number, vertex: number): [number, number, number] {
    const point: [number, number, number] = [0, 0, 0];
    this.placeVertices(element, vertex, 1, point, 0);
    return point;
  }

  /** Transforms vertices of a mesh by the matrix of an element and writes them to a list. */
  placeVertices(
    element: number, first: number, count: number, target: Float32Array | number[], to: number,
  ): void {
    const p = this.data.positions;
    const m = this.data.elementMatrix.subarray(12 * element, 12 * element + 12);
    for (let at = 3 * first; at < 3 * (first + count); at += 3, to += 3) {
      const x = p[at];
      const y = p[at + 1];
      const z = p[at + 2];
      target[to] = m[0] * x + m[3] * y + m[6] * z + m[9];
      target[to + 1] = m[1] * x + m[4] * y + m[7] * z + m[10];
      target[to + 2] = m[2] * x + m[5] * y + m[8] * z + m[11];
    }
  }

  /** The box of the elements for which `isPart` is true; the box of all if there is none. */
  boxOf(isPart: (element: number) => boolean): Box {
    const box = emptyBox();
    for (let i = 0; i < this.count; ++i) {
      const at = 6 * i;
      if (!isPart(i) || this.boxes[at] > this.boxes[at + 3]) continue;
      extend(box, 0, this.boxes[at], this.boxes[at + 1], this.boxes[at + 2]);
      extend(box, 0, this.boxes[at + 3], this.boxes[at + 4], this.boxes[at + 5]);
    }
    return box;
  }

  private readLoops(): Loop[] {
    const raw = this.data.loops;
    const loops: Loop[] = [];
    for (let i = 0; i + 3 < raw.length; i += 4) {
      loops.push({
        element: raw[i], first: raw[i + 1], count: raw[i + 2],
        isClosed: raw[i + 3] !== kAxisLoop, isOpening: raw[i + 3] === kOpeningLoop,
      });
    }
    return loops.sort((a, b) => a.element - b.element);
  }

  private indexLoops(): Uint32Array {
    const starts = new Uint32Array(this.count + 1);
    for (const loop of this.loops) ++starts[loop.element + 1];
    for (let i = 0; i < this.count; ++i) starts[i + 1] += starts[i];
    return starts;
  }

  private boxesOfElements(): Float32Array {
    const boxes = new Float32Array(6 * this.count);
    const meshBoxes = this.boxesOfMeshes();
    const m = this.data.elementMatrix;
    for (let i = 0; i < this.count; ++i) {
      boxes.set(emptyBox(), 6 * i);
      const mesh = this.data.elementMesh[i];
      if (mesh === kNoMesh || meshBoxes[6 * mesh] > meshBoxes[6 * mesh + 3]) continue;
      for (let corner = 0; corner < 8; ++corner) {
        const x = meshBoxes[6 * mesh + (corner & 1 ? 3 : 0)];
        const y = meshBoxes[6 * mesh + (corner & 2 ? 4 : 1)];
        const z = meshBoxes[6 * mesh + (corner & 4 ? 5 : 2)];
        const at = 12 * i;
        extend(boxes, 6 * i,
          m[at] * x + m[at + 3] * y + m[at + 6] * z + m[at + 9],
          m[at + 1] * x + m[at + 4] * y + m[at + 7] * z + m[at + 10],
          m[at + 2] * x + m[at + 5] * y + m[at + 8] * z + m[at + 11]);
      }
    }
    for (const loop of this.loops) {
      for (let i = loop.first; i < loop.first + loop.count; ++i) {
        extend(boxes, 6 * loop.element, ...this.loopPoint(i));
      }
    }
    return boxes;
  }

  private boxesOfMeshes(): Float32Array {
    const count = this.data.meshes.length / 6;
    const boxes = new Float32Array(6 * count);
    const p = this.data.positions;
    for (let i = 0; i < count; ++i) {
      boxes.set(emptyBox(), 6 * i);
      const mesh = this.mesh(i);
      const end = mesh.firstVertex + mesh.vertices;
      for (let v = mesh.firstVertex; v < end; ++v) {
        extend(boxes, 6 * i, p[3 * v], p[3 * v + 1], p[3 * v + 2]);
      }
    }
    return boxes;
  }
}

/** What names a profile: its designation, its name, or its shape with its sizes. */
export function profileLabel(model: Model, index: number): string {
  const profile = model.description.profiles[index];
  const text = profile.designation || profile.name;
  if (text) return plainText(text);
  const p = profile.parameters;
  const sizes = [p.d, p.b, p.h].filter((x) => x > 0).map(sizeInMillimetres);
  return [strings.shape(profile.shape), sizes.join(' × ')].filter(Boolean).join(' ');
}

function labelsOf(model: Model, key: FacetKey): string[] {
  const d = model.description;
  switch (key) {
    case 'storey': return d.storeys.map((s) => plainText(s.name || `#${s.id}`));
    case 'class': return d.classes.map(plainText);
    case 'kind': return [...strings.kinds];
    case 'profile': return d.profiles.map((_, i) => profileLabel(model, i));
    case 'material': return d.materials.map((m) => plainText(m.name) || strings.unnamed);
    case 'exactness': return [strings.exact, strings.approximate];
  }
}

function columnOf(model: Model, key: FacetKey): (number | null)[] {
  return key === 'exactness' ? model.elements.approximate : model.elements[key];
}

function makeFacet(model: Model, key: FacetKey): Facet {
  const labels = labelsOf(model, key);
  const column = columnOf(model, key);
  const none = labels.length;
  labels.push(strings.none(key));
  const values = Uint32Array.from(column, (value) => value ?? none);
  const counts = new Uint32Array(labels.length);
  for (const value of values) ++counts[value];
  return { key, title: strings.facets[key], labels, values, counts };
}
