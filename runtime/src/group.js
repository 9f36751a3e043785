// The resources of one menu: the styles and pictures that its numbers refer to, and the script's settings. They are
// read when buildMenu is called, because the page's next menu overwrites the global variables.

import { borderWidth, styleSheet } from './style_sheet.js';

// In the script, names have character references for characters outside its encoding.
function decoded(name) {
  return name.replace(/&#(\d+);/g, function (whole, code) { return String.fromCodePoint(code); });
}

// A preview is not in the folder of the pages, so its links are resolved against the folder of the last compile.
function baseOfLinks(folder) {
  if (!folder || !folder.trim()) return '';
  return 'file:///' + folder.replace(/\\/g, '/').replace(/^\/+|\/+$/g, '') + '/';
}

export function Group(styles) {
  this.styles = styles;
  this.images = window.nbrImagesColl || [];
  this.name = window.nbrMenuName;
  this.imagePath = window.nbrMenuPath + window.nbrImagesPath + '/';
  this.zIndex = window.nbrzindex;
  this.optimized = Number(window.nbrOptimize) === 1;
  this.submenusFrame = window.nbrSubmenusFrame || '';
  this.frameOffset = Number(window.nbrSubmenusFrameOffset) || 0;
  this.linkBase = baseOfLinks(window.nbrprp);
  this.templates = {};
  this.loaded = {};
  this.notes = 0;
}

Group.prototype = {
  styleSheet: function () {
    var self = this;
    return styleSheet(this.styles, function (number) { return self.addressOf(number); });
  },

  // The picture with a number: {address, width, height}, or null if there is none. A size of 0 means unknown.
  picture: function (number) {
    if (number === null || number < 0 || this.images[3 * number] === undefined) return null;
    return {
      address: this.addressOf(number), width: this.images[3 * number + 1], height: this.images[3 * number + 2]
    };
  },

  addressOf: function (number) {
    var name = number === null || number < 0 ? undefined : this.images[3 * number];
    return name === undefined ? null : this.imagePath + encodeURIComponent(decoded(name));
  },

  nameOf: function (number) {
    return decoded(this.images[3 * number]);
  },

  addressOfLink: function (url) {
    try {
      return this.linkBase ? new URL(url, this.linkBase).href : url;
    } catch (fault) {
      return url;
    }
  },

  // The state that is shown; optimized menus have no Mouse Click state.
  stateOf: function (state) {
    return this.optimized ? Math.min(state, 1) : state;
  },

  // The widest border among an item's states, or 0 if all are the same.
  edgeOf: function (item) {
    var styles = this.styles;
    var widths = [0, 1, this.stateOf(2)].map(function (state) { return borderWidth(styles[item.style(state)]); });
    var widest = Math.max.apply(null, widths);
    return widest === Math.min.apply(null, widths) ? 0 : widest;
  },

  // Loads the pictures of an item's other states, so that they show without delay.
  preload: function (item) {
    if (!this.images.length) return;
    for (var state = 1; state <= this.stateOf(2); state++) {
      this.load(item.picture(state));
      this.load(item.arrow(state));
      this.load(this.styles[item.style(state)][5]);
    }
  },

  load: function (number) {
    var address = this.addressOf(number);
    if (address === null || this.loaded[number]) return;
    this.loaded[number] = new Image();
    this.loaded[number].src = address;
  }
};
