// What the three states of an item change, and that the style sheet of a page does not change menus.
import assert from 'node:assert/strict';
import { pageOf } from '../support/site.mjs';
import { opener, plainMenu, suite } from '../support/suite.mjs';

const three = (name, values) => Object.fromEntries(values.map((value, n) => [`${name}${n + 1}`, value]));
const hostile = `<style>* { all: unset !important; border: 3px solid red !important }
  :root { --edge: 40px; --gap: 30px; --at: end }
  div, nav, a, img, span { display: none !important; width: 1px !important; color: red !important }
  body { line-height: 4; letter-spacing: 9px; font: 40px serif; text-transform: uppercase }</style>`;
const pages = ['modern.html', 'quirks.html', 'hostile.html'];

export default suite('states and styles', (site) => {
  const pictures = [10, 12, 14].map((size) => site.picture(`p${size}.gif`, size, size));
  const still = { FontColor: '#000000', BGColor: '#AAAAAA' };
  const styled = (ItemName) => (
    { ItemName, ...three('BGColor', ['#100000', '#200000', '#300000']), BorderWidth: 4,
      ...three('FontColor', ['#010101', '#020202', '#030303']), ...three('FontBold', [0, 1, 0]),
      ...three('BorderStyle', ['none', 'solid', 'inset']) });
  site.menu('full', plainMenu({}, [styled('styled'),
    { ...still, ...three('ItemName', ['named', 'named over', 'named click']) },
    { ...still, ItemName: 'kept', ...three('DisplayNameAsTitle', [1, 1, 0]), ...three('ItemImage', ['n', 'n', pictures[0]]) },
    { ...still, ItemName: 'pictured', ...three('ItemImage', pictures), ...three('BGImage', pictures),
      JavascriptCommand3: "log.push('pictured')" },
    opener('arrowed', ['inner'], { SubmenuWhen: 1 }, { ...still, ...three('HasSubmenuImage', pictures) }),
  ]), ['states.html']);
  const light = plainMenu({ HorizontalDistanceFromCorner: 400 }, [styled('light')], { nbrOptimize: true });
  site.menu('light', light, ['states.html']);

  site.page('quirks.html', '<html><body></body></html>');
  site.page('hostile.html', pageOf(hostile));
  const title = { menuname: 'title', DisplayNameAsTitle: 1, BorderStyle: 'outset', DistanceBetweenItems: 3 };
  const images = { ItemImage: pictures[0], HasSubmenuImage: pictures[1], ItemAlignment: 0 };
  site.menu('any', plainMenu(title, [
    '<b>bold</b> &amp; <i style="color:#010203">markup</i>', '  edges  ', '<br>two',
    opener('opens', ['inner'], { UniformItemHeights: 1 }, images),
  ]), pages);
  site.menu('picture', plainMenu({ CornerForPositioning: 1 }, [{ ItemName: '<img src="p10.gif">', URL: 'elsewhere.html' }]), pages);
}, (visit, addressOf) => {
  // What `read` returns in the three states and then in the first one again; `names` are the item's names in them.
  const inStates = async (visitor, names, read) => {
    const { mouse } = visitor.page;
    const normal = await read(names[0]);
    await visitor.hover(names[0]);
    const over = await read(names[1]);
    await mouse.down();
    const click = await read(names[2]);
    await mouse.up();
    await mouse.move(900, 600);
    return [normal, over, click, await read(names[0])];
  };
  const always = (name) => [name, name, name];

  visit('styles change with the state, in one menu only, and nothing moves', 'states.html', async (visitor) => {
    const look = async (name) => (await visitor.look(name, '', 'backgroundColor', 'color', 'fontWeight', 'borderTopStyle')).join();
    const normal = 'rgb(16, 0, 0),rgb(1, 1, 1),400,none';
    const over = 'rgb(32, 0, 0),rgb(2, 2, 2),700,solid';
    const click = 'rgb(48, 0, 0),rgb(3, 3, 3),400,inset';
    const { top } = await visitor.box('named');
    const seen = (own, other) => inStates(visitor, always(own), async () => (
      [await look(own), await look(other), (await visitor.box('named')).top]));
    const wanted = (...looks) => looks.map((own) => [own, normal, top]);
    assert.deepEqual(await seen('styled', 'light'), wanted(normal, over, click, normal));
    assert.deepEqual(await seen('light', 'styled'), wanted(normal, over, over, normal), 'the lighter build has two');
  });

  visit('texts and pictures change with the state, and a press on one is a click', 'states.html', async (visitor) => {
    const named = await inStates(visitor, ['named', 'named over', 'named click'], (name) => visitor.box(name));
    assert.ok(named.every(Boolean));
    // An item that shows only its picture keeps its name.
    const parts = await inStates(visitor, always('kept'), async (name) => (
      Promise.all(['', '.picture', '.text'].map(async (part) => Boolean(await visitor.box(name, part))))));
    const text = [true, false, false];
    assert.deepEqual(parts, [text, text, [true, true, false], text]);

    const sizes = await inStates(visitor, always('pictured'), async (name) => (
      [(await visitor.box(name, '.picture')).width, (await visitor.look(name, '', 'backgroundImage'))[0].match(/p(\d+)/)[1]]));
    assert.deepEqual(sizes, [[10, '10'], [12, '12'], [14, '14'], [10, '10']]);
    await visitor.logs('pictured');
    const arrows = await inStates(visitor, always('arrowed'), async (name) => (await visitor.box(name, '.arrow')).width);
    assert.deepEqual(arrows, [10, 12, 14, 12], 'its submenu is open at the end');
  });

  visit('menus look the same in quirks mode and under hostile rules', 'modern.html', async (visitor) => {
    const bold = 'bold & markup';
    // All computed styles and the boxes of a menu's nodes.
    const looks = () => JSON.stringify([...roots()[0].querySelectorAll('.layer, .layer *')].map((node) => {
      const style = getComputedStyle(node);
      const values = [...style].filter((name) => !name.startsWith('--')).map((name) => `${name}: ${style[name]}`);
      return [node.className || node.tagName, boxOf(node), ...values];
    }));
    const looksIn = async (page) => {
      await visitor.page.goto(addressOf(page));
      await visitor.follow(['click', 'opens', `${bold}/inner/elsewhere.html`]);
      assert.deepEqual(await visitor.look('elsewhere.html', '.panel', 'overflowY'), ['visible']);
      return JSON.parse(await visitor.run(looks));
    };
    const modern = await looksIn('modern.html');
    assert.deepEqual(await visitor.look(bold, 'b', 'fontWeight'), ['700']);
    assert.deepEqual(await visitor.look(bold, 'i', 'color'), ['rgb(1, 2, 3)']);
    assert.ok((await visitor.box('two')).height > 1.8 * (await visitor.box(bold)).height, 'two lines');
    for (const page of pages.slice(1)) assert.deepEqual(await looksIn(page), modern, page);
  });
});
