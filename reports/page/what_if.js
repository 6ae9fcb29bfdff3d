// what_if.js - results that are supposed on top of those entered.

/** The games that one can choose a winner of: those open by the results as entered. */
const choosableGames = (entered) => openGamesOf(entered).games;

/** The two teams that meet in a game by some results; 0 = not yet known. */
function teamsInGame(results, game) {
  const { known } = openGamesOf(results);
  return feeders[game].map((from) => known[from]);
}

/** Takes a team off a place and the places that follow, where exactly this team is; what is entered stays. */
function withoutTeam(supposed, entered, from, team) {
  const after = supposed.slice();
  for (let place = from; place !== null; place = placeAfter(place)) {
    if (after[place] === team && entered[place] === 0) after[place] = 0;
  }
  return after;
}

/** Lets a team win an open game; the team displaced leaves the later places, too. 0 takes the winner back. */
function withWinner(supposed, entered, game, team) {
  if (entered[game] !== 0) return supposed;
  const after = supposed[game] === 0 || supposed[game] === team
    ? supposed.slice() : withoutTeam(supposed, entered, game, supposed[game]);
  after[game] = team;
  return after;
}

/** Lets a player's picks win the open games, as far as they can still come true. */
function withPicksOf(supposed, entered, picks) {
  let after = supposed;
  for (const game of choosableGames(entered)) {
    const pick = picks[game];
    if (pick !== 0 && teamsInGame(after, game).includes(pick)) after = withWinner(after, entered, game, pick);
  }
  return after;
}

const supposedGames = (supposed, entered) => gamePlaces.filter((game) => supposed[game] !== entered[game]);

/** Everybody's points, points possible and place by some results, and the ways to be first where they are counted. */
function standingsIf(pool, results) {
  const scores = pool.players.map((player) => score(player.picks, results, pool.points));
  const points = scores.map((one) => one.points);
  const places = placesOf(points);
  const counted = countFirsts(pool.players, results, pool.points);
  const rows = pool.players.map((player, index) => ({
    player,
    place: places[index],
    points: points[index],
    possible: points[index] + scores[index].possible,
    first: counted && counted.firsts[index],
  }));
  return { rows, outcomes: counted && counted.outcomes };
}
