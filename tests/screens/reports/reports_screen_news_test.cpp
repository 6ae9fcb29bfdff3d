// tests/screens/reports/reports_screen_news_test.cpp - what is said of reports that were written, printed and saved.
#include "screens/reports/reports_screen_fixture.h"

namespace tallyhoop::test {
namespace {

struct ReportsNews : ReportsScreenTest {
    ReportsNews()
    {
        putFourPlayers(folder);
        screen.load();
    }
};

TEST_F(ReportsNews, NamesAllReportsThatWerePrinted)
{
    tick({kStandings, kListing});
    create(kPrinter);
    EXPECT_EQ(screen.news().text, "Printed Tournament Standings, Player Listing.");
}

TEST_F(ReportsNews, AFileChosenInThePrinterDialogIsNamedAsSaved)
{
    tick({kStandings});
    screen.cmdDefaultPrinter.click();
    platform.printer.chosenFile = folder.path() / "mine.PDF";
    create(kPrinter);
    EXPECT_EQ(screen.news().text, "Saved mine.PDF.");
}

TEST_F(ReportsNews, SaysNothingOfAnEarlierRun)
{
    tick({kStandings});
    create(kFile);
    ASSERT_EQ(screen.news().text, "Written to the program's folder: RPTOPT1.TXT.");
    screen.chkOptions[kStandings].ticked = false;
    create(kFile);
    EXPECT_EQ(screen.news().text, "") << "nothing was made";

    tick({kStandings});
    create(kPrinter);
    ASSERT_EQ(screen.news().text, "Printed Tournament Standings.");
    screen.cmdDefaultPrinter.click();
    platform.printer.dialogAccepted = false;
    create(kPrinter);
    EXPECT_EQ(screen.news().text, "") << "the printer dialog was cancelled";
}

TEST_F(ReportsNews, NamesWhatWasWrittenBeforeThePersonCancelled)
{
    tick({kStandings, kPlayerDetail});
    platform.progress.cancelFromWork = 3; // each of the two reads the selections and then scores them
    create(kFile);
    ASSERT_EQ(platform.dialogs.shown.size(), 1u);
    EXPECT_EQ(platform.dialogs.shown[0].text, "The report was cancelled: no report was made.");
    EXPECT_EQ(screen.news().text, "Written to the program's folder: RPTOPT1.TXT.");
}

TEST_F(ReportsNews, SaysHowManyOfSeveralPdfsWereSavedBeforeOneFailed)
{
    tick({kStandings, kTeamSummary, kTeamDetail});
    platform.dialogs.pick(folder.path());
    platform.printer.whilePrinting = [&] {
        if (platform.printer.pdfs.size() == 2)
            platform.printer.trouble = Failure{"No space left on device"};
    };
    screen.cmdSavePdf.click();
    EXPECT_EQ(screen.news().text, "Saved 1 of 3 PDF files in " + shown(folder.path()) + ".");
}

} // namespace
} // namespace tallyhoop::test
