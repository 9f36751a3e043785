// Menus whose boxes are easily told: they stand still, without titles and borders. An item may be its name alone.
import assert from 'node:assert/strict';
import { after, before, test } from 'node:test';
import { eventually, inEachBrowser } from './browsers.mjs';
import { serve, Site } from './site.mjs';

const plain = { DisplayNameAsTitle: 2, BorderStyle: 'none' };
const asItem = (item) => (typeof item === 'string' ? { ItemName: item } : item);

export const plainMenu = (menu, items, settings) => (
  { menu: { Movable: 0, Drifty: 0, ...plain, ...menu }, items: items.map(asItem), settings });

export const opener = (ItemName, items, submenu, item) => (
  { ItemName, ...item, submenu: { SubmenuHow: 0, SubmenuWhere: 0, ...plain, ...submenu, items: items.map(asItem) } });

// The site of a test file and its server, while its tests run; gives the address of a page.
export function servedSite(make, site = new Site()) {
  let server;
  before(async () => {
    make(site);
    server = await serve(site.folder);
  });
  after(() => {
    server?.stop();
    site.remove();
  });
  return (page) => `${server.address}/${page}`;
}

export const shows = (visitor, ...panels) => eventually(async () => assert.deepEqual(await visitor.shown(), panels));

export const logs = (visitor, ...lines) => (
  eventually(async () => assert.deepEqual(await visitor.run(() => log), lines)));

// Tests in each browser, of the form `visit(title, page, body)`: each visits a page, in which nothing may go wrong.
export const inEachVisited = (address, tests) => inEachBrowser((browser, open) => {
  const visit = (title, page, body, options) => test(title, async () => {
    const visitor = await open(address(page), options);
    await body(visitor);
    assert.deepEqual(visitor.faults, []);
    await visitor.close();
  });
  tests(visit, browser, open);
});
