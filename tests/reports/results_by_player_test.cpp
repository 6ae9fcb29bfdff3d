// tests/reports/results_by_player_test.cpp - points under each outcome, lines and pages.
#include "reports/results_by_player.h"

#include "pool/scoring.h"
#include "reports/four_players.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace tallyhoop::test {
namespace {

struct ResultsByPlayer : testing::Test {
    Bracket results = fourPlayersResults().picks;
    std::vector<Entry> players = fourPlayers();
    std::string title = "Pool";

    std::vector<ResultsByPlayerRow> rows()
    {
        const auto made = resultsByPlayerRows(players, results, finalOutcomes(results), kUsualPayoffs);
        EXPECT_TRUE(made);
        return made ? *made : std::vector<ResultsByPlayerRow>{};
    }

    Result<ReportLines> report()
    {
        return resultsByPlayerLines(title, finalFourOf(results), finalOutcomes(results), rows());
    }

    ReportLines lines()
    {
        const Result<ReportLines> made = report();
        EXPECT_TRUE(made) << made.failure().message;
        return made ? *made : ReportLines{};
    }

    void keepPlayer(std::size_t index) { players = {fourPlayers()[index]}; }
};

TEST_F(ResultsByPlayer, ShowThePointsUnderEveryOutcome)
{
    keepPlayer(0); // Adams: CEDAR RAPIDS over PINE BLUFF

    // Adams_AB.THC 12, teams 12 + 3 = 15; runner-up 10 + 6 = 16; pages 56 and 57: 57.
    EXPECT_EQ(lines(), (ReportLines{
                           " ",
                           "                          Pool",             // 53 / 2 = 26.5
                           "               Projected Results by Player", // 30 / 2
                           " ",
                           "Adams_AB.THC     Final Game Selection:  CEDAR RAPIDS over PINE BLUFF",
                           "                 Current Points: 128 Maximum Points = 168",
                           "   ------------------------------------------------------",
                           "   CEDAR RAPIDS  winning over  PINE BLUFF    Points = 168",
                           "                 winning over  SALT LAKE     Points = 156",
                           "   OLD HARBOR    winning over  PINE BLUFF    Points = 140",
                           "                 winning over  SALT LAKE     Points = 128",
                           "   PINE BLUFF    winning over  CEDAR RAPIDS  Points = 152",
                           "                 winning over  OLD HARBOR    Points = 140",
                           "   SALT LAKE     winning over  CEDAR RAPIDS  Points = 140",
                           "                 winning over  OLD HARBOR    Points = 128",
                           " ",
                       }));
}

TEST_F(ResultsByPlayer, ShowNeitherLineOfATeamThatLostItsSemifinalAndBothOfTheWinner)
{
    results.put(kSemifinalA, "OLD HARBOR");
    keepPlayer(1); // Baker: SALT LAKE over OLD HARBOR, 96 and 12 for OLD HARBOR

    const ReportLines made = lines();

    ASSERT_EQ(made.size(), 4u + 3u + 4u + 1u);
    EXPECT_EQ(made[7], "   OLD HARBOR    winning over  PINE BLUFF    Points = 108");
    EXPECT_EQ(made[8], "                 winning over  SALT LAKE     Points = 120");
    EXPECT_EQ(made[9], "   PINE BLUFF    winning over  OLD HARBOR    Points = 108");
    EXPECT_EQ(made[10], "   SALT LAKE     winning over  OLD HARBOR    Points = 136");
    EXPECT_EQ(made[11], " ");
}

TEST_F(ResultsByPlayer, NameTheTeamOnTheSecondLineWhenTheFirstIsMissing)
{
    results.put(kSemifinalB, "SALT LAKE"); // PINE BLUFF, the first opponent, is out
    keepPlayer(0);

    const ReportLines made = lines();

    EXPECT_EQ(made[7], "   CEDAR RAPIDS  winning over  SALT LAKE     Points = 156");
    EXPECT_EQ(made[8], "   OLD HARBOR    winning over  SALT LAKE     Points = 128");
}

TEST_F(ResultsByPlayer, ShowOnlyTheBlankLineWhenNoOutcomeIsLeftForATeam)
{
    results.put(kSemifinalA, "OLD HARBOR");
    results.put(kSemifinalB, "SALT LAKE");
    keepPlayer(0);

    const ReportLines made = lines();

    ASSERT_EQ(made.size(), 4u + 3u + 2u + 1u);
    EXPECT_TRUE(made[7].starts_with("   OLD HARBOR    winning over  SALT LAKE"));
    EXPECT_TRUE(made[8].starts_with("   SALT LAKE     winning over  OLD HARBOR"));
    EXPECT_EQ(made[9], " ");
}

TEST_F(ResultsByPlayer, SayThatThereIsNoSelection)
{
    keepPlayer(2);

    EXPECT_EQ(lines()[4], "Clark_D.THC      Final Game Selection:  NO SELECTION & over NO SELECTION");
}

TEST_F(ResultsByPlayer, SayThatThereIsNoChampionButARunnerUp)
{
    keepPlayer(2);
    players[0].picks.put(kSemifinalB, "SALT LAKE");

    EXPECT_EQ(lines()[4], "Clark_D.THC      Final Game Selection:  NO SELECTION & over SALT LAKE");
}

TEST_F(ResultsByPlayer, ProjectPointsThatAreAllEarnedBecauseAllGamesAreDecided)
{
    const ByFinal<FinalOutcome> outcomes = finalOutcomes(results);
    const std::vector<ResultsByPlayerRow> made = rows();
    for (std::size_t player = 0; player < players.size(); ++player)
        for (std::size_t team = 0; team < 4; ++team)
            for (std::size_t opponent = 0; opponent < 2; ++opponent) {
                const Score scored = score(players[player].picks, outcomes[team][opponent]->results, kUsualPayoffs);
                EXPECT_EQ(scored.possible, 0);
                EXPECT_EQ(*made[player].projected[team][opponent], scored.points);
            }
}

TEST_F(ResultsByPlayer, FollowTheOrderOfTheFiles)
{
    std::swap(players[0], players[3]);

    const ReportLines made = lines();

    EXPECT_TRUE(made[4].starts_with("Dunn_EF.THC "));
    EXPECT_TRUE(made[16].starts_with("Baker_C.THC "));
    EXPECT_TRUE(made[40].starts_with("Adams_AB.THC "));
}

TEST_F(ResultsByPlayer, EndThePageAfterTheBlockThatPassesItsEnd)
{
    // 4 + 12 lines a player: 52 after four, 64 after five.
    const Entry adams = players[0];
    players.assign(5, adams);
    ReportLines made = lines();
    ASSERT_EQ(made.size(), 4u + 60u + 1u);
    EXPECT_EQ(made.back(), kFormFeedLine);

    players.assign(4, adams);
    made = lines();
    EXPECT_EQ(made.size(), 4u + 48u);
    EXPECT_EQ(std::ranges::count(made, kFormFeedLine), 0);

    players.assign(6, adams);
    made = lines();
    ASSERT_EQ(made.size(), 4u + 60u + 1u + 4u + 12u);
    EXPECT_TRUE(std::equal(made.begin(), made.begin() + 4, made.begin() + 65));
}

TEST_F(ResultsByPlayer, DoNotEndThePageAtExactlyFiftyFour)
{
    // One semi-final decided: of three teams all second lines are there, and a block counts 3 + 6 + 1 = 10.
    results.put(kSemifinalA, "OLD HARBOR");
    const Entry adams = players[0];
    players.assign(5, adams); // 4 + 5 * 10
    EXPECT_EQ(std::ranges::count(lines(), kFormFeedLine), 0);

    players.assign(6, adams);
    EXPECT_EQ(lines().back(), kFormFeedLine);
}

TEST_F(ResultsByPlayer, DoNotCountTheLineOfATeamThatHasOnlyItsFirst)
{
    // Both semi-finals decided for the first opponents: two teams with one line each, which is not counted.
    results.put(kSemifinalA, "CEDAR RAPIDS");
    results.put(kSemifinalB, "PINE BLUFF");
    const Entry adams = players[0];
    // A block is 3 + 2 lines, counted as 3, and 1: 4 + 4 n; 52 after twelve, 56 after thirteen.
    players.assign(12, adams);
    EXPECT_EQ(std::ranges::count(lines(), kFormFeedLine), 0);

    players.assign(13, adams);
    const ReportLines made = lines();
    EXPECT_EQ(std::ranges::count(made, kFormFeedLine), 1);
    EXPECT_EQ(made.size(), 4u + 13u * 6u + 1u);
    EXPECT_EQ(made.back(), kFormFeedLine);
}

TEST_F(ResultsByPlayer, CountTwoLinesForATeamWhenOnlyItsSecondIsThere)
{
    // The second opponents have won: two teams with one line each, counted as two.
    results.put(kSemifinalA, "OLD HARBOR");
    results.put(kSemifinalB, "SALT LAKE");
    const Entry adams = players[0];
    // A block is counted as 3 + 4 + 1 = 8: 4 + 8 n; 52 after six, 60 after seven.
    players.assign(6, adams);
    EXPECT_EQ(std::ranges::count(lines(), kFormFeedLine), 0);
    players.assign(7, adams);
    EXPECT_EQ(std::ranges::count(lines(), kFormFeedLine), 1);
}

TEST_F(ResultsByPlayer, FailForATitleWiderThanThePage)
{
    keepPlayer(0);
    title = std::string(58, 'T'); // the page is 57: -0.5 blanks are none
    EXPECT_EQ(lines()[1], title);

    title = std::string(59, 'T'); // -1
    const Result<ReportLines> made = report();
    ASSERT_FALSE(made);
    EXPECT_EQ(made.failure().message, "This text is too wide for the report:\r\n" + title);
}

TEST_F(ResultsByPlayer, FailWhenTheLongestRegionWinnerHasFewerThanElevenCharacters)
{
    for (Bracket* each : {&results, &players[0].picks})
        for (const Position position : allPositions())
            if (each->at(position) == "CEDAR RAPIDS")
                each->put(position, "CEDAR");

    const Result<ReportLines> made = report();

    ASSERT_FALSE(made);
    EXPECT_NE(made.failure().message.find("11 characters"), std::string::npos);
}

TEST_F(ResultsByPlayer, WriteTheTwoPointsSideBySideForElevenCharacters)
{
    keepPlayer(2);
    results.put(regionWinner(kWest), "ELEVENCHARS");

    EXPECT_EQ(lines()[5], "                Current Points: 000Maximum Points = 000"); // 14 + 2 blanks, none between
}

TEST_F(ResultsByPlayer, NameTheFileWhoseTieBreakerIsTooLarge)
{
    players[1].finalPoints = "40000";

    const auto made = resultsByPlayerRows(players, results, finalOutcomes(results), kUsualPayoffs);

    ASSERT_FALSE(made);
    EXPECT_NE(made.failure().message.find("Baker_C.THC"), std::string::npos);
}

TEST_F(ResultsByPlayer, StopAfterTheStepThatCancels)
{
    int steps = 0;

    const auto made =
        resultsByPlayerRows(players, results, finalOutcomes(results), kUsualPayoffs, [&steps] { return ++steps < 2; });

    EXPECT_EQ(steps, 2);
    ASSERT_TRUE(made);
    EXPECT_EQ(made->size(), 2u);
}

TEST_F(ResultsByPlayer, CentreTheHeaderWithoutTheWidthOfTheChampion)
{
    keepPlayer(0);
    players[0].picks.put(kSemifinalB, std::string(29, 'R')); // over 29 characters: 15 + 2 + 23 + 29 + 6 = 75
    players[0].picks.put(kSemifinalA, "CEDAR RAPIDS");

    EXPECT_EQ(lines()[1], std::string(36, ' ') + "Pool"); // 71 / 2 = 35.5
}

} // namespace
} // namespace tallyhoop::test
