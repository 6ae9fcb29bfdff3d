// tests/pool/outlook/road_test.cpp - what was known after each round, and the chances then, worked out by hand.
#include "pool/outlook/road.h"

#include "pool/outlook/invented_pools.h"
#include "pool/sample_brackets.h"

#include <gtest/gtest.h>
#include <new>

namespace tallyhoop {
namespace {

using test::kUsualPayoffs;

UpperChance alike(const Contest&) { return alikeChances(); }

std::vector<RoadPoint> pointsOf(Road road)
{
    while (!road.isDone())
        road.advance();
    return road.points();
}

/// The upper teams win up to the final, which the lower team of its two wins: Team 33.
Bracket wonByTeam33()
{
    Bracket results = test::everyUpperTeamWins();
    results.put(kChampion, "Team 33");
    return results;
}

/// Both pick all upper teams; the second has no pick for the first game and Team 33 for the final, so that he is a
/// point behind once the upper team has won the first game, and 16 points better when Team 33 is champion.
std::vector<Bracket> leaderAndChaser()
{
    Bracket chaser = wonByTeam33();
    chaser.clear(Position{16});
    return {test::everyUpperTeamWins(), chaser};
}

TEST(RoadStages, AreOnlyNowBeforeTheFirstGame)
{
    const auto stages = roadStages(test::startingField());
    EXPECT_EQ(stages, (std::vector<RoadStage>{{0, true, test::startingField()}}));
}

TEST(RoadStages, ReachFromTheStartOverEachRoundToNow)
{
    const Bracket all = test::everyUpperTeamWins();
    const Bracket roundFourBegun = test::without(test::without(all, 30, 30), 124, 126);
    const auto stages = roadStages(roundFourBegun);
    ASSERT_EQ(stages.size(), 5u) << "the start, three rounds, and now in the fourth";
    EXPECT_EQ(stages[0], (RoadStage{0, false, test::startingField()}));
    for (std::size_t round = 1; round < 4; ++round) {
        EXPECT_EQ(stages[round].round, static_cast<int>(round));
        EXPECT_FALSE(stages[round].isNow);
        EXPECT_EQ(stages[round].results.at(Position{16}), "Team 1");
        EXPECT_EQ(stages[round].results.isEmpty(Position{24}), round < 2);
        EXPECT_EQ(stages[round].results.isEmpty(Position{28}), round < 3);
        EXPECT_TRUE(stages[round].results.isEmpty(regionWinner(1)));
    }
    EXPECT_EQ(stages[4], (RoadStage{4, true, roundFourBegun}));
}

TEST(RoadStages, LeaveAGameOpenThatIsMissingInItsRound)
{
    // Given: all games but the second, which Team 3 or Team 4 can have won.
    const auto stages = roadStages(test::without(test::everyUpperTeamWins(), 17, 17));
    ASSERT_EQ(stages.size(), 7u);
    for (const RoadStage& stage : stages)
        EXPECT_TRUE(stage.results.isEmpty(Position{17}));
    EXPECT_EQ(OpenGames{stages[1].results}.size(), 32u) << "that one and the 31 of later rounds";
    EXPECT_EQ(OpenGames{stages[6].results}.size(), 1u);
}

TEST(RoadStages, CountAMissingGameWhoseWinnerHasWonALaterOne)
{
    // Given: only the winner of a game of the second round.
    Bracket results = test::startingField();
    results.put(Position{24}, "Team 2");
    const auto stages = roadStages(results);
    ASSERT_EQ(stages.size(), 3u);
    EXPECT_EQ(stages[0].results, test::startingField());
    EXPECT_EQ(stages[1].results.at(Position{16}), "Team 2");
    EXPECT_TRUE(stages[1].results.isEmpty(Position{24})) << "the second round comes after the first";
    EXPECT_EQ(stages[2], (RoadStage{2, true, results}));
}

TEST(Road, LeadsOverTheChancesAfterEachRound)
{
    const RoadLimits limits{.countedGames = 15, .samples = 100};
    const auto points = pointsOf({wonByTeam33(), leaderAndChaser(), kUsualPayoffs, alike, limits});
    ASSERT_EQ(points.size(), 7u);
    // The second is first when Team 33 is champion, which needs 4, 3, 2, 1 and 0 more wins after rounds 2 to 6.
    const std::vector<std::pair<std::size_t, double>> expected{
        {15, 1.0 / 16}, {7, 1.0 / 8}, {3, 1.0 / 4}, {1, 1.0 / 2}, {0, 1.0}};
    for (std::size_t round = 2; round <= 6; ++round) {
        const auto& [openGames, chance] = expected[round - 2];
        const RoadPoint& point = points[round];
        EXPECT_EQ(point.round, static_cast<int>(round));
        EXPECT_EQ(point.isNow, round == 6);
        EXPECT_EQ(point.openGames, openGames);
        EXPECT_EQ(point.samples, 0u) << "counted";
        EXPECT_EQ(point.errors, (std::vector<double>{0, 0}));
        EXPECT_EQ(point.chances[0], (FirstChances{1 - chance, 0, 1 - chance})) << "after round " << round;
        EXPECT_EQ(point.chances[1], (FirstChances{chance, 0, chance})) << "after round " << round;
    }
    EXPECT_EQ(points[1].openGames, 31u);
    EXPECT_EQ(points[1].samples, 100u) << "31 are more than 15";
}

TEST(Road, IsAForecastWhereTooManyGamesAreOpen)
{
    const auto points = pointsOf(
        {wonByTeam33(), leaderAndChaser(), kUsualPayoffs, alike, {.countedGames = 3, .samples = 3000, .seed = 7}});
    ASSERT_EQ(points.size(), 7u);
    // Before the first game Team 33 needs 6 wins, 1/64. Otherwise Team 1 loses its first game as often as it wins it,
    // and then the two are first together: 1/64 + 63/64 / 2 / 2.
    const std::vector<double> expected{67.0 / 256, 1.0 / 32, 1.0 / 16};
    for (std::size_t round = 0; round < 3; ++round) {
        EXPECT_EQ(points[round].samples, 3000u);
        EXPECT_GT(points[round].errors[1], 0);
        EXPECT_LT(points[round].errors[1], 0.01) << "as the half of 3000 samples has";
        EXPECT_NEAR(points[round].chances[1].share, expected[round], 4 * points[round].errors[1]);
    }
    EXPECT_EQ(points[0].openGames, 63u);
    EXPECT_NEAR(points[0].chances[1].together, 63.0 / 128, 0.04);
    // With 7 open games a forecast leaves nothing to chance.
    EXPECT_EQ(points[3].samples, 0u);
    EXPECT_EQ(points[3].errors, (std::vector<double>{0, 0}));
    EXPECT_EQ(points[3].chances[1].share, 1.0 / 8);
}

TEST(Road, TakesTheChancesItIsGiven)
{
    // Given: the upper team always wins, so that before the final Team 33 has no chance.
    const auto upperWins = [](const Contest&) -> UpperChance {
        return [](std::size_t, TeamNumber, TeamNumber) { return 1.0; };
    };
    const auto points =
        pointsOf({wonByTeam33(), leaderAndChaser(), kUsualPayoffs, upperWins, {.countedGames = 15, .samples = 100}});
    for (std::size_t round = 0; round < 6; ++round)
        EXPECT_EQ(points[round].chances[0].share, 1) << "after round " << round;
    EXPECT_EQ(points[6].chances[0].share, 0);
}

TEST(Road, BeginsWithNow)
{
    Road road{wonByTeam33(), leaderAndChaser(), kUsualPayoffs, alike, {.countedGames = 7, .samples = 1000}};
    EXPECT_TRUE(road.points().empty());
    std::size_t found = 0;
    while (!road.isDone()) {
        road.advance();
        EXPECT_LE(road.points().size(), found + 1);
        found = road.points().size();
        if (found > 0) {
            EXPECT_TRUE(road.points().back().isNow);
            EXPECT_EQ(road.points().front().round, 7 - static_cast<int>(found)) << "now is in round 6";
        }
    }
    road.advance();
    EXPECT_EQ(road.points().size(), 7u) << "nothing is left to do";
}

TEST(Road, TakesManySlicesForAForecast)
{
    Road road{test::startingField(), leaderAndChaser(), kUsualPayoffs, alike, {.samples = 1000}};
    int slices = 0;
    for (; !road.isDone(); ++slices)
        road.advance();
    EXPECT_GE(slices, 10);
    EXPECT_EQ(road.points().front().samples, 1000u);
}

TEST(Road, OfNobodyHasPointsWithoutChances)
{
    const auto points = pointsOf({wonByTeam33(), {}, kUsualPayoffs, alike, {.samples = 1000}});
    ASSERT_EQ(points.size(), 7u);
    for (const RoadPoint& point : points)
        EXPECT_TRUE(point.chances.empty() && point.errors.empty());
}

TEST(Road, IsTheSameForTheSameSeed)
{
    test::InventedPools pools{15};
    const std::vector<Bracket> picks = pools.office(5);
    const RoadLimits limits{.countedGames = 10, .samples = 500};
    const auto picked = [](const Contest& contest) { return pickedChances(contest); };
    const Bracket results = pools.withOpenAnywhere(pools.picked(), 30);
    const auto once = pointsOf({results, picks, kUsualPayoffs, picked, limits});
    const auto again = pointsOf({results, picks, kUsualPayoffs, picked, limits});
    ASSERT_EQ(once.size(), again.size());
    for (std::size_t i = 0; i < once.size(); ++i) {
        EXPECT_EQ(once[i].chances, again[i].chances);
        double shares = 0;
        for (const FirstChances& chances : once[i].chances)
            shares += chances.share;
        EXPECT_NEAR(shares, 1, 1e-9);
    }
}

TEST(Road, TakesOverWhatIsKnownOfNow)
{
    Road road{test::without(wonByTeam33(), 126, 126), leaderAndChaser(), kUsualPayoffs, alike};
    RoadPoint now;
    now.samples = 12;
    now.chances = {{.alone = 0.75, .share = 0.75}, {.alone = 0.25, .share = 0.25}};
    now.errors = {0.5, 0.5};
    road.takeNow(now);
    ASSERT_EQ(road.points().size(), 1u);
    EXPECT_EQ(road.points()[0].round, 5) << "the semifinals are played";
    EXPECT_TRUE(road.points()[0].isNow);
    EXPECT_EQ(road.points()[0].samples, 12u);
    EXPECT_EQ(road.points()[0].chances[0].share, 0.75);
    while (road.points().size() < 2)
        road.advance();
    EXPECT_EQ(road.points()[0].round, 4) << "it goes on with the stage before";
    EXPECT_EQ(road.points()[1].samples, 12u);
}

TEST(Road, BeginsAStageAnewAfterItWasStoppedThere)
{
    const Bracket beforeFinal = test::without(wonByTeam33(), 126, 126);
    Road road{beforeFinal, leaderAndChaser(), kUsualPayoffs, alike};
    road.advance([] { return false; });
    EXPECT_TRUE(road.points().empty());
    while (road.points().empty())
        road.advance();
    // The leader is a point ahead; the chaser needs Team 33.
    EXPECT_DOUBLE_EQ(road.points()[0].chances[0].share, 0.5);
    EXPECT_DOUBLE_EQ(road.points()[0].chances[1].share, 0.5);
}

TEST(Road, ForecastsWhatWouldBeTooLargeACount)
{
    const auto points =
        pointsOf({wonByTeam33(), leaderAndChaser(), kUsualPayoffs, alike, {.samples = 1000, .countBytes = 1}});
    EXPECT_EQ(points[2].openGames, 15u);
    EXPECT_EQ(points[2].samples, 1000u);
    EXPECT_EQ(points[3].samples, 0u) << "with 7 open games a forecast leaves nothing to chance";
}

TEST(Road, BeginsAStageAnewAfterAnException)
{
    // Given: three open games, and chances that fail once, each time later than before.
    const Bracket results = test::without(wonByTeam33(), 124, 126);
    int failures = 0;
    for (bool hasFailed = true; hasFailed;) {
        hasFailed = false;
        const auto failing = [&, calls = 0](const Contest&) -> UpperChance {
            return [&, calls](std::size_t, TeamNumber, TeamNumber) mutable {
                if (!hasFailed && calls++ == failures) {
                    hasFailed = true;
                    throw std::bad_alloc{};
                }
                return 0.5;
            };
        };
        Road road{results, leaderAndChaser(), kUsualPayoffs, failing};
        while (road.points().empty())
            try {
                road.advance();
            } catch (const std::bad_alloc&) {
                ++failures;
            }
        // In each outcome the two have one first place between them.
        EXPECT_DOUBLE_EQ(road.points()[0].chances[0].share + road.points()[0].chances[1].share, 1);
    }
    EXPECT_GT(failures, 8) << "also in the middle of the count";
}

} // namespace
} // namespace tallyhoop
