// Mouse, pen and touch. All listening is done at the layer and the document; no item has a listener of its own.

import { run } from './commands.js';
import { headsFor } from './geometry.js';
import { CLICK_GUARD, Hover } from './hover.js';

var TRAIL = 4; // moves by which the way of the pointer is told

// The item in whose element an event came, or null.
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
  this.over = undefined; // the item that the pointer is upon, null beside the items
  this.isIdle = false;   // the keyboard was used behind the pointer's last move
  this.trail = [];
  this.pressed = null; // {item, type of pointer, wasOpen}, until the click
  this.byKey = false;  // whether the click that comes is one of the keyboard
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
  // What the pointer has waited for long enough takes effect.
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

  // Whether the pointer is on its way from one of a panel's items to the open submenu of another.
  isAiming: function (item) {
    var panel = item && this.view.panelOf(item);
    var next = panel && this.view.panels[panel.depth + 1];
    if (!next || next.menu === item.submenu || this.trail.length < 2) return false;
    return headsFor(this.trail[0], this.trail[this.trail.length - 1], next.element.getBoundingClientRect());
  },

  // Whether the pointer was last seen where an event is.
  isAt: function (event) {
    var last = this.trail[this.trail.length - 1];
    return Boolean(last) && last.x === event.clientX && last.y === event.clientY;
  },

  // Whether the pointer has moved. A page tells of a pointer that rests, too, when something moves under it; that
  // counts for nothing while the keyboard is in use.
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

  // An item may have come under a resting pointer, or have gone from it, while its panel unfolded.
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

  // A press opens at once; a touch waits for the click, since it may become a scroll.
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
    // A first tap that only opens is no click yet.
    var opensOnly = !follows && press.type === 'touch' && item.url() !== null;
    if (!opensOnly && run(item.command(2), event) === false) event.preventDefault();
    if (follows) this.closeBehind(item, press.type);
  },

  // A click without a press comes from the keyboard, or from a helper that stands for a finger.
  pressOf: function (item) {
    return { item: item, type: this.byKey ? 'key' : 'helper', wasOpen: this.view.isOpen(item) };
  },

  // A click on an item with a submenu. Gives whether its link is to be followed.
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

  // A menu that was used closes, behind the click: its link must stay in the page until it has been followed.
  closeBehind: function (item, type) {
    var view = this.view;
    if (view.isSticky || (item.url() === null && item.command(2) === null)) return;
    this.hover.stop();
    setTimeout(function () {
      view.closeAll();
      if (type === 'touch') view.point(null);
    }, 0);
  }
};
