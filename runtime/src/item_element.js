// The element of an item: its name, link, description and states.

import { create, fill, plainText } from './content.js';

function readable(fileName) {
  return fileName.replace(/\.[^.]*$/, '').replace(/[-_]+/g, ' ').trim();
}

// The accessible name of an item: its text, tooltip, status text, text in another state, the name of its picture, or
// its address. Empty for an item that is only a line or a gap.
export function nameOfItem(group, item) {
  var text = plainText(item.name(0)) || item.tooltip() || item.status() || plainText(item.name(1)) ||
    plainText(item.name(2));
  if (text) return text;
  if (group.picture(item.picture(0))) return readable(group.nameOf(item.picture(0)));
  return item.url() || '';
}

export function nameOfMenu(group, menu) {
  return plainText(menu.options.title) || menu.options.tooltip || (menu.item && nameOfItem(group, menu.item)) ||
    group.name;
}

function isLive(item) {
  return item.submenu || item.url() !== null || item.command(2) !== null || item.command(1) !== null;
}

function templateOf(group, item) {
  var style = item.style(0);
  var key = [style, item.style(1), item.style(2)].join();
  if (!group.templates[key]) {
    var node = create('a', 'item s' + style);
    node.setAttribute('role', 'menuitem');
    node.tabIndex = -1;
    if (group.edgeOf(item)) node.style.setProperty('--edge', group.edgeOf(item) + 'px');
    group.templates[key] = node;
  }
  return group.templates[key].cloneNode(false);
}

// The file name in an address. Comparing file names first is fast: only the few links that share the page's file name
// have to be resolved.
function lastPart(address) {
  return address.replace(/[?#].*/, '').replace(/.*\//, '');
}

function leadsHere(element, url) {
  var last = lastPart(url);
  var own = document.URL;
  if (/^[\w-][\w.-]*$/.test(last) && last !== lastPart(own)) return false;
  return element.href === own || (url.indexOf('#') < 0 && element.href === own.replace(/#.*/, ''));
}

export function markCurrent(item) {
  var url = item.url();
  if (url === null) return;
  if (leadsHere(item.element, url)) item.element.setAttribute('aria-current', 'page');
  else item.element.removeAttribute('aria-current');
}

function setLink(group, item) {
  var target = item.target();
  item.element.setAttribute('href', group.addressOfLink(item.url()));
  if (target === 'new') {
    item.element.target = '_blank';
    item.element.rel = 'noopener';
  } else if (target) {
    item.element.target = target;
  }
  markCurrent(item);
}

// Browsers no longer let pages write to the status bar; the text becomes the item's accessible description.
function describe(group, item, notes) {
  var note = notes.appendChild(create('span'));
  note.id = 'note' + group.notes++;
  note.textContent = item.status();
  item.element.setAttribute('aria-describedby', note.id);
}

function showContent(group, item, state, opens) {
  var arrow = opens ? group.picture(item.arrow(state)) : null;
  return fill(item.element, item.name(state), group.picture(item.picture(state)), item.picturePlace(state), arrow);
}

function nameElement(group, item) {
  var name = nameOfItem(group, item);
  if (name) {
    item.element.setAttribute('aria-label', name);
  } else if (isLive(item)) {
    item.element.setAttribute('aria-label', String(item.menu.items.indexOf(item) + 1));
  } else {
    item.element.setAttribute('role', 'separator');
    item.element.removeAttribute('tabindex');
  }
}

// Builds the element of an item in its Normal state. Opens: whether it has a submenu. Notes: the element for the
// descriptions of items, which must not become part of their text.
export function buildItem(group, item, opens, notes) {
  var element = templateOf(group, item);
  element.nbrItem = item;
  item.element = element;
  item.state = 0;
  if (showContent(group, item, 0, opens)) element.classList.add('parts');
  if (item.url() !== null) setLink(group, item);
  if (item.tooltip()) element.title = item.tooltip();
  if (item.status()) describe(group, item, notes);
  if (opens) markOpening(item);
  // An item that shows only a picture in one of its states keeps its name there.
  if (!plainText(item.name(0)) || item.name(1) === '' || item.name(2) === '') nameElement(group, item);
  return element;
}

export function markOpening(item) {
  item.element.setAttribute('aria-haspopup', 'menu');
  item.element.setAttribute('aria-expanded', 'false');
}

function sameContent(item, one, other) {
  return item.name(one) === item.name(other) && item.picture(one) === item.picture(other) &&
    item.arrow(one) === item.arrow(other) && item.picturePlace(one) === item.picturePlace(other);
}

// Shows an item in a state and changes only what differs. Renew: rebuilds the content even if nothing differs.
export function showState(group, item, state, opens, renew) {
  var element = item.element;
  var shown = group.stateOf(state);
  if (!element || (shown === item.state && !renew)) return;
  var parts = element.classList.contains('parts');
  if (renew || !sameContent(item, shown, item.state)) parts = showContent(group, item, shown, opens);
  element.className = 'item s' + item.style(shown) + (shown ? ' on' : '') + (parts ? ' parts' : '');
  item.state = shown;
}
