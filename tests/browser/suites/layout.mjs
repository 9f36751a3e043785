// How menus look and where they are: boxes, styles, pictures and positions.
import assert from 'node:assert/strict';
import { eventually } from '../support/browsers.mjs';
import { pageOf } from '../support/site.mjs';
import { near, opener, plainMenu, suite } from '../support/suite.mjs';

const one = (ItemName, more) => ({ ItemPadding: 0, BorderWidth: 0, FontSize: '20px', ItemName, ...more });
const mixed = [one('a'), one('b<br>b'), one('wide, wider than others')];
const crowd = Array.from({ length: 20 }, (_, n) => one(`crowded ${n}`));
const [places, sides] = [[0, 1, 2, 3], [0, 1, 2]];

// The type of a menu, whether its items have the same width or height, and the distance between them.
const shapes = {
  column: [0, 0, 0], even: [0, 1, 0], spaced: [0, 0, 12], evenSpaced: [0, 1, 7],
  row: [1, 0, 0], wideRow: [1, 1, 0], spacedRow: [1, 0, 12], wideSpacedRow: [1, 1, 7],
};

export default suite('layout', (site) => {
  const [red, blue] = [site.picture('red.gif', 30, 10), site.picture('blue.gif', 16, 16)];
  const page = (name, menus, body) => {
    site.page(`${name}.html`, pageOf(body));
    for (const [menu, ...document] of menus) site.menu(`${name}-${menu}`, plainMenu(...document), [`${name}.html`]);
  };
  page('looks', [
    ['contents', {}, [
      ...places.flatMap((place) => sides.map((side) => (
        one(`${place} ${side}`, { ItemImage: red, ImageAlignment: place, ItemAlignment: side })))),
      ...sides.map((side) => one(`text ${side}`, { ItemAlignment: side, ItemPadding: 7 })),
      one('hidden', { ItemTooltip: 'only', DisplayNameAsTitle: 0, ItemImage: red }),
      one('closed', { HasSubmenuImage: blue }), opener('opens', ['inner'], {}, one('opens', { HasSubmenuImage: blue })), ...mixed,
    ]],
    ...places.map((place) => [`title${place}`, { menuname: `title ${place}`, DisplayNameAsTitle: 1, TitleImage: blue,
      TitleImageAlignment: place, TitleTextAlignment: place % 3, TitlePadding: 9 }, mixed]),
    ['picture', { DisplayNameAsTitle: 0, TitleImage: blue, TitleTooltip: 'tip', TitlePadding: 6, BGImage: red, BGColor: '#102030' }, mixed],
    ['without', { DisplayNameAsTitle: 0 }, mixed],
  ]);
  page('shapes', [
    ...Object.entries(shapes).map(([name, [MenuType, UniformItemWidths, DistanceBetweenItems]]) => [name,
      { MenuType, UniformItemWidths, UniformItemHeights: UniformItemWidths, DistanceBetweenItems }, mixed]),
    ['crowd', { MenuType: 1 }, crowd], ['crowdedBar', { MenuType: 2 }, crowd],
  ]);
  page('tall', places.flatMap((Drifty) => [
    [`bar${Drifty}`, { MenuType: 2, Drifty }, mixed], [`drift${Drifty}`, { Drifty, CornerForPositioning: 2 }, mixed],
  ]), '<div style="width:3000px;height:3000px">tall</div>');
  page('movable', [0, 1].map((Movable) => [Movable, { Movable, menuname: `title ${Movable}`, DisplayNameAsTitle: 1,
    TitlePadding: 5, VerticalDistanceFromCorner: 30 + 300 * Movable, ZIndex: 20 }, [opener(`opens ${Movable}`, ['inner'])]]));
}, (visit) => {
  const panelOf = async (visitor, menu) => (await visitor.panels()).find((panel) => panel.menu.endsWith(`-${menu}`));
  const boxesIn = async (visitor, menu) => (await panelOf(visitor, menu)).items.map(({ box }) => box);

  // Checks items and titles: the side of the picture (0 above, 1 right, 2 below, 3 left of the text, -1 none), and the
  // alignment of picture and text together (0 left, 1 centred, 2 right) inside an edge.
  const assertContents = async (visitor, rows) => {
    const boxes = await visitor.run((names) => names.map((name) => {
      const text = document.createRange();
      text.selectNodeContents(partOf(name, '.text') ?? partOf(name));
      return [text, partOf(name, '.picture') ?? text, partOf(name)].map(boxOf);
    }), rows.map(([name]) => name));
    for (const [row, [name, place, side, edge]] of rows.entries()) {
      const [words, image, around] = boxes[row];
      const isAt = [image.bottom <= words.top, image.left >= words.right, image.top >= words.bottom, image.right <= words.left];
      assert.equal(isAt.indexOf(true), place, name);
      const left = Math.min(words.left, image.left) - around.left;
      const right = around.right - Math.max(words.right, image.right);
      near([left, left, right][side], [edge, right, edge][side], name);
    }
  };

  visit('pictures and texts in items and titles', 'looks.html', async (visitor) => {
    await assertContents(visitor, [
      ...places.flatMap((place) => sides.map((side) => [`${place} ${side}`, place, side, 0])),
      ...sides.map((side) => [`text ${side}`, -1, side, 7]),
      ...places.map((place) => [`title ${place}`, place, place % 3, 9]),
    ]);
    // The page contains its size, so that nothing moves when a picture has loaded.
    assert.equal(await visitor.run(() => partOf('only', 'img').outerHTML.match(/width="30" height="10"/)?.length), 1);
    near((await visitor.box('opens', '.arrow')).right, (await visitor.box('opens')).right, 'arrow');
    assert.equal(await visitor.box('closed', '.arrow'), null);
    const titles = await visitor.run(() => all('.title').map((node) => node.textContent || `${node.title} ${boxOf(node).height}`));
    assert.deepEqual(titles, ['title 0', 'title 1', 'title 2', 'title 3', 'tip 28']);
    const backgrounds = await visitor.run(() => all('.panel').map((panel) => getComputedStyle(panel))
      .map(({ backgroundColor, backgroundImage }) => backgroundColor + backgroundImage));
    assert.match(backgrounds.join(), /rgb\(16, 32, 48\)url[^,]*red\.gif/);
  });

  visit('columns and rows, distances, uniform widths and heights', 'shapes.html', async (visitor) => {
    const same = (list, side) => new Set(list.map((box) => Math.round(box[side]))).size === 1;
    for (const [name, [type, uniform, distance]] of Object.entries(shapes)) {
      const list = await boxesIn(visitor, name);
      const [start, end, along, across, edge] = type
        ? ['left', 'right', 'width', 'height', 'top'] : ['top', 'bottom', 'height', 'width', 'left'];
      assert.deepEqual([same(list, across), same(list, edge), same(list, along)], [true, true, Boolean(uniform)], name);
      list.slice(1).forEach((box, n) => near(box[start] - list[n][end], distance, name));
    }
    for (const name of ['crowd', 'crowdedBar']) {
      const list = await boxesIn(visitor, name);
      assert.ok(!same(list, 'top') && list.every(({ right }) => right <= 1000), name);
    }
  });

  visit('bars are as wide as page or window, menus keep to their corner, drifting menus follow a scroll', 'tall.html', async (visitor) => {
    // Moves: left and top of the menus, by the value of Drifty.
    const assertMoved = (...moves) => eventually(async () => {
      const [pageWidth, width, height] = await visitor.run(() => (
        ['scrollWidth', 'clientWidth', 'clientHeight'].map((size) => document.documentElement[size])));
      for (const [drift, [left, top]] of moves.entries()) {
        const { box: bar } = await panelOf(visitor, `bar${drift}`);
        assert.deepEqual([bar.left, bar.width], [left, drift % 2 ? width : pageWidth], `bar ${drift}`);
        const { box } = await panelOf(visitor, `drift${drift}`);
        assert.deepEqual([box.right, box.bottom].map(Math.round), [width - 30 + left, height - 30 + top], drift);
      }
    });
    for (const width of [1000, 700]) {
      await visitor.page.setViewport({ width, height: 600 });
      await assertMoved([0, 0], [0, 0], [0, 0], [0, 0]);
    }
    await visitor.run(() => scrollTo(120, 210));
    await assertMoved([-120, -210], [0, 0], [-120, 0], [0, -210]);
  });

  visit('a movable menu is dragged by its title, by mouse and touch, inside the window', 'movable.html', async (visitor) => {
    const { mouse, touchscreen } = visitor.page;
    const boxOf = async (menu) => (await panelOf(visitor, menu)).box;
    const drag = async (menu, x, y) => {
      await visitor.hover(`title ${menu}`);
      await mouse.down();
      await mouse.move(x, y, { steps: 3 });
      await mouse.up();
    };
    const [fixed, { width, height }] = [await boxOf(0), await boxOf(1)];
    const isAt = (...wanted) => eventually(async () => {
      const { left, top } = await boxOf(1);
      assert.deepEqual([left, top].map(Math.round), wanted.map(Math.round));
    });
    await drag(0, 300, 200);
    assert.deepEqual(await boxOf(0), fixed);
    await visitor.follow(['click', 'opens 1', 'opens 0/opens 1/inner']);
    const [x, y] = await visitor.pointOf('title 1');
    await drag(1, x + 100, y + 50);
    await visitor.shows('opens 0/opens 1');
    await isAt(130, 380);
    await drag(1, 999, 699);
    await isAt(1000 - width, 700 - height);
    await visitor.page.setViewport({ width: 800, height: 600 });
    await isAt(800 - width, 600 - height);
    const [left, top] = await visitor.pointOf('title 1');
    const touch = await touchscreen.touchStart(left, top);
    await touch.move(left - 300, top - 200);
    await touch.end();
    await isAt(500 - width, 400 - height);
    assert.deepEqual(await visitor.look('title 1', '.layer', 'zIndex'), ['20']);
  });
});
