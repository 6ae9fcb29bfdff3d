// road.js - the points of a chart: everybody's figure at each time, and where it is on a drawing.

/** "Start", "Round 2", "Now" */
function stageInWords(point) {
  if (point.now) return 'Now';
  return point.round === 0 ? 'Start' : `Round ${point.round}`;
}

/** Everybody's share of first place in percent, at each time that the program has found it for. */
function chanceStages(pool) {
  return (pool.outlook?.road ?? []).map((point) => ({
    label: stageInWords(point),
    values: point.shares.map((share) => 100 * share),
  }));
}

/** How far off the forecasts among these shares may be; empty when all are counted. */
function forecastsInWords(pool) {
  const forecasts = (pool.outlook?.road ?? []).filter(({ error }) => error !== undefined);
  if (forecasts.length === 0) return '';
  const error = Math.max(...forecasts.map((point) => Number(point.error))).toFixed(2);
  const stages = forecasts.map(stageInWords).join(', ');
  return `Forecast, with a standard error of at most ${error} percentage points: ${stages}.`;
}

/** Everybody's points after each round that has begun; the last is now. */
function pointStages(pool) {
  const latest = latestRound(pool.results);
  return Array.from({ length: latest + 1 }, (_, round) => ({
    label: round === latest && round > 0 ? 'Now' : stageInWords({ round }),
    values: pool.players.map((player) => sum(player.byRound.slice(0, round))),
  }));
}

/** A number of 1, 2 or 5 and zeros, so that five of them or fewer reach the highest value. */
function stepOf(highest) {
  for (let power = 1; ; power *= 10) {
    for (const digit of [1, 2, 5]) if (5 * digit * power >= highest) return digit * power;
  }
}

/** A drawing's measures for some stages: where a stage is from left to right, a value from top to bottom, and ticks. */
function chartOf(stages, width, height) {
  const highest = Math.max(0, ...stages.map((stage) => highestOf(stage.values)));
  const step = stepOf(highest);
  const top = Math.max(1, Math.ceil(highest / step)) * step;
  const gaps = Math.max(1, stages.length - 1);
  return {
    x: (stage) => (width * stage) / gaps,
    y: (value) => height - (height * value) / top,
    ticks: Array.from({ length: top / step + 1 }, (_, index) => index * step),
  };
}

function highestOf(values) {
  let highest = -Infinity;
  for (const value of values) if (value > highest) highest = value;
  return highest;
}

/** A player's line as the points of a polyline. */
const lineOf = (chart, stages, player) =>
  stages.map((stage, index) => `${round2(chart.x(index))},${round2(chart.y(stage.values[player]))}`).join(' ');

const round2 = (number) => Math.round(100 * number) / 100;
