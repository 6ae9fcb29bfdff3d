// tests/pool/outlook/place_count_test.cpp - the places against every outcome scored.
#include "pool/outlook/place_count.h"

#include "pool/outlook/brute_force.h"
#include "pool/outlook/invented_pools.h"
#include "pool/outlook/open_regions.h"

#include <gtest/gtest.h>
#include <numeric>

namespace tallyhoop {
namespace {

using test::InventedPools;

TEST(PlaceCount, AgreesWithScoringOnPoolsOfEveryKind)
{
    InventedPools pools{24};
    for (int round = 0; round < 120; ++round) {
        std::vector<Bracket> picks = pools.office(pools.number(10));
        if (round % 3 == 0)
            for (Bracket& bracket : picks)
                pools.damage(bracket, static_cast<unsigned>(pools.number(30)));
        const Bracket results = pools.withOpenAnywhere(pools.tossed(), pools.number(8));
        const Payoffs payoffs = pools.payoffs();
        const Contest contest{results, picks, payoffs};
        ASSERT_EQ(countPlaces(contest), test::countByScoring(contest.games(), picks, payoffs).places)
            << "round " << round;
    }
}

TEST(PlaceCount, TakesManySlicesAlsoWhenAllRegionWinnersAreKnown)
{
    // Given: two regions, of which the first is decided but for some late games, and the other but for its winner.
    InventedPools pools{28};
    const Bracket results = pools.picked();
    Bracket open = test::withOpenRegions(results, 2);
    for (std::size_t i = 0; i < 6; ++i)
        open.copy((*feeders(gamesOfRegion(0)[i]))[0], gamesOfRegion(0)[i]);
    const Contest contest{open, test::differingInRegions(pools, results, 2, 40), test::kUsualPayoffs};
    PlaceCount count{contest};
    EXPECT_EQ(count.fraction(), 0);
    double last = 0;
    while (!count.isDone()) {
        count.advance();
        EXPECT_GT(count.fraction(), last);
        EXPECT_LT(count.fraction() - last, 0.4);
        last = count.fraction();
    }
    EXPECT_EQ(last, 1);
    for (const PlayerPlaces& player : count.places())
        EXPECT_EQ(std::accumulate(player.outcomes.begin(), player.outcomes.end(), std::uint64_t{0}),
                  contest.games().outcomes());
}

TEST(PlaceCount, IsOfNoUseAfterItWasStoppedWhileItWasPrepared)
{
    InventedPools pools{29};
    const Bracket results = pools.picked();
    const Contest contest{test::withOpenRegions(results, 1), pools.office(4), test::kUsualPayoffs};
    int steps = 0;
    const PlaceCount whole{contest, [&] { return ++steps > 0; }};
    EXPECT_FALSE(whole.isDone());
    const int last = steps;
    EXPECT_GT(last, 20); // 2048 outcomes
    for (int stop = 1; stop <= last; ++stop) {
        steps = 0;
        EXPECT_TRUE((PlaceCount{contest, [&] { return ++steps < stop; }}.isDone())) << "stopped at step " << stop;
        EXPECT_LE(steps, stop + kRegions) << "went on long after the stop";
    }
}

TEST(PlaceCount, GivesPlayersWithTheSamePointsTheBetterPlace)
{
    // Given: the final is open; two players picked the one finalist, the third the other.
    InventedPools pools{1};
    const Bracket result = pools.tossed();
    Bracket other = result;
    other.copy(result.at(kChampion) == result.at(kSemifinalA) ? kSemifinalB : kSemifinalA, kChampion);
    Bracket open = result;
    open.clear(kChampion);
    const std::vector<PlayerPlaces> places =
        countPlaces({open, std::vector<Bracket>{result, result, other}, test::kUsualPayoffs});
    // Then: the two are first or second together, never third; the third is first once and third once.
    EXPECT_EQ(places[0].outcomes, (std::vector<std::uint64_t>{1, 1, 0}));
    EXPECT_EQ(places[1].outcomes, places[0].outcomes);
    EXPECT_EQ(places[2].outcomes, (std::vector<std::uint64_t>{1, 0, 1}));
    EXPECT_EQ(places[0].worst(), 2u);
    EXPECT_EQ(places[2].worst(), 3u);
    EXPECT_EQ(places[2].best(), 1u);
}

} // namespace
} // namespace tallyhoop
