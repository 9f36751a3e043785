// Mouse, pen and touch. All listeners are on the layer and the document, none on items.

import { run } from './commands.js';
import { headsFor } from './geometry.js';
import { CLICK_GUARD, Hover } from './hover.js';

var TRAIL = 4; // the number of last positions that give the direction of the pointer

// The item that contains the target of an event, or null.
export function itemAt(view, event) {
  return itemOf(view, event.target);
}

function itemOf(view, node) {
  for (; node && node !== view.layer.element; node = node.parentNode) if (node.nbrItem) return node.nbrItem;
  return null;
}

export function Pointer(view) {
  this.view = view;
  this.isInside = false;
  this.over = undefined; // the item under the pointer, null if it is between items, undefined if it is outside
  this.isIdle = false;   // the keyboard was used after the pointer's last move
  this.trail = [];
  this.pressed = null; // {item, type of pointer, wasOpen}, until the click
  this.byKey = false;  // whether the next click comes from the keyboard
  this.hover = new Hover(this.settle.bind(this), window);
  var self = this;
  function listen(target, type, capture) {
    target.addEventListener(type, function (event) { self[type](event); }, Boolean(capture));
  }
  ['pointerover', 'pointermove', 'pointerleave', 'pointerdown', 'click'].forEach(function (type) {
    listen(view.layer.element, type);
  });
  listen(document, 'pointerup', true);
  listen(document, 'pointercancel', true);
  document.addEventListener('pointerdown', function (event) {
    if (event.target !== view.layer.host && !view.layer.contains(event.target)) self.pressedOutside();
  }, true);
}

Pointer.prototype = {
  // Called when the hover delay has passed.
  settle: function (item) {
    var view = this.view;
    if (item === null) {
      if (view.isSticky || (view.remote && view.remote.isHovered())) return;
      if (view.owner && view.owner.isHovered()) return;
      view.closeAll();
      return;
    }
    var panel = view.panelOf(item);
    if (!panel) return;
    view.closeFrom(panel.depth + (view.isOpen(item) ? 2 : 1));
    if (view.opens(item) && view.opensOnHover(item)) view.open(item);
  },

  // Whether the pointer, now on an item, heads for the open submenu of another item in the same panel.
  isAiming: function (item) {
    var panel = item && this.view.panelOf(item);
    var next = panel && this.view.panels[panel.depth + 1];
    if (!next || next.menu === item.submenu || this.trail.length < 2) return false;
    return headsFor(this.trail[0], this.trail[this.trail.length - 1], next.element.getBoundingClientRect());
  },

  // Whether the pointer's last known position is that of an event.
  isAt: function (event) {
    var last = this.trail[this.trail.length - 1];
    return Boolean(last) && last.x === event.clientX && last.y === event.clientY;
  },

  // Records the pointer's position; returns whether it moved. Browsers also send pointer events when something moves
  // under a resting pointer; they are ignored while the keyboard is in use.
  follow: function (event) {
    if (this.isAt(event)) return false;
    this.trail.push({ x: event.clientX, y: event.clientY });
    if (this.trail.length > TRAIL) this.trail.shift();
    return true;
  },

  pointerover: function (event) { this.pointermove(event); },

  pointermove: function (event) {
    if (event.pointerType === 'touch') return;
    this.isInside = true;
    if (this.follow(event)) this.isIdle = false;
    if (this.isIdle) return;
    var item = itemAt(this.view, event);
    if (item !== this.over) this.comeUpon(item, event);
    else if (this.hover.aiming) this.hover.moved(this.isAiming(item));
  },

  // Finds the item under a resting pointer after an animation, which may have moved another item there.
  look: function () {
    var last = this.trail[this.trail.length - 1];
    if (!this.isInside || this.isIdle || !last) return;
    var item = itemOf(this.view, this.view.layer.root.elementFromPoint(last.x, last.y));
    if (item && item !== this.over) this.comeUpon(item, null);
  },

  comeUpon: function (item, event) {
    this.over = item;
    this.view.point(item, event);
    if (item) this.hover.over(item, this.isAiming(item));
    else this.hover.stop();
  },

  pointerleave: function (event) {
    if (event.pointerType === 'touch') return;
    this.isInside = false;
    this.over = undefined;
    this.view.point(null, event);
    this.hover.left();
  },

  // A press opens a submenu immediately; a touch waits for the click, since it may become a scroll.
  pointerdown: function (event) {
    var view = this.view;
    var item = itemAt(view, event);
    if (!item || event.button) return;
    this.pressed = { item: item, type: event.pointerType, wasOpen: view.isOpen(item) };
    view.press(item);
    if (event.pointerType === 'touch' || !view.opens(item)) return;
    this.hover.stop();
    view.open(item);
  },

  pointerup: function () { this.view.press(null); },

  pointercancel: function () { this.view.press(null); },

  pressedOutside: function () {
    this.hover.stop();
    this.view.point(null);
    this.view.closeAll();
  },

  click: function (event) {
    var item = itemAt(this.view, event);
    if (!item) return;
    var press = this.pressed && this.pressed.item === item ? this.pressed : this.pressOf(item);
    this.pressed = null;
    this.byKey = false;
    if (press.type === 'touch') this.view.point(item, event);
    var follows = !this.view.opens(item) || this.clickOpener(item, press);
    if (!follows) event.preventDefault();
    // A first tap that only opens the submenu does not run the command yet.
    var opensOnly = !follows && press.type === 'touch' && item.url() !== null;
    if (!opensOnly && run(item.command(2), event) === false) event.preventDefault();
    if (follows) this.closeAfter(item, press.type);
  },

  // A click without a press comes from the keyboard or from assistive technology.
  pressOf: function (item) {
    return { item: item, type: this.byKey ? 'key' : 'helper', wasOpen: this.view.isOpen(item) };
  },

  // Handles a click on an item with a submenu. Returns whether the browser should follow its link.
  clickOpener: function (item, press) {
    var view = this.view;
    var hasLink = item.url() !== null;
    if (press.type === 'key' && hasLink) return true;
    if (!press.wasOpen) {
      view.open(item, press.type === 'key' || press.type === 'helper' ? 'first' : null);
      return hasLink && press.type === 'mouse' && view.opensOnHover(item);
    }
    if (!hasLink && Date.now() - view.openedAt > CLICK_GUARD) view.closeFrom(view.panelOf(item).depth + 1);
    return hasLink;
  },

  // Closes the menu after an item was used. It waits for the end of the click, because the browser follows a link only
  // if it is still in the page then.
  closeAfter: function (item, type) {
    var view = this.view;
    if (view.isSticky || (item.url() === null && item.command(2) === null)) return;
    this.hover.stop();
    setTimeout(function () {
      view.closeAll();
      if (type === 'touch') view.point(null);
    }, 0);
  }
};
