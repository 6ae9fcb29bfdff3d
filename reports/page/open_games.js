// open_games.js - what results leave open, and in how many of the outcomes each player is first.

/** The teams that can still be at each place. */
function candidatesOf(results) {
  const candidates = [];
  for (const place of allPlaces) {
    if (results[place] !== 0) candidates.push([results[place]]);
    else if (isTeamPlace(place)) candidates.push([]);
    else candidates.push([...new Set(feeders[place].flatMap((from) => candidates[from]))]);
  }
  return candidates;
}

/** Fills in the games without a winner whose winner is known, because it has won a later game. */
function fillInBelow(known) {
  const candidates = candidatesOf(known);
  for (const game of gamePlaces.slice().reverse()) {
    if (known[game] === 0) continue;
    const senders = feeders[game].filter((from) => candidates[from].includes(known[game]));
    if (senders.length === 1) known[senders[0]] = known[game];
  }
}

const UPPER = 0;
const LOWER = 1;

/**
 * The games that can still end in two ways, in the order of the places; what is known with the games filled in that
 * have nothing to choose; and the games for which one side has no team at all, with the side that moves on.
 */
function openGamesOf(results) {
  const known = results.slice();
  fillInBelow(known);
  const candidates = candidatesOf(known);
  const games = [];
  const walkovers = new Map();
  for (const game of gamePlaces) {
    const [upper, lower] = feeders[game];
    if (candidates[game].length === 1) known[game] = candidates[game][0];
    else if (candidates[game].length === 0) continue;
    else if (candidates[lower].length === 0) walkovers.set(game, UPPER);
    else if (candidates[upper].length === 0) walkovers.set(game, LOWER);
    else games.push(game);
  }
  return { known, games, walkovers };
}

/** For each place of a game: the players by the team that they have picked there. */
function pickersByTeam(players, game) {
  const pickers = new Map();
  players.forEach((player, index) => {
    if (!pickers.has(player.picks[game])) pickers.set(player.picks[game], []);
    pickers.get(player.picks[game]).push(index);
  });
  return pickers;
}

/** Plays open games in every way, and keeps everybody's points meanwhile. */
class Outcomes {
  constructor(players, open, pointsOfRound) {
    this.teams = open.known.slice();
    this.points = new Int32Array(players.length);
    this.steps = gamePlaces
      .filter((game) => open.games.includes(game) || open.walkovers.has(game) || open.known[game] !== 0)
      .map((game) => ({
        game,
        sides: this.sidesOf(open, game),
        pickers: pickersByTeam(players, game),
        points: pointsOfRound[roundOf(game) - 1],
      }));
  }

  /** Where the winner of a game can come from; nowhere when it is known. */
  sidesOf(open, game) {
    if (open.games.includes(game)) return feeders[game];
    return open.walkovers.has(game) ? [feeders[game][open.walkovers.get(game)]] : [];
  }

  add(step, factor) {
    const team = this.teams[step.game];
    if (team === 0) return;
    for (const player of step.pickers.get(team) ?? []) this.points[player] += factor * step.points;
  }

  /** Calls once for each outcome, when `points` are those at the end of it. */
  forEach(call, next = 0) {
    if (next === this.steps.length) {
      call(this.points);
      return;
    }
    const step = this.steps[next];
    for (const side of step.sides.length > 0 ? step.sides : [step.game]) {
      this.teams[step.game] = this.teams[side];
      this.add(step, 1);
      this.forEach(call, next + 1);
      this.add(step, -1);
    }
  }
}

/** Adds up who is first at the end of one outcome. */
function addFirsts(points, firsts) {
  let most = -Infinity;
  let together = 0;
  for (const one of points) {
    if (one > most) {
      most = one;
      together = 1;
    } else if (one === most) ++together;
  }
  for (let player = 0; player < points.length; ++player) {
    if (points[player] !== most) continue;
    if (together === 1) ++firsts[player].alone;
    else ++firsts[player].shared;
    firsts[player].share += 1 / together;
  }
}

/** The most games that are counted on the page: a moment's work for a thousand players. */
const MOST_COUNTED_GAMES = 15;

/**
 * Counts every outcome of what results leave open: for each player in how many he is first alone and together with
 * others, and his share of first place in outcomes. Null when too many games are open.
 */
function countFirsts(players, results, pointsOfRound) {
  const open = openGamesOf(results);
  if (open.games.length > MOST_COUNTED_GAMES) return null;
  const firsts = players.map(() => ({ alone: 0, shared: 0, share: 0 }));
  new Outcomes(players, open, pointsOfRound).forEach((points) => addFirsts(points, firsts));
  return { outcomes: 2 ** open.games.length, firsts };
}

/** The verdict of a count in the words of the outlook. */
function verdictOf(first, outcomes) {
  const ways = first.alone + first.shared;
  if (ways === outcomes) return 'Clinched';
  return ways === 0 ? 'Out' : 'Alive';
}
