// Checks the page with axe-core, in its states.
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { createRequire } from 'node:module';
import { after, before, test } from 'node:test';
import { Workbench, settle } from './browser.mjs';
import { house, makeHouse } from './made_buildings.mjs';

const axe = readFileSync(createRequire(import.meta.url).resolve('axe-core/axe.min.js'), 'utf8');
const tags = ['wcag2a', 'wcag2aa', 'wcag21a', 'wcag21aa', 'wcag22aa', 'best-practice'];
let bench;
let file;

before(async () => {
  bench = await Workbench.open();
  file = bench.write('house.html', makeHouse());
});
after(() => bench.close());

async function violations(page) {
  await settle(page);
  await page.evaluate(axe);
  const { violations: found } = await page.evaluate(
    (values) => window.axe.run(document, { runOnly: { type: 'tag', values } }), tags);
  return found.map((v) => `${v.id}: ${v.nodes.map((n) => n.html.slice(0, 120)).join(' | ')}`);
}

const states = [
  ['filters', async () => {}],
  ['elements', (page) => page.locator('#tab-elements').click()],
  ['losses', (page) => page.locator('#tab-losses').click()],
  ['section', (page) => page.locator('#section').selectOption('z')],
  ['measure', (page) => page.getByRole('button', { name: 'Measure' }).click()],
  ['keys', (page) => page.getByRole('button', { name: 'Keys' }).click()],
];

for (const options of [{}, { dark: true }, { phone: true }]) {
  test(`axe-core finds nothing in any state: ${JSON.stringify(options)}`, async () => {
    const page = await bench.show(file, { ...options, hash: `#v=1&s=${house.body}` });
    for (const [name, reach] of states) {
      if (options.phone && name === 'filters') {
        await page.getByRole('button', { name: 'Close', exact: true }).first().tap();
        await page.getByRole('button', { name: 'Panel', exact: true }).tap();
      }
      await reach(page);
      assert.deepEqual(await violations(page), [], name);
    }
    await page.context().close();
  });
}

test('every control is at least 24 pixels high and wide, or is text', async () => {
  for (const phone of [false, true]) {
    const page = await bench.show(file, { phone, hash: `#v=1&s=${house.column}` });
    const small = await page.evaluate(() =>
      [...document.querySelectorAll('button, select, summary, label:has(input)')]
        .filter((e) => e.checkVisibility())
        .map((e) => [e.textContent.slice(0, 20), e.getBoundingClientRect()])
        .filter(([, r]) => r.height < 24 || r.width < 24)
        .map(([name, r]) => `${name} ${r.width} ${r.height}`));
    assert.deepEqual(small, []);
    await page.context().close();
  }
});

test('all controls are reached by the Tab key and show the focus', async () => {
  const page = await bench.show(file);
  const reached = new Set();
  for (let i = 0; i < 80; ++i) {
    await page.keyboard.press('Tab');
    const [name, outline] = await page.evaluate(() => {
      const e = document.activeElement;
      if (e === document.body) return ['', ''];
      const name = e.id || e.getAttribute('aria-label') || e.textContent.slice(0, 30);
      return [name, getComputedStyle(e).outlineStyle];
    });
    reached.add(name);
    if (name) assert.notEqual(outline, 'none', `${name} shows the focus`);
  }
  for (const name of ['Fit', 'Top', 'colour', 'section', 'Measure', 'theme', 'tab-filters']) {
    assert.ok(reached.has(name), `${name}: ${[...reached].join(', ')}`);
  }
  assert.ok([...reached].some((name) => name.startsWith('3D view')), 'the canvas');
  await page.context().close();
});
