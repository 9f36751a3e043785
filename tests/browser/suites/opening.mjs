// Where, when and how submenus and popups open and close.
import assert from 'node:assert/strict';
import { eventually } from '../support/browsers.mjs';
import { pageOf } from '../support/site.mjs';
import { near, opener, plainMenu, suite } from '../support/suite.mjs';

const onClick = { SubmenuWhen: 1 };
const unfolds = (name, SubmenuHow, UnfoldDirection, OpenDirection = 1) => (
  opener(name, [`in ${name}`], { ...onClick, SubmenuHow, UnfoldDirection, OpenDirection }));
const logged = (name) => ({ JavascriptOnOpen: `log.push('${name} opens')`, JavascriptOnClose: `log.push('${name} closes')` });
const popup = { Collapsable: 1, HorizontalDistanceFromCorner: 600, VerticalDistanceFromCorner: 400 };

// Replaces the page's clock by one that the test moves.
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
</script>`;

export default suite('opening and closing', (site) => {
  site.menu('own', plainMenu({ HorizontalDistanceFromCorner: 450 }, [opener('opens', ['one', 'two'],
    { ...onClick, OpenDirection: 2, SubmenuWhere: 7, SubmenuAlignment: 2, SubmenuType: 1 }, { ItemPadding: 30 })]));

  const chain = ['wide at the right edge', 'r1', 'r2'].reduceRight((inner, name) => opener(name, [inner], onClick), 'end');
  site.menu('right', plainMenu({ CornerForPositioning: 1, HorizontalDistanceFromCorner: 0 }, [chain]), ['edges.html']);
  site.menu('middle', plainMenu({ HorizontalDistanceFromCorner: 400 }, [opener('wide', ['W'.repeat(55)], onClick),
    opener('tall', Array.from({ length: 60 }, (_, n) => `${n}`), onClick)]), ['edges.html']);

  site.page('rtl.html', pageOf('', ' dir="rtl"'));
  site.menu('rtl', plainMenu({}, [unfolds('mirrored', 2, 1)]));
  site.menu('unfolding', plainMenu({ MenuType: 1, VerticalDistanceFromCorner: 500 },
    [unfolds('at once', 0, 1), unfolds('uncovered', 1, 0), unfolds('up', 2, 0, 2), unfolds('right', 2, 1)]));
  site.menu('main', plainMenu({ ...popup, MenuHow: 2, UnfoldDirection: 4 }, ['one', 'two']), ['unfolding.html']);

  site.page('times.html', pageOf(clock));
  const high = (ItemName) => ({ ItemName, ItemPadding: 10 });
  site.menu('times', plainMenu(logged('main'), [
    opener('hover', ['in hover', 'more', 'and more', 'last'].map(high), logged('hover')),
    opener('other', ['in other'], {}, high('other')), opener('click', ['in click'], onClick), 'plain',
  ]), ['times.html']);
  site.menu('sticky', plainMenu({ StickySubmenus: 1, HorizontalDistanceFromCorner: 500 },
    [opener('sticks', ['in sticks'])]), ['times.html']);

  const at = (top) => `style="position:absolute;left:200px;top:${top}px"`;
  site.page('popups.html', pageOf('<script>Date.now = () => 1000000;</script>' +
    `<a href="#" ${at(300)} onmouseover="nbrShowMenu('pop')">over</a>` +
    `<button ${at(500)} onclick="nbrShowMenu('stay')">press</button>`));
  site.menu('pop', plainMenu({ ...popup, ...logged('pop') }, ['plain', opener('opens', ['inner'])]), ['popups.html']);
  site.menu('stay', plainMenu({ ...popup, StickySubmenus: 1 }, ['stays']), ['popups.html']);
}, (visit, addressOf, browserName) => {
  visit('a submenu has its own side, distance, alignment and layout', 'own.html', async (visitor) => {
    await visitor.click('opens');
    const [{ box: column }, { box: beside, items: [left, right] }] = await visitor.panels();
    assert.deepEqual([beside.right, beside.bottom].map(Math.round), [column.left - 7, column.bottom].map(Math.round));
    assert.ok(left.box.right <= right.box.left);
    assert.deepEqual(await visitor.look('one', '.list', 'aria-orientation'), ['horizontal']);
  });

  visit('at the edges of the window submenus change sides, move in and scroll', 'edges.html', async (visitor) => {
    const opens = async (menu, ...names) => {
      for (const name of names) await visitor.click(name);
      return (await visitor.panels()).filter((panel) => panel.menu === menu).map(({ box }) => box);
    };
    const right = await opens('right', 'wide at the right edge', 'r1', 'r2');
    for (const n of [1, 2, 3]) near(right[n].right, right[n - 1].left, `level ${n}`);
    near((await opens('middle', 'wide'))[1].right, 1000, 'moved in');
    const [, tall] = await opens('middle', 'tall');
    assert.deepEqual([tall.top, tall.bottom], [0, 700]);
    await visitor.hover('3');
    await visitor.page.mouse.wheel({ deltaY: 5000 });
    await eventually(async () => near((await visitor.box('59')).bottom, 700, 'scrolled'));
  });

  // The shift with which a panel begins to unfold, as the signs of its left and top; null if it appears at once. Calls a
  // popup, or clicks an item.
  const shiftOf = (visitor, name) => visitor.run((name) => {
    nbrShowMenu(name);
    partOf(name)?.click();
    const panel = all('.panel').find((panel) => panel.getAnimations().length);
    if (!panel) return null;
    const [animation] = panel.getAnimations();
    animation.pause();
    const from = boxOf(panel);
    animation.finish();
    const to = boxOf(panel);
    return [from.left - to.left, from.top - to.top].map(Math.sign);
  }, name);

  visit('panels unfold in their direction', 'unfolding.html', async (visitor) => {
    const shifts = { 'at once': null, uncovered: [0, 0], up: [0, 1], right: [-1, 0], main: [0, 1] };
    for (const [name, wanted] of Object.entries(shifts)) assert.deepEqual(await shiftOf(visitor, name), wanted, name);
    await visitor.page.goto(addressOf('rtl.html'));
    assert.deepEqual(await shiftOf(visitor, 'mirrored'), [1, 0]);
  });

  // WebDriver BiDi cannot emulate media features in Firefox.
  if (browserName === 'Chromium') {
    visit('with reduced motion nothing unfolds', 'unfolding.html', async (visitor) => {
      for (const name of ['right', 'main']) assert.equal(await shiftOf(visitor, name), null);
    }, { prepare: (page) => page.emulateMediaFeatures([{ name: 'prefers-reduced-motion', value: 'reduce' }]) });
  }

  const [closed, open] = ['hover/sticks', 'hover/in hover/sticks'];
  const away = [800, 600];

  visit('resting opens and leaving closes after a delay, a press opens at once', 'times.html', async (visitor) => {
    await visitor.follow(['hover', 'hover', closed, 119], ['hover', 'hover', open, 1], ['hover', away, closed, 500]);
    await visitor.logs('main opens', 'hover opens', 'hover closes');
    await visitor.follow(
      ['hover', 'hover', open, 120],
      ['click', 'hover', open, 0], // too early to close
      ['hover', 'plain', closed, 120],
      ['hover', 'hover', open, 120],
      ['hover', 'hover', open, 501],
      ['click', 'hover', closed, 0],
      ['hover', 'click', closed, 1000]);
    await visitor.page.mouse.down();
    await visitor.shows('hover/in click/sticks');
    await visitor.page.mouse.up();
    await visitor.follow(
      ['hover', 'sticks', 'hover/in click/sticks/in sticks', 120],
      ['hover', 'sticks', 'hover/sticks/in sticks', 380],
      ['hover', away, 'hover/sticks/in sticks', 1000],
      ['click', away, closed, 0]);
  });

  visit('a submenu stays open for a while on the way to it, otherwise another item opens', 'times.html', async (visitor) => {
    await visitor.click('hover');
    const [from, to] = [await visitor.pointOf('hover'), await visitor.pointOf('last')];
    const onOther = ((await visitor.box('other')).top + 5 - from[1]) / (to[1] - from[1]);
    const way = (part) => from.map((start, axis) => start + (to[axis] - start) * part);
    const cross = (time, ...then) => visitor.follow(['hover', [from[0] - 9, from[1]], open], ['hover', 'hover', open, 120],
      ['hover', way(onOther / 2), open, 0], ['hover', way(onOther), open, time], then);
    await cross(399, 'hover', to, open, 1000);
    await cross(399, 'hover', way(onOther), 'hover/in other/sticks', 1);
    await visitor.follow(['hover', 'hover', open, 120]);
    await cross(200, 'hover', 'other', 'hover/in other/sticks', 120);
  });

  visit('a popup opens when it is called: at the pointer, or at its own place', 'popups.html', async (visitor) => {
    let left = 200;
    const call = (wanted = 'plain') => visitor.follow(['hover', [++left, 305], wanted]);
    await visitor.shows('');
    await call();
    const [{ box }] = await visitor.panels();
    assert.deepEqual([box.left, box.top], [left, 305]);
    assert.deepEqual(await visitor.look('plain', '.list', 'role'), ['menu']);
    await visitor.hover([210, 310]);
    await eventually(async () => assert.match((await visitor.look('plain', '', 'class'))[0], / on/));
    await visitor.follow(['press', 'Escape', '']);
    await visitor.run((place) => document.querySelector('a').dispatchEvent(new MouseEvent('mouseover', place)),
      { clientX: 210, clientY: 310 });
    assert.equal(await visitor.opened(), '', 'the pointer over the link has not moved');
    await visitor.hover([10, 10]);
    for (const leave of ['click', 'hover']) {
      await call();
      await visitor.follow(['hover', 'opens', 'plain/inner'], [leave, [800, 100], '']);
    }
    await call();
    await visitor.follow(['hover', [100, 600], '']); // without having been in the popup
    await visitor.logs(...Array(4).fill(['pop opens', 'pop closes']).flat());
    await visitor.run(() => { nbrShowMenu('pop'); nbrShowMenu('no such'); });
    const [{ box: own }] = await visitor.panels();
    assert.deepEqual([own.left, own.top], [600, 400]);
    await visitor.follow(['click', [210, 510], 'stays']);
    await call('plain/stays');
    await visitor.follow(['hover', [800, 100], 'stays'], ['click', [800, 100], '']);
  });

  visit('a popup called by keyboard opens below its caller, takes the focus and returns it', 'popups.html', async (visitor) => {
    await visitor.run(() => document.querySelector('button').focus());
    await visitor.press('Enter');
    assert.equal(await visitor.focused(), 'stays');
    const button = await visitor.run(() => boxOf(document.querySelector('button')));
    near((await visitor.panels())[0].box.top, button.bottom, 'below the button');
    await visitor.follow(['press', 'Escape', '']);
    assert.equal(await visitor.focused(), 'press');
  });
});
