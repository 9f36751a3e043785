// What items do when they are used by mouse and touch, and how menus share a page.
import assert from 'node:assert/strict';
import { eventually } from '../support/browsers.mjs';
import { pageOf } from '../support/site.mjs';
import { opener, plainMenu, suite } from '../support/suite.mjs';

const log = (text) => `log.push('${text}')`;
const commands = (name) => ({ JavascriptCommand1: log(`leave ${name}`), JavascriptCommand3: log(`click ${name}`) });

export default suite('actions', (site) => {
  site.page('other.html');
  site.menu('links', plainMenu({}, [
    { ItemName: 'here', URL: 'other.html?here', ItemTooltip: 'A "tip"', StatusBarText: 'Opens a page' },
    { ItemName: 'frame', URL: 'other.html?frame', TargetFrame: 'inner' },
    { ItemName: 'new', URL: 'other.html?new', TargetFrame: 'new' },
    opener('both', ['in both'], {}, { URL: 'other.html?both' }),
    opener('clicked', ['in clicked'], { SubmenuWhen: 1 }, { URL: 'other.html?clicked' }),
  ]));
  site.menu('commands', plainMenu({}, [
    { ItemName: 'one', ...commands('one'), JavascriptCommand2: log('over one') },
    { ItemName: 'two', ...commands('two'), JavascriptCommand2: 'noSuchCall()' },
    { ItemName: 'stays', URL: 'other.html', JavascriptCommand3: `${log('stays')}; return false` },
    { ItemName: 'event', URL: 'other.html', JavascriptCommand3: 'log.push(event.type); event.preventDefault()' },
  ]));
  site.page('runtime.html', pageOf('<script src="nbrData-links/nbrlib2.js"></script>'));
  const shared = (name, menu, items) => (
    site.menu(name, plainMenu({ menuname: 'Same', DisplayNameAsTitle: 1, ...menu }, items), ['shared.html']));
  shared('bar', { MenuType: 1, BGColor: '#AABBCC' }, [opener('bar', ['in bar'])]);
  const popup = { Collapsable: 1, HorizontalDistanceFromCorner: 300, VerticalDistanceFromCorner: 300 };
  for (const [name, BGColor] of [['pop1', '#112233'], ['pop2', '#445566']]) shared(name, { ...popup, BGColor }, [name]);
}, (visit, addressOf) => {
  const isAt = (visitor, page) => eventually(async () => assert.equal(visitor.frame.url(), addressOf(page)));

  visit('links open pages, here or in other windows; tooltip and status describe them', 'links.html', async (visitor) => {
    assert.deepEqual(await visitor.look('here', '', 'title', 'target'), ['A "tip"', null]);
    assert.deepEqual(await visitor.look('frame', '', 'target', 'rel'), ['inner', null]);
    assert.deepEqual(await visitor.look('new', '', 'target', 'rel'), ['_blank', 'noopener']);
    const status = () => roots()[0].getElementById(partOf('here').getAttribute('aria-describedby')).textContent;
    assert.equal(await visitor.run(status), 'Opens a page');
    await visitor.follow(['click', 'clicked', 'here/in clicked']);
    for (const name of ['clicked', 'here', 'both']) {
      await visitor.click(name);
      await isAt(visitor, `other.html?${name}`);
      await visitor.page.goto(addressOf('links.html'));
    }
  });

  visit('commands run on entering, click and leaving; an error in one is only logged', 'commands.html', async (visitor) => {
    for (const name of ['one', 'two']) await visitor.hover(name);
    await visitor.click('two');
    await visitor.hover([600, 500]);
    const logged = ['over one', 'leave one', 'click two', 'leave two'];
    await visitor.logs(...logged);
    const [fault, ...others] = visitor.faults.splice(0);
    assert.match(fault, /console: Menu command "noSuchCall\(\)"/);
    assert.deepEqual(others, []);
    for (const name of ['stays', 'event']) await visitor.click(name);
    await visitor.logs(...logged, 'stays', 'click');
    await isAt(visitor, 'commands.html');
  });

  visit('a first tap opens, a second one follows the link, one elsewhere closes', 'links.html', async (visitor) => {
    const touch = await visitor.page.touchscreen.touchStart(...await visitor.pointOf('clicked'));
    assert.equal(await visitor.opened(), 'here', 'it may become a scroll');
    await touch.end();
    await visitor.shows('here/in clicked');
    await visitor.follow(['tap', [200, 600], 'here'], ['tap', 'clicked', 'here/in clicked'], ['tap', 'both', 'here/in both']);
    await visitor.tap('both');
    await isAt(visitor, 'other.html?both');
  }, { prepare: (page) => page.setViewport({ width: 400, height: 700, hasTouch: true, isMobile: true }) });

  visit('the page gets three functions', 'other.html', async (visitor) => {
    const globals = () => visitor.run(() => Object.getOwnPropertyNames(window));
    const before = await globals();
    await visitor.page.goto(addressOf('runtime.html'));
    const added = (await globals()).filter((name) => !before.includes(name));
    assert.deepEqual(added.sort(), ['nbrCreateCSS', 'nbrCreateMenu', 'nbrShowMenu']);
  });

  visit('menus share a page, each with its own look and copy of the runtime', 'shared.html', async (visitor) => {
    await visitor.run(() => ['pop1', 'pop2'].forEach((name) => nbrShowMenu(name)));
    await visitor.shows('bar/pop1/pop2');
    const looks = ['bar', 'pop1', 'pop2'].map((name) => visitor.look(name, '.panel', 'backgroundColor'));
    assert.deepEqual((await Promise.all(looks)).flat(), ['rgb(170, 187, 204)', 'rgb(17, 34, 51)', 'rgb(68, 85, 102)']);
    const names = await visitor.run(() => all('nav').map((layer) => layer.getAttribute('aria-label')));
    assert.equal(new Set(names).size, 3, 'each has its own label');
    await visitor.follow(['hover', 'bar', 'bar/in bar/pop1/pop2'], ['click', [800, 600], 'bar']);
  });
});
