// What lies beside the program for authors to look at: the samples and the live examples, as the build stages them.
import assert from 'node:assert/strict';
import { cpSync, existsSync, mkdtempSync, readdirSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { basename, join } from 'node:path';
import { after, before, test } from 'node:test';
import { eventually, inEachBrowser } from '../browser/support/browsers.mjs';
import { bin, nbrc } from '../browser/support/menu_file.mjs';
import { addressOf, itemsOf, read, serve } from '../browser/support/site.mjs';

const source = new URL('../..', import.meta.url).pathname;
const samples = join(bin, 'Examples');
const examples = join(bin, 'Live Examples');
const namesIn = (folder, ending) => readdirSync(folder).filter((name) => name.endsWith(ending));
const menus = namesIn(samples, '').flatMap((folder) => namesIn(join(samples, folder), '.nbr').map((name) => join(folder, name)));
const table = JSON.parse(readFileSync(join(source, 'product', 'Live Examples', 'examples.json'), 'utf8'));

test('each row of a sheet that names a live example has it, under its caption', () => {
  for (const [kind, group] of Object.entries(table)) {
    const rows = readFileSync(join(source, 'src', 'properties', `${kind}_rows.cpp`), 'utf8');
    const named = [...rows.matchAll(/^\s*\{("(?:[^"\\]|\\.)*"),.*?"(LE_\w+)"/gm)].map(([, caption, file]) => [file, JSON.parse(caption)]);
    const told = group.examples.flatMap(({ file, captions }) => captions.map((caption) => [file, caption]));
    assert.ok(named.length > 20, kind);
    assert.deepEqual(told.sort(), named.sort());
  }
  assert.deepEqual(namesIn(examples, '').filter((name) => name !== 'menus').sort(),
    Object.values(table).flatMap((group) => group.examples.map(({ file }) => file)).sort());
});

test('the samples are whole: pictures, places that items lead to, and every byte as the program saves it', () => {
  const folder = mkdtempSync(join(tmpdir(), 'nimbrel-samples-'));
  try {
    assert.ok(menus.length >= 9);
    for (const menu of menus) {
      const path = join(samples, menu);
      const site = join(path, '..');
      nbrc('check', path);
      for (const { URL: url } of itemsOf(path).filter(({ URL: address }) => address !== 'n')) {
        const [file, place] = url.split('#');
        if (file) assert.ok(existsSync(join(site, file)), `${menu}: ${url}`);
        for (const page of place ? (file ? [file] : namesIn(site, '.html')) : []) {
          assert.ok(read(site, page).includes(`id="${place}"`), `${menu}: ${url} in ${page}`);
        }
      }
      nbrc('convert', path, join(folder, 'saved.nbr'));
      // Pictures are saved with their whole paths; samples name them by their own folder, to lie anywhere.
      assert.equal(read(folder, 'saved.nbr').replaceAll(site.replaceAll('/', '\\'), '*'), read(path), menu);
    }
  } finally {
    rmSync(folder, { recursive: true });
  }
});

// How many menus a frame shows in its window, popups when they are called.
const shownIn = (frame) => frame.evaluate(() => {
  document.querySelector('[onclick*="nbrShowMenu"]')?.click();
  return [...document.querySelectorAll('[data-nbr-menu]')].filter(({ shadowRoot }) => {
    const box = shadowRoot.querySelector('.panel')?.getBoundingClientRect();
    return box?.width > 10 && box.height > 10 && box.right > 0 && box.bottom > 0 && box.left < innerWidth && box.top < innerHeight;
  }).length;
});

const panelsIn = async (page) => (await Promise.all(page.frames().map((frame) => frame.evaluate(() => (
  [...document.querySelectorAll('[data-nbr-menu]')].reduce((sum, host) => sum + host.shadowRoot.querySelectorAll('.panel').length, 0)
))))).reduce((sum, count) => sum + count);

// Opens the first submenu of the page by the keyboard, in whatever frame it shows.
async function opensSubmenu(page) {
  const closed = await panelsIn(page);
  const focus = () => {
    const hosts = [...document.querySelectorAll('[data-nbr-menu]')];
    const item = hosts.map(({ shadowRoot }) => shadowRoot.querySelector('[aria-haspopup]')).find(Boolean);
    item?.focus();
    return Boolean(item);
  };
  await eventually(async () => {
    for (const frame of page.frames()) if (await frame.evaluate(focus)) return;
    throw new Error('no item has a submenu');
  });
  await page.keyboard.press(' ');
  await eventually(async () => assert.equal(await panelsIn(page), closed + 1));
}

inEachBrowser((name, open) => {
  let server;
  let visitor;

  before(async () => {
    server = await serve(samples);
    visitor = await open('about:blank', { width: 800, height: 600 });
  });

  after(() => server?.stop());

  // One visitor for all pages; `frames` gives those of the page that show the menus, `more` is what else is tried there.
  async function visit(address, count, frames, more = () => {}) {
    visitor.faults.length = 0;
    await visitor.page.goto(address, { waitUntil: 'load' });
    await eventually(async () => {
      const shown = await Promise.all(frames(visitor.page).map(shownIn));
      assert.equal(shown.reduce((sum, each) => sum + each, 0), count, address);
    });
    await more(visitor.page);
    assert.deepEqual(visitor.faults, [], address);
  }

  for (const folder of namesIn(samples, '')) {
    test(`each page of ${folder} shows its menus, which open, without a fault`, async () => {
      const site = join(samples, folder);
      const isFrameset = read(site, 'index.html').includes('<frameset');
      for (const page of isFrameset ? ['index.html'] : namesIn(site, '.html')) {
        await visit(`${server.address}/${folder}/${page}`, namesIn(site, '.nbr').length, (shown) => shown.frames(), opensSubmenu);
      }
    });
  }

  test('each style of the gallery has a preview without a fault', async () => {
    const home = mkdtempSync(join(tmpdir(), 'nimbrel-styles-'));
    try {
      for (const part of ['libraries', 'gallery', 'dot.gif', 'stylepreview-back.jpg']) {
        cpSync(join(bin, part), join(home, part), { recursive: true });
      }
      for (const style of namesIn(join(home, 'gallery'), '.nbs')) {
        const macro = join(home, 'show.macro');
        writeFileSync(macro, `form frmGallery "cboStyle=${basename(style, '.nbs')}" btnCancel!\nrun mnuStyleOpenStyleLibrary\n`);
        nbrc('--home', home, 'play', macro);
        await visit(addressOf(home, 'gallery', 'stylepreview.html'), 1, (shown) => [shown.mainFrame()], opensSubmenu);
      }
    } finally {
      rmSync(home, { recursive: true });
    }
  });

  for (const [kind, group] of Object.entries(table)) {
    test(`each live example of the ${kind} sheet shows a menu for each setting, without a fault`, async () => {
      for (const { file, settings } of group.examples) {
        const address = addressOf(examples, file, `${file}.html`);
        await visit(address, Object.keys(settings).length, (shown) => shown.mainFrame().childFrames());
      }
    });
  }
});
