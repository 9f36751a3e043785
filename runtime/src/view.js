// A menu in the page: its layer and the chain of open panels, from the main menu to the deepest submenu. The modules
// that listen to pointer and keyboard change it through `show`, `open`, `closeFrom`, `point` and `press`.

import { run } from './commands.js';
import { shifted } from './geometry.js';
import { markCurrent, markOpening, nameOfMenu, showState } from './item_element.js';
import { Layer } from './layer.js';
import { Panel } from './panel.js';
import { place, unfold } from './placing.js';

// Remote: the submenus in another frame, or null.
export function View(menu, group, remote) {
  this.menu = menu;
  this.group = group;
  this.options = menu.options;
  this.isPopup = Number(menu.options.popup) === 1;
  this.isBar = Number(menu.options.type) === 2;
  this.isSticky = Number(menu.options.sticky) === 1;
  this.panels = [];
  this.window = null;   // the size of the window when the panels were last placed
  this.pointer = null;
  this.pointed = null;  // the item that has the pointer or the keyboard focus
  this.pressed = null;
  this.tabStop = null;
  this.leaving = false; // whether the Tab key is moving the focus out of the menu
  this.openedAt = 0;    // when a submenu was last opened, in milliseconds
  this.closedAt = 0;    // when a popup was last closed
  this.wanted = null;   // where a popup was called, or where a drag left the menu: {left, top, area} in the layer
  this.owner = null;    // in another frame, the owner of the item whose submenu this is
  this.beside = null;   // returns the request for a place beside that item
  this.lastRequest = null;
  this.opener = null;   // the element that gets the focus back
  this.layer = new Layer(group, menu.options);
  this.label = nameOfMenu(group, menu);
  this.remote = remote;
  if (remote) remote.attach(this);
}

View.prototype = {
  main: function () { return this.panels[0]; },

  isShown: function () { return this.panels.length > 0; },

  opens: function (item) {
    return Boolean(item.submenu) || Boolean(this.remote && this.remote.has(item));
  },

  opensOnHover: function (item) {
    return item.submenu ? Number(item.submenu.options.when) === 0 : this.remote.opensOnHover(item);
  },

  panelOf: function (item) {
    for (var i = 0; i < this.panels.length; i++) if (this.panels[i].menu === item.menu) return this.panels[i];
    return null;
  },

  // The open panel of an item's submenu in this frame, or null.
  submenuPanel: function (item) {
    var panel = this.panelOf(item);
    var next = panel && this.panels[panel.depth + 1];
    return next && next.menu === item.submenu ? next : null;
  },

  isOpen: function (item) {
    return Boolean(this.submenuPanel(item)) || Boolean(this.remote && this.remote.item === item);
  },

  // Shows the main menu. Where: a point {left, top} of the window, or null for the position that the author set.
  show: function (where) {
    this.wanted = null;
    if (where || this.beside) this.layer.settle();
    if (where) {
      var area = this.layer.area();
      this.wanted = { left: where.left + area.left, top: where.top + area.top, area: area };
    }
    if (this.isShown()) {
      this.settle();
      return;
    }
    this.add(this.menu, null);
    this.layer.settle();
    this.setTabStop(this.firstItem(this.main(), 1));
    unfold(this, this.main());
    run(this.options.onOpen);
  },

  add: function (menu, parent) {
    var self = this;
    var panel = new Panel(this.group, menu, parent, function (item) { return self.opens(item); });
    this.panels.push(panel);
    if (parent || this.beside) this.window = this.layer.windowSize(); // read before the panel invalidates the layout
    this.layer.element.appendChild(panel.element);
    place(this, panel);
    for (var i = 0; i < menu.items.length; i++) this.group.preload(menu.items[i]);
    return panel;
  },

  // Places the open panels again after the window, the page or the menu has changed its size.
  settle: function () {
    this.layer.settle();
    this.window = this.layer.windowSize();
    for (var i = 0; i < this.panels.length; i++) place(this, this.panels[i]);
  },

  // Opens the submenu of an item. Focus: 'first' or 'last' focuses that item of it; otherwise the focus does not move.
  open: function (item, focus) {
    var parent = this.panelOf(item);
    if (!parent || !this.opens(item)) return;
    var opened = null;
    if (!this.isOpen(item)) {
      this.closeFrom(parent.depth + 1);
      this.openedAt = Date.now();
      if (item.submenu) unfold(this, opened = this.add(item.submenu, parent));
      else this.remote.open(item, focus);
      item.element.setAttribute('aria-expanded', 'true');
      this.showState(item);
    } else if (!item.submenu && focus) {
      this.remote.focus(focus);
    }
    var panel = this.submenuPanel(item);
    if (focus && panel) this.focus(this.firstItem(panel, focus === 'last' ? -1 : 1));
    if (opened) run(item.submenu.options.onOpen);
  },

  // Closes the panels at a depth and deeper, the deepest first. Depth 0 is the main menu.
  closeFrom: function (depth) {
    if (depth <= 1 && this.remote) this.remote.close();
    // A command that runs on closing may open panels again.
    for (var n = this.panels.length; n > depth && this.panels.length > depth; n--) this.closeLast();
  },

  closeLast: function () {
    var panel = this.panels[this.panels.length - 1];
    var item = panel.menu.item;
    var hadFocus = panel.element.contains(this.layer.focused());
    if (this.pointed && this.pointed.menu === panel.menu) this.point(null);
    if (this.pressed && this.pressed.menu === panel.menu) this.pressed = null;
    if (hadFocus && this.panels.length > 1) this.focus(item);
    this.panels.pop();
    panel.remove();
    if (this.panels.length) this.markClosed(item);
    else this.vanished(hadFocus);
    run(panel.menu.options.onClose);
  },

  markClosed: function (item) {
    if (!item.element) return;
    item.element.setAttribute('aria-expanded', 'false');
    this.showState(item);
  },

  // Closes all submenus, and the menu if it is a popup. Returns whether anything was open.
  closeAll: function () {
    var isOpen = this.panels.length > (this.isPopup ? 0 : 1) || Boolean(this.remote && this.remote.item);
    this.closeFrom(this.isPopup ? 0 : 1);
    return isOpen;
  },

  vanished: function (hadFocus) {
    this.closedAt = Date.now();
    if (hadFocus && this.opener && this.opener.focus) this.opener.focus();
    this.opener = null;
    if (this.owner) this.owner.closed();
  },

  showState: function (item, renew) {
    if (!item || !item.element) return;
    var state = item === this.pressed ? 2 : item === this.pointed || this.isOpen(item) ? 1 : 0;
    showState(this.group, item, state, this.opens(item), renew);
  },

  // The pointer or the keyboard focus is now on an item, or on none (null). Runs the author's commands.
  point: function (item, event) {
    var left = this.pointed;
    if (item === left) return;
    this.pointed = item;
    this.showState(left);
    this.showState(item);
    if (left) run(left.command(0), event);
    if (item) run(item.command(1), event);
  },

  press: function (item) {
    var released = this.pressed;
    this.pressed = item;
    this.showState(released);
    this.showState(item);
  },

  // The first focusable item, or the last one if step is -1. Lines and gaps are not focusable.
  firstItem: function (panel, step) {
    return this.itemFrom(panel, step > 0 ? -1 : panel.menu.items.length, step);
  },

  // The next focusable item from an index, wrapping at the ends; null if there is none.
  itemFrom: function (panel, index, step) {
    var items = panel.menu.items;
    for (var n = 0; n < items.length; n++) {
      index = (index + step + items.length) % items.length;
      if (items[index].element.getAttribute('role') === 'menuitem') return items[index];
    }
    return null;
  },

  focus: function (item) {
    if (item && item.element) item.element.focus();
  },

  // Only one item of the main menu is in the tab order: the one that had the focus last.
  setTabStop: function (item) {
    if (!item || item.menu !== this.menu) return;
    if (this.tabStop && this.tabStop.element) this.tabStop.element.tabIndex = -1;
    this.tabStop = item;
    item.element.tabIndex = 0;
  },

  // Updates the items after another frame has changed: they may have gained or lost their submenus.
  refreshOpenings: function () {
    if (!this.isShown()) return;
    var items = this.menu.items;
    for (var i = 0; i < items.length; i++) {
      var opens = this.opens(items[i]);
      if (opens === items[i].element.hasAttribute('aria-haspopup')) continue;
      if (opens) markOpening(items[i]);
      else unmarkOpening(items[i].element);
      this.showState(items[i], true);
    }
    this.settle();
  },

  markCurrent: function () {
    for (var i = 0; i < this.panels.length; i++) this.panels[i].menu.items.forEach(markCurrent);
  },

  // The box of an item and of its panel in the window.
  boxesOf: function (item) {
    var panel = this.panelOf(item);
    var area = this.layer.area();
    return {
      item: shifted(panel.boxOf(item), -area.left, -area.top), parent: shifted(panel.box, -area.left, -area.top)
    };
  }
};

function unmarkOpening(element) {
  element.removeAttribute('aria-haspopup');
  element.removeAttribute('aria-expanded');
}
