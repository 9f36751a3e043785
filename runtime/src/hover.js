// The delays after which a pointer that rests on an item, passes over it or leaves the menu takes effect. Times are in
// milliseconds.

export var OPEN_DELAY = 120;  // resting on an item before its submenu opens
export var AIM_DELAY = 400;   // the same while the pointer heads for the open submenu of another item
export var LEAVE_DELAY = 500; // outside the menu before it closes
export var CLICK_GUARD = 500; // after an opening, during which a click does not close the submenu again

// Calls `due(item)` after the delay; the item is null if the pointer left the menu. `clock` provides setTimeout and
// clearTimeout.
export function Hover(due, clock) {
  this.due = due;
  this.clock = clock;
  this.timer = null;
  this.item = null;
  this.aiming = false;
}

Hover.prototype = {
  wait: function (item, delay) {
    var self = this;
    this.stop();
    this.item = item;
    this.timer = this.clock.setTimeout(function () {
      self.stop();
      self.due(item);
    }, delay);
  },

  // The pointer entered an item. Aiming: whether it heads for the open submenu of another item.
  over: function (item, aiming) {
    this.wait(item, aiming ? AIM_DELAY : OPEN_DELAY);
    this.aiming = aiming;
  },

  // The pointer moved inside the item. If it no longer heads for the open submenu, the usual delay applies.
  moved: function (aiming) {
    if (this.aiming && !aiming) this.over(this.item, false);
  },

  left: function () {
    this.wait(null, LEAVE_DELAY);
  },

  stop: function () {
    if (this.timer !== null) this.clock.clearTimeout(this.timer);
    this.timer = null;
    this.aiming = false;
  }
};
