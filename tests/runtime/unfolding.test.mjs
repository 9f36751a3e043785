import assert from 'node:assert/strict';
import { test } from 'node:test';
import { directionOf, DOWN, LEFT, mirroredDirection, RIGHT, unfoldingFrames, UP } from '../../runtime/src/unfolding.js';

test('a panel is uncovered towards its direction, or pushed out from the opposite edge', () => {
  // Where the panel is clipped at first if it is uncovered and if it is pushed, and its shift if it is pushed.
  const cases = [
    [RIGHT, '0 100% 0 0', '0 0 0 100%', '-100%,0'], [LEFT, '0 0 0 100%', '0 100% 0 0', '100%,0'],
    [DOWN, '0 0 100% 0', '100% 0 0 0', '0,-100%'], [UP, '100% 0 0 0', '0 0 100% 0', '0,100%'],
  ];
  const whole = 'inset(0 0 0 0)';
  for (const [direction, uncovered, pushed, shift] of cases) {
    assert.deepEqual(unfoldingFrames(1, direction), [{ clipPath: `inset(${uncovered})` }, { clipPath: whole }]);
    assert.deepEqual(unfoldingFrames(2, direction), [
      { clipPath: `inset(${pushed})`, transform: `translate(${shift})` }, { clipPath: whole, transform: 'translate(0,0)' }]);
    assert.equal(unfoldingFrames(0, direction), null);
  }
  assert.deepEqual([[0, true, 1], [0, true, 2], [0, false, 1], [0, false, 2], [UP, true, 1]].map((from) => directionOf(...from)),
    [RIGHT, LEFT, DOWN, UP, UP]);
  assert.deepEqual([RIGHT, LEFT, DOWN, UP].map(mirroredDirection), [LEFT, RIGHT, DOWN, UP]);
});
