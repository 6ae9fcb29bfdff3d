// picks.js - who picked what: by game, by champion, how bold, how alike.

/** The teams picked to win a game, most players first, with the players who did; nobody's pick is 0. */
function picksOfGame(players, game) {
  return [...pickersByTeam(players, game)]
    .map(([team, pickers]) => ({ team, pickers: pickers.map((index) => players[index]) }))
    .sort((left, right) => right.pickers.length - left.pickers.length || left.team - right.team);
}

/** The teams that most players have picked to win a game; none when nobody has picked any. */
function mostPicked(players, game) {
  const picked = picksOfGame(players, game).filter(({ team }) => team !== 0);
  return picked.filter(({ pickers }) => pickers.length === picked[0].pickers.length);
}

/** The right picks that one player alone has made. */
function soleRightPicks(pool) {
  return gamePlaces.filter((game) => pool.results[game] !== 0).flatMap((game) => {
    const right = pool.players.filter((player) => player.picks[game] === pool.results[game]);
    return right.length === 1 ? [{ game, team: pool.results[game], player: right[0] }] : [];
  });
}

/** The two teams that a bracket has meeting in a game. */
const pairIn = (picks, game) => feeders[game].map((from) => picks[from]);

/**
 * How often a bracket takes the better seed: the games in which it has two different seeds meeting, and those of them
 * in which it picks the better one.
 */
function chalkOf(pool, picks) {
  let games = 0;
  let better = 0;
  for (const game of gamePlaces) {
    const [upper, lower] = pairIn(picks, game);
    const seeds = [pool.seedNumberOf(upper), pool.seedNumberOf(lower)];
    if (seeds.includes(0) || seeds[0] === seeds[1] || ![upper, lower].includes(picks[game])) continue;
    ++games;
    if (pool.seedNumberOf(picks[game]) === Math.min(...seeds)) ++better;
  }
  return { games, better };
}

/** More players than these are not compared. */
const MOST_PAIRED_PLAYERS = 1500;

/** In how many games two brackets pick the same team. */
function gamesAlike(left, right) {
  let alike = 0;
  for (const game of gamePlaces) if (left[game] === right[game] && left[game] !== 0) ++alike;
  return alike;
}

/** A pair before which there is none, the pair found before when it goes further, and one more of as many otherwise. */
function furtherPair(found, pair, goesFurther) {
  if (found === null || goesFurther(pair.alike, found.alike)) return { ...pair, pairs: 1 };
  return pair.alike === found.alike ? { ...found, pairs: found.pairs + 1 } : found;
}

/**
 * The two brackets most alike and the two least alike, the first ones of several pairs, with the number of such pairs;
 * null with fewer than two players, or too many.
 */
function closestAndFurthest(players) {
  if (players.length < 2 || players.length > MOST_PAIRED_PLAYERS) return null;
  let closest = null;
  let furthest = null;
  players.forEach((player, index) => {
    for (const other of players.slice(index + 1)) {
      const alike = gamesAlike(player.picks, other.picks);
      closest = furtherPair(closest, { players: [player, other], alike }, (one, before) => one > before);
      furthest = furtherPair(furthest, { players: [player, other], alike }, (one, before) => one < before);
    }
  });
  return { closest, furthest };
}
