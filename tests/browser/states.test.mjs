// What the three states of an item change, and what they leave alone.
import assert from 'node:assert/strict';
import { eventually, inEachBrowser } from './support/browsers.mjs';
import { loggingPage, logs, opener, plainMenu, servedSite, visits } from './support/plain.mjs';

const three = (name, values) => Object.fromEntries(values.map((value, n) => [`${name}${n + 1}`, value]));
const colours = three('BGColor', ['#100000', '#200000', '#300000']);
const shades = ['rgb(16, 0, 0)', 'rgb(32, 0, 0)', 'rgb(48, 0, 0)'];

const address = servedSite((site) => {
  const pictures = [[10, [9, 9, 9]], [12, [99, 99, 99]], [14, [200, 200, 200]]].map(([size, colour]) => (
    site.picture(`p${size}.png`, size, size, colour)));
  const still = { FontColor: '#000000', BGColor: '#AAAAAA' };
  const items = [
    { ItemName: 'styled', ...colours, ...three('FontColor', ['#010101', '#020202', '#030303']), ...three('FontBold', [0, 1, 0]),
      ...three('ItemPadding', [1, 1, 1]), ...three('BorderStyle', ['none', 'solid', 'inset']), BorderWidth: 4 },
    { ...still, ...three('ItemName', ['named', 'named over', 'named click']) },
    { ...still, ...three('ItemName', ['kept', 'kept', 'unused']), ...three('DisplayNameAsTitle', [1, 1, 0]), ...three('ItemImage', ['n', 'n', pictures[0]]) },
    { ...still, ItemName: 'pictured', ...three('ItemImage', pictures), ...three('BGImage', pictures), JavascriptCommand3: "log.push('pictured')" },
    opener('arrowed', ['inner'], { SubmenuWhen: 1 }, { ...still, ...three('HasSubmenuImage', pictures) }),
    { ...still, ItemName: '<i>same</i>' },
  ];
  for (const nbrOptimize of [false, true]) {
    const page = nbrOptimize ? 'light' : 'full';
    site.page(`${page}.html`, loggingPage());
    site.menu(page, plainMenu({ HorizontalDistanceFromCorner: 100 }, items, { nbrOptimize }), [`${page}.html`]);
  }
});

inEachBrowser((browser, open) => {
  const visit = visits(address, open);
  const away = (visitor) => visitor.mouse.move(600, 600);
  // What `read` gives in the three states and again in the first; `names` are the item's in each.
  const inStates = async (visitor, names, read) => {
    const seen = [await read(names[0])];
    await visitor.hover(names[0]);
    seen.push(await read(names[1]));
    await visitor.mouse.down();
    seen.push(await read(names[2]));
    await visitor.mouse.up();
    await away(visitor);
    seen.push(await read(names[0]));
    return seen;
  };
  const always = (name) => [name, name, name];

  visit('colours, borders and fonts change with the state, and nothing moves', 'full.html', async (visitor) => {
    const read = (name) => visitor.part(name, null, ['backgroundColor', 'color', 'fontWeight', 'borderTopStyle']);
    const below = (await visitor.part('named')).top;
    const seen = await inStates(visitor, always('styled'), async (name) => ({ ...await read(name), next: (await visitor.part('named')).top }));
    assert.deepEqual(seen.map(({ backgroundColor }) => backgroundColor), [...shades, shades[0]]);
    assert.deepEqual(seen.map(({ color }) => color), ['rgb(1, 1, 1)', 'rgb(2, 2, 2)', 'rgb(3, 3, 3)', 'rgb(1, 1, 1)']);
    assert.deepEqual(seen.map(({ fontWeight }) => fontWeight), ['400', '700', '400', '400']);
    assert.deepEqual(seen.map(({ borderTopStyle }) => borderTopStyle), ['none', 'solid', 'inset', 'none']);
    assert.deepEqual(new Set(seen.map(({ next }) => next)), new Set([below]));
  });

  visit('texts change with the state, and a text that is the same stays', 'full.html', async (visitor) => {
    await inStates(visitor, ['named', 'named over', 'named click'], async (name) => assert.ok(await visitor.part(name), name));
    await visitor.hover('kept');
    assert.ok(await visitor.part('kept'));
    await visitor.mouse.down();
    assert.equal(await visitor.part('unused'), null);
    assert.equal(await visitor.part('kept'), null, 'the picture alone');
    await visitor.mouse.up();
  });

  visit('pictures change with the state, and a press on one that goes is a click all the same', 'full.html', async (visitor) => {
    const sizes = await inStates(visitor, always('pictured'), async (name) => (await visitor.part(name, '.picture')).width);
    assert.deepEqual(sizes, [10, 12, 14, 10]);
    await logs(visitor, 'pictured');
    const backgrounds = await inStates(visitor, always('pictured'), async (name) => (await visitor.part(name, null, ['backgroundImage'])).backgroundImage);
    assert.deepEqual(backgrounds.map((image) => image.match(/p(\d+)/)[1]), ['10', '12', '14', '10']);
    const arrows = await inStates(visitor, always('arrowed'), async (name) => (await visitor.part(name, '.arrow')).width);
    assert.deepEqual(arrows.slice(0, 3), [10, 12, 14]);
  });

  visit('the lighter build knows no third state', 'light.html', async (visitor) => {
    const seen = await inStates(visitor, always('styled'), async (name) => (await visitor.part(name, null, ['backgroundColor'])).backgroundColor);
    assert.deepEqual(seen, [shades[0], shades[1], shades[1], shades[0]]);
    await visitor.hover('named');
    await visitor.mouse.down();
    assert.ok(await visitor.part('named over'));
    await visitor.mouse.up();
  });

  visit('what does not differ is not made anew', 'full.html', async (visitor) => {
    await visitor.run(() => {
      const items = document.querySelector('[data-nbr-menu]').shadowRoot.querySelectorAll('.item');
      window.watched = [...items].filter(({ textContent }) => ['same', 'styled'].includes(textContent))
        .map((item) => [item, item.firstChild]);
    });
    for (const name of ['same', 'styled']) await inStates(visitor, always(name), async () => {});
    await eventually(async () => assert.deepEqual(
      await visitor.run(() => watched.map(([item, child]) => item.isConnected && item.firstChild === child)), [true, true]));
  });
});
