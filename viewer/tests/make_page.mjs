// Makes pages of buildings that tests describe, without the command. data.md defines the form.
import { readFileSync, writeFileSync } from 'node:fs';
import { gzipSync } from 'node:zlib';
import { ShapeUtils, Vector2 } from 'three';

const noMesh = 0xffffffff;

/** A rectangle about the origin. */
export function rectangle(width, height) {
  const [y, z] = [width / 2, height / 2];
  return [[-y, -z], [y, -z], [y, z], [-y, z]];
}

/** An I section with equal flanges. */
export function iSection(h, b, tw, tf) {
  const right = [[tw / 2, -h / 2 + tf], [b / 2, -h / 2 + tf], [b / 2, -h / 2]];
  const lower = [[-b / 2, -h / 2], ...right.reverse()];
  const half = [...lower, [tw / 2, h / 2 - tf], [b / 2, h / 2 - tf], [b / 2, h / 2]];
  return [...half, [-b / 2, h / 2], [-b / 2, h / 2 - tf], [-tw / 2, h / 2 - tf],
    [-tw / 2, -h / 2 + tf], [-b / 2, -h / 2 + tf]];
}

/** A regular polygon. */
export function circle(diameter, chords) {
  return Array.from({ length: chords }, (_, i) => {
    const angle = (2 * Math.PI * i) / chords;
    return [(diameter / 2) * Math.cos(angle), (diameter / 2) * Math.sin(angle)];
  });
}

/** The solid of an outline with holes in the plane of y and z, from x = 0 to x = 1. */
export function prism(outline, holes = [], isSmooth = false) {
  const rings = [outline, ...holes];
  const flat = rings.flat();
  const count = flat.length;
  const at = (x) => flat.map(([y, z]) => [x, y, z]);
  const cap = ShapeUtils.triangulateShape(
    outline.map((p) => new Vector2(...p)), holes.map((h) => h.map((p) => new Vector2(...p))));
  const triangles = [];
  for (const [a, b, c] of cap) triangles.push([a, c, b], [a + count, b + count, c + count]);
  const edges = [];
  let first = 0;
  for (const ring of rings) {
    ring.forEach((_, i) => {
      const [a, b] = [first + i, first + ((i + 1) % ring.length)];
      triangles.push([a, b, b + count], [a, b + count, a + count]);
      edges.push([a, b], [a + count, b + count]);
      if (!isSmooth) edges.push([a, a + count]);
    });
    first += ring.length;
  }
  const roundEdges = isSmooth ? outline.map((_, i) => {
    const [before, after] = [(i + count - 1) % count, (i + 1) % count];
    return [i, i + count, before, after + count];
  }) : [];
  return { positions: [...at(0), ...at(1)], triangles, edges, roundEdges };
}

const cross = (a, b) =>
  [a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]];

/** The matrix of a straight member. */
export function memberMatrix(start, end, y) {
  const x = end.map((c, i) => c - start[i]);
  const length = Math.hypot(...x);
  return [...x, ...y, ...cross(x, y).map((c) => c / length), ...start];
}

const columnDefaults = {
  type: null, source: 0, guid: null, name: null, tag: null, storey: null, storeyByHeight: null,
  partOf: null, material: null, profile: null, profileEnd: null, kind: 0, approximate: 0,
  deviation: 0, volumeRatio: 1, cutouts: 0, length: null, area: null, thickness: null, volume: 0,
};

function columnsOf(elements) {
  const columns = { count: elements.length, id: elements.map((e) => e.id) };
  columns.class = elements.map((e) => e.class);
  for (const [name, value] of Object.entries(columnDefaults)) {
    columns[name] = elements.map((e) => (e[name] === undefined ? value : e[name]));
  }
  return columns;
}

function meshArrays(meshes) {
  const [table, roundTable] = [[], []];
  const [positions, triangles, edges, roundEdges] = [[], [], [], []];
  for (const mesh of meshes) {
    table.push(positions.length / 3, mesh.positions.length, triangles.length / 3,
      mesh.triangles.length, edges.length / 2, mesh.edges.length);
    const round = mesh.roundEdges ?? [];
    roundTable.push(roundEdges.length / 4, round.length);
    for (const e of round) roundEdges.push(...e);
    for (const p of mesh.positions) positions.push(...p);
    for (const t of mesh.triangles) triangles.push(...t);
    for (const e of mesh.edges) edges.push(...e);
  }
  return {
    positions: Float32Array.from(positions), triangles: Uint32Array.from(triangles),
    edges: Uint32Array.from(edges), roundEdges: Uint32Array.from(roundEdges),
    meshes: Uint32Array.from(table), meshRoundEdges: Uint32Array.from(roundTable),
  };
}

function loopArrays(elements) {
  const loops = [];
  const points = [];
  elements.forEach((element, index) => {
    for (const loop of element.loops ?? []) {
      loops.push(index, points.length / 3, loop.points.length,
        loop.isOpening ? 2 : loop.isClosed ? 1 : 0);
      for (const p of loop.points) points.push(...p);
    }
  });
  return { loops: Uint32Array.from(loops), loopPoints: Float32Array.from(points) };
}

function totalsOf(building) {
  const of = (kind) => building.elements.filter((e) => (e.kind ?? 0) === kind).length;
  const lost = building.losses?.length ?? 0;
  return {
    products: building.elements.length + lost, members: of(0), surfaces: of(1), bodies: of(2),
    decomposed: 0, lost, approximate: building.elements.filter((e) => e.approximate).length,
  };
}

function append(parts, description, arrays) {
  let offset = 0;
  for (const [name, array] of Object.entries(arrays)) {
    const type = array instanceof Float32Array ? 'float32' : 'uint32';
    description.arrays[name] = { type, offset, count: array.length };
    const bytes = Buffer.from(array.buffer, array.byteOffset, array.byteLength);
    const padding = Buffer.alloc((8 - (bytes.length % 8)) % 8);
    parts.push(bytes, padding);
    offset += bytes.length + padding.length;
  }
}

/** Encodes a building. */
export function encode(building) {
  const origin = building.origin ?? [0, 0, 0];
  const description = {
    version: 1, source: building.source ?? 'test.ifc', release: '2x3', schema: 'IFC2X3',
    application: building.application ?? '', lengthUnit: { name: 'METRE', metres: 1 },
    trueNorth: null, origin, box: building.box ?? null, storeys: building.storeys ?? [],
    materials: building.materials ?? [], profiles: building.profiles ?? [],
    classes: building.classes, types: [], sources: ['extrusion', 'brep'],
    elements: columnsOf(building.elements), openings: building.openings ?? [],
    losses: building.losses ?? [], totals: totalsOf(building), arrays: {},
  };
  const { elements } = building;
  const parts = [];
  append(parts, description, {
    ...meshArrays(building.meshes),
    elementMesh: Uint32Array.from(elements, (e) => e.mesh ?? noMesh),
    elementMatrix: Float32Array.from(
      elements.flatMap((e) => e.matrix ?? [1, 0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 0])),
    ...loopArrays(elements),
  });
  const text = Buffer.from(JSON.stringify(description), 'utf8');
  const padding = Buffer.alloc((8 - (text.length % 8)) % 8, ' ');
  const head = Buffer.alloc(8);
  head.write('KLV1', 'latin1');
  head.writeUInt32LE(text.length + padding.length, 4);
  return Buffer.concat([head, text, padding, ...parts]);
}

/** Inserts a container into the template of the page. */
export function makePage(template, container, encoding = 'gzip') {
  const bytes = encoding === 'gzip' ? gzipSync(container) : container;
  const element = '<script type="application/octet-stream" id="building" '
    + `data-encoding="${encoding}">${bytes.toString('base64')}</script>`;
  return template.replace('<!--DATA-->', () => element);
}

export function writePage(templateFile, building, outputFile, encoding) {
  const template = readFileSync(templateFile, 'utf8');
  writeFileSync(outputFile, makePage(template, encode(building), encoding));
}
