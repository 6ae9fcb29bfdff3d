// pool/prizes/tied_pairs.h - before the total of the final is known: what it will make of players with equal points.
#pragma once

#include "pool/prizes/final_places.h"
#include "pool/prizes/prize_table.h"
#include "pool/scoring.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace tallyhoop {

/// What the total of the final makes of two players who have equal points.
enum class TieEnd : std::uint8_t {
    ByTotal,     ///< the lower prediction is ahead for low totals, the higher one for high ones
    AlwaysTied,  ///< the predictions are the same, or there are none
    LowerAlways, ///< only one has predicted anything
};

/// Two players with equal points. Totals are the points of both teams in the final.
struct TiedPair {
    std::size_t place = 1;  ///< that they share as long as the total is not known
    std::size_t lower = 0;  ///< index of the score with the lower prediction, or with the only one
    std::size_t higher = 0; ///< of the other
    TieEnd end = TieEnd::AlwaysTied;
    int lowerUpTo = 0;  ///< ByTotal: the highest total that has the lower prediction ahead
    int higherFrom = 0; ///< ByTotal: the lowest total that has the higher one ahead; when there is a total between the
                        ///< two, it leaves them tied

    friend bool operator==(const TiedPair&, const TiedPair&) = default;
};

/// More players than these on one place, and only those with neighbouring predictions make pairs.
inline constexpr std::size_t kMostInAllPairs = 25;

/// Finds at which total each two tied players change their order.
/// @param places made without a total: all, or all those who share some of the places
/// @returns in the order of the places; none by TieRule::Share
std::vector<TiedPair> tiedPairs(std::span<const PlayerScore> scores, std::span<const FinalPlace> places, TieRule rule);

} // namespace tallyhoop
