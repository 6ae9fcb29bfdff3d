// picks_view.js - who picked what.

const NAMES_AT_ONCE = 12;

/** Names, which lead to brackets; many of them behind a button. */
function makeNames(players) {
  const names = players.slice().sort(byName).flatMap((player) => [', ', makePlayerLink(player)]).slice(1);
  if (players.length <= NAMES_AT_ONCE) return make('span', {}, ...names);
  const details = make('details', {}, make('summary', {}, counted(players.length, 'player')));
  details.addEventListener('toggle', () => details.append(...names), { once: true });
  return details;
}

/** A bar as long as its part of the whole. */
function makeBar(part, whole) {
  return makeSvg('svg', { class: 'bar', viewBox: '0 0 100 10', preserveAspectRatio: 'none', 'aria-hidden': 'true' },
    makeSvg('rect', { width: (100 * part) / Math.max(1, whole), height: 10 }));
}

function makeGamePicks(pool, game) {
  const rows = picksOfGame(pool.players, game);
  const makeTeam = ({ team }) => {
    const isRight = team !== 0 && team === pool.results[game];
    return make('span', {}, team === 0 ? 'no pick' : withSeed(pool, team), isRight ? makeMark(GOOD) : '');
  };
  const columns = [
    { title: 'Team', isHeader: true, cell: makeTeam },
    { title: 'Players', kind: 'number', cell: ({ pickers }) => String(pickers.length) },
    { title: '%', kind: 'number', cell: ({ pickers }) => percent(pickers.length, pool.players.length) },
    { title: 'Part', kind: 'bar-column', cell: ({ pickers }) => makeBar(pickers.length, pool.players.length) },
    { title: 'Who', kind: 'wrap', cell: ({ pickers }) => makeNames(pickers) },
  ];
  return new Table(`Picks: ${nameOfGame(pool, game)}`, columns, rows).element;
}

/** "West, first round: Team 1 or Team 2", "West, second round 3": how one game is told from the others. */
function gameChoice(pool, game) {
  const rowOf = (place) => regionOf(place) * REGION_TEAMS + (place % REGION_PLACES);
  const entrants = feeders[game].filter(isTeamPlace).map((place) => nameOf(pool, pool.teams[rowOf(place)]));
  const number = isInRegion(game) && roundOf(game) > 1 && roundOf(game) < 4
    ? ` ${gamesOfRound(roundOf(game), regionOf(game)).indexOf(game) + 1}` : '';
  return `${nameOfGame(pool, game)}${number}${entrants.length > 0 ? `: ${entrants.join(' or ')}` : ''}`;
}

function makeGameChoice(pool) {
  const area = makeScroller('Picks of the game', makeGamePicks(pool, CHAMPION));
  const choices = gamesByRound().map((game) => [game, gameChoice(pool, game)]);
  return [
    make('h3', {}, 'Game by game'),
    make('div', { class: 'tools' }, makeChoice('picks-game', 'Game', choices, (value) =>
      area.replaceChildren(makeGamePicks(pool, Number(value))))),
    area,
  ];
}

function makePair({ players, alike, pairs }) {
  const [one, other] = players.map((player) => makePlayerLink(player));
  const more = pairs === 1 ? '' : `; as many in ${counted(pairs - 1, 'other pair')}`;
  return make('span', {}, one, ' and ', other, `: ${counted(alike, 'game')} alike of ${GAMES}${more}`);
}

/** "Most-loved champion" and "1 Duke: 3 players of 8"; of many that are loved alike their number. */
function lovedInWords(pool, loved) {
  const players = `${counted(loved[0].pickers.length, 'player')} of ${pool.players.length}`;
  const names = loved.map(({ team }) => withSeed(pool, team)).join(', ');
  if (loved.length === 1) return ['Most-loved champion', `${names}: ${players}`];
  return ['Most-loved champions', `${loved.length > NAMES_AT_ONCE ? `${loved.length} teams` : names}: ${players} each`];
}

/** What there is to say in one line each. */
function makeFacts(pool) {
  const loved = mostPicked(pool.players, CHAMPION);
  const pairs = closestAndFurthest(pool.players);
  const facts = [];
  if (loved.length > 0) facts.push(lovedInWords(pool, loved));
  if (pairs) facts.push(['Closest pair', makePair(pairs.closest)], ['Furthest pair', makePair(pairs.furthest)]);
  return make('dl', { class: 'facts' },
    ...facts.map(([term, fact]) => make('div', {}, make('dt', {}, term), make('dd', {}, fact))));
}

function makeSoleRight(pool) {
  const rows = soleRightPicks(pool).reverse();
  if (rows.length === 0) return make('p', {}, 'No right pick so far is that of one player alone.');
  return makeScroller('Sole right picks', new Table('Sole right picks', [
    { title: 'Player', isHeader: true, cell: ({ player }) => makePlayerLink(player) },
    { title: 'Team', cell: ({ team }) => withSeed(pool, team) },
    { title: 'Game', cell: ({ game }) => nameOfGame(pool, game) },
  ], rows).element);
}

function makeChalk(pool) {
  const rows = pool.players.map((player) => ({ player, ...chalkOf(pool, player.picks) }));
  const part = ({ better, games }) => (games === 0 ? null : better / games);
  return makeScroller('Chalk', new Table('Chalk', [
    nameColumn(({ player }) => player),
    { ...numberColumn('Chalk %', part), cell: ({ better, games }) => (games === 0 ? '' : percent(better, games)) },
    { ...numberColumn('Better seeds', ({ better }) => better), cell: ({ better, games }) => `${better} of ${games}` },
  ], rows, 1).element);
}

function fillPicks(panel, pool) {
  panel.append(
    make('h2', {}, 'Picks'), makeFacts(pool), ...makeGameChoice(pool),
    make('h3', {}, 'Sole right picks'), makeSoleRight(pool),
    make('h3', {}, 'Chalk'),
    make('p', { class: 'hint' }, 'How often a bracket takes the better seed, of the games in which it has two different '
      + 'seeds meeting.'),
    makeChalk(pool));
}
