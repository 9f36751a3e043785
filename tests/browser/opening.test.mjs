// Where, when and how submenus and popups open and close.
import assert from 'node:assert/strict';
import { cpSync, mkdtempSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { test } from 'node:test';
import { eventually, inEachBrowser } from './support/browsers.mjs';
import { bin, nbrc, writeMenuFile } from './support/menu_file.mjs';
import { loggingPage, logs, opener, plainMenu, servedSite, shows, visits } from './support/plain.mjs';
import { addressOf } from './support/site.mjs';

const onClick = { SubmenuWhen: 1 };
const numbers = (count) => Array.from({ length: count }, (_, n) => n);
const within = ([low, high], value, what) => assert.ok(low <= value && value <= high, `${what}: ${value}`);

// Each side with each alignment, at four distances.
const distances = [0, 30, -20, 7];
const places = numbers(3).flatMap((side) => distances
  .map((distance, align) => ({ name: `at ${side}${align}`, side, distance, align })));
const placeItems = [...places.map(({ name, side, distance, align }) => opener(name, ['in', 'longer name'],
  { ...onClick, OpenDirection: side, SubmenuWhere: distance, SubmenuAlignment: align }, { ItemPadding: 6 })),
...numbers(2).map((type) => opener(`type ${type}`, ['one', 'two'], { ...onClick, SubmenuType: type }))];

const unfolding = (names) => numbers(3).flatMap((how) => names.map(([name, direction]) => opener(`${how} ${name}`,
  ['in', 'longer name'], { ...onClick, SubmenuHow: how, UnfoldDirection: direction, ...above(name) })));
const directions = [['right', 1], ['left', 2], ['down', 3], ['up', 4]];
const above = (name) => ({ OpenDirection: ['auto left', 'auto up'].includes(name) ? 2 : 1 });

const inHover = ['in hover', 'more', 'and more', 'last of all'];
const log = (text) => `log.push('${text}')`;
const commands = (name) => ({ JavascriptOnOpen: log(`${name} opens`), JavascriptOnClose: log(`${name} closes`) });
const popup = { Collapsable: 1, HorizontalDistanceFromCorner: 600, VerticalDistanceFromCorner: 400 };

const address = servedSite((site) => {
  site.menu('column', plainMenu({ CornerForPositioning: 4, HorizontalDistanceFromCorner: 450 }, placeItems));
  site.menu('row', plainMenu({ MenuType: 1, CornerForPositioning: 5, VerticalDistanceFromCorner: 350 }, placeItems));

  const chain = (names, changes) => names.reduceRight((inner, name) => opener(name, [inner], changes), 'end');
  site.page('edges.html');
  site.menu('right', plainMenu({ CornerForPositioning: 1, HorizontalDistanceFromCorner: 0 },
    [chain(['wide at the right edge', 'r1', 'r2'], onClick)]), ['edges.html']);
  site.menu('bottom', plainMenu({ CornerForPositioning: 3, VerticalDistanceFromCorner: 0, MenuType: 1 },
    [{ ...chain(['bottom', 'b1', 'b2'], { ...onClick, SubmenuType: 1 }), ItemPadding: 8 }]), ['edges.html']);
  site.menu('middle', plainMenu({ HorizontalDistanceFromCorner: 400, VerticalDistanceFromCorner: 550 }, [
    opener('wide', ['W'.repeat(55)], onClick), opener('fixed', ['W'.repeat(55)], { ...onClick, OpenDirection: 1 }),
    opener('low', numbers(12).map(String), onClick), opener('tall', numbers(60).map(String), onClick),
  ]), ['edges.html']);

  site.page('unfolding.html');
  const add = (name, ...menu) => site.menu(name, plainMenu(...menu), ['unfolding.html']);
  add('column_unfolds', { HorizontalDistanceFromCorner: 400 },
    unfolding([...directions, ['auto right', 0], ['auto left', 0]]));
  add('row_unfolds', { VerticalDistanceFromCorner: 500, MenuType: 1 }, unfolding([['auto down', 0], ['auto up', 0]]));
  for (const MenuHow of numbers(3)) {
    for (const [name, UnfoldDirection] of directions) {
      add(`main_${MenuHow}_${name}`, { ...popup, MenuHow, UnfoldDirection }, ['one', 'two']);
    }
  }

  site.page('times.html', loggingPage());
  const padding = { ItemPadding: 10 };
  site.menu('times', plainMenu(commands('main'), [
    opener('hover', inHover.map((ItemName) => ({ ItemName, ...padding })), commands('hover'), padding),
    opener('other', ['in other'], {}, padding), opener('click', ['in click'], onClick, padding), 'plain',
  ]), ['times.html']);
  site.menu('sticky', plainMenu({ StickySubmenus: 1, HorizontalDistanceFromCorner: 500 },
    [opener('sticks', ['in sticks'])]), ['times.html']);

  const at = (top) => `style="position:absolute;left:200px;top:${top}px"`;
  site.page('popups.html', loggingPage(`<a href="#" ${at(300)} onmouseover="nbrShowMenu('pop')">over</a>` +
    `<button ${at(500)} onclick="nbrShowMenu('stay')">press</button>`));
  const pop = [opener('first', ['in first']), 'second'];
  site.menu('pop', plainMenu({ ...popup, ...commands('pop') }, pop), ['popups.html']);
  site.menu('stay', plainMenu({ ...popup, StickySubmenus: 1 }, ['stays']), ['popups.html']);
});

// The last panel as its unfolding begins: the edge at which it is covered (0 top, 1 right, 2 bottom, 3 left) and how
// many of its own sizes it is off; null if it is there at once. `open` runs in the page, so that no time passes.
const beginning = (visitor, open) => visitor.run(new Function(`${open};
  const panel = [...document.querySelectorAll('[data-nbr-menu]')].flatMap((host) => (
    [...host.shadowRoot.querySelectorAll('.panel')])).find((panel) => panel.getAnimations().length);
  if (!panel) return null;
  const [animation] = panel.getAnimations();
  animation.pause();
  animation.currentTime = 0;
  const begin = panel.getBoundingClientRect();
  const inset = getComputedStyle(panel).clipPath.slice('inset('.length).split(' ');
  const covered = inset.findIndex((part) => part.startsWith('100%'));
  animation.finish();
  const end = panel.getBoundingClientRect();
  const off = [(begin.left - end.left) / end.width, (begin.top - end.top) / end.height];
  return [covered, ...off.map(Math.round)];`));
const pressing = (name) => `[...document.querySelectorAll('[data-nbr-menu]')].flatMap((host) => [...host.shadowRoot
  .querySelectorAll('.item')]).find((item) => item.textContent === '${name}').click()`;
const uncovered = { right: [1, 0, 0], left: [3, 0, 0], down: [2, 0, 0], up: [0, 0, 0] };
const pushed = { right: [3, -1, 0], left: [1, 1, 0], down: [0, 0, -1], up: [2, 0, 1] };
const begins = [{}, uncovered, pushed];

// What is open some time after the pointer has come upon an item of the first menu, told by the page's own clock.
async function openAfter(visitor, name, delay, move) {
  await visitor.run((name, delay) => {
    const root = menu();
    const opened = () => [...root.querySelectorAll('.item[aria-expanded=true]')].map((item) => item.textContent);
    window.seen = new Promise((done) => root.addEventListener('pointerover', function over({ target }) {
      if (target.textContent !== name) return;
      root.removeEventListener('pointerover', over, true);
      setTimeout(() => done(opened()), delay);
    }, true));
  }, name, delay);
  await move();
  return visitor.run(() => window.seen);
}

inEachBrowser((browser, open) => {
  const visit = visits(address, open);
  test('side, distance and alignment of submenus, beside a column and below a row; their own layout', async () => {
    const side = ['left', 'right', 'width'];
    const down = ['top', 'bottom', 'height'];
    for (const [page, [from, to, size], [start, end, extent]] of [['column', side, down], ['row', down, side]]) {
      const visitor = await open(address(`${page}.html`));
      for (const { name, side, distance, align } of places) {
        await visitor.click(name);
        const [{ box: parent, items }, { box }] = await visitor.panels();
        const item = items.find((item) => item.name === name).box;
        const wanted = side === 2 ? parent[from] - distance - box[size] : parent[to] + distance;
        const far = parent[end] - box[extent];
        const aligned = [item[start], parent[start], far, (parent[start] + far) / 2][align];
        within([wanted - 1, wanted + 1], box[from], `${page} ${name}`);
        within([aligned - 1, aligned + 1], box[start], `${page} ${name}, aligned`);
        await visitor.press('Escape');
      }
      const layouts = [['left', 'top', 'vertical'], ['top', 'left', 'horizontal']];
      for (const [type, [same, different, orientation]] of layouts.entries()) {
        await visitor.click(`type ${type}`);
        const [one, two] = (await visitor.panels())[1].items.map(({ box }) => box);
        assert.ok(one[same] === two[same] && one[different] < two[different], `${page} ${orientation}`);
        assert.equal((await visitor.part('one', '.list', [], ['aria-orientation']))['aria-orientation'], orientation);
        await visitor.press('Escape');
      }
      await visitor.close();
    }
  });

  visit('at the edges Auto turns round, moves in and scrolls; a fixed side stays', 'edges.html', async (visitor) => {
    const opened = async (...names) => {
      for (const name of names) await visitor.click(name);
      const boxes = (await visitor.panels()).map(({ menu, box }) => ({ menu, box }));
      const { menu } = boxes.find((_, index) => boxes[index + 1]?.menu === boxes[index].menu);
      return boxes.filter((panel) => panel.menu === menu).map(({ box }) => box);
    };
    const right = await opened('wide at the right edge', 'r1', 'r2');
    for (const n of [1, 2, 3]) within([0, 1], right[n - 1].left - right[n].right + 0.5, `right, level ${n}`);
    const bottom = await opened('bottom', 'b1', 'b2');
    for (const n of [1, 2, 3]) within([0, 1], bottom[n - 1].top - bottom[n].bottom + 0.5, `bottom, level ${n}`);
    const [, wide] = await opened('wide');
    assert.ok(wide.left > 0 && wide.left < 400);
    within([999, 1001], wide.right, 'moved in');
    assert.equal(await visitor.run(() => document.scrollingElement.scrollWidth), 1000);
    const [main, fixed] = await opened('fixed');
    within([main.right - 1, main.right + 1], fixed.left, 'fixed side');
    assert.ok(fixed.right > 1000);
    within([699, 700], (await opened('low'))[1].bottom, 'moved up');
    const [, tall] = await opened('tall');
    assert.deepEqual([tall.top, tall.bottom], [0, 700]);
    await visitor.hover('3');
    await visitor.mouse.wheel({ deltaY: 5000 });
    await eventually(async () => within([650, 700], (await visitor.part('59')).bottom, 'scrolled'));
  });

  visit('how submenus and main menus appear, towards each side', 'unfolding.html', async (visitor) => {
    for (const how of numbers(3)) {
      for (const name of ['right', 'left', 'down', 'up', 'auto right', 'auto left', 'auto down', 'auto up']) {
        const wanted = begins[how][name.replace('auto ', '')] ?? null;
        assert.deepEqual(await beginning(visitor, pressing(`${how} ${name}`)), wanted, `submenu ${how} ${name}`);
        if (name.includes('auto')) continue;
        const main = `main_${how}_${name}`;
        assert.deepEqual(await beginning(visitor, `nbrShowMenu('${main}')`), wanted, main);
      }
    }
  });

  // The protocol for Firefox has no way to ask for this.
  if (browser === 'Chromium') {
    visit('who prefers less motion sees none', 'unfolding.html', async (visitor) => {
      assert.equal(await beginning(visitor, pressing('2 down')), null);
      assert.equal(await beginning(visitor, "nbrShowMenu('main_1_up')"), null);
    }, { prepare: (page) => page.emulateMediaFeatures([{ name: 'prefers-reduced-motion', value: 'reduce' }]) });
  }

  visit('resting opens after a while, a press at once; what closes leaves no nodes', 'times.html', async (visitor) => {
    const main = ['hover', 'other', 'click', 'plain'];
    const sticky = ['sticks'];
    const nodes = () => visitor.run(() => menu().querySelectorAll('*').length);
    const before = await nodes();
    await visitor.run(() => { const start = Date.now(); Date.now = () => start + (window.later ?? 0); });
    assert.deepEqual(await openAfter(visitor, 'hover', 60, () => visitor.hover('hover')), []);
    await shows(visitor, main, inHover, sticky);
    await visitor.click('hover');
    await shows(visitor, main, inHover, sticky);
    await visitor.run(() => { window.later = 600; });
    await visitor.click('hover');
    await shows(visitor, main, sticky);
    assert.equal(await nodes(), before);
    assert.deepEqual(await openAfter(visitor, 'click', 300, () => visitor.hover('click')), []);
    await visitor.mouse.down();
    assert.deepEqual(await visitor.shown(), [main, ['in click'], sticky]);
    await visitor.mouse.up();
    await logs(visitor, 'main opens', 'hover opens', 'hover closes');
    await visitor.hover('sticks');
    await shows(visitor, main, sticky, ['in sticks']);
    await visitor.hover('other');
    await shows(visitor, main, ['in other'], sticky, ['in sticks']);
    await visitor.mouse.move(800, 600);
    await shows(visitor, main, sticky, ['in sticks']);
    await visitor.mouse.click(800, 600);
    await shows(visitor, main, sticky);
  });

  visit('across other items a submenu stays open, straight down another opens', 'times.html', async (visitor) => {
    await visitor.hover('hover');
    await eventually(async () => assert.ok(await visitor.part('last of all')));
    const from = await visitor.centre('hover');
    const to = await visitor.centre('last of all');
    const other = await visitor.part('other');
    const share = (other.top + 5 - from[1]) / (to[1] - from[1]);
    const at = (part) => from.map((start, axis) => start + (to[axis] - start) * part);
    assert.ok(at(share)[0] < other.right, 'the way crosses the other item');
    assert.deepEqual(await openAfter(visitor, 'other', 250, async () => {
      await visitor.mouse.move(...at(share * 0.5));
      await visitor.mouse.move(...at(share));
    }), ['hover']);
    await visitor.mouse.move(...to);
    assert.deepEqual(await openAfter(visitor, 'more', 250, () => visitor.hover('more')), ['hover']);
    await visitor.hover('hover');
    assert.deepEqual(await openAfter(visitor, 'other', 250, () => visitor.hover('other', { steps: 5 })), ['other']);
  });

  visit('a popup shows when called: at the pointer, or at its own place', 'popups.html', async (visitor) => {
    const pop = ['first', 'second'];
    await shows(visitor);
    let left = 200;
    const call = async () => {
      await visitor.mouse.move(++left, 305);
      await shows(visitor, pop);
    };
    await call();
    const [{ box, role }] = await visitor.panels();
    assert.deepEqual([box.left, box.top, role], [left, 305, 'menu']);
    await visitor.press('Escape');
    await shows(visitor);
    await visitor.mouse.move(10, 10);
    await call();
    await visitor.hover('first');
    await shows(visitor, pop, ['in first']);
    await visitor.mouse.click(800, 100);
    await shows(visitor);
    await call();
    await visitor.hover('second');
    await visitor.mouse.move(800, 100);
    await shows(visitor);
    await call();
    await visitor.mouse.move(100, 600);
    await shows(visitor);
    await logs(visitor, ...Array(4).fill(['pop opens', 'pop closes']).flat());
    await visitor.run(() => { nbrShowMenu('pop'); nbrShowMenu('no such'); });
    const [{ box: own }] = await visitor.panels();
    assert.deepEqual([own.left, own.top], [600, 400]);
    await visitor.hover('second');
    await visitor.press('Escape');
    await visitor.mouse.click(210, 510);
    await shows(visitor, ['stays']);
    await visitor.mouse.move(++left, 305);
    await shows(visitor, pop, ['in first'], ['stays']);
    await visitor.mouse.move(800, 100);
    await shows(visitor, ['stays']);
    await visitor.mouse.click(800, 100);
    await shows(visitor);
  });

  visit('by keyboard a popup is below its caller and borrows the focus', 'popups.html', async (visitor) => {
    await visitor.run(() => document.querySelector('button').focus());
    await visitor.press('Enter');
    assert.equal(await visitor.focused(), 'stays');
    const [{ box }] = await visitor.panels();
    const button = await visitor.run(() => document.querySelector('button').getBoundingClientRect().bottom);
    within([button - 1, button + 1], box.top, 'below the button');
    await visitor.press('Escape');
    await shows(visitor);
    assert.equal(await visitor.focused(), 'press');
  });

  test('the preview page of a popup opens it by its link', async (t) => {
    const home = mkdtempSync(join(tmpdir(), 'nimbrel-home-'));
    t.after(() => rmSync(home, { recursive: true }));
    cpSync(bin, home, { recursive: true });
    writeMenuFile(join(home, 'popup.nbr'), plainMenu(popup, ['one', 'two']));
    const visitor = await open(addressOf(nbrc('--home', home, 'preview', join(home, 'popup.nbr')).trim()));
    await shows(visitor);
    await visitor.page.hover('a[href="#"]');
    await shows(visitor, ['one', 'two']);
    assert.deepEqual(visitor.faults, []);
    await visitor.close();
  });
});
