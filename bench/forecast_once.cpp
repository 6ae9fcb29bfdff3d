// bench/forecast_once.cpp - one forecast of an invented pool, for bench/outlook.py: how long it takes, how large its
// errors are.
#include "pool/outlook/first_count.h"
#include "pool/outlook/forecast.h"
#include "pool/outlook/invented_pools.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fmt/format.h>
#include <string_view>

namespace tallyhoop {
namespace {

/// The sum of the squares of all players' standard errors if so many whole outcomes were sampled.
double plainSquares(const ChanceOutlook& forecast, double samples)
{
    // A player who shares first place nearly always shares it with one other.
    double sum = 0;
    for (const PlayerChances& player : forecast.players)
        sum += player.all.alone + player.all.together / 4 - std::pow(player.all.share, 2);
    return sum / samples;
}

double squares(const Forecast& forecast, std::size_t players)
{
    double sum = 0;
    for (std::size_t player = 0; player < players; ++player)
        sum += std::pow(forecast.standardError(player), 2);
    return sum;
}

/// The largest difference of a share from the exact one; 0 when there are too many outcomes to count.
double largestError(const Contest& contest, const ChanceOutlook& forecast)
{
    if (contest.games().size() > kMostCountedGames)
        return 0;
    const FirstOutlook exact = countFirsts(contest);
    double largest = 0;
    for (std::size_t player = 0; player < contest.players(); ++player) {
        const double share = exact.players[player].all.share() / static_cast<double>(exact.outcomes);
        largest = std::max(largest, std::abs(forecast.players[player].all.share - share));
    }
    return largest;
}

int run(std::size_t players, std::size_t open, bool isRandom)
{
    test::InventedPools pools{7};
    const Bracket results = pools.withOpen(pools.picked(), open);
    std::vector<Bracket> picks = pools.office(players);
    if (isRandom)
        std::ranges::generate(picks, [&] { return pools.tossed(); });
    const Contest contest{results, picks, test::kUsualPayoffs};

    const std::clock_t begin = std::clock();
    Forecast forecast{contest, alikeChances()};
    forecast.add(kForecastSamples);
    const ChanceOutlook outlook = forecast.outlook();
    const double seconds = static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
    const auto samples = static_cast<double>(forecast.samples());
    const double plain = plainSquares(outlook, samples);
    fmt::print("{:.6f} {:.6f} {:.6f}\n", seconds, std::sqrt(squares(forecast, players) / plain),
               largestError(contest, outlook));
    return 0;
}

} // namespace
} // namespace tallyhoop

/// Arguments: players; open games; realistic or random.
/// Prints seconds of the processor for 200,000 samples; the standard errors, against those if whole outcomes were
/// sampled; the largest difference of a share from the exact one, 0 with more than 31 open games.
int main(int count, char** arguments)
{
    if (count != 4) {
        std::fputs("forecast_once PLAYERS OPEN realistic|random\n", stderr);
        return 2;
    }
    return tallyhoop::run(std::strtoul(arguments[1], nullptr, 10), std::strtoul(arguments[2], nullptr, 10),
                          std::string_view{arguments[3]} == "random");
}
