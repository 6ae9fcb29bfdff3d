// pool/outlook/runners.h - those players who may still be first, each way of picking once.
#pragma once

#include "base/step.h"
#include "pool/outlook/contest.h"

#include <cstddef>
#include <vector>

namespace tallyhoop {

/// Players who have the same points in every outcome run as one.
struct Runners {
    Contest contest; ///< one player of each
    std::vector<std::vector<std::size_t>>
        players; ///< of each: those who have these points, in the order of the contest
};

/// @returns all players
Runners allRunners(const Contest& contest);

/// Leaves out everyone who is behind some other player in every outcome.
/// @param step called for each player who is compared with the others; once it has asked to stop, the runners are of no
/// use
/// @returns one runner or more when there are players
Runners runnersOf(const Contest& contest, const Step& step = goOn);

} // namespace tallyhoop
