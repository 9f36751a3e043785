// What items do when they are used, by mouse and finger, and how menus get along with the page and each other.
import assert from 'node:assert/strict';
import { test } from 'node:test';
import { eventually } from './support/browsers.mjs';
import { inEachVisited, logs, opener, plainMenu, servedSite, shows } from './support/plain.mjs';
import { pageOf } from './support/site.mjs';

const log = (text) => `log.push('${text}')`;
const commands = (name) => Object.fromEntries(['leave', 'over', 'click']
  .map((action, state) => [`JavascriptCommand${state + 1}`, log(`${action} ${name}`)]));
const popup = { Collapsable: 1, HorizontalDistanceFromCorner: 300, VerticalDistanceFromCorner: 300 };

const address = servedSite((site) => {
  site.page('other.html');
  site.menu('links', plainMenu({}, [
    { ItemName: 'here', URL: 'other.html?here', ItemTooltip: 'A "tip"', StatusBarText: 'Leads on' },
    { ItemName: 'frame', URL: 'other.html?frame', TargetFrame: 'inner' },
    { ItemName: 'new', URL: 'other.html?new', TargetFrame: 'new' },
    opener('both', ['in both'], {}, { URL: 'other.html?both' }),
    opener('clicked', ['in clicked'], { SubmenuWhen: 1 }, { URL: 'other.html?clicked' }),
  ]));
  site.menu('commands', plainMenu({}, [
    { ItemName: 'one', ...commands('one') },
    { ItemName: 'two', ...commands('two'), JavascriptCommand2: 'noSuchCall()' },
    { ItemName: 'stays', URL: 'other.html', JavascriptCommand3: `${log('stays')}; return false` },
    { ItemName: 'tells', URL: 'other.html', JavascriptCommand3: 'log.push(event.type); event.preventDefault()' },
  ]));
  site.page('runtime.html', pageOf('<script src="nbrData-links/nbrlib2.js"></script>'));

  const shared = (name, ...menu) => site.menu(name, plainMenu(...menu), ['shared.html']);
  shared('bar', { MenuType: 1, BGColor: '#AABBCC' }, [opener('bar', ['in bar'])]);
  shared('pop1', { ...popup, BGColor: '#112233' }, ['pop1']);
  shared('pop2', { ...popup, BGColor: '#445566' }, ['pop2']);
});

inEachVisited(address, (visit, _, open) => {
  const assertAt = (visitor, page) => eventually(async () => assert.equal(visitor.frame.url(), address(page)));

  visit('links lead on, some to frames or new pages; tooltip and status tell of them', 'links.html', async (visitor) => {
    assert.deepEqual(await visitor.told('here', '', 'href', 'title', 'target'), ['other.html?here', 'A "tip"', null]);
    assert.deepEqual(await visitor.told('frame', '', 'target', 'rel'), ['inner', null]);
    assert.deepEqual(await visitor.told('new', '', 'target', 'rel'), ['_blank', 'noopener']);
    const status = await visitor.run(() => roots()[0].getElementById(partOf('here').getAttribute('aria-describedby')).textContent);
    assert.equal(status, 'Leads on');
    for (const name of ['here', 'both', 'clicked']) {
      await visitor.click(name);
      if (name === 'clicked') {
        assert.ok(await visitor.box('in clicked'));
        await visitor.click(name);
      }
      await assertAt(visitor, `other.html?${name}`);
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
    await assertAt(visitor, 'commands.html');
    await visitor.close();
  });

  visit('a first tap opens, a second one follows, one elsewhere closes', 'links.html', async (visitor) => {
    const [main] = await visitor.shown();
    const touch = await visitor.page.touchscreen.touchStart(...await visitor.centre('clicked'));
    assert.deepEqual(await visitor.shown(), [main], 'it may become a scroll');
    await touch.end();
    await shows(visitor, main, ['in clicked']);
    await visitor.page.touchscreen.tap(200, 600);
    await shows(visitor, main);
    for (const name of ['clicked', 'both']) {
      await visitor.tap(name);
      await shows(visitor, main, [`in ${name}`]);
    }
    await visitor.tap('both');
    await assertAt(visitor, 'other.html?both');
  }, { prepare: (page) => page.setViewport({ width: 400, height: 700, hasTouch: true, isMobile: true }) });

  visit('the page gets three functions', 'other.html', async (visitor) => {
    const globals = () => visitor.run(() => Object.getOwnPropertyNames(window));
    const before = await globals();
    await visitor.page.goto(address('runtime.html'));
    const added = (await globals()).filter((name) => !before.includes(name));
    assert.deepEqual(added.sort(), ['nbrCreateCSS', 'nbrCreateMenu', 'nbrShowMenu']);
  });

  visit('menus share a page, each with its own look and copy of the runtime', 'shared.html', async (visitor) => {
    await shows(visitor, ['bar']);
    await visitor.run(() => ['pop1', 'pop2'].forEach((name) => nbrShowMenu(name)));
    await shows(visitor, ['bar'], ['pop1'], ['pop2']);
    const colours = ['bar', 'pop1', 'pop2'].map((name) => visitor.told(name, '.panel', 'backgroundColor'));
    assert.deepEqual((await Promise.all(colours)).flat(), ['rgb(170, 187, 204)', 'rgb(17, 34, 51)', 'rgb(68, 85, 102)']);
    const names = await visitor.run(() => all('nav').map((layer) => layer.getAttribute('aria-label')));
    assert.equal(new Set(names).size, 3, 'each has a name of its own');
    await visitor.hover('bar');
    await shows(visitor, ['bar'], ['in bar'], ['pop1'], ['pop2']);
    await visitor.mouse.click(800, 600);
    await shows(visitor, ['bar']);
  });
});
