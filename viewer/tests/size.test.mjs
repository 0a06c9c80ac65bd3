// Counts what a model of 50,000 elements costs.
import assert from 'node:assert/strict';
import { after, before, test } from 'node:test';
import { Workbench, counts, pixelOf, settle, statistics } from './browser.mjs';
import { makeGrid } from './made_buildings.mjs';

const size = 50000;
const mostDrawCalls = 300;
let bench;
let page;

before(async () => {
  bench = await Workbench.open();
  // Drawing in software takes seconds for each frame; the cost of the script does not depend on it.
  page = await bench.show(bench.write('grid.html', makeGrid(size)), {
    viewport: { width: 760, height: 500 }, patience: 120000,
  });
});
after(() => bench.close());

// The time of the script is printed only: it depends on what else the machine does.
async function turn(context, display) {
  let fastest = Infinity;
  for (let i = 0; i < 3; ++i) {
    await page.locator('canvas').press('ArrowLeft');
    await settle(page);
    const { drawCalls, scriptMilliseconds } = await statistics(page);
    assert.ok(drawCalls <= mostDrawCalls, `${display}: ${drawCalls} draw calls`);
    fastest = Math.min(fastest, scriptMilliseconds);
  }
  const { drawCalls } = await statistics(page);
  context.diagnostic(`${display}: ${drawCalls} draw calls, ${fastest.toFixed(1)} ms of script`);
}

test('each display turns with few draw calls', async (context) => {
  assert.equal((await counts(page)).elements, size);
  for (const name of ['Solids', 'Both', 'Idealised']) {
    await page.getByRole('button', { name, exact: true }).click();
    await settle(page);
    await turn(context, name);
  }
  await page.getByRole('button', { name: 'Solids', exact: true }).click();
});

test('a section keeps the number of draw calls', async (context) => {
  await page.locator('#section').selectOption('z');
  await settle(page);
  await turn(context, 'Section');
  await page.locator('#section').selectOption('none');
});

test('the table holds only the rows in sight', async () => {
  await page.locator('#tab-elements').click();
  const table = page.getByRole('table', { name: 'Elements of the list' });
  assert.equal(await table.getAttribute('aria-rowcount'), String(size + 1));
  assert.ok((await table.locator('tbody tr').count()) < 100);
  await page.getByLabel('Search by name').fill(String(100 + size - 1));
  await page.getByLabel('Search by name').press('Enter');
  assert.equal(await page.evaluate(() => window.kelifcPage.selected()), 100 + size - 1);
  await page.getByLabel('Search by name').fill('');
  await page.waitForFunction(() => document.querySelector('.table-scroll').scrollTop >= 0);
  await page.getByRole('button', { name: 'Previous', exact: true }).click();
  const row = table.locator('tr[aria-current="true"]');
  assert.equal(await row.getAttribute('aria-rowindex'), String(size));
});

test('a pick among all elements is right', async () => {
  await page.getByRole('button', { name: 'Top', exact: true }).click();
  await settle(page);
  const side = Math.ceil(Math.sqrt(size / 10));
  const cell = 10 * side + 14;
  const i = Array.from({ length: 10 }, (_, storey) => 10 * cell + storey)
    .findLast((n) => n % 7 === 0);
  const [x, y] = [4 * (cell % side), 4 * Math.floor(cell / side)];
  const pixel = await pixelOf(page, [x + 2.6, y + 2.6, 31]);
  assert.equal(await page.evaluate((p) => window.kelifcPage.elementAt(...p), pixel), 100 + i);
});

test('no message was written', () => assert.deepEqual(page.messages, []));
