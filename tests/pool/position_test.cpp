// tests/pool/position_test.cpp - where every winner goes.
#include "pool/position.h"

#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

TEST(BracketMap, LeadsFromTheChampionNowhere) { EXPECT_EQ(bracketMap().NextPosition(126), 999); }

TEST(BracketMap, LetsRegionsOneAndTwoMeetInSemifinalA)
{
    EXPECT_EQ(bracketMap().NextPosition(30), 124);
    EXPECT_EQ(bracketMap().NextPosition(61), 124);
}

TEST(BracketMap, LetsRegionsThreeAndFourMeetInSemifinalB)
{
    EXPECT_EQ(bracketMap().NextPosition(92), 125);
    EXPECT_EQ(bracketMap().NextPosition(123), 125);
}

TEST(BracketMap, LeadsBothSemifinalsToTheChampion)
{
    EXPECT_EQ(bracketMap().NextPosition(124), 126);
    EXPECT_EQ(bracketMap().NextPosition(125), 126);
}

TEST(BracketMap, PairsNeighbouringRowsOfTheFirstRegion)
{
    const int expected[30] = {16, 16, 17, 17, 18, 18, 19, 19, 20, 20, 21, 21, 22, 22, 23,
                              23, 24, 24, 25, 25, 26, 26, 27, 27, 28, 28, 29, 29, 30, 30};
    for (int row = 0; row < 30; ++row)
        EXPECT_EQ(bracketMap().NextPosition(row), expected[row]) << "row " << row;
}

TEST(BracketMap, RepeatsTheFirstRegionInTheOthers)
{
    for (const int base : {31, 62, 93})
        for (int row = 0; row < 30; ++row)
            EXPECT_EQ(bracketMap().NextPosition(base + row), base + bracketMap().NextPosition(row));
}

TEST(BracketMap, KeepsAnUnusedRowAtTheEnd) { EXPECT_EQ(bracketMap().NextPosition(127), 0); }

TEST(BracketMap, FindsTheTwoTeamsOfAGame)
{
    EXPECT_EQ(bracketMap().feeders(16), (std::array<int, 2>{0, 1}));
    EXPECT_EQ(bracketMap().feeders(123), (std::array<int, 2>{121, 122}));
    EXPECT_EQ(bracketMap().feeders(124), (std::array<int, 2>{30, 61}));
    EXPECT_EQ(bracketMap().feeders(125), (std::array<int, 2>{92, 123}));
    EXPECT_EQ(bracketMap().feeders(126), (std::array<int, 2>{124, 125}));
}

TEST(BracketMap, HasNoGameBehindAFirstRoundRow)
{
    EXPECT_EQ(bracketMap().feeders(0), (std::array<int, 2>{-1, -1}));
    EXPECT_EQ(bracketMap().feeders(108), (std::array<int, 2>{-1, -1}));
}

TEST(FirstRoundPosition, PutsTheFirstTeamOfRegionThreeAtSixtyTwo)
{
    EXPECT_EQ(firstRoundPosition(2, 0), Position{62});
    EXPECT_EQ(slotOf(Position{62}), Slot{63});
    EXPECT_EQ(positionOf(Slot{63}), Position{62});
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
    EXPECT_EQ(roundOf(Position{125}), 5);
    EXPECT_EQ(roundOf(Position{126}), 6);
}

TEST(GamePositions, AscendAndKnowTheirPlace)
{
    EXPECT_EQ(gamePositions().front(), Position{16});
    EXPECT_EQ(gamePositions()[14], Position{30});
    EXPECT_EQ(gamePositions()[15], Position{47});
    EXPECT_EQ(gamePositions()[59], Position{123});
    EXPECT_EQ(gamePositions().back(), Position{126});
    for (int game = 0; game < kGames; ++game)
        EXPECT_EQ(gameOf(gamePositions()[static_cast<std::size_t>(game)]), game);
}

TEST(GamePositions, LeaveOutTheFirstRoundRows)
{
    EXPECT_EQ(gameOf(Position{0}), -1);
    EXPECT_EQ(gameOf(Position{46}), -1);
}

} // namespace
} // namespace tallyhoop
