// what_if_view.js - winners chosen for open games, and everybody's points, places and ways by them.

let supposed = null; // results with what is supposed

function choose(pool, game, team) {
  supposed = withWinner(supposed, pool.results, game, supposed[game] === team ? 0 : team);
  showWhatIf(pool);
}

function makeTeamButton(pool, game, team) {
  const attributes = { class: 'side', 'data-game': game, 'data-team': team, 'aria-pressed': supposed[game] === team };
  const button = makeButton('', attributes, () => choose(pool, game, team));
  const name = make('span', { class: 'team' }, nameOf(pool, team));
  button.append(make('span', { class: 'seed' }, pool.seedOf(team)), ' ', name);
  return button;
}

function makeGame(pool, game, teams) {
  return make('div', { class: 'game', role: 'group', 'aria-label': nameOfGame(pool, game) },
    ...teams.map((team) => makeTeamButton(pool, game, team)));
}

/** The open games whose two teams are known, under the names of their rounds. */
function makeGames(pool) {
  const { known } = openGamesOf(supposed);
  const ready = choosableGames(pool.results)
    .map((game) => ({ game, teams: feeders[game].map((from) => known[from]) }))
    .filter(({ teams }) => !teams.includes(0));
  const gamesUnder = (title) => ready.filter(({ game }) => gameHeading(pool, game) === title);
  const titles = [...new Set(ready.map(({ game }) => gameHeading(pool, game)))];
  return titles.map((title) => make('section', { class: 'open-games', 'aria-label': title }, make('h3', {}, title),
    ...gamesUnder(title).map(({ game, teams }) => makeGame(pool, game, teams))));
}

const gameHeading = (pool, game) => (isInRegion(game) ? nameOfGame(pool, game) : ROUNDS[roundOf(game) - 1]);

/** Without a count there is what the program has found by the results as entered. */
function waysColumns(pool, outcomes) {
  if (outcomes !== null) {
    return [
      numberColumn('Ways', ({ first }) => first.alone + first.shared),
      { ...numberColumn('Share %', ({ first }) => first.share), cell: ({ first }) => percent(first.share, outcomes) },
      verdictColumn(({ first }) => verdictOf(first, outcomes)),
    ];
  }
  if (!pool.outlook) return [];
  const of = ({ player }) => pool.outlook.players[player.index];
  return [{ ...numberColumn('Share % now', (row) => of(row).percent), cell: (row) => of(row).share }];
}

function makeWhatIfTable(pool, { rows, outcomes }) {
  const columns = [
    placeColumn(({ place }) => place),
    nameColumn(({ player }) => player),
    numberColumn('Points', ({ points }) => points, 'number strong'),
    numberColumn('Possible', ({ possible }) => possible),
    ...waysColumns(pool, outcomes),
    movementColumn(({ player, place }) => player.place - place),
  ];
  return new Table('Standings by what is supposed', columns, rows).element;
}

const FIRST_PLAYERS = 3;

/** The first players by what is supposed, whom a telephone keeps in view beside the games. */
function makeFirstPlayers({ rows }) {
  return rows.slice(0, FIRST_PLAYERS).map(({ player, place, points }) => make('li', {},
    make('span', { class: 'number' }, `${place} `), make('span', { class: 'first-name' }, player.name),
    make('span', {}, ` ${counted(points, 'point')} `), makeMovement(player.place - place)));
}

function whatIfInWords(pool, outcomes) {
  const winners = counted(supposedGames(supposed, pool.results).length, 'winner');
  const open = counted(openGamesOf(supposed).games.length, 'game');
  const counting = outcomes === null
    ? `Ways are counted once ${MOST_COUNTED_GAMES} are open or fewer; until then the shares are the program's, by the `
      + 'results as entered.'
    : `Ways: of ${counted(outcomes, 'outcome')}, all alike, those in which a player is first, alone or together.`;
  return `${winners} supposed; ${open} still open. ${counting}`;
}

function showWhatIf(pool) {
  const focused = document.activeElement?.dataset ?? {};
  const standings = standingsIf(pool, supposed);
  standings.rows.sort((left, right) => left.place - right.place || byName(left.player, right.player));
  byId('what-if-words').textContent = whatIfInWords(pool, standings.outcomes);
  byId('what-if-first').replaceChildren(...makeFirstPlayers(standings));
  byId('what-if-games').replaceChildren(...makeGames(pool));
  byId('what-if-table').replaceChildren(makeWhatIfTable(pool, standings));
  if (focused.game) {
    const same = `.side[data-game="${focused.game}"][data-team="${focused.team}"]`;
    document.querySelector(same)?.focus({ preventScroll: true });
  }
}

function makeWhatIfTools(pool) {
  const choice = makeChoice('what-if-player', 'A player whose picks come true', playerChoices(pool), () => {});
  const suppose = (results) => {
    supposed = results;
    showWhatIf(pool);
  };
  return make('div', { class: 'tools' }, choice,
    makeButton('Suppose these picks', { id: 'what-if-picks' }, () =>
      suppose(withPicksOf(pool.results, pool.results, pool.players[byId('what-if-player').value].picks))),
    makeButton('Take all back', { id: 'what-if-clear' }, () => suppose(pool.results)));
}

function fillWhatIf(panel, pool) {
  supposed = pool.results;
  panel.append(make('h2', {}, 'What if'));
  if (choosableGames(pool.results).length === 0) {
    panel.append(make('p', {}, 'No game is open.'));
    return;
  }
  panel.append(
    make('p', { class: 'hint' }, 'Press the team that you suppose to win; press it again to take that back.'),
    makeWhatIfTools(pool),
    make('p', { id: 'what-if-words', role: 'status' }),
    make('ol', { id: 'what-if-first', 'aria-label': 'First places by what is supposed' }),
    make('div', { class: 'what-if' },
      make('div', { id: 'what-if-games' }),
      makeScroller('Standings by what is supposed', make('div', { id: 'what-if-table' }))),
    make('p', { class: 'hint' }, 'Moved: places that what is supposed makes, against the standings as entered.'));
  showWhatIf(pool);
}
