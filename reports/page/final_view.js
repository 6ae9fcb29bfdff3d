// final_view.js - the sheet that ends the season.

const makeFinalName = ({ name, last }) => make('span', {}, name, last ? make('em', {}, ' (last)') : '');

function fillFinal(panel, pool) {
  const columns = [
    { title: 'Place', kind: 'number place-column', cell: ({ place }) => place },
    { title: 'Player', kind: 'name-column', isHeader: true, cell: makeFinalName },
    { title: 'Points', kind: 'number', cell: ({ points }) => points },
    { title: 'Total', kind: 'number', cell: ({ total }) => total },
    { title: 'Prize', kind: 'number strong', cell: ({ prize }) => prize },
  ];
  panel.append(
    make('h2', {}, 'Final sheet'),
    ...pool.final.notes.map((note) => make('p', {}, note)),
    makeScroller('Final sheet', new Table('Final sheet', columns, pool.final.rows).element));
}
