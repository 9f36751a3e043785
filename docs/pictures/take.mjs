// Takes the pictures of compiled menus in this folder. After a build, in the root of the repository:
//   node docs/pictures/take.mjs
import { cpSync, readdirSync } from 'node:fs';
import { dirname, join } from 'node:path';
import { fileURLToPath } from 'node:url';
import { eventually, launch, open } from '../../tests/browser/support/browsers.mjs';
import { bin, nbrc } from '../../tests/browser/support/menu_file.mjs';
import { serve, Site } from '../../tests/browser/support/site.mjs';

const folder = dirname(fileURLToPath(import.meta.url));
const browser = await launch('Chromium');

const size = { width: 1024, height: 600 };

async function picture(name, address, steps) {
  const visitor = await open(browser, address, size);
  await steps(visitor);
  const animationsEnd = () => Promise.all(roots().flatMap((root) => root.getAnimations()).map((animation) => animation.finished));
  await visitor.run(() => new Promise(requestAnimationFrame));
  await visitor.run(animationsEnd);
  await visitor.page.screenshot({ path: join(folder, `${name}.png`) });
  await visitor.close();
  if (visitor.faults.length) throw new Error(`${name}: ${visitor.faults}`);
}

const opened = (visitor, panels) => eventually(async () => {
  if ((await visitor.panels()).length !== panels) throw new Error('not open yet');
});

// Points at an item of each level; all but the last have a submenu.
async function walk(visitor, ...names) {
  for (const [depth, name] of names.entries()) {
    await visitor.hover(name);
    if (depth < names.length - 1) await opened(visitor, depth + 2);
  }
}

const text = (lang, dir, heading, words) => `<!DOCTYPE html>
<html lang="${lang}" dir="${dir}"><head><meta charset="utf-8"><title>${heading}</title><style>
body { margin: 0; background: #fbfaf7; color: #5c5850; font: 16px/1.7 sans-serif }
main { padding: 30px 60px 30px 260px; max-width: 40em }
[dir=rtl] main { padding: 90px 60px }
</style></head><body><main><h1>${heading}</h1>${`<p>${words}</p>`.repeat(4)}</main></body></html>`;
const words = 'The ferry leaves at ten past the hour, and the tide does not wait for it. Bring a coat, bring bread for the gulls, ' +
  'and be at the pier in good time: the gate closes when the bell has rung.';

const font = { FontFamily: 'sans-serif', FontSize: '15px' };
const quiet = {
  ...font, ItemPadding: 8, ItemAlignment: 0, FontColor: '#22313F', FontColor2: '#FFFFFF', FontColor3: '#FFFFFF',
  BGColor1: 'n', BGColor2: '#2C7A7B', BGColor3: '#285E61',
};
const box = { BGColor: '#FFFFFF', BorderStyle: 'solid', BorderWidth: 1, BorderColor: '#B8C4CE', DisplayNameAsTitle: 2 };
const beside = { ...box, SubmenuWhere: 2 };
const items = (names, look = quiet) => names.map((name) => (typeof name === 'string' ? { ...look, ItemName: name } : { ...look, ...name }));

const site = new Site();
const sample = new Site();
cpSync(join(bin, 'Examples', 'thistlewick'), sample.folder, { recursive: true });
nbrc('compile', sample.path('thistlewick.nbr'), '--to', sample.path('menu.js'));
sample.link('menu.js', readdirSync(sample.folder).filter((name) => name.endsWith('.html')));
const arrow = (name) => sample.path(`pictures/${name}.png`).replaceAll('/', '\\');
const more = { HasSubmenuImage: arrow('arrow'), HasSubmenuImage2: arrow('arrow-over'), HasSubmenuImage3: arrow('arrow-over') };

site.page('vertical.html', text('en', 'ltr', 'The island and its harbour', words));
const vertical = site.menu('vertical', {
  menu: {
    menuname: 'Harbour Ferries', HorizontalDistanceFromCorner: 30, VerticalDistanceFromCorner: 40, Movable: 1, Drifty: 2,
    TitleFontFamily: 'sans-serif', TitleFontSize: '15px', TitleFontBold: 1, TitlePadding: 9, TitleBGColor: '#22313F',
    ...box, DisplayNameAsTitle: 1,
  },
  items: items(['Home', { ItemName: 'Timetable', ...more, submenu: { ...beside, items: items(['Weekdays', 'Weekends',
    { ItemName: 'Holidays', ...more, submenu: { ...beside, items: items(['Easter', 'Midsummer', 'Christmas']) } }]) } },
  'Fares', 'Boats', 'Contact']),
});

const button = {
  ItemPadding: 3, BorderStyle1: 'none', BorderStyle2: 'outset', BorderStyle3: 'inset', BorderWidth: 2, BorderColor: '#C0C0C0',
  BGColor2: '#C0C0C0', BGColor3: '#A8A8A8', FontColor: '#000000',
};
site.page('raised.html', text('en', 'ltr', 'The island and its harbour', words));
const raised = site.menu('raised', {
  menu: {
    menuname: 'Menu', HorizontalDistanceFromCorner: 30, VerticalDistanceFromCorner: 40, TitlePadding: 4, DistanceBetweenItems: 2,
  },
  items: items(['News', { ItemName: 'Workshop', submenu: { SubmenuName: 'Workshop', TitleBGColor: '#5B5B5B', DistanceBetweenItems: 2,
    items: items(['Lathes', 'Kilns', 'Looms'], button) } }, 'Links'], button),
});

const names = ['&#1575;&#1604;&#1585;&#1574;&#1610;&#1587;&#1610;&#1577;', '&#1575;&#1604;&#1605;&#1608;&#1575;&#1593;&#1610;&#1583;', '&#1575;&#1604;&#1571;&#1587;&#1593;&#1575;&#1585;'];
site.page('rtl.html', text('ar', 'rtl', names[0], '&#1578;&#1594;&#1575;&#1583;&#1585; &#1575;&#1604;&#1593;&#1576;&#1617;&#1575;&#1585;&#1577; &#1603;&#1604; &#1587;&#1575;&#1593;&#1577; &#1548; &#1608;&#1575;&#1604;&#1605;&#1583;&#1617; &#1604;&#1575; &#1610;&#1606;&#1578;&#1592;&#1585;.'));
const rtl = site.menu('rtl', {
  menu: { MenuType: 2, VerticalDistanceFromCorner: 0, ...box, Movable: 0 },
  items: items([names[0], { ItemName: names[1], ...more, submenu: { ...beside, items: items([names[2],
    { ItemName: names[0], ...more, submenu: { ...beside, items: items([names[1], names[2]]) } }]) } }, names[2]]),
});

const server = await serve(sample.folder);

await picture('menubar', `${server.address}/index.html`, (visitor) => walk(visitor, 'Grounds', 'Through the Year', 'Summer'));
await picture('vertical', vertical, (visitor) => walk(visitor, 'Timetable', 'Holidays', 'Midsummer'));
await picture('raised', raised, (visitor) => walk(visitor, 'Workshop', 'Kilns'));
await picture('keyboard', vertical, async (visitor) => {
  for (const key of ['Tab', 'ArrowDown', 'ArrowRight', 'ArrowDown']) await visitor.press(key);
});
await picture('right-to-left', rtl, async (visitor) => {
  for (const key of ['Tab', 'ArrowLeft', 'ArrowDown', 'ArrowDown', 'ArrowLeft']) await visitor.press(key);
});

await browser.close();
server.stop();
sample.remove();
site.remove();
