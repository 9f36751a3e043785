// How a menu looks and where it stands: boxes, styles, pictures and places.
import assert from 'node:assert/strict';
import { eventually } from './support/browsers.mjs';
import { inEachVisited, opener, plainMenu, servedSite, shows } from './support/plain.mjs';
import { pageOf } from './support/site.mjs';

const near = (actual, expected, what) => (
  assert.ok(Math.abs(actual - expected) <= 1, `${what}: ${actual} for ${expected}`));
const bare = { ItemPadding: 0, BorderWidth: 0, FontSize: '20px' };
const one = (ItemName, more) => ({ ...bare, ItemName, ...more });
const wide = one('wide, wider than others');
const mixed = [one('a'), one('b<br>b'), wide];
const crowd = Array.from({ length: 20 }, (_, n) => one(`crowded ${n}`));
const [places, sides] = [[0, 1, 2, 3], [0, 1, 2]];
const cursors = ['default', 'pointer', 'crosshair', 'help', 'move', 'text', 'wait'];

// The type of a menu, whether its items are of one width or height, and the distance between them.
const shapes = {
  column: [0, 0, 0], even: [0, 1, 0], spaced: [0, 0, 12], evenSpaced: [0, 1, 7],
  row: [1, 0, 0], wideRow: [1, 1, 0], spacedRow: [1, 0, 12], wideSpacedRow: [1, 1, 7],
};

const address = servedSite((site) => {
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
      opener('opens', ['inner'], {}, { ...bare, HasSubmenuImage: blue }), one('closed', { HasSubmenuImage: blue }), wide,
    ]],
    ['cursors', { BGImage: red, BGColor: '#102030', HorizontalDistanceFromCorner: 400 },
      cursors.map((cursor, n) => one(cursor, { ItemCursor: n }))],
    ['framed', { BorderStyle: 'solid', BorderWidth: 5, BorderColor: '#445566', BGColor: 'n' }, [one('in a frame')]],
    ...places.map((place) => [`title${place}`, { menuname: `title ${place}`, DisplayNameAsTitle: 1, TitleImage: blue,
      TitleImageAlignment: place, TitleTextAlignment: place % 3, TitlePadding: 6, TitleBorderStyle: 'inset',
      TitleBorderWidth: 3, TitleCursor: place }, [wide]]),
    ['picture', { DisplayNameAsTitle: 0, TitleImage: blue, TitleTooltip: 'tip', TitlePadding: 6 }, [wide]],
    ['without', { DisplayNameAsTitle: 0 }, [wide]],
  ]);
  page('shapes', [
    ...Object.entries(shapes).map(([name, [MenuType, UniformItemWidths, DistanceBetweenItems]]) => [name,
      { MenuType, UniformItemWidths, UniformItemHeights: UniformItemWidths, DistanceBetweenItems }, mixed]),
    ['crowd', { MenuType: 1, VerticalDistanceFromCorner: 200 }, crowd], ['crowdedBar', { MenuType: 2 }, crowd],
  ]);
  page('tall', [0, 1, 2, 3].flatMap((Drifty) => [
    [`bar${Drifty}`, { MenuType: 2, Drifty }, mixed], [`drift${Drifty}`, { Drifty, CornerForPositioning: 2 }, mixed],
  ]), '<div style="width:3000px;height:3000px">tall</div>');
  page('movable', [0, 1].map((Movable) => [Movable, { Movable, menuname: `grip ${Movable}`, DisplayNameAsTitle: 1,
    TitlePadding: 5, VerticalDistanceFromCorner: 30 + 300 * Movable, ZIndex: 20 }, [opener(`opens ${Movable}`, ['inner'])]]));
});

inEachVisited(address, (visit) => {
  const panelOf = async (visitor, menu) => (await visitor.panels()).find((panel) => panel.menu.endsWith(`-${menu}`));

  // The side of the picture of an item or title (0 above, 1 right, 2 below, 3 left of the text), and the room before
  // and behind its content.
  const contentOf = (visitor, name) => visitor.run((name) => {
    const text = document.createRange();
    text.selectNodeContents(partOf(name, '.text') ?? partOf(name));
    const [words, image, around] = [text, partOf(name, '.picture') ?? text, partOf(name)].map(boxOf);
    return {
      side: [image.bottom <= words.top, image.left >= words.right, image.top >= words.bottom,
        image.right <= words.left].indexOf(true),
      before: Math.min(words.left, image.left) - around.left,
      behind: around.right - Math.max(words.right, image.right),
    };
  }, name);
  const assertAligned = async (visitor, name, place, side, edge) => {
    const content = await contentOf(visitor, name);
    assert.equal(content.side, place, name);
    if (side < 2) near(content.before, side ? content.behind : edge, name);
    else near(content.behind, edge, name);
  };

  visit('pictures and texts in items and titles', 'looks.html', async (visitor) => {
    for (const side of sides) {
      for (const place of places) await assertAligned(visitor, `${place} ${side}`, place, side, 0);
      await assertAligned(visitor, `text ${side}`, -1, side, 7);
    }
    for (const place of places) await assertAligned(visitor, `title ${place}`, place, place % 3, 9);
    // With its size told in the page, a picture has its room before it is loaded.
    assert.equal(await visitor.run(() => partOf('only', 'img').outerHTML.match(/width="30" height="10"/)?.length), 1);
    near((await visitor.box('opens', '.arrow')).right, (await visitor.box('opens')).right, 'arrow');
    assert.equal(await visitor.box('closed', '.arrow'), null);
    const titles = await visitor.run(() => all('.title').map((node) => node.textContent || `${node.title} ${boxOf(node).height}`));
    assert.deepEqual(titles, ['title 0', 'title 1', 'title 2', 'title 3', 'tip 28']);
  });

  visit('cursors, and borders and backgrounds of panels', 'looks.html', async (visitor) => {
    for (const cursor of cursors) assert.deepEqual(await visitor.told(cursor, '', 'cursor'), [cursor]);
    assert.deepEqual(await visitor.told('title 2', '', 'cursor', 'borderTopStyle'), ['crosshair', 'inset']);
    const look = (name) => visitor.told(name, '.panel', 'border', 'backgroundColor', 'backgroundImage');
    assert.deepEqual(await look('in a frame'), ['5px solid rgb(68, 85, 102)', 'rgba(0, 0, 0, 0)', 'none']);
    assert.match((await look('wait')).join(), /rgb\(16, 32, 48\).*red\.gif/);
  });

  visit('columns and rows, distances, uniform widths and heights', 'shapes.html', async (visitor) => {
    const same = (list, side) => new Set(list.map((box) => Math.round(box[side]))).size === 1;
    for (const [name, [type, uniform, distance]] of Object.entries(shapes)) {
      const list = (await panelOf(visitor, name)).items.map(({ box }) => box);
      const [start, end, along, across] = type
        ? ['left', 'right', 'width', 'height'] : ['top', 'bottom', 'height', 'width'];
      assert.ok(same(list, across) && same(list, type ? 'top' : 'left'), name);
      assert.equal(same(list, along), Boolean(uniform), name);
      list.slice(1).forEach((box, n) => near(box[start] - list[n][end], distance, name));
    }
    for (const name of ['crowd', 'crowdedBar']) {
      const list = (await panelOf(visitor, name)).items.map(({ box }) => box);
      assert.ok(!same(list, 'top') && list.every(({ right }) => right <= 1000), name);
    }
  });

  visit('bars take their width, menus keep to their corner, and a scroll takes along what drifts', 'tall.html', async (visitor) => {
    const assertAt = (...moves) => eventually(async () => {
      const [scrollWidth, clientWidth, clientHeight] = await visitor.run(() => (
        ['scrollWidth', 'clientWidth', 'clientHeight'].map((size) => document.documentElement[size])));
      for (const [drift, [left, top]] of moves.entries()) {
        const { box: bar } = await panelOf(visitor, `bar${drift}`);
        assert.deepEqual([bar.left, bar.width], [left, drift % 2 ? clientWidth : scrollWidth], `bar ${drift}`);
        const { box } = await panelOf(visitor, `drift${drift}`);
        assert.deepEqual([box.right, box.bottom].map(Math.round), [clientWidth - 30 + left, clientHeight - 30 + top], drift);
      }
    });
    for (const width of [1000, 700]) {
      await visitor.page.setViewport({ width, height: width - 100 });
      await assertAt([0, 0], [0, 0], [0, 0], [0, 0]);
    }
    await visitor.run(() => scrollTo(120, 210));
    await assertAt([-120, -210], [0, 0], [-120, 0], [0, -210]);
  });

  visit('the title drags a movable menu, by mouse and finger, inside the window', 'movable.html', async (visitor) => {
    const boxOf = async (menu) => (await panelOf(visitor, menu)).box;
    const assertAt = (...wanted) => eventually(async () => {
      const { left, top } = await boxOf(1);
      assert.deepEqual([left, top].map(Math.round), wanted.map(Math.round));
    });
    const drag = async (menu, x, y) => {
      const [fromX, fromY] = await visitor.centre(`grip ${menu}`);
      await visitor.mouse.move(fromX, fromY);
      await visitor.mouse.down();
      await visitor.mouse.move(Math.min(fromX + x, 999), Math.min(fromY + y, 699), { steps: 3 });
      await visitor.mouse.up();
    };
    const [fixed, start] = [await boxOf(0), await boxOf(1)];
    await drag(0, 100, 50);
    await visitor.click('opens 1');
    await shows(visitor, ['opens 0'], ['opens 1'], ['inner']);
    await drag(1, 100, 50);
    await shows(visitor, ['opens 0'], ['opens 1']);
    await assertAt(start.left + 100, start.top + 50);
    assert.deepEqual(await boxOf(0), fixed);
    await drag(1, 2000, 2000);
    await assertAt(1000 - start.width, 700 - start.height);
    await visitor.page.setViewport({ width: 800, height: 600 });
    await assertAt(800 - start.width, 600 - start.height);
    const [x, y] = await visitor.centre('grip 1');
    const touch = await visitor.page.touchscreen.touchStart(x, y);
    await touch.move(x - 300, y - 200);
    await touch.end();
    await assertAt(500 - start.width, 400 - start.height);
    assert.deepEqual(await visitor.told('grip 1', '.layer', 'zIndex'), ['20']);
  });
});
