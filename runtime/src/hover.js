// When a resting, passing or leaving pointer takes effect. Times are in milliseconds.

export var OPEN_DELAY = 120;  // to rest on an item before its submenu opens
export var AIM_DELAY = 400;   // to pass over other items on the way to an open submenu
export var LEAVE_DELAY = 500; // to be away before the menu closes
export var CLICK_GUARD = 500; // behind an opening, in which a click does not close again

// `due(item)` is called once what was waited for has come; with null the pointer has left. Timers are set and cleared
// through `clock`, {setTimeout, clearTimeout}.
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

  // The pointer has come upon an item, perhaps on its way to the open submenu of another one.
  over: function (item, aiming) {
    this.wait(item, aiming ? AIM_DELAY : OPEN_DELAY);
    this.aiming = aiming;
  },

  // The pointer has moved on the item; one that has turned away from the submenu waits no longer than any other.
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
