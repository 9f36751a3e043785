// The browsers that the tests run in, and a visitor who uses pages in them.
import assert from 'node:assert/strict';
import { existsSync } from 'node:fs';
import puppeteer from 'puppeteer-core';

// Chromium without its user interface, which takes half of the time.
const shell = '/usr/bin/chromium-headless-shell';

const browsers = {
  Chromium: {
    ...(existsSync(shell) ? { executablePath: shell, headless: 'shell' } : { executablePath: '/usr/bin/chromium' }),
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

// Added to every page: a log that commands can write to, and access to the shadow trees of the menus.
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

// Opens a page. The visitor collects its errors: exceptions, console errors and failed requests.
export async function open(browser, address, { width = 1000, height = 700, prepare } = {}) {
  const page = await browser.newPage();
  const faults = [];
  page.on('pageerror', (error) => faults.push(`error: ${error.message}`));
  page.on('console', (message) => message.type() === 'error' && faults.push(`console: ${message.text()}`));
  page.on('requestfailed', (request) => faults.push(`failed: ${request.url()}`));
  page.on('response', (response) => response.status() < 400 || faults.push(`${response.status()}: ${response.url()}`));
  await page.setViewport({ width, height });
  await page.evaluateOnNewDocument(helpers);
  await prepare?.(page);
  await page.goto(address);
  return new Visitor(page, page.mainFrame(), faults);
}

// Repeats a check until it passes; after the time limit it throws the last failure.
export async function eventually(check, milliseconds = 10000) {
  const end = Date.now() + milliseconds;
  for (;;) {
    try {
      return await check();
    } catch (failure) {
      if (Date.now() > end) throw failure;
    }
    await new Promise((done) => setTimeout(done, 20));
  }
}

// Uses a page, or one frame of it. Items and titles are found by their text or accessible name.
export class Visitor {
  constructor(page, frame, faults) {
    Object.assign(this, { page, frame, faults });
  }

  inFrame(page) {
    return new Visitor(this.page, this.page.frames().find((frame) => frame.url().endsWith(page)), this.faults);
  }

  close() { return this.page.close(); }

  run(script, ...values) { return this.frame.evaluate(script, ...values); }

  // The open panels, each with its menu's name, its box and its items.
  panels() {
    return this.run(() => all('.panel').map((panel) => ({
      menu: panel.getRootNode().host.dataset.nbrMenu, box: boxOf(panel),
      items: [...panel.querySelectorAll('.item')].map((item) => ({ name: nameOf(item), box: boxOf(item) })),
    })));
  }

  // The open panels, each by the name of its first item: 'File/New/Recent'.
  async opened() { return (await this.panels()).map(({ items: [first] }) => first.name).join('/'); }

  shows(wanted, message) { return eventually(async () => assert.equal(await this.opened(), wanted, message)); }

  focuses(wanted) { return eventually(async () => assert.equal(await this.focused(), wanted)); }

  logs(...wanted) { return eventually(async () => assert.deepEqual(await this.run(() => log), wanted)); }

  // The box of an item, of a part inside it, or of the panel or layer around it; null if there is none.
  box(name, selector = '') {
    return this.run((...part) => {
      const node = partOf(...part);
      return node ? boxOf(node) : null;
    }, name, selector);
  }

  // Computed styles and attributes of the same.
  look(name, selector, ...wanted) {
    return this.run((name, selector, wanted) => {
      const node = partOf(name, selector);
      const style = getComputedStyle(node);
      return wanted.map((one) => style[one] ?? node.getAttribute(one));
    }, name, selector, wanted);
  }

  // A place is a point of the window, or the name of an item: its centre once no panel is unfolding any more.
  async pointOf(place) {
    if (Array.isArray(place)) return place;
    await this.run(async () => {
      for (const animation of roots().flatMap((root) => root.getAnimations())) await animation.finished.catch(() => {});
    });
    const box = await this.box(place);
    assert.ok(box, `${place} is not shown`);
    const element = this.frame.parentFrame() && await this.frame.frameElement();
    const { x, y } = element ? await element.boundingBox() : { x: 0, y: 0 };
    return [(box.left + box.right) / 2 + x, (box.top + box.bottom) / 2 + y];
  }

  async hover(place) { await this.page.mouse.move(...await this.pointOf(place)); }

  async click(place) { await this.page.mouse.click(...await this.pointOf(place)); }

  async tap(place) { await this.page.touchscreen.tap(...await this.pointOf(place)); }

  async press(keys) {
    for (const key of keys.split(' ')) {
      await this.page.keyboard.press(key.replace(/^(Right|Left|Up|Down)$/, 'Arrow$1').replace('Space', ' '));
    }
  }

  // Steps are [method, argument, the panels that are then open, and in a page with a clock the milliseconds until then].
  async follow(...steps) {
    for (const [method, argument, wanted, time] of steps) {
      await this[method](argument);
      if (time !== undefined) await this.run((time) => new Promise(requestAnimationFrame).then(() => pass(time)), time);
      await this.shows(wanted, `${method} ${argument}, ${time} ms`);
    }
  }

  // The name of the focused item or control, or null.
  focused() {
    return this.run(() => {
      let node = document.activeElement;
      while (node?.shadowRoot) node = node.shadowRoot.activeElement;
      return node && node !== document.body ? nameOf(node) : null;
    });
  }
}
