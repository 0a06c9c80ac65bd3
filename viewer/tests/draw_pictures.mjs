// Draws the pictures of the page for the documentation.
//
//   node draw_pictures.mjs PAGES OUTPUT     PAGES holds frame.html and hall.html
import { readFileSync } from 'node:fs';
import { join, resolve } from 'node:path';
import { Workbench, settle } from './browser.mjs';

const pictures = [
  { name: 'page.png', model: 'frame', hash: '#v=1&c=profile&x=z,10.25,0&s=PICKED' },
  { name: 'page-idealised.png', model: 'hall', hash: '#v=1&d=both&c=class', dark: true },
];

/** The number of an element near the middle of the list, which the picture shows as selected. */
function pickedOf(pages, model) {
  const elements = JSON.parse(readFileSync(join(pages, `${model}.json`), 'utf8')).elements;
  const beams = elements.filter((e) => e.class === 'IfcBeam' && e.name.startsWith('B 2'));
  return beams.at(beams.length >> 1)?.id ?? elements[0].id;
}

const [pages, output] = process.argv.slice(2).map((folder) => resolve(folder));
if (!pages || !output) {
  console.error('usage: node draw_pictures.mjs PAGES OUTPUT');
  process.exit(64);
}
const bench = await Workbench.open();
try {
  for (const { name, model, hash, dark } of pictures) {
    const link = hash.replace('PICKED', pickedOf(pages, model));
    const page = await bench.show(join(pages, `${model}.html`), { hash: link, dark });
    await settle(page);
    await page.screenshot({ path: join(output, name) });
    await page.context().close();
  }
} finally {
  await bench.close();
}
