// tests/pool/outlook/results_2000.cpp - the winners of 2000, and who foresaw them.
#include "pool/outlook/results_2000.h"

#include "pool/outlook/invented_pools.h"
#include "pool/sample_brackets.h"
#include "pool/scoring.h"

#include <algorithm>
#include <array>
#include <string>

namespace tallyhoop::test {

namespace {

/// The winners in the order of their positions, as numbers of the teams in the field: 17 is Michigan St., 37 Florida.
constexpr std::array<int, kGames> kWinners{1,  3,  5,  7,  9,  11, 14, 15, 3,  7,  9,  14, 3,  9,  3,  // West
                                           17, 19, 21, 23, 25, 27, 29, 31, 17, 23, 25, 31, 17, 31, 17, // Midwest
                                           33, 35, 37, 39, 42, 43, 46, 47, 33, 37, 43, 46, 37, 43, 37, // East
                                           49, 51, 53, 55, 57, 59, 61, 63, 51, 55, 57, 61, 51, 61, 51, // South
                                           17, 37, 17};

} // namespace

const std::vector<Position>& gamesOf2000()
{
    static const auto games = [] {
        std::vector<Position> all{gamePositions().begin(), gamePositions().end()};
        std::ranges::stable_sort(all, {}, [](Position game) { return roundAt(game); });
        return all;
    }();
    return games;
}

Bracket resultsOf2000(std::size_t played)
{
    Bracket results = startingField();
    for (std::size_t i = 0; i < played; ++i) {
        const Position game = gamesOf2000()[i];
        results.put(game, "Team " + std::to_string(kWinners.at(static_cast<std::size_t>(index(*gameOf(game))))));
    }
    return results;
}

const std::vector<Bracket>& picksOf2000()
{
    static const std::vector<Bracket> all = InventedPools{2010}.office(100);
    return all;
}

Contest contestOf2000(std::size_t played) { return {resultsOf2000(played), picksOf2000(), kUsualPayoffs}; }

std::vector<std::size_t> placesOf2000()
{
    std::vector<std::int32_t> points;
    for (const Bracket& bracket : picksOf2000())
        points.push_back(score(bracket, resultsOf2000(), kUsualPayoffs).points);
    std::vector<std::size_t> places;
    for (const std::int32_t own : points) {
        const auto ahead = std::ranges::count_if(points, [&](std::int32_t other) { return other > own; });
        places.push_back(static_cast<std::size_t>(ahead) + 1);
    }
    return places;
}

} // namespace tallyhoop::test
