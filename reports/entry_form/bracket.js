// bracket.js - how teams move on a bracket.
//
// A board is an array of 127 rows of the field (0..63), or null for nobody.

const field = JSON.parse(document.getElementById('field').textContent);

function startingBoard() {
  return allPlaces.map((place) =>
    isTeamPlace(place) ? regionOf(place) * REGION_TEAMS + (place % REGION_PLACES) : null);
}

const teamAt = (board, place) => (board[place] === null ? '' : field.teams[board[place]]);
const seedAt = (board, place) => field.seeds[board[place] % REGION_TEAMS].trim();

/** Lets the team at a place win its game; the team displaced leaves all later places, too. */
function advanced(board, from) {
  const to = placeAfter(from);
  if (to === null || board[from] === null) return board;
  const after = board.slice();
  const displaced = teamAt(board, to);
  if (displaced !== '' && displaced !== teamAt(board, from)) {
    for (let place = to; place !== null; place = placeAfter(place)) {
      if (teamAt(board, place) === displaced) after[place] = null;
    }
  }
  after[to] = board[from];
  return after;
}

/** Lets the better seed win every open game of the regions; of equal seeds the lower row, as the program does. */
function withHigherSeeds(board) {
  const seedOf = (row) => field.seedNumbers[row % REGION_TEAMS];
  const after = board.slice();
  for (const place of gamePlaces.filter(isInRegion)) {
    const [upper, lower] = feeders[place].map((from) => after[from]);
    if (after[place] === null) after[place] = seedOf(upper) >= seedOf(lower) ? lower : upper;
  }
  return after;
}

const openGames = (board) => gamePlaces.filter((place) => board[place] === null);

/** Whether a place's team is the one that moves on from it. */
function isPicked(board, place) {
  const to = placeAfter(place);
  return to !== null && board[place] !== null && teamAt(board, to) === teamAt(board, place);
}
