// scoring.js - the score of a bracket and everybody's places, by the rules of the program.

const GOOD = 'good';         // decided, and right
const BAD = 'bad';           // decided and wrong, or open and the team is out, or no pick
const POSSIBLE = 'possible'; // open, and can still earn its points
const LOST = 'lost';         // open, and cannot: neither of the two picks before it can still come true

/** What is decided, in the order of the places: a team's loss comes before any later pick of it. */
function decidedVerdicts(picks, results) {
  const out = new Set([0]); // no pick cannot win either
  return allPlaces.map((place) => {
    const pick = picks[place];
    const result = results[place];
    if (result !== 0 && pick === result) return GOOD;
    if (result !== 0) out.add(pick);
    return out.has(pick) ? BAD : LOST;
  });
}

const isAlive = (verdict) => verdict === GOOD || verdict === POSSIBLE;

/** Points earned, those still possible, those of each round, right and wrong picks, and a verdict for each place. */
function score(picks, results, pointsOfRound) {
  const verdicts = decidedVerdicts(picks, results);
  const byRound = [0, 0, 0, 0, 0, 0];
  let possible = 0;
  let goodPicks = 0;
  for (const game of gamePlaces) {
    const round = roundOf(game);
    if (verdicts[game] === GOOD) {
      byRound[round - 1] += pointsOfRound[round - 1];
      ++goodPicks;
    } else if (verdicts[game] === LOST && (round === 1 || feeders[game].some((from) => isAlive(verdicts[from])))) {
      verdicts[game] = POSSIBLE;
      possible += pointsOfRound[round - 1];
    }
  }
  const badPicks = verdicts.filter((verdict) => verdict === BAD).length;
  return { points: sum(byRound), possible, byRound, goodPicks, badPicks, verdicts };
}

/** For each number of points: one more than how many are higher. */
function placesOf(points) {
  const sorted = points.slice().sort((left, right) => right - left);
  const places = new Map();
  sorted.forEach((one, index) => {
    if (!places.has(one)) places.set(one, index + 1);
  });
  return points.map((one) => places.get(one));
}

/** What a player could at most gain on another in the open games: picks of his own that can still come true. */
function gainOn(player, other, results, pointsOfRound) {
  const { verdicts } = score(player.picks, results, pointsOfRound);
  return sum(gamePlaces
    .filter((game) => verdicts[game] === POSSIBLE && player.picks[game] !== other.picks[game])
    .map((game) => pointsOfRound[roundOf(game) - 1]));
}

/**
 * How far each player has moved since the latest round began: places up, less than 0 down; null until the second round,
 * as nobody has a place to come from: all are first before the first game.
 */
function movements(pool) {
  const latest = latestRound(pool.results);
  if (latest < 2) return pool.players.map(() => null);
  const before = placesOf(pool.players.map((player) => sum(player.byRound.slice(0, latest - 1))));
  const now = placesOf(pool.players.map((player) => player.points));
  return before.map((place, index) => place - now[index]);
}
