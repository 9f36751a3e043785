// Menus by keyboard, and what they tell to who does not see them as their authors do.
import assert from 'node:assert/strict';
import { test } from 'node:test';
import { eventually, inEachBrowser } from './support/browsers.mjs';
import { loggingPage, logs, opener, plainMenu, servedSite, shows, visits } from './support/plain.mjs';

const items = [
  opener('File', ['New', opener('Open', ['Recent', 'Other']),
    { ItemName: 'Save', JavascriptCommand3: "log.push('save')" }]),
  opener('View', [opener('Zoom', ['In', 'Out'])], { SubmenuType: 1 }),
  { ItemName: 'Edit', URL: '#edit' },
  { ItemName: '', ItemPadding: 3 },
  { ItemName: 'find <b>next</b>', JavascriptCommand3: "log.push('find')" },
];

const address = servedSite((site) => {
  for (const [type, name] of ['column', 'row', 'bar'].entries()) {
    site.page(`keys_${name}.html`, loggingPage('<input aria-label="before">'));
    site.menu(`keys_${name}`, plainMenu({ MenuType: type, VerticalDistanceFromCorner: 100 }, items));
  }
  site.page('rtl.html', loggingPage('<input aria-label="before">', ' dir="rtl"'));
  site.menu('rtl', plainMenu({ MenuType: 1, CornerForPositioning: 5, VerticalDistanceFromCorner: 100 }, items));

  const image = site.picture('big_red-button.png', 20, 20);
  const onlyImage = { ItemName: 'hidden', DisplayNameAsTitle: 0, ItemImage: image, URL: 'other.html' };
  site.page('names.html', loggingPage());
  site.menu('names', plainMenu({ menuname: 'All of it', DisplayNameAsTitle: 1 }, [
    { ...onlyImage, ItemTooltip: 'Say it' }, onlyImage, '', { ItemName: 'part', URL: 'names.html#part' },
    { ItemName: 'whole', URL: 'names.html' }, { ItemName: 'elsewhere', URL: 'other.html' }, opener('opens', ['in']),
  ]));
});

// The wanted state behind each key: the item with the focus, and behind slashes the first item of each open submenu.
const keys = {
  row: [
    ['Tab', 'File'], ['ArrowRight', 'View'], ['ArrowRight', 'Edit'], ['ArrowDown', 'Edit'], ['ArrowRight', 'find next'],
    ['ArrowRight', 'File'], ['ArrowLeft', 'find next'], ['Home', 'File'], ['End', 'find next'], ['f', 'File'],
    ['F', 'find next'], ['v', 'View'], ['x', 'View'], ['f', 'find next'], ['f', 'File'],
    ['ArrowDown', 'New/New'], ['ArrowDown', 'Open/New'], ['ArrowDown', 'Save/New'], ['ArrowDown', 'New/New'],
    ['ArrowUp', 'Save/New'], ['Home', 'New/New'], ['End', 'Save/New'], ['o', 'Open/New'],
    ['ArrowRight', 'Recent/New/Recent'], ['ArrowDown', 'Other/New/Recent'], ['ArrowLeft', 'Open/New'],
    ['Enter', 'Recent/New/Recent'], ['Escape', 'Open/New'],
    [' ', 'Recent/New/Recent'], ['ArrowRight', 'View/Zoom'], ['ArrowLeft', 'File/New'], ['ArrowUp', 'Save/New'],
    ['Escape', 'File'], ['ArrowDown', 'New/New'], ['ArrowLeft', 'find next'], ['Home', 'File'], ['ArrowRight', 'View'],
    [' ', 'Zoom/Zoom'], ['ArrowDown', 'In/Zoom/In'], ['Escape', 'Zoom/Zoom'], ['ArrowUp', 'View'], ['Escape', 'View'],
  ],
  column: [
    ['Tab', 'File'], ['ArrowDown', 'View'], ['ArrowUp', 'File'], ['ArrowLeft', 'File'], ['ArrowUp', 'find next'],
    ['ArrowRight', 'find next'], ['ArrowDown', 'File'], ['ArrowRight', 'New/New'], ['ArrowRight', 'New/New'],
    ['ArrowDown', 'Open/New'], ['ArrowRight', 'Recent/New/Recent'], ['ArrowLeft', 'Open/New'], ['ArrowLeft', 'File'],
    ['End', 'find next'], ['v', 'View'], ['ArrowRight', 'Zoom/Zoom'], ['ArrowRight', 'Zoom/Zoom'],
    ['ArrowDown', 'In/Zoom/In'], ['Escape', 'Zoom/Zoom'], ['Escape', 'View'], [' ', 'Zoom/Zoom'], ['ArrowUp', 'View'],
  ],
  rtl: [
    ['Tab', 'File'], ['ArrowLeft', 'View'], ['ArrowRight', 'File'], ['ArrowDown', 'New/New'], ['ArrowDown', 'Open/New'],
    ['ArrowLeft', 'Recent/New/Recent'], ['ArrowRight', 'Open/New'],
  ],
};
keys.bar = keys.row;

inEachBrowser((browser, open) => {
  const visit = visits(address, open);
  const enter = (visitor) => visitor.run(() => {
    document.body.insertAdjacentHTML('beforeend', '<input aria-label="after">');
    document.querySelector('input').focus();
  });

  async function presses(visitor, steps) {
    for (const [step, [key, wanted]] of steps.entries()) {
      await visitor.press(key);
      const opened = (await visitor.shown()).slice(1).map(([first]) => first);
      assert.equal([await visitor.focused(), ...opened].join('/'), wanted, `step ${step}, ${key}`);
    }
  }

  for (const type of ['row', 'bar', 'column']) {
    visit(`arrows, ends, letters, Enter, Space and Esc in a ${type}`, `keys_${type}.html`, async (visitor) => {
      await enter(visitor);
      await presses(visitor, keys[type]);
    });
  }

  visit('Enter and Space use items; Tab leaves and comes back to where it was', 'keys_row.html', async (visitor) => {
    await enter(visitor);
    await presses(visitor, [['Tab', 'File'], ['End', 'find next']]);
    await visitor.press(' ');
    await visitor.press('Enter');
    await logs(visitor, 'find', 'find');
    await presses(visitor, [['Home', 'File'], ['ArrowUp', 'Save/New']]);
    await visitor.press('Enter');
    await logs(visitor, 'find', 'find', 'save');
    await eventually(async () => assert.equal(await visitor.focused(), 'File'));
    await visitor.press('e');
    for (const key of ['Enter', ' ']) {
      await visitor.run(() => history.replaceState(null, '', location.pathname));
      await visitor.press(key);
      await eventually(async () => assert.equal(await visitor.run(() => location.hash), '#edit', key));
    }
    await presses(visitor, [['Home', 'File'], ['ArrowRight', 'View'], ['ArrowDown', 'Zoom/Zoom'], ['Tab', 'after']]);
    await visitor.page.keyboard.down('Shift');
    await presses(visitor, [['Tab', 'View'], ['Tab', 'before']]);
    await visitor.page.keyboard.up('Shift');
    await presses(visitor, [['Tab', 'View'], ['Tab', 'after']]);
    const stops = await visitor.run(() => menu().querySelectorAll('[tabindex="0"]').length);
    assert.equal(stops, 1);
  });

  visit('roles, names, states and the own page are told', 'names.html', async (visitor) => {
    const valuesOf = async (name, part, wanted) => {
      const values = await visitor.part(name, part, [], wanted);
      return wanted.map((one) => values[one]);
    };
    const attributes = (name, ...wanted) => valuesOf(name, null, wanted);
    const list = (name) => valuesOf(name, '.list', ['role', 'aria-orientation', 'aria-label']);
    assert.deepEqual(await list('part'), ['menubar', 'vertical', 'All of it']);
    const [{ items }] = await visitor.panels();
    const names = ['Say it', 'big red button', null, 'part', 'whole', 'elsewhere', 'opens'];
    assert.deepEqual(items.map(({ name }) => name), names);
    assert.deepEqual(await attributes('Say it', 'role', 'aria-haspopup'), ['menuitem', null]);
    assert.deepEqual(await visitor.run(() => {
      const [separator, ...more] = menu().querySelectorAll('[role=separator]');
      return [more.length, separator.textContent, separator.hasAttribute('tabindex'), separator.hasAttribute('href')];
    }), [0, '', false, false]);
    assert.deepEqual(await attributes('opens', 'aria-haspopup', 'aria-expanded'), ['menu', 'false']);
    await visitor.click('opens');
    assert.deepEqual(await attributes('opens', 'aria-haspopup', 'aria-expanded'), ['menu', 'true']);
    assert.deepEqual(await list('in'), ['menu', 'vertical', 'opens']);

    const current = (...wanted) => eventually(async () => {
      const links = ['part', 'whole', 'elsewhere'].map((name) => attributes(name, 'aria-current'));
      assert.deepEqual((await Promise.all(links)).flat(), wanted);
    });
    await current(null, 'page', null);
    await visitor.run(() => { location.hash = 'part'; });
    await current('page', 'page', null);
    await visitor.run(() => { location.hash = 'else'; });
    await current(null, 'page', null);
  });

  visit('focus by keyboard is seen in two colours, not that of a click', 'keys_column.html', async (visitor) => {
    await enter(visitor);
    const look = async () => {
      const part = await visitor.part('find next', null, ['outlineStyle', 'outlineColor', 'boxShadow']);
      return [part.outlineStyle, part.outlineStyle === 'none' || part.outlineColor, part.boxShadow];
    };
    const none = ['none', true, 'none'];
    await visitor.click('find next');
    assert.equal(await visitor.focused(), 'find next');
    assert.deepEqual(await look(), none);
    await presses(visitor, [['Home', 'File']]);
    assert.deepEqual(await look(), none);
    await presses(visitor, [['End', 'find next']]);
    assert.deepEqual(await look(), ['solid', 'rgb(0, 0, 0)', 'rgb(255, 255, 255) 0px 0px 0px 4px inset']);
  });

  // The protocol for Firefox has no way to ask for this.
  if (browser === 'Chromium') {
    visit('in forced colours the pointed item has those of a selection', 'keys_column.html', async (visitor) => {
      const session = await visitor.page.createCDPSession();
      await session.send('Emulation.setEmulatedMedia', { features: [{ name: 'forced-colors', value: 'active' }] });
      const [background, text] = await visitor.run(() => {
        document.body.style.cssText = 'forced-color-adjust:none;background:Highlight;color:HighlightText';
        const { backgroundColor, color } = getComputedStyle(document.body);
        return [backgroundColor, color];
      });
      const look = async (name) => {
        const { backgroundColor, color } = await visitor.part(name, null, ['backgroundColor', 'color']);
        return [backgroundColor, color];
      };
      await visitor.hover('Edit');
      assert.deepEqual(await look('Edit'), [background, text]);
      assert.notDeepEqual(await look('find next'), [background, text]);
    });
  }

  visit('in a page from right to left the inside of the menu is mirrored, keys too', 'rtl.html', async (visitor) => {
    await enter(visitor);
    await presses(visitor, keys.rtl.slice(0, -1));
    const [{ items: [first, second] }, { box: file }, { box: open }] = await visitor.panels();
    assert.ok(first.box.right > second.box.right);
    assert.ok(Math.abs(file.right - first.box.right) < 1.5, 'below its item, from the right');
    assert.ok(Math.abs(open.right - file.left) < 1.5, 'to the left');
    await presses(visitor, keys.rtl.slice(-1));
    await shows(visitor, ['File', 'View', 'Edit', null, 'find next'], ['New', 'Open', 'Save']);
  });
});
