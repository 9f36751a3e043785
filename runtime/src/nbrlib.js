// The interface that compiled menus call. Nothing else becomes global.

import { currentEvent } from './commands.js';
import { listenToDragging } from './dragging.js';
import { mainMenu, Menu } from './entries.js';
import { Group } from './group.js';
import { listenToKeyboard } from './keyboard.js';
import { Pointer } from './pointer.js';
import { offerToOwner, Remote } from './remote.js';
import { View } from './view.js';

// The styles of the group that is being registered. Their numbers are their places in it.
var styles = [];

// The menus of the page by name, also those that another copy of this runtime has built.
var views = (window.nbrShowMenu && window.nbrShowMenu.views) || {};

window.nbrCreateCSS = function () { styles.push(arguments); };

window.nbrCreateMenu = function () { return mainMenu(arguments); };

// Keeps the menu in its place when anything changes that the place depends on.
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

// Menus of one title are told apart by their names.
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

// Where a popup is wanted: at the pointer of a mouse event, under what was pressed by the keyboard.
function placeFor(event) {
  if (!event || event.view !== window) return null;
  if (event.clientX || event.clientY) return { left: event.clientX, top: event.clientY };
  var target = event.target && event.target.getBoundingClientRect ? event.target.getBoundingClientRect() : null;
  return target ? { left: target.left, top: target.bottom } : null;
}

function isByKey(event) {
  return Boolean(event) && (event.type.indexOf('key') === 0 || (event.type === 'click' && event.detail === 0));
}

// Where a popup vanishes, the browser tells its caller of the pointer anew, though that rests.
function isRest(view, event) {
  return Boolean(event) && /(over|enter)$/.test(event.type) && Date.now() - view.closedAt < 300 &&
    view.pointer.isAt(event);
}

// A popup that the pointer has not reached yet closes when it turns away from where it was called.
function closeWhenMissed(view, event) {
  if (!event || !event.target) return;
  function over(now) {
    var isMissed = !event.target.contains(now.target) && now.target !== view.layer.host;
    if (isMissed && !view.isSticky && view.isShown()) view.pointer.hover.left();
    if (isMissed || view.pointer.isInside) document.removeEventListener('pointerover', over);
  }
  document.addEventListener('pointerover', over);
}

// Opens a popup menu. A menu that is always there needs no showing.
window.nbrShowMenu = function (name) {
  var view = views[name];
  if (!view || !view.isPopup) return;
  var event = currentEvent();
  if (isRest(view, event)) return;
  var place = placeFor(event);
  view.beside = null;
  view.pointer.hover.stop();
  if (!view.isShown()) view.opener = document.activeElement;
  view.show(place);
  if (isByKey(event)) view.focus(view.firstItem(view.main(), 1));
  else closeWhenMissed(view, event);
};

window.nbrShowMenu.views = views;
