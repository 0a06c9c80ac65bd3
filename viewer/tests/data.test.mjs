// Compares the data of the pages that the command wrote with what `kelifc elements --json` prints.
// PAGES_DIR and its folders hold NAME.html and NAME.json. No browser runs.
import assert from 'node:assert/strict';
import { existsSync, readFileSync, readdirSync } from 'node:fs';
import { join } from 'node:path';
import { test } from 'node:test';
import { gunzipSync } from 'node:zlib';

const folder = process.env.PAGES_DIR;
const noMesh = 0xffffffff;
const mostVolumeError = 0.005; // of the volume
const leastVolume = 1e-6; // in cubic metres; a smaller solid is not measured

function pages(parent) {
  return readdirSync(parent, { withFileTypes: true }).flatMap((entry) => {
    const path = join(parent, entry.name);
    if (entry.isDirectory()) return pages(path);
    const name = path.replace(/\.html$/, '');
    return name !== path && existsSync(`${name}.json`) ? [name] : [];
  });
}

/** Reads the element with the data of a page. */
function decode(html) {
  const match = /id="building" data-encoding="(gzip|identity)">([^<]*)</.exec(html);
  assert.ok(match, 'the page holds data');
  const packed = Buffer.from(match[2], 'base64');
  const bytes = match[1] === 'gzip' ? gunzipSync(packed) : packed;
  const start = 8 + bytes.readUInt32LE(4);
  const description = JSON.parse(bytes.toString('utf8', 8, start));
  const array = (name) => {
    const { type, offset, count } = description.arrays[name];
    const at = bytes.byteOffset + start + offset;
    const copy = bytes.buffer.slice(at, at + 4 * count);
    return type === 'float32' ? new Float32Array(copy) : new Uint32Array(copy);
  };
  return { description, array };
}

/** The determinant of three vectors, which are in one list. */
function determinant(m) {
  return m[0] * (m[4] * m[8] - m[5] * m[7]) - m[1] * (m[3] * m[8] - m[5] * m[6]) +
    m[2] * (m[3] * m[7] - m[4] * m[6]);
}

/** Returns a function that computes the volume of the solid of an element from its triangles. */
function volumes({ array }) {
  const [positions, triangles] = [array('positions'), array('triangles')];
  const [meshes, matrices] = [array('meshes'), array('elementMatrix')];
  return (element, mesh) => {
    const [firstVertex, , firstTriangle, count] = meshes.subarray(6 * mesh, 6 * mesh + 6);
    let volume = 0;
    for (let t = 3 * firstTriangle; t < 3 * (firstTriangle + count); t += 3) {
      const corners = [0, 1, 2].flatMap((k) => {
        const at = 3 * (firstVertex + triangles[t + k]);
        return [positions[at], positions[at + 1], positions[at + 2]];
      });
      volume += determinant(corners) / 6;
    }
    return volume * determinant(matrices.subarray(12 * element, 12 * element + 9));
  };
}

/** The area of a plane polygon. */
function areaOf(points) {
  const sum = [0, 0, 0];
  points.forEach((p, i) => {
    const q = points[(i + 1) % points.length];
    for (let k = 0; k < 3; ++k) {
      const [u, v] = [(k + 1) % 3, (k + 2) % 3];
      sum[k] += (p[u] - points[0][u]) * (q[v] - points[0][v])
        - (p[v] - points[0][v]) * (q[u] - points[0][u]);
    }
  });
  return Math.hypot(...sum) / 2;
}

/** The most that openings take away from the solid of an element. */
function mostCutOf(element) {
  return element.openings.reduce((sum, { outline, depth }) =>
    sum + areaOf(outline) * Math.max(depth + 0.02, element.thickness ?? 0), 0);
}

function checkSolids(data, expected) {
  const meshOf = data.array('elementMesh');
  const volumeOf = volumes(data);
  assert.equal(meshOf.length, expected.length);
  expected.forEach((element, i) => {
    const isMeasured = element.volume > leastVolume && (element.kind !== 'body' || element.body.closed);
    if (meshOf[i] === noMesh || !isMeasured) return;
    const volume = volumeOf(i, meshOf[i]);
    const slack = mostVolumeError * element.volume;
    assert.ok(volume <= element.volume + slack, `#${element.id}: the volume ${volume} is too large`);
    const least = element.volume - mostCutOf(element) - slack;
    assert.ok(volume >= least, `#${element.id}: the volume ${volume} is less than ${least}`);
  });
}

function checkColumns(description, expected) {
  const { elements, classes, storeys } = description;
  assert.deepEqual(elements.id, expected.map((e) => e.id));
  assert.deepEqual(elements.class.map((i) => classes[i]), expected.map((e) => e.class));
  assert.deepEqual(elements.name, expected.map((e) => e.name));
  assert.deepEqual(elements.storey.map((i) => (i === null ? null : storeys[i].id)),
    expected.map((e) => e.storey));
  assert.deepEqual(elements.deviation, expected.map((e) => e.deviation));
}

test('PAGES_DIR holds pages', { skip: !folder }, () => assert.ok(pages(folder).length > 0));

for (const name of folder ? pages(folder) : []) {
  test(`${name.slice(folder.length + 1)}: the data is what was read`, () => {
    const expected = JSON.parse(readFileSync(`${name}.json`, 'utf8'));
    const data = decode(readFileSync(`${name}.html`, 'latin1'));
    assert.deepEqual(data.description.totals, expected.totals);
    assert.deepEqual(data.description.losses.map((l) => l.id), expected.losses.map((l) => l.id));
    checkColumns(data.description, expected.elements);
    checkSolids(data, expected.elements);
  });
}
