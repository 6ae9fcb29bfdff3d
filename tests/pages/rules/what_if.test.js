// what_if.test.js - choosing winners of open games, and who is where then.
'use strict';

const assert = require('node:assert');
const test = require('node:test');
const { changed, choosableGames, poolWith, standingsIf, start, supposedGames, teamsInGame, upper, withPicksOf, withWinner } =
  require('./page_scripts.js');

test('A winner that is chosen meets the next one', () => {
  const supposed = withWinner(withWinner(start(), start(), 16, 2), start(), 17, 3);

  assert.deepStrictEqual(teamsInGame(supposed, 24), [2, 3]);
  assert.deepStrictEqual(teamsInGame(supposed, 28), [0, 0]);
});

test('Another winner takes the first one off the later games', () => {
  const supposed = changed(start(), { 16: 1, 17: 3, 24: 1, 28: 1 });

  const after = withWinner(supposed, start(), 16, 2);

  assert.deepStrictEqual([16, 17, 24, 28].map((game) => after[game]), [2, 3, 0, 0]);
});

test('A winner taken back leaves the later games, too, and no other team does', () => {
  const supposed = changed(start(), { 16: 1, 17: 3, 24: 3, 28: 3 });

  assert.deepStrictEqual(withWinner(supposed, start(), 16, 0), changed(supposed, { 16: 0 }));
  assert.deepStrictEqual(withWinner(supposed, start(), 17, 0), changed(start(), { 16: 1 }));
});

test('What is entered is not changed', () => {
  const entered = changed(start(), { 16: 1 });

  assert.deepStrictEqual(withWinner(entered, entered, 16, 2), entered);
  assert.deepStrictEqual(withWinner(entered, entered, 16, 0), entered);
  assert.ok(!choosableGames(entered).includes(16));
});

test('A team displaced stays where it is entered', () => {
  const entered = changed(start(), { 28: 1 });

  assert.strictEqual(withWinner(changed(entered, { 16: 1 }), entered, 16, 2)[28], 1);
});

test('A game is not offered when a later result settles it', () => {
  const entered = changed(start(), { 24: 1 });

  assert.ok(!choosableGames(entered).includes(16));
  assert.deepStrictEqual(teamsInGame(entered, 28), [1, 0]);
});

test("A player's picks are supposed as far as they can come true", () => {
  const entered = changed(start(), { 16: 2 });

  const supposed = withPicksOf(entered, entered, upper());

  assert.strictEqual(supposed[16], 2);
  assert.strictEqual(supposed[17], 3);
  assert.deepStrictEqual([24, 28, 30, 124, 126].map((game) => supposed[game]), [0, 0, 0, 0, 0]); // all of them 1
  assert.strictEqual(supposed[61], 17);
  assert.strictEqual(supposed[125], 33);
  assert.strictEqual(supposedGames(supposed, entered).length, 63 - 1 - 5);
});

test('Points, places and ways follow what is supposed', () => {
  const entered = changed(upper(), { 124: 0, 125: 0, 126: 0 });
  const pool = poolWith(entered, { Ann: upper(), Ben: changed(upper(), { 124: 17, 126: 17 }) });

  const { rows, outcomes } = standingsIf(pool, withWinner(entered, entered, 124, 17));

  // 4 * 32 = 128 before; Ben has the 12 of the semi-final and can get 12 and 16 more, Ann 12.
  assert.deepStrictEqual(rows.map(({ place, points, possible }) => [place, points, possible]),
    [[2, 128, 140], [1, 140, 168]]);
  assert.strictEqual(outcomes, 4);
  assert.deepStrictEqual(rows.map((row) => row.first), [{ alone: 0, shared: 0, share: 0 }, { alone: 4, shared: 0, share: 4 }]);
});

test('With many open games there are points and places alone', () => {
  const { rows, outcomes } = standingsIf(poolWith(start(), { Ann: upper() }), start());

  assert.strictEqual(outcomes, null);
  assert.strictEqual(rows[0].first, null);
  assert.deepStrictEqual([rows[0].place, rows[0].points, rows[0].possible], [1, 0, 168]);
});
