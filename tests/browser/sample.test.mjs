import assert from 'node:assert/strict';
import { createRequire } from 'node:module';
import { cpSync, existsSync, mkdtempSync, readFileSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { after, before, test } from 'node:test';
import { eventually, inEachBrowser } from './support/browsers.mjs';
import { bin, nbrc } from './support/menu_file.mjs';
import { addressOf, itemsOf, read, sampleSite, serve } from './support/site.mjs';

let site;
let server;

before(async () => {
  site = sampleSite();
  server = await serve(site.folder);
});

after(() => {
  server?.stop();
  site?.remove();
});

const axe = readFileSync(createRequire(import.meta.url).resolve('axe-core/axe.min.js'), 'utf8');

async function assertAccessible(visitor, when) {
  const violations = await visitor.run(async () => (await axe.run()).violations
    .map(({ id, nodes }) => `${id}: ${nodes.map((node) => `${node.target} ${node.failureSummary}`).join('; ')}`));
  assert.deepEqual(violations, [], when);
}

const textOf = (markup) => markup.replace('&amp;', '&');
const top = ['Home', 'Glasshouses', 'Grounds', 'Visit', "What's On", 'Seeds & Shop'];

test('each item leads to a place that is there', () => {
  for (const { URL: url } of itemsOf(site.source)) {
    const [file, place] = url.split('#');
    assert.ok(existsSync(site.path(file)), url);
    if (place) assert.ok(read(site.path(file)).includes(`id="${place}"`), url);
  }
});

inEachBrowser((name, open) => {
  for (const [from, base] of [['disk', () => addressOf(site.folder)], ['a server', () => server.address]]) {
    test(`each linked page from ${from} shows the menu without a fault and tells which page it is`, async () => {
      for (const page of site.pages) {
        const visitor = await open(`${base()}/${page}`);
        assert.deepEqual(await visitor.shown(), [top], page);
        const current = (await visitor.part('Home', null, [], ['aria-current']))['aria-current'];
        assert.equal(current, page === 'index.html' ? 'page' : null, page);
        assert.deepEqual(visitor.faults, [], page);
        await visitor.close();
      }
    });
  }

  test('all of the menu opens, with each picture in its size, and stands in the way of nobody', async () => {
    const visitor = await open(`${server.address}/index.html`);
    await visitor.run(axe);
    await assertAccessible(visitor, 'closed');
    const seen = new Set(top);
    const visit = async (depth) => {
      const { items } = (await visitor.panels())[depth];
      for (const { name: item } of items.filter(({ expanded }) => expanded)) {
        await visitor.hover(item);
        await eventually(async () => assert.equal((await visitor.part(item, null, [], ['aria-expanded']))['aria-expanded'], 'true', item));
        (await visitor.shown())[depth + 1].forEach((inner) => seen.add(inner));
        await visit(depth + 1);
      }
    };
    await visit(0);
    const names = itemsOf(site.source).map(({ ItemName1 }) => textOf(ItemName1));
    assert.deepEqual([...seen].sort(), [...new Set(names)].sort());
    await assertAccessible(visitor, 'open');
    const pictures = await visitor.run(() => [...document.querySelector('[data-nbr-menu]').shadowRoot.querySelectorAll('img')]
      .map((picture) => [picture.naturalWidth, picture.naturalHeight, picture.width, picture.height]));
    assert.ok(pictures.length > 10);
    for (const [width, height, ...shown] of pictures) assert.deepEqual(shown, [width, height]);
    assert.deepEqual(visitor.faults, []);
    await visitor.close();
  });

  test('the preview page shows the whole menu', async (t) => {
    const home = mkdtempSync(join(tmpdir(), 'nimbrel-home-'));
    t.after(() => rmSync(home, { recursive: true }));
    cpSync(bin, home, { recursive: true });
    const visitor = await open(addressOf(nbrc('--home', home, 'preview', site.source).trim()));
    assert.deepEqual(await visitor.shown(), [top]);
    assert.deepEqual(visitor.faults, []);
    await visitor.close();
  });
});
