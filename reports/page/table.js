// table.js - tables of rows, sorted by a press on a heading.
//
// A column is { title, cell, key, isFalling, kind, isHeader }: cell(row) is a text or an element; key(row) is what it
// is sorted by, and without one there is no sorting; when it is falling the highest come first; kind are classes of
// the column's cells.

/** A column of numbers, of which the highest come first. */
const numberColumn = (title, value, kind = 'number') =>
  ({ title, kind, cell: (row) => String(value(row)), key: value, isFalling: true });

/** A column of places, of which the lowest come first. */
const placeColumn = (value) =>
  ({ title: 'Place', kind: 'number place-column', cell: (row) => String(value(row)), key: value });

/** The column with the players' names, which lead to their brackets; it stays in view. */
const nameColumn = (playerOf) => ({
  title: 'Player', kind: 'name-column', isHeader: true,
  cell: (row) => makePlayerLink(playerOf(row)), key: (row) => playerOf(row).name,
});

const asItIs = (row) => row;

class Table {
  constructor(caption, columns, rows, order = 0) {
    this.columns = columns;
    this.rows = rows;
    this.order = order;
    this.isReversed = false;
    this.headings = columns.map((column, index) => this.makeHeading(column, index));
    this.body = make('tbody', {});
    this.element = make('table', {},
      make('caption', { class: 'unseen' }, caption),
      make('thead', {}, make('tr', {}, ...this.headings)), this.body);
    this.show();
  }

  makeHeading({ title, key, kind = '' }, index) {
    const heading = make('th', { scope: 'col', class: kind });
    heading.append(key ? makeButton(title, { class: 'heading' }, () => this.sortBy(index)) : title);
    return heading;
  }

  sortBy(index) {
    this.isReversed = this.order === index && !this.isReversed;
    this.order = index;
    this.show();
    say(`Sorted by ${this.columns[index].title}${this.isReversed ? ', reversed' : ''}.`);
  }

  /** Shows only rows that are wanted. */
  filter(isWanted) {
    this.isWanted = isWanted;
    this.show();
  }

  shown() {
    const rows = this.rows.filter(this.isWanted ?? (() => true));
    const { key } = this.columns[this.order];
    return key ? sortedBy(rows, key, this.isFalling()) : rows;
  }

  isFalling() {
    return Boolean(this.columns[this.order].isFalling) !== this.isReversed;
  }

  show() {
    this.headings.forEach((heading, index) => {
      if (index !== this.order || !this.columns[index].key) heading.removeAttribute('aria-sort');
      else heading.setAttribute('aria-sort', this.isFalling() ? 'descending' : 'ascending');
    });
    this.body.replaceChildren(...this.shown().map((row) => this.makeRow(row)));
  }

  makeRow(row) {
    return make('tr', {}, ...this.columns.map(({ cell, kind = '', isHeader }) =>
      (isHeader ? make('th', { scope: 'row', class: kind }, cell(row)) : make('td', { class: kind }, cell(row)))));
  }
}
