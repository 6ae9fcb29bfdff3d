// bench/outlook_once.cpp - one count of an invented pool, for bench/outlook.py: prepares it, counts, tells time and
// memory.
#include "bench/half_split.h"
#include "bench/peak_memory.h"
#include "pool/outlook/brute_force.h"
#include "pool/outlook/first_count.h"
#include "pool/outlook/invented_pools.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fmt/format.h>
#include <string_view>

namespace tallyhoop {
namespace {

struct Clock {
    std::chrono::steady_clock::time_point wall = std::chrono::steady_clock::now();
    std::clock_t processor = std::clock();
};

struct Firsts {
    double longestSlice = 0; ///< seconds; only of the outlook's own count
    double alone = 0;        ///< outcomes in which the first is alone
};

double aloneOf(const FirstOutlook& outlook)
{
    double alone = 0;
    for (const PlayerFirsts& player : outlook.players)
        alone += static_cast<double>(player.all.alone);
    return alone;
}

Firsts count(const Contest& contest)
{
    Firsts firsts;
    FirstCount count{contest};
    while (!count.isDone()) {
        const std::clock_t begin = std::clock();
        count.advance();
        firsts.longestSlice = std::max(firsts.longestSlice, static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC);
    }
    firsts.alone = aloneOf(count.outlook());
    return firsts;
}

Firsts split(const Contest& contest)
{
    Firsts firsts;
    for (const bench::SplitFirsts& player : bench::countByHalves(contest))
        firsts.alone += static_cast<double>(player.alone);
    return firsts;
}

int run(std::string_view way, std::size_t players, std::size_t open, bool isRandom)
{
    test::InventedPools pools{7};
    const Bracket results = pools.withOpen(pools.picked(), open);
    std::vector<Bracket> picks = pools.office(players);
    if (isRandom)
        std::ranges::generate(picks, [&] { return pools.tossed(); });

    const Clock begin;
    const Contest contest{results, picks, test::kUsualPayoffs};
    const Firsts firsts =
        way == "count"   ? count(contest)
        : way == "split" ? split(contest)
                         : Firsts{0, aloneOf(test::countByScoring(contest.games(), picks, test::kUsualPayoffs).firsts)};
    const Clock end;

    fmt::print("{:.6f} {:.6f} {} {:.6f} {:.0f}\n", std::chrono::duration<double>(end.wall - begin.wall).count(),
               static_cast<double>(end.processor - begin.processor) / CLOCKS_PER_SEC, bench::peakKilobytes(),
               firsts.longestSlice, firsts.alone);
    return 0;
}

} // namespace
} // namespace tallyhoop

/// Arguments: count, split or score; players; open games; realistic or random.
/// Prints seconds, seconds of the processor, peak KiB, the longest slice in seconds, outcomes with one player first.
int main(int count, char** arguments)
{
    if (count != 5) {
        std::fputs("outlook_once count|split|score PLAYERS OPEN realistic|random\n", stderr);
        return 2;
    }
    return tallyhoop::run(arguments[1], std::strtoul(arguments[2], nullptr, 10),
                          std::strtoul(arguments[3], nullptr, 10), std::string_view{arguments[4]} == "random");
}
