// screens/board/selection_changes.h - what is different in a selection, or in the results, that somebody else saved.
#pragma once

#include "pool/entry.h"

#include <string>
#include <vector>

namespace tallyhoop {

/// @param here   what is on the board
/// @param theirs what the file holds
/// @returns a line for each difference, such as "West, winner of second round, game 3: here Duke, in the file Kansas";
///          the player first, then the places of the bracket in the order of their numbers; empty for none
std::vector<std::string> selectionChanges(const Field& field, const Entry& here, const Entry& theirs);

} // namespace tallyhoop
