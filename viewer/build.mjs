// Builds the template of the page: one HTML file with the script and the style inline. The template
// keeps the marker <!--DATA-->, which `kelifc view` replaces by the element with the building.
//
//   node build.mjs OUTPUT      writes the template; node_modules must be beside this file
import { createHash } from 'node:crypto';
import { mkdirSync, readFileSync, writeFileSync } from 'node:fs';
import { dirname, join } from 'node:path';
import { fileURLToPath } from 'node:url';
import { build } from 'esbuild';

const folder = dirname(fileURLToPath(import.meta.url));
const charset = '<meta charset="utf-8">';

const read = (...names) => readFileSync(join(folder, ...names), 'utf8');

// Returns the bundle of a script or a style, without the newline at its end. A carriage return would
// change the hash, because a browser replaces it by a newline.
async function bundle(entry, options) {
  const result = await build({
    absWorkingDir: folder,
    entryPoints: [entry],
    bundle: true,
    minify: true,
    write: false,
    logLevel: 'warning',
    legalComments: 'eof',
    ...options,
  });
  return result.outputFiles[0].text.replace(/\r\n?/g, '\n').trim();
}

// Inline text ends at the first end tag, and `<!--` changes how a browser parses a script.
function requireInlineText(text, name) {
  const match = /<\/(script|style)|<!--/i.exec(text);
  if (match) throw new Error(`the ${name} contains ${match[0]}, which cannot be inline`);
}

function replaceOnce(text, marker, replacement) {
  if (text.split(marker).length !== 2) throw new Error(`index.html must contain ${marker} once`);
  return text.replace(marker, () => replacement);
}

const hash = (text) => `'sha256-${createHash('sha256').update(text, 'utf8').digest('base64')}'`;

// The page loads nothing: it may run its own script, use its own style, and show images that it
// made itself. With trusted types, the script cannot make markup of a text.
function policy(script, style) {
  return [
    "default-src 'none'",
    `script-src ${hash(script)}`,
    `style-src ${hash(style)}`,
    'img-src data: blob:',
    "base-uri 'none'",
    "form-action 'none'",
    "require-trusted-types-for 'script'",
  ].join('; ');
}

// The licence of three.js requires that each copy contains it.
function licences() {
  const text = read('node_modules', 'three', 'LICENSE').replace(/\r\n?/g, '\n').trim();
  if (text.includes('--')) throw new Error('the licence of three.js cannot be a comment');
  return `<!--\nThis page contains three.js (https://threejs.org).\n\n${text}\n-->`;
}

async function makeTemplate() {
  const script = await bundle('src/main.ts', { format: 'esm', target: 'es2022' });
  const style = await bundle('style.css', { loader: { '.svg': 'dataurl' } });
  requireInlineText(script, 'script');
  requireInlineText(style, 'style');
  const meta = `<meta http-equiv="Content-Security-Policy" content="${policy(script, style)}">`;
  let page = read('index.html').replace(/\r\n?/g, '\n');
  page = replaceOnce(page, charset, `${charset}\n${meta}\n${licences()}`);
  page = replaceOnce(page, '<!--STYLE-->', `<style>${style}</style>`);
  page = replaceOnce(page, '<!--SCRIPT-->', `<script type="module">${script}</script>`);
  if (page.split('<!--DATA-->').length !== 2) throw new Error('index.html must contain <!--DATA--> once');
  return page;
}

const output = process.argv[2];
if (!output || process.argv.length > 3) {
  console.error('usage: node build.mjs OUTPUT');
  process.exit(64);
}
try {
  const page = await makeTemplate();
  mkdirSync(dirname(output), { recursive: true });
  writeFileSync(output, page);
  console.log(`${output}: ${page.length} characters`);
} catch (error) {
  console.error(`${output}: ${error.message}`);
  process.exit(1);
}
