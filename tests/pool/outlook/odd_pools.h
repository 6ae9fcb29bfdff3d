// tests/pool/outlook/odd_pools.h - pools with whatever a pool may have, made up at random.
#pragma once

#include "pool/outlook/contest.h"
#include "pool/outlook/first_places.h"
#include "pool/outlook/invented_pools.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace tallyhoop::test {

/// May have games entered whose teams are not known yet, rows without a team, teams in the wrong place or of another
/// spelling, players who picked nobody or the same as another one, and payoffs of any size.
struct OddPool {
    Bracket results;
    std::vector<Bracket> picks;
    Payoffs payoffs{};

    Contest contest() const { return {results, picks, payoffs}; }
};

/// @param open    so many games are open, wherever they are
/// @param players so many, or nobody
/// @param damaged whether places of the results may have the wrong team or none; `open` is then only about right
OddPool oddPool(InventedPools& pools, std::size_t open, std::size_t players, bool damaged);

/// Adds up everybody's shares of first place, in whole outcomes.
/// @returns nothing when what k players share together is not a multiple of k
std::optional<std::uint64_t> sumOfShares(const FirstOutlook& outlook);

} // namespace tallyhoop::test
