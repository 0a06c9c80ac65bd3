// Starts the browser of the tests, and opens pages in it.
import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { mkdtempSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { dirname, join } from 'node:path';
import { fileURLToPath, pathToFileURL } from 'node:url';
import { inflateSync } from 'node:zlib';
import { chromium } from 'playwright-core';
import { writePage } from './make_page.mjs';

const folder = dirname(dirname(fileURLToPath(import.meta.url)));

// WebGL runs in software, and the browser talks to no network.
const flags = [
  '--no-sandbox', '--use-gl=angle', '--use-angle=swiftshader', '--enable-unsafe-swiftshader',
  '--disable-quic', '--no-first-run', '--disable-background-networking',
  '--disable-component-update', '--disable-sync',
];

/** A folder for pages that disappears with `close`, and a browser. */
export class Workbench {
  static async open() {
    const bench = new Workbench();
    bench.folder = mkdtempSync(join(tmpdir(), 'kelifc-page-'));
    bench.template = process.env.PAGE_TEMPLATE ?? join(bench.folder, 'template.html');
    if (!process.env.PAGE_TEMPLATE) {
      execFileSync(process.execPath, [join(folder, 'build.mjs'), bench.template]);
    }
    bench.browser = await chromium.launch({
      executablePath: process.env.CHROMIUM ?? '/usr/bin/chromium', args: flags,
    });
    return bench;
  }

  /** Writes a page of a made building and returns its file. */
  write(name, building, encoding) {
    const file = join(this.folder, name);
    writePage(this.template, building, file, encoding);
    return file;
  }

  /** Opens a page. `patience` is how long actions may take, in milliseconds. The property
   *  `messages` of the page collects its messages, errors and requests. */
  async show(file, {
    hash = '', phone = false, dark = false, viewport = { width: 1280, height: 800 },
    patience = 10000,
  } = {}) {
    const context = await this.browser.newContext({
      viewport: phone ? { width: 390, height: 800 } : viewport,
      hasTouch: phone, isMobile: phone, colorScheme: dark ? 'dark' : 'light',
      reducedMotion: 'reduce',
    });
    context.setDefaultTimeout(patience);
    const page = await context.newPage();
    page.messages = [];
    page.on('console', (m) => {
      // Chromium reports slow reading of pixels, which screenshots cause.
      if (!/GPU stall due to ReadPixels/.test(m.text())) page.messages.push(m.text());
    });
    page.on('pageerror', (error) => page.messages.push(error.message));
    page.on('request', (request) => {
      if (!/^(file|blob|data):/.test(request.url())) page.messages.push(request.url());
    });
    await page.goto(pathToFileURL(file).href + hash);
    await page.waitForFunction(() => window.kelifcPage?.statistics().frames > 0, null,
      { timeout: 60000 });
    return page;
  }

  async close() {
    await this.browser.close();
    rmSync(this.folder, { recursive: true });
  }
}

/** Waits until the page has drawn what was asked for. */
export async function settle(page) {
  await page.evaluate(() => new Promise((done) =>
    requestAnimationFrame(() => requestAnimationFrame(() => setTimeout(done, 60)))));
}

/** The pixel at which a world point is drawn. */
export async function pixelOf(page, point) {
  const pixel = await page.evaluate((p) => window.kelifcPage.project(...p), point);
  assert.ok(pixel, `the point ${point} is in front of the camera`);
  return pixel;
}

export const counts = (page) => page.evaluate(() => window.kelifcPage.counts());
export const selected = (page) => page.evaluate(() => window.kelifcPage.selected());
export const statistics = (page) => page.evaluate(() => window.kelifcPage.statistics());
export const camera = (page) => page.evaluate(() => window.kelifcPage.camera());

function unfilter(rows, width, height, size) {
  const stride = width * size;
  const out = Buffer.alloc(stride * height);
  for (let y = 0; y < height; ++y) {
    const filter = rows[y * (stride + 1)];
    for (let x = 0; x < stride; ++x) {
      const a = x >= size ? out[y * stride + x - size] : 0;
      const b = y ? out[(y - 1) * stride + x] : 0;
      const c = x >= size && y ? out[(y - 1) * stride + x - size] : 0;
      const p = a + b - c;
      const [pa, pb, pc] = [Math.abs(p - a), Math.abs(p - b), Math.abs(p - c)];
      const paeth = pa <= pb && pa <= pc ? a : pb <= pc ? b : c;
      const guess = [0, a, b, (a + b) >> 1, paeth][filter];
      out[y * stride + x] = rows[y * (stride + 1) + 1 + x] + guess;
    }
  }
  return out;
}

/** Decodes a PNG file of eight bits per channel. */
function decodePng(png) {
  const [width, height, type] = [png.readUInt32BE(16), png.readUInt32BE(20), png[25]];
  const size = type === 6 ? 4 : 3;
  const parts = [];
  for (let at = 8; at < png.length;) {
    const length = png.readUInt32BE(at);
    if (png.toString('latin1', at + 4, at + 8) === 'IDAT') {
      parts.push(png.subarray(at + 8, at + 8 + length));
    }
    at += 12 + length;
  }
  const data = unfilter(inflateSync(Buffer.concat(parts)), width, height, size);
  return { width, height, at: (x, y) => [...data.subarray((y * width + x) * size).subarray(0, 3)] };
}

/** A picture of the page: `at(x, y)` returns the red, green and blue of a pixel. */
export async function picture(page) {
  await settle(page);
  return decodePng(await page.screenshot({ scale: 'css' }));
}
