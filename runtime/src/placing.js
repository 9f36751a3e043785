// Places the panels of a view and animates their opening.

import { boxAt, keepInside, placeMain, placeSubmenu, within } from './geometry.js';
import { directionOf, DURATION, mirroredDirection, unfoldingFrames } from './unfolding.js';

function prefersStill() {
  return window.matchMedia('(prefers-reduced-motion: reduce)').matches;
}

export function place(view, panel) {
  if (panel.depth > 0 || view.beside) placeBeside(view, panel);
  else placeAlone(view, panel);
}

function requestFor(panel) {
  var parent = panel.parent;
  var sameAxis = parent.parent && parent.parent.across === parent.across;
  return {
    item: parent.boxOf(panel.menu.item), parent: parent.box, vertical: !parent.across,
    side: Number(panel.menu.options.side), preferred: sameAxis ? parent.side : 0
  };
}

// The size is measured first, so that the browser computes the layout only once.
function placeBeside(view, panel) {
  var options = panel.menu.options;
  var size = panel.measure(view.window.width, view.window.height);
  var request = panel.depth > 0 ? requestFor(panel) : view.beside();
  request.size = size;
  request.area = view.layer.area();
  request.align = Number(options.align);
  request.distance = Number(options.distance);
  request.rtl = view.layer.rtl;
  var result = placeSubmenu(request);
  panel.side = result.side;
  panel.vertical = request.vertical;
  panel.moveTo(result, size);
}

function placeAlone(view, panel) {
  var options = view.options;
  if (view.isBar) stretch(view, panel);
  var size = panel.measure(null, null);
  var window = view.window = view.layer.windowSize();
  var widest = view.isBar ? null : window.width;
  var highest = view.layer.driftsDown() ? window.height : null;
  if ((widest && size.width > widest) || (highest && size.height > highest)) size = panel.measure(widest, highest);
  var result = placeMain(size, boxAt(0, 0, window), Number(options.corner), Number(options.horizontal),
    Number(options.vertical));
  if (view.isBar || size.width >= window.width) result.left = 0; // no room for a horizontal distance
  // Scrolling the page cannot bring a drifting menu into view.
  if (view.layer.drift) result.left = within(result.left, size.width, 0, view.layer.pageWidth());
  if (view.layer.driftsDown()) result.top = within(result.top, size.height, 0, window.height);
  var wanted = view.wanted;
  if (wanted) result = keepInside(wanted.left, wanted.top, size, boxAt(wanted.area.left, wanted.area.top, window));
  panel.moveTo(result, size);
}

function positionBars(position) {
  var views = window.nbrShowMenu.views;
  for (var name in views) {
    if (views[name].isBar && views[name].isShown()) views[name].main().element.style.position = position;
  }
}

// Makes a bar as wide as the page. The page is measured without its bars, since their old widths would keep it wide.
function stretch(view, panel) {
  positionBars('fixed');
  var width = view.layer.pageWidth();
  positionBars('');
  panel.element.style.width = width + 'px';
}

// Moves the main menu to where it was dragged, but not out of the window.
export function dragTo(view, left, top) {
  var area = view.layer.area();
  view.wanted = { left: left, top: top, area: area };
  var box = view.main().box;
  var size = { width: box.right - box.left, height: box.bottom - box.top };
  view.main().moveTo(keepInside(left, top, size, area), size);
}

export function unfold(view, panel) {
  var options = panel.menu.options;
  var direction = directionOf(Number(options.unfold), panel.vertical, panel.side || 1);
  if (view.layer.rtl) direction = mirroredDirection(direction);
  var frames = unfoldingFrames(Number(options.how), direction);
  if (!frames || prefersStill()) return;
  frames.forEach(function (frame) {
    if (frame.transform) frame.transform = panel.offset + frame.transform;
  });
  var animation = panel.element.animate(frames, { duration: DURATION, easing: 'ease-out' });
  animation.onfinish = function () { view.pointer.look(); };
}
