// Buffers of the solids. Meshes that many elements share are instanced; all others are merged, so
// that the number of draw calls does not grow with the model.

import * as THREE from 'three';
import { kNoMesh } from './data';
import type { MeshRange, Model } from './model';
import { RoundEdgeList } from './round_edges';

const kMostInstancedMeshes = 40;
const kFewestInstances = 8;
/** Vertices that instancing must save before a draw call is worth it. */
const kLeastSaving = 2000;
const kVerticesPerChunk = 3_000_000;

/** The geometries of one group of elements. Faces and edges share their vertices. */
export interface SolidGroup {
  faces: THREE.BufferGeometry;
  edges: THREE.BufferGeometry;
  /** The edges of round surfaces; null if there are none. */
  roundEdges: THREE.BufferGeometry | null;
  isInstanced: boolean;
}

function determinant(m: Float32Array, at: number): number {
  return m[at] * (m[at + 4] * m[at + 8] - m[at + 5] * m[at + 7])
    - m[at + 3] * (m[at + 1] * m[at + 8] - m[at + 2] * m[at + 7])
    + m[at + 6] * (m[at + 1] * m[at + 5] - m[at + 2] * m[at + 4]);
}

/** Splits the elements with a solid into lists by instanced mesh, and the rest. */
function sortElements(model: Model): { byMesh: Map<number, number[]>; rest: number[] } {
  const meshCount = model.data.meshes.length / 6;
  const users = new Uint32Array(meshCount);
  for (const mesh of model.data.elementMesh) if (mesh !== kNoMesh) ++users[mesh];
  const saving = (mesh: number) => (users[mesh] - 1) * model.data.meshes[6 * mesh + 1];
  const chosen = Array.from(users.keys())
    .filter((mesh) => users[mesh] >= kFewestInstances && saving(mesh) >= kLeastSaving)
    .sort((a, b) => saving(b) - saving(a) || a - b)
    .slice(0, kMostInstancedMeshes);
  const byMesh = new Map<number, number[]>(chosen.map((mesh) => [mesh, []]));
  const rest: number[] = [];
  for (let i = 0; i < model.count; ++i) {
    const mesh = model.data.elementMesh[i];
    if (mesh === kNoMesh) continue;
    // A mirrored instance would turn its faces inside out.
    const isMirrored = determinant(model.data.elementMatrix, 12 * i) < 0;
    ((isMirrored ? undefined : byMesh.get(mesh)) ?? rest).push(i);
  }
  return { byMesh, rest };
}

type Attribute = THREE.BufferAttribute | THREE.InterleavedBufferAttribute;

function indexed(
  base: THREE.BufferGeometry, attributes: Record<string, Attribute>, index: Uint32Array,
): THREE.BufferGeometry {
  for (const [name, attribute] of Object.entries(attributes)) base.setAttribute(name, attribute);
  base.setIndex(new THREE.BufferAttribute(index, 1));
  return base;
}

function instancedGroup(model: Model, mesh: MeshRange, elements: number[]): SolidGroup {
  const { positions, triangles, edges, elementMatrix } = model.data;
  const stride = 13;
  const values = new Float32Array(stride * elements.length);
  elements.forEach((element, i) => {
    values.set(elementMatrix.subarray(12 * element, 12 * element + 12), stride * i);
    values[stride * i + 12] = element;
  });
  const buffer = new THREE.InstancedInterleavedBuffer(values, stride);
  const part = (size: number, offset: number) =>
    new THREE.InterleavedBufferAttribute(buffer, size, offset);
  const first = 3 * mesh.firstVertex;
  const vertices = positions.slice(first, first + 3 * mesh.vertices);
  const placement = {
    axisX: part(3, 0),
    axisY: part(3, 3),
    axisZ: part(3, 6),
    shift: part(3, 9),
    element: part(1, 12),
  };
  const attributes = { position: new THREE.BufferAttribute(vertices, 3), ...placement };
  const make = () => {
    const geometry = new THREE.InstancedBufferGeometry();
    geometry.instanceCount = elements.length;
    return geometry;
  };
  const t = 3 * mesh.firstTriangle;
  const e = 2 * mesh.firstEdge;
  const list = new RoundEdgeList(mesh.roundEdges);
  list.add(model, mesh, vertices, 0);
  return {
    faces: indexed(make(), attributes, triangles.slice(t, t + 3 * mesh.triangles)),
    edges: indexed(make(), attributes, edges.slice(e, e + 2 * mesh.edges)),
    roundEdges: list.geometry(make(), placement),
    isInstanced: true,
  };
}

function fillIndex(
  target: Uint32Array, at: number, source: Uint32Array, first: number, count: number, shift: number,
): void {
  for (let i = 0; i < count; ++i) target[at + i] = source[first + i] + shift;
}

function mergedGroup(model: Model, elements: number[]): SolidGroup {
  const ranges = elements.map((element) => model.meshOf(element)!);
  const sum = (key: 'vertices' | 'triangles' | 'edges' | 'roundEdges') =>
    ranges.reduce((total, range) => total + range[key], 0);
  const positions = new Float32Array(3 * sum('vertices'));
  const ids = new Float32Array(sum('vertices'));
  const triangles = new Uint32Array(3 * sum('triangles'));
  const edges = new Uint32Array(2 * sum('edges'));
  const roundEdges = new RoundEdgeList(sum('roundEdges'));
  let vertex = 0;
  let triangle = 0;
  let edge = 0;
  elements.forEach((element, i) => {
    const range = ranges[i];
    const start = triangle;
    fillIndex(triangles, triangle, model.data.triangles, 3 * range.firstTriangle,
      3 * range.triangles, vertex);
    fillIndex(edges, edge, model.data.edges, 2 * range.firstEdge, 2 * range.edges, vertex);
    triangle += 3 * range.triangles;
    edge += 2 * range.edges;
    if (determinant(model.data.elementMatrix, 12 * element) < 0) {
      for (let t = start; t < triangle; t += 3) {
        [triangles[t], triangles[t + 1]] = [triangles[t + 1], triangles[t]];
      }
    }
    model.placeVertices(element, range.firstVertex, range.vertices, positions, 3 * vertex);
    ids.fill(element, vertex, vertex + range.vertices);
    const own = positions.subarray(3 * vertex, 3 * (vertex + range.vertices));
    roundEdges.add(model, range, own, element);
    vertex += range.vertices;
  });
  const attributes = {
    position: new THREE.BufferAttribute(positions, 3),
    element: new THREE.BufferAttribute(ids, 1),
  };
  return {
    faces: indexed(new THREE.BufferGeometry(), attributes, triangles),
    edges: indexed(new THREE.BufferGeometry(), attributes, edges),
    roundEdges: roundEdges.geometry(new THREE.BufferGeometry()),
    isInstanced: false,
  };
}

/** Makes the faces of one element. */
export function makeSolid(model: Model, element: number): THREE.BufferGeometry {
  return mergedGroup(model, [element]).faces;
}

/** Makes the buffers of all solids. */
export function makeSolids(model: Model): SolidGroup[] {
  const { byMesh, rest } = sortElements(model);
  const groups: SolidGroup[] = [];
  for (const [mesh, elements] of byMesh) {
    if (elements.length) groups.push(instancedGroup(model, model.mesh(mesh), elements));
  }
  let chunk: number[] = [];
  let vertices = 0;
  for (const element of rest) {
    const count = model.meshOf(element)!.vertices;
    if (vertices + count > kVerticesPerChunk && chunk.length) {
      groups.push(mergedGroup(model, chunk));
      chunk = [];
      vertices = 0;
    }
    chunk.push(element);
    vertices += count;
  }
  if (chunk.length) groups.push(mergedGroup(model, chunk));
  return groups;
}
