// The functions that compiled menus call, the only ones that become global.

import { currentEvent } from './commands.js';
import { listenToDragging } from './dragging.js';
import { mainMenu, Menu } from './entries.js';
import { Group } from './group.js';
import { listenToKeyboard } from './keyboard.js';
import { Pointer } from './pointer.js';
import { offerToOwner, Remote } from './remote.js';
import { View } from './view.js';

// The styles of the menu that is being declared. A style's number is its index.
var styles = [];

// The menus of the page by name, including those that another copy of this runtime has built.
var views = (window.nbrShowMenu && window.nbrShowMenu.views) || {};

window.nbrCreateCSS = function () { styles.push(arguments); };

window.nbrCreateMenu = function () { return mainMenu(arguments); };

// Places the menu again when something changes that its position depends on.
function keepPlaced(view) {
  function settle() { if (view.isShown()) view.settle(); }
  window.addEventListener('resize', settle);
  window.addEventListener('load', settle);
  window.addEventListener('hashchange', function () { view.markCurrent(); });
  if (view.layer.follows()) window.addEventListener('scroll', function () { view.layer.settle(); });
  if (view.isPopup) return;
  var observer = new ResizeObserver(settle);
  observer.observe(document.documentElement);
  observer.observe(view.main().element);
}

Menu.prototype.buildMenu = function () {
  var group = new Group(styles);
  styles = [];
  if (document.body) build(this, group);
  else document.addEventListener('DOMContentLoaded', build.bind(null, this, group));
};

// Menus with the same title get their names added, so that their labels differ.
function label(view) {
  for (var name in views) if (views[name].label === view.label) view.label += ' (' + view.group.name + ')';
  view.layer.element.setAttribute('aria-label', view.label);
}

function build(menu, group) {
  var view = new View(menu, group, group.submenusFrame ? new Remote(group) : null);
  label(view);
  views[group.name] = view;
  view.pointer = new Pointer(view);
  listenToKeyboard(view);
  listenToDragging(view);
  if (view.isPopup) offerToOwner(menu, view);
  else view.show(null);
  keepPlaced(view);
}

// Where a popup opens: at the pointer of a mouse event, or below the element that was pressed by keyboard.
function placeFor(event) {
  if (!event || event.view !== window) return null;
  if (event.clientX || event.clientY) return { left: event.clientX, top: event.clientY };
  var target = event.target && event.target.getBoundingClientRect ? event.target.getBoundingClientRect() : null;
  return target ? { left: target.left, top: target.bottom } : null;
}

function isByKey(event) {
  return Boolean(event) && (event.type.indexOf('key') === 0 || (event.type === 'click' && event.detail === 0));
}

// When a popup closes, its caller below gets pointer events again although the pointer has not moved. They must not
// open the popup again.
function isResting(view, event) {
  return Boolean(event) && /(over|enter)$/.test(event.type) && Date.now() - view.closedAt < 300 &&
    view.pointer.isAt(event);
}

// Closes a popup if the pointer leaves its caller without entering the popup.
function closeWhenMissed(view, event) {
  if (!event || !event.target) return;
  function over(now) {
    var isMissed = !event.target.contains(now.target) && now.target !== view.layer.host;
    if (isMissed && !view.isSticky && view.isShown()) view.pointer.hover.left();
    if (isMissed || view.pointer.isInside) document.removeEventListener('pointerover', over);
  }
  document.addEventListener('pointerover', over);
}

// Opens a popup menu; does nothing for a menu that is always visible.
window.nbrShowMenu = function (name) {
  var view = views[name];
  if (!view || !view.isPopup) return;
  var event = currentEvent();
  if (isResting(view, event)) return;
  var place = placeFor(event);
  view.beside = null;
  view.pointer.hover.stop();
  if (!view.isShown()) view.opener = document.activeElement;
  view.show(place);
  if (isByKey(event)) view.focus(view.firstItem(view.main(), 1));
  else closeWhenMissed(view, event);
};

window.nbrShowMenu.views = views;
