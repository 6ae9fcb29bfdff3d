// versus_view.js - two players side by side: where they differ, and what each can still gain on the other.

function makeVersusPick(pool, player, verdicts, game) {
  const team = player.picks[game];
  return make('span', { class: `pick ${verdicts[game]}` },
    make('span', { class: 'team' }, team === 0 ? 'no pick' : withSeed(pool, team)), makeMark(verdicts[game]));
}

const makeDifference = ({ differs }) => (differs ? make('strong', { class: 'differs' }, '\u2260 differ') : 'alike');

/** The games in the order of the rounds, the last first: these bring most. */
const gamesByRound = () => gamePlaces.slice().sort((left, right) => roundOf(right) - roundOf(left) || left - right);

function versusRows(pool, player, other) {
  const verdicts = [player, other].map((one) => score(one.picks, pool.results, pool.points).verdicts);
  const gain = (own, game, differs) =>
    (differs && verdicts[own][game] === POSSIBLE ? pool.points[roundOf(game) - 1] : 0);
  return gamesByRound().map((game) => {
    const differs = player.picks[game] !== other.picks[game];
    return { game, differs, verdicts, gains: [gain(0, game, differs), gain(1, game, differs)] };
  });
}

function versusColumns(pool, player, other) {
  const result = (game) => (pool.results[game] === 0 ? 'open' : withSeed(pool, pool.results[game]));
  return [
    { title: 'Game', isHeader: true, cell: ({ game }) => nameOfGame(pool, game) },
    ...[player, other].map((one, index) => ({
      title: one.name, cell: ({ game, verdicts }) => makeVersusPick(pool, one, verdicts[index], game),
    })),
    { title: 'Result', cell: ({ game }) => result(game) },
    { title: 'Differ', cell: makeDifference },
    ...[player, other].map((one, index) => ({
      title: `${one.name} gains`, kind: 'number', cell: ({ gains }) => (gains[index] ? `+${gains[index]}` : ''),
    })),
  ];
}

/** How far they are apart, and what each has and can still gain on the other. */
function makeVersusSummary(pool, player, other, rows) {
  const different = rows.filter((row) => row.differs);
  const open = different.filter(({ game }) => pool.results[game] === 0);
  const makeGain = (one, against) => make('div', {}, make('dt', {}, one.name), make('dd', {},
    `${counted(one.points, 'point')}, can still gain ${gainOn(one, against, pool.results, pool.points)} on the other`));
  const words = `They differ in ${counted(different.length, 'game')}, ${open.length} of them open.`;
  return [
    make('p', { class: 'summary' }, words),
    make('dl', { class: 'facts' }, makeGain(player, other), makeGain(other, player)),
  ];
}

function makeVersus(pool, player, other) {
  const rows = versusRows(pool, player, other);
  const table = new Table(`${player.name} and ${other.name}`, versusColumns(pool, player, other), rows);
  table.filter((row) => row.differs);
  const all = make('input', { type: 'checkbox', id: 'versus-all' });
  all.addEventListener('change', () => table.filter((row) => all.checked || row.differs));
  table.element.classList.add('versus');
  return [
    ...makeVersusSummary(pool, player, other, rows),
    make('p', { class: 'check' }, all, make('label', { for: 'versus-all' }, 'Show all games, also those alike')),
    makeScroller(`${player.name} and ${other.name}`, table.element),
  ];
}
