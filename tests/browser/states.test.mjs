// What the three states of an item change and what they leave alone, and what a page's own look leaves alone.
import assert from 'node:assert/strict';
import { inEachBrowser } from './support/browsers.mjs';
import { loggingPage, logs, opener, plainMenu, servedSite, shows, visits } from './support/plain.mjs';

const three = (name, values) => Object.fromEntries(values.map((value, n) => [`${name}${n + 1}`, value]));
const shades = ['rgb(16, 0, 0)', 'rgb(32, 0, 0)', 'rgb(48, 0, 0)'];
const own = '<p class="own">own <a class="own" href="#">link</a></p><table><tr><td class="own">cell</table>';
const hostile = `<style>* { all: unset !important; border: 3px solid red !important }
  :root { --edge: 40px; --gap: 30px; --at: end }
  div, nav, a, img, span { display: none !important; width: 1px !important; color: red !important }
  body { line-height: 4; letter-spacing: 9px; font: 40px serif; text-transform: uppercase }</style>`;
const inHostile = `<!DOCTYPE html><html><head>${hostile}</head><body>${own}</body></html>`;

const address = servedSite((site) => {
  const pictures = [10, 12, 14].map((size) => site.picture(`p${size}.png`, size, size, [size, 9, 9]));
  const still = { FontColor: '#000000', BGColor: '#AAAAAA' };
  const items = (prefix) => [
    { ItemName: `${prefix}styled`, ...three('BGColor', ['#100000', '#200000', '#300000']), BorderWidth: 4,
      ...three('FontColor', ['#010101', '#020202', '#030303']), ...three('FontBold', [0, 1, 0]),
      ...three('BorderStyle', ['none', 'solid', 'inset']) },
    { ...still, ...three('ItemName', ['named', 'named over', 'named click'].map((name) => prefix + name)) },
    { ...still, ItemName: `${prefix}kept`, ...three('DisplayNameAsTitle', [1, 1, 0]),
      ...three('ItemImage', ['n', 'n', pictures[0]]) },
    { ...still, ItemName: `${prefix}pictured`, ...three('ItemImage', pictures), ...three('BGImage', pictures),
      JavascriptCommand3: `log.push('${prefix}pictured')` },
    opener(`${prefix}arrowed`, ['inner'], { SubmenuWhen: 1 }, { ...still, ...three('HasSubmenuImage', pictures) }),
    { ...still, ItemName: `<i>${prefix}same</i>` },
  ];
  site.page('states.html', loggingPage());
  site.menu('full', plainMenu({}, items('')), ['states.html']);
  const light = plainMenu({ HorizontalDistanceFromCorner: 400 }, items('light '), { nbrOptimize: true });
  site.menu('light', light, ['states.html']);

  site.page('modern.html');
  site.page('quirks.html', '<html><body></body></html>');
  site.page('hostile.html', inHostile);
  site.page('alone.html', inHostile);
  const pages = ['modern.html', 'quirks.html', 'hostile.html'];
  const title = { menuname: 'grip', DisplayNameAsTitle: 1, BorderStyle: 'outset', DistanceBetweenItems: 3 };
  const images = { ItemImage: pictures[0], HasSubmenuImage: pictures[1], ItemAlignment: 0 };
  site.menu('any', plainMenu(title, [
    '<b>bold</b> &amp; <i style="color:#010203">markup</i>', '  edges  ', '<br>two',
    opener('opens', ['inner'], { UniformItemHeights: 1 }, images),
  ]), pages);
  const picture = { ItemName: '<img src="p10.png">', URL: 'elsewhere.html' };
  site.menu('picture', plainMenu({ CornerForPositioning: 1 }, [picture]), pages);
});

inEachBrowser((browser, open) => {
  const visit = visits(address, open);
  // What `read` gives in the three states and again in the first; `names` are the item's in each.
  const inStates = async (visitor, names, read) => {
    const seen = [await read(names[0])];
    await visitor.hover(names[0]);
    seen.push(await read(names[1]));
    await visitor.mouse.down();
    seen.push(await read(names[2]));
    await visitor.mouse.up();
    await visitor.mouse.move(900, 600);
    seen.push(await read(names[0]));
    return seen;
  };
  const always = (name) => [name, name, name];
  const look = (visitor, ...styles) => async (name) => {
    const found = await visitor.part(name, null, styles);
    return styles.map((style) => found[style]);
  };

  visit('styles change with the state, in this menu alone, and nothing moves', 'states.html', async (visitor) => {
    const read = look(visitor, 'backgroundColor', 'color', 'fontWeight', 'borderTopStyle');
    const normal = [shades[0], 'rgb(1, 1, 1)', '400', 'none'];
    const seen = await inStates(visitor, always('styled'), async (name) => (
      [await read(name), await read('light styled'), (await visitor.part('named')).top]));
    assert.deepEqual(seen.map(([styles]) => styles), [normal, [shades[1], 'rgb(2, 2, 2)', '700', 'solid'],
      [shades[2], 'rgb(3, 3, 3)', '400', 'inset'], normal]);
    for (const [, other, next] of seen) assert.deepEqual([other, next], [normal, seen[0][2]]);
  });

  visit('texts change with the state, or give way to a picture', 'states.html', async (visitor) => {
    const names = ['named', 'named over', 'named click'];
    assert.ok((await inStates(visitor, names, (name) => visitor.part(name))).every(Boolean));
    // With the picture alone it is still called by its name.
    const parts = await inStates(visitor, always('kept'), async (name) => (
      Promise.all([null, '.picture', '.text'].map(async (part) => Boolean(await visitor.part(name, part))))));
    const text = [true, false, false];
    assert.deepEqual(parts, [text, text, [true, true, false], text]);
  });

  visit('pictures change with the state, and a press on one that goes is a click', 'states.html', async (visitor) => {
    const width = (part) => async (name) => (await visitor.part(name, part)).width;
    assert.deepEqual(await inStates(visitor, always('pictured'), width('.picture')), [10, 12, 14, 10]);
    await logs(visitor, 'pictured');
    const backgrounds = await inStates(visitor, always('pictured'), look(visitor, 'backgroundImage'));
    assert.deepEqual(backgrounds.map(([image]) => image.match(/p(\d+)/)[1]), ['10', '12', '14', '10']);
    const arrows = await inStates(visitor, always('arrowed'), width('.arrow'));
    assert.deepEqual(arrows, [10, 12, 14, 12], 'its submenu is open at the end');
  });

  visit('the lighter build knows no third state', 'states.html', async (visitor) => {
    const seen = await inStates(visitor, always('light styled'), look(visitor, 'backgroundColor'));
    assert.deepEqual(seen.flat(), [shades[0], shades[1], shades[1], shades[0]]);
    const names = ['light named', 'light named over', 'light named over'];
    assert.ok((await inStates(visitor, names, (name) => visitor.part(name))).every(Boolean));
  });

  visit('what does not differ is not made anew', 'states.html', async (visitor) => {
    await visitor.run(() => {
      const items = [...document.querySelector('[data-nbr-menu]').shadowRoot.querySelectorAll('.item')];
      window.watched = ['same', 'styled', 'kept'].map((name) => items.find(({ textContent }) => textContent === name))
        .map((item) => [item, item.firstChild]);
    });
    await visitor.hover('kept');
    for (const name of ['same', 'styled']) await inStates(visitor, always(name), async () => {});
    const kept = await visitor.run(() => watched.map(([item, child]) => item.firstChild === child));
    assert.deepEqual(kept, [true, true, true]);
  });

  visit('the same in quirks mode and under hostile rules; the page keeps its look', 'modern.html', async (visitor) => {
    const names = ['bold & markup', '\u00a0\u00a0 edges \u00a0\u00a0', 'two', 'opens'];
    // All computed styles and the boxes of some nodes, in the menu or in the page.
    const looks = async (selector, inMenu) => JSON.parse(await visitor.run((selector, inMenu) => {
      const root = inMenu ? document.querySelector('[data-nbr-menu]').shadowRoot : document;
      return JSON.stringify([...root.querySelectorAll(selector)].map((node) => {
        const { left, top, width, height } = node.getBoundingClientRect();
        const style = getComputedStyle(node);
        const all = [...style].filter((name) => !name.startsWith('--')).map((name) => `${name}: ${style[name]}`);
        return [node.className || node.tagName, left, top, width, height, ...all];
      }));
    }, selector, inMenu));
    const shown = async (page) => {
      await visitor.page.goto(address(page));
      await visitor.click('opens');
      await shows(visitor, names, ['inner'], ['elsewhere.html']);
      assert.equal((await visitor.part('elsewhere.html', '.panel', ['overflowY'])).overflowY, 'visible');
      return looks('nav, nav *', true);
    };
    const modern = await shown('modern.html');
    assert.equal((await visitor.part(names[0], 'b', ['fontWeight'])).fontWeight, '700');
    assert.equal((await visitor.part(names[0], 'i', ['color'])).color, 'rgb(1, 2, 3)');
    assert.ok((await visitor.part('two')).height > 1.8 * (await visitor.part(names[0])).height, 'two lines');
    for (const page of ['quirks.html', 'hostile.html']) assert.deepEqual(await shown(page), modern, page);
    const withMenu = await looks('.own', false);
    await visitor.page.goto(address('alone.html'));
    assert.equal(withMenu.length, 3);
    assert.deepEqual(withMenu, await looks('.own', false));
  });
});
