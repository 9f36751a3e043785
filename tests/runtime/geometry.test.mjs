import assert from 'node:assert/strict';
import { test } from 'node:test';
import { boxAt, headsFor, placeMain, placeSubmenu } from '../../runtime/src/geometry.js';

const size = (width, height) => ({ width, height });
const area = boxAt(0, 0, size(1000, 600));

test('the main menu stands at its corner, or at the middle of its edge', () => {
  const places = [0, 1, 2, 3, 4, 5, 6, 7].map((corner) => Object.values(placeMain(size(200, 100), area, corner, 10, 20)));
  assert.deepEqual(places,
    [[10, 20], [790, 20], [790, 480], [10, 480], [10, 250], [400, 20], [790, 250], [400, 480]]);
  assert.deepEqual(placeMain(size(2000, 900), area, 2, 0, 0), { left: 0, top: 0 }, 'its start stays in the window');
});

test('a submenu opens on its side, at its distance, aligned as told', () => {
  // A vertical parent at (100, 100), 150 by 200, with the item 40 further down.
  const ask = (changes) => Object.values(placeSubmenu({
    parent: boxAt(100, 100, size(150, 200)), item: boxAt(102, 140, size(146, 20)), size: size(120, 80), area,
    vertical: true, side: 0, preferred: 0, align: 0, distance: -4, rtl: false, ...changes,
  }));
  const inMiddle = { parent: boxAt(500, 100, size(150, 200)) };
  const atRight = { parent: boxAt(820, 100, size(150, 200)) };
  const row = { vertical: false, distance: 5 };
  const places = [
    [{}, 246, 140, 1],
    [{ side: 2 }, -16, 140, 2], // a fixed side holds where there is no room
    [{ align: 1 }, 246, 100, 1], [{ align: 2 }, 246, 220, 1], [{ align: 3 }, 246, 160, 1],
    [row, 102, 305, 1], [{ ...row, align: 1 }, 100, 305, 1], [{ ...row, align: 2 }, 130, 305, 1],
    [{ ...row, parent: boxAt(100, 500, size(400, 30)) }, 102, 415, 2],
    [atRight, 704, 140, 2], [{ ...inMiddle, preferred: 2 }, 384, 140, 2], [{ preferred: 2 }, 246, 140, 1],
    [{ ...atRight, size: size(990, 80) }, 0, 140, 2], [{ item: boxAt(102, 560, size(146, 20)) }, 246, 520, 1],
    [{ ...inMiddle, rtl: true }, 384, 140, 1], [{ rtl: true }, 246, 140, 2],
    [{ ...row, rtl: true, item: boxAt(400, 100, size(60, 30)) }, 340, 305, 1],
  ];
  for (const [changes, ...wanted] of places) assert.deepEqual(ask(changes), wanted, JSON.stringify(changes));
});

test('a pointer heads for a box as long as it stays in the triangle to its near side', () => {
  const ways = [
    [[100, 110], [120, 140], true], [[100, 110], [102, 160], false], [[100, 110], [90, 112], false],
    [[100, 110], [100, 110], false], [[400, 150], [380, 160], true], [[250, 50], [230, 70], true],
  ];
  for (const [[fromX, fromY], [x, y], wanted] of ways) {
    assert.equal(headsFor({ x: fromX, y: fromY }, { x, y }, boxAt(200, 100, size(100, 200))), wanted, `to ${x}, ${y}`);
  }
});
