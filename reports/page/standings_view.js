// standings_view.js - who leads, who can still be first, who has moved.

const VERDICTS = ['Clinched', 'Alive', 'Open', 'Out'];

/** "Up 2" is said; "▲ 2" is seen. */
function makeMovement(places) {
  if (places === null) return '';
  if (places === 0) return makeSeenAndSaid('', '=', 'same place');
  const [direction, arrow] = places > 0 ? ['up', '\u25B2'] : ['down', '\u25BC'];
  return makeSeenAndSaid(direction, `${arrow} ${Math.abs(places)}`, `${direction} ${Math.abs(places)}`);
}

/** In how many outcomes a player is first, alone or with others; the numbers can be longer than usual ones. */
const waysOf = (outlook) => BigInt(outlook.alone) + BigInt(outlook.shared);

/** The column of verdicts, who has clinched first. */
const verdictColumn = (verdictOfRow) => ({
  title: 'Verdict',
  cell: (row) => make('span', { class: verdictOfRow(row).toLowerCase() }, verdictOfRow(row)),
  key: (row) => VERDICTS.indexOf(verdictOfRow(row)),
});

/** The column of places that players have moved. */
const movementColumn = (placesOfRow) =>
  ({ ...numberColumn('Moved', placesOfRow), cell: (row) => makeMovement(placesOfRow(row)) });

function outlookColumns(pool) {
  if (!pool.outlook) return [];
  const of = (player) => pool.outlook.players[player.index];
  const chance = (title, name, value) =>
    ({ ...numberColumn(title, (player) => value(of(player))), cell: (player) => of(player)[name] });
  const place = (title, name) =>
    ({ title, kind: 'number', cell: (player) => of(player)[name], key: (player) => numberIn(of(player)[name]) });
  const columns = [
    chance('First %', 'first', (one) => parseChance(one.first)),
    chance('Share %', 'share', (one) => one.percent),
    verdictColumn((player) => of(player).verdict),
    place('Best', 'best'),
    place('Worst', 'worst'),
  ];
  if (pool.outlook.players.some((one) => one.alone !== undefined)) {
    const ways = (player) => waysOf(of(player));
    columns.unshift({ ...numberColumn('Ways', ways), key: (player) => Number(ways(player)) });
  }
  return columns;
}

/** What "<0.1" and ">99.9" are sorted by. */
function parseChance(words) {
  if (words === '') return null;
  if (words.startsWith('<')) return 0.01;
  return words.startsWith('>') ? 99.99 : Number(words);
}

function standingsColumns(pool) {
  const moved = movements(pool);
  return [
    placeColumn((player) => player.place),
    nameColumn(asItIs),
    numberColumn('Points', (player) => player.points, 'number strong'),
    numberColumn('Possible', (player) => player.possible),
    movementColumn((player) => moved[player.index]),
    ...outlookColumns(pool),
    ...pool.points.map((_, round) => numberColumn(`R${round + 1}`, (player) => player.byRound[round])),
    { ...numberColumn('Total', (player) => numberIn(player.total)), cell: (player) => player.total },
  ];
}

/** What the figures are, under the table. */
function standingsNotes(pool) {
  const notes = ['Possible: points earned and those that can still be earned. R1 to R6: points of the rounds. '
    + 'Total: the predicted total of the final. Moved: places since the latest round began, '
    + 'from the second on.'];
  if (!pool.outlook) return notes;
  notes.push('First: the chance to be first, alone or together. Share: that of first place, which those '
    + `who are first together share. ${pool.outlook.basis.join('. ')}.`);
  if (pool.outlook.players.some(({ best, worst }) => `${best}${worst}`.includes('-'))) {
    notes.push('Best and worst: the places at the end; "2-5" is one of these, which one is not worked out.');
  }
  if (pool.outlook.exact) {
    notes.push(`Ways: the outcomes, of ${pool.outlook.outcomes}, in which a player is first, alone or together.`);
  }
  return notes;
}

/** Letters without regard to case and accents. */
const plain = (text) => text.normalize('NFD').replace(/\p{M}/gu, '').toLowerCase();

function makeSearch(pool, table) {
  const box = make('input', { id: 'search', type: 'search', autocomplete: 'off' });
  const all = counted(pool.players.length, 'player');
  const count = make('p', { class: 'hint', id: 'search-count', role: 'status' }, all);
  box.addEventListener('input', () => {
    const wanted = plain(box.value);
    const isWanted = (player) => plain(player.name).includes(wanted) || plain(player.file).includes(wanted);
    table.filter(isWanted);
    count.textContent = wanted ? `${pool.players.filter(isWanted).length} of ${all}` : all;
  });
  const field = make('div', { class: 'field' }, make('label', { for: 'search' }, 'Search for a player'), box);
  return make('div', { class: 'tools' }, field, count);
}

function fillStandings(panel, pool) {
  const table = new Table('Standings', standingsColumns(pool), pool.players.slice().sort(byPlace));
  table.element.classList.add('standings');
  panel.append(
    make('h2', {}, 'Standings'),
    ...pool.comments.filter((text) => text.trim() !== '').map((text) => make('p', { class: 'comment' }, text)),
    makeSearch(pool, table),
    makeScroller('Standings', table.element),
    ...standingsNotes(pool).map((note) => make('p', { class: 'hint' }, note)));
}
