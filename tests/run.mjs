// Runs test files: those given, or all of the runtime. Three at a time, each with its own browser, keep two cores busy.
// `node --test` cannot be used for that: in Node 18 it has no option for the number.
import { readdirSync } from 'node:fs';
import { run } from 'node:test';
import { tap } from 'node:test/reporters';

const folder = new URL('.', import.meta.url).pathname;
const all = ['browser/chromium.test.mjs', 'browser/firefox.test.mjs', 'product/pages.test.mjs',
  ...readdirSync(`${folder}runtime`).map((name) => `runtime/${name}`)].map((name) => folder + name);
const given = process.argv.slice(2);

run({ files: given.length ? given : all, concurrency: 3 })
  .on('test:fail', () => { process.exitCode = 1; })
  .compose(tap)
  .pipe(process.stdout);
