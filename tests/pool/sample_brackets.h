// tests/pool/sample_brackets.h - brackets for scoring tests, built game by game.
#pragma once

#include "pool/pool_lines.h"

#include <string>

namespace tallyhoop::test {

/// The starting field "Team 1" .. "Team 64" (region by region, row by row), nothing picked.
SelectionLines startingField();

/// The field with the upper of the two entrants picked in every game: the champion is "Team 1".
SelectionLines everyUpperTeamWins();

/// The same with the lower entrants: the champion is "Team 64".
SelectionLines everyLowerTeamWins();

/// The lines with the games of these slots left open.
SelectionLines without(SelectionLines lines, int firstSlot, int lastSlot);

/// The two slots whose winners meet for a game's slot, from the shape of the bracket as people draw it.
struct Entrants {
    int upper = 0;
    int lower = 0;
};
Entrants entrantsOf(int slot);

/// @returns the round 1..6 of a slot, 0 for a row of the field
int roundOfSlot(int slot);

} // namespace tallyhoop::test
