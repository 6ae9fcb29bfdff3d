// what_if_view.js - winners chosen for open games, and everybody's points, places and ways by them.

let supposed = null; // results with what is supposed

function choose(pool, game, team) {
  supposed = withWinner(supposed, pool.results, game, supposed[game] === team ? 0 : team);
  showWhatIf(pool);
}

function makeTeamButton(pool, game, team) {
  const button = makeButton('', { class: 'side', 'data-game': game, 'data-team': team, 'aria-pressed': supposed[game] === team },
    () => choose(pool, game, team));
  button.append(make('span', { class: 'seed' }, pool.seedOf(team)), ' ', make('span', { class: 'team' }, nameOf(pool, team)));
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
  const titles = [...new Set(ready.map(({ game }) => gameHeading(pool, game)))];
  return titles.map((title) => make('section', { class: 'open-games', 'aria-label': title }, make('h3', {}, title),
    ...ready.filter(({ game }) => gameHeading(pool, game) === title).map(({ game, teams }) => makeGame(pool, game, teams))));
}

const gameHeading = (pool, game) => (isInRegion(game) ? nameOfGame(pool, game) : ROUNDS[roundOf(game) - 1]);

/** Without a count there is what the program has found by the results as entered. */
function waysColumns(pool, outcomes) {
  if (outcomes !== null) {
    const ways = ({ first }) => first.alone + first.shared;
    return [
      { title: 'Ways', kind: 'number', cell: (row) => String(ways(row)), key: (row) => -ways(row) },
      { title: 'Share %', kind: 'number', cell: ({ first }) => percent(first.share, outcomes), key: ({ first }) => -first.share },
      { title: 'Verdict', cell: ({ first }) => makeVerdict(verdictOf(first, outcomes)), key: ({ first }) => VERDICTS.indexOf(verdictOf(first, outcomes)) },
    ];
  }
  if (!pool.outlook) return [];
  const of = ({ player }) => pool.outlook.players[player.index];
  return [{ title: 'Share % now', kind: 'number', cell: (row) => of(row).share, key: (row) => highest(of(row).percent) }];
}

function makeWhatIfTable(pool, { rows, outcomes }) {
  const columns = [
    { title: 'Place', kind: 'number place-column', cell: ({ place }) => String(place), key: ({ place }) => place },
    { title: 'Player', kind: 'name-column', isHeader: true, cell: ({ player }) => makePlayerLink(player), key: ({ player }) => player.name },
    { title: 'Points', kind: 'number strong', cell: ({ points }) => String(points), key: ({ points }) => -points },
    { title: 'Possible', kind: 'number', cell: ({ possible }) => String(possible), key: ({ possible }) => -possible },
    ...waysColumns(pool, outcomes),
    { title: 'Moved', kind: 'number', cell: ({ player, place }) => makeMovement(player.place - place), key: ({ player, place }) => place - player.place },
  ];
  rows.sort((left, right) => left.place - right.place || byName(left.player, right.player));
  return new Table('Standings by what is supposed', columns, rows).element;
}

function whatIfInWords(pool, outcomes) {
  const winners = counted(supposedGames(supposed, pool.results).length, 'winner');
  const open = counted(openGamesOf(supposed).games.length, 'game');
  const counting = outcomes === null
    ? `Ways are counted once ${MOST_COUNTED_GAMES} are open or fewer; until then the shares are the program's, by the results as entered.`
    : `Ways: of ${counted(outcomes, 'outcome')}, all alike, those in which a player is first, alone or together.`;
  return `${winners} supposed; ${open} still open. ${counting}`;
}

function showWhatIf(pool) {
  const focused = document.activeElement?.dataset ?? {};
  const standings = standingsIf(pool, supposed);
  byId('what-if-words').textContent = whatIfInWords(pool, standings.outcomes);
  byId('what-if-games').replaceChildren(...makeGames(pool));
  byId('what-if-table').replaceChildren(makeWhatIfTable(pool, standings));
  if (focused.game) {
    document.querySelector(`.side[data-game="${focused.game}"][data-team="${focused.team}"]`)?.focus({ preventScroll: true });
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
    make('div', { class: 'what-if' },
      make('div', { id: 'what-if-games' }),
      makeScroller('Standings by what is supposed', make('div', { id: 'what-if-table' }))));
  showWhatIf(pool);
}
