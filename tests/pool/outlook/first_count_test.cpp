// tests/pool/outlook/first_count_test.cpp - the count against every outcome scored, on pools of every kind.
#include "pool/outlook/first_count.h"

#include "pool/outlook/brute_force.h"
#include "pool/outlook/invented_pools.h"
#include "pool/scoring.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

using test::InventedPools;

/// A witness may be any outcome in which the player is first.
void expectWitness(const PlayerFirsts& firsts, std::size_t player, const OpenGames& games,
                   const std::vector<Bracket>& picks, const Payoffs& payoffs)
{
    ASSERT_EQ(firsts.witness.has_value(), firsts.all.outcomes() > 0);
    if (!firsts.witness)
        return;
    ASSERT_LT(*firsts.witness, games.outcomes());
    const Bracket results = games.outcome(*firsts.witness);
    const std::int32_t own = score(picks[player], results, payoffs).points;
    for (const Bracket& other : picks)
        ASSERT_LE(score(other, results, payoffs).points, own);
}

void expectCountedRight(const Bracket& results, const std::vector<Bracket>& picks, const Payoffs& payoffs)
{
    const Contest contest{results, picks, payoffs};
    const FirstOutlook outlook = countFirsts(contest);
    const FirstOutlook expected = test::countByScoring(contest.games(), picks, payoffs).firsts;
    ASSERT_EQ(outlook.outcomes, expected.outcomes);
    ASSERT_EQ(outlook.players.size(), picks.size());
    for (std::size_t player = 0; player < picks.size(); ++player) {
        ASSERT_EQ(outlook.players[player].all, expected.players[player].all) << "player " << player;
        ASSERT_EQ(outlook.players[player].ifUpperWins, expected.players[player].ifUpperWins) << "player " << player;
        ASSERT_NO_FATAL_FAILURE(expectWitness(outlook.players[player], player, contest.games(), picks, payoffs));
    }
}

TEST(FirstCount, AgreesWithScoringOnPoolsAsOfficesPickThem)
{
    InventedPools pools{15};
    for (int round = 0; round < 150; ++round) {
        const std::vector<Bracket> picks = pools.office(pools.number(12));
        const Bracket results = pools.withOpen(pools.picked(), pools.number(9));
        ASSERT_NO_FATAL_FAILURE(expectCountedRight(results, picks, pools.payoffs())) << "round " << round;
    }
}

TEST(FirstCount, AgreesWithScoringWhereverTheOpenGamesAre)
{
    InventedPools pools{16};
    for (int round = 0; round < 150; ++round) {
        std::vector<Bracket> picks = pools.office(pools.number(8));
        for (Bracket& bracket : picks)
            if (pools.chance(30))
                bracket = pools.tossed();
        const Bracket results = pools.withOpenAnywhere(pools.tossed(), pools.number(11));
        ASSERT_NO_FATAL_FAILURE(expectCountedRight(results, picks, pools.payoffs())) << "round " << round;
    }
}

TEST(FirstCount, AgreesWithScoringOnDamagedBrackets)
{
    InventedPools pools{17};
    for (int round = 0; round < 150; ++round) {
        std::vector<Bracket> picks = pools.office(1 + pools.number(8));
        for (Bracket& bracket : picks)
            pools.damage(bracket, static_cast<unsigned>(pools.number(30)));
        Bracket results = pools.withOpenAnywhere(pools.picked(), pools.number(9));
        pools.damage(results, 5);
        if (OpenGames{results}.size() > 11)
            continue;
        ASSERT_NO_FATAL_FAILURE(expectCountedRight(results, picks, pools.payoffs())) << "round " << round;
    }
}

} // namespace
} // namespace tallyhoop
