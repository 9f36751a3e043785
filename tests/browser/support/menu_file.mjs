// Writes menu files from short descriptions:
//   { menu: { MenuType: 1 }, items: [{ ItemName: 'A', submenu: { SubmenuType: 1, items: [...] } }], settings: {...} }
// The names, order and defaults of the properties come from first.nbr, as nbrc prints it. A name without the digit of a
// state sets all three states.
import { execFileSync } from 'node:child_process';
import { writeFileSync } from 'node:fs';
import { join } from 'node:path';
import { fileURLToPath } from 'node:url';

export const bin = process.env.NIMBREL_BIN ?? 'build/bin';
export const nbrc = (...words) => execFileSync(join(bin, 'nbrc'), words, { encoding: 'utf8' });

const { elements, ...firstSettings } = JSON.parse(nbrc('show', '--json', fileURLToPath(new URL('first.nbr', import.meta.url))));
const first = Object.fromEntries(elements.map(({ key, properties }) => [key[0], properties]));
const marked = ['menuname', 'SubmenuName', 'ItemName1', 'ItemName2', 'ItemName3', 'StatusBarText'];

function propertyLine(kind, { items, submenu, ...given }) {
  const unknown = Object.keys(given).filter((name) => !(name in first[kind] || `${name}1` in first[kind]));
  if (unknown.length) throw new Error(`no property ${unknown}`);
  const values = Object.entries(first[kind]).map(([name, value]) => {
    const text = String(given[name] ?? given[name.replace(/[123]$/, '')] ?? value).replaceAll(',', '\u00b3');
    return marked.includes(name) ? `!${text}!` : text;
  });
  return `${values.join()},[nbrE${kind}]`;
}

// The file is written in a single-byte encoding.
export function writeMenuFile(path, { menu = {}, items = [], settings }) {
  const header = Object.values({ ...firstSettings, ...settings })
    .map((value) => ({ true: 'True', false: 'False' })[value] ?? value);
  const lines = ['nbr200', ...header, '[Menu Tree]'];
  let next = 0;
  const add = (kind, parent, given) => {
    const key = kind + next++;
    lines.push(parent, '!node!', key, propertyLine(kind, given));
    return key;
  };
  const addItems = (parent, list) => list.forEach((item) => {
    const key = add('I', parent, item);
    if (item.submenu) addItems(add('S', key, item.submenu), item.submenu.items);
  });
  addItems(add('M', ' 0 ', menu), items);
  writeFileSync(path, `${lines.join('\r\n')}\r\n`, 'latin1');
}
