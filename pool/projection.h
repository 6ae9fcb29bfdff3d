// pool/projection.h - how the tournament can still end once the four region winners are known.
#pragma once

#include "pool/bracket.h"

#include <array>
#include <optional>
#include <string>

namespace tallyhoop {

/// The winners of regions 1..4. The first two meet in one semi-final, the others in the other.
using FinalFour = std::array<std::string, kRegions>;

enum class FinalFourState {
    Known,         ///< all four are there and the champion is not
    Incomplete,    ///< a region winner is missing
    ChampionKnown, ///< nothing is left to project
};

FinalFourState finalFourState(const Bracket& results);

/// @returns the region winners; empty texts for those that are missing
FinalFour finalFourOf(const Bracket& results);

/// How a projection treats the final opponent.
enum class FinalOpponent {
    Open,   ///< the other semi-final stays as it is
    First,  ///< the first region winner of the other half
    Second, ///< the second region winner of the other half
};

/// Fills in the missing last games so that a region winner wins out.
/// @param results the real results
/// @param team    a region's winner
/// @returns the projected results; nothing when it can no longer happen
std::optional<Bracket> projectWinner(const Bracket& results, const std::string& team, FinalOpponent opponent);

/// @returns who would be the opponent in the final under a projection that the winner of this region 0..3 wins
const std::string& finalOpponent(const Bracket& projected, int region);

} // namespace tallyhoop
