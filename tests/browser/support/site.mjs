// Sites in temporary folders, with menus that nbrc has compiled and linked, and a server for them.
import { existsSync, mkdtempSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { createServer } from 'node:http';
import { tmpdir } from 'node:os';
import { extname, join } from 'node:path';
import { pathToFileURL } from 'node:url';
import { nbrc, writeMenuFile } from './menu_file.mjs';

export const fileUrl = (...parts) => pathToFileURL(join(...parts)).href;

export const pageOf = (body = '', attributes = '') => (
  `<!DOCTYPE html><html lang="en"${attributes}><head><title>Page</title></head><body>${body}</body></html>`);

export class Site {
  constructor() { this.folder = mkdtempSync(join(tmpdir(), 'nimbrel-site-')); }

  remove() { rmSync(this.folder, { recursive: true }); }

  path(name) { return join(this.folder, name); }

  page(name, html = pageOf()) { writeFileSync(this.path(name), html); }

  // Compiles a menu to NAME.js and links it to pages, which are created if they do not exist.
  menu(name, document, pages = [`${name}.html`]) {
    writeMenuFile(this.path(`${name}.nbr`), document);
    nbrc('compile', this.path(`${name}.nbr`), '--to', this.path(`${name}.js`));
    for (const page of pages) if (!existsSync(this.path(page))) this.page(page);
    this.link(`${name}.js`, pages);
    return fileUrl(this.folder, pages[0]);
  }

  link(script, pages) { nbrc('link', this.path(script), ...pages.map((page) => this.path(page))); }

  // Writes an empty picture; returns its path as menu files write it.
  picture(name, width, height) {
    const bytes = Buffer.from('R0lGODlhAQABAIAAAAAAAAAAACH5BAEAAAAALAAAAAABAAEAAAIBRAA7', 'base64');
    bytes.writeUInt16LE(width, 6);
    bytes.writeUInt16LE(height, 8);
    writeFileSync(this.path(name), bytes);
    return this.path(name).replaceAll('/', '\\');
  }
}

const types = { '.css': 'text/css', '.gif': 'image/gif', '.html': 'text/html', '.js': 'text/javascript', '.png': 'image/png' };

// Serves a folder to this machine only. Responses name no character set, like those of a server in its default state.
export async function serve(folder) {
  const server = createServer((request, response) => {
    const path = decodeURIComponent(new URL(request.url, 'http://localhost').pathname);
    try {
      const content = readFileSync(join(folder, path));
      response.writeHead(200, { 'content-type': types[extname(path)] ?? 'image/jpeg' }).end(content);
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
