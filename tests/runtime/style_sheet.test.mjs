import assert from 'node:assert/strict';
import { test } from 'node:test';
import { styleRule } from '../../runtime/src/style_sheet.js';

test('a style is one rule, whatever its values hold', () => {
  const values = [1, 2, 2, '#111111', null, 3, 'italic  serif', 'underline', 'solid', 2, '#222222', 7, 1];
  assert.equal(styleRule(4, values, 'a/b.png'), '.s4{background-image:url("a/b.png");border:2px solid #222222;' +
    'text-align:end;--at:flex-end;--against:flex-start;padding:calc(7px + var(--edge,2px) - 2px);cursor:pointer;' +
    'text-decoration:underline;color:#111111;font:italic medium serif;}');
  const cursors = [0, 1, 2, 3, 4, 5, 6].map((cursor) => styleRule(0, [...values.slice(0, 12), cursor], null).match(/cursor:(\w+)/)[1]);
  assert.deepEqual(cursors, ['default', 'pointer', 'crosshair', 'help', 'move', 'text', 'wait']);
  values[6] = '12pt "x}*{display:none}"';
  assert.equal(styleRule(4, values, null).match(/[{}]/g).length, 2);
  assert.equal(styleRule(0, [0, 1, 0, null, '#333333', null, null, null, 'none', 3, null, 0, 0], null),
    '.s0{background-color:#333333;border:0;}');
});
