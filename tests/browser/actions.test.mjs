// What items do when they are used, by mouse and finger, and how menus get along with the page and each other.
import assert from 'node:assert/strict';
import { test } from 'node:test';
import { eventually, inEachBrowser } from './support/browsers.mjs';
import { loggingPage, logs, opener, plainMenu, servedSite, shows, visits } from './support/plain.mjs';
import { read } from './support/site.mjs';

const log = (text) => `log.push('${text}')`;
const commands = (name) => Object.fromEntries(['leave', 'over', 'click']
  .map((action, state) => [`JavascriptCommand${state + 1}`, log(`${action} ${name}`)]));
const popup = { Collapsable: 1, HorizontalDistanceFromCorner: 300, VerticalDistanceFromCorner: 300 };
const many = (count) => Array.from({ length: count },
  (_, n) => opener(`item ${n}`, [`inner ${n}`], {}, { ...commands(n), URL: 'other.html' }));
let compiled;

const address = servedSite((site) => {
  site.page('other.html', loggingPage('other'));
  site.page('plain.html', loggingPage());
  site.page('links.html', loggingPage('<iframe name="inner" style="margin-left:300px"></iframe>'));
  site.menu('links', plainMenu({}, [
    { ItemName: 'here', URL: 'other.html?here', ItemTooltip: 'A "tip"', StatusBarText: 'Leads on' },
    { ItemName: 'frame', URL: 'other.html?frame', TargetFrame: 'inner' },
    { ItemName: 'new', URL: 'other.html?new', TargetFrame: 'new' },
    opener('both', ['in both'], {}, { URL: 'other.html?both' }),
    opener('clicked', ['in clicked'], { SubmenuWhen: 1 }, { URL: 'other.html?clicked' }),
  ]), ['links.html']);

  site.page('commands.html', loggingPage());
  site.menu('commands', plainMenu({}, [
    { ItemName: 'one', ...commands('one') },
    { ItemName: 'two', ...commands('two'), JavascriptCommand2: 'noSuchCall()' },
    { ItemName: 'stays', URL: 'other.html', JavascriptCommand3: `${log('stays')}; return false` },
    { ItemName: 'tells', URL: 'other.html', JavascriptCommand3: 'log.push(event.type); event.preventDefault()' },
  ]), ['commands.html']);

  for (const count of [10, 100]) site.menu(`many${count}`, plainMenu({}, many(count)));
  compiled = read(site.path('many10.js'));
  site.page('runtime.html', loggingPage('<script src="nbrData-many10/nbrlib2.js"></script>'));

  for (const [page, libraries] of [['shared', ['nbrData', 'nbrData']], ['twice', ['lib1', 'lib2']]]) {
    site.page(`${page}.html`);
    const [first, second] = libraries.map((nbrLibraryPath) => ({ nbrLibraryPath, nbrImagePath: nbrLibraryPath }));
    const add = (name, ...menu) => site.menu(`${page}_${name}`, plainMenu(...menu), [`${page}.html`]);
    add('bar', { MenuType: 1, BGColor: '#AABBCC' }, [opener('bar', ['in bar'])], first);
    add('pop1', { ...popup, BGColor: '#112233' }, ['pop1'], first);
    add('pop2', { ...popup, BGColor: '#445566' }, ['pop2'], second);
  }
});

inEachBrowser((_, open) => {
  const visit = visits(address, open);
  visit('links lead to frames, new pages and on; tooltip and status tell of them', 'links.html', async (visitor) => {
    const at = (url, frame = visitor.frame) => eventually(async () => assert.equal(frame.url(), url));
    const [{ items }] = await visitor.panels();
    assert.deepEqual(items.map(({ href, name }) => href === `other.html?${name}`), Array(5).fill(true));
    assert.equal((await visitor.part('here', null, [], ['title'])).title, 'A "tip"');
    assert.equal(await visitor.run(() => {
      const root = menu();
      return root.getElementById(root.querySelector('[aria-describedby]').getAttribute('aria-describedby')).textContent;
    }), 'Leads on');
    const { frame } = await visitor.inFrame('inner');
    await visitor.click('frame');
    await at(address('other.html?frame'), frame);
    const pages = async () => (await visitor.page.browser().pages())
      .filter((page) => page.url() === address('other.html?new'));
    await visitor.click('new');
    await eventually(async () => assert.equal((await pages()).length, 1));
    await (await pages())[0].close();
    await visitor.page.bringToFront();
    await at(address('links.html'));
    for (const name of ['here', 'both', 'clicked']) {
      await visitor.click(name);
      if (name === 'clicked') {
        assert.ok(await visitor.part('in clicked'));
        await visitor.click(name);
      }
      await at(address(`other.html?${name}`));
      await visitor.page.goto(address('links.html'));
    }
  });

  test('commands run on coming, click and leaving; a fault in one is told and stops nothing', async () => {
    const visitor = await open(address('commands.html'));
    for (const name of ['one', 'two']) await visitor.hover(name);
    await visitor.click('two');
    await visitor.mouse.move(600, 500);
    await logs(visitor, 'over one', 'leave one', 'click two', 'leave two');
    assert.equal(visitor.faults.length, 1);
    assert.match(visitor.faults[0], /console: Menu command "noSuchCall\(\)"/);
    for (const name of ['stays', 'tells']) await visitor.click(name);
    await logs(visitor, 'over one', 'leave one', 'click two', 'leave two', 'stays', 'click');
    assert.equal(visitor.frame.url(), address('commands.html'));
    await visitor.close();
  });

  visit('a first tap opens, a second one follows, one elsewhere closes', 'links.html', async (visitor) => {
    const main = ['here', 'frame', 'new', 'both', 'clicked'];
    for (const name of ['both', 'clicked']) {
      await visitor.tap(name);
      await shows(visitor, main, [`in ${name}`]);
      await visitor.page.touchscreen.tap(200, 600);
      await shows(visitor, main);
    }
    await visitor.tap('clicked');
    await visitor.tap('both');
    await shows(visitor, main, ['in both']);
    await visitor.tap('both');
    await eventually(async () => assert.equal(visitor.frame.url(), address('other.html?both')));
  }, { prepare: (page) => page.setViewport({ width: 400, height: 700, hasTouch: true, isMobile: true }) });

  test('no item has a listener of its own, and the page gets three functions', async () => {
    const count = (page) => page.evaluateOnNewDocument(() => {
      window.listeners = 0;
      const add = EventTarget.prototype.addEventListener;
      EventTarget.prototype.addEventListener = function (...values) {
        window.listeners++;
        return add.apply(this, values);
      };
    });
    const globals = (visitor) => visitor.run(() => Object.getOwnPropertyNames(window));
    const seen = [];
    for (const name of ['many10', 'many100']) {
      const visitor = await open(address(`${name}.html`), { prepare: count, height: 3000 });
      const built = await visitor.run(() => window.listeners);
      await visitor.hover('item 5');
      await eventually(async () => assert.ok(await visitor.part('inner 5')));
      seen.push([built, await visitor.run(() => window.listeners)]);
      if (name === 'many10') var withMenu = await globals(visitor);
      await visitor.close();
    }
    assert.ok(seen[0][0] > 0);
    assert.deepEqual(seen[0], [seen[1][0], seen[1][0]]);
    assert.deepEqual(seen[1], seen[0]);
    const visitor = await open(address('plain.html'));
    const without = new Set([...await globals(visitor), 'listeners']);
    await visitor.page.goto(address('runtime.html'));
    const added = (await globals(visitor)).filter((name) => !without.has(name));
    assert.deepEqual(added.sort(), ['nbrCreateCSS', 'nbrCreateMenu', 'nbrShowMenu']);
    const left = withMenu.filter((name) => !without.has(name) && !added.includes(name));
    const own = new RegExp(`\\b(${left.join('|')})\\b`, 'g');
    assert.deepEqual(new Set([...compiled.match(own), 'MenuLinkedBy', 'nbrBN']), new Set(left));
    await visitor.close();
  });

  test('menus share a page and keep their own looks, with one runtime or with two', async () => {
    for (const page of ['shared', 'twice']) {
      const visitor = await open(address(`${page}.html`));
      const colour = async (item) => (await visitor.part(item, '.panel', ['backgroundColor'])).backgroundColor;
      await shows(visitor, ['bar']);
      await visitor.run((page) => ['pop1', 'pop2'].forEach((name) => nbrShowMenu(`${page}_${name}`)), page);
      await shows(visitor, ['bar'], ['pop1'], ['pop2']);
      assert.deepEqual([await colour('bar'), await colour('pop1'), await colour('pop2')],
        ['rgb(170, 187, 204)', 'rgb(17, 34, 51)', 'rgb(68, 85, 102)']);
      await visitor.hover('bar');
      await shows(visitor, ['bar'], ['in bar'], ['pop1'], ['pop2']);
      await visitor.mouse.click(800, 600);
      await shows(visitor, ['bar']);
      const names = await visitor.run(() => [...document.querySelectorAll('[data-nbr-menu]')]
        .map((host) => host.shadowRoot.querySelector('nav').getAttribute('aria-label')));
      assert.equal(new Set(names).size, 3, 'each has a name of its own');
      assert.deepEqual(visitor.faults, []);
      await visitor.close();
    }
  });
});
