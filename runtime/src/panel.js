// A panel is what shows one menu or submenu: its title and the list of its items.

import { create, fill } from './content.js';
import { buildItem, nameOfMenu } from './item_element.js';
import { boxAt } from './geometry.js';

var SMALLEST = 8; // pixels that no line of text is lower than

function buildTitle(group, options) {
  var picture = group.picture(options.picture);
  if (options.titleStyle === null || (!options.title && !picture)) return null;
  var title = create('div', 'title s' + options.titleStyle);
  fill(title, options.title || '', picture, options.picturePlace, null);
  if (options.tooltip) title.title = options.tooltip;
  return title;
}

function buildList(panel, opens) {
  var options = panel.menu.options;
  var even = !panel.across && Number(options.uniformHeights) === 1;
  var wide = panel.across && Number(options.uniformWidths) === 1;
  var gap = Number(options.gap) > 0;
  var list = create('div', 'list' + (even ? ' even' : '') + (wide ? ' wide' : '') + (gap ? ' gap' : ''));
  list.setAttribute('role', panel.depth || Number(options.popup) === 1 ? 'menu' : 'menubar');
  list.setAttribute('aria-orientation', panel.across ? 'horizontal' : 'vertical');
  list.setAttribute('aria-label', nameOfMenu(panel.group, panel.menu));
  panel.notes = create('div');
  panel.notes.hidden = true;
  var items = panel.menu.items;
  for (var i = 0; i < items.length; i++) list.appendChild(buildItem(panel.group, items[i], opens(items[i]), panel.notes));
  return list;
}

// Opens: tells of an item whether it has a submenu. Parent: the panel whose item this one belongs to, or null.
export function Panel(group, menu, parent, opens) {
  var options = menu.options;
  this.group = group;
  this.menu = menu;
  this.parent = parent;
  this.depth = parent ? parent.depth + 1 : 0;
  this.across = Number(options.type) > 0; // items stand side by side
  this.vertical = true;                   // whether it has opened beside a column of items
  this.side = 0;                          // where it has opened: 1 right or below, 2 left or above
  this.offset = '';                       // as a transform
  this.box = null;                        // in the layer, without the movement of an unfolding
  this.element = create('div', 'panel ' + (this.across ? 'across' : 'down') + ' s' + options.container);
  if (Number(options.gap) > 0) this.element.style.setProperty('--gap', Number(options.gap) + 'px');
  this.title = buildTitle(group, options);
  if (this.title) this.element.appendChild(this.title);
  if (this.title && Number(options.movable) === 1) this.title.classList.add('drag');
  this.list = this.element.appendChild(buildList(this, opens));
  if (this.notes.firstChild) this.element.appendChild(this.notes);
}

Panel.prototype = {
  // The size it takes, at most the widest and the highest that it may have; null is no limit. What is too wide is
  // wrapped, and what is then still too large is scrolled.
  measure: function (widest, highest) {
    var element = this.element;
    element.style.maxWidth = widest === null ? '' : widest + 'px';
    element.style.maxHeight = highest === null ? '' : highest + 'px';
    element.classList.remove('wrap', 'scroll');
    // Laying out a long list takes long enough to do it once.
    if (!this.across && highest !== null && this.menu.items.length * SMALLEST > highest) element.classList.add('scroll');
    var box = element.getBoundingClientRect();
    if (this.overflows()) box = this.limit();
    return { width: box.width, height: box.height };
  },

  // Where nothing limits the height, a line can be higher than its box: one with a picture alone in quirks mode.
  overflows: function () {
    var element = this.element;
    if (element.classList.contains('scroll')) return false;
    return element.scrollWidth > element.clientWidth ||
      element.scrollHeight + element.offsetHeight - element.clientHeight > parseFloat(element.style.maxHeight);
  },

  limit: function () {
    if (this.across) {
      this.element.style.setProperty('--widest', this.widest() + 'px');
      this.element.classList.add('wrap');
    }
    if (this.overflows()) this.element.classList.add('scroll');
    return this.element.getBoundingClientRect();
  },

  widest: function () {
    var widest = 0;
    for (var node = this.list.firstChild; node; node = node.nextSibling) {
      widest = Math.max(widest, node.getBoundingClientRect().width);
    }
    return widest;
  },

  // Puts it at a place of the layer.
  moveTo: function (place, size) {
    this.box = boxAt(place.left, place.top, size);
    this.offset = 'translate(' + place.left + 'px,' + place.top + 'px)';
    this.element.style.transform = this.offset; // other than `left` and `top`, it needs no new layout
  },

  // The box of one of its items in the layer, also while it unfolds.
  boxOf: function (item) {
    var own = this.element.getBoundingClientRect();
    var box = item.element.getBoundingClientRect();
    return boxAt(this.box.left + box.left - own.left, this.box.top + box.top - own.top, box);
  },

  remove: function () {
    this.element.parentNode.removeChild(this.element);
    for (var i = 0; i < this.menu.items.length; i++) this.menu.items[i].element = null;
  }
};
