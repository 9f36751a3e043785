// Writes menu files from short descriptions:
//   { menu: { MenuType: 1 }, items: [{ ItemName: 'A', submenu: { SubmenuType: 1, items: [...] } }], settings: {...} }
// Names of properties, their order and what they are at first come from nbrc. A name without the digit of a state
// stands for all three states. Items lead nowhere unless they are told to.
import { execFileSync } from 'node:child_process';
import { mkdtempSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';

export const bin = process.env.NIMBREL_BIN ?? 'build/bin';
export const nbrc = (...words) => execFileSync(join(bin, 'nbrc'), words, { encoding: 'utf8' });

const settingNames = ['CompiledPath', 'CompiledName', 'nbrLibraryPath', 'nbrImagePath', 'nbrOptimize',
  'nbrSubmenusFrame', 'nbrSubmenusFrameOffset', 'nbrFrontPageSupport'];
const marked = new Set(['menuname', 'SubmenuName', 'ItemName1', 'ItemName2', 'ItemName3', 'StatusBarText']);
const ends = { M: '[nbrEM]', S: '[nbrES]', I: '[nbrEI]' };

// The properties of each class, as a first document and one with a bare submenu have them.
function readDefaults() {
  const folder = mkdtempSync(join(tmpdir(), 'nimbrel-defaults-'));
  try {
    const path = join(folder, 'default.nbr');
    nbrc('new', path);
    const lines = readFileSync(path, 'latin1').split('\r\n');
    const itemLine = lines.findIndex((line) => line.endsWith(ends.I));
    const submenu = '!0!,1,0,-4,2,0,0,0,0,n,0,1,,0,0,sans-serif,4mm,0,0,0,#FFFFFF,n,solid,2,#5B5B5B,#C0C0C0,n,outset,2,' +
      '#C0C0C0,0,1,0,n,n,';
    lines.splice(itemLine + 1, 0, 'I1', '!0!', 'S9', submenu + ends.S);
    writeFileSync(path, lines.join('\r\n'), 'latin1');
    const { elements } = JSON.parse(nbrc('show', '--json', path));
    const of = (key) => elements.find((element) => element.key === key).properties;
    return { M: of('M0'), S: of('S9'), I: { ...of('I1'), URL: 'n', TargetFrame: 'n' } };
  } finally {
    rmSync(folder, { recursive: true });
  }
}

let defaults;

function propertiesOf(kind, given) {
  const properties = { ...defaults[kind] };
  const put = (name, value) => {
    if (!(name in properties)) throw new Error(`no property ${name}`);
    properties[name] = value;
  };
  const isWhole = (name) => name in properties;
  const names = Object.keys(given).filter((name) => !['items', 'submenu'].includes(name));
  for (const name of names.filter((name) => !isWhole(name))) [1, 2, 3].forEach((state) => put(name + state, given[name]));
  for (const name of names.filter(isWhole)) put(name, given[name]);
  return properties;
}

function valueOf(name, value) {
  const text = String(value).replaceAll(',', '\u00b3');
  return marked.has(name) ? `!${text}!` : text;
}

// The document as the text of a menu file, one character a byte.
export function menuText({ menu = {}, items = [], settings = {} }) {
  defaults ??= readDefaults();
  const lines = ['nbr200'];
  for (const name of settingNames) {
    const value = settings[name] ?? { nbrOptimize: false, nbrSubmenusFrameOffset: 0, nbrFrontPageSupport: false }[name] ?? '';
    lines.push(typeof value === 'boolean' ? (value ? 'True' : 'False') : String(value));
  }
  lines.push('[Menu Tree]');
  let next = 0;
  const add = (kind, parent, nameProperty, given) => {
    const properties = propertiesOf(kind, given);
    const key = kind + next++;
    const values = Object.entries(properties).map(([name, value]) => valueOf(name, value));
    lines.push(parent, `!${String(properties[nameProperty]).replaceAll(',', '\u00b3')}!`, key, `${values.join()},${ends[kind]}`);
    return key;
  };
  const addItems = (parent, list) => {
    for (const item of list) {
      const key = add('I', parent, 'ItemName1', item);
      if (item.submenu) addItems(add('S', key, 'SubmenuName', item.submenu), item.submenu.items);
    }
  };
  addItems(add('M', ' 0 ', 'menuname', menu), items);
  return `${lines.join('\r\n')}\r\n`;
}

export function writeMenuFile(path, document) {
  writeFileSync(path, menuText(document), 'latin1');
}
