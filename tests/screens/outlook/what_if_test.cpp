// tests/screens/outlook/what_if_test.cpp - supposing winners, taking them back, undo.
#include "screens/outlook/what_if.h"

#include "pool/outlook/final_pool.h"
#include "pool/outlook/open_games.h"

#include <gtest/gtest.h>

namespace tallyhoop::test {
namespace {

const ByTeamRow<std::int16_t> kSeeds = seedNumbers(finalField());

TEST(WhatIfTest, LetsATeamWinAndTakesItBackWhenItIsPressedAgain)
{
    WhatIf whatIf{beforeTheFinal()};
    EXPECT_TRUE(whatIf.press(kSemifinalA));
    EXPECT_EQ(whatIf.supposed().at(kChampion), "Team 1");
    EXPECT_TRUE(whatIf.isChanged());
    EXPECT_TRUE(whatIf.press(kSemifinalB)) << "the other team instead";
    EXPECT_EQ(whatIf.supposed().at(kChampion), "Team 35");
    EXPECT_TRUE(whatIf.press(kSemifinalB));
    EXPECT_TRUE(whatIf.supposed().isEmpty(kChampion));
    EXPECT_FALSE(whatIf.isChanged());
}

TEST(WhatIfTest, TakesBackWhatFollowedAsWell)
{
    WhatIf whatIf{beforeTheFinal()};
    whatIf.press(kSemifinalA);
    EXPECT_TRUE(whatIf.press(regionWinner(0))) << "takes the semi-final back that Team 1 has won";
    EXPECT_TRUE(whatIf.supposed().isEmpty(kSemifinalA));
    EXPECT_TRUE(whatIf.supposed().isEmpty(kChampion));
}

TEST(WhatIfTest, ChangesNothingAtTheChampionAndWhereNobodyIs)
{
    WhatIf whatIf{beforeTheFinal()};
    EXPECT_FALSE(whatIf.press(kChampion));
    EXPECT_FALSE(whatIf.takeBack(kChampion));
    EXPECT_FALSE(whatIf.canUndo());
    WhatIf empty{Bracket{}};
    EXPECT_FALSE(empty.press(kSemifinalA));
}

TEST(WhatIfTest, EmptiesAPlaceButNoRowOfTheField)
{
    WhatIf whatIf{beforeTheFinal()};
    EXPECT_TRUE(whatIf.takeBack(kSemifinalB));
    EXPECT_TRUE(whatIf.supposed().isEmpty(kSemifinalB));
    EXPECT_EQ(whatIf.supposed().at(regionWinner(2)), "Team 35");
    EXPECT_FALSE(whatIf.takeBack(Position{0}));
    EXPECT_EQ(whatIf.supposed().at(Position{0}), "Team 1");
}

TEST(WhatIfTest, GoesBackStepByStepAndToTheResultsAsEntered)
{
    WhatIf whatIf{beforeTheFinal()};
    whatIf.press(kSemifinalA);
    whatIf.takeBack(regionWinner(0));
    EXPECT_TRUE(whatIf.asEntered());
    EXPECT_FALSE(whatIf.isChanged());
    EXPECT_FALSE(whatIf.asEntered());
    EXPECT_TRUE(whatIf.undo()) << "also this can be undone";
    EXPECT_TRUE(whatIf.supposed().isEmpty(regionWinner(0)));
    EXPECT_TRUE(whatIf.undo());
    EXPECT_EQ(whatIf.supposed().at(kChampion), "Team 1");
    EXPECT_TRUE(whatIf.undo());
    EXPECT_FALSE(whatIf.isChanged());
    EXPECT_FALSE(whatIf.undo());
}

TEST(WhatIfTest, FillsOnlyWhatNobodyHasWonWithHigherSeeds)
{
    // Team 2 (seeded 2, second row) has beaten Team 1; everything else is open.
    Bracket results = startingField();
    results = advanced(results, Position{1});
    WhatIf whatIf{results};
    EXPECT_TRUE(whatIf.fillWithHigherSeeds(kSeeds));
    EXPECT_EQ(whatIf.supposed().at(Position{16}), "Team 2");
    EXPECT_EQ(whatIf.supposed().at(Position{17}), "Team 3") << "seeded 3, against 4";
    EXPECT_EQ(whatIf.supposed().at(regionWinner(0)), "Team 2");
    EXPECT_EQ(whatIf.supposed().at(regionWinner(1)), "Team 17");
    EXPECT_EQ(whatIf.supposed().at(kSemifinalA), "Team 17") << "seeded 1, against 2";
    EXPECT_TRUE(OpenGames{whatIf.supposed()}.games().empty());
    EXPECT_FALSE(whatIf.fillWithHigherSeeds(kSeeds));
}

TEST(WhatIfTest, LetsTheLaterOfTwoEqualSeedsWin)
{
    WhatIf whatIf{startingField()};
    EXPECT_TRUE(whatIf.fillWithHigherSeeds(kSeeds));
    // The teams seeded 1 win the regions: 1, 17, 33 and 49.
    EXPECT_EQ(whatIf.supposed().at(kSemifinalA), "Team 17");
    EXPECT_EQ(whatIf.supposed().at(kSemifinalB), "Team 49");
    EXPECT_EQ(whatIf.supposed().at(kChampion), "Team 49");
}

TEST(WhatIfTest, FillsInTheWayOfATeamThatWonALaterGame)
{
    // Team 2 has won region 1 and its semi-final; none of its games before is entered.
    Bracket results = startingField();
    results.put(regionWinner(0), "Team 2");
    results.put(kSemifinalA, "Team 2");
    WhatIf whatIf{results};
    EXPECT_TRUE(whatIf.fillWithHigherSeeds(kSeeds));
    for (const int place : {16, 24, 28, 30, 124})
        EXPECT_EQ(whatIf.supposed().at(Position{place}), "Team 2") << place;
    EXPECT_EQ(whatIf.supposed().at(Position{29}), "Team 9") << "of the rows seeded 9 to 16";
    EXPECT_EQ(whatIf.supposed().at(kChampion), "Team 49");
}

} // namespace
} // namespace tallyhoop::test
