// tests/pool/projection_test.cpp - what must be known before a projection, and what is projected.
#include "pool/projection.h"

#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

using Finals = std::array<std::string, 3>;

const FinalFour kFour{"CEDAR RAPIDS", "OLD HARBOR", "PINE BLUFF", "SALT LAKE"};

/// The Final Four is known and still to be played.
Bracket finalFourResults()
{
    Bracket results;
    results.put(Position{30}, "CEDAR RAPIDS");
    results.put(Position{61}, "OLD HARBOR");
    results.put(Position{92}, "PINE BLUFF");
    results.put(Position{123}, "SALT LAKE");
    return results;
}

Finals finalsOf(const std::optional<Bracket>& projected)
{
    if (!projected)
        return {"-", "-", "-"};
    return {projected->at(Position{124}), projected->at(Position{125}), projected->at(Position{126})};
}

TEST(FinalFourOf, IsTheRegionWinnersInOrder)
{
    EXPECT_EQ(finalFourState(finalFourResults()), FinalFourState::Known);
    EXPECT_EQ(finalFourOf(finalFourResults()), kFour);
}

TEST(FinalFourOf, HasEmptyTextsForThoseThatAreMissing)
{
    Bracket results = finalFourResults();
    results.clear(Position{61});
    EXPECT_EQ(finalFourOf(results), (FinalFour{"CEDAR RAPIDS", "", "PINE BLUFF", "SALT LAKE"}));
}

TEST(FinalFourState, IsIncompleteWhileAnyRegionWinnerIsMissing)
{
    for (const int winner : {30, 61, 92, 123}) {
        Bracket results = finalFourResults();
        results.clear(Position{winner});
        EXPECT_EQ(finalFourState(results), FinalFourState::Incomplete) << winner;
    }
}

TEST(FinalFourState, LeavesNothingToProjectOnceTheChampionIsKnown)
{
    Bracket results = finalFourResults();
    results.put(kChampion, "SALT LAKE");
    EXPECT_EQ(finalFourState(results), FinalFourState::ChampionKnown);
}

TEST(FinalFourState, LooksForTheRegionWinnersBeforeTheChampion)
{
    Bracket results = finalFourResults();
    results.clear(Position{123});
    results.put(kChampion, "SALT LAKE");
    EXPECT_EQ(finalFourState(results), FinalFourState::Incomplete);
}

TEST(ProjectWinner, PutsTheTeamIntoItsSemifinalAndTheFinal)
{
    const Bracket results = finalFourResults();
    EXPECT_EQ(finalsOf(projectWinner(results, "CEDAR RAPIDS", FinalOpponent::Open)),
              (Finals{"CEDAR RAPIDS", "", "CEDAR RAPIDS"}));
    EXPECT_EQ(finalsOf(projectWinner(results, "SALT LAKE", FinalOpponent::Open)),
              (Finals{"", "SALT LAKE", "SALT LAKE"}));
}

TEST(ProjectWinner, LetsTheTeamMeetEitherTeamOfTheOtherHalf)
{
    const Bracket results = finalFourResults();
    EXPECT_EQ(finalsOf(projectWinner(results, "OLD HARBOR", FinalOpponent::First)),
              (Finals{"OLD HARBOR", "PINE BLUFF", "OLD HARBOR"}));
    EXPECT_EQ(finalsOf(projectWinner(results, "OLD HARBOR", FinalOpponent::Second)),
              (Finals{"OLD HARBOR", "SALT LAKE", "OLD HARBOR"}));
    EXPECT_EQ(finalsOf(projectWinner(results, "PINE BLUFF", FinalOpponent::First)),
              (Finals{"CEDAR RAPIDS", "PINE BLUFF", "PINE BLUFF"}));
    EXPECT_EQ(finalsOf(projectWinner(results, "PINE BLUFF", FinalOpponent::Second)),
              (Finals{"OLD HARBOR", "PINE BLUFF", "PINE BLUFF"}));
}

TEST(ProjectWinner, FailsForATeamThatLostItsSemifinal)
{
    Bracket results = finalFourResults();
    results.put(kSemifinalA, "OLD HARBOR");
    for (const FinalOpponent opponent : {FinalOpponent::Open, FinalOpponent::First, FinalOpponent::Second})
        EXPECT_FALSE(projectWinner(results, "CEDAR RAPIDS", opponent));
    EXPECT_TRUE(projectWinner(results, "OLD HARBOR", FinalOpponent::Open));
}

TEST(ProjectWinner, FailsForAnOpponentThatLostItsSemifinal)
{
    Bracket results = finalFourResults();
    results.put(kSemifinalB, "SALT LAKE");
    EXPECT_FALSE(projectWinner(results, "CEDAR RAPIDS", FinalOpponent::First));
    EXPECT_EQ(finalsOf(projectWinner(results, "CEDAR RAPIDS", FinalOpponent::Second)),
              (Finals{"CEDAR RAPIDS", "SALT LAKE", "CEDAR RAPIDS"}));
}

TEST(ProjectWinner, LeavesTheOtherSemifinalAsItIsWhenTheOpponentStaysOpen)
{
    Bracket results = finalFourResults();
    results.put(kSemifinalB, "SALT LAKE");
    EXPECT_EQ(finalsOf(projectWinner(results, "CEDAR RAPIDS", FinalOpponent::Open)),
              (Finals{"CEDAR RAPIDS", "SALT LAKE", "CEDAR RAPIDS"}));
}

TEST(ProjectWinner, FailsForATeamThatWonNoRegion)
{
    EXPECT_FALSE(projectWinner(finalFourResults(), "GREEN RIVER", FinalOpponent::Open));
}

TEST(ProjectWinner, StartsFromTheRealResultsEveryTime)
{
    const Bracket results = finalFourResults();
    EXPECT_TRUE(projectWinner(results, "CEDAR RAPIDS", FinalOpponent::First));
    EXPECT_EQ(results, finalFourResults());
}

/// They are looked up in the first half, which they have lost; they have won the second.
Bracket resultsWithTigersInBothHalves()
{
    Bracket results = finalFourResults();
    results.put(Position{30}, "TIGERS");
    results.put(Position{92}, "TIGERS");
    results.put(kSemifinalA, "OLD HARBOR");
    results.put(kSemifinalB, "TIGERS");
    return results;
}

TEST(ProjectWinner, LetsANameSharedByTwoRegionsWinTheFinalItHasReachedInTheOtherHalf)
{
    const Bracket results = resultsWithTigersInBothHalves();
    EXPECT_EQ(finalsOf(projectWinner(results, "TIGERS", FinalOpponent::First)),
              (Finals{"OLD HARBOR", "TIGERS", "TIGERS"}));
}

TEST(ProjectWinner, LetsNobodyElseWinOnceThereIsAChampion)
{
    Bracket results = resultsWithTigersInBothHalves();
    results.put(kChampion, "OLD HARBOR");
    EXPECT_EQ(projectWinner(results, "TIGERS", FinalOpponent::First), std::nullopt);
}

TEST(FinalOpponentOf, IsTheWinnerOfTheOtherHalf)
{
    const Bracket upper = *projectWinner(finalFourResults(), "OLD HARBOR", FinalOpponent::Second);
    EXPECT_EQ(finalOpponent(upper, 0), "SALT LAKE");
    EXPECT_EQ(finalOpponent(upper, 1), "SALT LAKE");
    const Bracket lower = *projectWinner(finalFourResults(), "SALT LAKE", FinalOpponent::First);
    EXPECT_EQ(finalOpponent(lower, 2), "CEDAR RAPIDS");
    EXPECT_EQ(finalOpponent(lower, 3), "CEDAR RAPIDS");
    EXPECT_EQ(finalOpponent(finalFourResults(), 0), "") << "still open";
}

} // namespace
} // namespace tallyhoop
