// tests/pool/outlook/results_2000.h - the real tournament of 2000, game by game, and a pool on it.
#pragma once

#include "pool/outlook/contest.h"

#include <cstddef>
#include <vector>

namespace tallyhoop::test {

/// The games in the order in which they are played: round by round, from the first region on.
const std::vector<Position>& gamesOf2000();

/// The field "Team 1" .. "Team 64", row by row of the regions West, Midwest, East and South, with the winners of the
/// first so many games.
Bracket resultsOf2000(std::size_t played = kGames);

/// A hundred invented players. One of them alone has the most points in the end, and can still lose before the final.
const std::vector<Bracket>& picksOf2000();

/// The pool after the first so many games, with the usual payoffs.
Contest contestOf2000(std::size_t played = kGames);

/// @returns everybody's place in the end, 1 = first, by scoring
std::vector<std::size_t> placesOf2000();

} // namespace tallyhoop::test
