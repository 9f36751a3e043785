// Where, when and how submenus and popups open and close.
import assert from 'node:assert/strict';
import { cpSync } from 'node:fs';
import { join } from 'node:path';
import { eventually } from './support/browsers.mjs';
import { bin, nbrc } from './support/menu_file.mjs';
import { inEachVisited, logs, opener, plainMenu, servedSite, shows } from './support/plain.mjs';
import { pageOf } from './support/site.mjs';

const onClick = { SubmenuWhen: 1 };
const numbers = (count) => Array.from({ length: count }, (_, n) => n);
const within = ([low, high], value, what) => assert.ok(low <= value && value <= high, `${what}: ${value}`);

const unfolding = (names) => numbers(3).flatMap((how) => names.map(([name, UnfoldDirection, OpenDirection = 1]) => (
  opener(`${how} ${name}`, ['in', 'longer name'], { ...onClick, SubmenuHow: how, UnfoldDirection, OpenDirection }))));

const inHover = ['in hover', 'more', 'and more', 'last of all'];
const commands = (name) => (
  { JavascriptOnOpen: `log.push('${name} opens')`, JavascriptOnClose: `log.push('${name} closes')` });
const popup = { Collapsable: 1, HorizontalDistanceFromCorner: 600, VerticalDistanceFromCorner: 400 };

// Time that passes when it is told to, and a count of the events that have come.
const clock = `<script>
  let now = 1000000;
  const timers = [];
  Date.now = () => now;
  setTimeout = (call, delay) => timers.push({ call, at: now + delay });
  clearTimeout = (number) => { delete timers[number - 1]; };
  const pass = (time) => {
    now += time;
    timers.forEach(({ call, at }, n) => { if (at <= now) { delete timers[n]; call(); } });
  };
  const come = { click: 0, mousedown: 0, mousemove: 0 };
  for (const type in come) addEventListener(type, () => { come[type]++; });
</script>`;

const address = servedSite((site) => {
  const own = (OpenDirection, SubmenuWhere, SubmenuAlignment, SubmenuType) => [opener('opens', ['one', 'two'],
    { ...onClick, OpenDirection, SubmenuWhere, SubmenuAlignment, SubmenuType }, { ItemPadding: 30 })];
  site.menu('column', plainMenu({ HorizontalDistanceFromCorner: 450 }, own(2, 7, 2, 1)));
  site.menu('row', plainMenu({ MenuType: 1 }, own(1, -20, 3, 0)));

  const chain = ['wide at the right edge', 'r1', 'r2'].reduceRight((inner, name) => opener(name, [inner], onClick), 'end');
  site.menu('right', plainMenu({ CornerForPositioning: 1, HorizontalDistanceFromCorner: 0 }, [chain]), ['edges.html']);
  site.menu('middle', plainMenu({ HorizontalDistanceFromCorner: 400 }, [
    opener('wide', ['W'.repeat(55)], onClick), opener('tall', numbers(60).map(String), onClick)]), ['edges.html']);

  site.page('rtl.html', pageOf('', ' dir="rtl"'));
  site.menu('rtl', plainMenu({}, unfolding([['left', 1]])));
  const add = (name, ...menu) => site.menu(name, plainMenu(...menu), ['unfolding.html']);
  add('column_unfolds', { HorizontalDistanceFromCorner: 400 },
    unfolding([['right', 1], ['left', 2], ['down', 3], ['up', 4], ['auto right', 0], ['auto left', 0, 2]]));
  add('row_unfolds', { VerticalDistanceFromCorner: 500, MenuType: 1 }, unfolding([['auto down', 0], ['auto up', 0, 2]]));
  add('main_unfolds', { ...popup, MenuHow: 2, UnfoldDirection: 4 }, ['one', 'two']);

  site.page('times.html', pageOf(clock));
  const high = (ItemName) => ({ ItemName, ItemPadding: 10 });
  site.menu('times', plainMenu(commands('main'), [
    opener('hover', inHover.map(high), commands('hover')), opener('other', ['in other'], {}, high('other')),
    opener('click', ['in click'], onClick), 'plain',
  ]), ['times.html']);
  site.menu('sticky', plainMenu({ StickySubmenus: 1, HorizontalDistanceFromCorner: 500 },
    [opener('sticks', ['in sticks'])]), ['times.html']);

  const at = (top) => `style="position:absolute;left:200px;top:${top}px"`;
  site.page('popups.html', pageOf('<script>Date.now = () => 1000000;</script>' +
    `<a href="#" ${at(300)} onmouseover="nbrShowMenu('pop')">over</a>` +
    `<button ${at(500)} onclick="nbrShowMenu('stay')">press</button>`));
  site.menu('pop', plainMenu({ ...popup, ...commands('pop') }, ['plain', opener('opens', ['inner'])]), ['popups.html']);
  site.menu('stay', plainMenu({ ...popup, StickySubmenus: 1 }, ['stays']), ['popups.html']);

  for (const part of ['libraries', 'dot.gif', 'preview-back.jpg']) cpSync(join(bin, part), site.path(part), { recursive: true });
  nbrc('--home', site.folder, 'preview', site.path('pop.nbr'));
});

// The panel that has just opened, as its unfolding begins: the edge at which it is covered (0 top, 1 right, 2 bottom,
// 3 left) and how many of its own sizes it is off; null if it is there at once. Name: a popup, or an item to press.
const beginning = (visitor, name) => visitor.run((name) => {
  nbrShowMenu(name);
  partOf(name)?.click();
  const panel = all('.panel').find((panel) => panel.getAnimations().length);
  if (!panel) return null;
  const [animation] = panel.getAnimations();
  animation.pause();
  animation.currentTime = 0;
  const begin = boxOf(panel);
  const covered = getComputedStyle(panel).clipPath.slice('inset('.length).split(' ').findIndex((part) => part.startsWith('100%'));
  animation.finish();
  const end = boxOf(panel);
  return [covered, Math.round((begin.left - end.left) / end.width), Math.round((begin.top - end.top) / end.height)];
}, name);
const uncovered = { right: [1, 0, 0], left: [3, 0, 0], down: [2, 0, 0], up: [0, 0, 0] };
const pushed = { right: [3, -1, 0], left: [1, 1, 0], down: [0, 0, -1], up: [2, 0, 1] };

inEachVisited(address, (visit, browser) => {
  visit('a submenu has its own side, distance, alignment and layout', 'column.html', async (visitor) => {
    await visitor.click('opens');
    const [{ box: column }, { box: beside, items: [left, right] }] = await visitor.panels();
    assert.deepEqual([beside.right, beside.bottom].map(Math.round), [column.left - 7, column.bottom].map(Math.round));
    assert.ok(left.box.right <= right.box.left);
    assert.deepEqual(await visitor.told('one', '.list', 'aria-orientation'), ['horizontal']);
    await visitor.page.goto(address('row.html'));
    await visitor.click('opens');
    const [{ box: row }, { box: below, items: [upper, lower] }] = await visitor.panels();
    assert.equal(Math.round(below.top), Math.round(row.bottom) - 20);
    within([-1, 1], below.left - row.left - (row.right - below.right), 'centred');
    assert.ok(upper.box.bottom <= lower.box.top);
  });

  visit('at the edges Auto turns round for the whole chain, moves in and scrolls', 'edges.html', async (visitor) => {
    const opened = async (menu, ...names) => {
      for (const name of names) await visitor.click(name);
      return (await visitor.panels()).filter((panel) => panel.menu === menu).map(({ box }) => box);
    };
    const right = await opened('right', 'wide at the right edge', 'r1', 'r2');
    for (const n of [1, 2, 3]) within([0, 1], right[n - 1].left - right[n].right + 0.5, `level ${n}`);
    const [, wide] = await opened('middle', 'wide');
    within([999, 1001], wide.right, 'moved in');
    const [, tall] = await opened('middle', 'tall');
    assert.deepEqual([tall.top, tall.bottom], [0, 700]);
    await visitor.hover('3');
    await visitor.mouse.wheel({ deltaY: 5000 });
    await eventually(async () => within([650, 700], (await visitor.box('59')).bottom, 'scrolled'));
  });

  visit('how submenus and main menus appear, towards each side', 'unfolding.html', async (visitor) => {
    for (const [how, begins] of [{}, uncovered, pushed].entries()) {
      for (const name of ['right', 'left', 'down', 'up', 'auto right', 'auto left', 'auto down', 'auto up']) {
        assert.deepEqual(await beginning(visitor, `${how} ${name}`), begins[name.replace('auto ', '')] ?? null, `${how} ${name}`);
      }
    }
    assert.deepEqual(await beginning(visitor, 'main_unfolds'), pushed.up);
    await visitor.page.goto(address('rtl.html'));
    assert.deepEqual(await beginning(visitor, '1 left'), uncovered.left, 'mirrored');
  });

  // The protocol for Firefox has no way to ask for this.
  if (browser === 'Chromium') {
    visit('who prefers less motion sees none', 'unfolding.html', async (visitor) => {
      for (const name of ['2 down', 'main_unfolds']) assert.equal(await beginning(visitor, name), null);
    }, { prepare: (page) => page.emulateMediaFeatures([{ name: 'prefers-reduced-motion', value: 'reduce' }]) });
  }

  // What the mouse does at an item or a point of the page with the clock, and what is open some times behind the event:
  // [milliseconds, the items of all panels but the first].
  const acting = (visitor) => async (event, at, ...looks) => {
    const before = await visitor.run((event) => come[event], event);
    await visitor.mouse[event.replace('mouse', '')](...(typeof at === 'string' ? await visitor.centre(at) : at));
    await eventually(async () => assert.ok(await visitor.run((event) => come[event], event) > before, event));
    for (const [time, ...opened] of looks) {
      await visitor.run((time) => pass(time), time);
      assert.deepEqual((await visitor.shown()).slice(1).flat(), opened, `${event} ${at}, ${time}`);
    }
  };

  visit('resting opens and leaving closes after a while, a press at once', 'times.html', async (visitor) => {
    const does = acting(visitor);
    const open = [...inHover, 'sticks'];
    const away = [800, 600];
    await does('mousemove', 'hover', [119, 'sticks'], [1, ...open]);
    await does('mousemove', away, [499, ...open], [1, 'sticks']);
    await logs(visitor, 'main opens', 'hover opens', 'hover closes');
    await does('mousemove', 'hover', [120, ...open]);
    await does('mousemove', away, [499, ...open]);
    await does('mousemove', 'hover', [1, ...open]);
    await does('click', 'hover', [0, ...open]); // too soon to close
    await does('mousemove', 'plain', [120, 'sticks']);
    await does('mousemove', 'hover', [120, ...open], [501, ...open]);
    await does('click', 'hover', [0, 'sticks']);
    await does('mousemove', 'click', [1000, 'sticks']);
    await does('mousedown', [], [0, 'in click', 'sticks']);
    await visitor.mouse.up();
    await does('mousemove', 'sticks', [120, 'in click', 'sticks', 'in sticks'], [500, 'sticks', 'in sticks']);
    await does('mousemove', away, [1000, 'sticks', 'in sticks']);
    await visitor.mouse.click(...away);
    await shows(visitor, ['hover', 'other', 'click', 'plain'], ['sticks']);
    assert.equal(await visitor.run(() => all('.panel').length), 2, 'what closes leaves no nodes');
  });

  visit('on the way to a submenu it stays open for a while, elsewhere another opens', 'times.html', async (visitor) => {
    const does = acting(visitor);
    const open = [...inHover, 'sticks'];
    await visitor.click('hover');
    const [from, to] = [await visitor.centre('hover'), await visitor.centre('last of all')];
    const onOther = ((await visitor.box('other')).top + 5 - from[1]) / (to[1] - from[1]);
    const way = (part) => from.map((start, axis) => start + (to[axis] - start) * part);
    const cross = async (...looks) => {
      await visitor.mouse.move(from[0] - 9, from[1]);
      await does('mousemove', 'hover', [120, ...open]);
      await does('mousemove', way(onOther / 2));
      await does('mousemove', way(onOther), ...looks);
    };
    await cross([399, ...open]);
    await does('mousemove', to, [1000, ...open]);
    await cross([399, ...open], [1, 'in other', 'sticks']);
    await cross([200, ...open]);
    await does('mousemove', 'other', [119, ...open], [1, 'in other', 'sticks']);
  });

  visit('a popup shows when called: at the pointer, or at its own place', 'popups.html', async (visitor) => {
    const pop = ['plain', 'opens'];
    await shows(visitor);
    let left = 200;
    const call = async (...more) => {
      await visitor.mouse.move(++left, 305);
      await shows(visitor, pop, ...more);
    };
    await call();
    const [{ box }] = await visitor.panels();
    assert.deepEqual([box.left, box.top], [left, 305]);
    assert.deepEqual(await visitor.told('plain', '.list', 'role'), ['menu']);
    await visitor.mouse.move(210, 310);
    await eventually(async () => assert.match((await visitor.told('plain', '', 'class'))[0], / on/));
    await visitor.press('Escape');
    await shows(visitor);
    await visitor.run((place) => document.querySelector('a').dispatchEvent(new MouseEvent('mouseover', place)),
      { clientX: 210, clientY: 310 });
    assert.deepEqual(await visitor.shown(), [], 'the pointer above the link only rests');
    await visitor.mouse.move(10, 10);
    for (const leave of [() => visitor.mouse.click(800, 100), () => visitor.mouse.move(800, 100)]) {
      await call();
      await visitor.hover('opens');
      await shows(visitor, pop, ['inner']);
      await leave();
      await shows(visitor);
    }
    await call();
    await visitor.mouse.move(100, 600); // it was never reached
    await shows(visitor);
    await logs(visitor, ...Array(4).fill(['pop opens', 'pop closes']).flat());
    await visitor.run(() => { nbrShowMenu('pop'); nbrShowMenu('no such'); });
    const [{ box: own }] = await visitor.panels();
    assert.deepEqual([own.left, own.top], [600, 400]);
    await visitor.mouse.click(210, 510);
    await shows(visitor, ['stays']);
    await call(['stays']);
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
    const button = await visitor.run(() => boxOf(document.querySelector('button')));
    within([button.bottom - 1, button.bottom + 1], box.top, 'below the button');
    await visitor.press('Escape');
    await shows(visitor);
    assert.equal(await visitor.focused(), 'press');
  });

  visit('the preview page of a popup opens it by its link', 'preview/preview.html', async (visitor) => {
    await shows(visitor);
    await visitor.page.hover('a[href="#"]');
    await shows(visitor, ['plain', 'opens']);
  });
});
