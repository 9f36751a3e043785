import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { readFileSync } from 'node:fs';
import { join } from 'node:path';
import { test } from 'node:test';
import { parse } from 'acorn';

test('each shipped script is whole, small and readable by old engines', () => {
  const folder = join(process.env.NIMBREL_BIN ?? 'build/bin', 'libraries');
  const libraries = [0, 1, 2, 3, 4, 5].map((number) => readFileSync(join(folder, `nbrlib${number}.js`), 'utf8'));
  assert.match(libraries[0], /Permission is hereby granted/);
  assert.equal(new Set(libraries.slice(1)).size, 1);
  for (const text of libraries) {
    assert.match(text, /Nimbrel client runtime \d+\.\d+-#\d+/);
    const { length } = execFileSync('gzip', ['-9c'], { input: text });
    assert.ok(length <= 12000, `${length} bytes`);
    parse(text, { ecmaVersion: 5 });
  }
});
