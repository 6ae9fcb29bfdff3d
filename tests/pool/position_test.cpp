// tests/pool/position_test.cpp - where every winner goes, and how places, games and rows are counted.
#include "pool/position.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <limits>
#include <vector>

namespace tallyhoop {
namespace {

using testing::ElementsAre;

std::array<Position, 2> pair(int upper, int lower) { return {Position{upper}, Position{lower}}; }

TEST(Next, LeadsFromTheChampionNowhere) { EXPECT_EQ(next(kChampion), std::nullopt); }

TEST(Next, LetsRegionsOneAndTwoMeetInTheFirstSemifinal)
{
    EXPECT_EQ(next(Position{30}), Position{124});
    EXPECT_EQ(next(Position{61}), Position{124});
}

TEST(Next, LetsRegionsThreeAndFourMeetInTheSecondSemifinal)
{
    EXPECT_EQ(next(Position{92}), Position{125});
    EXPECT_EQ(next(Position{123}), Position{125});
}

TEST(Next, LeadsFromBothSemifinalsToTheChampion)
{
    EXPECT_EQ(next(Position{124}), Position{126});
    EXPECT_EQ(next(Position{125}), Position{126});
}

TEST(Next, PairsNeighbouringRowsOfTheFirstRegion)
{
    const int expected[30] = {16, 16, 17, 17, 18, 18, 19, 19, 20, 20, 21, 21, 22, 22, 23,
                              23, 24, 24, 25, 25, 26, 26, 27, 27, 28, 28, 29, 29, 30, 30};
    for (int place = 0; place < 30; ++place)
        EXPECT_EQ(next(Position{place}), Position{expected[place]}) << "position " << place;
}

TEST(Next, RepeatsTheFirstRegionInTheOthers)
{
    for (const int base : {31, 62, 93})
        for (int place = 0; place < 30; ++place)
            EXPECT_EQ(next(Position{base + place}), Position{base + index(*next(Position{place}))})
                << "position " << base + place;
}

TEST(Next, NeverLeadsBackwards)
{
    for (const Position position : allPositions())
        if (const std::optional<Position> winner = next(position)) {
            EXPECT_LT(position, *winner);
        }
}

TEST(Feeders, AreTheTwoPlacesThatMeetTheUpperFirst)
{
    EXPECT_EQ(feeders(Position{16}), pair(0, 1));
    EXPECT_EQ(feeders(Position{24}), pair(16, 17));
    EXPECT_EQ(feeders(Position{30}), pair(28, 29));
    EXPECT_EQ(feeders(Position{123}), pair(121, 122));
    EXPECT_EQ(feeders(Position{124}), pair(30, 61));
    EXPECT_EQ(feeders(Position{125}), pair(92, 123));
    EXPECT_EQ(feeders(Position{126}), pair(124, 125));
}

TEST(Feeders, OfAFirstRoundRowAreNone)
{
    EXPECT_EQ(feeders(Position{0}), std::nullopt);
    EXPECT_EQ(feeders(Position{108}), std::nullopt);
}

TEST(Feeders, BothLeadToTheirGame)
{
    for (const Position game : gamePositions()) {
        const auto [upper, lower] = *feeders(game);
        EXPECT_EQ(next(upper), game) << "position " << index(upper);
        EXPECT_EQ(next(lower), game) << "position " << index(lower);
    }
}

TEST(IsOnPath, GoesAheadToTheChampionAndIncludesThePlaceItself)
{
    for (const int target : {0, 16, 24, 28, 30, 124, 126})
        EXPECT_TRUE(isOnPath(Position{0}, Position{target})) << target;
    for (const int target : {108, 116, 120, 122, 123, 125, 126})
        EXPECT_TRUE(isOnPath(Position{108}, Position{target})) << target;
}

TEST(IsOnPath, LeavesOutOtherRegionsNeighboursAndEarlierRounds)
{
    for (const int target : {1, 15, 17, 25, 29, 31, 47, 61, 92, 123, 125})
        EXPECT_FALSE(isOnPath(Position{0}, Position{target})) << target;
    EXPECT_FALSE(isOnPath(Position{28}, Position{16}));
    EXPECT_FALSE(isOnPath(Position{126}, Position{124}));
}

TEST(TeamRows, FillTheFirstSixteenPlacesOfEachRegion)
{
    EXPECT_EQ(positionOf(TeamRow{0}), Position{0});
    EXPECT_EQ(positionOf(TeamRow{15}), Position{15});
    EXPECT_EQ(positionOf(TeamRow{16}), Position{31});
    EXPECT_EQ(positionOf(TeamRow{32}), Position{62}) << "the first team of region 3";
    EXPECT_EQ(positionOf(TeamRow{63}), Position{108});
    EXPECT_EQ(firstRoundPosition(2, 0), Position{62});
    EXPECT_EQ(firstRoundPosition(3, 15), Position{108});
}

TEST(TeamRows, AreFoundFromTheirPlaces)
{
    for (int row = 0; row < 64; ++row)
        EXPECT_EQ(teamRowOf(positionOf(TeamRow{row})), TeamRow{row}) << "row " << row;
    EXPECT_EQ(teamRowOf(Position{16}), std::nullopt);
    EXPECT_EQ(teamRowOf(Position{30}), std::nullopt);
    EXPECT_EQ(teamRowOf(Position{109}), std::nullopt);
    EXPECT_EQ(teamRowOf(Position{124}), std::nullopt) << "a fifth region would begin here";
    EXPECT_EQ(teamRowOf(kChampion), std::nullopt);
}

TEST(TeamRows, AreCountedRegionByRegion)
{
    EXPECT_EQ(regionOf(TeamRow{15}), 0);
    EXPECT_EQ(regionOf(TeamRow{16}), 1);
    EXPECT_EQ(regionOf(TeamRow{63}), 3);
    EXPECT_EQ(rowInRegion(TeamRow{15}), 15);
    EXPECT_EQ(rowInRegion(TeamRow{16}), 0);
    EXPECT_EQ(rowInRegion(TeamRow{63}), 15);
    ASSERT_EQ(allTeamRows().size(), 64u);
    EXPECT_EQ(allTeamRows().front(), TeamRow{0});
    EXPECT_EQ(allTeamRows().back(), TeamRow{63});
}

TEST(FirstRound, IsTheSixteenRowsOfEachRegionOnly)
{
    int count = 0;
    for (int position = 0; position < kPositions; ++position)
        count += isFirstRound(Position{position}) ? 1 : 0;
    EXPECT_EQ(count, 64);
    EXPECT_TRUE(isFirstRound(Position{15}));
    EXPECT_FALSE(isFirstRound(Position{16}));
    EXPECT_TRUE(isFirstRound(Position{108}));
    EXPECT_FALSE(isFirstRound(Position{124}));
}

TEST(RoundOf, CountsThirtyTwoSixteenEightFourTwoAndOne)
{
    std::array<int, 7> winners{};
    for (int position = 0; position < kPositions; ++position)
        ++winners.at(static_cast<std::size_t>(roundOf(Position{position})));
    EXPECT_EQ(winners, (std::array<int, 7>{64, 32, 16, 8, 4, 2, 1}));
}

TEST(RoundOf, FollowsTheBlocksOfARegion)
{
    EXPECT_EQ(roundOf(Position{31 + 15}), 0);
    EXPECT_EQ(roundOf(Position{31 + 16}), 1);
    EXPECT_EQ(roundOf(Position{31 + 23}), 1);
    EXPECT_EQ(roundOf(Position{31 + 24}), 2);
    EXPECT_EQ(roundOf(Position{31 + 27}), 2);
    EXPECT_EQ(roundOf(Position{31 + 28}), 3);
    EXPECT_EQ(roundOf(Position{31 + 29}), 3);
    EXPECT_EQ(roundOf(Position{31 + 30}), 4);
    EXPECT_EQ(roundOf(Position{124}), 5);
    EXPECT_EQ(roundOf(Position{125}), 5);
    EXPECT_EQ(roundOf(Position{126}), 6);
}

TEST(RegionOf, EndsBeforeTheLastThreePlaces)
{
    EXPECT_EQ(regionOf(Position{0}), 0);
    EXPECT_EQ(regionOf(Position{30}), 0);
    EXPECT_EQ(regionOf(Position{31}), 1);
    EXPECT_EQ(regionOf(Position{123}), 3);
    EXPECT_EQ(regionOf(Position{124}), std::nullopt);
    EXPECT_EQ(regionOf(Position{126}), std::nullopt);
}

TEST(RegionWinner, IsTheLastPlaceOfARegion)
{
    EXPECT_EQ(regionWinner(0), Position{30});
    EXPECT_EQ(regionWinner(1), Position{61});
    EXPECT_EQ(regionWinner(2), Position{92});
    EXPECT_EQ(regionWinner(3), Position{123});
}

TEST(PlacesOfARegion, AreSixteenTeamsAndFifteenWinners)
{
    ASSERT_EQ(teamsOfRegion(1).size(), 16u);
    EXPECT_EQ(teamsOfRegion(1).front(), Position{31});
    EXPECT_EQ(teamsOfRegion(1).back(), Position{46});
    ASSERT_EQ(gamesOfRegion(1).size(), 15u);
    EXPECT_EQ(gamesOfRegion(1).front(), Position{47});
    EXPECT_EQ(gamesOfRegion(1).back(), Position{61});
    EXPECT_EQ(gamesOfRegion(3).back(), Position{123});
    EXPECT_THAT(finalGames(), ElementsAre(kSemifinalA, kSemifinalB, kChampion));
}

TEST(AllPositions, AreTheHundredAndTwentySevenInOrder)
{
    ASSERT_EQ(allPositions().size(), 127u);
    for (int position = 0; position < kPositions; ++position)
        EXPECT_EQ(allPositions().at(static_cast<std::size_t>(position)), Position{position});
}

TEST(GamePositions, AscendAndKnowTheirGame)
{
    EXPECT_EQ(gamePositions().front(), Position{16});
    EXPECT_EQ(gamePositions()[14], Position{30});
    EXPECT_EQ(gamePositions()[15], Position{47});
    EXPECT_EQ(gamePositions()[59], Position{123});
    EXPECT_EQ(gamePositions().back(), Position{126});
    for (int game = 0; game < kGames; ++game) {
        EXPECT_EQ(gameOf(gamePositions()[static_cast<std::size_t>(game)]), Game{game});
        EXPECT_EQ(gameOf(positionOf(Game{game})), Game{game});
    }
}

TEST(GamePositions, AreWhereTheWinnersAre)
{
    EXPECT_EQ(positionOf(Game{0}), Position{16});
    EXPECT_EQ(positionOf(Game{15}), Position{47});
    EXPECT_EQ(positionOf(Game{60}), kSemifinalA);
    EXPECT_EQ(positionOf(Game{61}), kSemifinalB);
    EXPECT_EQ(positionOf(Game{62}), kChampion);
}

TEST(GamePositions, LeaveOutTheFirstRoundRows)
{
    EXPECT_EQ(gameOf(Position{0}), std::nullopt);
    EXPECT_EQ(gameOf(Position{46}), std::nullopt);
}

TEST(GameOfColumn, CountsFromTheTopOfItsRegionAndRound)
{
    EXPECT_EQ(gameOfColumn(Position{16}), 0);
    EXPECT_EQ(gameOfColumn(Position{23}), 7);
    EXPECT_EQ(gameOfColumn(Position{24}), 0);
    EXPECT_EQ(gameOfColumn(Position{31 + 27}), 3);
    EXPECT_EQ(gameOfColumn(Position{31 + 29}), 1);
    EXPECT_EQ(gameOfColumn(Position{123}), 0);
    EXPECT_EQ(gameOfColumn(kSemifinalA), 0);
    EXPECT_EQ(gameOfColumn(kSemifinalB), 1);
    EXPECT_EQ(gameOfColumn(kChampion), 0);
}

TEST(TeamRowAt, CountsTheRowsRegionByRegion)
{
    EXPECT_EQ(teamRowAt(0, 0), TeamRow{0});
    EXPECT_EQ(teamRowAt(1, 0), TeamRow{16});
    EXPECT_EQ(teamRowAt(2, 5), TeamRow{37});
    EXPECT_EQ(teamRowAt(3, 15), TeamRow{63});
}

TEST(RowAfter, IsTheNextOrSoManyFurtherOnUpToTheLast)
{
    EXPECT_EQ(rowAfter(TeamRow{0}), TeamRow{1});
    EXPECT_EQ(rowAfter(TeamRow{15}), TeamRow{16}); // first of the next region
    EXPECT_EQ(rowAfter(TeamRow{63}), std::nullopt);
    EXPECT_EQ(rowAfter(TeamRow{40}, 0), TeamRow{40});
    EXPECT_EQ(rowAfter(TeamRow{40}, 23), TeamRow{63});
    EXPECT_EQ(rowAfter(TeamRow{40}, 24), std::nullopt);
    EXPECT_EQ(rowAfter(TeamRow{40}, std::numeric_limits<std::size_t>::max()), std::nullopt);
}

TEST(RoundIndex, CountsFromZero)
{
    EXPECT_EQ(roundIndex(1), 0u);
    EXPECT_EQ(roundIndex(6), 5u);
}

TEST(IndexedBy, GivesNeighboursToReadAndToChange)
{
    ByPosition<int> values;
    values[Position{31}] = 5;
    values[Position{33}] = 6;
    std::ranges::fill(values.from(Position{32}, 1), 4);
    const ByPosition<int>& same = values;
    const std::span<const int> neighbours = same.from(Position{31}, 3);
    EXPECT_EQ(std::vector(neighbours.begin(), neighbours.end()), (std::vector{5, 4, 6}));
}

TEST(IndexedBy, HasAValueOfItsOwnForEachPlace)
{
    ByPosition<int> values;
    ByPosition<int> others;
    values[kChampion] = 7;
    EXPECT_EQ(values[kSemifinalB], 0);
    EXPECT_EQ(values.values.size(), 127u);
    EXPECT_NE(values, others);
    others[kChampion] = 7;
    EXPECT_EQ(values, others);
}

} // namespace
} // namespace tallyhoop
