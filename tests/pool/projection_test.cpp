// tests/pool/projection_test.cpp - what must be known before a projection, and what is projected.
#include "pool/projection.h"

#include "reports/report_pool.h"

#include <gtest/gtest.h>

namespace tallyhoop::test {
namespace {

const FinalFour kFour{"", "CEDAR RAPIDS", "OLD HARBOR", "PINE BLUFF", "SALT LAKE"};

std::array<std::string, 3> finalsOf(const std::optional<SelectionLines>& lines)
{
    return lines ? std::array{(*lines)[125], (*lines)[126], (*lines)[127]} : std::array<std::string, 3>{"-", "-", "-"};
}

using Finals = std::array<std::string, 3>;

TEST(ChkFinalFour, TakesTheRegionWinnersInOrder)
{
    FinalFour found;

    EXPECT_EQ(ChkFinalFour(fourPlayersResults().lines, found), FinalFourState::Known);
    EXPECT_EQ(found, kFour);
}

TEST(ChkFinalFour, RefusesWhileAnyRegionWinnerIsMissing)
{
    for (const std::size_t line : {31u, 62u, 93u, 124u}) {
        SelectionLines results = fourPlayersResults().lines;
        results[line].clear();
        FinalFour found;
        EXPECT_EQ(ChkFinalFour(results, found), FinalFourState::Incomplete) << line;
    }
}

TEST(ChkFinalFour, RefusesOnceTheChampionIsKnown)
{
    SelectionLines results = fourPlayersResults().lines;
    results[127] = "SALT LAKE";
    FinalFour found;

    EXPECT_EQ(ChkFinalFour(results, found), FinalFourState::ChampionKnown);
}

TEST(ChkFinalFour, LooksForTheRegionWinnersBeforeTheChampion)
{
    SelectionLines results = fourPlayersResults().lines;
    results[124].clear();
    results[127] = "SALT LAKE";
    FinalFour found;

    EXPECT_EQ(ChkFinalFour(results, found), FinalFourState::Incomplete);
}

TEST(ProjectWinner, PutsTheTeamIntoItsSemifinalAndTheFinal)
{
    const SelectionLines results = fourPlayersResults().lines;

    EXPECT_EQ(finalsOf(ProjectWinner(results, kFour, 1, FinalOpponent::Open)),
              (Finals{"CEDAR RAPIDS", "", "CEDAR RAPIDS"}));
    EXPECT_EQ(finalsOf(ProjectWinner(results, kFour, 4, FinalOpponent::Open)), (Finals{"", "SALT LAKE", "SALT LAKE"}));
}

TEST(ProjectWinner, LetsTheTeamMeetEitherTeamOfTheOtherHalf)
{
    const SelectionLines results = fourPlayersResults().lines;

    EXPECT_EQ(finalsOf(ProjectWinner(results, kFour, 2, FinalOpponent::First)),
              (Finals{"OLD HARBOR", "PINE BLUFF", "OLD HARBOR"}));
    EXPECT_EQ(finalsOf(ProjectWinner(results, kFour, 2, FinalOpponent::Second)),
              (Finals{"OLD HARBOR", "SALT LAKE", "OLD HARBOR"}));
    EXPECT_EQ(finalsOf(ProjectWinner(results, kFour, 3, FinalOpponent::First)),
              (Finals{"CEDAR RAPIDS", "PINE BLUFF", "PINE BLUFF"}));
    EXPECT_EQ(finalsOf(ProjectWinner(results, kFour, 3, FinalOpponent::Second)),
              (Finals{"OLD HARBOR", "PINE BLUFF", "PINE BLUFF"}));
}

TEST(ProjectWinner, FailsForATeamThatLostItsSemifinal)
{
    SelectionLines results = fourPlayersResults().lines;
    results[125] = "OLD HARBOR";

    for (const FinalOpponent opponent : {FinalOpponent::Open, FinalOpponent::First, FinalOpponent::Second})
        EXPECT_FALSE(ProjectWinner(results, kFour, 1, opponent));
    EXPECT_TRUE(ProjectWinner(results, kFour, 2, FinalOpponent::Open));
}

TEST(ProjectWinner, FailsForAnOpponentThatLostItsSemifinal)
{
    SelectionLines results = fourPlayersResults().lines;
    results[126] = "SALT LAKE";

    EXPECT_FALSE(ProjectWinner(results, kFour, 1, FinalOpponent::First));
    EXPECT_EQ(finalsOf(ProjectWinner(results, kFour, 1, FinalOpponent::Second)),
              (Finals{"CEDAR RAPIDS", "SALT LAKE", "CEDAR RAPIDS"}));
}

TEST(ProjectWinner, LeavesTheOtherSemifinalAsItIsWhenTheOpponentStaysOpen)
{
    SelectionLines results = fourPlayersResults().lines;
    results[126] = "SALT LAKE";

    EXPECT_EQ(finalsOf(ProjectWinner(results, kFour, 1, FinalOpponent::Open)),
              (Finals{"CEDAR RAPIDS", "SALT LAKE", "CEDAR RAPIDS"}));
}

TEST(ProjectWinner, StartsFromTheRealResultsEveryTime)
{
    const SelectionLines results = fourPlayersResults().lines;
    const SelectionLines before = results;

    EXPECT_TRUE(ProjectWinner(results, kFour, 1, FinalOpponent::First));

    EXPECT_EQ(results, before);
}

TEST(ProjectWinner, LetsANameSharedByTwoRegionsWinTheFinalItHasReachedInTheOtherHalf)
{
    SelectionLines results = fourPlayersResults().lines;
    results[31] = results[93] = "TIGERS"; // looked up in the first half, which it has lost; it stands in the second
    results[125] = "OLD HARBOR";
    results[126] = "TIGERS";
    const FinalFour four{"", "TIGERS", "OLD HARBOR", "TIGERS", "SALT LAKE"};

    EXPECT_EQ(finalsOf(ProjectWinner(results, four, 3, FinalOpponent::First)),
              (Finals{"OLD HARBOR", "TIGERS", "TIGERS"}));
}

} // namespace
} // namespace tallyhoop::test
