import assert from 'node:assert/strict';
import { test } from 'node:test';
import { Hover } from '../../runtime/src/hover.js';

test('a pointer that rests, passes or leaves takes effect after a delay', () => {
  let now = 0;
  const timers = new Map();
  const due = [];
  const hover = new Hover((item) => due.push(item), {
    setTimeout(call, delay) {
      timers.set(timers.size, { call, at: now + delay });
      return timers.size - 1;
    },
    clearTimeout: (number) => timers.set(number, { at: Infinity }),
  });
  // The call, the milliseconds that pass, and what is due then. The second argument of `over` is whether the pointer
  // is on its way to an open submenu.
  const steps = [
    [() => hover.over('a', false), 119], [() => {}, 1, 'a'],
    [() => hover.over('a', false), 100], [() => hover.over('b', false), 119], [() => hover.left(), 499], [() => {}, 1, null],
    [() => hover.over('a', true), 399], [() => hover.moved(true), 1, 'a'],
    [() => hover.over('a', true), 200], [() => hover.moved(false), 119], [() => hover.moved(false), 1, 'a'],
    [() => hover.over('a', false), 60], [() => hover.stop(), 1000],
  ];
  for (const [step, [call, time, ...wanted]] of steps.entries()) {
    call();
    now += time;
    for (const [number, { call: run, at }] of timers) if (at <= now) timers.set(number, { at: Infinity }) && run();
    assert.deepEqual(due.splice(0), wanted, `step ${step}`);
  }
});
