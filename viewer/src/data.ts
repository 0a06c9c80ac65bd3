// Decodes the building that the page holds. data.md describes its form.

export interface Storey {
  id: number;
  guid: string | null;
  name: string | null;
  elevation: number | null;
  height: number | null;
}

export interface Profile {
  name: string;
  shape: string;
  parameters: Record<string, number>;
  outline: [number, number][];
  holes: [number, number][][];
  /** m² and m⁴. */
  area: number;
  iy: number;
  iz: number;
  iyz: number;
  designation: string | null;
}

export interface Opening {
  element: number;
  id: number;
  kind: string;
  fill: number | null;
}

export interface Loss {
  id: number;
  line: number;
  class: string;
  guid: string | null;
  name: string | null;
  reason: string;
  at: number | null;
}

type Column<T> = T[];

/** One list per attribute; all lists have `count` entries. */
export interface ElementColumns {
  count: number;
  id: Column<number>;
  class: Column<number>;
  type: Column<number | null>;
  source: Column<number>;
  guid: Column<string | null>;
  name: Column<string | null>;
  tag: Column<string | null>;
  storey: Column<number | null>;
  storeyByHeight: Column<number | null>;
  partOf: Column<number | null>;
  material: Column<number | null>;
  profile: Column<number | null>;
  profileEnd: Column<number | null>;
  kind: Column<number>;
  approximate: Column<number>;
  deviation: Column<number>;
  volumeRatio: Column<number | null>;
  cutouts: Column<number>;
  length: Column<number | null>;
  area: Column<number | null>;
  thickness: Column<number | null>;
  volume: Column<number>;
}

export interface Totals {
  products: number;
  members: number;
  surfaces: number;
  bodies: number;
  decomposed: number;
  lost: number;
  approximate: number;
}

interface ArrayPlace {
  type: 'float32' | 'uint32';
  offset: number;
  count: number;
}

export interface Description {
  version: number;
  source: string;
  release: string;
  schema: string;
  application: string;
  lengthUnit: { name: string; metres: number };
  trueNorth: [number, number] | null;
  origin: [number, number, number];
  box: [number[], number[]] | null;
  storeys: Storey[];
  materials: { name: string }[];
  profiles: Profile[];
  classes: string[];
  types: string[];
  sources: string[];
  elements: ElementColumns;
  openings: Opening[];
  losses: Loss[];
  totals: Totals;
  arrays: Record<string, ArrayPlace>;
}

/** The decoded data. The arrays are views of one buffer. */
export interface BuildingData {
  description: Description;
  positions: Float32Array;
  triangles: Uint32Array;
  edges: Uint32Array;
  roundEdges: Uint32Array;
  meshes: Uint32Array;
  meshRoundEdges: Uint32Array;
  elementMesh: Uint32Array;
  elementMatrix: Float32Array;
  loops: Uint32Array;
  loopPoints: Float32Array;
}

/** The value of `elementMesh` of an element without a solid. */
export const kNoMesh = 0xffffffff;

const kMagic = 'KLV1';
const kBase64Step = 1 << 20;

function bytesOfBase64(text: string): Uint8Array<ArrayBuffer> {
  const clean = /\s/.test(text) ? text.replace(/\s+/g, '') : text;
  const padding = clean.endsWith('==') ? 2 : clean.endsWith('=') ? 1 : 0;
  const bytes = new Uint8Array((clean.length / 4) * 3 - padding);
  let at = 0;
  for (let start = 0; start < clean.length; start += kBase64Step) {
    const part = atob(clean.slice(start, start + kBase64Step));
    for (let i = 0; i < part.length; ++i) bytes[at++] = part.charCodeAt(i);
  }
  return bytes;
}

async function inflate(bytes: Uint8Array<ArrayBuffer>): Promise<ArrayBuffer> {
  const stream = new Blob([bytes]).stream().pipeThrough(new DecompressionStream('gzip'));
  return new Response(stream).arrayBuffer();
}

function check(condition: boolean, what: string): void {
  if (!condition) throw new Error(what);
}

/** Decodes a container. Throws if the container does not have the form of data.md. */
export function decodeContainer(buffer: ArrayBuffer): BuildingData {
  check(buffer.byteLength >= 8, 'the container is too short');
  const head = new DataView(buffer);
  const magic = String.fromCharCode(...new Uint8Array(buffer, 0, 4));
  const length = head.getUint32(4, true);
  check(magic === kMagic, 'the container does not start with ' + kMagic);
  check(length % 8 === 0 && 8 + length <= buffer.byteLength, 'the description is cut off');
  const text = new TextDecoder().decode(new Uint8Array(buffer, 8, length));
  const description = JSON.parse(text) as Description;
  check(description.version === 1, 'the version of the data is not 1');
  const start = 8 + length;

  const place = (name: string): ArrayPlace => {
    const found = description.arrays[name] as ArrayPlace | undefined;
    if (!found) throw new Error(`the array ${name} is missing`);
    const end = start + found.offset + 4 * found.count;
    check(found.offset % 4 === 0 && end <= buffer.byteLength, `the array ${name} is cut off`);
    return found;
  };
  const floats = (name: string) => {
    const { offset, count } = place(name);
    return new Float32Array(buffer, start + offset, count);
  };
  const integers = (name: string) => {
    const { offset, count } = place(name);
    return new Uint32Array(buffer, start + offset, count);
  };
  return {
    description,
    positions: floats('positions'),
    triangles: integers('triangles'),
    edges: integers('edges'),
    roundEdges: integers('roundEdges'),
    meshes: integers('meshes'),
    meshRoundEdges: integers('meshRoundEdges'),
    elementMesh: integers('elementMesh'),
    elementMatrix: floats('elementMatrix'),
    loops: integers('loops'),
    loopPoints: floats('loopPoints'),
  };
}

/** Decodes the building that an element of the page holds as base64, and removes the element. */
export async function readBuilding(holder: HTMLElement): Promise<BuildingData> {
  const bytes = bytesOfBase64((holder.textContent ?? '').trim());
  const isCompressed = holder.dataset.encoding === 'gzip';
  holder.remove();
  return decodeContainer(isCompressed ? await inflate(bytes) : bytes.buffer);
}
