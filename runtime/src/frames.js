// Submenus that stand in another frame, built there by a copy of this runtime. The other frame may be missing, be of
// another origin or be gone at any time, so that each step into it may fail and then counts for nothing.

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

// The group that the script of the frame holds for an item, by its position from 1; null if there is none.
export function findGroup(frame, menuName, position) {
  return attempt(function () {
    var group = frame['nbr' + menuName + '_sub_' + position];
    return group && group.showBeside ? group : null;
  }, null);
}

// Where the window of a frame has its corner in the window of the whole frameset, as far up as may be seen.
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

// Calls when a document has come into the frame, now and with each later navigation.
export function whenLoaded(frame, call) {
  attempt(function () { frame.frameElement.addEventListener('load', call); });
}
