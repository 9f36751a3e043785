// Sites in temporary folders, with menus that nbrc has compiled and linked, and a server for them.
import { cpSync, mkdtempSync, readdirSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { createServer } from 'node:http';
import { tmpdir } from 'node:os';
import { extname, join } from 'node:path';
import { pathToFileURL } from 'node:url';
import { deflateSync } from 'node:zlib';
import { bin, nbrc, writeMenuFile } from './menu_file.mjs';

export const read = (...parts) => readFileSync(join(...parts), 'latin1');
export const addressOf = (...parts) => pathToFileURL(join(...parts)).href;

const standards = '<!DOCTYPE html><html lang="en"><head><title>Page</title></head><body><main><h1>Page</h1></main></body></html>';

export class Site {
  constructor(from) {
    this.folder = mkdtempSync(join(tmpdir(), 'nimbrel-site-'));
    if (from) cpSync(from, this.folder, { recursive: true });
  }

  remove() { rmSync(this.folder, { recursive: true }); }

  path(name) { return join(this.folder, name); }

  page(name, html = standards) {
    writeFileSync(this.path(name), html);
    return addressOf(this.folder, name);
  }

  // Compiles a document to NAME.js and links it to the pages, those that are there or plain new ones.
  menu(name, document, pages = [`${name}.html`]) {
    writeMenuFile(this.path(`${name}.nbr`), document);
    nbrc('compile', this.path(`${name}.nbr`), '--to', this.path(`${name}.js`));
    const there = readdirSync(this.folder);
    for (const page of pages) if (!there.includes(page)) this.page(page);
    this.link(`${name}.js`, pages);
    return addressOf(this.folder, pages[0]);
  }

  link(script, pages) { nbrc('link', this.path(script), ...pages.map((page) => this.path(page))); }

  // A picture of one colour; gives its path as a menu file holds it.
  picture(name, width, height, colour = [200, 40, 40]) {
    writeFileSync(this.path(name), png(width, height, colour));
    return this.path(name).replaceAll('/', '\\');
  }
}

// The check sum at the end of each part of a picture file.
function sum(bytes) {
  let result = ~0;
  for (const byte of bytes) {
    result ^= byte;
    for (let bit = 0; bit < 8; bit++) result = (result >>> 1) ^ (result & 1 ? 0xedb88320 : 0);
  }
  return ~result >>> 0;
}

function png(width, height, colour) {
  const row = Buffer.concat([Buffer.from([0]), ...Array.from({ length: width }, () => Buffer.from(colour))]);
  const chunk = (type, data) => {
    const body = Buffer.concat([Buffer.from(type), data]);
    const ends = Buffer.alloc(8);
    ends.writeUInt32BE(data.length, 0);
    ends.writeUInt32BE(sum(body), 4);
    return Buffer.concat([ends.subarray(0, 4), body, ends.subarray(4)]);
  };
  const head = Buffer.alloc(13);
  head.writeUInt32BE(width, 0);
  head.writeUInt32BE(height, 4);
  head.set([8, 2, 0, 0, 0], 8);
  return Buffer.concat([Buffer.from([137, 80, 78, 71, 13, 10, 26, 10]), chunk('IHDR', head),
    chunk('IDAT', deflateSync(Buffer.concat(Array(height).fill(row)))), chunk('IEND', Buffer.alloc(0))]);
}

// The sample site, with its menu linked to each page.
export function sampleSite() {
  const site = new Site(join(bin, 'Examples', 'thistlewick'));
  site.source = site.path('thistlewick.nbr');
  site.pages = readdirSync(site.folder).filter((name) => name.endsWith('.html'));
  nbrc('compile', site.source, '--to', site.path('menu.js'));
  site.link('menu.js', site.pages);
  return site;
}

// The items of a menu file in tree order.
export function itemsOf(menu) {
  return JSON.parse(nbrc('show', '--json', menu)).elements
    .filter((element) => element.key.startsWith('I'))
    .map((element) => element.properties);
}

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
      response.writeHead(path === '/favicon.ico' ? 204 : 404).end();
    }
  });
  await new Promise((ready) => server.listen(0, '127.0.0.1', ready));
  return {
    address: `http://127.0.0.1:${server.address().port}`,
    stop() {
      server.close();
      server.closeAllConnections();
    },
  };
}
