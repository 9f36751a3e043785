// Dragging a movable menu by the title of its main panel, by mouse, pen or touch.

import { dragTo } from './placing.js';

export function listenToDragging(view) {
  if (Number(view.options.movable) !== 1) return;
  var start = null;

  function titleOf(event) {
    var title = view.isShown() && view.main().title;
    return title && title.contains(event.target) ? title : null;
  }

  function begin(event) {
    var title = titleOf(event);
    if (!title || event.button || event.target.closest('a,button,input,[onclick]')) return;
    var box = view.main().box;
    view.closeFrom(1);
    start = { left: box.left - event.clientX, top: box.top - event.clientY, pointer: event.pointerId };
    try { title.setPointerCapture(event.pointerId); } catch (fault) { start = null; }
    event.preventDefault();
  }

  function move(event) {
    if (start && event.pointerId === start.pointer) dragTo(view, start.left + event.clientX, start.top + event.clientY);
  }

  function end(event) {
    if (start && event.pointerId === start.pointer) start = null;
  }

  var layer = view.layer.element;
  layer.addEventListener('pointerdown', begin);
  layer.addEventListener('pointermove', move);
  layer.addEventListener('pointerup', end);
  layer.addEventListener('pointercancel', end);
}
