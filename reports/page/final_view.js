// final_view.js - the sheet that ends the season.

function makeFinalTable(pool) {
  const rows = pool.final.rows.map((row, order) => ({ ...row, order }));
  const figure = (title, name, kind) =>
    ({ ...numberColumn(title, (row) => numberIn(row[name]), kind), cell: (row) => row[name] });
  const makeName = ({ player, name, last }) =>
    make('div', {}, makePlayerLink(pool.players[player], name), last ? make('em', {}, ' (last)') : '');
  const offColumn = { title: 'Off', kind: 'number', cell: ({ off }) => off, key: ({ off }) => distanceIn(off) };
  const columnIfAny = (name, column) => (rows.some((row) => row[name] !== '') ? [column] : []);
  return new Table('Final sheet', [
    { ...placeColumn(({ place }) => place), key: ({ order }) => order },
    { title: 'Player', kind: 'name-column', isHeader: true, cell: makeName, key: ({ name }) => name },
    ...columnIfAny('prize', figure('Prize', 'prize', 'number strong')), // before what a telephone has no room for
    figure('Points', 'points'),
    figure('Predicted', 'total'),
    ...columnIfAny('off', offColumn),
  ], rows).element;
}

/** How far "+4" and "-4" are off. */
function distanceIn(off) {
  const number = numberIn(off);
  return number === null ? null : Math.abs(number);
}

function fillFinal(panel, pool) {
  panel.append(make('h2', {}, 'Final sheet'), ...pool.final.notes.map((note) => make('p', {}, note)));
  if (pool.final.rows.length > 0) panel.append(makeScroller('Final sheet', makeFinalTable(pool)));
  if (pool.final.pairs.length > 0) panel.append(makeTies(pool));
}

/** What the total of the final will make of players with equal points. */
function makeTies({ final: { pairs, pairsNotes: [title, ...notes] }, players }) {
  const predictor = (title, name, index) =>
    ({ title, kind: 'tied', cell: (pair) => makePlayerLink(players[pair.players[index]], pair[name]) });
  const columns = [
    { title: 'Place', kind: 'number', cell: ({ place }) => place },
    predictor('Lower prediction', 'lower', 0),
    { title: 'Ahead up to', kind: 'number', cell: ({ upTo }) => upTo },
    { title: 'Tied at', kind: 'number', cell: ({ tiedAt }) => tiedAt },
    predictor('Higher prediction', 'higher', 1),
    { title: 'Ahead from', kind: 'number', cell: ({ from }) => from },
  ];
  return make('section', { class: 'ties' },
    make('h3', {}, title),
    ...notes.map((note) => make('p', {}, note)),
    makeScroller(title, new Table(title, columns, pairs).element));
}
