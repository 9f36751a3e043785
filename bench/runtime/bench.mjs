// Times how menus are built and opened in the browsers. See README.md.
import { launch, open } from '../../tests/browser/support/browsers.mjs';
import { serve, Site } from '../../tests/browser/support/site.mjs';
import { sizes } from './menus.mjs';
import { forms, openerOf, submenuSizes, writeOpeningPage } from './pages.mjs';

const ROUNDS = Number(process.argv[2] ?? 7);
const OPENINGS = 11;
const buildLimits = { 1000: 1, 10000: 1.2 };
const openingLimits = { 20: 2, 1000: 10 };

const median = (values) => [...values].sort((a, b) => a - b)[values.length >> 1];
const pageOf = (form, size) => `${form.name.replace(' ', '-')}-${size}.html`;
const verdict = (value, limit, unit) => (limit ? `limit ${limit}${unit}${value <= limit ? '' : '  MISSED'}` : '');

function writeSite() {
  const site = new Site();
  for (const size of sizes) for (const form of forms) form.write(site, pageOf(form, size), size);
  writeOpeningPage(site, 'opening.html');
  return site;
}

// Opens an address with an empty cache, and returns the result of a script in the page.
async function sample(browser, address, script, ...values) {
  const context = await browser.createBrowserContext();
  try {
    const visitor = await open(context, address);
    const result = await visitor.run(script, ...values);
    if (visitor.faults.length) throw new Error(`${address}: ${visitor.faults.join('; ')}`);
    return result;
  } finally {
    await context.close();
  }
}

async function readTimes() {
  while (!window.times.painted) await new Promise((done) => setTimeout(done, 5));
  const host = document.querySelector('[data-nbr-menu]');
  const nodes = host ? host.shadowRoot.querySelectorAll('.item') : document.querySelectorAll('#menu a');
  return { ...window.times, nodes: nodes.length };
}

async function timeBuilding(browser, base, form, size) {
  const times = await sample(browser, `${base}/${pageOf(form, size)}`, readTimes);
  if (times.nodes !== form.nodes(size)) throw new Error(`${form.name}: ${times.nodes} nodes for ${size} items`);
  return {
    load: times.start - times.load, built: times.built - times.start,
    laidOut: times.laidOut - times.start, painted: times.painted - times.start,
  };
}

// Presses the item with a name several times; returns the time from each press to the layout of its panel.
async function press(name, count, times) {
  const root = document.querySelector('[data-nbr-menu]').shadowRoot;
  const item = [...root.querySelectorAll('.item')].find((node) => node.textContent === name);
  const send = (node, type) => node.dispatchEvent(new PointerEvent(type, { bubbles: true, composed: true, pointerType: 'mouse' }));
  const painted = () => new Promise((done) => requestAnimationFrame(() => requestAnimationFrame(done)));
  const results = [];
  for (let time = 0; time < times; time++) {
    await painted();
    const start = performance.now();
    send(item, 'pointerdown');
    const panel = [...root.querySelectorAll('.panel')].at(-1);
    const { height } = panel.getBoundingClientRect();
    results.push(performance.now() - start);
    if (panel.querySelectorAll('.item').length !== count || !height) throw new Error(`${name} has not opened`);
    await painted();
    send(item, 'pointerup');
    send(document.body, 'pointerdown');
    if (root.querySelectorAll('.panel').length !== 1) throw new Error(`${name} has not closed`);
  }
  return results;
}

// The same for a list with as many links, built by plain DOM calls and removed again.
async function listLinks(name, count, times) {
  const results = [];
  for (let time = 0; time < times; time++) {
    await new Promise((done) => requestAnimationFrame(() => requestAnimationFrame(done)));
    const start = performance.now();
    const list = document.createElement('ul');
    list.style.cssText = 'position: absolute; white-space: nowrap';
    for (let index = 0; index < count; index++) {
      const link = document.createElement('a');
      link.setAttribute('href', `page-${index}.html`);
      link.setAttribute('title', `About ${name} ${index}`);
      link.textContent = `${name} ${index}`;
      list.appendChild(document.createElement('li')).appendChild(link);
    }
    document.body.appendChild(list).getBoundingClientRect();
    results.push(performance.now() - start);
    list.remove();
  }
  return results;
}

async function building(browser, base) {
  const samples = {};
  for (let round = 0; round < ROUNDS; round++) {
    for (const size of sizes) {
      // Every second round in reverse order, so that no form always follows the same one.
      for (const form of round % 2 ? [...forms].reverse() : forms) {
        (samples[pageOf(form, size)] ??= []).push(await timeBuilding(browser, base, form, size));
      }
    }
  }
  const all = (form, size, part) => samples[pageOf(form, size)].map((times) => times[part]);
  const of = (form, size, part) => median(all(form, size, part));
  const rows = sizes.flatMap((size) => forms.map((form) => {
    const ratio = of(form, size, 'laidOut') / of(forms[0], size, 'laidOut');
    const limit = form.name === 'nimbrel' ? buildLimits[size] : null;
    const parts = ['load', 'built', 'laidOut', 'painted'].map((part) => of(form, size, part).toFixed(1));
    const best = Math.min(...all(form, size, 'laidOut')).toFixed(1);
    return [size, form.name, ...parts, best, ratio.toFixed(2), verdict(ratio, limit, '')];
  }));
  print(['items', 'form', 'load', 'built', 'laid out', 'painted', 'best', 'ratio', ''], rows);
}

async function opening(browser, base) {
  const rows = [];
  for (const count of submenuSizes) {
    const ours = [];
    const plain = [];
    for (let round = 0; round < ROUNDS; round++) {
      const time = (script) => sample(browser, `${base}/opening.html`, script, openerOf(count), count, OPENINGS);
      ours.push(await time(press));
      plain.push(...await time(listLinks));
    }
    const first = median(ours.map(([time]) => time));
    const all = median(ours.flat());
    const cells = [first, all, median(plain)].map((time) => time.toFixed(2));
    rows.push([count, ...cells, verdict(all, openingLimits[count], ' ms')]);
  }
  print(['items', 'first', 'all', 'plain DOM', ''], rows);
}

function print(head, rows) {
  const widths = head.map((_, column) => Math.max(...[head, ...rows].map((row) => String(row[column]).length)));
  const isText = (column) => ['form', ''].includes(head[column]);
  for (const row of [head, ...rows]) {
    const cells = row.map((cell, column) => String(cell)[isText(column) ? 'padEnd' : 'padStart'](widths[column]));
    console.log(cells.join('  ').trimEnd());
  }
}

const site = writeSite();
const server = await serve(site.folder);
try {
  for (const name of ['Chromium', 'Firefox']) {
    const browser = await launch(name);
    try {
      console.log(`\n${await browser.version()}, building: medians of ${ROUNDS} pages in ms`);
      await building(browser, server.address);
      console.log(`opening a submenu, in ms: medians of ${ROUNDS} pages, ${OPENINGS} openings each`);
      await opening(browser, server.address);
    } finally {
      await browser.close();
    }
  }
} finally {
  server.stop();
  site.remove();
}
