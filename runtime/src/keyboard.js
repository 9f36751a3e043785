// The keyboard and the focus.

import { keyAction } from './keys.js';
import { itemAt } from './pointer.js';

function moveBy(view, item, step) {
  var panel = view.panelOf(item);
  moveTo(view, panel, view.itemFrom(panel, panel.menu.items.indexOf(item), step));
}

// Moves the focus to an item of the same panel. If a submenu was open there, the submenu of the new item opens instead.
function moveTo(view, panel, item) {
  if (!item) return;
  var wasOpen = view.panels.length > panel.depth + 1 || Boolean(view.remote && view.remote.item && !panel.depth);
  if (wasOpen && !view.isOpen(item)) view.closeFrom(panel.depth + 1);
  view.focus(item);
  if (wasOpen) view.open(item);
}

// Moves from inside a submenu to the next or previous item of the main menu.
function moveInBar(view, step) {
  if (view.owner) {
    view.owner.moveInBar(step);
  } else {
    moveBy(view, view.panels[1].menu.item, step);
  }
}

function find(view, item, letter) {
  var panel = view.panelOf(item);
  var next = item;
  letter = letter.toLowerCase();
  do {
    next = view.itemFrom(panel, panel.menu.items.indexOf(next), 1);
    var name = next.element.getAttribute('aria-label') || next.element.textContent;
    if (name.trim().charAt(0).toLowerCase() === letter) {
      moveTo(view, panel, next);
      return;
    }
  } while (next !== item);
}

// The actions that keyAction names. An action that returns false leaves the key to the browser.
var ACTIONS = {
  next: function (view, item) { moveBy(view, item, 1); },
  previous: function (view, item) { moveBy(view, item, -1); },
  first: function (view, item) { moveTo(view, view.panelOf(item), view.firstItem(view.panelOf(item), 1)); },
  last: function (view, item) { moveTo(view, view.panelOf(item), view.firstItem(view.panelOf(item), -1)); },
  open: function (view, item) { view.open(item, 'first'); },
  openLast: function (view, item) { view.open(item, 'last'); },
  nextOfBar: function (view) { moveInBar(view, 1); },
  previousOfBar: function (view) { moveInBar(view, -1); },
  find: function (view, item, event) { find(view, item, event.key); },
  closeAll: function (view) { return view.closeAll(); },

  back: function (view, item) {
    var depth = view.panelOf(item).depth;
    if (depth === 0 && view.owner) view.owner.takeFocus();
    view.closeFrom(depth);
  },

  activate: function (view, item, event) {
    view.pointer.byKey = true;
    if (event.key === 'Enter' && item.element.href) return false;
    item.element.click();
    return true;
  },

  // The browser moves the focus on from the focused element, so the focus must first be on one that remains.
  leave: function (view) {
    view.leaving = true;
    if (view.owner) view.owner.takeFocus();
    else if (!view.isPopup) view.focus(view.tabStop);
    view.closeAll();
    view.leaving = false;
    return false;
  }
};

function situationOf(view, item) {
  var panel = view.panelOf(item);
  var owner = view.owner;
  return {
    horizontal: panel.across,
    depth: panel.depth + (owner ? 1 : 0),
    popup: view.isPopup,
    barAbove: owner ? owner.across : view.main().across,
    submenu: view.opens(item),
    rtl: view.layer.rtl
  };
}

function onKeyDown(view, event) {
  var item = itemAt(view, event);
  if (!item || event.target !== item.element || event.ctrlKey || event.altKey || event.metaKey) return;
  var action = keyAction(event.key, situationOf(view, item));
  view.pointer.hover.stop();
  view.pointer.isIdle = true;
  if (!action || ACTIONS[action](view, item, event) === false) return;
  event.preventDefault();
  event.stopPropagation();
}

function onFocusIn(view, event) {
  var item = itemAt(view, event);
  if (!item || view.leaving) return;
  view.setTabStop(item);
  // A focus that a click caused, or that returns when a submenu closes, does not count as pointing at the item.
  if (item.element.matches(':focus-visible')) view.point(item, event);
}

function onFocusOut(view, event) {
  if (view.leaving || view.layer.contains(event.relatedTarget)) return;
  if (!view.pointer.isInside) view.point(null, event);
  if (event.relatedTarget) view.closeAll();
}

export function listenToKeyboard(view) {
  var layer = view.layer.element;
  layer.addEventListener('keydown', function (event) { onKeyDown(view, event); });
  layer.addEventListener('focusin', function (event) { onFocusIn(view, event); });
  layer.addEventListener('focusout', function (event) { onFocusOut(view, event); });
  // Escape also closes what the mouse opened while the focus is outside the menu.
  document.addEventListener('keydown', function (event) {
    if (event.key === 'Escape' && !view.layer.focused()) view.closeAll();
  });
}
