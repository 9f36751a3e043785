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
import { runIn } from '../browser/support/suite.mjs';

const source = new URL('../..', import.meta.url).pathname;
const samples = join(bin, 'Examples');
const examples = join(bin, 'Live Examples');
const axe = readFileSync(createRequire(import.meta.url).resolve('axe-core/axe.min.js'), 'utf8');
const read = (...parts) => readFileSync(join(...parts), 'latin1');
const namesIn = (folder, ending = '') => readdirSync(folder).filter((name) => name.endsWith(ending));
const table = JSON.parse(read(source, 'product', 'Live Examples', 'examples.json'));

test('each row of a sheet that names a live example has it, under its caption', () => {
  for (const [kind, { examples: all }] of Object.entries(table)) {
    const rows = read(source, 'src', 'properties', `${kind}_rows.cpp`);
    const inRows = [...rows.matchAll(/^\s*\{("(?:[^"\\]|\\.)*"),.*?"(LE_\w+)"/gm)].map(([, caption, file]) => [file, JSON.parse(caption)]);
    const inTable = all.flatMap(({ file, captions }) => captions.map((caption) => [file, caption]));
    assert.ok(inRows.length > 20, kind);
    assert.deepEqual(inTable.sort(), inRows.sort());
  }
  const files = Object.values(table).flatMap((group) => group.examples.map(({ file }) => file));
  assert.deepEqual(namesIn(examples).filter((name) => name !== 'menus').sort(), files.sort());
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

const sum = async (frames, count) => (await Promise.all(frames.map(count))).reduce((total, each) => total + each, 0);

// How many menus are visible in the window of a frame. A popup is called first.
const menusIn = (frame) => frame.evaluate(() => {
  document.querySelector('[onclick*="nbrShowMenu"]')?.click();
  return all('.panel').filter((panel) => {
    const { width, height, left, top, right, bottom } = boxOf(panel);
    return width > 10 && height > 10 && right > 0 && bottom > 0 && left < innerWidth && top < innerHeight;
  }).length;
});

// Opens the first submenu of a page by keyboard; it may show in another frame.
async function opensSubmenu(page) {
  const panels = () => sum(page.frames(), (frame) => frame.evaluate(() => all('.panel').length));
  const closed = await panels();
  const focus = () => {
    const [item] = all('[aria-haspopup]');
    item?.focus();
    return Boolean(item);
  };
  await eventually(async () => {
    for (const frame of page.frames()) if (await frame.evaluate(focus)) return;
    assert.fail('no item has a submenu');
  });
  await page.keyboard.press(' ');
  await eventually(async () => assert.equal(await panels(), closed + 1));
}

function productPages(_, browser) {
  let server;
  let visitor;
  before(async () => {
    server = await serve(samples);
    visitor = await open(browser(), 'about:blank', { width: 800, height: 600 });
  });
  after(() => server?.stop());

  // `framesOf` returns the frames that show the menus.
  async function visit(address, menus, framesOf, more = () => {}) {
    visitor.faults.length = 0;
    await visitor.page.goto(address);
    await eventually(async () => assert.equal(await sum(framesOf(visitor.page), menusIn), menus, address));
    await more(visitor.page);
    assert.deepEqual(visitor.faults, [], address);
  }

  for (const folder of namesIn(samples)) {
    test(`each page of ${folder} shows its menus, and they open`, async () => {
      const site = join(samples, folder);
      const isFrameset = read(site, 'index.html').includes('<frameset');
      for (const page of isFrameset ? ['index.html'] : namesIn(site, '.html')) {
        await visit(`${server.address}/${folder}/${page}`, namesIn(site, '.nbr').length, (shown) => shown.frames(), opensSubmenu);
      }
    });
  }

  test('a sample with an open submenu is accessible', async () => {
    await visit(`${server.address}/thistlewick/index.html`, 1, (shown) => [shown.mainFrame()], opensSubmenu);
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
        await visit(fileUrl(home, 'gallery', 'stylepreview.html'), 1, (shown) => [shown.mainFrame()], opensSubmenu);
      }
    } finally {
      rmSync(home, { recursive: true });
    }
  });

  for (const [kind, group] of Object.entries(table)) {
    test(`each live example of the ${kind} sheet shows a menu for each setting`, async () => {
      for (const { file, settings } of group.examples) {
        await visit(fileUrl(examples, file, `${file}.html`), Object.keys(settings).length, (shown) => shown.mainFrame().childFrames());
      }
    });
  }
}

// The suites of tests/browser run in both browsers. These pages add nothing that depends on the browser, so that one is
// enough for them except in the whole matrix.
for (const name of process.env.NIMBREL_MATRIX === 'all' ? ['Chromium', 'Firefox'] : ['Chromium']) runIn(name, [productPages]);
