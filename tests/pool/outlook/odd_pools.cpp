// tests/pool/outlook/odd_pools.cpp - an office's brackets, and what can be wrong with them.
#include "pool/outlook/odd_pools.h"

#include <algorithm>
#include <array>

namespace tallyhoop::test {

namespace {

constexpr std::array<Payoffs, 12> kPayoffs{{
    {1, 2, 4, 8, 12, 16},
    {1, 1, 1, 1, 1, 1},
    {0, 0, 0, 0, 0, 0},
    {0, 0, 0, 0, 0, 1},
    {-1, -1, -1, -1, -1, -1},
    {-3, 2, -4, 8, -12, 16},
    {32767, 32767, 32767, 32767, 32767, 32767},
    {-32768, -32768, -32768, -32768, -32768, -32768},
    {32767, -32768, 32767, 30000, -32768, 32767},
    {500, 500, -500, 500, -500, 500},   // points within 16 bits, differences beyond
    {125, 125, 125, 125, 125, 250},     // 8000 for all games: the most for which 16 bits are used
    {-125, 125, -125, 125, -125, -251}, // 8001, without the signs
}};

Bracket oddPicks(InventedPools& pools, const std::vector<Bracket>& before)
{
    switch (pools.number(8)) {
    case 0:
        return {}; // a selection that nobody has begun
    case 1:
        return pools.tossed(); // most of these teams are out
    case 2:
    case 3:
        return before.empty() ? pools.picked() : before[pools.number(before.size())];
    case 4: {
        Bracket bracket = pools.picked();
        pools.damage(bracket, static_cast<unsigned>(pools.number(40)));
        return bracket;
    }
    default:
        return pools.picked();
    }
}

} // namespace

OddPool oddPool(InventedPools& pools, std::size_t open, std::size_t players, bool damaged)
{
    OddPool pool;
    pool.results = pools.withOpenAnywhere(pools.chance(50) ? pools.picked() : pools.tossed(), open);
    if (damaged)
        pools.damage(pool.results, 4);
    while (pool.picks.size() < players)
        pool.picks.push_back(oddPicks(pools, pool.picks));
    pool.payoffs = kPayoffs.at(pools.number(kPayoffs.size()));
    return pool;
}

std::optional<std::uint64_t> sumOfShares(const FirstOutlook& outlook)
{
    std::uint64_t sum = 0;
    for (std::size_t together = 1; together <= outlook.players.size(); ++together) {
        std::uint64_t first = 0;
        for (const PlayerFirsts& player : outlook.players)
            if (together == 1)
                first += player.all.alone;
            else
                for (const SharedFirsts& some : player.all.shared)
                    first += some.together == together ? some.outcomes : 0;
        if (first % together != 0)
            return std::nullopt;
        sum += first / together;
    }
    return sum;
}

} // namespace tallyhoop::test
