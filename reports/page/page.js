// page.js - brings the parts together.

const thePool = poolOf(JSON.parse(byId('pool').textContent));

/** "37 of 63 games played; 100 players. Right picks bring 1 2 4 8 12 16 points." */
function standInWords(pool) {
  const played = GAMES - openGamesIn(pool.results).length;
  return `${played} of ${GAMES} games played; ${counted(pool.players.length, 'player')}. `
    + `Right picks bring ${pool.points.join(' ')} points.`;
}

function buildPage(pool) {
  document.title = pool.title;
  byId('title').textContent = pool.title;
  byId('stand').textContent = standInWords(pool);
  const add = (name, title, fill) => addTab(name, title, (panel) => fill(panel, pool));
  add('standings', 'Standings', fillStandings);
  if (pool.players.length > 0) {
    add('brackets', 'Brackets', fillBrackets);
    add('what-if', 'What if', fillWhatIf);
    add('picks', 'Picks', fillPicks);
    add('road', 'The road', fillRoad);
  }
  if (pool.final) add('final', 'Final', fillFinal);
  connectTabs();
  showTab('standings');
}

buildPage(thePool);
