// The pages that are staged beside the program: samples, style previews and live examples.
import assert from 'node:assert/strict';
import { cpSync, existsSync, mkdtempSync, readdirSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { createRequire } from 'node:module';
import { tmpdir } from 'node:os';
import { basename, join } from 'node:path';
import { after, before, test } from 'node:test';
import { eventually, open } from '../browser/support/browsers.mjs';
import { bin, nbrc } from '../browser/support/menu_file.mjs';
import { fileUrl, serve } from '../browser/support/site.mjs';
import { runIn, wholeMatrix } from '../browser/support/suite.mjs';

const source = new URL('../..', import.meta.url).pathname;
const samples = join(bin, 'Examples');
const examples = join(bin, 'Live Examples');
const axe = readFileSync(createRequire(import.meta.url).resolve('axe-core/axe.min.js'), 'utf8');
const read = (...parts) => readFileSync(join(...parts), 'latin1');
const namesIn = (folder, ending = '') => readdirSync(folder).filter((name) => name.endsWith(ending));
const liveExamples = Object.entries(JSON.parse(read(source, 'product', 'Live Examples', 'examples.json')))
  .flatMap(([kind, group]) => group.examples.map((example) => ({ kind, ...example })));

test('each row of a sheet that names a live example has it, under its caption', () => {
  const inRows = ['menu', 'submenu', 'item'].flatMap((kind) => (
    [...read(source, 'src', 'properties', `${kind}_rows.cpp`).matchAll(/^\s*\{("(?:[^"\\]|\\.)*"),.*?"(LE_\w+)"/gm)]
      .map(([, caption, file]) => [kind, file, JSON.parse(caption)])));
  const inTable = liveExamples.flatMap(({ kind, file, captions }) => captions.map((caption) => [kind, file, caption]));
  assert.ok(inRows.length > 90);
  assert.deepEqual(inTable.sort(), inRows.sort());
  assert.deepEqual(namesIn(examples).filter((name) => name !== 'menus').sort(), liveExamples.map(({ file }) => file).sort());
});

for (const folder of namesIn(samples)) {
  test(`the sample ${folder} is complete: its pictures, the targets of its links, and each byte as the program saves it`, () => {
    const site = join(samples, folder);
    for (const menu of namesIn(site, '.nbr')) {
      const path = join(site, menu);
      nbrc('check', path);
      for (const { properties: { URL: url = 'n' } } of JSON.parse(nbrc('show', '--json', path)).elements) {
        const [file, place] = url.split('#');
        if (file && url !== 'n') assert.ok(existsSync(join(site, file)), url);
        for (const page of place ? (file ? [file] : namesIn(site, '.html')) : []) {
          assert.ok(read(site, page).includes(`id="${place}"`), `${url} in ${page}`);
        }
      }
      const saved = join(tmpdir(), `nimbrel-saved-${process.pid}.nbr`);
      nbrc('convert', path, saved);
      // The program saves whole paths of pictures; samples name them relative to their folder, so that they can be
      // moved.
      assert.equal(read(saved).replaceAll(site.replaceAll('/', '\\'), '*'), read(path), menu);
      rmSync(saved);
    }
  });
}

const callPopup = (frame) => frame.evaluate(() => document.querySelector('[onclick*="nbrShowMenu"]')?.click());

// The number of menus and submenus that are visible in the window of a frame.
const panelsIn = (frame) => frame.evaluate(() => all('.panel').filter((panel) => {
  const { width, height, left, top, right, bottom } = boxOf(panel);
  return width > 10 && height > 10 && right > 0 && bottom > 0 && left < innerWidth && top < innerHeight;
}).length);

const focusOpener = (frame) => frame.evaluate(() => {
  const [item] = all('[aria-haspopup]');
  item?.focus();
  return Boolean(item);
});

function productPages(_, browser) {
  let server;
  let visitor;
  before(async () => {
    server = await serve(samples);
    visitor = await open(browser(), 'about:blank', { width: 800, height: 600 });
  });
  after(() => server?.stop());

  const shows = (count) => eventually(async () => {
    const counts = await Promise.all(visitor.page.frames().map(panelsIn));
    assert.equal(counts.reduce((sum, each) => sum + each, 0), count, visitor.page.url());
  });

  // Visits a page that shows a number of menus; may open the first submenu by keyboard.
  async function visit(address, menus, opens = true) {
    visitor.faults.length = 0;
    await visitor.page.goto(address);
    await Promise.all(visitor.page.frames().map(callPopup));
    await shows(menus);
    if (opens) {
      await eventually(async () => {
        for (const frame of visitor.page.frames()) if (await focusOpener(frame)) return;
        assert.fail(`no item has a submenu in ${address}`);
      });
      await visitor.page.keyboard.press(' ');
      await shows(menus + 1);
    }
    assert.deepEqual(visitor.faults, [], address);
  }

  for (const folder of namesIn(samples)) {
    test(`each page of ${folder} shows its menus, and they open`, async () => {
      const site = join(samples, folder);
      const isFrameset = read(site, 'index.html').includes('<frameset');
      for (const page of isFrameset ? ['index.html'] : namesIn(site, '.html')) {
        await visit(`${server.address}/${folder}/${page}`, namesIn(site, '.nbr').length);
      }
    });
  }

  test('a sample with an open submenu is accessible', async () => {
    await visit(`${server.address}/thistlewick/index.html`, 1);
    await visitor.run(axe);
    const violations = () => axe.run().then((result) => result.violations.map(({ id, nodes }) => [id, nodes[0].failureSummary]));
    assert.deepEqual(await visitor.run(violations), []);
  });

  test('each style of the gallery has a preview', async () => {
    const home = mkdtempSync(join(tmpdir(), 'nimbrel-styles-'));
    try {
      for (const part of ['libraries', 'gallery', 'dot.gif', 'stylepreview-back.jpg']) {
        cpSync(join(bin, part), join(home, part), { recursive: true });
      }
      for (const style of namesIn(join(home, 'gallery'), '.nbs')) {
        const macro = join(home, 'show.macro');
        writeFileSync(macro, `form frmGallery "cboStyle=${basename(style, '.nbs')}" btnCancel!\nrun mnuStyleOpenStyleLibrary\n`);
        nbrc('--home', home, 'play', macro);
        await visit(fileUrl(home, 'gallery', 'stylepreview.html'), 1);
      }
    } finally {
      rmSync(home, { recursive: true });
    }
  });

  test('each live example shows a menu for each setting', async () => {
    for (const { file, settings } of liveExamples) {
      await visit(fileUrl(examples, file, `${file}.html`), Object.keys(settings).length, false);
    }
  });
}

for (const name of wholeMatrix ? ['Chromium', 'Firefox'] : ['Chromium']) runIn(name, [productPages]);
