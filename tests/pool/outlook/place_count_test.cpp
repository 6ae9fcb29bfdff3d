// tests/pool/outlook/place_count_test.cpp - the places against every outcome scored.
#include "pool/outlook/place_count.h"

#include "pool/outlook/brute_force.h"
#include "pool/outlook/invented_pools.h"

#include <gtest/gtest.h>

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
