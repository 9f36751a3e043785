// What a key does in a menu, following the ARIA menu bar pattern: arrows along a panel move between its items, arrows
// across it enter and leave submenus.

var MIRRORED = { ArrowLeft: 'ArrowRight', ArrowRight: 'ArrowLeft' };

function isLetter(key) {
  return key.length === 1 && key !== ' ';
}

// Returns the name of the key's action, or null if it has none. At describes the focused item: horizontal: whether its
// panel is a row; depth: 0 in the main menu; popup: whether the main menu can be closed; barAbove: whether the main
// menu is a row; submenu: whether the item has one; rtl.
export function keyAction(key, at) {
  if (at.rtl && MIRRORED[key]) key = MIRRORED[key];
  switch (key) {
    case 'Home': return 'first';
    case 'End': return 'last';
    case 'Enter': return 'activate';
    case ' ': return at.submenu ? 'open' : 'activate';
    case 'Tab': return 'leave';
    case 'Escape': return at.depth > 0 || at.popup ? 'back' : 'closeAll';
    case at.horizontal ? 'ArrowRight' : 'ArrowDown': return 'next';
    case at.horizontal ? 'ArrowLeft' : 'ArrowUp': return 'previous';
    case at.horizontal ? 'ArrowDown' : 'ArrowRight': return inward(at);
    case at.horizontal ? 'ArrowUp' : 'ArrowLeft': return outward(at);
    default: return isLetter(key) ? 'find' : null;
  }
}

function inward(at) {
  if (at.submenu) return 'open';
  return at.depth > 0 && at.barAbove && !at.horizontal ? 'nextOfBar' : null;
}

function outward(at) {
  if (at.depth === 0) return at.horizontal && at.submenu ? 'openLast' : null;
  return at.depth === 1 && at.barAbove && !at.horizontal ? 'previousOfBar' : 'back';
}
