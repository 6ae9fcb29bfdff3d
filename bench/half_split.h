// bench/half_split.h - the plain way to count outcomes fast, to measure the outlook against.
#pragma once

#include "pool/outlook/contest.h"

#include <cstdint>
#include <vector>

namespace tallyhoop::bench {

/// How many outcomes a player is first in.
struct SplitFirsts {
    std::uint64_t alone = 0;
    std::uint64_t together = 0;
};

/// Looks at every outcome: for each way to win the regions and the last three games, the points of the outcomes of two
/// regions combined are added to those of the other two, for 16 outcomes at a time. Nothing is left out, and nothing is
/// counted for single games.
/// @pre no points beyond 16 bits
std::vector<SplitFirsts> countByHalves(const Contest& contest);

} // namespace tallyhoop::bench
