// view.js - elements made of data: texts of the pool only ever become text of elements, never markup.

const byId = (id) => document.getElementById(id);

function filledIn(element, attributes, children) {
  for (const [name, value] of Object.entries(attributes)) element.setAttribute(name, value);
  element.append(...children);
  return element;
}

/** Makes an element with attributes and children; a child that is a string becomes text. */
const make = (tag, attributes, ...children) => filledIn(document.createElement(tag), attributes, children);

/** The same for a drawing. */
const makeSvg = (tag, attributes, ...children) =>
  filledIn(document.createElementNS('http://www.w3.org/2000/svg', tag), attributes, children);

/** A button that does something. */
function makeButton(text, attributes, pressed) {
  const button = make('button', { type: 'button', ...attributes }, text);
  button.addEventListener('click', pressed);
  return button;
}

/** A list to choose from under a label; choices are [value, text]. */
function makeChoice(id, label, choices, chosen) {
  const list = make('select', { id }, ...choices.map(([value, text]) => make('option', { value }, text)));
  list.addEventListener('change', () => chosen(list.value));
  return make('div', { class: 'field' }, make('label', { for: id }, label), list);
}

const say = (news) => { byId('news').textContent = news; };

const ROUNDS = ['First round', 'Second round', 'Third round', 'Regional final', 'Semi-finals', 'Final'];
const FINALS = 4; // the part of a bracket that follows the four regions
const PARTS = [0, 1, 2, 3, FINALS];

const lowerFirst = (text) => text[0].toLowerCase() + text.slice(1);
const counted = (count, what) => `${count} ${what}${count === 1 ? '' : 's'}`;
const percent = (part, whole) => (whole === 0 ? 0 : (100 * part) / whole).toFixed(1);

const partTitle = (pool, part) => (part === FINALS ? 'Finals' : pool.regions[part]);
const partOf = (place) => (isInRegion(place) ? regionOf(place) : FINALS);

/** "West, first round"; "Semi-final of West and Midwest"; "Final" */
function nameOfGame(pool, game) {
  if (game === CHAMPION) return 'Final';
  const semifinal = SEMIFINALS.indexOf(game);
  if (semifinal >= 0) return `Semi-final of ${pool.regions[2 * semifinal]} and ${pool.regions[2 * semifinal + 1]}`;
  return `${pool.regions[regionOf(game)]}, ${lowerFirst(ROUNDS[roundOf(game) - 1])}`;
}

const byName = (left, right) => alphabet.compare(left.name, right.name) || left.index - right.index;

const byPlace = (left, right) => left.place - right.place || byName(left, right);

/** The players to choose from, by name. */
const playerChoices = (pool) => pool.players.slice().sort(byName).map((player) => [player.index, player.name]);

/** A player's name, which leads to the bracket. */
const makePlayerLink = (player, name = player.name) =>
  makeButton(name, { class: 'link', 'data-player': player.index }, () => showBracketOf(player));

/** What is wider than a telephone is moved under a finger, or with the arrow keys. */
const makeScroller = (label, ...children) =>
  make('div', { class: 'scroller', role: 'region', 'aria-label': label, tabindex: 0 }, ...children);

/** What those who see get to see, and those who listen to hear. */
const makeSeenAndSaid = (kind, seen, said) => make('span', { class: kind },
  make('span', { 'aria-hidden': 'true' }, seen), make('span', { class: 'unseen' }, said));

const MARKS = { [GOOD]: ['=', 'right'], [BAD]: ['X', 'wrong'], [LOST]: ['-', 'no longer possible'] };

const makeMark = (verdict) => makeSeenAndSaid('mark', ...(MARKS[verdict] ?? ['', '']));
