import assert from 'node:assert/strict';
import { test } from 'node:test';
import { keyAction } from '../../runtime/src/keys.js';

test('what a key does depends on the panel, its depth and the direction of the page', () => {
  const keys = ['ArrowRight', 'ArrowLeft', 'ArrowDown', 'ArrowUp', 'Escape', ' '];
  const bar = { horizontal: true, depth: 0, barAbove: true };
  const inBar = { horizontal: false, depth: 1, barAbove: true };
  const column = { horizontal: false, depth: 0, barAbove: false };
  const cases = [
    [bar, 'next', 'previous', null, null, 'closeAll', 'activate'],
    [{ ...bar, submenu: true }, 'next', 'previous', 'open', 'openLast', 'closeAll', 'open'],
    [{ ...bar, submenu: true, rtl: true }, 'previous', 'next', 'open', 'openLast', 'closeAll', 'open'],
    [inBar, 'nextOfBar', 'previousOfBar', 'next', 'previous', 'back', 'activate'],
    [{ ...inBar, submenu: true }, 'open', 'previousOfBar', 'next', 'previous', 'back', 'open'],
    [{ ...inBar, depth: 2 }, 'nextOfBar', 'back', 'next', 'previous', 'back', 'activate'],
    [{ ...inBar, horizontal: true }, 'next', 'previous', null, 'back', 'back', 'activate'],
    [column, null, null, 'next', 'previous', 'closeAll', 'activate'],
    [{ ...column, submenu: true }, 'open', null, 'next', 'previous', 'closeAll', 'open'],
    [{ ...column, depth: 1 }, null, 'back', 'next', 'previous', 'back', 'activate'],
    [{ ...column, popup: true }, null, null, 'next', 'previous', 'back', 'activate'],
  ];
  for (const [at, ...wanted] of cases) {
    assert.deepEqual(keys.map((key) => keyAction(key, at)), wanted, JSON.stringify(at));
  }
  assert.deepEqual(['Home', 'End', 'Enter', 'Tab', 'f', 'F5'].map((key) => keyAction(key, bar)),
    ['first', 'last', 'activate', 'leave', 'find', null]);
});
