// Exports models as GLB files and checks the files: the validator finds no error and no warning,
// every element of the model is a node or is reported as left out, and the volume of each node is
// that of its element.
//
//   node check.mjs COMMAND MODEL...

import { spawnSync } from 'node:child_process';
import { mkdtempSync, readFileSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { basename, join } from 'node:path';
import validator from 'gltf-validator';

const LARGEST_VOLUME_ERROR = 0.005;  // of the volume of the element
const SMALLEST_VOLUME = 1e-6;  // cubic metres; smaller elements are compared with this
const NOT_CONVERTED = 3;  // the status of the command for a model of an old release
const ERROR = 0;
const WARNING = 1;

function run(command, args) {
  const result = spawnSync(command, args, { encoding: 'utf8', maxBuffer: 2 ** 31 - 1 });
  if (result.error) throw result.error;
  return result;
}

// The JSON object and the binary chunk of a GLB file.
function readGlb(bytes) {
  const jsonSize = bytes.readUInt32LE(12);
  const json = JSON.parse(bytes.toString('utf8', 20, 20 + jsonSize));
  return { json, binary: bytes.subarray(28 + jsonSize) };
}

function readAccessor(glb, index) {
  const accessor = glb.json.accessors[index];
  const view = glb.json.bufferViews[accessor.bufferView];
  const start = (view.byteOffset ?? 0) + (accessor.byteOffset ?? 0);
  const read = {
    5123: (at) => glb.binary.readUInt16LE(start + 2 * at),
    5125: (at) => glb.binary.readUInt32LE(start + 4 * at),
    5126: (at) => glb.binary.readFloatLE(start + 4 * at),
  }[accessor.componentType];
  const count = accessor.count * (accessor.type === 'VEC3' ? 3 : 1);
  return Array.from({ length: count }, (_, at) => read(at));
}

// The signed sum over the triangles of a mesh, in its own coordinates.
function volumeOfMesh(glb, mesh) {
  let volume = 0;
  for (const primitive of mesh.primitives) {
    const p = readAccessor(glb, primitive.attributes.POSITION);
    const indices = readAccessor(glb, primitive.indices);
    for (let i = 0; i < indices.length; i += 3) {
      const [a, b, c] = [3 * indices[i], 3 * indices[i + 1], 3 * indices[i + 2]];
      volume += (p[a] * (p[b + 1] * p[c + 2] - p[b + 2] * p[c + 1])
        + p[a + 1] * (p[b + 2] * p[c] - p[b] * p[c + 2])
        + p[a + 2] * (p[b] * p[c + 1] - p[b + 1] * p[c])) / 6;
    }
  }
  return volume;
}

// The corner of the world box of a node: its mesh box under translation, rotation and scale.
function worldBox(glb, node) {
  const box = [[Infinity, Infinity, Infinity], [-Infinity, -Infinity, -Infinity]];
  const [x, y, z, w] = node.rotation ?? [0, 0, 0, 1];
  const scale = node.scale ?? [1, 1, 1];
  const origin = glb.json.nodes[0].extras.origin;
  for (const primitive of glb.json.meshes[node.mesh].primitives) {
    const p = readAccessor(glb, primitive.attributes.POSITION);
    for (let i = 0; i < p.length; i += 3) {
      const v = [p[i] * scale[0], p[i + 1] * scale[1], p[i + 2] * scale[2]];
      const t = [2 * (y * v[2] - z * v[1]), 2 * (z * v[0] - x * v[2]), 2 * (x * v[1] - y * v[0])];
      const turned = [
        v[0] + w * t[0] + y * t[2] - z * t[1],
        v[1] + w * t[1] + z * t[0] - x * t[2],
        v[2] + w * t[2] + x * t[1] - y * t[0],
      ];
      for (let k = 0; k < 3; ++k) {
        const at = turned[k] + node.translation[k] + origin[k];
        box[0][k] = Math.min(box[0][k], at);
        box[1][k] = Math.max(box[1][k], at);
      }
    }
  }
  return box;
}

const scaleOf = (node) => (node.scale ?? [1, 1, 1]).reduce((product, s) => product * s, 1);

// What the elements of a model and the nodes of its file have in common.
function compareNodes(glb, elements, failures) {
  const byId = new Map(elements.map((element) => [element.id, element]));
  const nodes = glb.json.nodes.filter((node) => node.mesh !== undefined);
  const volumes = (glb.json.meshes ?? []).map((mesh) => volumeOfMesh(glb, mesh));
  const largest = { volume: 0, box: 0 };
  for (const node of nodes) {
    const element = byId.get(node.extras.id);
    if (!element || element.class !== node.extras.class || element.guid !== (node.extras.guid || null)) {
      failures.push(`node ${node.extras.id} is not an element of the model`);
      continue;
    }
    byId.delete(node.extras.id);
    const isOpen = element.kind === 'body' && !element.body.closed;
    const volume = volumes[node.mesh] * scaleOf(node);
    const error = Math.abs(volume - element.volume) / Math.max(element.volume, SMALLEST_VOLUME);
    if (!isOpen) largest.volume = Math.max(largest.volume, error);
    if (!isOpen && error > LARGEST_VOLUME_ERROR) {
      failures.push(`the volume of #${element.id} is ${volume}, not ${element.volume}`);
    }
    worldBox(glb, node).forEach((corner, i) => corner.forEach((value, k) => {
      largest.box = Math.max(largest.box, Math.abs(value - element.box[i][k]));
    }));
  }
  if (largest.box > 0.002) failures.push(`a box differs by ${largest.box} m`);
  return { nodes: nodes.length, left: byId.size, largest };
}

async function check(command, model, folder) {
  const failures = [];
  const read = run(command, ['elements', '--json', model]);
  if (read.status === NOT_CONVERTED) return { isSkipped: true, failures };
  const file = join(folder, 'model.glb');
  const exported = run(command, ['export', '--to', 'glb', '--output', file, model]);
  if (exported.status !== 0) return { failures: [`export failed: ${exported.stderr.trim()}`] };
  const bytes = readFileSync(file);
  run(command, ['export', '--to', 'glb', '--output', file, model]);
  if (!bytes.equals(readFileSync(file))) failures.push('a second export has other bytes');
  const report = await validator.validateBytes(new Uint8Array(bytes), { maxIssues: 0 });
  for (const message of report.issues.messages) {
    if (message.severity === ERROR || message.severity === WARNING) {
      failures.push(`${message.code} ${message.pointer ?? ''}: ${message.message}`);
    }
  }
  const { elements } = JSON.parse(read.stdout);
  const compared = compareNodes(readGlb(bytes), elements, failures);
  const stated = /elements without a solid\D*(\d+)|(\d+)\s+elements without a solid/.exec(exported.stderr);
  const omitted = stated ? Number(stated[1] ?? stated[2]) : 0;
  if (compared.left !== omitted) {
    failures.push(`${compared.left} elements are missing, but ${omitted} are reported`);
  }
  return {
    failures, elements: elements.length, ...compared, size: bytes.length,
    infos: report.issues.numInfos + report.issues.numHints,
  };
}

const [command, ...models] = process.argv.slice(2);
if (!command || models.length === 0) {
  console.error('usage: node check.mjs COMMAND MODEL...');
  process.exit(64);
}
const folder = mkdtempSync(join(tmpdir(), 'check-glb-'));
let failed = 0;
try {
  for (const model of models) {
    const result = await check(command, model, folder);
    if (result.isSkipped) {
      console.log(`skipped ${basename(model)}: its release cannot be converted`);
      continue;
    }
    if (result.failures.length > 0) ++failed;
    const figures = result.elements === undefined ? ''
      : `${result.nodes} of ${result.elements} elements, ${result.size} bytes, volumes within `
        + `${(100 * result.largest.volume).toFixed(3)} %, boxes within `
        + `${(1000 * result.largest.box).toFixed(3)} mm, ${result.infos} notes`;
    console.log(`${result.failures.length > 0 ? 'FAILED' : 'ok'} ${basename(model)}: ${figures}`);
    for (const failure of result.failures.slice(0, 20)) console.log(`  ${failure}`);
  }
} finally {
  rmSync(folder, { recursive: true });
}
process.exit(failed > 0 ? 1 : 0);
