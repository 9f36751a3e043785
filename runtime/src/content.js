// The nodes inside titles and items.

export function create(tag, className) {
  var node = document.createElement(tag);
  if (className) node.className = className;
  return node;
}

export function isPlain(text) {
  return text.indexOf('<') < 0 && text.indexOf('&') < 0;
}

// A document without a window loads no pictures and runs no scripts.
var inert = document.implementation.createHTMLDocument('');

// The text of markup, with the alternative texts of its pictures.
export function plainText(markup) {
  if (!markup || isPlain(markup)) return (markup || '').trim();
  inert.body.innerHTML = markup;
  var text = inert.body.textContent;
  var pictures = inert.body.querySelectorAll('img[alt]');
  for (var i = 0; i < pictures.length; i++) text += ' ' + pictures[i].alt;
  return text.replace(/\s+/g, ' ').trim();
}

// Names are markup written by the menu's author.
function textNode(text) {
  var node = create('span', 'text');
  if (isPlain(text)) node.textContent = text;
  else node.innerHTML = text;
  return node;
}

function pictureNode(className, picture) {
  var node = create('img', className);
  node.alt = '';
  node.draggable = false;
  if (picture.width > 0 && picture.height > 0) {
    node.width = picture.width;
    node.height = picture.height;
  }
  node.src = picture.address;
  return node;
}

// Fills an element with a text, a picture in one of four places (0 above, 1 right, 2 below, 3 left of the text) and
// an arrow at its end; a part that is null or empty is left out. Returns whether there is a picture or an arrow.
export function fill(element, text, picture, place, arrow) {
  var parts = Boolean(picture || arrow);
  if (!parts && isPlain(text)) {
    element.textContent = text;
    return false;
  }
  element.textContent = '';
  var content = parts ? element.appendChild(create('span', 'content place' + place)) : element;
  if (picture) content.appendChild(pictureNode('picture', picture));
  if (text) content.appendChild(textNode(text));
  if (arrow) element.appendChild(pictureNode('arrow', arrow));
  return parts;
}
