// tests/pool/sample_brackets.h - brackets built game by game, and the shape of the bracket written down once more.
#pragma once

#include "pool/bracket.h"

namespace tallyhoop::test {

/// The starting field "Team 1" .. "Team 64" (region by region, row by row), nothing picked.
Bracket startingField();

/// The field with the upper of the two entrants picked in every game: the champion is "Team 1".
Bracket everyUpperTeamWins();

/// The same with the lower entrants: the champion is "Team 64".
Bracket everyLowerTeamWins();

/// The bracket with the games of these positions left open, the first and the last one included.
Bracket without(Bracket bracket, int firstPosition, int lastPosition);

/// The two places whose teams meet for a game's place, from the shape of the bracket as people draw it.
struct Entrants {
    Position upper{};
    Position lower{};
};
Entrants entrantsOf(Position game);

/// @returns the round 1..6 whose winner a place holds, 0 for a row of the field
int roundAt(Position position);

} // namespace tallyhoop::test
