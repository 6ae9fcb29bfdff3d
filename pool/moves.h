// pool/moves.h - how teams move on a bracket: a bracket in, the bracket after the move out.
#pragma once

#include "pool/bracket.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace tallyhoop {

/// Removes a team from a position and every one that follows it, where exactly that team is.
/// @param start nothing = from nowhere on
Bracket withoutTeamFrom(Bracket bracket, std::optional<Position> start, std::string_view team);

/// Empties a position and removes its team from all that follows. First-round rows stay.
Bracket cleared(Bracket bracket, Position position);

/// Lets the team at a position win its game there; the team displaced is removed from all that follows. Nothing changes
/// at the champion.
Bracket advanced(const Bracket& bracket, Position from);

/// The end of a drag; one that ends where it began is a click and advances the team one round. A drag carries it along
/// its path to the target; the team displaced there is removed from all that follows. A drop off the path or backwards
/// changes nothing.
/// @param team who was at the source when it was pressed; empty clears what it reaches
Bracket dropped(const Bracket& bracket, Position source, Position target, std::string_view team);

/// Lets the better-seeded team win every game inside the regions; equal seeds let the lower of the two rows win. The
/// last three positions stay.
/// @param seeds of the rows of the starting field
Bracket withHighSeeds(Bracket bracket, const ByTeamRow<std::int16_t>& seeds);

/// Finds the next game without a winner, in the order of the positions: region by region, each round by round, then the
/// semi-finals and the final. After the final the first game follows.
/// @param game where to begin, itself the last one that is looked at
/// @returns nothing when every game has a winner
std::optional<Position> openGameAfter(const Bracket& bracket, Position game);

/// @returns the places that the team at a position is on, along its way from the first round; empty for no team, and
///          for one that does not come from a row on that way
std::vector<Position> pathOf(const Bracket& bracket, Position position);

} // namespace tallyhoop
