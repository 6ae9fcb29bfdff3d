// open_games.test.js - what is open, and who is first in how many of the outcomes.
'use strict';

const assert = require('node:assert');
const test = require('node:test');
const { POINTS, changed, countFirsts, gamePlaces, openGamesOf, start, upper, verdictOf } = require('./page_scripts.js');

const withoutFinals = () => changed(upper(), { 124: 0, 125: 0, 126: 0 });

test('Before the first game all 63 are open', () => {
  assert.deepStrictEqual(openGamesOf(start()).games, gamePlaces);
});

test('A game whose winner has won a later one is not open', () => {
  const { games, known } = openGamesOf(changed(start(), { 24: 1 }));

  assert.strictEqual(known[16], 1);
  assert.ok(!games.includes(16));
  assert.ok(games.includes(17)); // the team that 1 has beaten is not known
  assert.strictEqual(games.length, 61);
});

test('A champion entered alone settles his whole way', () => {
  const { games, known } = openGamesOf(changed(start(), { 126: 1 }));

  assert.deepStrictEqual([16, 24, 28, 30, 124].map((game) => known[game]), [1, 1, 1, 1, 1]);
  assert.strictEqual(games.length, 57);
});

test('Where one side has no team at all the other moves on', () => {
  const { games, known, walkovers } = openGamesOf(changed(start(), { 1: 0, 2: 0, 3: 0 }));

  assert.strictEqual(known[16], 1);
  assert.strictEqual(known[17], 0);
  assert.strictEqual(known[24], 1);
  assert.ok(![16, 17, 24].some((game) => games.includes(game)));
  assert.strictEqual(walkovers.size, 0);
});

test('Of several teams the one that comes out moves on without a game', () => {
  const nobody = Object.fromEntries([4, 5, 6, 7].map((place) => [place, 0]));
  const { games, walkovers } = openGamesOf(changed(start(), nobody));

  assert.ok(games.includes(24));
  assert.ok(!games.includes(28));
  assert.strictEqual(walkovers.get(28), 0); // whoever wins the upper game
});

test('Who moves on without a game is counted with the team that comes out', () => {
  // Nobody is on the rows 0 to 7: whoever wins the lower half of the West wins the region. All else is decided.
  const nobody = Object.fromEntries([0, 1, 2, 3, 4, 5, 6, 7, 16, 17, 18, 19, 24, 25, 28].map((place) => [place, 0]));
  const results = changed(changed(upper(), nobody), { 29: 0, 30: 0, 124: 17, 126: 17 });
  const nine = { picks: changed(upper(), { 30: 9 }) };
  const thirteen = { picks: changed(upper(), { 29: 13, 30: 13 }) };

  const { games, walkovers } = openGamesOf(results);
  const { outcomes, firsts } = countFirsts([nine, thirteen], results, POINTS);

  assert.deepStrictEqual(games, [29]); // 9 or 13
  assert.strictEqual(walkovers.get(30), 1);
  assert.strictEqual(outcomes, 2);
  assert.deepStrictEqual(firsts, [{ alone: 1, shared: 0, share: 1 }, { alone: 1, shared: 0, share: 1 }]);
  // By the region's winner alone: both of them pick 9 in the game before.
  const alike = countFirsts([{ picks: changed(nine.picks, { 30: 13 }) }, nine], results, POINTS);
  assert.deepStrictEqual(alike.firsts.map((first) => first.alone), [1, 1]);
});

test('The same holds for the upper half', () => {
  const nobody = Object.fromEntries([8, 9, 10, 11, 12, 13, 14, 15, 20, 21, 22, 23, 26, 27, 29].map((place) => [place, 0]));
  const results = changed(changed(upper(), nobody), { 28: 0, 30: 0, 124: 17, 126: 17 });
  const one = { picks: changed(upper(), { 28: 0 }) };
  const five = { picks: changed(upper(), { 28: 0, 30: 5 }) };

  assert.deepStrictEqual(countFirsts([one, five], results, POINTS).firsts.map((first) => first.alone), [1, 1]);
});

test('The last three games have eight outcomes', () => {
  // 1 or 17, 33 or 49, then the final. All have 152 - 24 = 128 points before. Ann gets 12, 12, 16 for 1, 33, 1; Ben 12,
  // 12, 16 for 17, 33, 17; Cleo has the picks of Ann.
  const ann = { picks: upper() };
  const ben = { picks: changed(upper(), { 124: 17, 126: 17 }) };
  const { outcomes, firsts } = countFirsts([ann, ben, ann], withoutFinals(), POINTS);

  // When 1 wins the first semi-final, Ann and Cleo are 12 ahead, and stay so in all four outcomes; likewise Ben.
  assert.strictEqual(outcomes, 8);
  assert.deepStrictEqual(firsts, [
    { alone: 0, shared: 4, share: 2 }, { alone: 4, shared: 0, share: 4 }, { alone: 0, shared: 4, share: 2 }]);
});

test('A player who is first whatever happens has clinched, one who never is is out', () => {
  const ahead = { picks: upper() };
  const behind = { picks: changed(upper(), { 16: 2, 24: 3, 28: 5, 30: 9, 126: 33 }) };
  const { outcomes, firsts } = countFirsts([ahead, behind], changed(upper(), { 126: 0 }), POINTS);

  // 1 + 2 + 4 + 8 = 15 points ahead, 16 to be gained by the final.
  assert.deepStrictEqual(firsts.map((first) => verdictOf(first, outcomes)), ['Alive', 'Alive']);

  const further = { picks: changed(behind.picks, { 17: 4 }) }; // 16 behind: at best together
  const tied = countFirsts([ahead, further], changed(upper(), { 126: 0 }), POINTS);
  assert.deepStrictEqual(tied.firsts.map((first) => verdictOf(first, tied.outcomes)), ['Clinched', 'Alive']);
  assert.deepStrictEqual(tied.firsts[1], { alone: 0, shared: 1, share: 0.5 });

  const outOfIt = { picks: changed(further.picks, { 18: 6 }) };
  const over = countFirsts([ahead, outOfIt], changed(upper(), { 126: 0 }), POINTS);
  assert.deepStrictEqual(over.firsts.map((first) => verdictOf(first, over.outcomes)), ['Clinched', 'Out']);
});

test('Shares add up to the outcomes, whoever plays', () => {
  const results = changed(upper(), Object.fromEntries(gamePlaces.slice(-12).map((game) => [game, 0])));
  const players = [1, 2, 3, 4, 5].map((one) => ({
    picks: upper().map((team, place) => (gamePlaces.includes(place) && (place * one) % 7 < 3 ? team + 1 : team)),
  }));
  const { outcomes, firsts } = countFirsts(players, results, POINTS);

  assert.strictEqual(outcomes, 4096);
  assert.ok(Math.abs(firsts.reduce((all, first) => all + first.share, 0) - outcomes) < 1e-6);
});

test('Nothing is counted when more than 15 games are open', () => {
  const open = (count) => changed(upper(), Object.fromEntries(gamePlaces.slice(-count).map((game) => [game, 0])));

  assert.strictEqual(countFirsts([{ picks: upper() }], open(16), POINTS), null);
  assert.strictEqual(countFirsts([{ picks: upper() }], open(15), POINTS).outcomes, 32768);
});

test('When no game is open there is one outcome', () => {
  const { outcomes, firsts } = countFirsts([{ picks: upper() }], upper(), POINTS);

  assert.strictEqual(outcomes, 1);
  assert.strictEqual(verdictOf(firsts[0], outcomes), 'Clinched');
});
