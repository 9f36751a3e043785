// Menus whose boxes are easily told: they stand still, without titles and borders. An item may be its name alone.
import assert from 'node:assert/strict';
import { after, before, test } from 'node:test';
import { eventually } from './browsers.mjs';
import { serve, Site } from './site.mjs';

const plain = { DisplayNameAsTitle: 2, BorderStyle: 'none' };
const asItem = (item) => (typeof item === 'string' ? { ItemName: item } : item);

export const plainMenu = (menu, items, settings) => (
  { menu: { Movable: 0, Drifty: 0, ...plain, ...menu }, items: items.map(asItem), settings });

export const opener = (ItemName, items, submenu, item) => (
  { ItemName, ...item, submenu: { SubmenuHow: 0, SubmenuWhere: 0, ...plain, ...submenu, items: items.map(asItem) } });

// A page that keeps in `log` what the menu's commands say; `menu()` is the shadow tree of the first menu.
const inPage = "log = []; menu = () => document.querySelector('[data-nbr-menu]').shadowRoot;";
export const loggingPage = (body = '', more = '') => '<!DOCTYPE html><html lang="en"' + more +
  `><head><title>Page</title><script>${inPage}</script></head><body>${body}</body></html>`;

// The site of a test file and its server, while its tests run.
export function servedSite(make) {
  const served = {};
  before(async () => {
    served.site = new Site();
    make(served.site);
    served.server = await serve(served.site.folder);
  });
  after(() => {
    served.server?.stop();
    served.site?.remove();
  });
  return (page) => `${served.server.address}/${page}`;
}

export const shows = (visitor, ...panels) => eventually(async () => assert.deepEqual(await visitor.shown(), panels));

export const logs = (visitor, ...lines) => (
  eventually(async () => assert.deepEqual(await visitor.run(() => log), lines)));

// A form for tests that each visit a page of the site, in which nothing may go wrong.
export const visits = (address, open) => (title, page, body, options) => test(title, async () => {
  const visitor = await open(address(page), options);
  await body(visitor);
  assert.deepEqual(visitor.faults, []);
  await visitor.close();
});
