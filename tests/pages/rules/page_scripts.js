// page_scripts.js - the scripts of the pool's page that know no page, as one text, as the page has them; and pools.
'use strict';

const fs = require('node:fs');
const path = require('node:path');

const REPORTS = path.join(__dirname, '../../../reports');
const FILES = ['web/places.js', 'page/data.js', 'page/scoring.js', 'page/open_games.js', 'page/what_if.js',
  'page/picks.js', 'page/road.js', 'page/sorting.js'];
const NAMES = ['allPlaces', 'gamePlaces', 'feeders', 'placeAfter', 'roundOf', 'isTeamPlace', 'gamesOfRound', 'poolOf',
  'latestRound', 'withSeed', 'score', 'placesOf', 'gainOn', 'movements', 'openGamesOf', 'countFirsts', 'verdictOf',
  'choosableGames', 'teamsInGame', 'withWinner', 'withPicksOf', 'supposedGames', 'standingsIf', 'picksOfGame', 'mostPicked',
  'soleRightPicks', 'chalkOf', 'closestAndFurthest', 'gamesAlike', 'chanceStages', 'forecastsInWords', 'pointStages',
  'stepOf', 'chartOf', 'lineOf', 'numberIn', 'sortedBy'];

const text = FILES.map((name) => fs.readFileSync(path.join(REPORTS, name), 'utf8')).join('');
const rules = new Function(`${text}; return { ${NAMES.join(', ')} };`)();

const POINTS = [1, 2, 4, 8, 12, 16];

/** Teams 1 to 64 on their rows, and nobody elsewhere. */
function start() {
  const board = new Array(127).fill(0);
  for (let row = 0; row < 64; ++row) board[31 * Math.floor(row / 16) + (row % 16)] = row + 1;
  return board;
}

/** A bracket in which the upper team wins every game: 1, 17, 33 and 49 win the regions, 1 and 33 the semi-finals. */
function upper() {
  const board = start();
  for (const game of rules.gamePlaces) board[game] = board[rules.feeders[game][0]];
  return board;
}

/** A bracket with other teams on some places. */
const changed = (board, teams) => Object.assign(board.slice(), teams);

/** A pool as the page has it; players are brackets by name. */
function poolWith(results, brackets, more = {}) {
  const players = Object.entries(brackets).map(([name, picks]) => {
    const { byRound, points, possible } = rules.score(picks, results, POINTS);
    return { name, file: `${name}.THC`, total: '100', byRound, possible: points + possible, place: 1, picks };
  });
  const seeds = [1, 16, 8, 9, 5, 12, 4, 13, 6, 11, 3, 14, 7, 10, 2, 15];
  return rules.poolOf({
    title: 'Pool', comments: ['', ''], regions: ['West', 'Midwest', 'East', 'South'], points: POINTS,
    seeds: seeds.map((seed) => String(seed).padStart(2)), seedNumbers: seeds,
    names: ['', ...Array.from({ length: 64 }, (_, row) => `Team ${row + 1}`)],
    teams: Array.from({ length: 64 }, (_, row) => row + 1), results, players, ...more,
  });
}

module.exports = { ...rules, POINTS, start, upper, changed, poolWith };
