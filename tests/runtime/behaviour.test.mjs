import assert from 'node:assert/strict';
import { mock, test } from 'node:test';
import { AIM_DELAY, Hover, LEAVE_DELAY, OPEN_DELAY } from '../../runtime/src/hover.js';
import { keyAction } from '../../runtime/src/keys.js';
import { styleRule } from '../../runtime/src/style_sheet.js';
import { directionOf, mirroredDirection, unfoldingFrames } from '../../runtime/src/unfolding.js';

const keys = ['ArrowRight', 'ArrowLeft', 'ArrowDown', 'ArrowUp'];
const arrows = (at) => keys.map((key) => keyAction(key, { horizontal: false, depth: 0, barAbove: false, ...at }));

test('arrows move along a panel and, across it, into a submenu and out again', () => {
  assert.deepEqual(arrows({ horizontal: true, barAbove: true, submenu: true }), ['next', 'previous', 'open', 'openLast']);
  assert.deepEqual(arrows({ horizontal: true, barAbove: true }), ['next', 'previous', null, null]);
  assert.deepEqual(arrows({ submenu: true }), ['open', null, 'next', 'previous']);
  assert.deepEqual(arrows({ depth: 1 }), [null, 'back', 'next', 'previous']);
  assert.deepEqual(arrows({ depth: 1, barAbove: true }), ['nextOfBar', 'previousOfBar', 'next', 'previous']);
  assert.deepEqual(arrows({ depth: 2, barAbove: true }), ['nextOfBar', 'back', 'next', 'previous']);
  assert.deepEqual(arrows({ depth: 1, horizontal: true, submenu: true }), ['next', 'previous', 'open', 'back']);
  assert.deepEqual(arrows({ submenu: true, rtl: true }), [null, 'open', 'next', 'previous'], 'mirrored');
});

test('the other keys', () => {
  const at = { horizontal: false, depth: 1, barAbove: true, submenu: false };
  assert.deepEqual(['Home', 'End', 'Enter', ' ', 'Tab', 'Escape', 'é', 'F5'].map((key) => keyAction(key, at)),
    ['first', 'last', 'activate', 'activate', 'leave', 'back', 'find', null]);
  assert.equal(keyAction(' ', { ...at, submenu: true }), 'open');
  assert.equal(keyAction('Escape', { ...at, depth: 0 }), 'closeAll');
  assert.equal(keyAction('Escape', { ...at, depth: 0, popup: true }), 'back');
});

test('a resting pointer opens soon, one on its way to a submenu late, one that turns away soon again', (t) => {
  mock.timers.enable(['setTimeout']);
  t.after(() => mock.timers.reset());
  const due = [];
  const hover = new Hover((item) => due.push(item), globalThis);
  const passes = (time) => { mock.timers.tick(time); return due.splice(0); };

  hover.over('first', false);
  hover.over('second', false);
  assert.deepEqual(passes(OPEN_DELAY), ['second'], 'what was passed over is forgotten');
  hover.over('third', true);
  assert.deepEqual(passes(OPEN_DELAY), []);
  assert.deepEqual(passes(AIM_DELAY - OPEN_DELAY), ['third']);
  hover.over('fourth', true);
  hover.moved(false);
  assert.deepEqual(passes(OPEN_DELAY), ['fourth']);
  hover.left();
  hover.stop();
  assert.deepEqual(passes(LEAVE_DELAY), [], 'it came back');
  hover.left();
  assert.deepEqual(passes(LEAVE_DELAY), [null]);
});

test('a panel unfolds towards its side, in two ways', () => {
  assert.deepEqual([[0, true, 1], [0, true, 2], [0, false, 1], [0, false, 2], [4, true, 1]].map((told) => directionOf(...told)),
    [1, 2, 3, 4, 4]);
  assert.deepEqual([1, 2, 3, 4].map(mirroredDirection), [2, 1, 3, 4]);
  assert.equal(unfoldingFrames(0, 1), null);
  for (const direction of [1, 2, 3, 4]) {
    const [still, pushed] = [unfoldingFrames(1, direction), unfoldingFrames(2, direction)];
    assert.ok(!('transform' in still[0]) && 'transform' in pushed[0]);
    assert.notEqual(still[0].clipPath, pushed[0].clipPath, 'one begins at the near edge, the other at the far one');
    assert.equal(still[1].clipPath, pushed[1].clipPath);
  }
});

test('a style is one rule, whatever its values hold', () => {
  const values = [1, 2, 2, '#111111', null, 3, 'italic 12pt serif', 'underline', 'solid', 2, '#222222', 7, 1];
  assert.equal(styleRule(4, values, 'a/b.png'), '.s4{background-image:url("a/b.png");border:2px solid #222222;' +
    'text-align:end;--at:flex-end;--against:flex-start;padding:calc(7px + var(--edge,2px) - 2px);cursor:pointer;text-decoration:underline;' +
    'color:#111111;font:italic 12pt serif;}');
  values[6] = '12pt "x}*{display:none}"';
  assert.equal(styleRule(4, values, null).match(/[{}]/g).length, 2);
  assert.equal(styleRule(0, [0, 1, 0, null, '#333333', null, null, null, 'none', 3, null, 0, 0], null),
    '.s0{background-color:#333333;border:0;}');
});
