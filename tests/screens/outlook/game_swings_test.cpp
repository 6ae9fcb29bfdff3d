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
    const std::vector<OpenGame> games = openGamesOf(contest.games(), pool.field);
    EXPECT_THAT(games, ElementsAre(OpenGame{kSemifinalA, "Team 1", "Team 17", true},
                                   OpenGame{kSemifinalB, "Team 35", "Team 49", true},
                                   OpenGame{kChampion, "Team 1 / Team 17", "Team 35 / Team 49", false}));
}

/// Nothing is played; the regions are those of a new field: West, Midwest, East and South.
OpenGame gameBeforeTheFirst(Position position)
{
    Field field = finalField();
    field.regionTitles = defaultField().regionTitles;
    const OpenGames games{startingBracket(field)};
    const std::vector<OpenGame> open = openGamesOf(games, field);
    return *std::ranges::find(open, position, &OpenGame::game);
}

TEST(GameSwings, NameTheTeamsWhereNoMoreThanTwoCanCome)
{
    EXPECT_EQ(gameBeforeTheFirst(Position{16}), (OpenGame{Position{16}, "Team 1", "Team 2", true}));
    EXPECT_EQ(gameBeforeTheFirst(Position{24}), (OpenGame{Position{24}, "Team 1 / Team 2", "Team 3 / Team 4", false}));
}

TEST(GameSwings, NameThePartOfTheBracketWhereMoreThanTwoCanCome)
{
    // A region has 16 rows, 8 winners of the first round, 4 of the second, then 2, then its winner.
    EXPECT_EQ(gameBeforeTheFirst(Position{28}),
              (OpenGame{Position{28}, "West 1st quarter", "West 2nd quarter", false, "West upper semi-final"}));
    EXPECT_EQ(
        gameBeforeTheFirst(Position{31 + 29}),
        (OpenGame{Position{60}, "Midwest 3rd quarter", "Midwest 4th quarter", false, "Midwest lower semi-final"}));
    EXPECT_EQ(gameBeforeTheFirst(regionWinner(3)),
              (OpenGame{regionWinner(3), "South upper half", "South lower half", false, "South final"}));
    EXPECT_EQ(gameBeforeTheFirst(kSemifinalB),
              (OpenGame{kSemifinalB, "East winner", "South winner", false, "Semi-final: East - South"}));
    EXPECT_EQ(gameBeforeTheFirst(kChampion),
              (OpenGame{kChampion, "West / Midwest winner", "East / South winner", false, "Final"}));
}

TEST(GameSwings, NameTheTeamsOfOneSideOnly)
{
    Pool pool = finalPool();
    pool.field.regionTitles = defaultField().regionTitles;
    Bracket results = cleared(cleared(pool.results->picks, kSemifinalA), kSemifinalB);
    pool.results->picks = cleared(cleared(results, regionWinner(0)), regionWinner(1));
    const std::vector<OpenGame> games = openGamesOf(Contest::of(pool)->games(), pool.field);
    ASSERT_THAT(games, SizeIs(5));
    EXPECT_EQ(games.back(), (OpenGame{kChampion, "West / Midwest winner", "Team 35 / Team 49", false, "Final"}));
}

/// Forgets so many of the right picks of a round.
void forget(Bracket& picks, int round, int games)
{
    for (const Position game : gamePositions())
        if (roundOf(game) == round && games-- > 0)
            picks.clear(game);
}

TEST(GameSwings, AreThoseOfTheExampleInTheHelp)
{
    // Before the semi-finals 128 points were to be had. A is Team 1, B Team 17, C Team 35, D Team 49.
    const Bracket results = cleared(cleared(beforeTheFinal(), kSemifinalA), kSemifinalB);
    Bracket ann =
        dropped(dropped(results, regionWinner(0), kChampion, "Team 1"), regionWinner(2), kSemifinalB, "Team 35");
    Bracket bob =
        dropped(dropped(results, regionWinner(1), kChampion, "Team 17"), regionWinner(2), kSemifinalB, "Team 35");
    forget(ann, 1, 32); // of 1 point
    forget(ann, 2, 8);  // of 2 points: 128 - 32 - 16 = 80
    forget(bob, 2, 14); // 128 - 28 = 100
    const Contest contest{results, std::vector<Bracket>{ann, bob}, {1, 2, 4, 8, 12, 16}};
    const ChanceOutlook chances = counted(contest);
    EXPECT_DOUBLE_EQ(chances.players.at(0).all.share, 0.25);
    EXPECT_THAT(swingsFor(0, chances), ElementsAre(DoubleEq(50), DoubleEq(0), DoubleEq(50)));
}

} // namespace
} // namespace tallyhoop::test
