// bench/replay_once.cpp - the tournament of 2000 game by game, for bench/outlook.py: the chance of the one who won the
// pool in the end, and what was certain about the others.
#include "pool/outlook/first_count.h"
#include "pool/outlook/forecast.h"
#include "pool/outlook/prospects.h"
#include "pool/outlook/results_2000.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fmt/format.h>

namespace tallyhoop {
namespace {

struct Share {
    double share = 0;
    double error = 0; ///< standard error; 0 = counted
};

/// How exact it is to be.
struct Effort {
    std::size_t countedGames = 0; ///< where more games are open, forecast
    std::uint64_t samples = 0;
};

Share shareOf(std::size_t player, const Contest& contest, const Effort& effort)
{
    if (contest.games().size() <= effort.countedGames)
        return {countChances(contest, alikeChances()).players[player].all.share, 0};
    Forecast forecast{contest, alikeChances()};
    forecast.add(effort.samples);
    return {forecast.outlook().players[player].all.share, forecast.standardError(player)};
}

void replay(std::size_t played, std::size_t winner, const Effort& effort)
{
    const Contest contest = test::contestOf2000(played);
    const std::vector<PlayerProspect> prospects = findProspects(contest);
    const auto count = [&](Prospect prospect) {
        return std::ranges::count(prospects, prospect, &PlayerProspect::prospect);
    };
    const std::clock_t begin = std::clock();
    const Share found = shareOf(winner, contest, effort);
    const double seconds = static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
    const int round = played == 0 ? 0 : roundOf(test::gamesOf2000()[played - 1]);
    fmt::print("{} {} {:.6f} {:.6f} {} {} {} {:.6f}\n", round, contest.games().size(), found.share, found.error,
               count(Prospect::Alive), count(Prospect::Out), count(Prospect::Open), seconds);
}

} // namespace
} // namespace tallyhoop

/// Arguments: the most open games that are counted; samples of a forecast where more are open.
/// Prints for each number of games played: the latest round, open games, the winner's share of first place with all
/// outcomes alike and its standard error, the players proven alive, proven out and neither without counting, and the
/// seconds of the processor for the share.
int main(int count, char** arguments)
{
    if (count != 3) {
        std::fputs("replay_once COUNTED_GAMES SAMPLES\n", stderr);
        return 2;
    }
    using namespace tallyhoop;
    const Effort effort{std::strtoul(arguments[1], nullptr, 10), std::strtoul(arguments[2], nullptr, 10)};
    const std::vector<std::size_t> places = test::placesOf2000();
    const auto winner = static_cast<std::size_t>(std::ranges::min_element(places) - places.begin());
    for (std::size_t played = 0; played <= kGames; ++played)
        replay(played, winner, effort);
    return 0;
}
