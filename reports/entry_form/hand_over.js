// hand_over.js - an entry as the program's file and as text that people and the program can read.
//
// An entry is { board, name, initials, total, email }, whose texts are tidy.

/** The characters of bytes 80 to 9F of Windows-1252; every other byte is the character of the same number. */
const SPECIAL =
  '\u20AC\u0081\u201A\u0192\u201E\u2026\u2020\u2021\u02C6\u2030\u0160\u2039\u0152\u008D\u017D\u008F' +
  '\u0090\u2018\u2019\u201C\u201D\u2022\u2013\u2014\u02DC\u2122\u0161\u203A\u0153\u009D\u017E\u0178';

/** The byte of a character, undefined when Windows-1252 lacks it. */
function byteOf(character) {
  const code = character.codePointAt(0);
  if (code < 0x80 || (code > 0x9F && code <= 0xFF)) return code;
  const special = SPECIAL.indexOf(character);
  return special < 0 ? undefined : 0x80 + special;
}

/** The bytes of a text; "?" for what Windows-1252 lacks. */
const bytesOf = (text) => Uint8Array.from(Array.from(text), (character) => byteOf(character) ?? 0x3F);

/** The characters of a text that a file of the program cannot hold. */
const strangersIn = (text) => Array.from(text).filter((character) => byteOf(character) === undefined);

/** Capital letters where Windows-1252 has them. */
function upperCase(text) {
  const upper = (letter) => {
    const capital = letter.toUpperCase();
    return capital.length === 1 && byteOf(capital) !== undefined ? capital : letter;
  };
  return Array.from(text, upper).join('');
}

/** The bytes of the program's selection file. */
function selectionFile(entry) {
  const teams = allPlaces.map((place) => teamAt(entry.board, place));
  const lines = [...teams, upperCase(entry.initials), entry.name, entry.total, '*END*'];
  return bytesOf(lines.map((line) => line + '\r\n').join(''));
}

/** How long the part of a name is that Windows takes for a device, whatever follows the first point; 0 = none. */
function deviceLength(name) {
  const stem = name.split('.')[0].replace(/ +$/, '');
  return /^(con|prn|aux|nul|conin\$|conout\$|(com|lpt)[0-9\u00B9\u00B2\u00B3])$/i.test(stem) ? stem.length : 0;
}

/** The name under which the program first proposes to save. The fields' lengths keep it shorter than any limit. */
function fileName(entry) {
  const name = `${entry.name}_${entry.initials}`.replace(/[\u0000-\u001F\u007F/\\:*?"<>|]/g, '_');
  return /\.thc$/i.test(name) ? name : name + '.THC';
}

/** Whether a file's name would be that of a device, for which the program refuses an entry. */
const isDevice = (entry) => deviceLength(entry.name) > 0 || deviceLength(`${entry.name}_${entry.initials}`) > 0;

/** Whether a file's name would lead to another folder, for which the program refuses an entry. */
const leadsOut = (name) => /\.\.[/\\]|^[/\\]|^.?:\\/.test(name);

/** Blanks of all kinds become one blank, characters without a width nothing. */
function tidy(text) {
  return text.normalize('NFC')
    .replace(/[\u00AD\u200B-\u200D\u2060\uFEFF]/g, '')
    .replace(/[\t\n\r \u00A0\u2000-\u200A\u202F\u205F\u3000]+/g, ' ')
    .trim();
}

/** What is left of a text when mail programs have made its quotes and dashes "smart", and have quoted it with ">". */
function canonical(text) {
  return tidy(text.replace(/>/g, ' '))
    .replace(/[\u0060\u00B4\u2018-\u201B\u2032]/g, "'")
    .replace(/[\u201C-\u201F\u2033]/g, '"')
    .replace(/[\u2010-\u2015\u2212]/g, '-')
    .replace(/\u2026/g, '...');
}

/** The CRC-32 of bytes, as zlib has it. */
function crc32(bytes) {
  let crc = 0xFFFFFFFF;
  for (const byte of bytes) {
    crc ^= byte;
    for (let bit = 0; bit < 8; ++bit) crc = (crc >>> 1) ^ (crc & 1 ? 0xEDB88320 : 0);
  }
  return (crc ^ 0xFFFFFFFF) >>> 0;
}

const hexOf = (number) => number.toString(16).toUpperCase().padStart(8, '0');

/** The value that shows whether a text came through whole. */
function checkOf(entry) {
  const picks = gamePlaces.map((place) => teamAt(entry.board, place));
  const values = [entry.name, entry.initials, entry.total, ...picks];
  return hexOf(crc32(bytesOf(values.map((value) => canonical(value) + '\n').join(''))));
}

/** A text whose colons are its own, not those of the keys that the program looks for. */
const withDoubleColons = (text) => text.replace(/:/g, '::');

/** A list of winners; a comma that belongs to a name is doubled, too. */
const listOf = (board, places) =>
  places.map((place) => withDoubleColons(teamAt(board, place)).replace(/,/g, ',,')).join(', ');

/** A title, for people only: without colons, for these end the keys that the program looks for. */
const titleInText = (title) => tidy(title.replace(/:/g, ' '));

function linesOfRegion(board, region) {
  const rounds = [1, 2, 3, 4].map((round) => `Round ${round}: ${listOf(board, gamesOfRound(round, region))}`);
  return [`Region ${region + 1}: ${titleInText(field.regions[region])}`, ...rounds];
}

/** The text of a mail or the clipboard, as lines. */
function textLines(entry) {
  return [
    `Tallyhoop bracket: ${titleInText(field.title)}`,
    '',
    `Name: ${withDoubleColons(entry.name)}`,
    `Initials: ${withDoubleColons(entry.initials)}`,
    `Total: ${entry.total}`,
    ...(entry.email ? [`E-mail: ${entry.email}`] : []),
    '',
    ...[0, 1, 2, 3].flatMap((region) => linesOfRegion(entry.board, region)),
    `Semifinals: ${listOf(entry.board, SEMIFINALS)}`,
    `Champion: ${listOf(entry.board, [CHAMPION])}`,
    '',
    `Check: ${checkOf(entry)}`,
  ];
}

/** The longest address that all usual mail programs take. */
const LONGEST_ADDRESS = 2000;

/** A mail's address: to whom, its subject and its body. */
function mailAddress(entry, lines) {
  const subject = `Bracket of ${entry.name} (${entry.initials})`;
  // Commas and colons stay as they are, which mail programs understand, and which keeps the address short.
  const encoded = (text) => encodeURIComponent(text).replace(/%2C/g, ',').replace(/%3A/g, ':');
  const to = encodeURIComponent(field.organiser).replace(/%40/g, '@');
  return `mailto:${to}?subject=${encoded(subject)}&body=${encoded(lines.join('\r\n'))}`;
}
