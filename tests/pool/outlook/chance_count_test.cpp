// tests/pool/outlook/chance_count_test.cpp - chances against the sum over every outcome.
#include "pool/outlook/first_count.h"

#include "pool/outlook/close_chances.h"
#include "pool/outlook/invented_pools.h"
#include "pool/outlook/summed_chances.h"

#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

using test::InventedPools;

TEST(ChanceCount, AgreesWithTheSumOverEveryOutcome)
{
    InventedPools pools{77};
    for (int round = 0; round < 100; ++round) {
        const std::vector<Bracket> picks = pools.office(1 + pools.number(8));
        const Contest contest{pools.withOpenAnywhere(pools.picked(), pools.number(10)), picks, pools.payoffs()};
        const ChanceOutlook outlook = countChances(contest, test::someChance);
        const ChanceOutlook expected = test::summedChances(contest, test::someChance);
        for (std::size_t player = 0; player < picks.size(); ++player) {
            ASSERT_NO_FATAL_FAILURE(test::expectClose(outlook.players[player].all, expected.players[player].all));
            for (std::size_t game = 0; game < contest.games().size(); ++game) {
                ASSERT_NO_FATAL_FAILURE(test::expectClose(outlook.players[player].andUpperWins[game],
                                                          expected.players[player].andUpperWins[game]));
                ASSERT_NEAR(outlook.upperWins[game], expected.upperWins[game], 1e-6);
            }
        }
    }
}

TEST(ChanceCount, OfOneHalfForEveryGameIsThePlainCount)
{
    InventedPools pools{50};
    for (int round = 0; round < 30; ++round) {
        const Contest contest{pools.withOpen(pools.picked(), pools.number(12)), pools.office(1 + pools.number(12)),
                              pools.payoffs()};
        const FirstOutlook counted = countFirsts(contest);
        const ChanceOutlook outlook = countChances(contest, alikeChances());
        const auto outcomes = static_cast<double>(counted.outcomes);
        for (std::size_t player = 0; player < contest.players(); ++player) {
            const FirstPlaces& firsts = counted.players[player].all;
            // Halves of halves are exact; only thirds of a shared first place are rounded.
            ASSERT_EQ(outlook.players[player].all.alone * outcomes, static_cast<double>(firsts.alone));
            ASSERT_NEAR(outlook.players[player].all.share * outcomes, firsts.share(), 1e-9 * outcomes);
            for (std::size_t game = 0; game < contest.games().size(); ++game) {
                const FirstPlaces lower = counted.players[player].given(game, Side::Lower);
                ASSERT_NEAR(outlook.given(player, game, Side::Lower).share, lower.share() / (outcomes / 2), 1e-9);
            }
        }
    }
}

TEST(ChanceCount, OfAGameThatOneSideCannotLoseIsWhatTheResultMakesCertain)
{
    // Given: the final is open, and its lower side is sure to win.
    InventedPools pools{3};
    Bracket results = pools.tossed();
    results.copy(kSemifinalB, kChampion);
    const Bracket right = results;
    Bracket wrong = results;
    wrong.copy(kSemifinalA, kChampion);
    results.clear(kChampion);
    const Contest contest{results, std::vector<Bracket>{right, wrong}, test::kUsualPayoffs};
    const ChanceOutlook outlook = countChances(contest, [](std::size_t, TeamNumber, TeamNumber) { return 0.0; });
    EXPECT_EQ(outlook.players[0].all.share, 1);
    EXPECT_EQ(outlook.players[1].all.share, 0);
    // A side without a chance has nothing to tell.
    EXPECT_EQ(outlook.given(1, 0, Side::Upper), outlook.players[1].all);
}

} // namespace
} // namespace tallyhoop
