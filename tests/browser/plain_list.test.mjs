import assert from 'node:assert/strict';
import { cpSync, existsSync, mkdtempSync, rmSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { after, before, test } from 'node:test';
import { pathToFileURL } from 'node:url';
import { bin, itemsOf, launch, makeSite, nbrc, open, read, serve } from './site.mjs';

let site;
let browser;
let server;

before(async () => {
  site = makeSite();
  server = await serve(site.folder);
  browser = await launch();
});

after(async () => {
  await browser?.close();
  server?.stop();
  site?.remove();
});

const address = (...parts) => pathToFileURL(join(...parts)).href;

// The list of a page's menu: each entry's text and link, and each picture as it was loaded.
const listOf = (page) => page.evaluate(() => {
  const own = (entry) => entry.querySelector(':scope > a, :scope > span');
  const list = document.querySelector('[data-nbr-menu]');
  return {
    entries: [...list.querySelectorAll('li')].map((entry) => ({
      name: own(entry).textContent, href: own(entry).getAttribute('href'), title: own(entry).title,
    })),
    pictures: [...list.querySelectorAll('img')].map((picture) => (
      [picture.naturalWidth, picture.naturalHeight, picture.width, picture.height])),
    depth: list.querySelectorAll('ul ul ul > li').length,
  };
});

const textOf = (markup) => markup.replace('&amp;', '&');

function assertWhole(list, items) {
  assert.deepEqual(list.entries.map((entry) => [entry.name, entry.href, entry.title]),
    items.map((item) => [textOf(item.ItemName1), item.URL, item.ItemTooltip]));
  assert.ok(list.pictures.length > items.length / 2);
  for (const [naturalWidth, naturalHeight, width, height] of list.pictures) {
    assert.ok(naturalWidth > 0);
    assert.deepEqual([naturalWidth, naturalHeight], [width, height]);
  }
  assert.ok(list.depth > 0);
}

for (const [from, addressOf] of [
  ['disk', (name) => address(site.folder, name)],
  ['a server', (name) => `${server.address}/${name}`],
]) {
  test(`each linked page from ${from} shows the whole menu without a fault`, async () => {
    const items = itemsOf(site.menu);
    for (const name of site.pages) {
      const { page, faults } = await open(browser, addressOf(name));
      assertWhole(await listOf(page), items);
      assert.deepEqual(faults, [], name);
      await page.close();
    }
  });
}

test('each item leads to a place that is there', () => {
  for (const { URL: url } of itemsOf(site.menu)) {
    const [file, place] = url.split('#');
    assert.ok(existsSync(join(site.folder, file)), url);
    if (place) assert.ok(read(site.folder, file).includes(`id="${place}"`), url);
  }
});

test('the preview page shows the whole menu', async (t) => {
  const home = mkdtempSync(join(tmpdir(), 'nimbrel-home-'));
  t.after(() => rmSync(home, { recursive: true }));
  cpSync(bin, home, { recursive: true });
  const path = nbrc('--home', home, 'preview', site.menu).trim();
  const { page, faults } = await open(browser, address(path));
  assertWhole(await listOf(page), itemsOf(site.menu));
  assert.deepEqual(faults, []);
  await page.close();
});

test('both scripts of a cross-frame menu load, each in its frame', async () => {
  const lines = read(site.menu).split('\r\n');
  const frameName = 6;
  lines[frameName] = 'content';
  const menu = join(site.folder, 'frames.nbr');
  writeFileSync(menu, lines.join('\r\n'), 'latin1');
  nbrc('compile', menu, '--to', join(site.folder, 'frames.js'));
  const bare = '<html><body></body></html>';
  for (const [name, script] of [['main.html', 'frames.js'], ['content.html', 'frames_sub.js']]) {
    writeFileSync(join(site.folder, name), bare);
    nbrc('link', join(site.folder, script), join(site.folder, name));
  }
  writeFileSync(join(site.folder, 'frameset.html'),
    '<frameset cols="50%,50%"><frame src="main.html" name="main"><frame src="content.html" name="content"></frameset>');

  const { page, faults } = await open(browser, address(site.folder, 'frameset.html'));
  const count = (name, what) => page.frames().find((frame) => frame.name() === name)
    .evaluate((selector) => document.querySelectorAll(selector).length, what);
  const items = itemsOf(site.menu);
  const inMain = await count('main', 'li');
  assert.equal(inMain + await count('content', 'li'), items.length);
  assert.ok(await count('content', '[data-nbr-menu]') > 1);
  assert.deepEqual(faults, []);
  await page.close();
});
