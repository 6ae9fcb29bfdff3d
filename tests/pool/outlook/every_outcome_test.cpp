// tests/pool/outlook/every_outcome_test.cpp - all that the outlook counts against every outcome scored, on odd pools.
#include "pool/outlook/brute_force.h"
#include "pool/outlook/first_count.h"
#include "pool/outlook/odd_pools.h"
#include "pool/outlook/prospects.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

using test::InventedPools;
using test::OddPool;

/// Which kinds of pools have come up.
struct Seen {
    std::array<int, 16> open{}; ///< by number of open games
    int nobody = 0;             ///< without players
    int one = 0;                ///< with one
    int threeTogether = 0;      ///< in which three players or more are first together
    int outOfOrder = 0;         ///< in which a game is open before one that is entered
    int payoffs = 0;            ///< whose points need more than 16 bits

    void add(const OddPool& pool, const Contest& contest, const FirstOutlook& outlook)
    {
        ++open.at(contest.games().size());
        nobody += pool.picks.empty();
        one += pool.picks.size() == 1;
        threeTogether += std::ranges::any_of(outlook.players, [](const PlayerFirsts& player) {
            return !player.all.shared.empty() && player.all.shared.back().together > 2;
        });
        outOfOrder += std::ranges::any_of(gamePositions(), [&](Position game) {
            return game != kChampion && pool.results.isEmpty(game) && !pool.results.isEmpty(*next(game));
        });
        payoffs += std::ranges::max(pool.payoffs) == 32767;
    }
};

void expectFirsts(const FirstOutlook& found, const FirstOutlook& expected)
{
    ASSERT_EQ(found.outcomes, expected.outcomes);
    ASSERT_EQ(found.players.size(), expected.players.size());
    for (std::size_t player = 0; player < found.players.size(); ++player) {
        ASSERT_EQ(found.players[player].all, expected.players[player].all) << "player " << player;
        ASSERT_EQ(found.players[player].ifUpperWins, expected.players[player].ifUpperWins) << "player " << player;
    }
    ASSERT_EQ(test::sumOfShares(found), found.players.empty() ? 0 : found.outcomes);
}

void expectVerdicts(const Contest& contest, const FirstOutlook& firsts, const std::vector<PlayerPlaces>& places)
{
    std::vector<PlayerProspect> prospects = findProspects(contest);
    addCount(prospects, firsts);
    addCount(prospects, places);
    for (std::size_t player = 0; player < prospects.size(); ++player) {
        const std::uint64_t first = firsts.players[player].all.outcomes();
        const Prospect right = first == firsts.outcomes ? Prospect::Clinched
                               : first > 0              ? Prospect::Alive
                                                        : Prospect::Out;
        ASSERT_EQ(prospects[player].prospect, right) << "player " << player;
        ASSERT_EQ(prospects[player].best.least, places[player].best());
        ASSERT_EQ(prospects[player].worst.most, places[player].worst());
    }
}

void expectSameAsScoring(const OddPool& pool, const Contest& contest, Seen& seen)
{
    const test::Counted expected = test::countByScoring(contest.games(), pool.picks, pool.payoffs);
    const FirstOutlook firsts = countFirsts(contest);
    ASSERT_NO_FATAL_FAILURE(expectFirsts(firsts, expected.firsts));
    ASSERT_EQ(countPlaces(contest), expected.places);
    ASSERT_NO_FATAL_FAILURE(expectVerdicts(contest, expected.firsts, expected.places));
    seen.add(pool, contest, firsts);
}

TEST(EveryOutcome, ScoredMakesTheSameFiguresOnHundredsOfOddPools)
{
    InventedPools pools{1516};
    Seen seen;
    for (int round = 0; round < 400; ++round) {
        const OddPool pool = test::oddPool(pools, pools.number(18), pools.number(8), round % 3 == 0);
        const Contest contest = pool.contest();
        if (contest.games().size() > 9)
            continue;
        ASSERT_NO_FATAL_FAILURE(expectSameAsScoring(pool, contest, seen)) << "round " << round;
    }
    for (std::size_t open = 0; open < 10; ++open)
        EXPECT_GE(seen.open.at(open), 15) << open << " open";
    for (const int kind : {seen.nobody, seen.one, seen.threeTogether, seen.outOfOrder, seen.payoffs})
        EXPECT_GE(kind, 30);
}

TEST(EveryOutcome, ScoredMakesTheSameFiguresWithUpToFifteenOpenGames)
{
    InventedPools pools{15};
    Seen seen;
    for (std::size_t open = 10; open <= 15; ++open)
        while (seen.open.at(open) < 2) {
            const OddPool pool = test::oddPool(pools, open + pools.number(20), 1 + pools.number(4), false);
            const Contest contest = pool.contest();
            if (contest.games().size() != open)
                continue;
            ASSERT_NO_FATAL_FAILURE(expectSameAsScoring(pool, contest, seen)) << open << " open";
        }
}

} // namespace
} // namespace tallyhoop
