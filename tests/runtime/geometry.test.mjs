import assert from 'node:assert/strict';
import { test } from 'node:test';
import { boxAt, headsFor, keepInside, placeMain, placeSubmenu } from '../../runtime/src/geometry.js';

const size = (width, height) => ({ width, height });
const area = boxAt(0, 0, size(1000, 600));

test('the main menu stands at its corner, or at the middle of its edge', () => {
  const places = [0, 1, 2, 3, 4, 5, 6, 7].map((corner) => {
    const place = placeMain(size(200, 100), area, corner, 10, 20);
    return [place.left, place.top];
  });
  assert.deepEqual(places,
    [[10, 20], [790, 20], [790, 480], [10, 480], [10, 250], [400, 20], [790, 250], [400, 480]]);
  assert.deepEqual(placeMain(size(2000, 900), area, 2, 0, 0), { left: 0, top: 0 }, 'its start stays in the window');
});

// A vertical parent at (100, 100), 150 by 200, with the item 40 further down.
const ask = (changes) => placeSubmenu({
  parent: boxAt(100, 100, size(150, 200)), item: boxAt(102, 140, size(146, 20)), size: size(120, 80), area,
  vertical: true, side: 0, preferred: 0, align: 0, distance: -4, rtl: false, ...changes,
});

test('a submenu opens on its side, at its distance, aligned as told', () => {
  assert.deepEqual(ask({}), { left: 246, top: 140, side: 1 });
  assert.deepEqual(ask({ side: 2 }), { left: -16, top: 140, side: 2 }, 'a fixed side holds where there is no room');
  assert.deepEqual([1, 2, 3].map((align) => ask({ align }).top), [100, 220, 160]);
  assert.deepEqual(ask({ vertical: false, distance: 5 }), { left: 102, top: 305, side: 1 });
  assert.deepEqual([1, 2, 3].map((align) => ask({ vertical: false, align }).left), [100, 130, 115]);
});

test('auto keeps the side of the chain, flips, and moves what fits nowhere into the window', () => {
  const atRight = { parent: boxAt(820, 100, size(150, 200)), item: boxAt(822, 140, size(146, 20)) };
  assert.deepEqual(ask(atRight), { left: 704, top: 140, side: 2 });
  assert.equal(ask({ preferred: 2, parent: boxAt(500, 100, size(150, 200)) }).side, 2);
  assert.equal(ask({ preferred: 2 }).side, 1, 'no room on the side of the chain');
  assert.deepEqual(ask({ ...atRight, size: size(990, 80) }), { left: 0, top: 140, side: 2 });
  assert.equal(ask({ item: boxAt(102, 560, size(146, 20)) }).top, 520, 'shifted up from the lower edge');
  assert.equal(ask({ vertical: false, parent: boxAt(100, 560, size(400, 30)) }).side, 2);
});

test('in a page from right to left sides are mirrored', () => {
  assert.deepEqual(ask({ rtl: true, parent: boxAt(500, 100, size(150, 200)) }), { left: 384, top: 140, side: 1 });
  const flipped = ask({ rtl: true });
  assert.deepEqual(flipped, { left: 246, top: 140, side: 2 });
  assert.equal(ask({ rtl: true, vertical: false, item: boxAt(400, 100, size(60, 30)), distance: 0 }).left, 340);
});

test('a dragged menu stays in reach', () => {
  assert.deepEqual(keepInside(-50, 590, size(200, 100), area), { left: 0, top: 500 });
  assert.deepEqual(keepInside(70, 80, size(2000, 100), area), { left: 0, top: 80 });
});

test('a pointer heads for a box as long as it stays in the triangle to its near side', () => {
  const right = boxAt(200, 100, size(100, 200));
  const from = { x: 100, y: 110 };
  assert.ok(headsFor(from, { x: 120, y: 140 }, right));
  assert.ok(!headsFor(from, { x: 102, y: 160 }, right), 'too steep');
  assert.ok(!headsFor(from, { x: 90, y: 112 }, right), 'away from it');
  assert.ok(!headsFor(from, from, right), 'resting');
  assert.ok(headsFor({ x: 400, y: 150 }, { x: 380, y: 160 }, right), 'from its right');
  assert.ok(headsFor({ x: 250, y: 50 }, { x: 230, y: 70 }, right), 'from above');
});
