// Menus by keyboard, and what they tell to who does not see them as their authors do.
import assert from 'node:assert/strict';
import { eventually } from './support/browsers.mjs';
import { inEachVisited, logs, opener, plainMenu, servedSite } from './support/plain.mjs';
import { pageOf } from './support/site.mjs';

const items = [
  opener('File', ['New', opener('Open', ['Recent', 'Other']),
    { ItemName: 'Save', JavascriptCommand3: "log.push('save')" }]),
  opener('View', [opener('Zoom', ['In', 'Out'])], { SubmenuType: 1 }),
  { ItemName: 'Edit', URL: '#edit' },
  { ItemName: '', ItemPadding: 3 },
  { ItemName: 'find <b>next</b>', JavascriptCommand3: "log.push('find')" },
];
const input = (name) => `<input aria-label="${name}">`;

const address = servedSite((site) => {
  for (const [MenuType, name, more] of [[0, 'column', ''], [1, 'row', ''], [1, 'rtl', ' dir="rtl"']]) {
    site.page(`${name}.html`, pageOf(input('before'), more));
    site.menu(name, plainMenu({ MenuType, CornerForPositioning: MenuType * 5, VerticalDistanceFromCorner: 100 }, items));
  }
  const onlyImage = {
    ItemName: 'hidden', DisplayNameAsTitle: 0, ItemImage: site.picture('big_red-button.gif', 20, 20), URL: 'other.html' };
  site.menu('names', plainMenu({ menuname: 'All of it', DisplayNameAsTitle: 1 }, [
    { ...onlyImage, ItemTooltip: 'Say it' }, onlyImage, '', { ItemName: 'part', URL: 'names.html#part' },
    { ItemName: 'whole', URL: 'names.html' }, { ItemName: 'elsewhere', URL: 'other.html' }, opener('opens', ['in']),
  ]));
});

// Keys, and the wanted state behind them: the item with the focus, and behind slashes the first item of each open submenu.
const keys = {
  row: [
    ['Tab', 'File'], ['Right', 'View'], ['Right Down', 'Edit'], ['Right', 'find next'], ['Right', 'File'],
    ['Left', 'find next'], ['Home', 'File'], ['End', 'find next'], ['f', 'File'], ['F', 'find next'], ['x', 'find next'],
    ['f Down', 'New/New'], ['Down', 'Open/New'], ['Down Down', 'New/New'], ['Up', 'Save/New'], ['Home', 'New/New'],
    ['o', 'Open/New'], ['Right', 'Recent/New/Recent'], ['Down', 'Other/New/Recent'], ['Left', 'Open/New'],
    ['Enter', 'Recent/New/Recent'], ['Escape', 'Open/New'], ['Space', 'Recent/New/Recent'], ['Right', 'View/Zoom'],
    ['Left', 'File/New'], ['Up', 'Save/New'], ['Escape', 'File'], ['Down Left', 'find next'], ['Home Right', 'View'],
    ['Space', 'Zoom/Zoom'], ['Down', 'In/Zoom/In'], ['Escape', 'Zoom/Zoom'], ['Up', 'View'],
  ],
  column: [
    ['Tab', 'File'], ['Down', 'View'], ['Up Left', 'File'], ['Up Right', 'find next'], ['Down Right', 'New/New'],
    ['Right Down', 'Open/New'], ['Right', 'Recent/New/Recent'], ['Left', 'Open/New'], ['Left', 'File'],
    ['Down Right', 'Zoom/Zoom'], ['Right Down', 'In/Zoom/In'], ['Escape', 'Zoom/Zoom'], ['Escape', 'View'],
  ],
  rtl: [
    ['Tab', 'File'], ['Left', 'View'], ['Right', 'File'], ['Down Down', 'Open/New'], ['Left', 'Recent/New/Recent'],
  ],
};

inEachVisited(address, (visitPage, browser) => {
  const visit = (title, page, body) => visitPage(title, page, async (visitor) => {
    await visitor.run((after) => {
      document.body.insertAdjacentHTML('beforeend', after);
      document.querySelector('input')?.focus();
    }, input('after'));
    await body(visitor);
  });
  const press = async (visitor, key) => (
    visitor.press(key.replace(/^(Right|Left|Up|Down)$/, 'Arrow$1').replace('Space', ' ')));

  async function presses(visitor, steps) {
    for (const [step, [keys, wanted]] of steps.entries()) {
      for (const key of keys.split(' ')) await press(visitor, key);
      const opened = (await visitor.shown()).slice(1).map(([first]) => first);
      assert.equal([await visitor.focused(), ...opened].join('/'), wanted, `step ${step}, ${keys}`);
    }
  }

  for (const type of ['row', 'column']) {
    visit(`arrows, ends, letters, Enter, Space and Esc in a ${type}`, `${type}.html`, (visitor) => presses(visitor, keys[type]));
  }

  visit('Enter and Space use items; Tab leaves and comes back to where it was', 'row.html', async (visitor) => {
    await presses(visitor, [['Tab Right Down', 'Zoom/Zoom'], ['Tab', 'after']]);
    await visitor.page.keyboard.down('Shift');
    await presses(visitor, [['Tab', 'View'], ['Tab', 'before']]);
    await visitor.page.keyboard.up('Shift');
    await presses(visitor, [['Tab', 'View'], ['Home Up', 'Save/New']]);
    await press(visitor, 'Enter');
    await eventually(async () => assert.equal(await visitor.focused(), 'File'));
    await presses(visitor, [['End Space Enter', 'find next']]);
    await logs(visitor, 'save', 'find', 'find');
    await presses(visitor, [['e', 'Edit']]);
    for (const key of ['Enter', 'Space']) {
      await visitor.run(() => history.replaceState(null, '', location.pathname));
      await press(visitor, key);
      await eventually(async () => assert.equal(await visitor.run(() => location.hash), '#edit', key));
    }
  });

  visit('roles, names, states and the own page are told', 'names.html', async (visitor) => {
    const list = (name) => visitor.told(name, '.list', 'role', 'aria-orientation', 'aria-label');
    const opening = () => visitor.told('opens', '', 'role', 'aria-haspopup', 'aria-expanded');
    const [names] = await visitor.shown();
    assert.deepEqual(names, ['Say it', 'big red button', null, 'part', 'whole', 'elsewhere', 'opens']);
    assert.deepEqual(await visitor.told(null, '', 'role', 'tabindex', 'href'), ['separator', null, null]);
    assert.deepEqual(await list('part'), ['menubar', 'vertical', 'All of it']);
    assert.deepEqual(await opening(), ['menuitem', 'menu', 'false']);
    await visitor.click('opens');
    assert.deepEqual(await opening(), ['menuitem', 'menu', 'true']);
    assert.deepEqual(await list('in'), ['menu', 'vertical', 'opens']);
    for (const [hash, ...wanted] of [['', null, 'page', null], ['part', 'page', 'page', null], ['else', null, 'page', null]]) {
      await visitor.run((hash) => { location.hash = hash; }, hash);
      await eventually(async () => {
        const current = ['part', 'whole', 'elsewhere'].map((name) => visitor.told(name, '', 'aria-current'));
        assert.deepEqual((await Promise.all(current)).flat(), wanted, hash);
      });
    }
  });

  visit('focus by keyboard is seen in two colours, not that of a click', 'column.html', async (visitor) => {
    const look = () => visitor.told('find next', '', 'outlineStyle', 'boxShadow', 'outlineColor');
    await visitor.click('find next');
    assert.equal(await visitor.focused(), 'find next');
    assert.deepEqual((await look()).slice(0, 2), ['none', 'none']);
    await presses(visitor, [['Home', 'File'], ['End', 'find next']]);
    assert.deepEqual(await look(), ['solid', 'rgb(255, 255, 255) 0px 0px 0px 4px inset', 'rgb(0, 0, 0)']);
  });

  // The protocol for Firefox has no way to ask for this.
  if (browser === 'Chromium') {
    visit('in forced colours the pointed item has those of a selection', 'column.html', async (visitor) => {
      const session = await visitor.page.createCDPSession();
      await session.send('Emulation.setEmulatedMedia', { features: [{ name: 'forced-colors', value: 'active' }] });
      await visitor.hover('Edit');
      const selection = await visitor.run(() => {
        document.body.style.cssText = 'forced-color-adjust:none;background:Highlight;color:HighlightText';
        return ['backgroundColor', 'color'].map((style) => getComputedStyle(document.body)[style]);
      });
      assert.deepEqual(await visitor.told('Edit', '', 'backgroundColor', 'color'), selection);
      assert.notDeepEqual(await visitor.told('find next', '', 'backgroundColor', 'color'), selection);
    });
  }

  visit('in a page from right to left the inside of the menu is mirrored, keys too', 'rtl.html', async (visitor) => {
    await presses(visitor, keys.rtl);
    const [{ items: [first, second] }, { box: file }, { box: open }] = await visitor.panels();
    assert.ok(first.box.right > second.box.right);
    assert.deepEqual([file.right, open.right].map(Math.round), [first.box.right, file.left].map(Math.round));
    await presses(visitor, [['Right', 'Open/New']]);
  });
});
