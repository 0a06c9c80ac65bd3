// Opens the pages that the command wrote. PAGES_DIR holds NAME.html, and NAME.json as
// `kelifc elements --json` prints it.
import assert from 'node:assert/strict';
import { existsSync, readFileSync, readdirSync } from 'node:fs';
import { join } from 'node:path';
import { after, before, test } from 'node:test';
import { Workbench, counts, picture } from './browser.mjs';

const folder = process.env.PAGES_DIR;
const names = folder
  ? readdirSync(folder).filter((name) => name.endsWith('.html')).map((name) => name.slice(0, -5))
    .filter((name) => existsSync(join(folder, `${name}.json`)))
  : [];
let bench;

before(async () => {
  bench = await Workbench.open();
});
after(() => bench.close());

test('PAGES_DIR holds pages', { skip: !folder }, () => assert.ok(names.length > 0));

function countBy(elements, key) {
  const found = new Map();
  for (const element of elements) found.set(element[key], (found.get(element[key]) ?? 0) + 1);
  return found;
}

async function checkClasses(page, elements) {
  const shown = await page.locator('label[for^="filter-class-"]').evaluateAll((labels) =>
    labels.map((l) => [l.querySelector('.option-name').textContent,
      l.querySelector('.count').textContent.replaceAll('\u202f', '')]));
  const expected = [...countBy(elements, 'class')].map(([name, n]) => [name, String(n)]);
  assert.deepEqual(shown.sort(), expected.sort());
}

async function checkPicture(page) {
  const shot = await picture(page);
  const box = await page.locator('canvas').boundingBox();
  const colours = new Set();
  for (let y = box.y + 4; y < box.y + box.height - 4; y += 6) {
    for (let x = box.x + 4; x < box.x + box.width - 4; x += 6) {
      colours.add(shot.at(Math.round(x), Math.round(y)).join());
    }
  }
  assert.ok(colours.size > 3, `the view shows ${colours.size} colours`);
}

for (const name of names) {
  test(`${name}: the page shows what was read`, async () => {
    const data = JSON.parse(readFileSync(join(folder, `${name}.json`), 'utf8'));
    const page = await bench.show(join(folder, `${name}.html`), {
      viewport: { width: 900, height: 600 }, patience: 120000,
    });
    const expected = data.elements.length;
    assert.deepEqual(await counts(page), { elements: expected, visible: expected });
    if (expected) {
      await checkClasses(page, data.elements);
      await checkPicture(page);
      for (const display of ['Idealised', 'Both']) {
        await page.getByRole('button', { name: display, exact: true }).click();
        await checkPicture(page);
      }
    }
    assert.deepEqual(page.messages, []);
    await page.context().close();
  });
}
