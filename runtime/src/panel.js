// A panel shows one menu or submenu: its title and the list of its items.

import { create, fill } from './content.js';
import { buildItem, nameOfMenu } from './item_element.js';
import { boxAt } from './geometry.js';

var SMALLEST = 8; // pixels; every line of text is at least this high

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

// Opens: a function that returns whether an item has a submenu. Parent: the panel with this submenu's item, or null.
export function Panel(group, menu, parent, opens) {
  var options = menu.options;
  this.group = group;
  this.menu = menu;
  this.parent = parent;
  this.depth = parent ? parent.depth + 1 : 0;
  this.across = Number(options.type) > 0; // a row of items
  this.vertical = true;                   // whether its parent is a column
  this.side = 0;                          // the side of the parent where it opened: 1 right or below, 2 left or above
  this.offset = '';                       // its position as a transform
  this.box = null;                        // in the layer, without the shift of an animation
  this.element = create('div', 'panel ' + (this.across ? 'across' : 'down') + ' s' + options.container);
  if (Number(options.gap) > 0) this.element.style.setProperty('--gap', Number(options.gap) + 'px');
  this.title = buildTitle(group, options);
  if (this.title) this.element.appendChild(this.title);
  if (this.title && Number(options.movable) === 1) this.title.classList.add('drag');
  this.list = this.element.appendChild(buildList(this, opens));
  if (this.notes.firstChild) this.element.appendChild(this.notes);
}

Panel.prototype = {
  // Returns the panel's size within a maximum width and height; null means no limit. A panel that is too wide wraps;
  // one that is still too large scrolls.
  measure: function (widest, highest) {
    var element = this.element;
    element.style.maxWidth = widest === null ? '' : widest + 'px';
    element.style.maxHeight = highest === null ? '' : highest + 'px';
    element.classList.remove('wrap', 'scroll');
    // Layout of a long list is slow, so a list that must be too long scrolls without being measured first.
    if (!this.across && highest !== null && this.menu.items.length * SMALLEST > highest) element.classList.add('scroll');
    var box = element.getBoundingClientRect();
    if (this.overflows()) box = this.limit();
    return { width: box.width, height: box.height };
  },

  // Without a maximum height nothing overflows vertically, although in quirks mode a line that holds only a picture can
  // be higher than its box.
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

  // Moves the panel to a position in the layer.
  moveTo: function (place, size) {
    this.box = boxAt(place.left, place.top, size);
    this.offset = 'translate(' + place.left + 'px,' + place.top + 'px)';
    this.element.style.transform = this.offset; // needs no layout, unlike `left` and `top`
  },

  // The box of one of its items in the layer, even during an animation.
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
