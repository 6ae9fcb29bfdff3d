// pool/outlook/witness_search.h - looks for outcomes that end well for a player.
#pragma once

#include "pool/outlook/contest.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tallyhoop {

/// Starts from the outcome in which all picks of a player come true that still can, and changes the winners of single
/// games as long as the player's lead over the best of the others grows.
class WitnessSearch
{
public:
    struct Found {
        OutcomeNumber outcome = 0;
        ByPosition<TeamNumber> teams;     ///< who wins in it
        std::vector<std::int32_t> points; ///< every player's at the end of it
    };

    /// @param contest must outlive this
    explicit WitnessSearch(const Contest& contest) : m_contest{contest} {}

    /// @param climb whether to look further when the player is not first in the outcome of his picks
    Found bestFor(std::size_t player, bool climb) const;

private:
    OutcomeNumber ownOutcome(std::size_t player) const;
    Found evaluated(OutcomeNumber outcome) const;
    Found changedAt(const Found& start, std::size_t game) const;

    const Contest& m_contest;
};

} // namespace tallyhoop
