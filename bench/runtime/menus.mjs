// The data of the compared menus, and the scripts that build the forms other than the compiled one.

export const TOP = 10;
// The number of items below each item of the first and of the second level.
const shapes = { 100: [3, 2], 1000: [9, 10], 10000: [27, 36] };
export const sizes = Object.keys(shapes).map(Number);

function entries(count, [next, ...below], name) {
  return Array.from({ length: count }, (_, index) => {
    const text = `${name} ${index + 1}`;
    const address = `${text.toLowerCase().replaceAll(' ', '-')}.html`;
    return { text, address, title: `About ${text}`, entries: next ? entries(next, below, text) : [] };
  });
}

export const menuOf = (size) => entries(TOP, shapes[size], 'Item');

// The items of a menu file (tests/browser/support/menu_file.mjs).
export const toItems = (list) => list.map(({ text, address, title, entries: below }) => ({
  ItemName: text, URL: address, ItemTooltip: title,
  ...(below.length && { submenu: { DisplayNameAsTitle: 2, items: toItems(below) } }),
}));

const toMarkup = (list) => list.map(({ text, address, title, entries: below }) => (
  `<li class="entry"><a href="${address}" title="${title}">${text}</a>${below.length ? `<ul>${toMarkup(below)}</ul>` : ''}</li>`
)).join('');

function toCalls(list, parent) {
  return list.map(({ text, address, title, entries: below }) => {
    const call = `add(${parent}, ${[text, address, title].map((value) => JSON.stringify(value)).join(', ')});\n`;
    const inner = `${parent}_`;
    return below.length ? `${call}var ${inner} = addList(${parent});\n${toCalls(below, inner)}` : call;
  }).join('');
}

// Both scripts define fill(list). This one calls a function for each entry, as a generator would.
export const callsScript = (list) => `function add(list, text, address, title) {
  var item = document.createElement('li');
  var link = document.createElement('a');
  item.setAttribute('class', 'entry');
  link.setAttribute('href', address);
  link.setAttribute('title', title);
  link.textContent = text;
  item.appendChild(link);
  list.appendChild(item);
}
function addList(list) {
  var below = document.createElement('ul');
  list.lastChild.appendChild(below);
  return below;
}
function fill(list) {
${toCalls(list, 'list')}}`;

export const markupScript = (list) => `function fill(list) { list.innerHTML = ${JSON.stringify(toMarkup(list))}; }`;
