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

// Runs a set of tests in each browser, with how to open an address there. NIMBREL_BROWSER names one alone.
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

// What each page has for its tests: a list for commands to write to, and ways into the shadow trees of its menus.
function helpers() {
  window.log = [];
  window.roots = () => [...document.querySelectorAll('[data-nbr-menu]')].map((host) => host.shadowRoot);
  window.all = (selector) => roots().flatMap((root) => [...root.querySelectorAll(selector)]);
  window.nameOf = (node) => node.textContent || node.getAttribute('aria-label');
  window.boxOf = (node) => node.getBoundingClientRect().toJSON();
  window.partOf = (name, selector) => {
    const node = all('.item, .title').find((node) => nameOf(node) === name);
    return node && selector ? node.closest(selector) ?? node.querySelector(selector) : node;
  };
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
  await page.evaluateOnNewDocument(helpers);
  if (prepare) await prepare(page);
  await page.goto(address, { waitUntil: 'load' });
  return new Visitor(page, page.mainFrame(), faults);
}

export const wait = (milliseconds) => new Promise((done) => setTimeout(done, milliseconds));

// Tries until it holds, or gives the last failure. For what a page does in its own time.
export async function eventually(check, limit = 10000) {
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
    Object.assign(this, { page, frame, faults, mouse: page.mouse });
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

  // What is shown: each panel with its box and items.
  panels() {
    return this.run(() => all('.panel').map((panel) => ({
      menu: panel.getRootNode().host.dataset.nbrMenu, box: boxOf(panel),
      items: [...panel.querySelectorAll('.item')].map((item) => ({ name: nameOf(item), box: boxOf(item) })),
    })));
  }

  // The names of the open panels' items, a list a panel.
  async shown() { return (await this.panels()).map((panel) => panel.items.map((item) => item.name)); }

  // The box of an item or title, of a part in it or of the panel that holds it; null if it is not there.
  box(name, selector = '') {
    return this.run((...part) => {
      const node = partOf(...part);
      return node ? boxOf(node) : null;
    }, name, selector);
  }

  // The wanted styles and attributes of such a part.
  told(name, selector, ...wanted) {
    return this.run((name, selector, wanted) => {
      const node = partOf(name, selector);
      const style = getComputedStyle(node);
      return wanted.map((one) => style[one] ?? node.getAttribute(one));
    }, name, selector, wanted);
  }

  // The middle of an item, as soon as nothing moves.
  async centre(name) {
    await this.run(async () => {
      for (const animation of roots().flatMap((root) => root.getAnimations())) await animation.finished.catch(() => {});
    });
    const box = await this.box(name);
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
      return node && node !== document.body ? nameOf(node) : null;
    });
  }
}
