// pool/moves.h - how teams move on a bracket: pure functions over 127 names.
#pragma once

#include "pool/position.h"

#include <array>
#include <cstdint>
#include <string>

namespace tallyhoop {

/// The team at every position, 0..126; empty = none.
using TeamNamesOnBoard = std::array<std::string, kPositions>;

/// Removes a team from `start` and every position that follows it, where exactly that name stands; others are
/// untouched.
/// @param start 0..126, or kChampionEnd for nothing at all
void ClearTeamForward(TeamNamesOnBoard& teams, const std::string& team, int start);

/// A right press: empties a position and removes its team from all that follows. First-round rows stay.
void clearPosition(TeamNamesOnBoard& teams, int position);

/// The end of a drag; a click is a drag that ends where it began. A click advances the team one round, a drag carries
/// it along its path to the target; the team displaced there is removed from all that follows. A drop off the path,
/// backwards, or a click on the champion changes nothing.
/// @param source      where the press happened, 0..126
/// @param target      where the release happened, 0..126
/// @param draggedTeam the name at the source when it was pressed; empty clears what it reaches
void dropOnPosition(TeamNamesOnBoard& teams, int source, int target, const std::string& draggedTeam);

/// @returns true when a team may be carried from source to target: target lies ahead on its path (or is the source)
bool isOnPath(int source, int target);

/// Lets the better-seeded team win every game inside the regions; equal seeds let the lower of the two rows win. The
/// last three positions stay.
/// @param seeds the seed of each of the 64 first-round rows, region by region
void selectHighSeeds(TeamNamesOnBoard& teams, const std::array<std::int16_t, kTeams>& seeds);

} // namespace tallyhoop
