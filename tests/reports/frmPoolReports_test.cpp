// tests/reports/frmPoolReports_test.cpp - opening, ticking, creating, refusing, closing.
#include "reports/reports_screen.h"

#include <algorithm>

namespace tallyhoop::test {
namespace {

const std::string kNoResults =
    "Game Results have not been entered, this option\r\nis NOT valid until this activity has been completed";
const std::string kNoFiles = "There aren't any Player Selection files saved,  so the\r\n";

TEST_F(ReportsScreen, OpensWithNothingTickedThePrinterChosenAndThePoolsTitle)
{
    putFourPlayers(folder);
    folder.put("lower.thc", "");
    state.mailDraft.cancelled = true;

    screen.load();

    EXPECT_EQ(screen.caption, "Tallyhoop Reports");
    EXPECT_EQ(screen.txtReportTitle.text, "Office Pool 2001");
    for (std::size_t i = 0; i < kReports; ++i)
        EXPECT_FALSE(screen.chkOptions[i].ticked);
    EXPECT_TRUE(screen.optDestination[0].selected);
    for (std::size_t i = 1; i < 4; ++i)
        EXPECT_FALSE(screen.optDestination[i].selected);
    EXPECT_FALSE(screen.optSelected[0].selected);
    EXPECT_FALSE(screen.optSelected[1].selected);
    EXPECT_EQ(screen.filList.rows,
              (std::vector<std::string>{"Adams_AB.THC", "Baker_C.THC", "Clark_D.THC", "Dunn_EF.THC", "lower.thc"}));
    EXPECT_FALSE(screen.filList.selected);
    EXPECT_EQ(screen.cmdDefaultPrinter.caption, "Use default printer");
    EXPECT_FALSE(state.mailDraft.cancelled);
    EXPECT_FALSE(board.reportsEnabled);
}

TEST_F(ReportsScreen, HasTheCaptionsThatPeopleKnow)
{
    const std::array<const char*, 7> reports{
        "Tournament Standings (RPTOPT1.TXT)",     "Player Listing (RPTOPT2.TXT)",
        "Team Selection Summary (RPTOPT3.TXT)",   "Team Selection Detail (RPTOPT4.TXT)",
        "Player Selection Detail (RPTOPT5.TXT)",  "Projected Results by Player (RPTOPT6.TXT)",
        "Projected Results by Team (RPTOPT7.TXT)"};
    const std::array<const char*, 4> destinations{"Printer", "File", "Email", "Email All Participants"};
    for (std::size_t i = 0; i < reports.size(); ++i)
        EXPECT_EQ(screen.chkOptions[i].caption, reports[i]);
    for (std::size_t i = 0; i < destinations.size(); ++i)
        EXPECT_EQ(screen.optDestination[i].caption, destinations[i]);
    EXPECT_EQ(screen.optSelected[0].caption, "Scored Player Selections (Select File at right --->)");
    EXPECT_EQ(screen.optSelected[1].caption, "Tournament Results Sheet");
    EXPECT_EQ(screen.cmdPrintSelections.caption, "Create Selected Reports");
    EXPECT_EQ(screen.cmdSelectedPrintouts.caption, "Create Selected Printout");
    EXPECT_EQ(screen.cmdCustomReport.caption, "Goto Custom Reporting");
    EXPECT_EQ(screen.cmdExit.caption, "Exit Reports");
    EXPECT_EQ(screen.lblReportSelections.text, "Report Selections");
    EXPECT_EQ(screen.lblDestination.text, "Destination");
    EXPECT_EQ(screen.lblReportTitle.text, "Report Titles:");
    EXPECT_EQ(screen.fraMultipleOutput.text, "Multiple Output Options");
    EXPECT_EQ(screen.fraPrinterOnly.text, "Printer Only Options");
    EXPECT_EQ(screen.fraCustomReports.text, "Custom Reports Option");
}

TEST_F(ReportsScreen, SelectsOneDestinationAtATime)
{
    screen.optDestination[2].selected = true;
    screen.optDestination[2].changed();

    EXPECT_FALSE(screen.optDestination[0].selected);
    EXPECT_TRUE(screen.optDestination[2].selected);
}

TEST_F(ReportsScreen, ExplainsThatSomethingMustBeTickedWhateverTheDestination)
{
    putFourPlayers(folder);
    screen.load();
    const ui::Message explanation = exclamation("Tallyhoop - frmPoolReports, PrintSelections_Click ",
                                                "You will need to select one of the Report Selections before\r\n"
                                                "choosing the \"Create Selected Reports\" Command Button");

    for (const Destination destination : {kPrinter, kFile, kEmail, kEmailAll}) {
        platform.dialogs.shown.clear();
        create(destination);
        EXPECT_EQ(platform.dialogs.shown, std::vector{explanation});
    }

    EXPECT_FALSE(anyReportWritten());
    EXPECT_TRUE(screens.loads.empty());
    EXPECT_TRUE(platform.printer.texts.empty());
}

TEST_F(ReportsScreen, LeavesExactlyTheFileOfEachTickedReport)
{
    putFourPlayers(folder);
    folder.put("RPTOPT1.TXT", "older");
    screen.load();
    tick({kStandings, kTeamSummary});

    create(kFile);

    EXPECT_TRUE(platform.dialogs.shown.empty());
    EXPECT_TRUE(folder.get("RPTOPT1.TXT").find("Tournament Standings") != std::string::npos);
    EXPECT_TRUE(folder.get("RPTOPT3.TXT").find("Team Selection Summary") != std::string::npos);
    EXPECT_EQ(folder.get("TEMPPRT.TXT"), folder.get("RPTOPT3.TXT")); // the last report made
    for (const char* file : {"RPTOPT2.TXT", "RPTOPT4.TXT", "RPTOPT5.TXT", "RPTOPT6.TXT", "RPTOPT7.TXT"})
        EXPECT_FALSE(folder.has(file)) << file;
    EXPECT_TRUE(isTicked(kStandings));
    EXPECT_TRUE(isTicked(kTeamSummary));
    EXPECT_TRUE(screens.loads.empty());
}

TEST_F(ReportsScreen, PutsTheTitleAsItStandsOnTheScreenOnTheReport)
{
    putFourPlayers(folder);
    screen.load();
    screen.txtReportTitle.text = "Second Week";
    tick({kTeamSummary});

    create(kFile);

    EXPECT_NE(folder.get("RPTOPT3.TXT").find(" Second Week\r\n"), std::string::npos);
    EXPECT_EQ(folder.get("RPTOPT3.TXT").find("Office Pool"), std::string::npos);
}

TEST_F(ReportsScreen, TakesTheFilesThatAreThereNowAndKeepsTheChosenOne)
{
    putFourPlayers(folder);
    screen.load();
    screen.filList.selected = 1; // Baker_C.THC
    folder.put("Able_A.THC", fourPlayersResults().file());
    tick({kStandings});

    create(kFile);

    EXPECT_EQ(screen.filList.rows.size(), 5u);
    EXPECT_EQ(screen.filList.selectedText(), "Baker_C.THC");
    EXPECT_NE(folder.get("RPTOPT1.TXT").find("Able_A.THC"), std::string::npos);
}

TEST_F(ReportsScreen, UsesThePayoffsOfTheBoard)
{
    putFourPlayers(folder);
    board.shownPayoffs = Payoffs{2, 0, 0, 0, 0, 0};
    screen.load();
    tick({kStandings});

    create(kFile);

    EXPECT_NE(folder.get("RPTOPT1.TXT").find("\r\n 064   AB, Adams"), std::string::npos); // 32 games at 2
}

TEST_F(ReportsScreen, RefusesTheStandingsWithoutSelectionFiles)
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

TEST_F(ReportsScreen, RefusesTheStandingsWithoutResults)
{
    folder.put("Adams_AB.THC", fourPlayersResults().file());
    screen.load();
    tick({kStandings});

    create(kFile);

    EXPECT_EQ(platform.dialogs.shown,
              std::vector{critical("Tallyhoop - frmPoolReports, Tournament Standings", kNoResults)});
    EXPECT_FALSE(isTicked(kStandings));
    EXPECT_FALSE(anyReportWritten());
}

TEST_F(ReportsScreen, RefusesTheProjectionsWithoutSelectionFiles)
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

TEST_F(ReportsScreen, RefusesTheProjectionsWithoutResults)
{
    folder.put("Adams_AB.THC", fourPlayersResults().file());
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

TEST_F(ReportsScreen, RefusesTheProjectionsWhileAnyOfTheFinalFourIsMissing)
{
    putFourPlayers(folder);
    const ui::Message explanation =
        exclamation("Tallyhoop - frmPoolReports, ChkFinalFour", "You will need to enter the four teams that have\r\n"
                                                                "progressed to the Final Four before this option\r\n"
                                                                "can be selected.\r\n\r\n"
                                                                "Please correct and re-select this option.");
    screen.load();
    for (const std::size_t line : {31u, 62u, 93u, 124u}) {
        Bracket results = fourPlayersResults();
        results.lines[line].clear();
        folder.put("TALLYHOOP.THS", results.file());
        platform.dialogs.shown.clear();
        tick({kByPlayer, kByTeam});

        create(kFile);

        EXPECT_EQ(platform.dialogs.shown, (std::vector{explanation, explanation})) << line;
        EXPECT_FALSE(isTicked(kByPlayer));
        EXPECT_FALSE(isTicked(kByTeam));
    }
    EXPECT_FALSE(anyReportWritten());
}

TEST_F(ReportsScreen, RefusesTheProjectionsOnceTheChampionIsKnown)
{
    putFourPlayers(folder);
    folder.put("TALLYHOOP.THS", fourPlayersResults().finals("OLD HARBOR", "SALT LAKE", "SALT LAKE").file());
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

TEST_F(ReportsScreen, RefusesThePlayerSelectionDetailWithoutFilesAndLeavesItTicked)
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

TEST_F(ReportsScreen, RefusesTheTeamSelectionsWithoutFilesAndUnticksOnlyTheSummary)
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

TEST_F(ReportsScreen, RefusesThePlayerListingOfAFaultyList)
{
    folder.put("PLAYERNAMES.CSV", "nonsense\r\n");
    screen.load();
    tick({kListing});

    create(kFile);

    ASSERT_EQ(platform.dialogs.shown.size(), 2u);
    EXPECT_EQ(platform.dialogs.shown[0].caption, "** ERROR Found in PLAYERNAMES.CSV file **");
    EXPECT_EQ(platform.dialogs.shown[1], critical("TALLYHOOP - frmPoolReports, Player Listing",
                                                  "Problems found with PLAYERNAMES.CSV file\r\n"
                                                  "This condition must be corrected, See Help content"));
    EXPECT_FALSE(isTicked(kListing));
    EXPECT_FALSE(anyReportWritten());
}

TEST_F(ReportsScreen, ListsPlayersWithoutAnySelectionFileOrResults)
{
    putFourPlayers(folder);
    std::filesystem::remove(folder.path() / "TALLYHOOP.THS");
    for (const PoolEntry& player : fourPlayers().players)
        std::filesystem::remove(folder.path() / player.fileName);
    screen.load();
    tick({kListing});

    create(kFile);

    EXPECT_TRUE(platform.dialogs.shown.empty());
    EXPECT_TRUE(folder.has("RPTOPT2.TXT"));
}

TEST_F(ReportsScreen, MakesTheOtherReportsWhenOneFails)
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

TEST_F(ReportsScreen, FailsEveryReportThatDoesNotClampForATitleThatIsTooWide)
{
    putFourPlayers(folder);
    screen.load();
    screen.txtReportTitle.text = std::string(130, 'T');
    tick({kStandings, kListing, kTeamSummary, kTeamDetail, kPlayerDetail, kByPlayer, kByTeam});

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

TEST_F(ReportsScreen, LeavesAnOlderFileOfAReportThatFails)
{
    folder.put("RPTOPT1.TXT", "older");
    folder.put("TEMPPRT.TXT", "older still");
    screen.load();
    tick({kStandings});

    create(kFile);

    EXPECT_EQ(folder.get("RPTOPT1.TXT"), "older");
    EXPECT_EQ(folder.get("TEMPPRT.TXT"), "older still");
}

TEST_F(ReportsScreen, FailsAReportForATieBreakerBeyondSixteenBits)
{
    putFourPlayers(folder);
    folder.put("Baker_C.THC", Bracket{}.player("C", "Baker", "99999").file());
    screen.load();
    tick({kStandings});

    create(kFile);

    ASSERT_EQ(platform.dialogs.shown.size(), 1u);
    EXPECT_EQ(platform.dialogs.shown[0].caption, "Tallyhoop - frmPoolReports, Tournament Standings");
    EXPECT_EQ(platform.dialogs.shown[0].icon, ui::Icon::Critical);
    EXPECT_NE(platform.dialogs.shown[0].text.find("Baker_C.THC"), std::string::npos);
    EXPECT_FALSE(isTicked(kStandings));
}

TEST_F(ReportsScreen, FailsAReportForAPayoffThatDoesNotFit)
{
    putFourPlayers(folder);
    board.shownPayoffs = Failure{"The payoff is too large."};
    screen.load();
    tick({kStandings, kByPlayer, kByTeam});

    create(kFile);

    EXPECT_EQ(platform.dialogs.shown,
              (std::vector{critical("Tallyhoop - frmPoolReports, Tournament Standings", "The payoff is too large."),
                           critical("Tallyhoop - frmPoolReports, Results by Player", "The payoff is too large."),
                           critical("Tallyhoop - frmPoolReports, Results by Team", "The payoff is too large.")}));
    EXPECT_FALSE(anyReportWritten());
}

TEST_F(ReportsScreen, NamesADamagedFileOncePerReportAndGoesOnWithWhatWasRead)
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

TEST_F(ReportsScreen, IsNoLongerBusyWhenAMessageIsShown)
{
    putFourPlayers(folder);
    folder.put("Baker_C.THC", "only one line\r\n");
    screen.load();
    tick({kStandings});
    platform.dialogs.whileShown = [this](const ui::Message&) {
        EXPECT_EQ(platform.progress.begun, platform.progress.ended);
    };

    create(kFile);

    EXPECT_GT(platform.progress.begun, 0);
    EXPECT_EQ(platform.progress.begun, platform.progress.ended);
}

TEST_F(ReportsScreen, SaysSoWhenThePersonCancelsAndLeavesTheFilesAsTheyAre)
{
    putFourPlayers(folder);
    folder.put("RPTOPT1.TXT", "older");
    platform.progress.cancelAt = 3;
    screen.load();
    tick({kStandings, kTeamSummary});

    create(kEmail);

    EXPECT_EQ(platform.dialogs.shown, (std::vector{ui::Message{"Tallyhoop - frmPoolReports, Tournament Standings",
                                                               "The report was cancelled: no report was made.",
                                                               ui::Buttons::Ok, ui::Icon::Information}}));
    EXPECT_EQ(folder.get("RPTOPT1.TXT"), "older");
    EXPECT_FALSE(folder.has("RPTOPT3.TXT"));
    EXPECT_FALSE(folder.has("TEMPPRT.TXT"));
    EXPECT_TRUE(isTicked(kStandings));
    EXPECT_TRUE(screens.loads.empty());
    EXPECT_EQ(platform.progress.begun, platform.progress.ended);
}

TEST_F(ReportsScreen, FailsAReportWhoseFileCannotBeWritten)
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

TEST_F(ReportsScreen, LeavesTheSharedLinesAlone)
{
    putFourPlayers(folder);
    state.selectionLines[127] = "on the board";
    screen.load();
    tick({kStandings, kByPlayer, kByTeam});

    create(kFile);

    EXPECT_EQ(state.selectionLines[127], "on the board");
}

TEST_F(ReportsScreen, ClosesByItsExitButtonAndByTheWindowsOwn)
{
    screen.load();

    screen.cmdExit.click();
    screen.closeRequested();

    EXPECT_EQ(screens.unloads, (std::vector{ScreenKind::Reports, ScreenKind::Reports}));
    EXPECT_EQ(platform.mail.signOffs, 0);
}

TEST_F(ReportsScreen, SignsOffAMailSessionThatIsStillOpenWhenItCloses)
{
    screen.load();
    platform.mail.open = true;

    screen.cmdExit.click();

    EXPECT_EQ(platform.mail.signOffs, 1);
    EXPECT_FALSE(platform.mail.open);
}

TEST_F(ReportsScreen, LetsTheBoardOpenReportsAgainOnceItIsClosed)
{
    screen.load();
    EXPECT_FALSE(board.reportsEnabled);

    screen.unloading();

    EXPECT_TRUE(board.reportsEnabled);
}

} // namespace
} // namespace tallyhoop::test
