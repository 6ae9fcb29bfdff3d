// tests/screens/reports/reports_screen_test.cpp - opening, ticking, creating, closing.
#include "screens/reports/reports_screen_fixture.h"

namespace tallyhoop::test {
namespace {

TEST_F(ReportsScreenTest, OpensWithNothingTickedThePrinterChosenAndThePoolsTitle)
{
    putFourPlayers(folder);
    folder.put("lower.thc", "");
    draft.cancelled = true;

    screen.load();

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
    EXPECT_FALSE(draft.cancelled);
}

TEST_F(ReportsScreenTest, SelectsOneDestinationAtATime)
{
    screen.optDestination[2].selected = true;
    screen.optDestination[2].changed();

    EXPECT_FALSE(screen.optDestination[0].selected);
    EXPECT_TRUE(screen.optDestination[2].selected);
}

TEST_F(ReportsScreenTest, ExplainsThatSomethingMustBeTickedWhateverTheDestination)
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

TEST_F(ReportsScreenTest, LeavesExactlyTheFileOfEachTickedReport)
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

TEST_F(ReportsScreenTest, PutsTheTitleShownOnScreenOnTheReport)
{
    putFourPlayers(folder);
    screen.load();
    screen.txtReportTitle.text = "Second Week";
    tick({kTeamSummary});

    create(kFile);

    EXPECT_NE(folder.get("RPTOPT3.TXT").find(" Second Week\r\n"), std::string::npos);
    EXPECT_EQ(folder.get("RPTOPT3.TXT").find("Office Pool"), std::string::npos);
}

TEST_F(ReportsScreenTest, TakesTheFilesThatAreThereNowAndKeepsTheChosenOne)
{
    putFourPlayers(folder);
    screen.load();
    screen.filList.selected = 1; // Baker_C.THC
    folder.put("Able_A.THC", selectionFile(fourPlayersResults()));
    tick({kStandings});

    create(kFile);

    EXPECT_EQ(screen.filList.rows.size(), 5u);
    EXPECT_EQ(screen.filList.selectedText(), "Baker_C.THC");
    EXPECT_NE(folder.get("RPTOPT1.TXT").find("Able_A.THC"), std::string::npos);
}

TEST_F(ReportsScreenTest, IsNoLongerBusyWhenAMessageIsShown)
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

TEST_F(ReportsScreenTest, SaysSoWhenThePersonCancelsAndLeavesTheFilesAsTheyAre)
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

TEST_F(ReportsScreenTest, ClosesByItsExitButtonAndByTheWindowsOwn)
{
    screen.load();

    screen.cmdExit.click();
    screen.closeRequested();

    EXPECT_EQ(screens.unloads, (std::vector{ScreenKind::Reports, ScreenKind::Reports}));
    EXPECT_EQ(platform.mail.signOffs, 0);
}

TEST_F(ReportsScreenTest, SignsOffAMailSessionThatIsStillOpenWhenItCloses)
{
    screen.load();
    platform.mail.open = true;

    screen.cmdExit.click();

    EXPECT_EQ(platform.mail.signOffs, 1);
    EXPECT_FALSE(platform.mail.open);
}

} // namespace
} // namespace tallyhoop::test
