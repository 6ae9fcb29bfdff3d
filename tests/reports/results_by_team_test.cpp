// tests/reports/results_by_team_test.cpp - work rows, order and pages of the results by team.
#include "reports/results_by_team.h"

#include "reports/four_players.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace tallyhoop::test {
namespace {

struct ResultsByTeam : testing::Test {
    Bracket results = fourPlayersResults().picks;
    std::vector<Entry> players = fourPlayers();
    std::string title = "Pool";

    std::vector<TeamOutcome> outcomes()
    {
        const auto made = resultsByTeamOutcomes(players, results, kUsualPayoffs);
        EXPECT_TRUE(made);
        return made ? *made : std::vector<TeamOutcome>{};
    }

    ReportLines lines()
    {
        const Result<ReportLines> made = resultsByTeamLines(title, outcomes());
        EXPECT_TRUE(made) << made.failure().message;
        return made ? *made : ReportLines{};
    }

    /// Only one team is left, with this many players.
    ReportLines linesOfOneTeam(std::size_t rows)
    {
        TeamOutcome outcome{"DUKE", std::vector<std::string>(rows, "100,A.THC,090,080,DUKE,UTAH"), 8};
        const Result<ReportLines> made = resultsByTeamLines(title, std::vector{outcome});
        EXPECT_TRUE(made);
        return *made;
    }
};

TEST(ResultsByTeamWorkRow, PacksSixFields)
{
    PlayerScore score;
    score.maxPoints = 108;
    score.fileName = "Smith_JS.THC";
    score.points = 96;
    score.winningPick = "DUKE";
    score.runnerUpPick = "UTAH";

    EXPECT_EQ(resultsByTeamWorkRow(score, 7), "108,Smith_JS.THC,096,007,DUKE,UTAH");
}

TEST(ResultsByTeamRow, IsSplitAgain)
{
    const ResultsByTeamRow row = resultsByTeamRow("108,Smith_JS.THC,096,007,DUKE,");

    EXPECT_EQ(row.best, "108");
    EXPECT_EQ(row.fileName, "Smith_JS.THC");
    EXPECT_EQ(row.sure, "096");
    EXPECT_EQ(row.current, "007");
    EXPECT_EQ(row.winningPick, "DUKE");
    EXPECT_EQ(row.runnerUpPick, "");
}

TEST(ResultsByTeamRow, IsShiftedByACommaInAFileName)
{
    const ResultsByTeamRow row = resultsByTeamRow("108,Smith, Jr.THC,096,007,DUKE,UTAH");

    EXPECT_EQ(row.fileName, "Smith");
    EXPECT_EQ(row.sure, " Jr.THC");
    EXPECT_EQ(row.current, "096");
    EXPECT_EQ(row.winningPick, "007");
    EXPECT_EQ(row.runnerUpPick, "DUKE"); // the last piece is lost
}

TEST(ResultsByTeamRow, IsShiftedByACommaInATeam)
{
    const ResultsByTeamRow row = resultsByTeamRow("108,A.THC,096,007,MIAMI, OHIO,UTAH");

    EXPECT_EQ(row.winningPick, "MIAMI");
    EXPECT_EQ(row.runnerUpPick, " OHIO");
}

TEST_F(ResultsByTeam, RankEveryPlayerByTheBestCaseOfEachTeam)
{
    const ReportLines made = lines();

    ASSERT_EQ(made.size(), 4u + 4u * 10u);
    EXPECT_EQ(made[4], "If CEDAR RAPIDS Wins:");
    EXPECT_EQ(made[5], "                            <-- Points -->  Points");
    EXPECT_EQ(made[6], "                             Best   Shure   Current Team Selections in Final");
    EXPECT_EQ(made[7], "                            ------  ------  ------  ----------------------------");
    EXPECT_EQ(made[8], "   Adams_AB.THC              168     156     128    CEDAR RAPIDS over PINE BLUFF");
    EXPECT_EQ(made[9], "   Dunn_EF.THC               120     108     096    PINE BLUFF over CEDAR RAPIDS");
    EXPECT_EQ(made[10], "   Baker_C.THC               108     096     096    SALT LAKE over OLD HARBOR");
    EXPECT_EQ(made[11], "   Clark_D.THC               000     000     000    NO SELECTION over NO SELECTION");
    EXPECT_EQ(made[12], " ");
    EXPECT_EQ(made[13], " ");
    EXPECT_EQ(made[14], "If OLD HARBOR Wins:"); // no page header in between
}

TEST_F(ResultsByTeam, CentreTheHeaderOnTheFinalPicks)
{
    const ReportLines made = lines();

    // 22 + 58 = 80
    EXPECT_EQ(made[1], std::string(38, ' ') + "Pool");
    EXPECT_EQ(made[2], std::string(28, ' ') + "Projected Results by Team");
}

TEST_F(ResultsByTeam, LeaveOutATeamThatLostItsSemifinal)
{
    results.put(kSemifinalA, "OLD HARBOR");

    const ReportLines made = lines();

    EXPECT_EQ(std::ranges::count(made, "If CEDAR RAPIDS Wins:"), 0);
    for (const char* line : {"If OLD HARBOR Wins:", "If PINE BLUFF Wins:", "If SALT LAKE Wins:"})
        EXPECT_EQ(std::ranges::count(made, line), 1) << line;
}

TEST_F(ResultsByTeam, CutAFileNameToTwentyFourCharacters)
{
    players.resize(1);
    players[0].fileName = "A file name that is far too long_AB.THC";

    EXPECT_EQ(lines()[8], "   A file name that is far   168     156     128    CEDAR RAPIDS over PINE BLUFF");
}

TEST_F(ResultsByTeam, ShowTheRunnerUpOfAPlayerWithoutChampion)
{
    players = {fourPlayers()[2]};
    players[0].picks.put(kSemifinalB, "SALT LAKE");

    EXPECT_TRUE(lines()[8].ends_with("    NO SELECTION over SALT LAKE"));
}

TEST_F(ResultsByTeam, OrderEqualBestCasesByFileNameBackwards)
{
    const Entry adams = players[0];
    players.assign(3, adams);
    players[0].fileName = "b.THC";
    players[1].fileName = "C.THC";
    players[2].fileName = "A.THC";

    const ReportLines made = lines();

    EXPECT_TRUE(made[8].starts_with("   C.THC "));
    EXPECT_TRUE(made[9].starts_with("   b.THC "));
    EXPECT_TRUE(made[10].starts_with("   A.THC "));
}

TEST_F(ResultsByTeam, MakeThePickColumnAsWideAsTheLongestPairOfPicks)
{
    players = {fourPlayers()[1], fourPlayers()[2]}; // SALT LAKE over OLD HARBOR, 9 + 10, and no picks at all

    const ReportLines made = lines();

    EXPECT_EQ(made[1], std::string(36, ' ') + "Pool"); // (19 + 58) / 2 = 38.5 without 2: 36.5
    EXPECT_EQ(made[7], "                            ------  ------  ------  " + std::string(19 + 6, '-'));
    EXPECT_EQ(made[15], made[7]) << "the next team";
}

TEST_F(ResultsByTeam, GiveEachTeamTheColumnOfItsOwnRows)
{
    const Result<ReportLines> made =
        resultsByTeamLines(title, std::vector{TeamOutcome{"DUKE", {}, 8}, TeamOutcome{"UTAH", {}, 10}});

    ASSERT_TRUE(made);
    EXPECT_TRUE((*made)[7].ends_with("  " + std::string(14, '-')));
    EXPECT_TRUE((*made)[13].ends_with("  " + std::string(16, '-')));
}

TEST_F(ResultsByTeam, StartANewPageAfterTheFiftyFifthRowOfATeam)
{
    const ReportLines fiftyFour = linesOfOneTeam(54);
    // 8 + 54 = 62 is not above 62; the two empty lines then make 64, and the page ends after the team.
    ASSERT_EQ(fiftyFour.size(), 8u + 54u + 2u + 1u);
    EXPECT_EQ(std::ranges::count(fiftyFour, "If DUKE Wins (cont.):"), 0);
    EXPECT_EQ(fiftyFour.back(), kFormFeedLine);

    const ReportLines fiftySix = linesOfOneTeam(56);
    ASSERT_EQ(fiftySix.size(), 8u + 55u + 7u + 1u + 2u);
    EXPECT_EQ(fiftySix[62], "   A.THC                     100     090     080    DUKE over UTAH");
    EXPECT_EQ(fiftySix[63], kFormFeedLine);
    EXPECT_EQ(fiftySix[64], " ");
    EXPECT_EQ(fiftySix[65], " ");
    EXPECT_EQ(fiftySix[66], "If DUKE Wins (cont.):");
    EXPECT_EQ(fiftySix[67], "                            <-- Points -->  Points");
    EXPECT_EQ(fiftySix[68], "                             Best   Shure   Current Team Selections in Final");
    EXPECT_EQ(fiftySix[69], "                            ------  ------  ------  --------------");
    EXPECT_EQ(fiftySix[70], "   A.THC                     100     090     080    DUKE over UTAH");
}

TEST_F(ResultsByTeam, WriteTheContinuationHeaderEvenWhenNoRowFollows)
{
    const ReportLines made = linesOfOneTeam(55);

    ASSERT_EQ(made.size(), 8u + 55u + 7u + 2u);
    EXPECT_EQ(made[66], "If DUKE Wins (cont.):");
    EXPECT_EQ(made.back(), " "); // 6 + 2 = 8: the page goes on
}

TEST_F(ResultsByTeam, HoldFiftySevenRowsOnAContinuationPage)
{
    // The counter starts at 6 there: 6 + 56 = 62, 6 + 57 = 63.
    EXPECT_EQ(std::ranges::count(linesOfOneTeam(55 + 56), "If DUKE Wins (cont.):"), 1);
    EXPECT_EQ(std::ranges::count(linesOfOneTeam(55 + 57), "If DUKE Wins (cont.):"), 2);
}

TEST_F(ResultsByTeam, StartTheNextTeamOnANewPageWhenThePageIsPastFifty)
{
    // 4 + 4 + n + 2: 50 with 40 rows, 51 with 41.
    const auto twoTeams = [this](std::size_t rows) {
        const TeamOutcome team{"DUKE", std::vector<std::string>(rows, "100,A.THC,090,080,DUKE,UTAH"), 8};
        const Result<ReportLines> made = resultsByTeamLines(title, std::vector{team, TeamOutcome{"UTAH", {}, 8}});
        EXPECT_TRUE(made);
        return *made;
    };

    const ReportLines forty = twoTeams(40);
    EXPECT_EQ(std::ranges::count(forty, kFormFeedLine), 1); // after the second team: 50 + 4 + 2
    EXPECT_EQ(forty[50], "If UTAH Wins:");

    const ReportLines fortyOne = twoTeams(41);
    EXPECT_EQ(fortyOne[51], kFormFeedLine);
    EXPECT_EQ(fortyOne[52], " ");
    EXPECT_EQ(fortyOne[53], fortyOne[1]);
    EXPECT_EQ(fortyOne[56], "If UTAH Wins:");
}

TEST_F(ResultsByTeam, FailForATitleWiderThanThePage)
{
    // A page of 8 + 58 = 66: 33 - 33 for a title of 66 and one of 67 (33.5 is rounded to 34: -1).
    title = std::string(66, 'T');
    EXPECT_EQ(linesOfOneTeam(1)[1], title);

    title = std::string(67, 'T');
    const TeamOutcome team{"DUKE", {}, 8};
    const Result<ReportLines> made = resultsByTeamLines(title, std::vector{team});
    ASSERT_FALSE(made);
    EXPECT_EQ(made.failure().message, "This text is too wide for the report:\r\n" + title);
}

TEST_F(ResultsByTeam, TakeAStepForEveryPlayerNowAndUnderEachTeamThatCanWin)
{
    results.put(kSemifinalA, "OLD HARBOR"); // CEDAR RAPIDS is out
    int steps = 0;

    EXPECT_TRUE(resultsByTeamOutcomes(players, results, kUsualPayoffs, [&steps] { return ++steps > 0; }));

    EXPECT_EQ(steps, 16); // four players, now and for three teams
}

TEST_F(ResultsByTeam, StopAtTheStepThatCancels)
{
    for (const int last : {1, 4, 6, 8, 20}) {
        int steps = 0;
        EXPECT_TRUE(resultsByTeamOutcomes(players, results, kUsualPayoffs, [&] { return ++steps != last; }));
        EXPECT_EQ(steps, last);
    }
}

} // namespace
} // namespace tallyhoop::test
