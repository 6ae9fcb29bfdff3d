// picks.test.js - who picked what, how bold, how alike; and the chart's figures.
'use strict';

const assert = require('node:assert');
const test = require('node:test');
const { chalkOf, chanceStages, changed, chartOf, closestAndFurthest, forecastsInWords, gamesAlike, lineOf, mostPicked,
  picksOfGame, pointStages, poolWith, soleRightPicks, start, stepOf, upper, withSeed } = require('./page_scripts.js');

const names = (players) => players.map((player) => player.name);

test('The teams of a game come with those who picked them, most first', () => {
  const pool = poolWith(start(), { Ann: upper(), Ben: changed(upper(), { 126: 33 }), Cleo: changed(upper(), { 126: 33 }) });

  assert.deepStrictEqual(picksOfGame(pool.players, 126).map(({ team, pickers }) => [team, names(pickers)]),
    [[33, ['Ben', 'Cleo']], [1, ['Ann']]]);
});

test('Of teams that are picked alike each is most picked', () => {
  const champions = (...teams) => poolWith(start(), Object.fromEntries(teams.map((team, index) =>
    [`Player ${index}`, changed(upper(), { 126: team })]))).players;
  const most = (...teams) => mostPicked(champions(...teams), 126).map(({ team }) => team);

  assert.deepStrictEqual(most(33, 1, 33, 1, 17), [1, 33]);
  assert.deepStrictEqual(most(1, 33, 33), [33]);
  assert.deepStrictEqual(most(0, 0, 17), [17]); // no pick is no team
  assert.deepStrictEqual(most(0, 0), []);
});

test('A right pick is the only one when no other player has it', () => {
  const results = changed(start(), { 16: 2, 17: 3, 18: 6 });
  const pool = poolWith(results, { Ann: upper(), Ben: changed(upper(), { 16: 2 }) });

  assert.deepStrictEqual(soleRightPicks(pool).map(({ game, team, player }) => [game, team, player.name]), [[16, 2, 'Ben']]);
});

test('Chalk is the share of the better seeds among the games that have one', () => {
  // Rows of a region: 1 16 8 9 5 12 4 13 6 11 3 14 7 10 2 15. The upper team is the better one in rows 1, 2, 3, 4, 5, 6, 7,
  // 8 of the first round (1, 8, 5, 4, 6, 3, 7, 2). Second round: 1-8, 5-4, 6-3, 7-2: one of four. Third: 1-5, 6-7: two.
  // Fourth: 1-6. So 12 of 15 in each region. In the finals equal seeds meet: 1-1 each time.
  assert.deepStrictEqual(chalkOf(poolWith(start(), {}), upper()), { games: 60, better: 48 });
});

test('Games without a pick or with a pick from elsewhere are no chalk', () => {
  assert.deepStrictEqual(chalkOf(poolWith(start(), {}), start()), { games: 0, better: 0 });
  assert.deepStrictEqual(chalkOf(poolWith(start(), {}), changed(start(), { 16: 1, 17: 9 })), { games: 1, better: 1 });
});

test('Two brackets are alike in the games with the same pick', () => {
  assert.strictEqual(gamesAlike(upper(), changed(upper(), { 126: 33, 16: 0 })), 61);
  assert.strictEqual(gamesAlike(start(), start()), 0); // no pick is nothing that two have in common
});

test('The closest and the furthest pair are found', () => {
  const pool = poolWith(start(), { Ann: upper(), Ben: changed(upper(), { 16: 2, 17: 4 }), Cleo: changed(upper(), { 17: 4 }) });

  const { closest, furthest } = closestAndFurthest(pool.players);

  // Ben and Cleo are 62 alike, too: game 16 parts them.
  assert.deepStrictEqual([names(closest.players), closest.alike, closest.pairs], [['Ann', 'Cleo'], 62, 2]);
  assert.deepStrictEqual([names(furthest.players), furthest.alike, furthest.pairs], [['Ann', 'Ben'], 61, 1]);
  assert.strictEqual(closestAndFurthest(pool.players.slice(1, 2)), null);
});

test('A team is called with its seed', () => {
  const pool = poolWith(start(), {});

  assert.strictEqual(withSeed(pool, 3), '8 Team 3');
  assert.strictEqual(withSeed(pool, 0), '');
  assert.strictEqual(pool.seedOf(3), '8');
});

test('A team on two rows has the seed of the first', () => {
  const teams = Array.from({ length: 64 }, (_, row) => (row === 63 ? 1 : row + 1)); // seed 15

  assert.strictEqual(poolWith(start(), {}, { teams }).seedOf(1), '1');
});

test('Points are added up round by round to those of now', () => {
  const pool = poolWith(changed(start(), { 16: 1, 17: 3, 24: 1 }), { Ann: upper(), Ben: changed(upper(), { 24: 3 }) });

  assert.deepStrictEqual(pointStages(pool), [
    { label: 'Start', values: [0, 0] }, { label: 'Round 1', values: [2, 2] }, { label: 'Now', values: [4, 2] }]);
  assert.deepStrictEqual(pointStages(poolWith(start(), { Ann: upper() })), [{ label: 'Start', values: [0] }]);
});

test('Chances are those that the program has found', () => {
  const road = [{ round: 0, now: false, shares: [0.25, 0.75] }, { round: 1, now: true, shares: [0, 1] }];

  assert.deepStrictEqual(chanceStages(poolWith(start(), {}, { outlook: { road } })),
    [{ label: 'Start', values: [25, 75] }, { label: 'Now', values: [0, 100] }]);
  assert.deepStrictEqual(chanceStages(poolWith(start(), {})), []);
});

test('The road says which of its shares are forecasts, and how far off they may be', () => {
  const point = (round, more) => ({ round, now: false, shares: [], ...more });
  const road = [point(0, { error: '0.36' }), point(1, { error: '0.40' }), point(2), point(3, { now: true })];
  const words = (points) => forecastsInWords(poolWith(start(), {}, { outlook: { road: points } }));

  assert.strictEqual(words(road),
    'Forecast, with a standard error of at most 0.40 percentage points: Start, Round 1.');
  assert.strictEqual(words(road.slice(2)), '');
  assert.strictEqual(forecastsInWords(poolWith(start(), {})), '');
});

test('A chart has five steps at most, of 1, 2 or 5', () => {
  assert.deepStrictEqual([0, 5, 6, 10, 11, 25, 26, 168].map(stepOf), [1, 1, 2, 2, 5, 5, 10, 50]);
});

test('A line goes from the left to the right, high values up', () => {
  const stages = [{ values: [0] }, { values: [5] }, { values: [10] }];
  const chart = chartOf(stages, 100, 50);

  assert.deepStrictEqual(chart.ticks, [0, 2, 4, 6, 8, 10]);
  assert.strictEqual(lineOf(chart, stages, 0), '0,50 50,25 100,0');
});
