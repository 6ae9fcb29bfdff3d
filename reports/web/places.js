// places.js - the places of a 64-team bracket.
//
// 127 places: four regions of 31 (16 teams, then the winners of four rounds), two semi-final winners, the champion.
'use strict';

const PLACES = 127;
const GAMES = 63;
const REGION_PLACES = 31;
const REGION_TEAMS = 16;
const SEMIFINALS = [124, 125];
const CHAMPION = 126;

const isInRegion = (place) => place < SEMIFINALS[0];
const regionOf = (place) => Math.floor(place / REGION_PLACES);
const isTeamPlace = (place) => isInRegion(place) && place % REGION_PLACES < REGION_TEAMS;

/** Where a team goes that wins from a place; null after the champion. */
function placeAfter(place) {
  if (place === CHAMPION) return null;
  if (!isInRegion(place)) return CHAMPION;
  const offset = place % REGION_PLACES;
  if (offset === REGION_PLACES - 1) return SEMIFINALS[regionOf(place) < 2 ? 0 : 1];
  return regionOf(place) * REGION_PLACES + REGION_TEAMS + Math.floor(offset / 2);
}

const allPlaces = Array.from({ length: PLACES }, (_, place) => place);
const gamePlaces = allPlaces.filter((place) => !isTeamPlace(place));

/** The two places whose teams meet for each place, the upper first; none for a team of the first round. */
const feeders = allPlaces.map((place) => allPlaces.filter((from) => placeAfter(from) === place));

/** The places that each round of a region decides, and the finals: rounds 1 to 6. */
function gamesOfRound(round, region) {
  if (round === 5) return SEMIFINALS;
  if (round === 6) return [CHAMPION];
  const first = region * REGION_PLACES + [16, 24, 28, 30][round - 1];
  return Array.from({ length: 16 >> round }, (_, game) => first + game);
}

const roundOfEach = allPlaces.map((place) => {
  if (!isInRegion(place)) return place === CHAMPION ? 6 : 5;
  return [16, 24, 28, 30].filter((first) => place % REGION_PLACES >= first).length;
});

/** The round 1 to 6 whose winner a place holds; 0 for a team of the first round. */
const roundOf = (place) => roundOfEach[place];
