// data.js - the pool as the program has written it, and what follows from it at once.
//
// A bracket is an array of 127 numbers of teams, 0 for nobody. A pool has names by team number, the field's teams, the
// results as entered, the points of the rounds and the players in the order of their files.

/** The pool of the data in the page. */
function poolOf(data) {
  const rowOfTeam = new Map();
  data.teams.forEach((team, row) => {
    if (team !== 0 && !rowOfTeam.has(team)) rowOfTeam.set(team, row);
  });
  const atRow = (list, nothing) => (team) => (rowOfTeam.has(team) ? list[rowOfTeam.get(team) % REGION_TEAMS] : nothing);
  return {
    ...data,
    players: data.players.map((player, index) => ({ ...player, index, points: sum(player.byRound) })),
    seedOf: atRow(data.seeds.map((seed) => seed.trim()), ''),
    seedNumberOf: atRow(data.seedNumbers, 0),
  };
}

function sum(numbers) {
  let total = 0;
  for (const number of numbers) total += number;
  return total;
}

const nameOf = (pool, team) => pool.names[team];

/** "8 Wisconsin" */
const withSeed = (pool, team) => `${pool.seedOf(team)} ${nameOf(pool, team)}`.trim();

const openGamesIn = (bracket) => gamePlaces.filter((place) => bracket[place] === 0);

/** The latest round of which a winner is entered; 0 = none. */
const latestRound = (results) => Math.max(0, ...gamePlaces.filter((place) => results[place] !== 0).map(roundOf));
