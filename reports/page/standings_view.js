// standings_view.js - who leads, who can still be first, who has moved.

const VERDICTS = ['Clinched', 'Alive', 'Open', 'Out'];

/** A number that sorts the highest first. */
const highest = (value) => (value === undefined || value === null ? null : -value);

/** "Up 2" is said; "▲ 2" is seen. */
function makeMovement(places) {
  if (places === null) return '';
  if (places === 0) return make('span', {}, make('span', { 'aria-hidden': 'true' }, '='), make('span', { class: 'unseen' }, 'same place'));
  const isUp = places > 0;
  return make('span', { class: isUp ? 'up' : 'down' },
    make('span', { 'aria-hidden': 'true' }, `${isUp ? '\u25B2' : '\u25BC'} ${Math.abs(places)}`),
    make('span', { class: 'unseen' }, `${isUp ? 'up' : 'down'} ${Math.abs(places)}`));
}

/** In how many outcomes a player is first, alone or with others; the numbers can be longer than usual ones. */
const waysOf = (outlook) => BigInt(outlook.alone) + BigInt(outlook.shared);

const makeVerdict = (verdict) => make('span', { class: `verdict ${verdict.toLowerCase()}` }, verdict);

function outlookColumns(pool) {
  if (!pool.outlook) return [];
  const of = (player) => pool.outlook.players[player.index];
  const columns = [
    { title: 'First %', kind: 'number', cell: (player) => of(player).first, key: (player) => highest(parseChance(of(player).first)) },
    { title: 'Share %', kind: 'number', cell: (player) => of(player).share, key: (player) => highest(of(player).percent) },
    { title: 'Verdict', cell: (player) => makeVerdict(of(player).verdict), key: (player) => VERDICTS.indexOf(of(player).verdict) },
    { title: 'Best', kind: 'number', cell: (player) => of(player).best, key: (player) => parseInt(of(player).best, 10) },
    { title: 'Worst', kind: 'number', cell: (player) => of(player).worst, key: (player) => parseInt(of(player).worst, 10) },
  ];
  if (pool.outlook.players.some((one) => one.alone !== undefined)) {
    columns.unshift({ title: 'Ways', kind: 'number', cell: (player) => String(waysOf(of(player))), key: (player) => -Number(waysOf(of(player))) });
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
    { title: 'Place', kind: 'number place-column', cell: (player) => String(player.place), key: (player) => player.place },
    { title: 'Player', kind: 'name-column', isHeader: true, cell: makePlayerLink, key: (player) => player.name },
    { title: 'Points', kind: 'number strong', cell: (player) => String(player.points), key: (player) => -player.points },
    { title: 'Possible', kind: 'number', cell: (player) => String(player.possible), key: (player) => -player.possible },
    { title: 'Moved', kind: 'number', cell: (player) => makeMovement(moved[player.index]), key: (player) => highest(moved[player.index]) },
    ...outlookColumns(pool),
    ...pool.points.map((_, round) => ({
      title: `R${round + 1}`, kind: 'number', cell: (player) => String(player.byRound[round]), key: (player) => -player.byRound[round],
    })),
    { title: 'Total', kind: 'number', cell: (player) => player.total, key: (player) => player.total },
  ];
}

/** What the figures are, under the table. */
function standingsNotes(pool) {
  const notes = ['Possible: points earned and those that can still be earned. R1 to R6: points of the rounds. '
    + 'Total: the predicted total of the final. Moved: places since the latest round began.'];
  if (!pool.outlook) return notes;
  notes.push(`First: the chance to be first, alone or together. Share: that of first place, which those `
    + `who are first together share. ${pool.outlook.basis.join('. ')}.`);
  if (pool.outlook.exact) notes.push(`Ways: the outcomes, of ${pool.outlook.outcomes}, in which a player is first, alone or together.`);
  return notes;
}

/** Letters without regard to case and accents. */
const plain = (text) => text.normalize('NFD').replace(/\p{M}/gu, '').toLowerCase();

function makeSearch(pool, table) {
  const box = make('input', { id: 'search', type: 'search', autocomplete: 'off' });
  const count = make('p', { class: 'hint', id: 'search-count', role: 'status' }, counted(pool.players.length, 'player'));
  box.addEventListener('input', () => {
    const wanted = plain(box.value);
    const isWanted = (player) => plain(player.name).includes(wanted) || plain(player.file).includes(wanted);
    table.filter(isWanted);
    const shown = pool.players.filter(isWanted).length;
    count.textContent = wanted ? `${shown} of ${counted(pool.players.length, 'player')}` : counted(pool.players.length, 'player');
  });
  return make('div', { class: 'tools' }, make('div', { class: 'field' }, make('label', { for: 'search' }, 'Search for a player'), box), count);
}

function fillStandings(panel, pool) {
  const rows = pool.players.slice().sort((left, right) => left.place - right.place || byName(left, right));
  const table = new Table('Standings', standingsColumns(pool), rows);
  table.element.classList.add('standings');
  panel.append(
    make('h2', {}, 'Standings'),
    ...pool.comments.filter((comment) => comment.trim() !== '').map((comment) => make('p', { class: 'comment' }, comment)),
    makeSearch(pool, table),
    makeScroller('Standings', table.element),
    ...standingsNotes(pool).map((note) => make('p', { class: 'hint' }, note)));
}
