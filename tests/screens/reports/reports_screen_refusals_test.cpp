// tests/screens/reports/reports_screen_refusals_test.cpp - reports that cannot be made: what is said, and what stays as
// it was.
#include "screens/reports/reports_screen_fixture.h"

namespace tallyhoop::test {
namespace {

const std::string kNoResults =
    "Game Results have not been entered, this option\r\nis NOT valid until this activity has been completed";
const std::string kNoFiles = "There aren't any Player Selection files saved,  so the\r\n";

TEST_F(ReportsScreenTest, RefusesTheStandingsWithoutSelectionFiles)
{
    screen.load();
    tick({kStandings});

    create(kFile);

    EXPECT_EQ(platform.dialogs.shown,
              std::vector{critical("Tallyhoop - frmPoolReports, Tournament Standings",
                                   kNoFiles + "\"Tournament Standings Report\" cannot be prepared.")});
    EXPECT_FALSE(isTicked(kStandings));
    EXPECT_FALSE(anyReportWritten());
}

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

TEST_F(ReportsScreenTest, RefusesTheProjectionsWithoutSelectionFiles)
{
    screen.load();
    tick({kByPlayer, kByTeam});

    create(kFile);

    EXPECT_EQ(platform.dialogs.shown,
              (std::vector{critical("Tallyhoop - frmPoolReports, Results by Player",
                                    kNoFiles + "\"Projected Results by Player\" report cannot be prepared."),
                           critical("Tallyhoop - frmPoolReports, Results by Team",
                                    kNoFiles + "\"Projected Results by Team\" report cannot be prepared.")}));
    EXPECT_FALSE(isTicked(kByPlayer));
    EXPECT_FALSE(isTicked(kByTeam));
    EXPECT_FALSE(anyReportWritten());
}

TEST_F(ReportsScreenTest, RefusesTheProjectionsWithoutResults)
{
    folder.put("Adams_AB.THC", selectionFile(fourPlayersResults()));
    screen.load();
    tick({kByPlayer, kByTeam});

    create(kFile);

    EXPECT_EQ(platform.dialogs.shown,
              (std::vector{critical("Tallyhoop - frmPoolReports, Results by Player", kNoResults),
                           critical("Tallyhoop - frmPoolReports, Results by Team", kNoResults)}));
    EXPECT_FALSE(isTicked(kByPlayer));
    EXPECT_FALSE(isTicked(kByTeam));
    EXPECT_FALSE(anyReportWritten());
}

TEST_F(ReportsScreenTest, RefusesTheProjectionsWhileAnyOfTheFinalFourIsMissing)
{
    putFourPlayers(folder);
    const ui::Message explanation =
        exclamation("Tallyhoop - frmPoolReports, ChkFinalFour", "You will need to enter the four teams that have\r\n"
                                                                "progressed to the Final Four before this option\r\n"
                                                                "can be selected.\r\n\r\n"
                                                                "Please correct and re-select this option.");
    screen.load();
    for (int region = 0; region < kRegions; ++region) {
        Entry results = fourPlayersResults();
        results.picks.clear(regionWinner(region));
        folder.put("TALLYHOOP.THS", selectionFile(results));
        platform.dialogs.shown.clear();
        tick({kByPlayer, kByTeam});

        create(kFile);

        EXPECT_EQ(platform.dialogs.shown, (std::vector{explanation, explanation})) << region;
        EXPECT_FALSE(isTicked(kByPlayer));
        EXPECT_FALSE(isTicked(kByTeam));
    }
    EXPECT_FALSE(anyReportWritten());
}

TEST_F(ReportsScreenTest, RefusesTheProjectionsOnceTheChampionIsKnown)
{
    putFourPlayers(folder);
    folder.put(
        "TALLYHOOP.THS",
        selectionFile(EntryBuilder{}.upperRowsWinEverywhere().finals("OLD HARBOR", "SALT LAKE", "SALT LAKE").entry));
    const ui::Message explanation =
        exclamation("Tallyhoop - frmPoolReports, ChkFinalFour",
                    "You have already scored the tournament winner, so\r\na projection isn't meaningful");
    screen.load();
    tick({kByPlayer, kByTeam});

    create(kFile);

    EXPECT_EQ(platform.dialogs.shown, (std::vector{explanation, explanation}));
    EXPECT_FALSE(isTicked(kByPlayer));
    EXPECT_FALSE(isTicked(kByTeam));
    EXPECT_FALSE(anyReportWritten());
}

TEST_F(ReportsScreenTest, RefusesThePlayerSelectionDetailWithoutFilesAndLeavesItTicked)
{
    screen.load();
    tick({kPlayerDetail});

    create(kFile);

    EXPECT_EQ(platform.dialogs.shown,
              (std::vector{ui::Message{"Tallyhoop - frmPoolReports, Player Selection Detail",
                                       kNoFiles + "\"Player Selection Detail\" report cannot be prepared.",
                                       ui::Buttons::Ok, ui::Icon::None}}));
    EXPECT_TRUE(isTicked(kPlayerDetail));
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

TEST_F(ReportsScreenTest, RefusesThePlayerListingOfAFaultyList)
{
    folder.put("PLAYERNAMES.CSV", "nonsense\r\n");
    screen.load();
    tick({kListing});

    create(kFile);

    ASSERT_EQ(platform.dialogs.shown.size(), 2u);
    EXPECT_EQ(platform.dialogs.shown[0].caption, "** ERROR Found in PLAYERNAMES.CSV file **");
    ui::Message refusal =
        critical("TALLYHOOP - frmPoolReports, Player Listing", "Problems found with PLAYERNAMES.CSV file\r\n"
                                                               "This condition must be corrected, See Help content");
    refusal.helpTopic = "repair";
    EXPECT_EQ(platform.dialogs.shown[1], refusal);
    EXPECT_FALSE(isTicked(kListing));
    EXPECT_FALSE(anyReportWritten());
}

TEST_F(ReportsScreenTest, ListsPlayersWithoutAnySelectionFileOrResults)
{
    putFourPlayers(folder);
    std::filesystem::remove(folder.path() / "TALLYHOOP.THS");
    for (const Entry& player : fourPlayers())
        std::filesystem::remove(folder.path() / player.fileName);
    screen.load();
    tick({kListing});

    create(kFile);

    EXPECT_TRUE(platform.dialogs.shown.empty());
    EXPECT_TRUE(folder.has("RPTOPT2.TXT"));
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

TEST_F(ReportsScreenTest, FailsEveryReportThatDoesNotClampForATitleThatIsTooWide)
{
    putFourPlayers(folder);
    screen.load();
    screen.txtReportTitle.text = std::string(130, 'T');
    tickAll();

    create(kFile);

    const std::string reason = "This text is too wide for the report:\r\n" + std::string(130, 'T');
    EXPECT_EQ(platform.dialogs.shown,
              (std::vector{critical("Tallyhoop - frmPoolReports, Team Selection Summary", reason),
                           critical("Tallyhoop - frmPoolReports, Team Selection Detail", reason),
                           critical("Tallyhoop - frmPoolReports, Player Selection Detail", reason),
                           critical("Tallyhoop - frmPoolReports, Results by Player", reason),
                           critical("Tallyhoop - frmPoolReports, Results by Team", reason)}));
    for (const Report report : {kTeamSummary, kTeamDetail, kPlayerDetail, kByPlayer, kByTeam})
        EXPECT_FALSE(isTicked(report));
    EXPECT_TRUE(isTicked(kStandings));
    EXPECT_TRUE(isTicked(kListing));
    for (const char* file : {"RPTOPT3.TXT", "RPTOPT4.TXT", "RPTOPT5.TXT", "RPTOPT6.TXT", "RPTOPT7.TXT"})
        EXPECT_FALSE(folder.has(file)) << file;
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

TEST_F(ReportsScreenTest, FailsAReportForATieBreakerBeyondSixteenBits)
{
    putFourPlayers(folder);
    folder.put("Baker_C.THC", selectionFile(EntryBuilder{}.player("C", "Baker", "99999").entry));
    screen.load();
    tick({kStandings});

    create(kFile);

    ASSERT_EQ(platform.dialogs.shown.size(), 1u);
    EXPECT_EQ(platform.dialogs.shown[0].caption, "Tallyhoop - frmPoolReports, Tournament Standings");
    EXPECT_EQ(platform.dialogs.shown[0].icon, ui::Icon::Critical);
    EXPECT_NE(platform.dialogs.shown[0].text.find("Baker_C.THC"), std::string::npos);
    EXPECT_FALSE(isTicked(kStandings));
}

TEST_F(ReportsScreenTest, FailsAReportForAPayoffThatDoesNotFit)
{
    putFourPlayers(folder);
    field.payoffs = PayoffTexts{{"1", "2", "4", "8", "12", "40000"}};
    screen.load();
    tick({kStandings, kByPlayer, kByTeam});

    create(kFile);

    const std::string reason = "The number \"40000\" is out of range: it must lie between -32768 and 32767.";
    EXPECT_EQ(platform.dialogs.shown, (std::vector{critical("Tallyhoop - frmPoolReports, Tournament Standings", reason),
                                                   critical("Tallyhoop - frmPoolReports, Results by Player", reason),
                                                   critical("Tallyhoop - frmPoolReports, Results by Team", reason)}));
    EXPECT_FALSE(anyReportWritten());
}

TEST_F(ReportsScreenTest, NamesADamagedFileOncePerReportAndGoesOnWithWhatWasRead)
{
    putFourPlayers(folder);
    folder.put("Baker_C.THC", "only one line\r\n");
    screen.load();
    tick({kByTeam, kByPlayer});

    create(kFile);

    EXPECT_EQ(platform.dialogs.captionsShown(),
              (std::vector<std::string>(2, "** ERROR IN OPENING FILE - ReadSelections Routine **")));
    EXPECT_NE(platform.dialogs.shown[0].text.find("Baker_C.THC"), std::string::npos);
    EXPECT_TRUE(folder.has("RPTOPT6.TXT"));
    EXPECT_TRUE(folder.has("RPTOPT7.TXT"));
    EXPECT_TRUE(isTicked(kByTeam));
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
