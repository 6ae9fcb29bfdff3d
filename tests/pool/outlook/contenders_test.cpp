// tests/pool/outlook/contenders_test.cpp - who can still catch up, against every outcome; and which games are the last.
#include "pool/outlook/contenders.h"

#include "pool/outlook/invented_pools.h"
#include "pool/sample_brackets.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

using test::InventedPools;

/// @returns the players who have as many points as the present leader in some outcome
std::vector<std::size_t> catchingUp(const Contest& contest)
{
    const PointsRow now = decidedPoints(contest);
    const auto leader = static_cast<std::size_t>(std::ranges::max_element(now) - now.begin());
    std::vector<std::size_t> players;
    for (std::size_t player = 0; player < contest.players(); ++player) {
        bool catchesUp = false;
        for (OutcomeNumber outcome = 0; outcome < contest.games().outcomes(); ++outcome) {
            const ByPosition<TeamNumber> teams = contest.games().outcomeNumbers(outcome);
            catchesUp = catchesUp || contest.points(player, teams) >= contest.points(leader, teams);
        }
        if (catchesUp)
            players.push_back(player);
    }
    return players;
}

TEST(Contenders, AreThoseWhoCatchUpWithTheLeaderInSomeOutcome)
{
    InventedPools pools{21};
    std::size_t dropped = 0;
    for (int round = 0; round < 200; ++round) {
        std::vector<Bracket> picks = pools.office(1 + pools.number(12));
        for (Bracket& bracket : picks)
            pools.damage(bracket, static_cast<unsigned>(pools.number(10)));
        Bracket results = pools.withOpenAnywhere(pools.picked(), pools.number(7));
        pools.damage(results, 2);
        const Contest contest{results, picks, pools.payoffs()};
        if (contest.games().size() > 8)
            continue;
        const std::vector<PlannedGame> games = plannedGames(contest, alikeChances());
        Contenders contenders{games, contest.players()};
        for (int again = 0; again < 2; ++again) // nothing is left over from the sample before
            contenders.find(decidedPoints(contest), {});
        ASSERT_EQ(contenders.players(), catchingUp(contest)) << "round " << round;
        dropped += contest.players() - contenders.players().size();
    }
    EXPECT_GT(dropped, 100U);
}

/// Of the third and the fourth region nobody is known, so who wins the first semi-final is champion without a game.
Bracket championByWalkover()
{
    Bracket results = test::everyUpperTeamWins();
    for (const Position position : allPositions())
        if (regionOf(position) == 2 || regionOf(position) == 3)
            results.clear(position);
    for (const Position position : {kSemifinalA, kSemifinalB, kChampion})
        results.clear(position);
    return results;
}

TEST(Contenders, CatchUpByAWalkover)
{
    // Given: the second player is 3 points behind, and gets 1 for the semi-final and 5 for the walkover after it.
    Bracket leader = test::everyUpperTeamWins();
    Bracket other = leader;
    other.clear(*next(firstRoundPosition(0, 0)));
    other.put(kSemifinalA, "Team 17");
    other.put(kChampion, "Team 17");
    const Contest contest{championByWalkover(), std::vector<Bracket>{leader, other}, {3, 0, 0, 0, 1, 5}};
    const std::vector<PlannedGame> games = plannedGames(contest, alikeChances());
    Contenders contenders{games, 2};
    contenders.find(decidedPoints(contest), {});
    EXPECT_EQ(contenders.players(), (std::vector<std::size_t>{0, 1}));
}

TEST(Staged, TakesTheLatestRoundsForTheLastGames)
{
    const Contest contest{test::startingField(), {}, {}};
    const Stages stages = staged(plannedGames(contest, alikeChances()), 7);
    ASSERT_EQ(stages.early.size(), 56U);
    std::vector<Position> last;
    for (const PlannedGame& game : stages.last)
        last.push_back(game.position);
    EXPECT_EQ(last, (std::vector<Position>{regionWinner(0), regionWinner(1), regionWinner(2), regionWinner(3),
                                           kSemifinalA, kSemifinalB, kChampion}));
}

TEST(Staged, TakesNoMoreOpenGamesThanAskedFor)
{
    const Contest contest{test::startingField(), {}, {}};
    EXPECT_EQ(staged(plannedGames(contest, alikeChances()), 0).last.size(), 0U);
    EXPECT_EQ(staged(plannedGames(contest, alikeChances()), 2).last.size(), 2U);
    EXPECT_EQ(staged(plannedGames(contest, alikeChances()), 63).early.size(), 0U);
}

TEST(Staged, PutsAWalkoverAfterTheGameThatItWaitsFor)
{
    const Contest contest{championByWalkover(), {}, {}};
    ASSERT_EQ(contest.games().games(), std::vector<Position>{kSemifinalA});
    const Stages stages = staged(plannedGames(contest, alikeChances()), 1);
    ASSERT_EQ(stages.last.size(), 2U);
    EXPECT_EQ(stages.last[1].position, kChampion);
    EXPECT_FALSE(stages.last[1].openGame.has_value());
    EXPECT_EQ(stages.last[1].walkover, Side::Upper);
    EXPECT_EQ(staged(plannedGames(contest, alikeChances()), 0).early.size(), 2U);
}

} // namespace
} // namespace tallyhoop
