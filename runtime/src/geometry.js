// Positions of boxes, computed from plain numbers. A box is {left, top, right, bottom} in pixels of the window, a size
// is {width, height}.

var ACROSS = { start: 'left', end: 'right', size: 'width' };
var DOWN = { start: 'top', end: 'bottom', size: 'height' };

// The position nearest to the wanted one at which a size fits between start and end; the start if it is too large.
export function within(wanted, size, start, end) {
  return Math.max(start, Math.min(wanted, end - size));
}

export function boxAt(left, top, size) {
  return { left: left, top: top, right: left + size.width, bottom: top + size.height };
}

export function shifted(box, x, y) {
  return { left: box.left + x, top: box.top + y, right: box.right + x, bottom: box.bottom + y };
}

function mirrored(box, area) {
  var sum = area.left + area.right;
  return { left: sum - box.right, top: box.top, right: sum - box.left, bottom: box.bottom };
}

// The position of the main menu. Corners 0 to 3 are the corners of the window, clockwise from the upper left; 4 to 7
// are the middles of its edges: left, top, right, bottom. The top and left side of the menu stay in the window.
export function placeMain(size, area, corner, horizontal, vertical) {
  var atRight = corner === 1 || corner === 2 || corner === 6;
  var atBottom = corner === 2 || corner === 3 || corner === 7;
  var left = atRight ? area.right - size.width - horizontal : area.left + horizontal;
  var top = atBottom ? area.bottom - size.height - vertical : area.top + vertical;
  if (corner === 5 || corner === 7) left = (area.left + area.right - size.width) / 2;
  if (corner === 4 || corner === 6) top = (area.top + area.bottom - size.height) / 2;
  return { left: Math.max(area.left, Math.round(left)), top: Math.max(area.top, Math.round(top)) };
}

// The side of its parent on which a submenu opens: 1 right or below, 2 left or above. Without a fixed side it is the
// preferred one, unless the submenu fits only on the other side or fits on neither and the other has more room.
function chooseSide(request, axis, after, before) {
  if (request.side) return request.side;
  var size = request.size[axis.size];
  var preferred = request.preferred || 1;
  var room = [0, request.area[axis.end] - after, before + size - request.area[axis.start]];
  if (room[preferred] >= size) return preferred;
  var other = 3 - preferred;
  return room[other] >= size || room[other] > room[preferred] ? other : preferred;
}

function alignedStart(request, axis) {
  var size = request.size[axis.size];
  var parent = request.parent;
  switch (request.align) {
    case 1: return parent[axis.start];
    case 2: return parent[axis.end] - size;
    case 3: return (parent[axis.start] + parent[axis.end] - size) / 2;
    default: return request.item[axis.start];
  }
}

// Returns the position of a submenu as {left, top, side}. The request has: item, parent: boxes; size: of the submenu;
// area: the box of the window; vertical: whether the parent is a column; side: 0 auto, 1, 2; preferred: the side on
// which its parent opened, 0 if none; align: 0 item, 1 near edge, 2 far edge, 3 centre; distance; rtl. With an
// automatic side the submenu is moved into the window on both axes, with a fixed side only along its parent's edge.
export function placeSubmenu(request) {
  if (request.rtl) return placeMirrored(request);
  var away = request.vertical ? ACROSS : DOWN;
  var beside = request.vertical ? DOWN : ACROSS;
  var area = request.area;
  var after = request.parent[away.end] + request.distance;
  var before = request.parent[away.start] - request.distance - request.size[away.size];
  var side = chooseSide(request, away, after, before);
  var place = { side: side };
  place[away.start] = side === 1 ? after : before;
  if (!request.side) {
    place[away.start] = within(place[away.start], request.size[away.size], area[away.start], area[away.end]);
  }
  place[beside.start] =
    within(alignedStart(request, beside), request.size[beside.size], area[beside.start], area[beside.end]);
  return { left: Math.round(place.left), top: Math.round(place.top), side: side };
}

function placeMirrored(request) {
  var plain = {};
  for (var name in request) plain[name] = request[name];
  plain.rtl = false;
  plain.item = mirrored(request.item, request.area);
  plain.parent = mirrored(request.parent, request.area);
  var place = placeSubmenu(plain);
  place.left = request.area.left + request.area.right - place.left - request.size.width;
  return place;
}

// The position of a dragged box, moved so that the box stays inside the area; one that is larger keeps its start there.
export function keepInside(left, top, size, area) {
  return {
    left: within(left, size.width, area.left, area.right),
    top: within(top, size.height, area.top, area.bottom)
  };
}

function turn(a, b, c) {
  return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

// Whether a pointer that moved between two points heads for a box: the second point is then inside the triangle between
// the first point and the facing side of the box.
export function headsFor(from, to, box) {
  var slack = 8;
  var first;
  var second;
  if (from.x < box.left || from.x > box.right) {
    var x = from.x < box.left ? box.left : box.right;
    first = { x: x, y: box.top - slack };
    second = { x: x, y: box.bottom + slack };
  } else {
    var y = from.y < box.top ? box.top : box.bottom;
    first = { x: box.left - slack, y: y };
    second = { x: box.right + slack, y: y };
  }
  var a = turn(from, first, to);
  var b = turn(first, second, to);
  var c = turn(second, from, to);
  var moved = from.x !== to.x || from.y !== to.y;
  return moved && ((a >= 0 && b >= 0 && c >= 0) || (a <= 0 && b <= 0 && c <= 0));
}
