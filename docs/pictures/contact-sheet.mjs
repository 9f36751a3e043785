// Takes all styles of the gallery on one sheet: node docs/pictures/contact-sheet.mjs, from the root, behind a build.
import { execFileSync } from 'node:child_process';
import { mkdirSync, mkdtempSync, readdirSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { dirname, join } from 'node:path';
import { fileURLToPath, pathToFileURL } from 'node:url';
import { launch, wait } from '../../tests/browser/support/browsers.mjs';

const folder = dirname(fileURLToPath(import.meta.url));
const stage = join(folder, '../../build/bin');
const nbrc = (...words) => execFileSync(join(stage, 'nbrc'), ['--home', stage, ...words], { encoding: 'utf8' });
const work = mkdtempSync(join(tmpdir(), 'styles-'));
const names = readdirSync(join(stage, 'gallery')).filter((file) => file.endsWith('.nbs')).map((file) => file.slice(0, -4));

/// The gallery's own sample: three items, and a submenu below the second.
const macro = ['select M0', 'edit 3 1 "Top Left Corner"', 'edit 4 1 16', 'edit 5 1 14', 'edit 9 1 "Menu"',
  ...['Home', 'Products', 'About us'].flatMap((name, i) => [`select I${i + 1}`, ...[1, 3, 4].map((at) => `edit 0 ${at} "${name}"`)]),
  'select I2', 'run mnuSubmenuAddSubmenu', 'select S4', 'edit 0 1 "Products"', 'run mnuItemAddItem', 'run mnuItemAddItem', 'run mnuItemAddItem',
  'select I5', ...[1, 3, 4].map((at) => `edit 0 ${at} "Tables"`), 'select I6', ...[1, 3, 4].map((at) => `edit 0 ${at} "Chairs"`),
  'select I7', ...[1, 3, 4].map((at) => `edit 0 ${at} "Lamps"`),
  'choose ' + JSON.stringify(join(work, 'sample.nbr')), 'run mnuFileSaveAs'];
writeFileSync(join(work, 'sample.macro'), macro.join('\n') + '\n');
nbrc('play', join(work, 'sample.macro'));

const cells = [];
for (const [i, name] of names.entries()) {
  const site = join(work, `s${i}`);
  mkdirSync(site);
  nbrc('style', 'apply', name, join(work, 'sample.nbr'), '--to', join(site, 'menu.nbr'));
  writeFileSync(join(site, 'page.html'), '<html><head></head><body style="background:#f4f5f7"></body></html>');
  nbrc('compile', join(site, 'menu.nbr'), '--to', join(site, 'menu.js'));
  nbrc('link', join(site, 'menu.js'), join(site, 'page.html'));
  cells.push({ name, address: pathToFileURL(join(site, 'page.html')).href, shot: join(site, 'shot.png') });
}

const browser = await launch('Chromium');
const page = await browser.newPage();
await page.setViewport({ width: 300, height: 260 });
for (const cell of cells) {
  await page.goto(cell.address);
  await wait(150);
  const at = await page.evaluate(() => {
    const host = [...document.querySelectorAll('*')].find((e) => e.shadowRoot);
    const item = [...host.shadowRoot.querySelectorAll('[role=menuitem]')][1].getBoundingClientRect();
    return { x: item.x + 20, y: item.y + item.height / 2 };
  });
  await page.mouse.move(at.x, at.y);
  await wait(250);
  await page.screenshot({ path: cell.shot });
}
const sheet = '<body style="margin:12px;background:#fff;font:13px sans-serif;display:grid;grid-template-columns:repeat(5,300px);gap:10px">' +
  cells.map(({ name, shot }) => `<figure style="margin:0"><img src="${pathToFileURL(shot).href}" width=300 height=260 style="display:block">` +
    `<figcaption style="padding:4px 2px">${name}</figcaption></figure>`).join('') + '</body>';
writeFileSync(join(work, 'sheet.html'), sheet);
await page.setViewport({ width: 1564, height: 200 });
await page.goto(pathToFileURL(join(work, 'sheet.html')).href);
await page.screenshot({ path: join(folder, 'gallery-contact-sheet.png'), fullPage: true });
await browser.close();
