// Access to submenus in another frame, which a copy of this runtime builds there. The other frame may be missing,
// belong to another origin or disappear at any time, so each access may throw and is then ignored.

export function attempt(step, otherwise) {
  try {
    return step();
  } catch (fault) {
    return otherwise;
  }
}

function frameNamed(from, name) {
  for (var i = 0; i < from.frames.length; i++) {
    var frame = from.frames[i];
    if (attempt(function () { return frame.name === name; }, false)) return frame;
    var inner = attempt(function () { return frameNamed(frame, name); }, null);
    if (inner) return inner;
  }
  return null;
}

export function findFrame(name) {
  return attempt(function () { return frameNamed(window.top, name); }, null);
}

// The menu that the frame's script built for an item, found by the item's position from 1; null if there is none.
export function findGroup(frame, menuName, position) {
  return attempt(function () {
    var group = frame['nbr' + menuName + '_sub_' + position];
    return group && group.showBeside ? group : null;
  }, null);
}

// The upper left corner of a frame, in coordinates of the outermost window that is accessible.
export function originOf(frame) {
  var origin = { left: 0, top: 0 };
  attempt(function () {
    while (frame !== frame.top && frame.frameElement) {
      var box = frame.frameElement.getBoundingClientRect();
      origin.left += box.left + frame.frameElement.clientLeft;
      origin.top += box.top + frame.frameElement.clientTop;
      frame = frame.parent;
    }
  });
  return origin;
}

// Calls back after each document that the frame loads.
export function whenLoaded(frame, call) {
  attempt(function () { frame.frameElement.addEventListener('load', call); });
}
