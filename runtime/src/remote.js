// Both ends of a menu whose submenus are in another frame. In the main menu's frame, Remote finds the submenu of an
// item, shows it beside the item and closes it; the submenu's frame reports back through the item's owner object.
// Either frame may disappear at any time, so every call between them goes through `attempt`.

import { attempt, findFrame, findGroup, originOf, whenLoaded } from './frames.js';
import { shifted } from './geometry.js';

export function Remote(group) {
  this.name = group.name;
  this.frameName = group.submenusFrame;
  this.view = null;
  this.watched = [];
  this.item = null;  // the item whose submenu is open
  this.group = null; // that submenu in the other frame
}

Remote.prototype = {
  attach: function (view) {
    var self = this;
    this.view = view;
    function changed() {
      self.forget();
      self.watch(changed);
      view.refreshOpenings();
    }
    this.watch(changed);
    attempt(function () { window.top.addEventListener('load', changed); });
    window.addEventListener('pagehide', function () { self.close(); });
  },

  watch: function (changed) {
    var frame = findFrame(this.frameName);
    var element = frame && attempt(function () { return frame.frameElement; }, null);
    if (!element || this.watched.indexOf(element) >= 0) return;
    this.watched.push(element);
    whenLoaded(frame, changed);
  },

  find: function (item) {
    if (item.menu !== this.view.menu) return null;
    var frame = findFrame(this.frameName);
    return frame && findGroup(frame, this.name, item.menu.items.indexOf(item) + 1);
  },

  has: function (item) { return Boolean(this.find(item)); },

  opensOnHover: function (item) {
    var group = this.find(item);
    return attempt(function () { return group.opensOnHover(); }, true);
  },

  open: function (item, focus) {
    var group = this.find(item);
    this.item = item;
    this.group = group;
    var self = this;
    var shown = attempt(function () { return group.showBeside(self.ownerOf(item), focus); }, false);
    if (!shown) this.forget();
  },

  focus: function (focus) {
    var group = this.group;
    attempt(function () { group.takeFocus(focus); });
  },

  isHovered: function () {
    var group = this.group;
    return Boolean(group) && attempt(function () { return group.isHovered(); }, false);
  },

  close: function () {
    var group = this.group;
    this.forget();
    if (group) attempt(function () { group.hide(); });
  },

  forget: function () {
    var item = this.item;
    this.item = this.group = null;
    if (item) this.view.markClosed(item);
  },

  // What the submenu's frame can read and call about the item. Boxes are in coordinates of the outermost window.
  ownerOf: function (item) {
    var self = this;
    var view = this.view;
    var origin = originOf(window);
    return {
      across: view.main().across,
      sticky: view.isSticky,
      boxes: function () {
        var boxes = view.boxesOf(item);
        return {
          item: shifted(boxes.item, origin.left, origin.top), parent: shifted(boxes.parent, origin.left, origin.top)
        };
      },
      isHovered: function () { return view.pointed === item; },
      closed: function () { if (self.item === item) self.forget(); },
      takeFocus: function () {
        window.focus();
        view.focus(item);
      },
      moveInBar: function (step) {
        window.focus();
        view.focus(item);
        var next = view.itemFrom(view.main(), view.menu.items.indexOf(item), step);
        view.closeFrom(1);
        view.focus(next);
        view.open(next);
      }
    };
  }
};

// A copy of the owner object whose calls return null when they fail.
function guarded(owner) {
  function call(name) {
    return function (value) { return attempt(function () { return owner[name](value); }, null); };
  }
  return {
    across: owner.across, sticky: owner.sticky, boxes: call('boxes'), isHovered: call('isHovered'),
    closed: call('closed'), takeFocus: call('takeFocus'), moveInBar: call('moveInBar')
  };
}

// Adds the methods that the main menu's frame calls to the submenu's menu object, which the script keeps in a global
// variable.
export function offerToOwner(menu, view) {
  menu.opensOnHover = function () { return Number(menu.options.when) === 0; };
  menu.isHovered = function () { return view.pointer.isInside; };
  menu.hide = function () {
    view.owner = null;
    view.closeFrom(0);
  };
  menu.takeFocus = function (focus) {
    window.focus();
    view.focus(view.firstItem(view.main(), focus === 'last' ? -1 : 1));
  };
  menu.showBeside = function (owner, focus) {
    view.owner = guarded(owner);
    view.isSticky = view.owner.sticky;
    view.beside = function () { return requestBeside(view); };
    if (!view.beside()) return false;
    view.closeFrom(0);
    view.show(null);
    if (focus) menu.takeFocus(focus);
    return true;
  };
  window.addEventListener('pagehide', function () { if (view.owner) view.owner.closed(); });
}

// The placement request of the submenu: the boxes of its item in coordinates of this frame's layer, moved by the offset
// that the author set.
function requestBeside(view) {
  var boxes = view.owner && view.owner.boxes();
  if (!boxes) return view.lastRequest;
  var area = view.layer.area();
  var origin = originOf(window);
  var offset = view.group.frameOffset;
  var x = area.left - origin.left + (view.owner.across ? offset : 0);
  var y = area.top - origin.top + (view.owner.across ? 0 : offset);
  view.lastRequest = {
    item: shifted(boxes.item, x, y), parent: shifted(boxes.parent, x, y), vertical: !view.owner.across, side: 0,
    preferred: 0
  };
  return view.lastRequest;
}
