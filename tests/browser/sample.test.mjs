// The sample site: all of its menu.
import assert from 'node:assert/strict';
import { createRequire } from 'node:module';
import { readFileSync } from 'node:fs';
import { eventually } from './support/browsers.mjs';
import { inEachVisited, servedSite } from './support/plain.mjs';
import { itemsOf, sampleSite } from './support/site.mjs';

const axe = readFileSync(createRequire(import.meta.url).resolve('axe-core/axe.min.js'), 'utf8');
const site = sampleSite();
const address = servedSite(() => {}, site);

async function assertAccessible(visitor, when) {
  const violations = await visitor.run(async () => (await axe.run()).violations
    .map(({ id, nodes }) => `${id}: ${nodes.map((node) => `${node.target} ${node.failureSummary}`).join('; ')}`));
  assert.deepEqual(violations, [], when);
}

inEachVisited(address, (visit) => {
  visit('all of the menu opens and stands in the way of nobody', 'index.html', async (visitor) => {
    await visitor.run(axe);
    await assertAccessible(visitor, 'closed');
    const seen = new Set();
    const walk = async (depth) => {
      for (const item of (await visitor.shown())[depth]) {
        seen.add(item);
        if (!(await visitor.told(item, '', 'aria-haspopup'))[0]) continue;
        await visitor.hover(item);
        await eventually(async () => assert.deepEqual(await visitor.told(item, '', 'aria-expanded'), ['true'], item));
        await walk(depth + 1);
      }
    };
    await walk(0);
    const names = itemsOf(site.source).map(({ ItemName1 }) => ItemName1.replace('&amp;', '&'));
    assert.deepEqual([...seen].sort(), [...new Set(names)].sort());
    await assertAccessible(visitor, 'open');
  });
});
