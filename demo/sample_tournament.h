// demo/sample_tournament.h - the tournament of the sample pool: the field of 2000 and what its games brought.
#pragma once

#include "pool/bracket.h"

#include <array>
#include <string_view>

namespace tallyhoop::demo {

/// The winners inside one region, each round from top to bottom; empty = none yet.
struct RegionWinners {
    std::array<std::string_view, 8> round1{};
    std::array<std::string_view, 4> round2{};
    std::array<std::string_view, 2> round3{};
    std::string_view winner{};
};

/// Everything after the starting field.
struct Winners {
    std::array<RegionWinners, kRegions> regions{};
    std::string_view semifinalA{}; ///< of the first two regions
    std::string_view semifinalB{};
    std::string_view champion{};
};

/// The teams of the first-round rows, region by region.
extern const ByTeamRow<std::string_view> kSampleField;

/// What really happened up to and including the regional finals; the last three games are left open to be tried.
extern const Winners kSampleResults;

/// @returns these winners over the sample field
Bracket bracketOf(const Winners& winners);

} // namespace tallyhoop::demo
