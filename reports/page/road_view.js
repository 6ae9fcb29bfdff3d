// road_view.js - the chart of chances and of points, and the same figures as a table.

const MOST_LINES = 8; // as many as the style has colours for
const CHART_HEIGHT = 280;
const CHART_MARGINS = 64; // beside the drawing, as the style has them

const shownRoad = { kind: 'points', players: [], pool: null };

const stagesOf = (kind, pool) => (kind === 'chances' ? chanceStages(pool) : pointStages(pool));
const figureInWords = (kind, value) => (kind === 'chances' ? value.toFixed(1) : String(value));

const makeGrid = (chart, width) => chart.ticks.map((tick) =>
  makeSvg('line', { class: 'grid', x1: 0, x2: width, y1: chart.y(tick), y2: chart.y(tick) }));

const makeLabels = (name, labels) =>
  make('div', { class: name, 'aria-hidden': 'true' }, ...labels.map((label) => make('span', {}, label)));

/** A line with its points; its colour and its dashes are those of its number. */
function makeLine(chart, stages, player, number) {
  const dots = stages.map((stage, index) =>
    makeSvg('circle', { r: 3, cx: chart.x(index), cy: chart.y(stage.values[player.index]) }));
  return makeSvg('g', { class: `line line-${number}` },
    makeSvg('polyline', { points: lineOf(chart, stages, player.index) }), ...dots);
}

/** The lines are a drawing; the labels beside it and below it are text, which can be read on any background. */
function makeChart(kind, stages, players, width) {
  const shown = stages.map((stage) => ({ ...stage, values: players.map((player) => stage.values[player.index]) }));
  const chart = chartOf(shown, width, CHART_HEIGHT);
  const what = kind === 'chances' ? 'Share of first place in percent' : 'Points';
  const title = `${what} of ${players.map((player) => player.name).join('; ')}`;
  return [
    makeLabels('ticks', chart.ticks.map(String).reverse()),
    makeSvg('svg', { class: 'chart', role: 'img', 'aria-label': title, viewBox: `0 0 ${width} ${CHART_HEIGHT}` },
      ...makeGrid(chart, width), ...players.map((player, number) => makeLine(chart, stages, player, number))),
    makeLabels('stages', stages.map(({ label }) => (width < 400 ? label.replace('Round ', 'R') : label))),
  ];
}

/** The players shown, with the look of their lines; a press takes one off. */
function makeLegend(players) {
  const sample = (number) => makeSvg('svg', { class: 'sample', viewBox: '0 0 30 10', 'aria-hidden': 'true' },
    makeSvg('g', { class: `line line-${number}` }, makeSvg('polyline', { points: '0,5 30,5' })));
  const remove = (player) => {
    shownRoad.players = shownRoad.players.filter((one) => one !== player);
    showRoad();
    say(`${player.name} is no longer shown.`);
    byId('road-player').focus();
  };
  return players.map((player, number) => {
    const name = `${player.name}: take off the chart`;
    const button = makeButton('', { class: 'chip', 'aria-label': name }, () => remove(player));
    button.append(sample(number), ` ${player.name} `, make('span', { 'aria-hidden': 'true' }, '\u00D7'));
    return button;
  });
}

function makeRoadTable(kind, stages, players) {
  const columns = [
    { title: 'Player', isHeader: true, kind: 'name-column', cell: makePlayerLink },
    ...stages.map(({ label, values }) =>
      ({ title: label, kind: 'number', cell: (player) => figureInWords(kind, values[player.index]) })),
  ];
  return new Table('The figures of the chart', columns, players).element;
}

function showRoad() {
  const { kind, players, pool } = shownRoad;
  const stages = stagesOf(kind, pool);
  const area = byId('road-chart');
  byId('road-legend').replaceChildren(...makeLegend(players));
  area.replaceChildren(...makeChart(kind, stages, players, Math.max(200, area.clientWidth - CHART_MARGINS)));
  byId('road-table').replaceChildren(makeRoadTable(kind, stages, players));
}

function addToRoad(value) {
  const player = value === '' ? undefined : shownRoad.pool.players[value];
  byId('road-player').value = '';
  if (!player || shownRoad.players.includes(player)) return;
  shownRoad.players = [...shownRoad.players, player].slice(-MOST_LINES);
  showRoad();
  say(`${player.name} is shown.`);
}

function makeRoadTools(pool) {
  const tools = make('div', { class: 'tools' });
  if (chanceStages(pool).length > 0) {
    shownRoad.kind = 'chances';
    const kinds = [['chances', 'Share of first place, %'], ['points', 'Points']];
    tools.append(makeChoice('road-kind', 'Chart', kinds, (kind) => {
      shownRoad.kind = kind;
      showRoad();
    }));
  }
  tools.append(makeChoice('road-player', 'Add a player', [['', 'choose'], ...playerChoices(pool)], addToRoad));
  return tools;
}

function fillRoad(panel, pool) {
  shownRoad.pool = pool;
  shownRoad.players = pool.players.slice().sort(byPlace).slice(0, 5);
  panel.append(make('h2', {}, 'The road'), makeRoadTools(pool),
    make('div', { id: 'road-legend', role: 'group', 'aria-label': 'Players on the chart' }),
    make('div', { id: 'road-chart' }),
    makeScroller('The figures of the chart', make('div', { id: 'road-table' })));
  if (pool.outlook?.road.length > 0) {
    panel.append(make('p', { class: 'hint' }, `Chances: ${pool.outlook.chances}. ${forecastsInWords(pool)}`));
  }
  new ResizeObserver(() => showRoad()).observe(byId('road-chart'));
  showRoad();
}
