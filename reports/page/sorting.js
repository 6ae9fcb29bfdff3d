// sorting.js - rows in the order of what they are sorted by.

const alphabet = new Intl.Collator('en', { sensitivity: 'base', numeric: true });

/** The number that a text begins with, such as a predicted total; null for other texts. */
function numberIn(text) {
  const number = parseFloat(text);
  return Number.isFinite(number) ? number : null;
}

/** Orders two numbers or two texts; what is not known comes last in either direction, which is 1 or -1. */
function compareKeys(left, right, direction) {
  const isUnknown = [left, right].map((key) => key === null || key === undefined);
  if (isUnknown.includes(true)) return isUnknown[0] - isUnknown[1];
  return direction * (typeof left === 'string' ? alphabet.compare(left, right) : left - right);
}

/** A copy of the rows by key(row), the lowest first or, falling, the highest; what is alike stays in its order. */
function sortedBy(rows, key, isFalling) {
  const direction = isFalling ? -1 : 1;
  return rows.slice().sort((left, right) => compareKeys(key(left), key(right), direction));
}
