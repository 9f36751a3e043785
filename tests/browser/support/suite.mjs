// A suite: a site with menus, and tests that visit its pages. An item may be given by its name alone.
import assert from 'node:assert/strict';
import { after, before, describe, test } from 'node:test';
import { launch, open } from './browsers.mjs';
import { serve, Site } from './site.mjs';

// NIMBREL_MATRIX=all runs everything in both browsers. Otherwise Chromium runs everything, and Firefox, which takes almost
// three times as long, the suites of what browsers do differently: events, focus and layout.
export const wholeMatrix = process.env.NIMBREL_MATRIX === 'all';

// Menus whose boxes are easy to predict: fixed, without title and border.
const plain = { DisplayNameAsTitle: 2, BorderStyle: 'none' };
const asItem = (item) => (typeof item === 'string' ? { ItemName: item } : item);

export const plainMenu = (menu, items, settings) => (
  { menu: { Movable: 0, Drifty: 0, ...plain, ...menu }, items: items.map(asItem), settings });

export const opener = (ItemName, items, submenu, item) => (
  { ItemName, ...item, submenu: { SubmenuHow: 0, SubmenuWhere: 0, ...plain, ...submenu, items: items.map(asItem) } });

// Boxes may differ by a pixel.
export const near = (actual, expected, what) => (
  assert.ok(Math.abs(actual - expected) <= 1, `${what}: ${actual} for ${expected}`));

// `make` fills the site. `tests` gets `visit(title, page, body, options)`, which declares a test that visits a page and
// allows no error in it, `addressOf(page)`, and the browser's name.
export const suite = (title, make, tests) => (browserName, browser) => describe(title, () => {
  const site = new Site();
  let server;
  before(async () => {
    make(site);
    server = await serve(site.folder);
  });
  after(() => {
    server?.stop();
    site.remove();
  });
  const addressOf = (page) => `${server.address}/${page}`;
  const visit = (title, page, body, options) => test(title, async () => {
    const visitor = await open(browser(), addressOf(page), options);
    await body(visitor);
    assert.deepEqual(visitor.faults, []);
    await visitor.close();
  });
  tests(visit, addressOf, browserName);
});

// Runs suites in one browser, which is started once.
export const runIn = (browserName, suites) => describe(browserName, () => {
  let browser;
  before(async () => { browser = await launch(browserName); });
  after(() => browser?.close());
  for (const each of suites) each(browserName, () => browser);
});
