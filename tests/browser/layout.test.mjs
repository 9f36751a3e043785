// How a menu looks and where it stands: boxes, styles, pictures and places.
import assert from 'node:assert/strict';
import { eventually, inEachBrowser } from './support/browsers.mjs';
import { loggingPage, opener, plainMenu, servedSite, shows, visits } from './support/plain.mjs';

const near = (actual, expected, what) => (
  assert.ok(Math.abs(actual - expected) <= 1, `${what}: ${actual} for ${expected}`));
const bare = { ItemPadding: 0, BorderWidth: 0, FontSize: '20px' };
const one = (ItemName, more) => ({ ...bare, ItemName, ...more });
const wide = one('wide, wider than others');
const mixed = [one('a'), one('b<br>b'), wide];
const crowd = Array.from({ length: 20 }, (_, n) => one(`crowded ${n}`));
const tall = '<div style="width:3000px;height:3000px">tall</div>';
const [places, sides] = [[0, 1, 2, 3], [0, 1, 2]];
const borders = ['none', 'solid', 'outset', 'inset'];
const cursors = ['default', 'pointer', 'crosshair', 'help', 'move', 'text', 'wait'];
const face = {
  FontFamily: 'monospace', FontBold: 1, FontItalic: 1, FontUnderlined: 1, FontColor: '#0A0B0C', BGColor: '#AABBCC' };
const faceStyles = ['fontFamily', 'fontWeight', 'fontStyle', 'textDecorationLine', 'color', 'backgroundColor'];
const styles = [...faceStyles, 'backgroundImage', 'borderTopStyle', 'borderTopWidth', 'borderBottomColor', 'cursor',
  'fontSize', 'paddingTop', 'paddingRight', 'paddingBottom', 'paddingLeft'];
const faceLook = ['monospace', '700', 'italic', 'underline', 'rgb(10, 11, 12)', 'rgb(170, 187, 204)'];
const noLook = ['sans-serif', '400', 'normal', 'none', 'rgb(0, 0, 0)', 'rgba(0, 0, 0, 0)'];
const sizes = [['20px', 20], ['10mm', 37.8], ['12pt', 16], ['x-large', 24], ['small', 13]];
const inTitle = (values) => Object.fromEntries(Object.entries(values).map(([name, value]) => [`Title${name}`, value]));

// The type of a menu or submenu, and what shapes its list.
const shapes = {
  column: [0, {}], even: [0, { UniformItemHeights: 1 }], spaced: [0, { DistanceBetweenItems: 12 }],
  evenSpaced: [0, { UniformItemHeights: 1, DistanceBetweenItems: 7 }], row: [1, { UniformItemWidths: 0 }],
  wideRow: [1, { UniformItemWidths: 1 }], spacedRow: [1, { UniformItemWidths: 0, DistanceBetweenItems: 12 }],
  wideSpacedRow: [1, { UniformItemWidths: 1, DistanceBetweenItems: 7 }],
};

const address = servedSite((site) => {
  const [red, blue] = [site.picture('red.png', 30, 10), site.picture('blue.png', 16, 16, [0, 0, 255])];
  const page = (name, menus, html = loggingPage()) => {
    site.page(`${name}.html`, html);
    for (const [menu, ...document] of menus) site.menu(`${name}-${menu}`, plainMenu(...document), [`${name}.html`]);
  };
  const placed = (ImageAlignment, ItemAlignment) => (
    one(`${ImageAlignment} ${ItemAlignment}`, { ItemImage: red, ImageAlignment, ItemAlignment }));
  const title = (number, more) => [`title${number}`, { menuname: `title ${number}`, DisplayNameAsTitle: 1,
    TitleImage: blue, TitleImageAlignment: number % 4, TitleTextAlignment: number % 3, TitlePadding: 6,
    TitleBorderStyle: borders[number % 4], TitleBorderWidth: 3, TitleCursor: number,
    ...inTitle(face), ...more }, [wide]];
  page('items', [
    ['content', {}, [
      ...places.flatMap((place) => sides.map((side) => placed(place, side))),
      ...sides.map((side) => one(`text ${side}`, { ItemAlignment: side, ItemPadding: 7 })),
      one('hidden', { ItemTooltip: 'only', DisplayNameAsTitle: 0, ItemImage: red }),
      opener('opens', ['inner'], {}, { ...bare, HasSubmenuImage: blue }), one('closed', { HasSubmenuImage: blue }),
      wide,
    ]],
    ['styles', { BGImage: red, BGColor: '#102030' }, [
      ...borders.map((style) => one(style, { BorderStyle: style, BorderWidth: 4, BorderColor: '#0000FF' })),
      ...cursors.map((cursor, n) => one(cursor, { ItemCursor: n })), one('face', face), one('tiled', { BGImage: blue }),
      one('clear', { BGColor: 'n', FontColor: 'n' }), ...sizes.map(([size]) => one(size, { FontSize: size })),
      one('coloured', { BorderStyle: 'solid', BorderWidth: 2, BorderColor: 'n', FontColor: '#010203' }),
    ]],
    ...borders.map((style) => [style, { BorderStyle: style, BorderWidth: 5, BorderColor: '#445566', BGColor: 'n' },
      [one(`in ${style}`)]]),
  ]);
  page('titles', [
    ...cursors.map((_, n) => title(n)), title(7, { DisplayNameAsTitle: 0, TitleTooltip: 'tip' }),
    title(8, { TitleImage: 'n', TitleFontFamily: 'sans-serif', TitleFontBold: 0, TitleFontItalic: 0,
      TitleFontUnderlined: 0, TitleFontColor: 'n', TitleBGColor: 'n', TitleFontSize: '20px' }),
    title(9, { DisplayNameAsTitle: 0, TitleImage: 'n' }), title(10, { DisplayNameAsTitle: 2 }),
  ]);
  page('boxes', [
    ...Object.entries(shapes).map(([name, [MenuType, more]]) => [name, { MenuType, ...more }, mixed]),
    ['crowd', { MenuType: 1, VerticalDistanceFromCorner: 200 }, crowd], ['crowdedBar', { MenuType: 2 }, crowd],
    ['submenus', { VerticalDistanceFromCorner: 300 }, Object.entries(shapes).map(([name, [SubmenuType, more]]) => (
      opener(name, mixed, { SubmenuType, SubmenuName: name, DisplayNameAsTitle: 1, ...more })))],
  ]);
  page('tall', [0, 1, 2, 3].flatMap((Drifty) => [
    [`bar${Drifty}`, { MenuType: 2, Drifty }, mixed], [`drift${Drifty}`, { Drifty, CornerForPositioning: 2 }, mixed],
  ]), loggingPage(tall));
  page('corners', [
    ['bar', { MenuType: 2, HorizontalDistanceFromCorner: 50 }, mixed], ['crowdedBar', { MenuType: 2 }, crowd],
    ...Array.from({ length: 8 }, (_, corner) => [corner, { CornerForPositioning: corner, ZIndex: corner * 10,
      HorizontalDistanceFromCorner: 40, VerticalDistanceFromCorner: 25 }, [one(`at ${corner}`)]]),
  ]);
  page('movable', [0, 1].map((Movable) => [Movable, { Movable, menuname: `grip ${Movable}`, DisplayNameAsTitle: 1,
    TitlePadding: 5, VerticalDistanceFromCorner: 30 + 300 * Movable }, [opener(`opens ${Movable}`, ['inner'])]]));
});

inEachBrowser((browser, open) => {
  const visit = visits(address, open);
  const panelOf = async (visitor, menu) => (await visitor.panels()).find((panel) => panel.menu.endsWith(`-${menu}`));

  // The styles of each item and title by its text or name, those of its panel, the side of its picture (0 above, 1
  // right, 2 below, 3 left of the text), and the room before and behind the content.
  const looksOf = async (visitor) => JSON.parse(await visitor.run((styles) => {
    const stylesOf = (node) => Object.fromEntries(styles.map((style) => [style, getComputedStyle(node)[style]]));
    const look = (node) => {
      const text = document.createRange();
      text.selectNodeContents(node.querySelector('.text') ?? node);
      const [picture] = node.querySelectorAll('.picture');
      const boxes = [text, picture ?? text].map((part) => part.getBoundingClientRect());
      const [words, image] = boxes;
      const around = node.getBoundingClientRect();
      return { ...stylesOf(node), panel: stylesOf(node.closest('.panel')), tooltip: node.title, height: around.height,
        side: [image.bottom <= words.top, image.left >= words.right, image.top >= words.bottom,
          image.right <= words.left].indexOf(true),
        before: Math.min(...boxes.map(({ left }) => left)) - around.left,
        behind: around.right - Math.max(...boxes.map(({ right }) => right)),
        picture: picture && ['width', 'height'].map((size) => [image[size], picture.getAttribute(size)]),
        arrow: node.querySelector('.arrow')?.getBoundingClientRect().right - around.right };
    };
    const nodes = [...document.querySelectorAll('[data-nbr-menu]')].flatMap(({ shadowRoot }) => (
      [...shadowRoot.querySelectorAll('.item, .title')]));
    return JSON.stringify(Object.fromEntries(nodes.map((node) => (
      [node.textContent || node.getAttribute('aria-label') || node.title, look(node)]))));
  }, styles));
  const pick = (look, names) => names.map((name) => look[name]);
  const assertAligned = ({ before, behind }, side, edge, name) => (
    near([before, before, behind][side], [edge, behind, edge][side], `${name}, aligned ${side}`));
  const assertBorder = (look, style, width, name) => (
    assert.deepEqual([look.borderTopStyle, look.borderTopWidth], [style, style === 'none' ? '0px' : width], name));

  visit('how items and menus look', 'items.html', async (visitor) => {
    const looks = await looksOf(visitor);
    for (const [place, side] of places.flatMap((place) => sides.map((side) => [place, side]))) {
      assert.equal(looks[`${place} ${side}`].side, place);
      assertAligned(looks[`${place} ${side}`], side, 0, `place ${place}`);
    }
    for (const side of sides) assertAligned(looks[`text ${side}`], side, 7, 'text');
    assert.deepEqual(pick(looks['text 0'], styles.slice(-4)), Array(4).fill('7px'));
    assert.equal(looks.hidden, undefined);
    // With its size told in the page, a picture has its room before it is loaded.
    assert.deepEqual(looks.only.picture, [[30, '30'], [10, '10']]);
    near(looks.opens.arrow, 0, 'arrow at the end');
    assert.equal(looks.closed.arrow, null);
    for (const style of borders) {
      assertBorder(looks[style], style, '4px', style);
      assertBorder(looks[`in ${style}`].panel, style, '5px', `in ${style}`);
    }
    assert.deepEqual([looks.solid, looks['in solid'].panel, looks.coloured].map((look) => look.borderBottomColor),
      ['rgb(0, 0, 255)', 'rgb(68, 85, 102)', 'rgb(1, 2, 3)']);
    for (const cursor of cursors) assert.equal(looks[cursor].cursor, cursor);
    for (const [size, pixels] of sizes) near(parseFloat(looks[size].fontSize), pixels, size);
    assert.deepEqual(pick(looks.face, faceStyles), faceLook);
    assert.deepEqual(pick(looks.clear, [...faceStyles, 'backgroundImage']), [...noLook, 'none']);
    assert.match(looks.tiled.backgroundImage, /blue\.png/);
    assert.match(looks.clear.panel.backgroundImage, /red\.png/);
    const clear = looks['in none'].panel;
    assert.deepEqual([looks.clear.panel.backgroundColor, clear.backgroundColor, clear.backgroundImage],
      ['rgb(16, 32, 48)', 'rgba(0, 0, 0, 0)', 'none']);
  });

  visit('titles with text, picture, both or none', 'titles.html', async (visitor) => {
    const looks = await looksOf(visitor);
    for (const [n, cursor] of cursors.entries()) {
      const name = `title ${n}`;
      assert.equal(looks[name].side, n % 4, name);
      assertAligned(looks[name], n % 3, n % 4 ? 9 : 6, name);
      assertBorder(looks[name], borders[n % 4], '3px', name);
      assert.deepEqual(pick(looks[name], ['cursor', ...faceStyles]), [cursor, ...faceLook]);
    }
    assert.deepEqual(pick(looks['title 8'], [...faceStyles, 'fontSize', 'picture']), [...noLook, '20px', undefined]);
    const titles = await Promise.all([7, 9, 10].map(async (n) => (await panelOf(visitor, `title${n}`)).title));
    assert.deepEqual(titles, ['', null, null]);
    assert.deepEqual([looks.tip.tooltip, looks.tip.height], ['tip', 16 + 2 * 6 + 2 * 3]);
  });

  visit('columns and rows, distances, uniform widths and heights', 'boxes.html', async (visitor) => {
    const same = (list, side) => new Set(list.map((box) => Math.round(box[side]))).size === 1;
    const check = (name, { items }) => {
      const [type, { UniformItemWidths, UniformItemHeights, DistanceBetweenItems = 0 }] = shapes[name];
      const list = items.map(({ box }) => box);
      const [start, end, along, across] = type
        ? ['left', 'right', 'width', 'height'] : ['top', 'bottom', 'height', 'width'];
      assert.ok(same(list, across) && same(list, type ? 'top' : 'left'), name);
      assert.equal(same(list, along), Boolean(type ? UniformItemWidths : UniformItemHeights), name);
      list.slice(1).forEach((box, n) => near(box[start] - list[n][end], DistanceBetweenItems, name));
    };
    for (const name of Object.keys(shapes)) {
      check(name, await panelOf(visitor, name));
      await visitor.click(name);
      await eventually(async () => {
        const panel = (await visitor.panels()).at(-1);
        assert.deepEqual([panel.role, panel.title], ['menu', name]);
        check(name, panel);
      });
    }
    for (const name of ['crowd', 'crowdedBar']) {
      const { items } = await panelOf(visitor, name);
      assert.ok(!same(items.map(({ box }) => box), 'top') && items.every(({ box }) => box.right <= 1000), name);
    }
  });

  visit('a bar is as wide as the page, or as the window if it drifts sideways', 'tall.html', async (visitor) => {
    const assertWidth = (menu, wanted) => eventually(async () => {
      const { box } = await panelOf(visitor, menu);
      const width = await visitor.run((wanted) => document.documentElement[wanted], wanted);
      assert.deepEqual([box.left, box.width], [0, width]);
    });
    for (const width of [1000, 700]) {
      await visitor.page.setViewport({ width, height: 700 });
      for (const drift of [0, 1, 2, 3]) await assertWidth(`bar${drift}`, drift % 2 ? 'clientWidth' : 'scrollWidth');
    }
    await visitor.page.goto(address('corners.html'));
    for (const width of [1100, 600]) {
      await visitor.page.setViewport({ width, height: 700 });
      for (const bar of ['bar', 'crowdedBar']) await assertWidth(bar, 'clientWidth');
    }
  });

  visit('a scroll takes the menu along on the axes on which it drifts', 'tall.html', async (visitor) => {
    const boxes = () => Promise.all([0, 1, 2, 3].map(async (drift) => (await panelOf(visitor, `drift${drift}`)).box));
    const before = await boxes();
    await visitor.run(() => scrollTo(120, 210));
    await eventually(async () => assert.deepEqual((await boxes()).map(({ left, top }, n) => (
      [left - before[n].left, top - before[n].top])), [[-120, -210], [0, 0], [-120, 0], [0, -210]]));
  });

  visit('each corner and edge, also of a window that changes; the stacking order', 'corners.html', async (visitor) => {
    for (const [width, height] of [[1000, 700], [800, 600]]) {
      await visitor.page.setViewport({ width, height });
      for (let corner = 0; corner < 8; corner++) {
        await eventually(async () => {
          const { box } = await panelOf(visitor, corner);
          const [left, right, top, bottom] = [box.left, width - box.right, box.top, height - box.bottom];
          if ([5, 7].includes(corner)) near(left, right, corner);
          else near([1, 2, 6].includes(corner) ? right : left, 40, corner);
          if ([4, 6].includes(corner)) near(top, bottom, corner);
          else near([2, 3, 7].includes(corner) ? bottom : top, 25, corner);
        });
      }
    }
    for (const [corner, order] of ['auto', '10', '20'].entries()) {
      assert.equal((await visitor.part(`at ${corner}`, '.layer', ['zIndex'])).zIndex, order);
    }
  });

  visit('the title drags a movable menu, by mouse and finger, inside the window', 'movable.html', async (visitor) => {
    const boxOf = async (menu) => (await panelOf(visitor, menu)).box;
    const assertAt = (menu, left, top) => eventually(async () => {
      const box = await boxOf(menu);
      assert.deepEqual([box.left, box.top].map(Math.round), [left, top].map(Math.round));
    });
    const drag = async (menu, x, y) => {
      const [fromX, fromY] = await visitor.centre(`grip ${menu}`);
      await visitor.mouse.move(fromX, fromY);
      await visitor.mouse.down();
      const inside = (value, limit) => Math.max(0, Math.min(value, limit - 1)); // where a pointer can be
      await visitor.mouse.move(inside(fromX + x, 1000), inside(fromY + y, 700), { steps: 3 });
      await visitor.mouse.up();
    };
    const [fixed, start] = [await boxOf(0), await boxOf(1)];
    await drag(0, 100, 50);
    await visitor.click('opens 1');
    await shows(visitor, ['opens 0'], ['opens 1'], ['inner']);
    await drag(1, 100, 50);
    await shows(visitor, ['opens 0'], ['opens 1']);
    await assertAt(1, start.left + 100, start.top + 50);
    await assertAt(0, fixed.left, fixed.top);
    await drag(1, -900, -900);
    await assertAt(1, 0, 0);
    await drag(1, 2000, 2000);
    await assertAt(1, 1000 - start.width, 700 - start.height);
    await visitor.page.setViewport({ width: 800, height: 600 });
    await assertAt(1, 800 - start.width, 600 - start.height);
    const [x, y] = await visitor.centre('grip 1');
    const touch = await visitor.page.touchscreen.touchStart(x, y);
    await touch.move(x - 300, y - 200);
    await touch.end();
    await assertAt(1, 500 - start.width, 400 - start.height);
  });
});
