// What the browser tests share: the sample site compiled and linked in a temporary folder, and a browser.
import { execFileSync } from 'node:child_process';
import { cpSync, mkdtempSync, readdirSync, readFileSync, rmSync } from 'node:fs';
import { createServer } from 'node:http';
import { tmpdir } from 'node:os';
import { extname, join } from 'node:path';
import puppeteer from 'puppeteer-core';

export const bin = process.env.NIMBREL_BIN ?? 'build/bin';
export const nbrc = (...words) => execFileSync(join(bin, 'nbrc'), words, { encoding: 'utf8' });

const sample = 'thistlewick';

// A copy of the sample's folder, with the menu compiled to menu.js and linked to each page.
export function makeSite() {
  const folder = mkdtempSync(join(tmpdir(), 'nimbrel-site-'));
  cpSync(join(bin, 'Examples', sample), folder, { recursive: true });
  const menu = join(folder, `${sample}.nbr`);
  const script = join(folder, 'menu.js');
  const pages = readdirSync(folder).filter((name) => name.endsWith('.html'));
  nbrc('compile', menu, '--to', script);
  nbrc('link', script, ...pages.map((page) => join(folder, page)));
  return { folder, menu, pages, remove: () => rmSync(folder, { recursive: true }) };
}

// The items of a menu file in tree order.
export function itemsOf(menu) {
  return JSON.parse(nbrc('show', '--json', menu)).elements
    .filter((element) => element.key.startsWith('I'))
    .map((element) => element.properties);
}

export const launch = () => puppeteer.launch({
  executablePath: '/usr/bin/chromium',
  args: ['--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run', '--disable-background-networking',
    '--disable-component-update', '--disable-sync'],
});

const types = {
  '.css': 'text/css', '.gif': 'image/gif', '.html': 'text/html', '.js': 'text/javascript', '.png': 'image/png',
};

// Serves a folder on this machine alone; gives its address and how to stop. Types go out without a character
// set, as from a server that nobody has set up.
export async function serve(folder) {
  const server = createServer((request, response) => {
    const path = decodeURIComponent(new URL(request.url, 'http://localhost').pathname);
    try {
      const content = readFileSync(join(folder, path));
      response.writeHead(200, { 'content-type': types[extname(path)] }).end(content);
    } catch {
      response.writeHead(404).end();
    }
  });
  await new Promise((ready) => server.listen(0, '127.0.0.1', ready));
  return { address: `http://127.0.0.1:${server.address().port}`, stop: () => server.close() };
}

// Opens an address; gives the page and, as they come, the faults it met.
export async function open(browser, address) {
  const page = await browser.newPage();
  const faults = [];
  page.on('pageerror', (error) => faults.push(`error: ${error.message}`));
  page.on('console', (message) => message.type() === 'error' && faults.push(`console: ${message.text()}`));
  page.on('requestfailed', (request) => faults.push(`failed: ${request.url()}`));
  page.on('response', (response) => response.ok() || faults.push(`${response.status()}: ${response.url()}`));
  await page.goto(address, { waitUntil: 'load' });
  return { page, faults };
}

export const read = (...parts) => readFileSync(join(...parts), 'latin1');
