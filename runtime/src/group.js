// A group is what one call of buildMenu takes: the styles and pictures that its numbers refer to, and the settings
// of the script at that time. A page's next menu sets all of them anew.

import { borderWidth, styleSheet } from './style_sheet.js';

// Names stand in the script with references for characters that its encoding lacks.
function decoded(name) {
  return name.replace(/&#(\d+);/g, function (whole, code) { return String.fromCodePoint(code); });
}

// A preview lies elsewhere than the pages: its links lead to where the menu was last compiled.
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

  // The picture of a number: {address, width, height}, or null for none. A size of 0 is not known.
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

  // The state in which an item shows itself; the lighter build knows no third one.
  stateOf: function (state) {
    return this.optimized ? Math.min(state, 1) : state;
  },

  // The widest border of an item's states if they differ, else 0.
  edgeOf: function (item) {
    var styles = this.styles;
    var widths = [0, 1, this.stateOf(2)].map(function (state) { return borderWidth(styles[item.style(state)]); });
    var widest = Math.max.apply(null, widths);
    return widest === Math.min.apply(null, widths) ? 0 : widest;
  },

  // Loads what an item shows in its other states, so that it is there when it is wanted.
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
