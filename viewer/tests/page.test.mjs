// Tests of what the page shows and does, with a made building.
import assert from 'node:assert/strict';
import { readFileSync, writeFileSync } from 'node:fs';
import { after, before, test } from 'node:test';
import {
  Workbench, camera, counts, picture, pixelOf, selected, settle, statistics,
} from './browser.mjs';
import { house, hostileNames, makeHouse } from './made_buildings.mjs';

let bench;
let file;
const building = makeHouse();
const slabTop = [2, 2, 7.2];
const topSlab = house.slab + 1;
const count = (test) => building.elements.filter(test).length;

before(async () => {
  bench = await Workbench.open();
  file = bench.write('house.html', building);
});
after(() => bench.close());

async function withPage(options, run) {
  const page = await bench.show(file, options);
  try {
    await run(page);
    assert.deepEqual(page.messages, []);
  } finally {
    await page.context().close();
  }
}

async function clickPoint(page, point) {
  await page.mouse.click(...(await pixelOf(page, point)));
  await settle(page);
}

test('the page shows as many elements as the data holds', () => withPage({}, async (page) => {
  const expected = building.elements.length;
  assert.deepEqual(await counts(page), { elements: expected, visible: expected });
  assert.equal(await page.locator('#tab-elements').textContent(), `Elements (${expected})`);
  const label = page.locator('label[for="filter-class-0"] .count');
  assert.equal(await label.textContent(), String(count((e) => e.class === 0)));
  assert.equal(await page.title(), 'house.ifc – KelIFC');
}));

test('data that is not compressed is read, too', async () => {
  const page = await bench.show(bench.write('plain.html', building, 'identity'));
  assert.equal((await counts(page)).elements, building.elements.length);
  await page.context().close();
});

test('a page with damaged data says so', async () => {
  const nothing = { elements: [], meshes: [], classes: [] };
  const damaged = bench.write('damaged.html', nothing, 'identity');
  writeFileSync(damaged, readFileSync(damaged, 'utf8').replace('>S0xWM', '>S0xWN'));
  const context = await bench.browser.newContext();
  const page = await context.newPage();
  await page.goto(`file://${damaged}`);
  const alert = page.getByRole('alert');
  await alert.waitFor();
  assert.match(await alert.textContent(), /cannot be shown/);
  await context.close();
});

test('a building without elements is shown without errors', async () => {
  const empty = bench.write('empty.html', { elements: [], meshes: [], classes: [] });
  const page = await bench.show(empty);
  await page.keyboard.press('f');
  assert.deepEqual(await counts(page), { elements: 0, visible: 0 });
  assert.deepEqual(page.messages, []);
  await page.context().close();
});

test('the view is not blank and shows the colours', () => withPage({}, async (page) => {
  const shot = await picture(page);
  const [x, y] = (await pixelOf(page, slabTop)).map(Math.round);
  const [red, green, blue] = shot.at(x, y);
  assert.ok(green > red && green > blue, `the slab is green: ${[red, green, blue]}`);
  const [wx, wy] = (await pixelOf(page, [0, -4.15, 0.5])).map(Math.round);
  const member = shot.at(wx, wy);
  const isTeal = member[1] > member[0] + 30 && member[2] > member[0] + 30;
  assert.ok(isTeal, `the member is teal: ${member}`);
  const box = await page.locator('canvas').boundingBox();
  const corner = shot.at(Math.round(box.x + box.width - 8), Math.round(box.y + 8));
  assert.ok(corner.every((c) => c > 245), `the background is light: ${corner}`);
}));

test('nothing is drawn while nothing changes', () => withPage({}, async (page) => {
  await settle(page);
  const { frames } = await statistics(page);
  await page.waitForTimeout(400);
  assert.equal((await statistics(page)).frames, frames);
}));

test('a click selects the element under the pointer', () => withPage({}, async (page) => {
  await clickPoint(page, slabTop);
  assert.equal(await selected(page), topSlab);
  const details = page.locator('.details');
  assert.equal(await details.locator('h2').textContent(), 'Slab 1');
  assert.match(await details.textContent(), /IfcSlab/);
  const status = await page.locator('#status').textContent();
  assert.equal(status, 'Selected: Slab 1, IfcSlab, number 3001');
  const box = await page.locator('canvas').boundingBox();
  await page.mouse.click(box.x + box.width - 6, box.y + 6);
  assert.equal(await selected(page), null);
}));

test('a filter hides elements, and they cannot be picked', () => withPage({}, async (page) => {
  const [x, y] = await pixelOf(page, slabTop);
  await page.getByLabel('IfcSlab').first().uncheck();
  await settle(page);
  assert.equal((await counts(page)).visible, building.elements.length - 2);
  const found = await page.evaluate((pixel) => window.kelifcPage.elementAt(...pixel), [x, y]);
  assert.notEqual(found, topSlab);
  const shot = await picture(page);
  const [red, green] = shot.at(Math.round(x), Math.round(y));
  assert.ok(Math.abs(green - red) < 30, 'the slab is gone');
  await page.getByRole('button', { name: 'Reset filters' }).click();
  assert.equal((await counts(page)).visible, building.elements.length);
}));

test('two filters show what both leave, and counts follow', () => withPage({}, async (page) => {
  await page.getByRole('button', { name: 'Show only Ground floor' }).click();
  const onGround = (e) => e.storey === 0;
  assert.equal((await counts(page)).visible, count(onGround));
  const columns = count((e) => onGround(e) && e.class === 0);
  const label = page.locator('label[for="filter-class-0"] .count');
  assert.equal(await label.textContent(), `${columns} of ${count((e) => e.class === 0)}`);
  await page.getByRole('button', { name: 'Show only IfcColumn' }).click();
  assert.equal((await counts(page)).visible, columns);
}));

test('displays, colours and sections draw without an error', () => withPage({}, async (page) => {
  for (const name of ['Idealised', 'Both', 'Solids']) {
    await page.getByRole('button', { name, exact: true }).click();
    for (const colour of ['storey', 'profile', 'material', 'exactness', 'kind', 'none', 'class']) {
      await page.locator('#colour').selectOption(colour);
      await settle(page);
    }
  }
  for (const axis of ['x', 'y', 'z']) {
    await page.locator('#section').selectOption(axis);
    await settle(page);
    await page.getByRole('button', { name: 'Flip the section' }).click();
    await settle(page);
  }
}));

test('the idealisation is picked by its lines', () => withPage({}, async (page) => {
  await page.getByRole('button', { name: 'Idealised', exact: true }).click();
  await settle(page);
  await clickPoint(page, [12, 0, 1]);
  assert.equal(await selected(page), building.elements.find((e) => e.name === 'C 12/0').id);
}));

test('a section cuts elements off and fills the cut', () =>
  withPage({ hash: '#v=1&x=z,7.100,0' }, async (page) => {
    await page.getByRole('button', { name: 'Top', exact: true }).click();
    const pixel = (await pixelOf(page, [3, 6.5, 7.1])).map(Math.round);
    const [red, green, blue] = (await picture(page)).at(...pixel);
    assert.ok(Math.abs(green - red) < 40 && Math.abs(green - blue) < 40, 'the cut is grey');
    await page.getByLabel('Position of the section').fill('1');
    await settle(page);
    const above = await pixelOf(page, [3, 6.5, 7.1]);
    const found = await page.evaluate((p) => window.kelifcPage.elementAt(...p), above);
    assert.equal(found, null);
  }));

test('a section in the plane of a face cuts the face off', () =>
  withPage({ hash: '#v=1&x=z,3.4,0' }, async (page) => {
    await page.getByRole('button', { name: 'Top', exact: true }).click();
    await settle(page);
    const below = await pixelOf(page, [1, 1, 3]);
    assert.equal(await page.evaluate((p) => window.kelifcPage.elementAt(...p), below), null);
    const shot = await picture(page);
    const colour = shot.at(...below.map(Math.round));
    assert.ok(colour.every((c) => c > 245), `the slab is cut off: ${colour}`);
  }));

test('a round column has edges only at its outline', async () => {
  const plain = makeHouse();
  plain.elements.find((e) => e.id === house.body).approximate = 0; // without hatching
  const page = await bench.show(bench.write('pile.html', plain));
  for (const [name, across] of [['Front', [0.25, 0]], ['Side', [0, 0.25]]]) {
    await page.getByRole('button', { name, exact: true }).click();
    const shot = await picture(page);
    for (const [share, isEdge] of [[-1, true], [-0.5, false], [0, false], [1, true]]) {
      const point = [3 + share * across[0], 4 + share * across[1], -0.8];
      const [x, y] = (await pixelOf(page, point)).map(Math.round);
      const isDark = [-2, -1, 0, 1, 2].some((dx) => shot.at(x + dx, y).every((c) => c < 120));
      assert.equal(isDark, isEdge, `${name}: ${share}`);
    }
  }
  await page.context().close();
});

test('the idealisation shows the outlines of openings', () =>
  withPage({ hash: '#v=1&d=axes' }, async (page) => {
    await page.getByRole('button', { name: 'Front', exact: true }).click();
    await settle(page);
    const [x, y] = (await pixelOf(page, [5, 8, 1])).map(Math.round);
    const shot = await picture(page);
    const beside = shot.at(x - 8, y);
    const isLine = [-1, 0, 1].some((dx) =>
      shot.at(x + dx, y).some((c, i) => Math.abs(c - beside[i]) > 25));
    assert.ok(isLine, 'the left edge of the window');
    const middle = (await pixelOf(page, [5.5, 8, 1])).map(Math.round);
    assert.deepEqual(shot.at(...middle), beside, 'the plane is filled');
  }));

test('paper shows the view in light colours', () => withPage({ dark: true }, async (page) => {
  await clickPoint(page, slabTop);
  await page.emulateMedia({ media: 'print', colorScheme: 'dark' });
  await page.evaluate(() => dispatchEvent(new Event('beforeprint')));
  assert.equal(await page.locator('.panel').isVisible(), false);
  assert.equal(await page.locator('.details h2').textContent(), 'Slab 1');
  assert.equal(await page.locator('html').getAttribute('data-theme'), 'light');
  const colours = await page.locator('.print-only').evaluate((canvas) => {
    const { data } = canvas.getContext('2d').getImageData(0, 0, canvas.width, canvas.height);
    return [data[0], new Set(new Uint32Array(data.buffer)).size];
  });
  assert.ok(colours[0] > 245 && colours[1] > 3, `the copy has ${colours}`);
  await page.evaluate(() => dispatchEvent(new Event('afterprint')));
  assert.equal(await page.locator('html').getAttribute('data-theme'), 'dark');
}));

test('the standard views are orthographic and fit the model', () => withPage({}, async (page) => {
  for (const name of ['Top', 'Front', 'Side', 'Isometric']) {
    await page.getByRole('button', { name, exact: true }).click();
    await settle(page);
    assert.equal((await camera(page)).isPerspective, false);
    const box = await page.locator('canvas').boundingBox();
    for (const corner of [[-0.5, -0.5, 7.2], [12.5, 8.5, 7.2], [0, -4, 0]]) {
      const [x, y] = await pixelOf(page, corner);
      assert.ok(x > box.x && x < box.x + box.width && y > box.y && y < box.y + box.height,
        `${name} shows ${corner}`);
    }
  }
}));

test('the keyboard turns, pans, zooms, selects and steps', () => withPage({}, async (page) => {
  await page.locator('canvas').focus();
  const start = await camera(page);
  await page.keyboard.press('ArrowRight');
  assert.notEqual((await camera(page)).azimuth, start.azimuth);
  await page.keyboard.press('Shift+ArrowUp');
  assert.notDeepEqual((await camera(page)).target, start.target);
  await page.keyboard.press('+');
  assert.ok((await camera(page)).height < start.height);
  await page.keyboard.press('1');
  await page.keyboard.press('Enter');
  assert.notEqual(await selected(page), null);
  await page.keyboard.press('f');
  await page.keyboard.press('Escape');
  assert.equal(await selected(page), null);
  await page.keyboard.press(']');
  assert.equal(await selected(page), building.elements[0].id);
  await page.keyboard.press(']');
  assert.equal(await selected(page), building.elements[1].id);
  await page.keyboard.press('h');
  assert.ok(await page.getByRole('dialog').isVisible());
  await page.keyboard.press('Escape');
  assert.ok(!(await page.getByRole('dialog').isVisible()));
}));

test('the mouse turns, pans and zooms at the pointer', () => withPage({}, async (page) => {
  const point = [12.5, -0.5, 7.2];
  const before = await pixelOf(page, point);
  await page.mouse.move(...before);
  await page.mouse.wheel(0, -200);
  await settle(page);
  const zoomed = await pixelOf(page, point);
  assert.ok(Math.hypot(zoomed[0] - before[0], zoomed[1] - before[1]) < 25);
  const start = await camera(page);
  const box = await page.locator('canvas').boundingBox();
  const middle = [box.x + box.width / 2, box.y + box.height / 2];
  for (const button of ['left', 'right']) {
    await page.mouse.move(...middle);
    await page.mouse.down({ button });
    await page.mouse.move(middle[0] + 60, middle[1] + 30);
    await page.mouse.up({ button });
  }
  const end = await camera(page);
  assert.notEqual(end.azimuth, start.azimuth);
  assert.notDeepEqual(end.target, start.target);
  assert.equal(await selected(page), null, 'a drag selects nothing');
}));

test('a link restores the view', () => withPage({}, async (page) => {
  await page.getByRole('button', { name: 'Front', exact: true }).click();
  await page.getByLabel('IfcWall').first().uncheck();
  await page.getByRole('button', { name: 'Both', exact: true }).click();
  await page.locator('#colour').selectOption('storey');
  await page.locator('#section').selectOption('y');
  await page.locator('canvas').focus();
  await page.keyboard.press(']');
  await page.waitForURL(/[#&]s=/); // the page writes the link when nothing changes any more
  const hash = new URL(page.url()).hash;
  const before = [await camera(page), await counts(page), await selected(page)];
  await withPage({ hash }, async (other) => {
    const view = await camera(other);
    assert.deepEqual([await counts(other), await selected(other)], before.slice(1));
    assert.equal(view.isPerspective, before[0].isPerspective);
    for (const key of ['azimuth', 'elevation', 'height']) {
      assert.ok(Math.abs(view[key] - before[0][key]) < 1e-3, key);
    }
    assert.equal(await other.locator('#colour').inputValue(), 'storey');
    assert.equal(await other.locator('#section').inputValue(), 'y');
  });
}));

test('a link with odd values is read without an error', () =>
  withPage({ hash: '#v=1&t=NaN,1&a=x&h=-1&f.class=99.-1.x&s=abc&x=q,NaN,2&d=no&c=no' },
    async (page) => {
      assert.equal((await counts(page)).visible, building.elements.length);
      assert.equal(await selected(page), null);
    }));

test('measuring snaps to corners and shows the distance', () => withPage({}, async (page) => {
  await page.getByRole('button', { name: 'Measure' }).click();
  for (const corner of [[-0.5, -0.5, 7.2], [12.5, -0.5, 7.2]]) {
    const [x, y] = await pixelOf(page, corner);
    await page.mouse.click(x + 2, y - 2);
  }
  const panel = page.locator('.measure-panel');
  assert.match(await panel.textContent(), /Distance13\.000 m/);
  assert.match(await panel.textContent(), /X -0\.500\s+Y -0\.500\s+Z 7\.200 m/);
  assert.match(await page.locator('#status').textContent(), /Distance 13\.000 m/);
  assert.equal(await page.locator('.measure-text').textContent(), '13.000 m');
  await page.locator('canvas').focus();
  await page.keyboard.press('Escape');
  assert.ok(await panel.isHidden());
}));

test('measuring snaps to the ends of axes', () => withPage({}, async (page) => {
  await page.getByRole('button', { name: 'Idealised', exact: true }).click();
  await page.getByRole('button', { name: 'Measure' }).click();
  await settle(page);
  for (const end of [[2, -4, 0], [2, -4, 1]]) {
    const [x, y] = await pixelOf(page, end);
    await page.mouse.click(x + 3, y);
  }
  const text = await page.locator('.measure-panel').textContent();
  assert.match(text, /axis end.*axis end.*Distance1\.000 m/);
}));

test('search finds elements by name, tag and number', () => withPage({}, async (page) => {
  await page.locator('#tab-elements').click();
  const search = page.getByLabel('Search by name');
  const rows = page.locator('#panel-elements tbody tr');
  await search.fill('slab');
  assert.equal(await rows.count(), 2);
  await search.fill(String(house.wall));
  assert.equal(await rows.count(), 1);
  await search.fill('0COLUMN');
  assert.equal(await rows.count(), count((e) => e.class === 0));
  await search.fill('wall');
  await search.press('Enter');
  assert.equal(await selected(page), house.wall);
  assert.equal(await page.locator('tr[aria-current="true"]').count(), 1);
}));

test('the list sorts and marks the selected row', () => withPage({}, async (page) => {
  await page.locator('#tab-elements').click();
  const table = page.getByRole('table', { name: 'Elements of the list' });
  assert.equal(await table.getAttribute('aria-rowcount'), String(building.elements.length + 1));
  await table.getByRole('button', { name: 'Number' }).click();
  await table.getByRole('button', { name: 'Number' }).click();
  const head = table.getByRole('columnheader', { name: 'Number' });
  assert.equal(await head.getAttribute('aria-sort'), 'descending');
  const highest = Math.max(...building.elements.map((e) => e.id));
  await table.getByRole('button', { name: String(highest) }).click();
  assert.equal(await selected(page), highest);
  await page.getByRole('button', { name: 'Next', exact: true }).click();
  assert.equal(await selected(page), highest - 1);
}));

test('details show the profile, its values and a drawing', () => withPage({}, async (page) => {
  await page.locator('canvas').focus();
  const beam = building.elements.find((e) => e.class === 1);
  await page.goto(`${page.url().split('#')[0]}#v=1&s=${beam.id}`);
  await settle(page);
  const details = page.locator('.details');
  const text = await details.textContent();
  const parts = ['I 400', 'I section', 'Height h400 mm', 'Web tw20 mm', 'Length8.000 m', 'Steel',
    'Second moment about y800.0 cm⁴'];
  for (const part of parts) {
    assert.ok(text.includes(part), part);
  }
  assert.ok(await details.getByRole('img', { name: 'Outline of the profile I 400' }).isVisible());
}));

test('approximate elements are marked by text and hatching', () =>
  withPage({ hash: `#v=1&s=${house.body}` }, async (page) => {
    assert.equal(await page.locator('.mark').textContent(), 'Approximate');
    assert.match(await page.locator('.legend').textContent(), /Hatched: approximate/);
  }));

test('losses are listed in a table', () => withPage({}, async (page) => {
  await page.locator('#tab-losses').click();
  const table = page.getByRole('table', { name: 'Products that could not be read' });
  assert.equal(await table.locator('tbody tr').count(), building.losses.length);
  assert.match(await table.textContent(), /degenerate body/);
}));

test('texts of the model are text', () => withPage({}, async (page) => {
  for (const [i, name] of hostileNames.entries()) {
    await page.evaluate((id) => (location.hash = `#v=1&s=${id}`), house.hostile + i);
    await page.waitForFunction((id) => window.kelifcPage.selected() === id, house.hostile + i);
    const shown = await page.locator('.details h2').textContent();
    const expected = name.replace('\u0007', '\\x07').replace('\u001b', '\\x1B')
      .replace('\u202e', '\\u202E');
    assert.equal(shown, expected);
  }
  await page.locator('#tab-elements').click();
  await page.locator('#tab-losses').click();
  assert.equal(await page.evaluate(() => window.wasHit), undefined);
  assert.equal(await page.locator('#page img, #page b, #page i, #page script').count(), 0);
  assert.equal(await page.getByText('<b>First</b> floor').first().isVisible(), false);
}));

test('the theme follows the system or a choice', () => withPage({ dark: true }, async (page) => {
  const box = await page.locator('canvas').boundingBox();
  const corner = [Math.round(box.x + box.width - 8), Math.round(box.y + 8)];
  assert.ok((await picture(page)).at(...corner).every((c) => c < 60));
  await page.locator('#theme').selectOption('light');
  assert.ok((await picture(page)).at(...corner).every((c) => c > 240));
}));

test('a phone shows the model, the panel and details without scrolling sideways', () =>
  withPage({ phone: true }, async (page) => {
    const isWide = () => page.evaluate(() => document.documentElement.scrollWidth > innerWidth);
    assert.equal(await isWide(), false);
    await page.getByRole('button', { name: 'Panel', exact: true }).tap();
    assert.ok(await page.getByRole('button', { name: 'Reset filters' }).isVisible());
    assert.equal(await isWide(), false);
    await settle(page);
    await page.touchscreen.tap(...(await pixelOf(page, slabTop)));
    await settle(page);
    assert.equal(await selected(page), topSlab);
    assert.ok(await page.locator('.details').isVisible());
    await page.getByRole('button', { name: 'Close', exact: true }).first().tap();
    assert.equal(await selected(page), null);
  }));
