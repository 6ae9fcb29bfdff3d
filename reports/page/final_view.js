// final_view.js - the sheet that ends the season.

const makeFinalName = ({ name, last }) => make('span', {}, name, last ? make('em', {}, ' (last)') : '');

const offColumn = { title: 'Off', kind: 'number', cell: ({ off }) => off };

function fillFinal(panel, pool) {
  const columns = [
    { title: 'Place', kind: 'number place-column', cell: ({ place }) => place },
    { title: 'Player', kind: 'name-column', isHeader: true, cell: makeFinalName },
    { title: 'Points', kind: 'number', cell: ({ points }) => points },
    { title: 'Total', kind: 'number', cell: ({ total }) => total },
    ...(pool.final.rows.some(({ off }) => off !== '') ? [offColumn] : []),
    { title: 'Prize', kind: 'number strong', cell: ({ prize }) => prize },
  ];
  panel.append(
    make('h2', {}, 'Final sheet'),
    ...pool.final.notes.map((note) => make('p', {}, note)),
    makeScroller('Final sheet', new Table('Final sheet', columns, pool.final.rows).element));
  if (pool.final.pairs.length > 0) panel.append(makeTies(pool.final));
}

/** What the total of the final will make of players with equal points. */
function makeTies({ pairs, pairsNotes: [title, ...notes] }) {
  const columns = [
    { title: 'Place', kind: 'number', cell: ({ place }) => place },
    { title: 'Lower prediction', cell: ({ lower }) => lower },
    { title: 'Ahead up to', kind: 'number', cell: ({ upTo }) => upTo },
    { title: 'Tied at', kind: 'number', cell: ({ tiedAt }) => tiedAt },
    { title: 'Higher prediction', cell: ({ higher }) => higher },
    { title: 'Ahead from', kind: 'number', cell: ({ from }) => from },
  ];
  return make('section', { class: 'ties' },
    make('h3', {}, title),
    ...notes.map((note) => make('p', {}, note)),
    makeScroller(title, new Table(title, columns, pairs).element));
}
