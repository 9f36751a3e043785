// The style sheet of a menu. It is inside the menu's shadow tree, so that the menu's rules do not affect the page, and
// the page's rules do not affect the menu.

var CURSORS = ['default', 'pointer', 'crosshair', 'help', 'move', 'text', 'wait'];
var ALIGNMENTS = ['start', 'center', 'end'];
var FLEX = ['flex-start', 'center', 'flex-end'];

// Keeps even the page's important rules from reaching the host.
var HOST = ':host{all:initial!important;display:contents!important}' +
  // Custom properties are inherited from the page all the same.
  '.layer{position:absolute;left:0;top:0;width:0;height:0;font:16px sans-serif;--edge:initial;--gap:initial}';

var PANEL = '.panel{position:absolute;left:0;top:0;box-sizing:border-box;display:flex;flex-direction:column;width:max-content;' +
  'overscroll-behavior:contain}' +
  '.panel.across{flex-direction:row;align-items:stretch}' +
  '.scroll{overflow:auto}.down.scroll{overflow-y:scroll}' +
  '.title{box-sizing:border-box;flex:none;display:flex;align-items:center;justify-content:var(--at);' +
  '-webkit-user-select:none;user-select:none}' +
  '.drag{touch-action:none}' +
  '.down>.list.gap>*+*{margin-top:var(--gap)}' +
  '.down>.list.even{display:grid;grid-auto-rows:1fr;row-gap:var(--gap)}' +
  '.down>.list.even>*+*{margin-top:0}' +
  '.across>.list{display:grid;grid-auto-flow:column;grid-auto-columns:max-content;column-gap:var(--gap)}' +
  '.across>.list.wide{grid-auto-columns:1fr}' +
  '.across.wrap>.list{display:flex;flex-wrap:wrap;gap:var(--gap)}' +
  '.across.wrap>.list.wide>*{min-width:var(--widest)}';

var ITEM = '.item{display:block;box-sizing:border-box;color:inherit;text-decoration:none;' +
  '-webkit-tap-highlight-color:transparent}' +
  '.across>.list>.item,.even>.item,.item.parts{display:flex;align-items:center;justify-content:var(--at)}' +
  '.parts>.content{flex:1}' +
  // A change of state replaces nodes inside the item. If one of them were the target of the press, there would be no
  // click.
  '.item *{pointer-events:none}' +
  '.item :is(a,button,input,select,textarea,[onclick]){pointer-events:auto}' +
  '.content{display:flex;align-items:center;justify-content:var(--at);gap:4px}' +
  '.place0{flex-direction:column;align-items:var(--at)}' +
  '.place1{flex-direction:row-reverse;justify-content:var(--against)}' +
  '.place2{flex-direction:column-reverse;align-items:var(--at)}' +
  '.picture,.arrow{display:block;flex:none}' +
  '.arrow{margin-inline-start:6px}' +
  '[dir=rtl]>.down>.list .arrow{transform:scaleX(-1)}' +
  // Two colours, so that one contrasts with any colour that the author chose.
  '.item:focus{outline:0}' +
  '.item:focus-visible{outline:2px solid #000;outline-offset:-2px;box-shadow:inset 0 0 0 4px #fff}';

var FORCED = '@media(forced-colors:active){' +
  '.layer .panel{border:1px solid CanvasText}' +
  '.layer .on{forced-color-adjust:none;background:Highlight;color:HighlightText}' +
  '.item:focus-visible{outline-color:Highlight}.on:focus-visible{outline-color:HighlightText}}';

// Removes characters with which an author's value could end its rule.
function clean(value) {
  return String(value).replace(/[{}<>;\\]/g, '');
}

function border(values) {
  if (!borderWidth(values)) return 'border:0;';
  return 'border:' + borderWidth(values) + 'px ' + clean(values[8]) + ' ' + clean(values[10] || '') + ';';
}

// An item whose states have borders of different widths reserves room for the widest, `--edge`, so that nothing moves.
function padding(values) {
  var edge = borderWidth(values) + 'px';
  return 'padding:calc(' + Number(values[11]) + 'px + var(--edge,' + edge + ') - ' + edge + ');';
}

// Adds a size to a font that has none, as CSS requires one.
function font(value) {
  return clean(value).replace(/^((?:italic |bold )*) /, '$1medium ');
}

export function borderWidth(values) {
  return values[8] === 'none' ? 0 : Number(values[9]);
}

function background(colour, url) {
  return (colour === null ? '' : 'background-color:' + clean(colour) + ';') +
    (url ? 'background-image:url("' + url + '");' : '');
}

// The rule for the values of one nbrCreateCSS call: marker, kind, alignment, font colour, background colour and
// picture, font, decoration, border style, width and colour, padding, cursor. Kind 1 is a container, which has no text.
// Picture: the address of the background picture, or null.
export function styleRule(number, values, picture) {
  var rule = background(values[4], picture) + border(values);
  if (values[1] !== 1) {
    rule += 'text-align:' + (ALIGNMENTS[values[2]] || 'start') + ';--at:' + (FLEX[values[2]] || FLEX[0]) +
      ';--against:' + (FLEX[2 - values[2]] || FLEX[2]) + ';' + padding(values) + 'cursor:' +
      (CURSORS[values[12]] || CURSORS[0]) + ';text-decoration:' + (values[7] || 'none') + ';' +
      (values[3] === null ? '' : 'color:' + clean(values[3]) + ';') +
      (values[6] === null ? '' : 'font:' + font(values[6]) + ';');
  }
  return '.s' + number + '{' + rule + '}';
}

// All rules. pictureOf returns the address of the picture with a number, or null.
export function styleSheet(styles, pictureOf) {
  var rules = [HOST, PANEL, ITEM];
  for (var i = 0; i < styles.length; i++) rules.push(styleRule(i, styles[i], pictureOf(styles[i][5])));
  rules.push(FORCED);
  return rules.join('');
}
