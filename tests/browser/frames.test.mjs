import assert from 'node:assert/strict';
import { after, before, test } from 'node:test';
import { eventually, inEachBrowser } from './support/browsers.mjs';
import { addressOf, serve, Site } from './support/site.mjs';

const bar = 80; // height of the frame above
const side = 200; // width of the frame of the main menu
const submenu = (name, changes) => ({
  ItemName: name,
  submenu: {
    SubmenuHow: 0, SubmenuWhere: 0, DisplayNameAsTitle: 2, ...changes,
    items: [{ ItemName: `${name} 1` }, { ItemName: `${name} 2`, submenu: { SubmenuHow: 0, items: [{ ItemName: `${name} deep` }] } }],
  },
});
const document = (offset) => ({
  menu: { Movable: 0, Drifty: 0, HorizontalDistanceFromCorner: 10, VerticalDistanceFromCorner: 60, DisplayNameAsTitle: 2 },
  items: [{ ItemName: 'Plain' }, submenu('First'), submenu('Second', { SubmenuWhen: 1 })],
  settings: { nbrSubmenusFrame: 'content', nbrSubmenusFrameOffset: offset },
});

let site;
let server;
let foreign;

before(async () => {
  site = new Site();
  for (const [name, offset] of [['menu', 0], ['moved', 25]]) {
    site.menu(name, document(offset));
    site.page(`${name}_content.html`);
    site.link(`${name}_sub.js`, [`${name}_content.html`]);
  }
  site.page('plain.html');
  server = await serve(site.folder);
  foreign = await serve(site.folder);
  const frames = (main, content) => `<frameset rows="${bar},*" border="0"><frame src="plain.html">` +
    `<frameset cols="${side},*"><frame src="${main}" name="main"><frame src="${content}" name="content"></frameset></frameset>`;
  for (const name of ['menu', 'moved']) site.page(`${name}_frames.html`, frames(`${name}.html`, `${name}_content.html`));
  site.page('lonely_frames.html', frames('menu.html', 'plain.html'));
  site.page('foreign_frames.html', frames('menu.html', `${foreign.address}/menu_content.html`));
});

after(() => {
  server?.stop();
  foreign?.stop();
  site?.remove();
});

inEachBrowser((browser, open) => {
  async function openFrames(name) {
    const visitor = await open(name.includes(':') ? name : `${server.address}/${name}_frames.html`);
    return { visitor, main: await visitor.inFrame('main'), content: await visitor.inFrame('content') };
  }

  const shows = (visitor, ...panels) => eventually(async () => assert.deepEqual(await visitor.shown(), panels));
  const first = ['First 1', 'First 2'];
  const second = ['Second 1', 'Second 2'];

  test('items open their submenus in the other frame, beside themselves and the offset', async () => {
    for (const [name, offset] of [['menu', 0], ['moved', 25]]) {
      const { visitor, main, content } = await openFrames(name);
      await shows(main, ['Plain', 'First', 'Second']);
      await eventually(async () => assert.equal((await main.part('First', null, [], ['aria-haspopup']))['aria-haspopup'], 'menu'));
      assert.equal((await main.part('Plain', null, [], ['aria-haspopup']))['aria-haspopup'], null);
      await main.hover('First');
      await shows(content, first);
      const item = await main.part('First');
      const [panel] = await content.panels();
      assert.deepEqual([panel.box.left, Math.round(panel.box.top - item.top)], [0, offset]);
      await content.hover('First 2');
      await shows(content, first, ['First deep']);
      assert.equal((await main.part('First', null, [], ['aria-expanded']))['aria-expanded'], 'true');
      assert.deepEqual(visitor.faults, []);
      await visitor.close();
    }
  });

  test('they close from either frame, by pointer, press and key', async () => {
    const { visitor, main, content } = await openFrames('menu');
    const closed = async () => {
      await shows(content);
      assert.equal((await main.part('First', null, [], ['aria-expanded']))['aria-expanded'], 'false');
      assert.doesNotMatch((await main.part('First', null, [], ['class'])).class, / on/);
    };
    const opened = async () => {
      await main.hover('Plain');
      await main.hover('First');
      await shows(content, first);
    };
    await opened();
    await content.hover('First 1');
    await visitor.mouse.move(800, 650);
    await closed();
    await opened();
    await visitor.mouse.move(100, 600);
    await closed();
    await opened();
    await visitor.mouse.click(800, 650);
    await closed();
    await opened();
    await main.hover('Second');
    await shows(content);
    await main.click('Second');
    await shows(content, second);
    await main.click('Plain');
    await main.hover('Plain');
    await shows(content);

    await visitor.press('ArrowDown');
    assert.equal(await main.focused(), 'First');
    await visitor.press('ArrowRight');
    await eventually(async () => assert.equal(await content.focused(), 'First 1'));
    await visitor.press('Escape');
    await eventually(async () => assert.equal(await main.focused(), 'First'));
    await shows(content);
    assert.deepEqual(visitor.faults, []);
    await visitor.close();
  });

  test('the other frame may go elsewhere and come back', async () => {
    const { visitor, main, content } = await openFrames('menu');
    await main.hover('First');
    await shows(content, first);
    await content.run(() => { location.href = 'plain.html'; });
    await eventually(async () => assert.equal((await main.part('First', null, [], ['aria-haspopup']))['aria-haspopup'], null));
    await main.hover('Plain');
    await main.hover('First');
    await content.run(() => { location.href = 'menu_content.html'; });
    await eventually(async () => assert.equal((await main.part('First', null, [], ['aria-haspopup']))['aria-haspopup'], 'menu'));
    await main.hover('Plain');
    await main.hover('First');
    await shows(content, first);
    await main.run(() => { location.href = 'plain.html'; });
    await shows(content);
    assert.deepEqual(visitor.faults, []);
    await visitor.close();
  });

  test('without submenus in the frame, or none to be reached, the menu works all the same', async () => {
    for (const name of ['lonely', 'foreign', addressOf(site.folder, 'menu_frames.html')]) {
      const { visitor, main } = await openFrames(name);
      await shows(main, ['Plain', 'First', 'Second']);
      await main.hover('First');
      await eventually(async () => assert.match((await main.part('First', null, [], ['class'])).class, / on/), 500);
      assert.deepEqual(visitor.faults, [], name);
      await visitor.close();
    }
  });
});
