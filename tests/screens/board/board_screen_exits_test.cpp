// tests/screens/board/board_screen_exits_test.cpp - printing, and the ways to other screens.
#include "screens/board/board_fixture.h"

namespace tallyhoop::test {

class BoardScreenExits : public BoardTest
{
};

TEST_F(BoardScreenExits, CommandsThatReplaceTheBoardCloseTheListOfScoresFirst)
{
    const auto file = putSelection("Smith_JS.THC", emptyBracket("JS", "Smith", "150"));
    loadFinalized();
    open(file);
    board->mnuNewSelection.click();
    enterResults();
    EXPECT_EQ(screens.unloads, std::vector(3, ScreenKind::Scores));
    board->mnuEditNames.click();
    board->mnuReports.click();
    EXPECT_EQ(screens.unloads, std::vector(5, ScreenKind::Scores));
    EXPECT_EQ(screens.loads, (std::vector{ScreenKind::Players, ScreenKind::Reports}));
}

TEST_F(BoardScreenExits, PrintsTheBoardOnOneLandscapePage)
{
    loadFinalized();
    click(0);
    board->mnuPrintForm.click();
    ASSERT_EQ(platform.printer.drawings.size(), 1u);
    EXPECT_EQ(platform.printer.drawings[0].orientation, ui::Orientation::Landscape);
    int found = 0;
    for (const ui::Caption& caption : platform.printer.drawings[0].drawings[0].captions)
        found += caption.text == "R1T0";
    EXPECT_EQ(found, 2) << "in the first round and as a winner";
}

TEST_F(BoardScreenExits, APrintoutBearsTheNameOfWhatIsOnTheBoard)
{
    const auto file = putSelection("Smith_JS.THC", emptyBracket("JS", "Smith", "150"));
    loadFinalized();
    board->mnuPrintPreview.click();
    open(file);
    board->mnuPrintPreview.click();
    enterResults();
    board->mnuPrintPreview.click();
    ASSERT_EQ(platform.printer.previewedDrawings.size(), 3u);
    EXPECT_EQ(platform.printer.previewedDrawings[0].title, "2001 NCAA Tournament");
    EXPECT_EQ(platform.printer.previewedDrawings[1].title, "Smith_JS.THC");
    EXPECT_EQ(platform.printer.previewedDrawings[2].title, "Game results");
    EXPECT_EQ(platform.printer.printerDialogs, 0);
}

TEST_F(BoardScreenExits, CancellingThePrinterDialogEndsQuietly)
{
    loadFinalized();
    platform.printer.dialogAccepted = false;
    board->mnuPrintForm.click();
    EXPECT_TRUE(platform.printer.drawings.empty());
    EXPECT_TRUE(platform.dialogs.shown.empty());
}

TEST_F(BoardScreenExits, APageThatCouldNotBePrintedIsReported)
{
    loadFinalized();
    platform.printer.trouble = Failure{"no printer"};
    board->mnuPrintForm.click();
    ASSERT_EQ(platform.dialogs.shown.size(), 1u);
    EXPECT_EQ(platform.dialogs.shown[0].text,
              "Error in attempting to print to the printer\r\nCheck you printer for proper attachment");
}

TEST_F(BoardScreenExits, ReportsAreDisabledWhileTheirScreenIsOpen)
{
    loadFinalized();
    board->mnuReports.click();
    EXPECT_FALSE(board->mnuReports.enabled);
    EXPECT_TRUE(screens.isLoaded(ScreenKind::Reports));
    screens.unload(ScreenKind::Reports);
    board->showState();
    EXPECT_TRUE(board->mnuReports.enabled);
}

TEST_F(BoardScreenExits, TheSetupTakesTheBoardsPlace)
{
    load();
    board->mnuSetupOptions.click();
    EXPECT_EQ(screens.unloads.back(), ScreenKind::Board);
    EXPECT_EQ(screens.loads, std::vector{ScreenKind::Setup});
}

TEST_F(BoardScreenExits, EnteringDemoModeReloadsTheBoard)
{
    scratch.put(file_name::kDemoInstaller, "");
    load();
    platform.programs.whenStarted = [&] { putDemoMode(); };
    platform.dialogs.answer(ui::Answer::Ok);
    board->mnuDemoSet.click();
    EXPECT_EQ(screens.unloads.back(), ScreenKind::Board);
    EXPECT_EQ(screens.loads, std::vector{ScreenKind::Board});
    EXPECT_EQ(screens.news, std::vector{std::string{}});
}

TEST_F(BoardScreenExits, ADemoThatDidNotComeReloadsTheBoardToo)
{
    load();
    platform.programs.end = Failure{"No space left on device"};
    platform.dialogs.answer(ui::Answer::Ok);
    board->mnuDemoSet.click();
    EXPECT_EQ(screens.unloads.back(), ScreenKind::Board);
    EXPECT_EQ(screens.loads, std::vector{ScreenKind::Board});
}

TEST_F(BoardScreenExits, LeavingDemoModeAsksNothingAndReloadsTheBoard)
{
    putDemoMode();
    loadFinalized();
    board->mnuDemoReset.click();
    EXPECT_FALSE(scratch.has(file_name::kSetup));
    EXPECT_FALSE(scratch.has(file_name::kSettings));
    EXPECT_EQ(screens.unloads.back(), ScreenKind::Board);
    EXPECT_EQ(screens.loads, std::vector{ScreenKind::Board});
    EXPECT_EQ(screens.news,
              std::vector<std::string>{
                  "Files that you changed in demo mode are kept in the folder Backup 2001-03-05 101530."});
}

TEST_F(BoardScreenExits, ADemoThatIsNotWantedLeavesTheBoardAlone)
{
    load();
    click(0);
    platform.dialogs.answer(ui::Answer::Cancel);
    board->mnuDemoSet.click();
    EXPECT_TRUE(screens.unloads.empty());
    EXPECT_TRUE(screens.loads.empty());
    EXPECT_EQ(at(16), "TEAM1");
}

TEST_F(BoardScreenExits, TheBoardStaysWhenDemoModeCannotBeLeft)
{
    putDemoMode();
    loadFinalized();
    const std::filesystem::path setup = scratch.path() / file_name::kSetup;
    std::filesystem::resize_file(setup, (64u << 20) + 1); // more than the program reads, so it cannot be kept
    const std::size_t loadsBefore = screens.loads.size();
    board->mnuDemoReset.click();
    EXPECT_TRUE(scratch.has(file_name::kSetup));
    EXPECT_TRUE(scratch.has(file_name::kSettings));
    EXPECT_EQ(screens.loads.size(), loadsBefore);
    EXPECT_TRUE(board->lblDemoMode.visible);
    EXPECT_TRUE(board->mnuDemoReset.enabled);
}

TEST_F(BoardScreenExits, AboutAndExitLeadWhereTheySay)
{
    load();
    board->mnuHelpAbout.click();
    EXPECT_EQ(platform.dialogs.aboutShown, 1);
    board->mnuExit.click();
    EXPECT_TRUE(screens.ended);
}

TEST_F(BoardScreenExits, AMissingHelpFileIsExplained)
{
    load();
    platform.help.trouble = Failure{"missing"};
    board->mnuHelpDisplay.click();
    EXPECT_EQ(platform.help.topics, std::vector<std::string>{"start"});
    EXPECT_EQ(platform.dialogs.shown.back().caption, "** Help File Problem **");
    EXPECT_EQ(platform.dialogs.shown.back().text, "Trouble loading the help file, make sure that \r\n"
                                                  "TALLYHOOP.HLP is present in the same directory \r\n"
                                                  "as the application program.");
}

} // namespace tallyhoop::test
