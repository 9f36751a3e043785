// Takes the picture of all gallery styles on one sheet. After a build, in the root of the repository:
//   node docs/pictures/contact-sheet.mjs
import { readdirSync } from 'node:fs';
import { dirname, join } from 'node:path';
import { fileURLToPath } from 'node:url';
import { launch, open } from '../../tests/browser/support/browsers.mjs';
import { bin, nbrc, writeMenuFile } from '../../tests/browser/support/menu_file.mjs';
import { fileUrl, Site } from '../../tests/browser/support/site.mjs';

const folder = dirname(fileURLToPath(import.meta.url));
const styles = readdirSync(join(bin, 'gallery')).filter((file) => file.endsWith('.nbs')).map((file) => file.slice(0, -4));
const site = new Site();
const browser = await launch('Chromium');

// The gallery's own sample: three items, and a submenu of the second.
const named = (names) => names.map((ItemName) => ({ ItemName }));
const [home, products, about] = named(['Home', 'Products', 'About us']);
writeMenuFile(site.path('sample.nbr'), {
  menu: { menuname: 'Menu', HorizontalDistanceFromCorner: 16, VerticalDistanceFromCorner: 14 },
  items: [home, { ...products, submenu: { SubmenuName: 'Products', items: named(['Tables', 'Chairs', 'Lamps']) } }, about],
});

const size = { width: 300, height: 280 };
for (const [number, style] of styles.entries()) {
  const name = `style${number}`;
  nbrc('--home', bin, 'style', 'apply', style, site.path('sample.nbr'), '--to', site.path(`${name}.nbr`));
  nbrc('compile', site.path(`${name}.nbr`), '--to', site.path(`${name}.js`));
  site.page(`${name}.html`, '<html><head></head><body style="background:#f4f5f7"></body></html>');
  site.link(`${name}.js`, [`${name}.html`]);
  const visitor = await open(browser, fileUrl(site.path(`${name}.html`)), size);
  await visitor.follow(['hover', 'Products', 'Home/Tables']);
  await visitor.pointOf('Tables'); // waits for the end of the animation
  await visitor.page.screenshot({ path: site.path(`${name}.png`) });
  await visitor.close();
}

const cells = styles.map((style, number) => (
  `<figure><img src="style${number}.png" width="${size.width}" height="${size.height}"><figcaption>${style}</figcaption></figure>`));
site.page('sheet.html', `<style>
body { margin: 12px; font: 13px sans-serif; display: grid; grid-template-columns: repeat(5, ${size.width}px); gap: 10px }
figure { margin: 0 }
img { display: block }
figcaption { padding: 4px 2px }
</style>${cells.join('')}`);
const sheet = await open(browser, fileUrl(site.path('sheet.html')), { width: 1564, height: 200 });
await sheet.page.screenshot({ path: join(folder, 'gallery-contact-sheet.png'), fullPage: true });
await browser.close();
site.remove();
