// tests/pool/outlook/open_regions.cpp - games of a region cleared, or taken from another bracket.
#include "pool/outlook/open_regions.h"

namespace tallyhoop::test {

Bracket withOpenRegions(Bracket results, int regions)
{
    for (int region = 0; region < regions; ++region)
        for (const Position game : gamesOfRegion(region).first(14))
            results.clear(game);
    return results;
}

std::vector<Bracket> differingInRegions(InventedPools& pools, const Bracket& like, int regions, std::size_t players)
{
    std::vector<Bracket> brackets;
    for (std::size_t player = 0; player < players; ++player) {
        const Bracket own = pools.tossed();
        Bracket& bracket = brackets.emplace_back(like);
        for (int region = 0; region < regions; ++region)
            for (const Position game : gamesOfRegion(region))
                bracket.put(game, own.at(game));
    }
    return brackets;
}

} // namespace tallyhoop::test
