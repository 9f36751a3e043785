// The keyframes with which a panel unfolds.

export var RIGHT = 1;
export var LEFT = 2;
export var DOWN = 3;
export var UP = 4;

export var DURATION = 180; // milliseconds

// The direction in which a submenu unfolds: its fixed one, or 0 for away from its parent. Vertical: whether the parent
// is a column. Side: where the submenu opened, 1 right or below, 2 left or above.
export function directionOf(fixed, vertical, side) {
  if (fixed) return fixed;
  if (vertical) return side === 1 ? RIGHT : LEFT;
  return side === 1 ? DOWN : UP;
}

export function mirroredDirection(direction) {
  return direction === RIGHT ? LEFT : direction === LEFT ? RIGHT : direction;
}

// Way 1 uncovers a panel in place; way 2 slides it out from the opposite edge. Any other way returns null: the panel
// appears without animation.
export function unfoldingFrames(way, direction) {
  var covered = { 1: '0 100% 0 0', 2: '0 0 0 100%', 3: '0 0 100% 0', 4: '100% 0 0 0' };
  var behind = { 1: '0 0 0 100%', 2: '0 100% 0 0', 3: '100% 0 0 0', 4: '0 0 100% 0' };
  var away = { 1: '-100%,0', 2: '100%,0', 3: '0,-100%', 4: '0,100%' };
  var whole = 'inset(0 0 0 0)';
  if (!away[direction]) return null;
  if (way === 1) return [{ clipPath: 'inset(' + covered[direction] + ')' }, { clipPath: whole }];
  if (way !== 2) return null;
  return [
    { clipPath: 'inset(' + behind[direction] + ')', transform: 'translate(' + away[direction] + ')' },
    { clipPath: whole, transform: 'translate(0,0)' }
  ];
}
