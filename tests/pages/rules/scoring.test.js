// scoring.test.js - points, what is still possible, places and movements.
'use strict';

const assert = require('node:assert');
const test = require('node:test');
const { POINTS, changed, gainOn, movements, placesOf, poolWith, roundOf, score, start, upper } =
  require('./page_scripts.js');

test('Every right pick brings the points of its round', () => {
  const { points, possible, byRound, goodPicks, badPicks } = score(upper(), upper(), POINTS);

  assert.deepStrictEqual(byRound, [32, 32, 32, 32, 24, 16]); // 32 * 1, 16 * 2, 8 * 4, 4 * 8, 2 * 12, 16
  assert.deepStrictEqual([points, possible, goodPicks, badPicks], [168, 0, 63, 0]);
});

test('Before the first game everything is possible', () => {
  const { points, possible, goodPicks, badPicks, verdicts } = score(upper(), start(), POINTS);

  assert.deepStrictEqual([points, possible, goodPicks, badPicks], [0, 168, 0, 0]);
  assert.strictEqual(verdicts[0], 'good'); // a row of the field is right from the beginning
  assert.strictEqual(verdicts[16], 'possible');
  assert.strictEqual(verdicts[126], 'possible');
});

test('A team that has lost loses every later pick of it', () => {
  const { points, possible, badPicks, verdicts } = score(upper(), changed(start(), { 16: 2 }), POINTS);

  assert.deepStrictEqual([16, 24, 28, 30, 124, 126].map((place) => verdicts[place]), new Array(6).fill('bad'));
  assert.strictEqual(points, 0);
  assert.strictEqual(possible, 168 - 1 - 2 - 4 - 8 - 12 - 16);
  assert.strictEqual(badPicks, 6);
});

test('A pick whose way is closed cannot earn points, although its team is still in', () => {
  const picks = changed(upper(), { 24: 5 }); // comes from neither 1 nor 3
  const { verdicts } = score(picks, changed(start(), { 16: 2, 17: 4 }), POINTS);

  assert.strictEqual(verdicts[24], 'lost');
});

test('A pick whose way is open at one side can still earn its points', () => {
  const { verdicts } = score(changed(upper(), { 24: 5 }), changed(start(), { 16: 2 }), POINTS);

  assert.strictEqual(verdicts[24], 'possible'); // as the program has it: 3 can still win the other game
});

test('A pick of the first round is open whatever is on the rows before it', () => {
  const { verdicts } = score(changed(upper(), { 0: 99, 1: 98 }), start(), POINTS); // a damaged selection

  assert.deepStrictEqual([0, 1, 16].map((place) => verdicts[place]), ['bad', 'bad', 'possible']);
});

test('No pick is a bad one', () => {
  const { possible, badPicks, verdicts } = score(changed(upper(), { 126: 0 }), start(), POINTS);

  assert.strictEqual(verdicts[126], 'bad');
  assert.deepStrictEqual([possible, badPicks], [168 - 16, 1]);
});

test('A team that another won without can no longer earn anything', () => {
  const { verdicts } = score(upper(), changed(start(), { 24: 3 }), POINTS); // entered out of order

  assert.strictEqual(verdicts[16], 'possible');
  assert.strictEqual(verdicts[24], 'bad');
  assert.strictEqual(verdicts[28], 'bad');
});

test('Equal points share a place, and the next one is left out', () => {
  assert.deepStrictEqual(placesOf([10, 8, 10, 3]), [1, 3, 1, 4]);
  assert.deepStrictEqual(placesOf([]), []);
});

test('Each place knows its round', () => {
  assert.deepStrictEqual([0, 16, 23, 24, 28, 30, 31, 47, 123, 124, 125, 126].map(roundOf),
    [0, 1, 1, 2, 3, 4, 0, 1, 4, 5, 5, 6]);
});

test('One gains on the other by own picks that can still come true', () => {
  const first = { picks: upper() };
  const second = { picks: changed(upper(), { 124: 17, 126: 17 }) };
  const open = start();
  const lost = changed(start(), { 47: 18 }); // 17 is out after the first round

  assert.strictEqual(gainOn(first, second, open, POINTS), 12 + 16);
  assert.strictEqual(gainOn(second, first, open, POINTS), 12 + 16);
  assert.strictEqual(gainOn(first, second, lost, POINTS), 12 + 16);
  assert.strictEqual(gainOn(second, first, lost, POINTS), 0);
});

test('Movement is that of places since the latest round began', () => {
  const afterFirst = changed(start(), { 16: 1, 17: 4 });
  const results = changed(afterFirst, { 24: 4 });
  const pool = poolWith(results, {
    Ann: upper(),                            // 1 point for game 16; 24 is wrong
    Ben: changed(upper(), { 16: 2, 17: 4, 24: 4 }), // 1 point for game 17, then 2 more
    Cleo: changed(upper(), { 16: 2 }),       // nothing
  });

  assert.deepStrictEqual(pool.players.map((player) => player.points), [1, 3, 0]);
  assert.deepStrictEqual(movements(pool), [-1, 0, 0]); // Ann was first together with Ben
});

test('Until the second round nobody has moved, as all were first before the first game', () => {
  const brackets = { Ann: upper(), Ben: changed(upper(), { 16: 2 }) };
  const inFirstRound = changed(start(), { 16: 1 });

  assert.deepStrictEqual(movements(poolWith(start(), brackets)), [null, null]);
  assert.deepStrictEqual(movements(poolWith(inFirstRound, brackets)), [null, null]);
  assert.deepStrictEqual(movements(poolWith(changed(inFirstRound, { 24: 1 }), brackets)), [0, 0]);
});
