// The layer is the origin for the positions of all panels of a menu. Only the layer moves when the page scrolls: on
// each axis it is fixed either to the page or to the window.

import { create } from './content.js';

// The values of `Drifty`.
var BOTH = 1;
var DOWN = 2;
var ACROSS = 3;

function scroller() {
  return document.scrollingElement || document.documentElement;
}

// The child of the body that contains the running script. The menu is inserted before it: at the script's place in the
// tab order, but outside of elements that could clip or move it.
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

  // Whether the layer must be moved on scroll events. A menu that drifts on both axes needs it only in a transformed
  // body.
  follows: function () { return this.drift > 0; },

  // Moves the layer to the upper left corner of the page or, on an axis where it drifts, of the window; also in a body
  // that is itself positioned or transformed.
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

  // The width of a bar: that of the page, or of the window if the bar drifts sideways.
  pageWidth: function () {
    var own = this.windowSize().width;
    return this.driftsAcross() ? own : Math.max(own, scroller().scrollWidth);
  },

  // The box of the window, in coordinates of the layer.
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
