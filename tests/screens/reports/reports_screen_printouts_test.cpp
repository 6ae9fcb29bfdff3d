// tests/screens/reports/reports_screen_printouts_test.cpp - printouts of the board, and the way to the score display.
#include "screens/reports/reports_screen_fixture.h"

#include <algorithm>
#include <functional>

namespace tallyhoop::test {
namespace {

constexpr const char* kTitle = "Tallyhoop - frmPoolReports, cmdSelectedPrintouts";
const ui::Message kNoOption = exclamation(kTitle, "You need to make a selection from one of the two options\r\n"
                                                  "for selected printouts.  Please try again.");
const ui::Message kNoResults = exclamation(kTitle, "Game Results have not been entered, this option\r\n"
                                                   "is NOT valid until this activity has been completed");
const ui::Message kNoFile = exclamation(kTitle, "You must select one of the entries from the list \r\n"
                                                "of File Names for display.\r\n\r\n"
                                                "Make a selection and then retry.");

struct ReportsPrintouts : ReportsScreenTest {
    ReportsPrintouts()
    {
        putFourPlayers(folder);
        screen.load();
    }

    void removeResults() { std::filesystem::remove(folder.path() / "TALLYHOOP.THS"); }

    void expectRefused(const ui::Message& message)
    {
        screen.cmdSelectedPrintouts.click();
        EXPECT_EQ(platform.dialogs.shown, std::vector{message});
        EXPECT_TRUE(screens.unloads.empty());
        EXPECT_TRUE(board.calls.empty());
        EXPECT_FALSE(anyReportWritten());
    }
};

TEST_F(ReportsPrintouts, NeedAnOptionFirstOfAll)
{
    removeResults();
    screen.filList.selected = 0;

    expectRefused(kNoOption);
}

TEST_F(ReportsPrintouts, NeedResultsBeforeTheyNeedAFile)
{
    removeResults();
    ui::selectOption(screen.optSelected, 0);

    expectRefused(kNoResults);
}

TEST_F(ReportsPrintouts, NeedResultsForTheResultsSheetToo)
{
    removeResults();
    ui::selectOption(screen.optSelected, 1);

    expectRefused(kNoResults);
}

TEST_F(ReportsPrintouts, NeedAFileForAScoredSelection)
{
    ui::selectOption(screen.optSelected, 0);

    expectRefused(kNoFile);
}

TEST_F(ReportsPrintouts, PrintTheBoardWithTheResults)
{
    ui::selectOption(screen.optSelected, 1);

    screen.cmdSelectedPrintouts.click();

    EXPECT_EQ(screens.unloads, std::vector{ScreenKind::Reports});
    EXPECT_EQ(board.calls, (std::vector<std::string>{"showGameResults", "printForm"}));
    EXPECT_TRUE(platform.dialogs.shown.empty());
}

TEST_F(ReportsPrintouts, IgnoreTheChosenFileForTheResultsSheet)
{
    ui::selectOption(screen.optSelected, 1);
    screen.filList.selected = 2;

    screen.cmdSelectedPrintouts.click();

    EXPECT_EQ(board.calls, (std::vector<std::string>{"showGameResults", "printForm"}));
    EXPECT_TRUE(board.filesShown.empty());
}

TEST_F(ReportsPrintouts, ScoreAndPrintTheChosenPlayersBracket)
{
    ui::selectOption(screen.optSelected, 0);
    screen.filList.selected = 1;

    screen.cmdSelectedPrintouts.click();

    EXPECT_EQ(screens.raised, std::vector{ScreenKind::Board});
    EXPECT_EQ(screens.unloads, std::vector{ScreenKind::Reports});
    EXPECT_EQ(board.calls, (std::vector<std::string>{"showScored", "printForm"}));
    EXPECT_EQ(board.filesShown, std::vector{folder.path() / "Baker_C.THC"});
}

/// Notes what has happened to the screens when the board is asked for something.
struct WatchingBoard : FakeBoard {
    explicit WatchingBoard(const FakeScreens& fakeScreens) : screens{fakeScreens} {}

    const FakeScreens& screens;
    std::size_t raisedBefore = 0;
    std::size_t unloadedBefore = 0;
    std::size_t loadedBefore = 0;

    void note()
    {
        raisedBefore = screens.raised.size();
        unloadedBefore = screens.unloads.size();
        loadedBefore = screens.loads.size();
    }
    void showGameResults() override { note(); }
    void showScored(const std::filesystem::path&) override { note(); }
};

TEST_F(ReportsPrintouts, LeaveTheScreenBeforeTheBoardChanges)
{
    WatchingBoard watching{screens};
    ReportsScreen over{dataFolder, platform.services, screens, field, draft, watching};
    over.load();
    ui::selectOption(over.optSelected, 0);
    over.filList.selected = 1;
    over.cmdSelectedPrintouts.click();
    EXPECT_EQ(watching.raisedBefore, 1u);
    EXPECT_EQ(watching.unloadedBefore, 1u);

    ui::selectOption(over.optSelected, 1);
    over.cmdSelectedPrintouts.click();
    EXPECT_EQ(watching.unloadedBefore, 2u);

    over.cmdCustomReport.click();
    EXPECT_EQ(watching.unloadedBefore, 3u);
    EXPECT_EQ(watching.loadedBefore, 0u); // the score display comes after the results
    EXPECT_EQ(screens.loads.size(), 1u);
}

TEST_F(ReportsPrintouts, StartWithNeitherOptionWhenTheScreenOpensAgain)
{
    ui::selectOption(screen.optSelected, 1);
    screen.cmdSelectedPrintouts.click();

    ReportsScreen again{dataFolder, platform.services, screens, field, draft, board};
    again.load();

    EXPECT_FALSE(again.optSelected[0].selected);
    EXPECT_FALSE(again.optSelected[1].selected);
}

/// @returns the texts of a page that are wanted, in the order in which they are painted
std::vector<std::string> textsOf(const ui::Drawing& page, const std::function<bool(const ui::Caption&)>& wanted)
{
    std::vector<std::string> texts;
    for (const ui::Caption& caption : page.captions)
        if (wanted(caption))
            texts.push_back(caption.text);
    return texts;
}

bool has(const ui::Drawing& page, const std::string& text)
{
    return !textsOf(page, [&text](const ui::Caption& caption) { return caption.text == text; }).empty();
}

TEST_F(ReportsPrintouts, ShowAndSaveTheBoardAsItIsWhenNothingIsChosen)
{
    platform.dialogs.pick(folder.path() / "board");

    screen.cmdPreviewBoard.click();
    screen.cmdSaveBoardPdf.click();

    ASSERT_EQ(platform.printer.previewedDrawings.size(), 1u);
    EXPECT_EQ(platform.printer.previewedDrawings[0].title, "Smith_JS.THC");
    EXPECT_EQ(platform.printer.previewedDrawings[0].orientation, ui::Orientation::Landscape);
    EXPECT_EQ(platform.dialogs.fileChoices.at(0).proposedName, "Smith_JS.PDF");
    EXPECT_EQ(platform.printer.pdfs, std::vector{folder.path() / "board.PDF"});
}

TEST_F(ReportsPrintouts, ShowTheChosenPlayersBracketScored)
{
    ui::selectOption(screen.optSelected, 0);
    screen.filList.selected = 1;
    platform.dialogs.pick(std::nullopt);

    screen.cmdPreviewBoard.click();
    screen.cmdSaveBoardPdf.click();

    ASSERT_EQ(platform.printer.previewedDrawings.size(), 1u);
    const ui::DrawingPrintout& sheet = platform.printer.previewedDrawings[0];
    EXPECT_EQ(sheet.title, "Baker_C.THC");
    ASSERT_EQ(sheet.drawings.size(), 1u);
    EXPECT_TRUE(has(sheet.drawings[0], "="));
    EXPECT_FALSE(textsOf(sheet.drawings[0], [](const ui::Caption& caption) {
                     return caption.text.starts_with("Points: ");
                 }).empty());
    EXPECT_EQ(platform.dialogs.fileChoices.at(0).proposedName, "Baker_C.PDF");
    EXPECT_TRUE(board.calls.empty()) << "the board stays as it is";
    EXPECT_TRUE(screens.unloads.empty());
}

TEST_F(ReportsPrintouts, ShowTheResultsUnmarked)
{
    ui::selectOption(screen.optSelected, 1);

    screen.cmdPreviewBoard.click();

    ASSERT_EQ(platform.printer.previewedDrawings.size(), 1u);
    EXPECT_EQ(platform.printer.previewedDrawings[0].title, "Tournament Results");
    EXPECT_FALSE(has(platform.printer.previewedDrawings[0].drawings.at(0), "="));
}

TEST_F(ReportsPrintouts, SayWhatIsMissingForTheSheetThatIsChosen)
{
    ui::selectOption(screen.optSelected, 0);
    screen.cmdPreviewBoard.click();
    EXPECT_EQ(platform.dialogs.shown, std::vector{kNoFile});
    removeResults();
    screen.cmdSaveBoardPdf.click();
    EXPECT_EQ(platform.dialogs.shown.back(), kNoResults);
    EXPECT_TRUE(platform.printer.previewedDrawings.empty());
}

TEST_F(ReportsPrintouts, PrintEveryPlayerInOneJob)
{
    ui::selectOption(screen.optSelected, 0);
    screen.chkAllPlayers.ticked = true;

    screen.cmdSelectedPrintouts.click();

    EXPECT_EQ(platform.printer.printerDialogs, 1);
    ASSERT_EQ(platform.printer.drawings.size(), 1u);
    EXPECT_EQ(platform.printer.drawings[0].title, "All Players");
    ASSERT_EQ(platform.printer.drawings[0].drawings.size(), screen.filList.rows.size());
    EXPECT_EQ(platform.printer.drawings[0].drawings.size(), 4u);
    EXPECT_EQ(screen.news().text, "Printed All Players.");
    EXPECT_TRUE(board.calls.empty());
    EXPECT_TRUE(screens.unloads.empty()) << "the screen stays open";
}

TEST_F(ReportsPrintouts, SaveEveryPlayerInOneFile)
{
    screen.chkAllPlayers.ticked = true;
    screen.chkAllPlayers.changed(); // a tick chooses the sheets that it is for
    platform.dialogs.pick(folder.path() / "all");

    screen.cmdSaveBoardPdf.click();

    EXPECT_EQ(platform.dialogs.fileChoices.at(0).proposedName, "All Players.PDF");
    EXPECT_EQ(platform.printer.pdfs, std::vector{folder.path() / "all.PDF"});
    EXPECT_EQ(platform.printer.drawings.at(0).drawings.size(), 4u);
}

TEST_F(ReportsPrintouts, StopWhenThePersonCancelsAmongAllPlayers)
{
    ui::selectOption(screen.optSelected, 0);
    screen.chkAllPlayers.ticked = true;
    platform.progress.cancelAt = 2;

    screen.cmdSelectedPrintouts.click();

    EXPECT_TRUE(platform.printer.drawings.empty());
    EXPECT_EQ(platform.printer.printerDialogs, 0);
}

TEST_F(ReportsPrintouts, AreNotTheOnlyWayToTheResults)
{
    screen.cmdCustomReport.click();

    EXPECT_EQ(screens.unloads, std::vector{ScreenKind::Reports});
    EXPECT_EQ(board.calls, std::vector<std::string>{"showGameResults"});
    EXPECT_EQ(screens.loads, std::vector{ScreenKind::Scores});
}

TEST_F(ReportsPrintouts, LeaveResultsOnTheBoardThatAreNotSavedUntilThePersonHasDecided)
{
    board.unsavedResults = true;
    board.isLetGo = false; // the person cancels
    ui::selectOption(screen.optSelected, 1);
    screen.cmdSelectedPrintouts.click();
    screen.filList.selected = 0;
    ui::selectOption(screen.optSelected, 0);
    screen.cmdSelectedPrintouts.click();
    screen.cmdCustomReport.click();

    EXPECT_EQ(board.calls, (std::vector<std::string>{"mayShowGameResults", "mayBeLeft", "mayShowGameResults"}));
    EXPECT_TRUE(screens.unloads.empty());
    EXPECT_TRUE(screens.loads.empty());

    board.isLetGo = true; // the person saves them
    screen.cmdCustomReport.click();
    EXPECT_EQ(board.calls.back(), "showGameResults");
    EXPECT_EQ(screens.loads, std::vector{ScreenKind::Scores});
}

TEST_F(ReportsPrintouts, SayThatReportsUseTheSavedResultsWhileTheBoardHoldsOthers)
{
    screen.showState();
    EXPECT_EQ(screen.status, "");
    board.unsavedResults = true;
    screen.showState();
    EXPECT_EQ(screen.status, "Reports use the saved results; those on the board are not saved");
}

TEST_F(ReportsPrintouts, AFileThatLooksLikeAnotherStaysChosen)
{
    for (const char8_t* name : {u8"\u0143owak_N.THC", u8"\u0141owak_N.THC"}) // both are shown as "?owak_N.THC"
        std::filesystem::copy_file(folder.path() / screen.filList.rows[0], folder.path() / name);
    screen.load();
    const auto first = std::ranges::find(screen.filList.rows, "?owak_N.THC") - screen.filList.rows.begin();
    screen.filList.selected = static_cast<int>(first) + 1;
    tick({kStandings});
    create(kFile); // lists the files anew
    EXPECT_EQ(screen.filList.selected, static_cast<int>(first) + 1);
}

TEST_F(ReportsPrintouts, WrittenReportsAreNamedAndTheirFolderCanBeOpened)
{
    tick({kStandings, kListing});
    create(kFile);
    EXPECT_EQ(screen.news().text, "Written to the program's folder: RPTOPT1.TXT, RPTOPT2.TXT.");
    screen.cmdOpenFolder.click();
    EXPECT_EQ(platform.programs.foldersOpened, std::vector{folder.path()});
    EXPECT_EQ(screen.news().text, "The folder of the pool: " + shown(folder.path()));
}

} // namespace
} // namespace tallyhoop::test
