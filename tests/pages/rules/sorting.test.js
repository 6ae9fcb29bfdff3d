// sorting.test.js - rows in order, in either direction.
'use strict';

const assert = require('node:assert');
const test = require('node:test');
const { numberIn, sortedBy } = require('./page_scripts.js');

const asItIs = (value) => value;

test('Numbers are in their order, falling or not', () => {
  assert.deepStrictEqual(sortedBy([9, 100, -1], asItIs, false), [-1, 9, 100]);
  assert.deepStrictEqual(sortedBy([9, 100, -1], asItIs, true), [100, 9, -1]);
});

test('What is not known comes last in either direction', () => {
  assert.deepStrictEqual(sortedBy([null, 9, undefined, 0], (value) => value, false), [0, 9, null, undefined]);
  const rows = [{ key: null }, { key: 9 }, { key: undefined }, { key: 100 }];
  assert.deepStrictEqual(sortedBy(rows, ({ key }) => key, true).map(({ key }) => key), [100, 9, null, undefined]);
});

test('Names are in the order of the alphabet, without regard to case, and with numbers as numbers', () => {
  assert.deepStrictEqual(sortedBy(['b 10', 'B 9', 'a'], asItIs, false), ['a', 'B 9', 'b 10']);
  assert.deepStrictEqual(sortedBy(['b 10', 'B 9', 'a'], asItIs, true), ['b 10', 'B 9', 'a']);
});

test('What is alike stays in its order, and the rows stay as they are', () => {
  const rows = [{ name: 'Ann', points: 1 }, { name: 'Ben', points: 2 }, { name: 'Cleo', points: 1 }];
  const names = (isFalling) => sortedBy(rows, ({ points }) => points, isFalling).map(({ name }) => name);
  assert.deepStrictEqual(names(false), ['Ann', 'Cleo', 'Ben']);
  assert.deepStrictEqual(names(true), ['Ben', 'Ann', 'Cleo']);
  assert.deepStrictEqual(rows.map(({ name }) => name), ['Ann', 'Ben', 'Cleo']);
});

test('A number is what a text begins with', () => {
  assert.deepStrictEqual(['150', ' 99 ', '+4', '-4', '0', '2-5', '35.00'].map(numberIn), [150, 99, 4, -4, 0, 2, 35]);
  assert.deepStrictEqual(['', ' ', 'many', 'Infinity'].map(numberIn), [null, null, null, null]);
});
