// tests/pool/outlook/open_games_test.cpp - what is open, filled in, or nobody's, and what an outcome's bits mean.
#include "pool/outlook/open_games.h"

#include "pool/outlook/invented_pools.h"
#include "pool/sample_brackets.h"

#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

/// Region 1 has rows 0..15, round 1 on 16..23, round 2 on 24..27, round 3 on 28 and 29, its winner on 30. Region 2
/// begins at 31.
Bracket finished() { return test::everyUpperTeamWins(); }

std::vector<Position> positions(std::initializer_list<int> numbers)
{
    std::vector<Position> made;
    for (const int number : numbers)
        made.push_back(Position{number});
    return made;
}

TEST(OpenGames, AreNoneWhenAllIsPlayed)
{
    const OpenGames open{finished()};
    EXPECT_TRUE(open.games().empty());
    EXPECT_EQ(open.outcomes(), 1u);
    EXPECT_EQ(open.outcome(0), finished());
}

TEST(OpenGames, AreAllBeforeTheFirst)
{
    const OpenGames open{test::startingField()};
    EXPECT_EQ(open.size(), 63u);
    EXPECT_EQ(open.outcomes(), std::uint64_t{1} << 63);
    EXPECT_EQ(open.outcome(0), test::everyUpperTeamWins());
    EXPECT_EQ(open.outcome(open.outcomes() - 1), test::everyLowerTeamWins());
    EXPECT_EQ(open.candidates(kChampion).size(), 64u);
}

TEST(OpenGames, HaveABitEachInTheOrderOfThePositions)
{
    const OpenGames open{test::without(finished(), 124, 126)};
    ASSERT_EQ(open.games(), positions({124, 125, 126}));
    // 5 = 101: the lower semi-finalist of A, the upper one of B, and the lower finalist, who is the one from B.
    const Bracket outcome = open.outcome(5);
    EXPECT_EQ(outcome.at(kSemifinalA), "Team 17");
    EXPECT_EQ(outcome.at(kSemifinalB), "Team 33");
    EXPECT_EQ(outcome.at(kChampion), "Team 33");
    EXPECT_EQ(sideOf(5, 0), Side::Lower);
    EXPECT_EQ(sideOf(5, 1), Side::Upper);
}

TEST(OpenGames, AreFilledInWhereTheTeamWonALaterGame)
{
    // Given: the winner of region 1 is known, and none of the region's games before.
    Bracket results = test::without(finished(), 16, 29);
    // Then: Team 1's way there is known, positions 16, 24 and 28; the eleven others of the region are open.
    const OpenGames open{results};
    EXPECT_EQ(open.games(), positions({17, 18, 19, 20, 21, 22, 23, 25, 26, 27, 29}));
    EXPECT_EQ(open.known().at(Position{16}), "Team 1");
    EXPECT_EQ(open.known().at(Position{24}), "Team 1");
    EXPECT_EQ(open.known().at(Position{28}), "Team 1");
}

TEST(OpenGames, KeepAWinnerFromElsewhereAndStayOpenBeforeIt)
{
    Bracket results = test::without(finished(), 28, 30);
    results.put(Position{30}, "Nobody's team");
    const OpenGames open{results};
    EXPECT_EQ(open.games(), positions({28, 29}));
    EXPECT_EQ(open.outcome(3).at(Position{30}), "Nobody's team");
    EXPECT_EQ(open.outcome(3).at(Position{28}), "Team 5");
}

TEST(OpenGames, AreNotThoseWithOneTeamOrNone)
{
    // Given: rows 2, 3 and 4 have no team; region 1 is not played, nor what follows from it.
    Bracket results = test::without(finished(), 16, 30);
    for (const int none : {2, 3, 4, 124, 126})
        results.clear(Position{none});
    const OpenGames open{results};
    // Then: game 17 has nobody and 18 only Team 6; 24 is a walkover of whoever wins 16.
    EXPECT_EQ(open.games(), positions({16, 19, 20, 21, 22, 23, 25, 26, 27, 28, 29, 30, 124, 126}));
    EXPECT_TRUE(open.known().isEmpty(Position{17}));
    EXPECT_EQ(open.known().at(Position{18}), "Team 6");
    EXPECT_TRUE(open.known().isEmpty(Position{24}));
    EXPECT_EQ(open.outcome(0).at(Position{24}), "Team 1");
    EXPECT_EQ(open.outcome(1).at(Position{24}), "Team 2");
}

TEST(OpenGames, MakeAnOutcomeInWhichEveryWinnerPlayed)
{
    test::InventedPools pools{5};
    for (int round = 0; round < 200; ++round) {
        const OpenGames open{pools.withOpenAnywhere(pools.tossed(), pools.number(63))};
        const Bracket outcome = open.outcome(pools.number(1U << 31U) % open.outcomes());
        for (const Position game : gamePositions()) {
            const auto [upper, lower] = test::entrantsOf(game);
            ASSERT_FALSE(outcome.isEmpty(game));
            ASSERT_TRUE(outcome.at(game) == outcome.at(upper) || outcome.at(game) == outcome.at(lower));
        }
    }
}

} // namespace
} // namespace tallyhoop
