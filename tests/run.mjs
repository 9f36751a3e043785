// Runs test files, two at a time: the tests of the runtime, or the files given. The option of `node --test` for that is
// missing in Node 18.
import { readdirSync } from 'node:fs';
import { run } from 'node:test';
import { spec, tap } from 'node:test/reporters';

const folder = new URL('.', import.meta.url).pathname;
const all = ['browser/chromium.test.mjs', 'browser/firefox.test.mjs', 'product/pages.test.mjs',
  ...readdirSync(`${folder}runtime`).map((name) => `runtime/${name}`)].map((name) => folder + name);
const given = process.argv.slice(2);
const reporter = process.stdout.isTTY ? new spec() : tap;

run({ files: given.length ? given : all, concurrency: 2 })
  .on('test:fail', () => { process.exitCode = 1; })
  .compose(reporter)
  .pipe(process.stdout);
