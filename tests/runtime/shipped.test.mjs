import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { readFileSync } from 'node:fs';
import { join } from 'node:path';
import { test } from 'node:test';
import { parse } from 'acorn';

const bin = process.env.NIMBREL_BIN ?? 'build/bin';
const library = (number) => readFileSync(join(bin, `libraries/nbrlib${number}.js`), 'utf8');

test('each shipped script is whole, small and readable by old engines', () => {
  const version = /Nimbrel client runtime \d+\.\d+-#\d+/;
  for (const number of [1, 2, 3, 4, 5]) {
    const text = library(number);
    assert.equal(text, library(1));
    assert.match(text, version);
    const size = execFileSync('gzip', ['-9c'], { input: text }).length;
    assert.ok(size <= 12000, `${size} bytes`);
    parse(text, { ecmaVersion: 5 });
  }
  assert.match(library(0), version);
  assert.match(library(0), /Permission is hereby granted/);
  parse(library(0), { ecmaVersion: 5 });
});
