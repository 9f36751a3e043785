// Menus whose submenus stand in another frame.
import assert from 'node:assert/strict';
import { test } from 'node:test';
import { eventually } from './support/browsers.mjs';
import { inEachVisited, opener, plainMenu, servedSite, shows } from './support/plain.mjs';
import { addressOf } from './support/site.mjs';

const main = ['Plain', 'First', 'Second'];
const first = ['First 1', 'First 2'];
const offset = 25;
let onDisk;

const address = servedSite((site) => {
  site.menu('menu', plainMenu({ HorizontalDistanceFromCorner: 10, VerticalDistanceFromCorner: 60 }, [
    'Plain', opener('First', ['First 1', opener('First 2', ['First deep'])], { SubmenuWhere: 200 }),
    opener('Second', ['Second 1'], { SubmenuWhen: 1, BGColor: '#112233' }),
  ], { nbrSubmenusFrame: 'content', nbrSubmenusFrameOffset: offset }));
  site.page('content.html');
  site.link('menu_sub.js', ['content.html']);
  site.page('plain.html');
  site.page('frames.html', '<frameset rows="80,*" border="0"><frame src="plain.html"><frameset cols="200,*" border="0">' +
    '<frame src="menu.html" name="main"><frame src="content.html" name="content"></frameset></frameset>');
  onDisk = addressOf(site.path('frames.html'));
});

inEachVisited(address, (visitPage, _, open) => {
  const visit = (title, body) => visitPage(title, 'frames.html', async (visitor) => {
    const [menu, content] = [await visitor.inFrame('main'), await visitor.inFrame('content')];
    await hasSubmenu(menu, 'menu');
    await body(menu, content, visitor);
  });
  const hasSubmenu = (menu, told) => (
    eventually(async () => assert.deepEqual(await menu.told('First', '', 'aria-haspopup'), [told])));
  const isOn = async (menu) => / on/.test(await menu.told('First', '', 'class'));
  const opens = async (menu, content) => {
    await menu.hover('Plain');
    await menu.hover('First');
    await shows(content, first);
  };

  visit('items open their submenus in the other frame, beside themselves and the offset', async (menu, content) => {
    await shows(menu, main);
    await opens(menu, content);
    const item = await menu.box('First');
    const [{ box }] = await content.panels();
    assert.deepEqual([box.left, box.top].map(Math.round), [item.right, item.top + offset].map(Math.round));
    await content.hover('First 2');
    await shows(content, first, ['First deep']);
    assert.deepEqual(await menu.told('First', '', 'aria-expanded'), ['true']);
    assert.deepEqual(await menu.told('Plain', '', 'aria-haspopup'), [null]);
  });

  visit('they close from either frame, by pointer, press and key', async (menu, content, { mouse }) => {
    const leave = () => content.hover('First 1').then(() => mouse.move(800, 650));
    for (const close of [leave, () => mouse.move(100, 600), () => mouse.click(800, 650), () => menu.hover('Second')]) {
      await opens(menu, content);
      await close();
      await shows(content);
      assert.deepEqual(await menu.told('First', '', 'aria-expanded'), ['false']);
      assert.ok(!await isOn(menu));
    }
    await menu.click('Second');
    await shows(content, ['Second 1']);
    assert.deepEqual(await content.told('Second 1', '.panel', 'backgroundColor'), ['rgb(17, 34, 51)'], 'its own look');
    await menu.click('Plain');
    await shows(content);
    for (const [key, frame, name] of [['Down', menu, 'First'], ['Right', content, 'First 1'], ['Left', menu, 'First']]) {
      await menu.press(`Arrow${key}`);
      await eventually(async () => assert.equal(await frame.focused(), name, key));
    }
    await shows(content);
  });

  visit('the other frame may go elsewhere, even out of reach, and come back', async (menu, content) => {
    const goes = (place) => content.run((place) => { location.href = place; }, place);
    for (const place of ['plain.html', address('content.html').replace('127.0.0.1', 'localhost')]) {
      await opens(menu, content);
      await goes(place);
      await hasSubmenu(menu, null);
      await menu.hover('Plain');
      await menu.hover('First');
      await goes(address('content.html'));
      await hasSubmenu(menu, 'menu');
    }
    await opens(menu, content);
    await menu.run(() => { location.href = 'plain.html'; });
    await shows(content);
  });

  test('from disk, where frames do not reach each other, the menu works without its submenus', async () => {
    const visitor = await open(onDisk);
    const menu = await visitor.inFrame('main');
    await shows(menu, main);
    await menu.hover('First');
    await eventually(async () => assert.ok(await isOn(menu)));
    assert.deepEqual(visitor.faults, []);
    await visitor.close();
  });
});
