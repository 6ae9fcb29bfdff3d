// tests/pool/outlook/open_regions.h - regions of which no more is known than who wins them.
#pragma once

#include "pool/outlook/invented_pools.h"

namespace tallyhoop::test {

/// @returns the results without all games of the first regions but the last one of each, which leaves 11 open in each
Bracket withOpenRegions(Bracket results, int regions);

/// @returns brackets that are like another one but for the games of the first regions
std::vector<Bracket> differingInRegions(InventedPools& pools, const Bracket& like, int regions, std::size_t players);

} // namespace tallyhoop::test
