// How a menu looks and where it stands: boxes, styles, pictures and places.
import assert from 'node:assert/strict';
import { test } from 'node:test';
import { eventually, inEachBrowser } from './support/browsers.mjs';
import { loggingPage, opener, plainMenu, servedSite, shows, visits } from './support/plain.mjs';

const near = (actual, expected, what) => assert.ok(Math.abs(actual - expected) <= 1, `${what}: ${actual} for ${expected}`);
const bare = { ItemPadding: 0, BorderWidth: 0, FontSize: '20px' };
const long = (name) => `${name}, and a good deal longer`;
const tall = '<div style="width:3000px;height:3000px">tall</div>';
const hostile = '<style>* { box-sizing: content-box !important; margin: 9px !important; border: 3px solid red !important }' +
  'div, nav, a, img, span { display: none !important; width: 1px !important; color: red !important }' +
  'body { line-height: 4; letter-spacing: 9px; font: 40px serif; text-transform: uppercase }</style>';

// The menus whose items show a property's values one below the other are all vertical and bare.
const address = servedSite((site) => {
  const [red, blue] = [site.picture('red.png', 30, 10), site.picture('blue.png', 16, 16, [0, 0, 255])];
  const many = (values, make) => values.map((value, n) => ({ ...bare, ItemName: `v${n}`, ...make(value) }));
  const show = (name, document, page) => {
    site.page(`${name}.html`, page ?? loggingPage());
    site.menu(name, document, [`${name}.html`]);
  };
  const wide = { ...bare, ItemName: long('wide') };

  show('content', plainMenu({}, [
    ...many([0, 1, 2, 3], (place) => ({ ItemImage: red, ImageAlignment: place, ItemAlignment: 0 })),
    ...many([0, 1, 2], (at) => ({ ItemName: `at${at}`, ItemAlignment: at })),
    { ...bare, ItemName: 'hidden', ItemTooltip: 'only', DisplayNameAsTitle: 0, ItemImage: blue },
    { ...bare, ItemName: 'padded', ItemPadding: 7 },
    opener('opens', ['inner'], {}, { HasSubmenuImage: blue }), { ...bare, ItemName: 'closed', HasSubmenuImage: blue }, wide,
  ]));

  const borders = ['none', 'solid', 'outset', 'inset'];
  show('styles', plainMenu({ BGImage: red, BGColor: '#102030', BorderStyle: 'inset', BorderWidth: 5, BorderColor: '#445566' }, [
    ...many(borders, (style) => ({ ItemName: style, BorderStyle: style, BorderWidth: 4, BorderColor: '#0000FF' })),
    ...many([0, 1, 2, 3, 4, 5, 6], (cursor) => ({ ItemName: `cursor${cursor}`, ItemCursor: cursor })),
    { ...bare, ItemName: 'font', FontFamily: 'monospace', FontSize: 'x-large', FontBold: 1, FontItalic: 1, FontUnderlined: 1,
      FontColor: '#0A0B0C', BGColor: '#AABBCC' },
    { ...bare, ItemName: 'clear', BGColor: 'n', FontColor: 'n' }, { ...bare, ItemName: 'tiled', BGImage: blue },
  ]));

  const title = { menuname: 'The title', DisplayNameAsTitle: 1, TitleImage: blue, TitleFontSize: '20px', TitlePadding: 6,
    TitleBorderStyle: 'solid', TitleBorderWidth: 3, TitleBorderColor: '#00FF00', TitleBGColor: '#112233', TitleFontColor: '#FFEEDD',
    TitleFontFamily: 'monospace', TitleFontBold: 1, TitleFontItalic: 1, TitleFontUnderlined: 1, TitleTooltip: 'tip', TitleCursor: 3 };
  [0, 1, 2, 3].forEach((place) => show(`title${place}`,
    plainMenu({ ...title, TitleImageAlignment: place, TitleTextAlignment: place % 3 }, [wide])));
  show('picture', plainMenu({ ...title, DisplayNameAsTitle: 0 }, [wide]));
  show('words', plainMenu({ ...title, TitleImage: 'n' }, [wide]));
  show('untitled', plainMenu({ ...title, DisplayNameAsTitle: 2 }, [wide]));

  const mixed = [{ ...bare, ItemName: 'a' }, { ...bare, ItemName: 'b<br>b' }, { ...bare, ItemName: long('c') }];
  for (const [name, menu] of Object.entries({
    column: {}, even: { UniformItemHeights: 1 }, spaced: { DistanceBetweenItems: 12 }, evenSpaced: { UniformItemHeights: 1, DistanceBetweenItems: 12 },
    row: { MenuType: 1 }, wideRow: { MenuType: 1, UniformItemWidths: 1 }, spacedRow: { MenuType: 1, DistanceBetweenItems: 12 },
  })) show(name, plainMenu(menu, mixed));
  show('bar', plainMenu({ MenuType: 2, HorizontalDistanceFromCorner: 50 }, mixed), loggingPage(tall));
  show('driftingBar', plainMenu({ MenuType: 2, Drifty: 1 }, mixed), loggingPage(tall));
  show('crowded', plainMenu({ MenuType: 1 }, Array.from({ length: 20 }, (_, n) => ({ ...bare, ItemName: `crowded ${n}` }))));

  for (let corner = 0; corner < 8; corner++) {
    show(`corner${corner}`, plainMenu({ CornerForPositioning: corner, HorizontalDistanceFromCorner: 40, VerticalDistanceFromCorner: 25 }, mixed));
  }
  for (const drift of [0, 1, 2, 3]) show(`drift${drift}`, plainMenu({ Drifty: drift }, ['one']), loggingPage(tall));
  for (const movable of [0, 1]) {
    show(`movable${movable}`, plainMenu({ Movable: movable, menuname: 'grip', DisplayNameAsTitle: 1, TitlePadding: 5 }, [opener('opens', ['inner'])]));
  }
  show('above', plainMenu({ ZIndex: 77 }, ['one']));
  show('auto', plainMenu({ ZIndex: 0 }, ['one']));

  const shown = plainMenu({ menuname: 'grip', DisplayNameAsTitle: 1 }, [
    { ...bare, ItemName: '<b>bold</b> &amp; plain' }, { ...bare, ItemName: '  edges  ' }, opener('opens', ['inner'], {}, { ItemImage: red })]);
  show('modern', shown);
  show('quirks', shown, '<html><body></body></html>');
  const hostilePage = `<!DOCTYPE html><html><head>${hostile}</head><body><p id="own">own</p></body></html>`;
  show('hostile', shown, hostilePage);
  site.page('alone.html', hostilePage);
});

inEachBrowser((browser, open) => {
  const visit = visits(address, open);
  const boxes = async (visitor) => (await visitor.panels())[0].items.map(({ box }) => box);

  visit('pictures stand on the four sides of the text, in the size of the table; arrows on items with submenus', 'content.html', async (visitor) => {
    const [above, right, below, left] = await Promise.all([0, 1, 2, 3].map(async (n) => {
      const [picture, words] = [await visitor.part(`v${n}`, '.picture'), await visitor.part(`v${n}`, '.text')];
      assert.deepEqual([picture.width, picture.height], [30, 10]);
      return [picture.left - words.left, picture.top - words.top];
    }));
    assert.ok(above[1] < 0 && below[1] > 0 && right[0] > 0 && left[0] < 0);
    const at = await visitor.run(() => [0, 1, 2].map((n) => {
      const range = document.createRange();
      const items = [...document.querySelector('[data-nbr-menu]').shadowRoot.querySelectorAll('.item')];
      const item = items.find(({ textContent }) => textContent === `at${n}`);
      range.selectNodeContents(item);
      return [range.getBoundingClientRect().left - item.getBoundingClientRect().left,
        item.getBoundingClientRect().right - range.getBoundingClientRect().right];
    }));
    near(at[0][0], 0, 'left');
    near(at[1][0], at[1][1], 'centred');
    near(at[2][1], 0, 'right');
    assert.equal(await visitor.part('hidden'), null);
    assert.ok((await visitor.part('only', '.picture', [], ['width'])).width > 0);
    assert.equal((await visitor.part('padded', null, ['paddingTop'])).paddingTop, '7px');
    assert.ok(await visitor.part('opens', '.arrow') && !await visitor.part('closed', '.arrow'));
  });

  visit('borders, colours, backgrounds, fonts and cursors', 'styles.html', async (visitor) => {
    for (const style of ['none', 'solid', 'outset', 'inset']) {
      const border = await visitor.part(style, null, ['borderTopStyle', 'borderTopWidth', 'borderTopColor']);
      assert.equal(border.borderTopStyle, style);
      assert.equal(border.borderTopWidth, style === 'none' ? '0px' : '4px');
      if (style === 'solid') assert.equal(border.borderTopColor, 'rgb(0, 0, 255)');
    }
    const cursors = ['default', 'pointer', 'crosshair', 'help', 'move', 'text', 'wait'];
    for (const [n, cursor] of cursors.entries()) assert.equal((await visitor.part(`cursor${n}`, null, ['cursor'])).cursor, cursor);
    const font = await visitor.part('font', null, ['fontFamily', 'fontSize', 'fontWeight', 'fontStyle', 'textDecorationLine', 'color', 'backgroundColor']);
    assert.deepEqual([font.fontFamily, font.fontWeight, font.fontStyle, font.textDecorationLine, font.color, font.backgroundColor],
      ['monospace', '700', 'italic', 'underline', 'rgb(10, 11, 12)', 'rgb(170, 187, 204)']);
    assert.ok(parseFloat(font.fontSize) > 16);
    const clear = await visitor.part('clear', null, ['backgroundColor', 'color', 'backgroundImage']);
    assert.deepEqual([clear.backgroundColor, clear.color, clear.backgroundImage], ['rgba(0, 0, 0, 0)', 'rgb(0, 0, 0)', 'none']);
    assert.match((await visitor.part('tiled', null, ['backgroundImage'])).backgroundImage, /blue\.png/);
    const panel = await visitor.part('clear', '.panel', ['backgroundColor', 'backgroundImage', 'borderTopStyle', 'borderTopWidth', 'borderTopColor']);
    assert.deepEqual([panel.backgroundColor, panel.borderTopStyle, panel.borderTopWidth], ['rgb(16, 32, 48)', 'inset', '5px']);
    assert.match(panel.backgroundImage, /red\.png/);
  });

  test('a title with text, picture or both, on each side and in each alignment', async () => {
    const visitor = await open(address('title0.html'));
    const look = await visitor.part('The title', null, ['paddingTop', 'borderTopWidth', 'borderTopColor', 'backgroundColor', 'color', 'cursor',
      'fontWeight', 'fontStyle', 'textDecorationLine', 'fontFamily'], ['title']);
    assert.deepEqual([look.paddingTop, look.borderTopWidth, look.borderTopColor, look.backgroundColor, look.color, look.cursor],
      ['6px', '3px', 'rgb(0, 255, 0)', 'rgb(17, 34, 51)', 'rgb(255, 238, 221)', 'help']);
    assert.deepEqual([look.fontWeight, look.fontStyle, look.textDecorationLine, look.fontFamily, look.title],
      ['700', 'italic', 'underline', 'monospace', 'tip']);
    const offsets = [];
    for (const place of [0, 1, 2, 3]) {
      await visitor.page.goto(address(`title${place}.html`));
      const [whole, picture, words] = [await visitor.part('The title'), await visitor.part('The title', '.picture'), await visitor.part('The title', '.text')];
      offsets.push([picture.left - words.left, picture.top - words.top]);
      const [before, behind] = [Math.min(picture.left, words.left) - whole.left, whole.right - Math.max(picture.right, words.right)];
      [() => near(before, 9, 'left'), () => near(before, behind, 'centred'), () => near(behind, 9, 'right')][place % 3]();
    }
    const [above, right, below, left] = offsets;
    assert.ok(above[1] < 0 && right[0] > 0 && below[1] > 0 && left[0] < 0);
    await visitor.page.goto(address('picture.html'));
    assert.equal((await visitor.panels())[0].title, '');
    await visitor.page.goto(address('words.html'));
    assert.equal((await visitor.panels())[0].title, 'The title');
    assert.equal(await visitor.part('The title', '.picture'), null);
    await visitor.page.goto(address('untitled.html'));
    assert.equal((await visitor.panels())[0].title, null);
    assert.deepEqual(visitor.faults, []);
    await visitor.close();
  });

  test('columns and rows, distances, uniform widths and heights', async () => {
    const visitor = await open(address('column.html'));
    const of = async (name) => {
      await visitor.page.goto(address(`${name}.html`));
      return boxes(visitor);
    };
    const gaps = (list, end, start) => list.slice(1).map((box, n) => Math.round(box[start] - list[n][end]));
    const same = (list, side) => new Set(list.map((box) => Math.round(box[side]))).size === 1;
    const column = await of('column');
    assert.ok(same(column, 'width') && !same(column, 'height'));
    assert.deepEqual(gaps(column, 'bottom', 'top'), [0, 0]);
    const even = await of('even');
    assert.ok(same(even, 'height'));
    assert.deepEqual(gaps(await of('spaced'), 'bottom', 'top'), [12, 12]);
    const evenSpaced = await of('evenSpaced');
    assert.ok(same(evenSpaced, 'height'));
    assert.deepEqual(gaps(evenSpaced, 'bottom', 'top'), [12, 12]);
    const row = await of('row');
    assert.ok(same(row, 'height') && same(row, 'top') && !same(row, 'width'));
    assert.ok(same(await of('wideRow'), 'width'));
    assert.deepEqual(gaps(await of('spacedRow'), 'right', 'left'), [12, 12]);
    const crowded = await of('crowded');
    assert.ok(!same(crowded, 'top') && crowded.every(({ right }) => right <= 1000), 'a row too wide for the window wraps');
    await visitor.close();
  });

  test('a bar is as wide as the page, or as the window if it drifts sideways, also when that changes', async () => {
    const visitor = await open(address('bar.html'));
    const panel = async () => (await visitor.panels())[0].box;
    assert.equal((await panel()).left, 0);
    assert.ok((await panel()).width >= 3000);
    await visitor.page.goto(address('driftingBar.html'));
    for (const width of [1000, 700]) {
      await visitor.page.setViewport({ width, height: 700 });
      await eventually(async () => assert.equal((await panel()).width, await visitor.run(() => document.documentElement.clientWidth)));
    }
    await visitor.close();
  });

  test('the menu stands at its corner or edge, also when the window changes', async () => {
    const visitor = await open(address('corner0.html'));
    for (let corner = 0; corner < 8; corner++) {
      await visitor.page.setViewport({ width: 1000, height: 700 });
      await visitor.page.goto(address(`corner${corner}.html`));
      for (const [width, height] of [[1000, 700], [800, 600]]) {
        await visitor.page.setViewport({ width, height });
        await eventually(async () => {
          const [{ box }] = await visitor.panels();
          const [left, right, top, bottom] = [box.left, width - box.right, box.top, height - box.bottom];
          if ([5, 7].includes(corner)) near(left, right, corner);
          else near([1, 2, 6].includes(corner) ? right : left, 40, corner);
          if ([4, 6].includes(corner)) near(top, bottom, corner);
          else near([2, 3, 7].includes(corner) ? bottom : top, 25, corner);
        });
      }
    }
    await visitor.close();
  });

  test('a scroll leaves the menu in the page, or takes it along on the axes on which it drifts', async () => {
    const visitor = await open(address('drift0.html'));
    for (const [drift, across, down] of [[0, 0, 0], [1, 1, 1], [2, 0, 1], [3, 1, 0]]) {
      await visitor.page.goto(address(`drift${drift}.html`));
      const before = (await visitor.panels())[0].box;
      await visitor.run(() => scrollTo(120, 210));
      await eventually(async () => {
        const { box } = (await visitor.panels())[0];
        assert.deepEqual([box.left - before.left, box.top - before.top], [across ? 0 : -120, down ? 0 : -210], String(drift));
      });
    }
    await visitor.close();
  });

  test('the title drags a movable menu, by mouse and finger, and never out of reach', async () => {
    const visitor = await open(address('movable0.html'));
    const corner = async () => {
      const { box } = (await visitor.panels())[0];
      return [Math.round(box.left), Math.round(box.top)];
    };
    const drag = async (x, y) => {
      const [fromX, fromY] = await visitor.centre('grip');
      await visitor.mouse.move(fromX, fromY);
      await visitor.mouse.down();
      const inside = (value, limit) => Math.max(0, Math.min(value, limit - 1)); // where a pointer can be
      await visitor.mouse.move(inside(fromX + x, 1000), inside(fromY + y, 700), { steps: 3 });
      await visitor.mouse.up();
    };
    const still = await corner();
    await drag(100, 50);
    assert.deepEqual(await corner(), still);
    await visitor.page.goto(address('movable1.html'));
    await visitor.click('opens');
    await shows(visitor, ['opens'], ['inner']);
    await drag(100, 50);
    await shows(visitor, ['opens']);
    assert.deepEqual(await corner(), [still[0] + 100, still[1] + 50]);
    await drag(-900, -900);
    assert.deepEqual(await corner(), [0, 0]);
    await drag(2000, 2000);
    const { box } = (await visitor.panels())[0];
    assert.deepEqual([box.right, box.bottom].map(Math.round), [1000, 700]);
    const [x, y] = await visitor.centre('grip');
    const touch = await visitor.page.touchscreen.touchStart(x, y);
    await touch.move(x - 300, y - 200);
    await touch.end();
    assert.deepEqual(await corner(), [box.left - 300, box.top - 200].map(Math.round));
    await visitor.close();
  });

  test('the stacking order is the number told, or left to the page', async () => {
    for (const [name, order] of [['above', '77'], ['auto', 'auto']]) {
      const visitor = await open(address(`${name}.html`));
      assert.equal((await visitor.part('one', '.layer', ['zIndex'])).zIndex, order);
      await visitor.close();
    }
  });

  test('the same in quirks mode and in a page whose rules would break it, whose own look stays', async () => {
    const shownIn = async (name) => {
      const visitor = await open(address(`${name}.html`));
      await visitor.click('opens');
      await shows(visitor, ['bold & plain', '\u00a0\u00a0 edges \u00a0\u00a0', 'opens'], ['inner']);
      const panels = await visitor.panels();
      const bold = await visitor.part('bold & plain', 'b', ['fontWeight', 'color']);
      await visitor.close();
      return { panels: panels.map(({ box, items }) => [box, items.map((item) => item.box)]), bold };
    };
    const modern = await shownIn('modern');
    assert.equal(modern.bold.fontWeight, '700');
    for (const name of ['quirks', 'hostile']) assert.deepEqual((await shownIn(name)).panels, modern.panels, name);
    const look = async (name) => {
      const visitor = await open(address(`${name}.html`));
      const own = await visitor.run(() => {
        const style = getComputedStyle(document.querySelector('#own'));
        return [...style].map((property) => `${property}:${style.getPropertyValue(property)}`);
      });
      await visitor.close();
      return own;
    };
    assert.deepEqual(await look('hostile'), await look('alone'));
  });
});
