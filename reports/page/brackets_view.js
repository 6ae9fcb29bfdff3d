// brackets_view.js - a player's bracket with what became of each pick; on a telephone one region at a time.

const shownBrackets = { player: null, other: null, part: 0 };

/** Shows a player's bracket, wherever one is. */
function showBracketOf(player) {
  shownBrackets.player = player;
  shownBrackets.other = null;
  showTab('brackets');
  showBrackets(thePool);
  byId('tab-brackets').focus();
  scrollTo(0, 0);
}

/** What is seen of one place: seed, team and mark; who has won instead where the pick is wrong. */
function makePick(pool, picks, verdicts, place) {
  const team = picks[place];
  const winner = pool.results[place];
  const verdict = isTeamPlace(place) ? 'team' : verdicts[place];
  const item = make('li', { class: `pick ${verdict}` },
    make('span', { class: 'seed' }, pool.seedOf(team)), ' ',
    make('span', { class: 'team' }, team === 0 ? 'no pick' : nameOf(pool, team)));
  if (!isTeamPlace(place)) item.append(makeMark(verdict));
  item.title = nameOf(pool, team);
  if (verdict === BAD && winner !== 0) item.title += ` - the winner is ${withSeed(pool, winner)}`;
  return item;
}

function makeColumn(pool, picks, verdicts, round, places) {
  const points = round === 0 ? '' : make('span', { class: 'points' }, `, ${counted(pool.points[round - 1], 'point')}`);
  return make('div', { class: 'round' }, make('h4', {}, round === 0 ? 'Teams' : ROUNDS[round - 1], points),
    make('ol', { class: 'picks' }, ...places.map((place) => makePick(pool, picks, verdicts, place))));
}

const teamPlacesOf = (region) => allPlaces.filter((place) => isTeamPlace(place) && regionOf(place) === region);

/** The rounds of a part with their places; round 0 are the teams of the field. */
function columnsOfPart(part) {
  if (part === FINALS) return [[5, SEMIFINALS], [6, [CHAMPION]]];
  return [[0, teamPlacesOf(part)], ...[1, 2, 3, 4].map((round) => [round, gamesOfRound(round, part)])];
}

function makePart(pool, picks, verdicts, part) {
  return make('section', { class: `part part-${part}`, 'aria-label': partTitle(pool, part) },
    make('h3', {}, partTitle(pool, part)),
    make('div', { class: 'rounds' }, ...columnsOfPart(part).map(([round, places]) =>
      makeColumn(pool, picks, verdicts, round, places))));
}

function makeBracket(pool, player) {
  const { verdicts, goodPicks } = score(player.picks, pool.results, pool.points);
  const wrong = gamePlaces.filter((game) => verdicts[game] === BAD).length;
  const total = player.total.trim() === '' ? '' : ` Predicted total of the final: ${player.total}.`;
  return [
    make('p', { class: 'summary' }, `${player.name}: place ${player.place}, ${counted(player.points, 'point')}, `
      + `${player.possible} possible; ${counted(goodPicks, 'right pick')}, ${wrong} wrong.${total}`),
    make('p', { class: 'hint' }, '"=" is a right pick, "X" a wrong one or a team that is out, '
      + '"-" one that can no longer come true; one without a mark still can.'),
    make('div', { class: 'bracket' }, ...PARTS.map((part) => makePart(pool, player.picks, verdicts, part))),
  ];
}

/** The buttons with which a telephone shows one part of the bracket. */
function makePartButtons(pool) {
  const makePartButton = (part) => makeButton(partTitle(pool, part).replace(/ region$/i, ''), { 'data-part': part }, () => {
    shownBrackets.part = part;
    showPart();
  });
  return make('div', { class: 'parts', role: 'group', 'aria-label': 'Part of the bracket' }, ...PARTS.map(makePartButton));
}

function showPart() {
  byId('brackets').dataset.part = shownBrackets.part;
  for (const button of document.querySelectorAll('.parts button')) {
    button.setAttribute('aria-pressed', Number(button.dataset.part) === shownBrackets.part);
  }
}

function showBrackets(pool) {
  const { player, other } = shownBrackets;
  byId('bracket-player').value = player.index;
  byId('bracket-other').value = other ? other.index : '';
  byId('bracket-area').replaceChildren(...(other ? makeVersus(pool, player, other) : makeBracket(pool, player)));
  document.querySelector('.parts').hidden = other !== null;
  showPart();
}

function fillBrackets(panel, pool) {
  const choices = playerChoices(pool);
  const choose = (name) => (value) => {
    shownBrackets[name] = value === '' ? null : pool.players[value];
    showBrackets(pool);
  };
  panel.append(
    make('h2', {}, 'Brackets'),
    make('div', { class: 'tools' },
      makeChoice('bracket-player', 'Player', choices, choose('player')),
      makeChoice('bracket-other', 'Beside', [['', 'nobody'], ...choices], choose('other'))),
    makePartButtons(pool),
    make('div', { id: 'bracket-area' }));
  shownBrackets.player ??= pool.players.reduce((best, player) => (player.place < best.place ? player : best));
  showBrackets(pool);
}
