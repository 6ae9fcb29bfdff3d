// view.js - the page's elements: built once from the field, and made to show a board.
//
// Texts of the field only ever become text of elements, never markup.

const byId = (id) => document.getElementById(id);

/** Makes an element with attributes and children; a child that is a string becomes text. */
function make(tag, attributes, ...children) {
  const element = document.createElement(tag);
  for (const [name, value] of Object.entries(attributes)) element.setAttribute(name, value);
  element.append(...children);
  return element;
}

const ROUNDS = ['First round', 'Second round', 'Third round', 'Regional final', 'Semi-finals', 'Final'];
const FINALS = 4; // the part of the page that follows the four regions
const LONG_NAME = 15; // letters: more of them need a second line, or smaller letters, in a narrow column

const placeButtons = [];   // by place
const gameGroups = new Map(); // by the place of the winner

const lowerFirst = (text) => text[0].toLowerCase() + text.slice(1);
const inPoints = (points) => (points.trim() === '1' ? '1 point' : `${points.trim()} points`);

function makePlace(place) {
  const button = make('button', { type: 'button', 'data-position': place, class: 'place' },
    make('span', { class: 'seed' }), ' ', make('span', { class: 'team' }));
  placeButtons[place] = button;
  return button;
}

function makeGame(winner) {
  const group = make('div', { role: 'group', class: 'game' }, ...feeders[winner].map(makePlace));
  gameGroups.set(winner, group);
  return group;
}

function makeRound(round, region) {
  const title = `${ROUNDS[round - 1]}, ${inPoints(field.points[round - 1])}`;
  return make('div', { class: `round round-${round}` },
    make('h3', {}, title),
    make('div', { class: 'games' }, ...gamesOfRound(round, region).map(makeGame)));
}

function makeChampion() {
  return make('div', { class: 'round champion' },
    make('h3', {}, 'Champion'),
    make('div', { class: 'games' }, make('div', { class: 'game' }, makePlace(CHAMPION))));
}

/** A region, or what follows the regions. */
function makePart(part) {
  const rounds = part === FINALS
    ? [makeRound(5), makeRound(6), makeChampion()]
    : [1, 2, 3, 4].map((round) => makeRound(round, part));
  const title = partTitle(part);
  return make('section', { class: 'part', id: `part-${part}`, 'aria-labelledby': `part-title-${part}` },
    make('h2', { id: `part-title-${part}` }, title),
    make('div', { class: 'rounds' }, ...rounds));
}

/** A blank title would leave a link and a heading without words. */
const regionTitle = (region) => field.regions[region].trim() || `Region ${region + 1}`;

const partTitle = (part) => (part === FINALS ? 'Finals' : regionTitle(part));

/** The titles of a telephone's narrow bar leave out what all of them say. */
const shortTitle = (part) => partTitle(part).replace(/ region$/i, '');

function buildPage() {
  document.title = field.title;
  byId('title').textContent = field.title;
  byId('points').textContent = `Right picks bring ${field.points.map((text) => text.trim()).join(' ')} points`;
  field.comments.forEach((comment, index) => {
    const place = byId(`comment${index + 1}`);
    place.textContent = comment;
    place.hidden = comment.trim() === '';
  });
  for (const part of [0, 1, 2, 3, FINALS]) {
    byId('regions').append(make('a', { href: `#part-${part}` }, shortTitle(part)));
    byId('status-lane').before(makePart(part));
  }
}

/** "8 Wisconsin" */
const inWords = (board, place) =>
  (board[place] === null ? 'a team not yet picked' : `${seedAt(board, place)} ${teamAt(board, place)}`.trim());

/** "West, first round"; "Semi-final of West and Midwest"; "Final" */
function nameOfGame(winner) {
  if (winner === CHAMPION) return 'Final';
  const semifinal = SEMIFINALS.indexOf(winner);
  if (semifinal >= 0) return `Semi-final of ${regionTitle(2 * semifinal)} and ${regionTitle(2 * semifinal + 1)}`;
  const round = [1, 2, 3, 4].find((one) => gamesOfRound(one, regionOf(winner)).includes(winner));
  return `${regionTitle(regionOf(winner))}, ${lowerFirst(ROUNDS[round - 1])}`;
}

function gameInWords(board, winner) {
  const [upper, lower] = feeders[winner];
  return `${nameOfGame(winner)}: ${inWords(board, upper)} or ${inWords(board, lower)}`;
}

function showPlace(board, place) {
  const button = placeButtons[place];
  const isEmpty = board[place] === null;
  const [seed, team] = button.querySelectorAll('span');
  seed.textContent = isEmpty ? '' : seedAt(board, place);
  team.textContent = teamAt(board, place);
  team.classList.toggle('long', teamAt(board, place).length > LONG_NAME);
  button.disabled = isEmpty || place === CHAMPION;
  if (isEmpty) button.setAttribute('aria-label', 'not yet picked');
  else button.removeAttribute('aria-label');
  if (place !== CHAMPION) button.setAttribute('aria-pressed', isPicked(board, place));
}

/** The first open game whose teams are known. */
const nextOpenGame = (board) => openGames(board).find((winner) => feeders[winner].every((from) => board[from] !== null));

function showBoard(board) {
  allPlaces.forEach((place) => showPlace(board, place));
  for (const [winner, group] of gameGroups) {
    group.setAttribute('aria-label', gameInWords(board, winner));
    group.classList.toggle('decided', board[winner] !== null);
  }
  const picked = GAMES - openGames(board).length;
  byId('count').textContent = `${picked} of ${GAMES}`;
  byId('filled').style.width = `${(100 * picked) / GAMES}%`;
  byId('champion').textContent = board[CHAMPION] === null
    ? 'You have not picked a champion yet.' : `Champion: ${teamAt(board, CHAMPION)}`;
  byId('next').hidden = picked === GAMES;
  if (picked < GAMES) byId('next').textContent = `Next open game: ${gameInWords(board, nextOpenGame(board))}`;
}
