// tests/screens/reports/reports_screen_output_test.cpp - reports to the printer, to a preview and to PDF.
#include "screens/reports/reports_screen_fixture.h"

#include <algorithm>

namespace tallyhoop::test {
namespace {

const ui::Message kPrintingFailed{
    "", "Error in attempting to print to the printer\r\nCheck you printer for proper attachment", ui::Buttons::Ok,
    ui::Icon::Critical};

struct ReportsOutput : ReportsScreenTest {
    ReportsOutput()
    {
        putFourPlayers(folder);
        screen.load();
    }
};

TEST_F(ReportsOutput, PrintsEachTickedReportInItsOrientation)
{
    tickAll();

    create(kPrinter);

    const auto across = ui::Orientation::Landscape;
    const auto upright = ui::Orientation::Portrait;
    std::vector<ui::Orientation> orientations;
    for (const ui::TextPrintout& printout : platform.printer.texts)
        orientations.push_back(printout.orientation);
    EXPECT_EQ(orientations, (std::vector{across, across, upright, upright, across, upright, upright}));
    EXPECT_TRUE(platform.dialogs.shown.empty());
}

TEST_F(ReportsOutput, PrintsTheLinesOfTheWorkFileAndLeavesTheReportFileAlone)
{
    folder.put("RPTOPT1.TXT", "older");
    tick({kStandings});

    create(kPrinter);

    ASSERT_EQ(platform.printer.texts.size(), 1u);
    const ui::TextPrintout& printout = platform.printer.texts[0];
    EXPECT_EQ(printout.font, (ui::PrinterFont{"Courier New", 10}));
    ASSERT_EQ(printout.lines.size(), 11u);
    EXPECT_EQ(printout.lines[3], " ");
    std::string bytes;
    for (const std::string& line : printout.lines)
        bytes += line + "\r\n";
    EXPECT_EQ(folder.get("TEMPPRT.TXT"), bytes);
    EXPECT_EQ(folder.get("RPTOPT1.TXT"), "older");
}

TEST_F(ReportsOutput, CentresTheBlockOfTextOnThePage)
{
    tick({kStandings, kTeamSummary});

    create(kPrinter);

    // The longest lines are the second heading, 78 characters, across, and the rule of 74 upright:
    // (15440 - 720 - 9360) / 2 and (11840 - 720 - 8880) / 2
    ASSERT_EQ(platform.printer.texts.size(), 2u);
    EXPECT_EQ(platform.printer.texts[0].originTwips, 2680);
    EXPECT_EQ(platform.printer.texts[1].originTwips, 1120);
}

TEST_F(ReportsOutput, HandsFormFeedsOverAsLinesOfTheirOwn)
{
    tick({kPlayerDetail});

    create(kPrinter);

    ASSERT_EQ(platform.printer.texts.size(), 1u);
    EXPECT_EQ(std::ranges::count(platform.printer.texts[0].lines, "\f"), 3);
}

TEST_F(ReportsOutput, AsksForAPrinterBeforeEveryReportOnceTheDefaultPrinterIsNotWanted)
{
    tick({kStandings, kListing});
    create(kPrinter);
    EXPECT_EQ(platform.printer.printerDialogs, 0);

    screen.cmdDefaultPrinter.click();
    EXPECT_EQ(screen.cmdDefaultPrinter.caption, "Select non default printer");
    create(kPrinter);
    EXPECT_EQ(platform.printer.printerDialogs, 2);

    screen.cmdDefaultPrinter.click();
    EXPECT_EQ(screen.cmdDefaultPrinter.caption, "Use default printer");
    create(kPrinter);
    EXPECT_EQ(platform.printer.printerDialogs, 2);
}

TEST_F(ReportsOutput, GoesOnQuietlyWithTheNextReportWhenThePrinterDialogIsCancelled)
{
    screen.cmdDefaultPrinter.click();
    platform.printer.dialogAccepted = false;
    tick({kStandings, kListing});

    create(kPrinter);

    EXPECT_EQ(platform.printer.printerDialogs, 2);
    EXPECT_TRUE(platform.printer.texts.empty());
    EXPECT_TRUE(platform.dialogs.shown.empty());
    EXPECT_TRUE(isTicked(kStandings));
}

TEST_F(ReportsOutput, PrintsInTheFontThatIsChosenWhenCourierNewIsMissing)
{
    platform.printer.fonts = {"Arial"};
    platform.printer.chosenFont = ui::PrinterFont{"Fixed", 9};
    tick({kStandings});

    create(kPrinter);

    ASSERT_EQ(platform.printer.texts.size(), 1u);
    EXPECT_EQ(platform.printer.texts[0].font.name, "Fixed");
    EXPECT_EQ(platform.dialogs.shown.size(), 1u);
}

TEST_F(ReportsOutput, ReportsAPrintingFailureAndKeepsTheTick)
{
    platform.printer.trouble = Failure{"out of paper"};
    tick({kStandings});

    create(kPrinter);

    EXPECT_EQ(platform.dialogs.shown, std::vector{kPrintingFailed});
    EXPECT_TRUE(isTicked(kStandings));
}

TEST_F(ReportsOutput, IsBusyWhileItPrintsAndNoLongerWhenAFailureIsShown)
{
    tick({kStandings});
    platform.printer.trouble = Failure{"out of paper"};
    int busy = 0;
    platform.printer.whilePrinting = [&] { busy += platform.progress.begun - platform.progress.ended; };
    platform.dialogs.whileShown = [this](const ui::Message&) {
        EXPECT_EQ(platform.progress.begun, platform.progress.ended);
    };

    create(kPrinter);
    EXPECT_EQ(busy, 1);

    platform.dialogs.pick(folder.path() / "standings.PDF");
    screen.cmdSavePdf.click();
    EXPECT_EQ(busy, 2);
    EXPECT_EQ(platform.dialogs.shown, (std::vector{kPrintingFailed, kPrintingFailed}));
}

TEST_F(ReportsOutput, ShowsTickedReportsInAPreviewWithoutWritingOrPrintingAnything)
{
    tick({kStandings, kByTeam});

    screen.cmdPreview.click();

    EXPECT_EQ(platform.printer.previews, 1) << "several reports are in one window";
    ASSERT_EQ(platform.printer.previewedTexts.size(), 2u);
    EXPECT_EQ(platform.printer.previewedTexts[0].lines.size(), 11u);
    EXPECT_EQ(platform.printer.previewedTexts[0].orientation, ui::Orientation::Landscape);
    EXPECT_EQ(platform.printer.previewedTexts[0].originTwips, 2680);
    EXPECT_TRUE(platform.printer.texts.empty());
    EXPECT_EQ(platform.printer.printerDialogs, 0);
    EXPECT_FALSE(anyReportWritten());
}

TEST_F(ReportsOutput, AsksForNoPrinterWhereNothingIsPrinted)
{
    screen.cmdDefaultPrinter.click();
    tick({kStandings});
    platform.dialogs.pick(folder.path() / "standings.PDF");

    screen.cmdPreview.click();
    screen.cmdSavePdf.click();

    EXPECT_EQ(platform.printer.previewedTexts.size(), 1u);
    EXPECT_EQ(platform.printer.pdfs.size(), 1u);
    EXPECT_EQ(platform.printer.printerDialogs, 0);
}

TEST_F(ReportsOutput, ShowsAndSavesTheFilesThatAreThereNow)
{
    tick({kStandings});
    screen.cmdPreview.click();
    folder.put("Able_A.THC", selectionFile(fourPlayersResults()));
    screen.cmdPreview.click();
    std::filesystem::remove(folder.path() / "Able_A.THC");
    platform.dialogs.pick(folder.path() / "standings.PDF");
    screen.cmdSavePdf.click();

    ASSERT_EQ(platform.printer.previewedTexts.size(), 2u);
    EXPECT_EQ(platform.printer.previewedTexts[0].lines.size(), 11u); // seven of the header and four players
    EXPECT_EQ(platform.printer.previewedTexts[1].lines.size(), 12u);
    EXPECT_EQ(platform.printer.texts.at(0).lines.size(), 11u);
}

TEST_F(ReportsOutput, ExplainsThatAPreviewNeedsATick)
{
    screen.cmdPreview.click();

    EXPECT_EQ(platform.dialogs.shown,
              std::vector{exclamation("Tallyhoop - frmPoolReports, Preview",
                                      "You will need to select one of the Report Selections before\r\n"
                                      "choosing the \"Preview\" Command Button")});
}

TEST_F(ReportsOutput, ShowsTheReasonWhenAPreviewedReportCannotBeMade)
{
    std::filesystem::remove(folder.path() / "TALLYHOOP.THS");
    tick({kStandings});

    screen.cmdPreview.click();

    EXPECT_EQ(platform.dialogs.captionsShown(),
              std::vector<std::string>{"Tallyhoop - frmPoolReports, Tournament Standings"});
    EXPECT_FALSE(isTicked(kStandings));
    EXPECT_TRUE(platform.printer.previewedTexts.empty());
}

TEST_F(ReportsOutput, SavesTheTickedReportAsThePdfThatThePersonNames)
{
    tick({kStandings});
    platform.dialogs.pick(folder.path() / "mine");

    screen.cmdSavePdf.click();

    EXPECT_EQ(platform.printer.pdfs, std::vector{folder.path() / "mine.PDF"});
    ASSERT_EQ(platform.dialogs.fileChoices.size(), 1u);
    EXPECT_EQ(platform.dialogs.fileChoices[0].caption, "Save as PDF: Tournament Standings");
    EXPECT_EQ(platform.dialogs.fileChoices[0].proposedName, "Tournament Standings.PDF");
    EXPECT_EQ(platform.dialogs.fileChoices[0].folder, folder.path());
    EXPECT_EQ(platform.printer.texts[0].title, "Tournament Standings");
    EXPECT_EQ(screen.news().text, "Saved mine.PDF.");
}

TEST_F(ReportsOutput, AsksForOneFolderForSeveralReportsAndNamesThemItself)
{
    tick({kStandings, kTeamDetail});
    const std::filesystem::path chosen = folder.path() / "paper";
    std::filesystem::create_directory(chosen);
    platform.dialogs.pick(chosen);

    screen.cmdSavePdf.click();

    EXPECT_EQ(platform.printer.pdfs,
              (std::vector{chosen / "Tournament Standings.PDF", chosen / "Team Selection Detail.PDF"}));
    ASSERT_EQ(platform.dialogs.fileChoices.size(), 1u);
    EXPECT_EQ(platform.printer.texts[0].orientation, ui::Orientation::Landscape);
    EXPECT_EQ(platform.printer.texts[1].orientation, ui::Orientation::Portrait);
    EXPECT_EQ(screen.news().text, "Saved 2 PDF files in " + shown(chosen) + ".");
}

TEST_F(ReportsOutput, AsksOnceBeforeItReplacesSeveralPdfs)
{
    const std::filesystem::path first = folder.put("Tournament Standings.PDF", "old");
    const std::filesystem::path second = folder.put("Team Selection Detail.PDF", "old");
    tick({kStandings, kTeamSummary, kTeamDetail});

    platform.dialogs.pick(folder.path()).answer(ui::Answer::No);
    screen.cmdSavePdf.click();
    EXPECT_TRUE(platform.printer.pdfs.empty());
    EXPECT_EQ(platform.dialogs.shown,
              (std::vector{ui::Message{
                  "", "Do you want to replace the existing files ?\r\n" + shown(first) + "\r\n" + shown(second),
                  ui::Buttons::YesNo, ui::Icon::Question}}));

    platform.dialogs.pick(folder.path()).answer(ui::Answer::Yes);
    screen.cmdSavePdf.click();
    EXPECT_EQ(platform.printer.pdfs.size(), 3u);
}

TEST_F(ReportsOutput, SaysOnceThatThereIsNoPrinterAndNamesTheWayOut)
{
    platform.printer.there = false;
    tick({kStandings, kListing, kTeamSummary});

    create(kPrinter);

    EXPECT_EQ(platform.dialogs.shown, std::vector{kPrintingFailed});
    EXPECT_EQ(screen.news().text, "No printer is installed: Preview and Save as PDF work without one.");
    EXPECT_TRUE(platform.printer.texts.empty());

    create(kPrinter); // and again in the next run
    EXPECT_EQ(platform.dialogs.shown.size(), 2u);
}

TEST_F(ReportsOutput, PrintsAndSavesFromThePreview)
{
    tick({kStandings, kListing});
    platform.dialogs.pick(folder.path() / "listing");
    platform.printer.whilePreviewed = [](const ui::Preview& preview) {
        preview.print(preview.printouts.at(0));
        preview.savePdf(preview.printouts.at(1));
    };

    screen.cmdPreview.click();

    EXPECT_EQ(platform.printer.printerDialogs, 1) << "the person sees which printer it is";
    ASSERT_EQ(platform.printer.texts.size(), 2u);
    EXPECT_EQ(platform.printer.texts[0].title, "Tournament Standings");
    EXPECT_EQ(platform.printer.texts[1].title, "Player Listing");
    EXPECT_EQ(platform.printer.pdfs, std::vector{folder.path() / "listing.PDF"});
    EXPECT_EQ(screen.news().text, "Saved listing.PDF.");
}

TEST_F(ReportsOutput, PrintsNothingFromThePreviewWhenThePrinterDialogIsCancelled)
{
    tick({kStandings});
    platform.printer.dialogAccepted = false;
    platform.printer.whilePreviewed = [](const ui::Preview& preview) { preview.print(preview.printouts.at(0)); };

    screen.cmdPreview.click();

    EXPECT_TRUE(platform.printer.texts.empty());
    EXPECT_EQ(screen.news().text, "");
}

TEST_F(ReportsOutput, SavesNoPdfWhenThePersonCancels)
{
    tick({kStandings});
    platform.dialogs.pick(std::nullopt);

    screen.cmdSavePdf.click();

    EXPECT_TRUE(platform.printer.pdfs.empty());
    EXPECT_TRUE(platform.dialogs.shown.empty());
}

TEST_F(ReportsOutput, AsksBeforeItReplacesAPdf)
{
    const std::filesystem::path file = folder.put("old.pdf", "old");
    tick({kStandings});

    platform.dialogs.pick(file).answer(ui::Answer::No);
    screen.cmdSavePdf.click();
    EXPECT_TRUE(platform.printer.pdfs.empty());
    EXPECT_EQ(platform.dialogs.shown[0],
              (ui::Message{"", "Do you want to replace the existing file ?\r\n" + shown(file), ui::Buttons::YesNo,
                           ui::Icon::Question}));

    platform.dialogs.pick(file).answer(ui::Answer::Yes);
    screen.cmdSavePdf.click();
    EXPECT_EQ(platform.printer.pdfs, std::vector{file});
}

TEST_F(ReportsOutput, ReportsAPdfThatCouldNotBeWritten)
{
    platform.printer.trouble = Failure{"disk full"};
    tick({kStandings});
    platform.dialogs.pick(folder.path() / "standings.pdf");

    screen.cmdSavePdf.click();

    EXPECT_EQ(platform.dialogs.shown, std::vector{kPrintingFailed});
}

} // namespace
} // namespace tallyhoop::test
