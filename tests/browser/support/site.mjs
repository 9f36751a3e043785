// Sites in temporary folders, with menus that nbrc has compiled and linked, and a server for them.
import { cpSync, existsSync, mkdtempSync, readdirSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { createServer } from 'node:http';
import { tmpdir } from 'node:os';
import { extname, join } from 'node:path';
import { pathToFileURL } from 'node:url';
import { bin, nbrc, writeMenuFile } from './menu_file.mjs';

export const read = (...parts) => readFileSync(join(...parts), 'latin1');
export const addressOf = (...parts) => pathToFileURL(join(...parts)).href;

export const pageOf = (body = '', more = '') => (
  `<!DOCTYPE html><html lang="en"${more}><head><title>Page</title></head><body>${body}</body></html>`);

export class Site {
  constructor(from) {
    this.folder = mkdtempSync(join(tmpdir(), 'nimbrel-site-'));
    if (from) cpSync(from, this.folder, { recursive: true });
  }

  remove() { rmSync(this.folder, { recursive: true }); }

  path(name) { return join(this.folder, name); }

  page(name, html = pageOf()) { writeFileSync(this.path(name), html); }

  // Compiles a document to NAME.js and links it to the pages, those that are there or plain new ones.
  menu(name, document, pages = [`${name}.html`]) {
    writeMenuFile(this.path(`${name}.nbr`), document);
    nbrc('compile', this.path(`${name}.nbr`), '--to', this.path(`${name}.js`));
    for (const page of pages) if (!existsSync(this.path(page))) this.page(page);
    this.link(`${name}.js`, pages);
    return addressOf(this.folder, pages[0]);
  }

  link(script, pages) { nbrc('link', this.path(script), ...pages.map((page) => this.path(page))); }

  // An empty picture; gives its path as a menu file holds it.
  picture(name, width, height) {
    const bytes = Buffer.from('R0lGODlhAQABAIAAAAAAAAAAACH5BAEAAAAALAAAAAABAAEAAAIBRAA7', 'base64');
    bytes.writeUInt16LE(width, 6);
    bytes.writeUInt16LE(height, 8);
    writeFileSync(this.path(name), bytes);
    return this.path(name).replaceAll('/', '\\');
  }
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
  '.css': 'text/css', '.gif': 'image/gif', '.html': 'text/html', '.jpg': 'image/jpeg', '.js': 'text/javascript',
  '.png': 'image/png',
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
