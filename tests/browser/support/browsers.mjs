// The browsers in which menus are tried, and what a visitor does in them.
import { after, before, describe } from 'node:test';
import puppeteer from 'puppeteer-core';

const browsers = {
  Chromium: {
    executablePath: '/usr/bin/chromium',
    args: ['--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run', '--disable-background-networking',
      '--disable-component-update', '--disable-sync'],
  },
  Firefox: {
    browser: 'firefox',
    executablePath: '/usr/bin/firefox-esr',
    extraPrefsFirefox: { 'privacy.reduceTimerPrecision': false },
  },
};

export const launch = (name) => puppeteer.launch(browsers[name]);

// Runs a set of tests in each browser; `start` gives the one of the set. NIMBREL_BROWSER names one alone.
export function inEachBrowser(tests) {
  for (const name of Object.keys(browsers)) {
    if (process.env.NIMBREL_BROWSER && process.env.NIMBREL_BROWSER !== name) continue;
    describe(name, () => {
      let browser;
      before(async () => { browser = await launch(name); });
      after(() => browser?.close());
      tests(name, (address, options) => open(browser, address, options));
    });
  }
}

// Opens an address; gives a visitor, who holds the faults that the page met.
export async function open(browser, address, { width = 1000, height = 700, prepare } = {}) {
  const page = await browser.newPage();
  const faults = [];
  page.on('pageerror', (error) => faults.push(`error: ${error.message}`));
  page.on('console', (message) => message.type() === 'error' && faults.push(`console: ${message.text()}`));
  page.on('requestfailed', (request) => faults.push(`failed: ${request.url()}`));
  page.on('response', (response) => response.status() < 400 || faults.push(`${response.status()}: ${response.url()}`));
  await page.setViewport({ width, height });
  if (prepare) await prepare(page);
  await page.goto(address, { waitUntil: 'load' });
  return new Visitor(page, page.mainFrame(), faults);
}

export const wait = (milliseconds) => new Promise((done) => setTimeout(done, milliseconds));

// Tries until it holds, or gives the last failure. For what a page does in its own time.
export async function eventually(check, limit = 3000) {
  const end = Date.now() + limit;
  for (;;) {
    try {
      return await check();
    } catch (failure) {
      if (Date.now() > end) throw failure;
    }
    await wait(20);
  }
}

// A visitor of a page, or of one frame of it. Items are named by their text or accessible name, menus by their names.
export class Visitor {
  constructor(page, frame, faults) {
    this.page = page;
    this.frame = frame;
    this.faults = faults;
    this.mouse = page.mouse;
  }

  async inFrame(name) {
    for (const frame of this.page.frames()) {
      if (await frame.evaluate(() => window.name) === name) return new Visitor(this.page, frame, this.faults);
    }
    throw new Error(`no frame ${name}`);
  }

  close() { return this.page.close(); }

  run(script, ...values) { return this.frame.evaluate(script, ...values); }

  press(key) { return this.page.keyboard.press(key); }

  // What is shown: each panel with its title, box and items.
  panels() {
    return this.run(() => [...document.querySelectorAll('[data-nbr-menu]')].flatMap((host) => (
      [...host.shadowRoot.querySelectorAll('.panel')].map((panel) => {
        const box = (node) => {
          const { left, top, right, bottom, width, height } = node.getBoundingClientRect();
          return { left, top, right, bottom, width, height };
        };
        return {
          menu: host.dataset.nbrMenu,
          role: panel.querySelector('.list').getAttribute('role'),
          title: panel.querySelector('.title')?.textContent ?? null,
          box: box(panel),
          items: [...panel.querySelectorAll('.item')].map((item) => ({
            name: item.textContent || item.getAttribute('aria-label'), box: box(item), class: item.className,
            href: item.getAttribute('href'), expanded: item.getAttribute('aria-expanded'), tabIndex: item.tabIndex,
          })),
        };
      }))));
  }

  // The names of the open panels' items, a list a panel.
  async shown() { return (await this.panels()).map((panel) => panel.items.map((item) => item.name)); }

  // A part of an item, of a title or of the panel that holds them: its box, the wanted styles and attributes.
  part(name, selector = null, styles = [], attributes = []) {
    return this.run((name, selector, styles, attributes) => {
      for (const host of document.querySelectorAll('[data-nbr-menu]')) {
        for (const node of host.shadowRoot.querySelectorAll('.item, .title')) {
          if ((node.textContent || node.getAttribute('aria-label')) !== name) continue;
          const part = !selector ? node : node.closest(selector) ?? node.querySelector(selector);
          if (!part) return null;
          const style = getComputedStyle(part);
          const { left, top, right, bottom, width, height } = part.getBoundingClientRect();
          const result = { left, top, right, bottom, width, height };
          for (const wanted of styles) result[wanted] = style[wanted];
          for (const wanted of attributes) result[wanted] = part.getAttribute(wanted);
          return result;
        }
      }
      return null;
    }, name, selector, styles, attributes);
  }

  // The middle of an item, as soon as nothing moves.
  async centre(name) {
    await this.run(async () => {
      for (const { shadowRoot } of document.querySelectorAll('[data-nbr-menu]')) {
        for (const animation of shadowRoot.getAnimations()) await animation.finished.catch(() => {});
      }
    });
    const box = await this.part(name);
    if (!box) throw new Error(`${name} is not shown`);
    const element = this.frame.parentFrame() && await this.frame.frameElement();
    const { x, y } = element ? await element.boundingBox() : { x: 0, y: 0 };
    return [(box.left + box.right) / 2 + x, (box.top + box.bottom) / 2 + y];
  }

  async hover(name, options) { await this.mouse.move(...await this.centre(name), options); }

  async click(name, options) { await this.mouse.click(...await this.centre(name), options); }

  async tap(name) { await this.page.touchscreen.tap(...await this.centre(name)); }

  // The name of the item that has the focus, or null.
  focused() {
    return this.run(() => {
      let node = document.activeElement;
      while (node?.shadowRoot) node = node.shadowRoot.activeElement;
      return node && node !== document.body ? node.textContent || node.getAttribute('aria-label') : null;
    });
  }
}
