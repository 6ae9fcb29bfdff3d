// pool/projection.h - how the tournament can still end once the four region winners are known.
#pragma once

#include "pool/pool_lines.h"

#include <array>
#include <optional>
#include <string>

namespace tallyhoop {

/// The region winners, entries 1..4; entry 0 is never filled. 1 and 2 meet in the first semi-final, 3 and 4 in the
/// other.
using FinalFour = std::array<std::string, 5>;

enum class FinalFourState {
    Known,         ///< all four are there and the champion is not
    Incomplete,    ///< a region winner is missing
    ChampionKnown, ///< nothing is left to project
};

/// Takes the region winners out of the results.
/// @param finalFour receives those found before the first that is missing
FinalFourState ChkFinalFour(const SelectionLines& results, FinalFour& finalFour);

/// How a projection treats the final opponent.
enum class FinalOpponent {
    Open = 0,   ///< the other semi-final stays as it is
    First = 1,  ///< the other half's first region winner
    Second = 2, ///< the other half's second region winner
};

/// Fills in the missing last games so that a region winner wins out.
/// @param results the real results
/// @param team    1..4, an entry of finalFour
/// @returns the projected results; nothing when it can no longer happen
std::optional<SelectionLines> ProjectWinner(const SelectionLines& results, const FinalFour& finalFour, std::size_t team,
                                            FinalOpponent opponent);

} // namespace tallyhoop
