// The pages to time: one for each form and size of a menu, and one whose submenus are opened.
import { copyFileSync, readFileSync, writeFileSync } from 'node:fs';
import { basename } from 'node:path';
import { fileURLToPath } from 'node:url';
import { callsScript, markupScript, menuOf, toItems } from './menus.mjs';

// Records times in a page, in milliseconds. A first layout before them loads what every layout needs.
const marks = `<script>
document.body.getBoundingClientRect();
var times = { load: performance.now() };
function started() { times.start = performance.now(); }
function built(node) {
  times.built = performance.now();
  node.getBoundingClientRect();
  times.laidOut = performance.now();
  requestAnimationFrame(function () {
    requestAnimationFrame(function () { times.painted = performance.now(); });
  });
}
</script>`;

const page = (body) => `<!DOCTYPE html>
<html lang="en"><head><meta charset="utf-8"><title>Page</title>
<style>
body { font: 4mm sans-serif }
ul { list-style: none; padding: 0 }
a { display: block }
.closed ul, .hide { display: none }
</style>
</head><body><h1>Page</h1>
${marks}
${body}
</body></html>`;

const load = (file) => (file.endsWith('.css') ? `<link rel="stylesheet" href="${file}">` : `<script src="${file}"></script>`);

// A list built by a script that defines fill(list), and the start of a menu script on it.
const listPage = (files, start) => page(`${files.map(load).join('\n')}
<nav></nav>
<script>
started();
var nav = document.querySelector('nav');
var list = document.createElement('ul');
list.id = 'menu';
fill(list);
nav.appendChild(list);
${start}
built(list);
</script>`);

const installed = (path) => fileURLToPath(new URL(`../../node_modules/${path}`, import.meta.url));

// A form whose script creates nodes for all entries and then starts a menu script from files installed by npm.
const listForm = (name, script, start, files = []) => ({
  name,
  nodes: (size) => size,
  write(site, file, size) {
    const own = file.replace('.html', '.js');
    writeFileSync(site.path(own), script(menuOf(size)));
    for (const path of files) copyFileSync(installed(path), site.path(basename(path)));
    site.page(file, listPage([...files.map((path) => basename(path)), own], start));
  },
});

// Compiles and links a menu, and records times around the call that builds it.
function writeNimbrel(site, file, items) {
  site.page(file, page(''));
  site.menu(basename(file, '.html'), { menu: { DisplayNameAsTitle: 0 }, items }, [file]);
  const html = readFileSync(site.path(file), 'latin1');
  const call = '>nbrBuildMenu();<';
  if (!html.includes(call)) throw new Error(`${file} calls no menu`);
  const panel = "document.querySelector('[data-nbr-menu]').shadowRoot.querySelector('.panel')";
  site.page(file, html.replace(call, `>started();nbrBuildMenu();built(${panel});<`));
}

const nimbrel = {
  name: 'nimbrel',
  nodes: (size) => menuOf(size).length,
  write: (site, file, size) => writeNimbrel(site, file, toItems(menuOf(size))),
};

const closed = "list.className = 'closed';";

// The others are compared with the first.
export const forms = [
  listForm('plain DOM', callsScript, closed),
  nimbrel,
  listForm('plain markup', markupScript, closed),
  listForm('metismenujs', markupScript, "list.className = 'metismenu'; new MetisMenu(list);",
    ['metismenujs/dist/metismenujs.css', 'metismenujs/dist/metismenujs.min.js']),
  listForm('accessible-menu', markupScript, 'new Menubar({ menuElement: list });',
    ['accessible-menu/dist/menubar.iife.js']),
];

export const submenuSizes = [20, 1000];
export const openerOf = (count) => `Open ${count}`;

// A menu with a submenu of each of these sizes.
export function writeOpeningPage(site, file) {
  const flat = menuOf(10000).flatMap((entry) => entry.entries).flatMap((entry) => entry.entries);
  writeNimbrel(site, file, submenuSizes.map((count) => ({
    ItemName: openerOf(count), submenu: { DisplayNameAsTitle: 2, items: toItems(flat.slice(0, count)) },
  })));
}
