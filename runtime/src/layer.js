// The layer is the point of the page from which all panels of a menu are placed. It alone moves when the page scrolls:
// it stands in the page, in the window, or in one on each axis.

import { create } from './content.js';

// The values of `Drifty`.
var BOTH = 1;
var DOWN = 2;
var ACROSS = 3;

function scroller() {
  return document.scrollingElement || document.documentElement;
}

// The child of the body in which the running script stands: the menu goes ahead of it, so that its turn in the page
// is that of the script, and outside of everything that could clip or move it.
function placeInBody() {
  var node = document.currentScript;
  while (node && node.parentNode !== document.body) node = node.parentNode;
  return node;
}

export function Layer(group, options) {
  this.drift = Number(options.drift);
  this.rtl = getComputedStyle(document.body).direction === 'rtl';
  this.host = create('div');
  this.host.setAttribute('data-nbr-menu', group.name);
  this.root = this.host.attachShadow({ mode: 'open' });
  var style = this.root.appendChild(create('style'));
  style.textContent = group.styleSheet();
  this.element = this.root.appendChild(create('nav', 'layer'));
  this.element.dir = this.rtl ? 'rtl' : 'ltr';
  this.element.style.zIndex = group.zIndex;
  this.element.style.position = this.drift === BOTH || this.drift === DOWN ? 'fixed' : 'absolute';
  document.body.insertBefore(this.host, placeInBody());
}

Layer.prototype = {
  driftsAcross: function () { return this.drift === BOTH || this.drift === ACROSS; },
  driftsDown: function () { return this.drift === BOTH || this.drift === DOWN; },

  // Whether a scroll of the page may have to be followed by hand; on both axes only in a body that is transformed.
  follows: function () { return this.drift > 0; },

  // Puts its corner where the page's own has been before any scrolling or, where it drifts, at the window's; also in
  // a body that is itself placed or transformed.
  settle: function () {
    var style = this.element.style;
    var box = this.element.getBoundingClientRect();
    var left = this.driftsAcross() ? 0 : -window.pageXOffset;
    var top = this.driftsDown() ? 0 : -window.pageYOffset;
    if (box.left !== left) style.left = (parseFloat(style.left) || 0) + left - box.left + 'px';
    if (box.top !== top) style.top = (parseFloat(style.top) || 0) + top - box.top + 'px';
  },

  windowSize: function () {
    return { width: scroller().clientWidth, height: scroller().clientHeight };
  },

  // The width of what a bar runs along: the page, or the window if it drifts sideways.
  pageWidth: function () {
    var own = this.windowSize().width;
    return this.driftsAcross() ? own : Math.max(own, scroller().scrollWidth);
  },

  // What is seen of the page, measured from the layer's corner.
  area: function () {
    var box = this.element.getBoundingClientRect();
    var size = this.windowSize();
    return { left: -box.left, top: -box.top, right: size.width - box.left, bottom: size.height - box.top };
  },

  contains: function (node) {
    return Boolean(node) && this.element.contains(node);
  },

  focused: function () {
    return this.root.activeElement;
  }
};
