// tests/screens/outlook/game_swings_test.cpp - what a game means to one player and to all.
#include "screens/outlook/game_swings.h"

#include "pool/outlook/first_count.h"
#include "screens/outlook/final_pool.h"

#include <gmock/gmock.h>

namespace tallyhoop::test {
namespace {

using testing::DoubleEq;
using testing::ElementsAre;
using testing::SizeIs;

ChanceOutlook counted(const Contest& contest) { return countChances(contest, alikeChances()); }

TEST(GameSwings, SayWhomToRootFor)
{
    // Ann is first when Team 1 wins, which is the upper side; otherwise Bob and Cleo share first place.
    const ChanceOutlook chances = counted(finalContest());
    EXPECT_THAT(swingsFor(0, chances), ElementsAre(DoubleEq(100)));
    EXPECT_THAT(swingsFor(1, chances), ElementsAre(DoubleEq(-50)));
    const std::vector<GameWeight> weights = weightsOf(chances);
    ASSERT_THAT(weights, SizeIs(1));
    EXPECT_DOUBLE_EQ(weights[0].swing, 200);
}

TEST(GameSwings, LeaveOutGamesThatDoNotMatter)
{
    // Everybody has picked both semi-finals alike, and only the final tells the players apart.
    Pool pool = finalPool();
    pool.results->picks = cleared(cleared(pool.results->picks, kSemifinalA), kSemifinalB);
    for (Entry& entry : pool.entries)
        entry.picks.copy(kSemifinalA, kChampion);
    const ChanceOutlook chances = counted(*Contest::of(pool));
    EXPECT_THAT(swingsFor(0, chances), ElementsAre(DoubleEq(0), DoubleEq(0), DoubleEq(0)));
    EXPECT_THAT(weightsOf(chances), SizeIs(0));
}

TEST(GameSwings, NameTheTwoSides)
{
    Pool pool = finalPool();
    pool.results->picks = cleared(cleared(pool.results->picks, kSemifinalA), kSemifinalB);
    const Contest contest = *Contest::of(pool);
    const std::vector<OpenGame> games = openGamesOf(contest.games());
    EXPECT_THAT(games, ElementsAre(OpenGame{kSemifinalA, "Team 1", "Team 17", true},
                                   OpenGame{kSemifinalB, "Team 35", "Team 49", true},
                                   OpenGame{kChampion, "Team 1 / Team 17", "Team 35 / Team 49", false}));
}

TEST(GameSwings, NameNobodyWhereMoreThanTwoCanCome)
{
    Pool pool = finalPool();
    Bracket results = cleared(cleared(pool.results->picks, kSemifinalA), kSemifinalB);
    pool.results->picks = cleared(cleared(results, regionWinner(0)), regionWinner(1));
    const std::vector<OpenGame> games = openGamesOf(Contest::of(pool)->games());
    ASSERT_THAT(games, SizeIs(5));
    EXPECT_EQ(games.back(), (OpenGame{kChampion, "", "Team 35 / Team 49", false}));
}

} // namespace
} // namespace tallyhoop::test
