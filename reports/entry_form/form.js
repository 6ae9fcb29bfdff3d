// form.js - what a player does on the page: picking, filling in, handing in.

const FIELDS = ['name', 'initials', 'total', 'email'];

let board = startingBoard();

// What is kept on this device, where the browser lets a page keep something.

/** A name of its own for each field of teams: other points, titles or comments leave what was filled in as it is. */
const STORE = `tallyhoop-bracket-${hexOf(crc32(new TextEncoder().encode(JSON.stringify(field.teams))))}`;

function keep() {
  const kept = { picks: gamePlaces.map((place) => board[place]) };
  for (const id of FIELDS) kept[id] = byId(id).value;
  try {
    localStorage.setItem(STORE, JSON.stringify(kept));
  } catch {
    // Not every browser keeps something for a page that was opened from a file.
  }
}

function kept() {
  try {
    return JSON.parse(localStorage.getItem(STORE)) ?? {};
  } catch {
    return {};
  }
}

/** Plays kept picks again: one that does not fit is left out, whatever it is. */
function boardOfPicks(picks) {
  return gamePlaces.reduce((played, place, index) => {
    const from = feeders[place].find((one) => played[one] !== null && played[one] === picks[index]);
    return from === undefined ? played : advanced(played, from);
  }, startingBoard());
}

/** What is kept may be of an older form, or of another page of the same place: nothing of it is taken unseen. */
function restore() {
  const before = kept();
  if (Array.isArray(before.picks)) board = boardOfPicks(before.picks);
  for (const id of FIELDS) {
    if (typeof before[id] !== 'string' || before[id] === '') continue;
    byId(id).value = before[id].slice(0, byId(id).maxLength);
    tidyField(id);
    showFault(id);
  }
}

// Picking.

const say = (text) => { byId('news').textContent = text; };

function change(after, news) {
  board = after;
  showBoard(board);
  if (byId('picks-fault').textContent !== '') showFault('picks');
  byId('outcome').textContent = '';
  keep();
  say(`${news} ${byId('count').textContent}.`);
}

function pick(place) {
  const team = teamAt(board, place);
  change(advanced(board, place), `${team} wins. ${nameOfGame(placeAfter(place))}.`);
}

function goToNextGame() {
  const winner = nextOpenGame(board);
  if (winner === undefined) return;
  placeButtons[feeders[winner][0]].focus();
}

function printBlank() {
  document.documentElement.classList.add('blank');
  addEventListener('afterprint', () => document.documentElement.classList.remove('blank'), { once: true });
  print();
}

// What is missing, in words.

const inQuotes = (characters) => [...new Set(characters)].map((one) => `"${one}"`).join(', ');

const isControl = (character) => /[\u0000-\u001F\u007F-\u009F]/.test(character);

/** Characters that the program's files cannot hold are not replaced by others: the player decides how to write them. */
function faultOfText(id, missing) {
  const text = tidy(byId(id).value);
  if (text === '') return missing;
  if (Array.from(text).some(isControl)) return 'There is a character in it that cannot be seen: please type it anew.';
  const strangers = strangersIn(text);
  if (strangers.length > 0) return `The pool's files cannot hold ${inQuotes(strangers)}: please write it in other letters.`;
  if (text.includes('>')) return 'Mail programs quote with ">": please leave it out.';
  return leadsOut(text) ? `"${text}" looks like a folder: please leave the slashes out.` : '';
}

/** The name becomes the first part of a file's name. */
function faultOfName() {
  const entry = typedEntry();
  const fault = faultOfText('name', 'Please give your name.');
  if (fault !== '' || !isDevice(entry)) return fault;
  return `"${entry.name}" cannot be the name of a file: please write it in another way.`;
}

function faultOfTotal() {
  const text = tidy(byId('total').value);
  if (text === '') return 'Please predict how many points both teams together score in the final, 50 to 250.';
  if (!/^[0-9]+$/.test(text)) return `"${text}" is no whole number: both teams together, 50 to 250.`;
  if (Number(text) < 50) return `${text} is too few: both teams together, 50 to 250.`;
  return Number(text) > 250 ? `${text} is too many: both teams together, 50 to 250.` : '';
}

const LONGEST_EMAIL = 43; // that the organiser's list of players holds

/** The characters are those in which the program finds an address again among what mail programs add to it. */
function faultOfEmail() {
  const text = tidy(byId('email').value);
  if (text === '') return '';
  if (!/^[A-Za-z0-9!#$%&'*+\-\/=?^_`{|}~.]+@[A-Za-z0-9\-.]*[A-Za-z0-9]$/.test(text)) {
    return `"${text}" is no e-mail address that the pool can use; the field may also stay empty.`;
  }
  return text.length > LONGEST_EMAIL
    ? `This has ${text.length} characters, and the pool's list has room for ${LONGEST_EMAIL}; the field may also stay empty.` : '';
}

function faultOfPicks() {
  const open = openGames(board).length;
  if (open === 0) return '';
  return `${open === 1 ? 'One game is' : `${open} games are`} still open.`;
}

const faults = {
  name: faultOfName,
  initials: () => faultOfText('initials', 'Please give your initials.'),
  total: faultOfTotal,
  email: faultOfEmail,
  picks: faultOfPicks,
};

function showFault(id) {
  const fault = faults[id]();
  byId(`${id}-fault`).textContent = fault;
  if (id !== 'picks') byId(id).setAttribute('aria-invalid', fault !== '');
  return fault;
}

/** The number of a total without zeros before it. */
const tidyTotal = (text) => tidy(text).replace(/^0+(?=[0-9])/, '');

/** What a field holds is what is handed in. */
function tidyField(id) {
  const tidied = id === 'total' ? tidyTotal(byId(id).value) : tidy(byId(id).value);
  if (tidied !== byId(id).value) byId(id).value = tidied;
}

function showSaveName() {
  const entry = typedEntry();
  byId('save').textContent = entry.name && entry.initials ? `Save as ${fileName(entry)}` : 'Save as a file';
}

function typedEntry() {
  const entry = { board };
  for (const id of FIELDS) entry[id] = tidy(byId(id).value);
  return entry;
}

// Handing in.

/** The entry when nothing is missing; otherwise says what is, goes to the first of it, and gives null. */
function readyEntry() {
  byId('outcome').textContent = '';
  FIELDS.forEach(tidyField);
  const wrong = Object.keys(faults).filter((id) => showFault(id) !== '');
  if (wrong.length === 0) return typedEntry();
  byId(wrong[0] === 'picks' ? 'next' : wrong[0]).focus();
  return null;
}

const tell = (text) => { byId('outcome').textContent = text; };
const toOrganiser = () => (field.organiser ? ` to ${field.organiser}` : ' to the organiser');

/** Follows a link that is only there for this: a download or a mail. */
function follow(attributes) {
  const link = make('a', { ...attributes, hidden: '' });
  document.body.append(link);
  link.click();
  link.remove();
}

function save(entry) {
  const address = URL.createObjectURL(new Blob([selectionFile(entry)], { type: 'application/octet-stream' }));
  follow({ href: address, download: fileName(entry) });
  tell(`Saved as ${fileName(entry)} where your browser puts downloads. Give this file${toOrganiser()}.`);
}

/** Puts a text on the clipboard. Browsers let only some pages do it; an older way works on the others. */
async function copyText(text) {
  const area = byId('text');
  area.value = text;
  try {
    await navigator.clipboard.writeText(text);
    return true;
  } catch {
    byId('by-hand').hidden = false;
    area.select();
    const done = document.execCommand('copy');
    byId('by-hand').hidden = done;
    return done;
  }
}

async function copy(entry) {
  if (await copyText(textLines(entry).join('\n'))) tell(`Copied. Paste it into a mail or a message${toOrganiser()}.`);
  else tell(`Your browser does not let this page copy: copy the text below yourself, and send it${toOrganiser()}.`);
}

async function mail(entry) {
  const address = mailAddress(entry, textLines(entry));
  if (address.length <= LONGEST_ADDRESS) {
    follow({ href: address });
    tell('Your mail program opens with your bracket. It is handed in when you send that mail. If nothing opens, use Copy.');
    return;
  }
  const copied = await copyText(textLines(entry).join('\n'));
  follow({ href: mailAddress(entry, ['Please paste here what the page has copied.']) });
  tell(copied
    ? 'Your bracket is too long for some mail programs, so it was copied: paste it into the mail that opens, and send it.'
    : 'Your bracket is too long for some mail programs: copy the text below into the mail that opens, and send it.');
  byId('by-hand').hidden = copied;
}

// Putting it together.

function connect(id, event, action) {
  byId(id).addEventListener(event, action);
}

function connectFields() {
  for (const id of FIELDS) {
    connect(id, 'input', () => {
      if (byId(id).getAttribute('aria-invalid') === 'true') showFault(id); // until it is right
      tell('');
      showSaveName();
      keep();
    });
    connect(id, 'change', () => {
      tidyField(id);
      showFault(id);
      keep();
    });
  }
}

function connectHandingIn() {
  for (const [id, way] of Object.entries({ save, copy, mail })) {
    connect(id, 'click', () => {
      const entry = readyEntry();
      if (entry) way(entry);
    });
  }
  connect('next', 'click', goToNextGame);
  connect('to-hand-in', 'click', () => {
    byId('hand-in').scrollIntoView();
    byId('hand-in-title').focus({ preventScroll: true }); // a field would bring up the keyboard of a telephone
  });
}

function connectTools() {
  connect('bracket', 'click', (event) => {
    const button = event.target.closest('[data-position]');
    if (button) pick(Number(button.dataset.position));
  });
  connect('seeds', 'click', () => change(withHigherSeeds(board), 'The better seeds win the open games of the regions.'));
  connect('restart', 'click', () => byId('sure').showModal());
  connect('sure-no', 'click', () => byId('sure').close());
  connect('sure-yes', 'click', () => {
    byId('sure').close();
    change(startingBoard(), 'All picks are removed.');
  });
  connect('print', 'click', () => print());
  connect('printBlank', 'click', printBlank);
}

buildPage();
restore();
showBoard(board);
showSaveName();
connectFields();
connectHandingIn();
connectTools();
