// tests/screens/reports/reports_screen_refusals_test.cpp - reports that cannot be made: what is said, and what stays as
// it was.
#include "screens/reports/reports_screen_fixture.h"

namespace tallyhoop::test {
namespace {

const std::string kNoResults =
    "Game Results have not been entered, this option\r\nis NOT valid until this activity has been completed";
const std::string kNoFiles = "There aren't any Player Selection files saved,  so the\r\n";

TEST_F(ReportsScreenTest, RefusesTheStandingsWithoutResults)
{
    folder.put("Adams_AB.THC", selectionFile(fourPlayersResults()));
    screen.load();
    tick({kStandings});

    create(kFile);

    EXPECT_EQ(platform.dialogs.shown,
              std::vector{critical("Tallyhoop - frmPoolReports, Tournament Standings", kNoResults)});
    EXPECT_FALSE(isTicked(kStandings));
    EXPECT_FALSE(anyReportWritten());
}

TEST_F(ReportsScreenTest, RefusesTheTeamSelectionsWithoutFilesAndUnticksOnlyTheSummary)
{
    screen.load();
    tick({kTeamSummary, kTeamDetail});
    const ui::Message explanation =
        exclamation("Tallyhoop - TeamSelSetup", kNoFiles + "Team Selection Reports cannot be prepared.");

    create(kFile);

    EXPECT_EQ(platform.dialogs.shown, (std::vector{explanation, explanation}));
    EXPECT_FALSE(isTicked(kTeamSummary));
    EXPECT_TRUE(isTicked(kTeamDetail));
    EXPECT_FALSE(anyReportWritten());
}

TEST_F(ReportsScreenTest, MakesTheOtherReportsWhenOneFails)
{
    putFourPlayers(folder);
    std::filesystem::remove(folder.path() / "TALLYHOOP.THS");
    screen.load();
    tick({kStandings, kTeamSummary, kByTeam});

    create(kFile);

    EXPECT_EQ(platform.dialogs.shown.size(), 2u);
    EXPECT_FALSE(folder.has("RPTOPT1.TXT"));
    EXPECT_TRUE(folder.has("RPTOPT3.TXT"));
    EXPECT_FALSE(folder.has("RPTOPT7.TXT"));
    EXPECT_TRUE(isTicked(kTeamSummary));
}

TEST_F(ReportsScreenTest, PointsToTheHelpOnARefusalUntilAllGoesWell)
{
    putFourPlayers(folder);
    const std::string players = folder.get("PLAYERNAMES.CSV");
    screen.load();
    EXPECT_EQ(screen.helpTopic(), "reports");
    folder.put("PLAYERNAMES.CSV", "nonsense\r\n");
    tick({kListing});
    create(kFile);
    EXPECT_EQ(screen.helpTopic(), "repair");
    folder.put("PLAYERNAMES.CSV", players);
    tick({kListing});
    create(kFile);
    EXPECT_EQ(screen.helpTopic(), "reports");
}

TEST_F(ReportsScreenTest, LeavesAnOlderFileOfAReportThatFails)
{
    folder.put("RPTOPT1.TXT", "older");
    folder.put("TEMPPRT.TXT", "older still");
    screen.load();
    tick({kStandings});

    create(kFile);

    EXPECT_EQ(folder.get("RPTOPT1.TXT"), "older");
    EXPECT_EQ(folder.get("TEMPPRT.TXT"), "older still");
}

TEST_F(ReportsScreenTest, FailsAReportWhoseFileCannotBeWritten)
{
    putFourPlayers(folder);
    std::filesystem::create_directory(folder.path() / "RPTOPT1.TXT");
    screen.load();
    tick({kStandings});

    create(kFile);

    ASSERT_EQ(platform.dialogs.shown.size(), 1u);
    EXPECT_EQ(platform.dialogs.shown[0].caption, "Tallyhoop - frmPoolReports, Tournament Standings");
    EXPECT_EQ(platform.dialogs.shown[0].icon, ui::Icon::Critical);
    EXPECT_FALSE(platform.dialogs.shown[0].text.empty());
    EXPECT_FALSE(isTicked(kStandings));
}

} // namespace
} // namespace tallyhoop::test
