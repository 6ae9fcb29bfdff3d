// tests/screens/outlook/game_swings_test.cpp - what a game means to one player and to all.
#include "screens/outlook/game_swings.h"

#include "pool/outlook/final_pool.h"
#include "pool/outlook/first_count.h"

#include <gmock/gmock.h>

namespace tallyhoop::test {
namespace {

using testing::DoubleEq;
using testing::ElementsAre;
using testing::SizeIs;

OutlookFigures counted(const Contest& contest)
{
    OutlookFigures figures;
    figures.source = ChanceSource::Counted;
    figures.chances = countChances(contest, alikeChances());
    return figures;
}

std::vector<OpenGame> openGames(const Contest& contest) { return openGamesOf(contest.games(), finalField()); }

TEST(GameSwings, SayWhomToRootFor)
{
    // Ann is first when Team 1 wins, which is the upper side; otherwise Bob and Cleo share first place.
    const OutlookFigures figures = counted(finalContest());
    EXPECT_THAT(swingsFor(0, figures), ElementsAre(DoubleEq(100)));
    EXPECT_THAT(swingsFor(1, figures), ElementsAre(DoubleEq(-50)));
    const std::vector<GameWeight> weights = weightsOf(figures, openGames(finalContest()));
    ASSERT_THAT(weights, SizeIs(1));
    EXPECT_DOUBLE_EQ(weights[0].swing, 200);
    EXPECT_EQ(weights[0].error, 0);
}

TEST(GameSwings, LeaveOutGamesThatDoNotMatter)
{
    // Everybody has picked both semi-finals alike, and only the final tells the players apart.
    Pool pool = finalPool();
    pool.results->picks = cleared(cleared(pool.results->picks, kSemifinalA), kSemifinalB);
    for (Entry& entry : pool.entries)
        entry.picks.copy(kSemifinalA, kChampion);
    const Contest contest = *Contest::of(pool);
    const OutlookFigures figures = counted(contest);
    EXPECT_THAT(swingsFor(0, figures), ElementsAre(DoubleEq(0), DoubleEq(0), DoubleEq(0)));
    EXPECT_THAT(weightsOf(figures, openGames(contest)), SizeIs(0));
}

/// A forecast of three players and one game, which each side wins in half of the samples.
OutlookFigures forecast(const std::vector<double>& ifUpperWins, const std::vector<double>& ifLowerWins,
                        const std::vector<double>& errors)
{
    OutlookFigures figures;
    figures.source = ChanceSource::Forecast;
    figures.chances.upperWins = {0.5};
    for (std::size_t player = 0; player < errors.size(); ++player) {
        PlayerChances chances;
        chances.all.share = (ifUpperWins[player] + ifLowerWins[player]) / 2;
        chances.andUpperWins = {{.share = ifUpperWins[player] / 2}};
        figures.chances.players.push_back(chances);
        figures.swingErrors.push_back({errors[player]});
    }
    return figures;
}

TEST(GameSwings, DoNotCountWithinTwoErrorsOfAForecast)
{
    // The swings are 0.5 - 0.375 = 12.5 points, 0.25 - 0.3125 = -6.25 and 0.25 - 0.3125 = -6.25; two errors are 6, 6.3
    // and 6.25.
    const OutlookFigures figures = forecast({0.5, 0.25, 0.25}, {0.375, 0.3125, 0.3125}, {0.03, 0.0315, 0.03125});
    EXPECT_THAT(swingsFor(0, figures), ElementsAre(DoubleEq(12.5)));
    EXPECT_THAT(swingsFor(1, figures), ElementsAre(DoubleEq(0)));
    EXPECT_THAT(swingsFor(2, figures), ElementsAre(DoubleEq(-6.25)));
}

TEST(GameSwings, AddUpWithoutWhatIsOnlyNoise)
{
    const std::vector<OpenGame> games{{kChampion, "Team 1", "Team 35", true}};
    const std::vector<GameWeight> weights =
        weightsOf(forecast({0.5, 0.25, 0.25}, {0.375, 0.3125, 0.3125}, {0.03, 0.0315, 0.03125}), games);
    ASSERT_THAT(weights, SizeIs(1));
    EXPECT_DOUBLE_EQ(weights[0].swing, 12.5 + 6.25);
    EXPECT_DOUBLE_EQ(weights[0].error, 3 + 3.125) << "of two players who want different sides";
    EXPECT_THAT(weightsOf(forecast({0.5, 0.25, 0.25}, {0.375, 0.3125, 0.3125}, {0.07, 0.04, 0.04}), games), SizeIs(0));
}

TEST(GameSwings, HaveAnErrorThatGrowsSlowlyWithThePlayersOfASide)
{
    // Two want the upper side, with errors of 3 and 4 points: 5 together. One wants the lower side, with an error of 2.
    const std::vector<OpenGame> games{{kChampion, "Team 1", "Team 35", true}};
    const std::vector<GameWeight> weights =
        weightsOf(forecast({0.5, 0.5, 0}, {0.25, 0.25, 0.5}, {0.03, 0.04, 0.02}), games);
    ASSERT_THAT(weights, SizeIs(1));
    EXPECT_DOUBLE_EQ(weights[0].swing, 25 + 25 + 50);
    EXPECT_DOUBLE_EQ(weights[0].error, 5 + 2);
}

TEST(GameSwings, AreListedFromTheNextGamesOnAndThenByWhatTheyMean)
{
    // One player with a share of 0.5. The upper side of each game wins in half of the outcomes, and the share that is
    // in them, x, makes a swing of 2x - 2(0.5 - x) = 4x - 1: 0.25, 1, 0.5, 0.5 and 0.
    OutlookFigures figures;
    figures.source = ChanceSource::Counted;
    figures.chances.upperWins = {0.5, 0.5, 0.5, 0.5, 0.5};
    PlayerChances chances;
    chances.all.share = 0.5;
    for (const double share : {0.3125, 0.5, 0.375, 0.375, 0.25})
        chances.andUpperWins.push_back({.share = share});
    figures.chances.players = {chances};
    const OpenGame later{kChampion, "A", "B", false};
    const OpenGame next{kSemifinalA, "A", "B", true};
    std::vector<std::size_t> order;
    for (const GameWeight& weight : weightsOf(figures, std::vector{next, later, next, next, next}))
        order.push_back(weight.openGame);
    EXPECT_THAT(order, ElementsAre(2, 3, 0, 1)) << "game 1 matters most, but is played later; game 4 does not matter";
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
    const OutlookFigures figures = counted(contest);
    EXPECT_DOUBLE_EQ(figures.chances.players.at(0).all.share, 0.25);
    EXPECT_THAT(swingsFor(0, figures), ElementsAre(DoubleEq(50), DoubleEq(0), DoubleEq(50)));
}

} // namespace
} // namespace tallyhoop::test
