// bracket.js - the places of a 64-team bracket and how teams move on it.
//
// 127 places: four regions of 31 (16 teams, then the winners of four rounds), two semi-final winners, the champion.
// A board is an array of 127 rows of the field (0..63), or null for nobody.
'use strict';

const PLACES = 127;
const GAMES = 63;
const REGION_PLACES = 31;
const REGION_TEAMS = 16;
const SEMIFINALS = [124, 125];
const CHAMPION = 126;

const field = JSON.parse(document.getElementById('field').textContent);

const isInRegion = (place) => place < SEMIFINALS[0];
const regionOf = (place) => Math.floor(place / REGION_PLACES);
const isTeamPlace = (place) => isInRegion(place) && place % REGION_PLACES < REGION_TEAMS;

/** Where a team goes that wins from a place; null after the champion. */
function placeAfter(place) {
  if (place === CHAMPION) return null;
  if (!isInRegion(place)) return CHAMPION;
  const offset = place % REGION_PLACES;
  if (offset === REGION_PLACES - 1) return SEMIFINALS[regionOf(place) < 2 ? 0 : 1];
  return regionOf(place) * REGION_PLACES + REGION_TEAMS + Math.floor(offset / 2);
}

const allPlaces = Array.from({ length: PLACES }, (_, place) => place);
const gamePlaces = allPlaces.filter((place) => !isTeamPlace(place));

/** The two places whose teams meet for each place, the upper first; none for a team of the first round. */
const feeders = allPlaces.map((place) => allPlaces.filter((from) => placeAfter(from) === place));

/** The places that each round of a region decides, and the finals: rounds 1 to 6. */
function gamesOfRound(round, region) {
  if (round === 5) return SEMIFINALS;
  if (round === 6) return [CHAMPION];
  const first = region * REGION_PLACES + [16, 24, 28, 30][round - 1];
  return Array.from({ length: 16 >> round }, (_, game) => first + game);
}

function startingBoard() {
  return allPlaces.map((place) =>
    isTeamPlace(place) ? regionOf(place) * REGION_TEAMS + (place % REGION_PLACES) : null);
}

const teamAt = (board, place) => (board[place] === null ? '' : field.teams[board[place]]);
const seedAt = (board, place) => field.seeds[board[place] % REGION_TEAMS].trim();

/** Lets the team at a place win its game; the team displaced leaves all later places, too. */
function advanced(board, from) {
  const to = placeAfter(from);
  if (to === null || board[from] === null) return board;
  const after = board.slice();
  const displaced = teamAt(board, to);
  if (displaced !== '' && displaced !== teamAt(board, from)) {
    for (let place = to; place !== null; place = placeAfter(place)) {
      if (teamAt(board, place) === displaced) after[place] = null;
    }
  }
  after[to] = board[from];
  return after;
}

/** Lets the better seed win every open game of the regions; of equal seeds the lower row, as the program does. */
function withHigherSeeds(board) {
  const seedOf = (row) => field.seedNumbers[row % REGION_TEAMS];
  const after = board.slice();
  for (const place of gamePlaces.filter(isInRegion)) {
    const [upper, lower] = feeders[place].map((from) => after[from]);
    if (after[place] === null) after[place] = seedOf(upper) >= seedOf(lower) ? lower : upper;
  }
  return after;
}

const openGames = (board) => gamePlaces.filter((place) => board[place] === null);

/** Whether a place's team is the one that moves on from it. */
function isPicked(board, place) {
  const to = placeAfter(place);
  return to !== null && board[place] !== null && teamAt(board, to) === teamAt(board, place);
}
