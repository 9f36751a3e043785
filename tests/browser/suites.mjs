import actions from './suites/actions.mjs';
import frames from './suites/frames.mjs';
import keyboard from './suites/keyboard.mjs';
import layout from './suites/layout.mjs';
import opening from './suites/opening.mjs';
import states from './suites/states.mjs';

export const suites = [actions, frames, keyboard, layout, opening, states];
