// Menus used by keyboard, and what they tell assistive technology.
import assert from 'node:assert/strict';
import { eventually } from '../support/browsers.mjs';
import { pageOf } from '../support/site.mjs';
import { opener, plainMenu, suite } from '../support/suite.mjs';

const items = [
  opener('File', ['New', opener('Open', ['Recent', 'Other']),
    { ItemName: 'Save', JavascriptCommand3: "log.push('save')" }]),
  opener('View', [opener('Zoom', ['In', 'Out'])], { SubmenuType: 1 }),
  { ItemName: 'Edit', URL: '#edit' },
  { ItemName: '', ItemPadding: 3 },
  { ItemName: 'find <b>next</b>', JavascriptCommand3: "log.push('find')" },
];

// Keys, and then the focused item and the first item of each open submenu.
const inBar = [
  ['Tab', 'File'], ['Right', 'View'], ['Right Down', 'Edit'], ['Right', 'find next'], ['Right', 'File'],
  ['End', 'find next'], ['Home', 'File'], ['F', 'find next'], ['x', 'find next'], ['f Down', 'New/New'],
  ['Down', 'Open/New'], ['Right', 'Recent/New/Recent'], ['Down', 'Other/New/Recent'], ['Left', 'Open/New'],
  ['Enter', 'Recent/New/Recent'], ['Escape', 'Open/New'], ['Space', 'Recent/New/Recent'], ['Right', 'View/Zoom'],
  ['Left', 'File/New'], ['Up', 'Save/New'], ['Escape', 'File'], ['Right Space', 'Zoom/Zoom'],
  ['Down', 'In/Zoom/In'], ['Escape', 'Zoom/Zoom'], ['Up', 'View'],
];
const fromRightToLeft = [
  ['Tab', 'File'], ['Left', 'View'], ['Right', 'File'], ['Down Down', 'Open/New'], ['Left', 'Recent/New/Recent'],
];

export default suite('keyboard and accessibility', (site) => {
  site.menu('column', plainMenu({}, items));
  site.menu('bar', plainMenu({ MenuType: 1 }, items));
  site.page('rtl.html', pageOf('', ' dir="rtl"'));
  site.menu('rtl', plainMenu({ MenuType: 1, CornerForPositioning: 5 }, items));
  const image = {
    ItemName: 'hidden', DisplayNameAsTitle: 0, ItemImage: site.picture('big_red-button.gif', 20, 20), URL: 'other.html' };
  site.menu('names', plainMenu({ menuname: 'Main', DisplayNameAsTitle: 1 }, [
    { ...image, ItemTooltip: 'tip' }, image, '', { ItemName: 'part', URL: 'names.html#part' },
    { ItemName: 'whole', URL: 'names.html' }, { ItemName: 'elsewhere', URL: 'other.html' }, opener('opens', ['in']),
  ]));
}, (visit, _, browserName) => {
  async function presses(visitor, steps) {
    for (const [step, [keys, wanted]] of steps.entries()) {
      await visitor.press(keys);
      const submenus = (await visitor.opened()).replace(/^[^/]*/, '');
      assert.equal(await visitor.focused() + submenus, wanted, `step ${step}, ${keys}`);
    }
  }

  visit('arrows, ends, letters, Enter, Space and Escape', 'bar.html', (visitor) => presses(visitor, inBar));

  visit('Enter and Space use items; Tab leaves the menu and returns to the same item', 'bar.html', async (visitor) => {
    await visitor.run(() => document.body.insertAdjacentHTML('beforeend', '<input aria-label="after">'));
    await presses(visitor, [['Tab Right Down', 'Zoom/Zoom'], ['Tab', 'after']]);
    await visitor.page.keyboard.down('Shift');
    await presses(visitor, [['Tab', 'View']]);
    await visitor.page.keyboard.up('Shift');
    await presses(visitor, [['Tab', 'after']]);
    await visitor.run(() => partOf('File').focus());
    await visitor.press('Up Enter');
    await visitor.focuses('File');
    await presses(visitor, [['End Space', 'find next']]);
    await visitor.logs('save', 'find');
    await visitor.press('Left Enter');
    await eventually(async () => assert.ok(visitor.page.url().endsWith('#edit')));
  });

  visit('roles, names, states and the current page are exposed', 'names.html', async (visitor) => {
    const list = (name) => visitor.look(name, '.list', 'role', 'aria-orientation', 'aria-label');
    const popup = () => visitor.look('opens', '', 'role', 'aria-haspopup', 'aria-expanded');
    const [{ items: named }] = await visitor.panels();
    assert.deepEqual(named.map(({ name }) => name), ['tip', 'big red button', null, 'part', 'whole', 'elsewhere', 'opens']);
    assert.deepEqual(await visitor.look(null, '', 'role', 'tabindex'), ['separator', null]);
    assert.deepEqual(await list('part'), ['menubar', 'vertical', 'Main']);
    assert.deepEqual(await popup(), ['menuitem', 'menu', 'false']);
    await visitor.click('opens');
    assert.deepEqual(await popup(), ['menuitem', 'menu', 'true']);
    assert.deepEqual(await list('in'), ['menu', 'vertical', 'opens']);
    for (const [hash, wanted] of [['', ['whole']], ['part', ['part', 'whole']]]) {
      await visitor.run((hash) => { location.hash = hash; }, hash);
      const current = () => visitor.run(() => all('[aria-current=page]').map(nameOf));
      await eventually(async () => assert.deepEqual(await current(), wanted));
    }
  });

  visit('keyboard focus has a ring in two colours, focus after a click has none', 'column.html', async (visitor) => {
    const look = () => visitor.look('find next', '', 'outlineStyle', 'boxShadow', 'outlineColor');
    await visitor.click('find next');
    assert.equal(await visitor.focused(), 'find next');
    assert.deepEqual((await look()).slice(0, 2), ['none', 'none']);
    await visitor.press('Home End');
    assert.deepEqual(await look(), ['solid', 'rgb(255, 255, 255) 0px 0px 0px 4px inset', 'rgb(0, 0, 0)']);
  });

  // WebDriver BiDi cannot emulate forced colours in Firefox.
  if (browserName === 'Chromium') {
    visit('in forced colours the item under the pointer has the colours of a selection', 'column.html', async (visitor) => {
      const session = await visitor.page.createCDPSession();
      await session.send('Emulation.setEmulatedMedia', { features: [{ name: 'forced-colors', value: 'active' }] });
      await visitor.hover('Edit');
      const selection = await visitor.run(() => {
        document.body.style.cssText = 'forced-color-adjust:none;background:Highlight;color:HighlightText';
        return ['backgroundColor', 'color'].map((style) => getComputedStyle(document.body)[style]);
      });
      assert.deepEqual(await visitor.look('Edit', '', 'backgroundColor', 'color'), selection);
      assert.notDeepEqual(await visitor.look('find next', '', 'backgroundColor', 'color'), selection);
    });
  }

  visit('in a page from right to left the menu and its keys are mirrored', 'rtl.html', async (visitor) => {
    await presses(visitor, fromRightToLeft);
    const [{ items: [first, second] }, { box: file }, { box: open }] = await visitor.panels();
    assert.ok(first.box.right > second.box.right);
    assert.deepEqual([file.right, open.right].map(Math.round), [first.box.right, file.left].map(Math.round));
  });
});
