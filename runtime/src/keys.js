// What a key does in a menu, by the pattern of menu bars: arrows along a panel move, arrows across it go into a
// submenu and back out.

var MIRRORED = { ArrowLeft: 'ArrowRight', ArrowRight: 'ArrowLeft' };

function isLetter(key) {
  return key.length === 1 && key !== ' ';
}

// The name of what the key does, or null if the menu has no use for it. At: {horizontal: layout of the panel; depth:
// 0 in the main menu; popup: whether that can be closed; barAbove: whether the main menu is horizontal; submenu:
// whether the item has one; rtl}.
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
