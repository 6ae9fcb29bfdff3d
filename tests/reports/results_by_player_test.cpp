// tests/reports/results_by_player_test.cpp - points under each outcome, lines and pages.
#include "reports/results_by_player.h"

#include "fakes/fake_platform.h"
#include "reports/report_pool.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace tallyhoop::test {
namespace {

const FinalFour kFour{"", "CEDAR RAPIDS", "OLD HARBOR", "PINE BLUFF", "SALT LAKE"};

struct ResultsByPlayer : testing::Test {
    SelectionLines results = fourPlayersResults().lines;
    FinalFour finalFour = kFour;
    ReadPool pool = fourPlayers();
    std::string title = "Pool";
    FakeProgress progress;

    std::vector<ResultsByPlayerRow> rows()
    {
        Work work{progress, "rows", pool.players.size()};
        const auto made = resultsByPlayerRows(pool, results, finalOutcomes(results, finalFour), kUsualPayoffs, work);
        EXPECT_TRUE(made);
        return made ? *made : std::vector<ResultsByPlayerRow>{};
    }

    Result<ReportLines> report()
    {
        return resultsByPlayerLines(title, finalFour, finalOutcomes(results, finalFour), rows());
    }

    ReportLines lines()
    {
        const Result<ReportLines> made = report();
        EXPECT_TRUE(made) << made.failure().message;
        return made ? *made : ReportLines{};
    }

    void keepPlayers(std::initializer_list<std::size_t> kept)
    {
        ReadPool fewer;
        for (const std::size_t index : kept)
            fewer.players.push_back(pool.players[index]);
        pool = fewer;
    }
};

TEST_F(ResultsByPlayer, ShowThePointsUnderEveryOutcome)
{
    keepPlayers({0}); // Adams: CEDAR RAPIDS over PINE BLUFF

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
    results[125] = "OLD HARBOR";
    keepPlayers({1}); // Baker: SALT LAKE over OLD HARBOR, 96 and 12 for OLD HARBOR

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
    results[126] = "SALT LAKE"; // PINE BLUFF, the first opponent, is out
    keepPlayers({0});

    const ReportLines made = lines();

    EXPECT_EQ(made[7], "   CEDAR RAPIDS  winning over  SALT LAKE     Points = 156");
    EXPECT_EQ(made[8], "   OLD HARBOR    winning over  SALT LAKE     Points = 128");
}

TEST_F(ResultsByPlayer, ShowOnlyTheBlankLineWhenNoOutcomeIsLeftForATeam)
{
    results[125] = "OLD HARBOR";
    results[126] = "SALT LAKE";
    keepPlayers({0});

    const ReportLines made = lines();

    ASSERT_EQ(made.size(), 4u + 3u + 2u + 1u);
    EXPECT_TRUE(made[7].starts_with("   OLD HARBOR    winning over  SALT LAKE"));
    EXPECT_TRUE(made[8].starts_with("   SALT LAKE     winning over  OLD HARBOR"));
    EXPECT_EQ(made[9], " ");
}

TEST_F(ResultsByPlayer, SayThatThereIsNoSelection)
{
    keepPlayers({2});

    EXPECT_EQ(lines()[4], "Clark_D.THC      Final Game Selection:  NO SELECTION & over NO SELECTION");
}

TEST_F(ResultsByPlayer, SayThatThereIsNoChampionButARunnerUp)
{
    keepPlayers({2});
    pool.players[0].lines[126] = "SALT LAKE";

    EXPECT_EQ(lines()[4], "Clark_D.THC      Final Game Selection:  NO SELECTION & over SALT LAKE");
}

TEST_F(ResultsByPlayer, ProjectPointsThatAreAllEarnedBecauseAllGamesAreDecided)
{
    const ByFinal<FinalOutcome> outcomes = finalOutcomes(results, finalFour);
    const std::vector<ResultsByPlayerRow> made = rows();
    for (std::size_t player = 0; player < pool.players.size(); ++player)
        for (std::size_t team = 0; team < 4; ++team)
            for (std::size_t opponent = 0; opponent < 2; ++opponent) {
                const ScoredPicks scored =
                    Scoring{outcomes[team][opponent]->results, kUsualPayoffs}.score(pool.players[player].lines);
                EXPECT_EQ(scored.possible, 0);
                EXPECT_EQ(*made[player].projected[team][opponent], scored.points);
            }
}

TEST_F(ResultsByPlayer, FollowTheOrderOfTheFiles)
{
    std::swap(pool.players[0], pool.players[3]);

    const ReportLines made = lines();

    EXPECT_TRUE(made[4].starts_with("Dunn_EF.THC "));
    EXPECT_TRUE(made[16].starts_with("Baker_C.THC "));
    EXPECT_TRUE(made[40].starts_with("Adams_AB.THC "));
}

TEST_F(ResultsByPlayer, EndThePageAfterTheBlockThatPassesItsEnd)
{
    // 4 + 12 lines a player: 52 after four, 64 after five.
    const PoolEntry adams = pool.players[0];
    pool.players.assign(5, adams);
    ReportLines made = lines();
    ASSERT_EQ(made.size(), 4u + 60u + 1u);
    EXPECT_EQ(made.back(), kFormFeedLine);

    pool.players.assign(4, adams);
    made = lines();
    EXPECT_EQ(made.size(), 4u + 48u);
    EXPECT_EQ(std::ranges::count(made, kFormFeedLine), 0);

    pool.players.assign(6, adams);
    made = lines();
    ASSERT_EQ(made.size(), 4u + 60u + 1u + 4u + 12u);
    EXPECT_TRUE(std::equal(made.begin(), made.begin() + 4, made.begin() + 65));
}

TEST_F(ResultsByPlayer, DoNotEndThePageAtExactlyFiftyFour)
{
    // Both semi-finals decided for the first opponents: two teams with one line each, which is not counted.
    results[125] = "CEDAR RAPIDS";
    results[126] = "PINE BLUFF";
    const PoolEntry adams = pool.players[0];
    // A block is 3 + 2 lines, counted as 3, and 1: 4 + 4 n; 52 after twelve, 56 after thirteen.
    pool.players.assign(12, adams);
    EXPECT_EQ(std::ranges::count(lines(), kFormFeedLine), 0);

    pool.players.assign(13, adams);
    const ReportLines made = lines();
    EXPECT_EQ(std::ranges::count(made, kFormFeedLine), 1);
    EXPECT_EQ(made.size(), 4u + 13u * 6u + 1u);
    EXPECT_EQ(made.back(), kFormFeedLine);
}

TEST_F(ResultsByPlayer, CountTwoLinesForATeamWhenOnlyItsSecondIsThere)
{
    // The second opponents have won: two teams with one line each, counted as two.
    results[125] = "OLD HARBOR";
    results[126] = "SALT LAKE";
    const PoolEntry adams = pool.players[0];
    // A block is counted as 3 + 4 + 1 = 8: 4 + 8 n; 52 after six, 60 after seven.
    pool.players.assign(6, adams);
    EXPECT_EQ(std::ranges::count(lines(), kFormFeedLine), 0);
    pool.players.assign(7, adams);
    EXPECT_EQ(std::ranges::count(lines(), kFormFeedLine), 1);
}

TEST_F(ResultsByPlayer, FailForATitleWiderThanThePage)
{
    keepPlayers({0});
    title = std::string(58, 'T'); // the page is 57: -0.5 blanks are none
    EXPECT_EQ(lines()[1], title);

    title = std::string(59, 'T'); // -1
    const Result<ReportLines> made = report();
    ASSERT_FALSE(made);
    EXPECT_EQ(made.failure().message, "This text is too wide for the report:\r\n" + title);
}

TEST_F(ResultsByPlayer, FailWhenTheLongestRegionWinnerHasFewerThanElevenCharacters)
{
    for (SelectionLines* each : {&results, &pool.players[0].lines})
        for (std::string& line : *each)
            if (line == "CEDAR RAPIDS")
                line = "CEDAR";
    finalFour[1] = "CEDAR";

    const Result<ReportLines> made = report();

    ASSERT_FALSE(made);
    EXPECT_NE(made.failure().message.find("11 characters"), std::string::npos);
}

TEST_F(ResultsByPlayer, WriteTheTwoPointsSideBySideForElevenCharacters)
{
    keepPlayers({2});
    results[31] = finalFour[1] = "ELEVENCHARS";

    EXPECT_EQ(lines()[5], "                Current Points: 000Maximum Points = 000"); // 14 + 2 blanks, none between
}

TEST_F(ResultsByPlayer, NameTheFileWhoseTieBreakerIsTooLarge)
{
    pool.players[1].lines[selection_line::kFinalPoints] = "40000";
    Work work{progress, "rows", pool.players.size()};

    const auto made = resultsByPlayerRows(pool, results, finalOutcomes(results, finalFour), kUsualPayoffs, work);

    ASSERT_FALSE(made);
    EXPECT_NE(made.failure().message.find("Baker_C.THC"), std::string::npos);
}

TEST_F(ResultsByPlayer, StopWhenThePersonCancels)
{
    progress.cancelAt = 2;
    Work work{progress, "rows", pool.players.size()};

    const auto made = resultsByPlayerRows(pool, results, finalOutcomes(results, finalFour), kUsualPayoffs, work);

    EXPECT_TRUE(work.cancelled());
    ASSERT_TRUE(made);
    EXPECT_EQ(made->size(), 2u);
}

} // namespace
} // namespace tallyhoop::test
