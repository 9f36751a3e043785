// Menus whose submenus are in another frame.
import assert from 'node:assert/strict';
import { eventually } from '../support/browsers.mjs';
import { opener, plainMenu, suite } from '../support/suite.mjs';

const offset = 25;

export default suite('submenus in another frame', (site) => {
  site.menu('menu', plainMenu({ HorizontalDistanceFromCorner: 10, VerticalDistanceFromCorner: 60 }, [
    'Plain', opener('First', ['First 1', opener('First 2', ['First deep'])], { SubmenuWhere: 200 }),
    opener('Second', ['Second 1'], { SubmenuWhen: 1, BGColor: '#112233' }),
  ], { nbrSubmenusFrame: 'content', nbrSubmenusFrameOffset: offset }));
  site.page('content.html');
  site.link('menu_sub.js', ['content.html']);
  site.page('plain.html');
  site.page('frames.html', '<frameset rows="80,*" border="0"><frame src="plain.html"><frameset cols="200,*" border="0">' +
    '<frame src="menu.html"><frame src="content.html" name="content"></frameset></frameset>');
}, (visitPage, addressOf) => {
  const visit = (title, body) => visitPage(title, 'frames.html', async (visitor) => {
    const [menu, content] = [visitor.inFrame('menu.html'), visitor.inFrame('content.html')];
    await isOpener(menu, 'menu');
    await body(menu, content, visitor.page);
  });
  const isOpener = (menu, popup) => (
    eventually(async () => assert.deepEqual(await menu.look('First', '', 'aria-haspopup'), [popup])));
  const opens = async (menu, content) => {
    for (const name of ['Plain', 'First']) await menu.hover(name);
    await content.shows('First 1');
  };

  visit('a submenu opens beside its item, moved by the offset, with its own look', async (menu, content) => {
    await opens(menu, content);
    const item = await menu.box('First');
    const [{ box }] = await content.panels();
    assert.deepEqual([box.left, box.top].map(Math.round), [item.right, item.top + offset].map(Math.round));
    await content.follow(['hover', 'First 2', 'First 1/First deep']);
    assert.deepEqual(await menu.look('First', '', 'aria-expanded'), ['true']);
    await menu.click('Second');
    await content.shows('Second 1');
    assert.deepEqual(await content.look('Second 1', '.panel', 'backgroundColor'), ['rgb(17, 34, 51)']);
  });

  visit('submenus close from either frame, by pointer, press and key', async (menu, content, { mouse }) => {
    const leave = () => content.hover('First 1').then(() => mouse.move(800, 650));
    for (const close of [leave, () => mouse.move(100, 600), () => mouse.click(800, 650), () => menu.hover('Second')]) {
      await opens(menu, content);
      await close();
      await content.shows('');
      assert.match((await menu.look('First', '', 'aria-expanded', 'class')).join(), /^false,item s\d+$/);
    }
    await menu.click('Plain');
    for (const [key, frame, name] of [['Down', menu, 'First'], ['Right', content, 'First 1'], ['Left', menu, 'First']]) {
      await menu.press(key);
      await frame.focuses(name);
    }
    await content.shows('');
  });

  visit('the other frame may load other pages, even of another origin, and come back', async (menu, content) => {
    const goTo = (frame, place) => frame.run((place) => { location.href = place; }, place);
    for (const place of ['plain.html', addressOf('content.html').replace('127.0.0.1', 'localhost')]) {
      await opens(menu, content);
      await goTo(content, place);
      await eventually(async () => assert.ok(content.frame.url().endsWith(place)));
      await isOpener(menu, null);
      await goTo(content, addressOf('content.html'));
      await isOpener(menu, 'menu');
    }
    await opens(menu, content);
    await goTo(menu, 'plain.html');
    await content.shows('');
  });
});
