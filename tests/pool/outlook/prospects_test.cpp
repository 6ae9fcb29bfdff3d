// tests/pool/outlook/prospects_test.cpp - clinched, alive, out, and the limits of places: by hand, and against scoring.
#include "pool/outlook/prospects.h"

#include "pool/outlook/brute_force.h"
#include "pool/outlook/first_count.h"
#include "pool/outlook/invented_pools.h"
#include "pool/sample_brackets.h"
#include "pool/scoring.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

using test::InventedPools;

/// Everything is played but the final, Team 1 against Team 33.
Bracket finalOpen() { return test::without(test::everyUpperTeamWins(), 126, 126); }

/// All picks right so far, but the first `wrong` of the first round, which bring 1 point each; and a champion.
Bracket pick(int wrong, const char* champion)
{
    Bracket picks = test::everyUpperTeamWins();
    for (int i = 0; i < wrong; ++i)
        picks.clear(Position{16 + i});
    picks.clear(kChampion);
    picks.put(kChampion, champion);
    return picks;
}

TEST(Prospects, AreOutWhenTheSamePickBringsTheLeaderAsMuch)
{
    // Given: one is 2 points behind with 16 still possible, far more than the leader has now; both pick Team 1.
    const std::vector<Bracket> picks{pick(0, "Team 1"), pick(2, "Team 1")};
    const Score leader = score(picks[0], finalOpen(), test::kUsualPayoffs);
    const Score behind = score(picks[1], finalOpen(), test::kUsualPayoffs);
    ASSERT_GT(behind.points + behind.possible, leader.points);
    const Contest contest{finalOpen(), picks, test::kUsualPayoffs};
    EXPECT_EQ(countFirsts(contest).players[1].all, FirstPlaces{});
    const auto prospects = findProspects(contest);
    EXPECT_EQ(prospects[1].prospect, Prospect::Out);
    EXPECT_EQ(prospects[1].rival, 0u);
    EXPECT_EQ(prospects[0].prospect, Prospect::Clinched);
    EXPECT_EQ(prospects[1].best, (PlaceBetween{2, 2}));
}

TEST(Prospects, AreAliveThoughAnothersHighestScoreIsHigher)
{
    // Given: one is 3 points behind and hopes for Team 33, the leader for Team 1: at most 3 less than the leader's
    // most.
    const std::vector<Bracket> picks{pick(0, "Team 1"), pick(3, "Team 33")};
    const Score leader = score(picks[0], finalOpen(), test::kUsualPayoffs);
    const Score behind = score(picks[1], finalOpen(), test::kUsualPayoffs);
    ASSERT_LT(behind.points + behind.possible, leader.points + leader.possible);
    const Contest contest{finalOpen(), picks, test::kUsualPayoffs};
    EXPECT_EQ(countFirsts(contest).players[1].all, (FirstPlaces{1, {}}));
    const auto prospects = findProspects(contest);
    EXPECT_EQ(prospects[1].prospect, Prospect::Alive);
    EXPECT_EQ(prospects[0].prospect, Prospect::Alive);
    // Then: the witness is the outcome in which the lower side wins.
    EXPECT_EQ(prospects[1].witness, OutcomeNumber{1});
    EXPECT_EQ(prospects[1].best, (PlaceBetween{1, 1}));
    EXPECT_EQ(prospects[1].worst, (PlaceBetween{2, 2}));
}

TEST(Prospects, AreOpenUntilCountedWhereNoSingleRivalIsAlwaysAhead)
{
    // Given: one has picked nobody, two are a point behind him and one of them gets 16 more whoever wins.
    const std::vector<Bracket> picks{pick(0, ""), pick(1, "Team 1"), pick(1, "Team 33")};
    const Contest contest{finalOpen(), picks, test::kUsualPayoffs};
    auto prospects = findProspects(contest);
    EXPECT_EQ(prospects[0].prospect, Prospect::Open);
    EXPECT_EQ(prospects[0].rival, std::nullopt);
    EXPECT_EQ(prospects[0].best, (PlaceBetween{1, 2}));
    addCount(prospects, countFirsts(contest));
    EXPECT_EQ(prospects[0].prospect, Prospect::Out);
    EXPECT_EQ(prospects[0].rival, std::nullopt);
    EXPECT_EQ(prospects[0].best, (PlaceBetween{2, 2}));
}

TEST(Prospects, AreClinchedAlsoTogether)
{
    const std::vector<Bracket> picks{pick(0, "Team 1"), pick(0, "Team 1"), pick(1, "Team 1")};
    const auto prospects = findProspects({finalOpen(), picks, test::kUsualPayoffs});
    EXPECT_EQ(prospects[0].prospect, Prospect::Clinched);
    EXPECT_EQ(prospects[1].prospect, Prospect::Clinched);
    EXPECT_EQ(prospects[0].worst, (PlaceBetween{1, 1}));
    EXPECT_EQ(prospects[2].best, (PlaceBetween{3, 3})) << "two are always ahead";
}

TEST(Prospects, OfOnePlayerAreClinchedFromTheFirstDay)
{
    const std::vector<Bracket> picks{pick(9, "")};
    const auto prospects = findProspects({test::startingField(), picks, test::kUsualPayoffs});
    EXPECT_EQ(prospects[0].prospect, Prospect::Clinched);
    EXPECT_TRUE(findProspects({test::startingField(), {}, test::kUsualPayoffs}).empty());
}

TEST(Prospects, StayOpenAfterAStop)
{
    const std::vector<Bracket> picks{pick(0, "Team 1"), pick(2, "Team 1")};
    const auto prospects = findProspects({finalOpen(), picks, test::kUsualPayoffs}, [] { return false; });
    EXPECT_EQ(prospects[1].prospect, Prospect::Open);
    EXPECT_EQ(prospects[1].best, (PlaceBetween{1, 2}));
    EXPECT_EQ(prospects[1].worst, (PlaceBetween{1, 2}));
}

Prospect prospectOf(const FirstPlaces& firsts, std::uint64_t outcomes)
{
    const std::uint64_t first = firsts.outcomes();
    return first == outcomes ? Prospect::Clinched : first > 0 ? Prospect::Alive : Prospect::Out;
}

/// Nothing that is claimed is wrong; and what is found without counting is nearly all there is to find.
TEST(Prospects, AgreeWithScoringOnPoolsOfEveryKind)
{
    InventedPools pools{40};
    int open = 0;
    int all = 0;
    for (int round = 0; round < 200; ++round) {
        std::vector<Bracket> picks = pools.office(1 + pools.number(9));
        if (round % 4 == 0)
            for (Bracket& bracket : picks)
                pools.damage(bracket, 20);
        const Payoffs payoffs = pools.payoffs();
        const Contest contest{pools.withOpenAnywhere(pools.picked(), pools.number(9)), picks, payoffs};
        const test::Counted counted = test::countByScoring(contest.games(), picks, payoffs);
        auto prospects = findProspects(contest);
        for (std::size_t player = 0; player < picks.size(); ++player) {
            const PlayerProspect& found = prospects[player];
            const Prospect right = prospectOf(counted.firsts.players[player].all, counted.firsts.outcomes);
            ASSERT_TRUE(found.prospect == right || (found.prospect == Prospect::Open && right != Prospect::Clinched));
            open += found.prospect == Prospect::Open && right == Prospect::Alive;
            all += right == Prospect::Alive;
            ASSERT_LE(found.best.least, counted.places[player].best());
            ASSERT_GE(found.best.most, counted.places[player].best());
            ASSERT_LE(found.worst.least, counted.places[player].worst());
            ASSERT_GE(found.worst.most, counted.places[player].worst());
            if (found.witness) {
                const Bracket results = contest.games().outcome(*found.witness);
                for (const Bracket& other : picks)
                    ASSERT_LE(score(other, results, payoffs).points, score(picks[player], results, payoffs).points);
            }
            if (found.rival)
                for (OutcomeNumber outcome = 0; outcome < counted.firsts.outcomes; ++outcome) {
                    const Bracket results = contest.games().outcome(outcome);
                    ASSERT_GT(score(picks[*found.rival], results, payoffs).points,
                              score(picks[player], results, payoffs).points);
                }
        }
        addCount(prospects, countFirsts(contest));
        addCount(prospects, countPlaces(contest));
        for (std::size_t player = 0; player < picks.size(); ++player) {
            ASSERT_EQ(prospects[player].prospect,
                      prospectOf(counted.firsts.players[player].all, counted.firsts.outcomes));
            ASSERT_TRUE(prospects[player].best.isExact() && prospects[player].worst.isExact());
        }
    }
    EXPECT_LT(open * 50, all) << "the search has missed " << open << " of " << all;
}

} // namespace
} // namespace tallyhoop
