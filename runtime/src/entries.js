// The menus and items that a compiled script declares. Most items of a large menu are never shown, so each call only
// stores its arguments in one small object; they are read by position when an item is first shown.

var TITLE_AND_LIST = ' container titleStyle title tooltip picture picturePlace gap uniformWidths uniformHeights onOpen onClose';
var MENU_VALUES = 'popup when distance how unfold align movable drift corner horizontal vertical sticky type' +
  TITLE_AND_LIST;
var SUBMENU_VALUES = 'type when distance how unfold align side' + TITLE_AND_LIST;

function named(names, values) {
  var record = {};
  names.split(' ').forEach(function (name, i) { record[name] = values[i]; });
  return record;
}

// An item of `addItem`, or of `addItemWithImages`, which has nine more values (`more`) after the tooltip. States: 0
// Normal, 1 Mouse Over, 2 Mouse Click.
export function Item(menu, values, more) {
  this.menu = menu;
  this.values = values;
  this.more = more;
  this.submenu = null;
  this.element = null;
  this.state = 0;
}

Item.prototype = {
  addSubmenu: function () {
    this.submenu = new Menu(this, named(SUBMENU_VALUES, arguments));
    return this.submenu;
  },

  style: function (state) { return this.values[state]; },

  name: function (state) {
    var name = this.values[3 + state];
    return name === null ? this.values[3] : name;
  },

  tooltip: function () { return this.values[6]; },
  // Numbers of pictures, or null. A number below 0 is a picture that was missing when the menu was compiled.
  picture: function (state) { return this.more ? this.values[7 + state] : null; },
  picturePlace: function (state) { return this.more ? this.values[10 + state] : 0; },
  arrow: function (state) { return this.more ? this.values[13 + state] : null; },
  status: function () { return this.values[7 + this.more]; },
  command: function (state) { return this.values[8 + this.more + state]; },
  url: function () { return this.values[11 + this.more]; },
  target: function () { return this.values[12 + this.more]; }
};

// The main menu, or the submenu of an item. `pm` is the main menu of its tree.
export function Menu(item, options) {
  this.item = item;
  this.pm = item ? item.menu.pm : this;
  this.options = options;
  this.items = [];
}

Menu.prototype = {
  addItem: function () {
    var item = new Item(this, arguments, 0);
    this.items.push(item);
    return item;
  },

  addItemWithImages: function () {
    var item = new Item(this, arguments, 9);
    this.items.push(item);
    return item;
  }
};

export function mainMenu(values) {
  return new Menu(null, named(MENU_VALUES, values));
}
