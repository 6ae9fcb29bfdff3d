#include "screens/board/board_fixture.h"

#include "screens/board/board_drawing.h"

#include <algorithm>
#include <cmath>

namespace tallyhoop::test {

class BoardScreenScores : public BoardTest
{
protected:
    /// Results in which R1T0 has won its first game and R1T3 its own.
    void putResults()
    {
        SelectionLines lines = emptyBracket("A", "FinalResults", "");
        lines[17] = "R1T0";
        lines[18] = "R1T3";
        putSelection(file_name::kResults, lines);
    }
};

TEST_F(BoardScreenScores, TheFirstResultsEntryStartsFromAnEmptyBracket)
{
    loadFinalized();
    drag(0, 126);
    board->EnterGameResults();
    for (const Position position : gamePositions())
        EXPECT_EQ(at(index(position)), "");
    EXPECT_EQ(board->txtPlayerInitials.text, "A");
    EXPECT_EQ(board->txtPlayerName.text, "FinalResults");
    EXPECT_TRUE(board->txtPlayerInitials.locked);
    EXPECT_TRUE(board->txtPlayerName.locked);
    EXPECT_FALSE(board->txtPlayerName.tabStop);
    EXPECT_FALSE(board->txtFinalPoints.locked);
    EXPECT_TRUE(board->txtFinalPoints.tabStop);
    EXPECT_TRUE(board->resultsMode());
    EXPECT_FALSE(board->mnuGameResults.enabled);
    EXPECT_TRUE(board->mnuScoreSelections.enabled);
    EXPECT_EQ(board->document, "Game results");
}

TEST_F(BoardScreenScores, TheSecondEntryShowsTheSavedWinnersWithoutMarks)
{
    putResults();
    loadFinalized();
    board->ScoreSelections();
    ASSERT_TRUE(board->marksShown());
    board->EnterGameResults();
    EXPECT_EQ(at(16), "R1T0");
    EXPECT_EQ(at(17), "R1T3");
    EXPECT_EQ(at(18), "");
    EXPECT_FALSE(board->marksShown());
    EXPECT_EQ(board->lblResult[0].text, "");
    EXPECT_EQ(board->txtPointScore.text, "");
    EXPECT_FALSE(board->cmdDefaultColors.visible);
    EXPECT_TRUE(board->mnuSaveSelection.enabled);
}

TEST_F(BoardScreenScores, ADamagedResultsFileIsCompletedSoThatItCanBeSaved)
{
    scratch.put(file_name::kResults, crlf({"", "R1T1"}));
    loadFinalized();
    board->EnterGameResults();
    EXPECT_EQ(at(0), "R1T0");
    EXPECT_EQ(at(93), "R4T0");
    EXPECT_EQ(board->txtPlayerInitials.text, "A");
    board->SaveSelection();
    EXPECT_EQ(saved("TALLYHOOP.THS")[129], "FinalResults");
    EXPECT_EQ(saved("TALLYHOOP.THS")[131], "*END*");
}

TEST_F(BoardScreenScores, InResultsModeScoringOpensTheScoreDisplay)
{
    putResults();
    loadFinalized();
    board->EnterGameResults();
    board->ScoreSelections();
    EXPECT_EQ(screens.loads, (std::vector{FakeScreens::Load{ScreenKind::ScoreDisplay, Opening::Plain}}));
    EXPECT_FALSE(board->marksShown());
    EXPECT_TRUE(board->mnuScoreSelections.enabled);
}

TEST_F(BoardScreenScores, ScoringMarksThePicksAndShowsThePoints)
{
    putResults();
    loadFinalized();
    click(0);
    click(2);
    board->ScoreSelections();
    EXPECT_EQ(board->lblResult[0].text, "=");
    EXPECT_EQ(board->lblResult[1].text, "X");
    // R1T0 is right: 1 point. R1T2 is wrong, all other games are open and empty: nothing more is possible.
    // Open games count by their chain, not by their picks: 30 open first-round games, 16, 8, 4, 2 and 1 others, of
    // which the games fed by an earlier right or possible one stay possible: 30*1 + 16*2 + 8*4 + 4*8 + 2*12 + 1*16
    // would need picks; an empty pick is bad at once. So the most is what is earned.
    EXPECT_EQ(board->txtPointScore.text, "Points: 1 / 1");
    EXPECT_TRUE(board->cmdDefaultColors.visible);
    EXPECT_TRUE(board->cmdDefaultColors.enabled);
    EXPECT_TRUE(board->cmdDefaultColors.isDefault);
    for (const ui::TextBox* box : {&board->txtPlayerInitials, &board->txtPlayerName, &board->txtFinalPoints}) {
        EXPECT_TRUE(box->locked);
        EXPECT_FALSE(box->tabStop);
    }
    EXPECT_FALSE(board->mnuSaveSelection.enabled);
    EXPECT_FALSE(board->mnuScoreSelections.enabled);
    EXPECT_FALSE(board->mnuHighSeed.enabled);
}

TEST_F(BoardScreenScores, ACompleteBracketWithoutResultsCanStillEarnEverything)
{
    putSelection(file_name::kResults, emptyBracket("A", "FinalResults", ""));
    loadFinalized();
    board->SelectHighSeeds();
    for (const int position : {30, 92, 124})
        click(position);
    board->ScoreSelections();
    EXPECT_EQ(board->txtPointScore.text, "Points: 0 / 168");
}

TEST_F(BoardScreenScores, ScoringWithoutResultsIsRefused)
{
    loadFinalized();
    board->mnuScoreSelections.enabled = true;
    board->ScoreSelections();
    EXPECT_EQ(platform.dialogs.shown.back(),
              (ui::Message{"INVALID REQUEST TO LOAD FILE",
                           "The file TALLYHOOP.THS is not present in the application directory!", ui::Buttons::Ok,
                           ui::Icon::Exclamation}));
    EXPECT_FALSE(board->mnuScoreSelections.enabled);
    EXPECT_FALSE(board->marksShown());
}

TEST_F(BoardScreenScores, DefaultColorsGivesTheBoardBack)
{
    putResults();
    loadFinalized();
    click(0);
    board->ScoreSelections();
    board->cmdDefaultColors.click();
    EXPECT_FALSE(board->marksShown());
    EXPECT_FALSE(board->cmdDefaultColors.visible);
    EXPECT_FALSE(board->cmdDefaultColors.isDefault);
    EXPECT_FALSE(board->cmdDefaultColors.enabled);
    EXPECT_TRUE(board->mnuScoreSelections.enabled);
    EXPECT_TRUE(board->mnuSaveSelection.enabled);
    EXPECT_TRUE(board->mnuHighSeed.enabled);
    EXPECT_FALSE(board->txtFinalPoints.locked);
    EXPECT_TRUE(board->txtFinalPoints.tabStop);
}

TEST_F(BoardScreenScores, PayoffsAreReadByTheirLeadingNumber)
{
    SetupLines lines = defaultSetupLines();
    lines[setup_line::kPayoff] = "3 each";
    lines[setup_line::kPayoff + 1] = "none";
    scratch.put(file_name::kSetup, setupFile(lines));
    load();
    EXPECT_EQ(*board->payoffs(), (Payoffs{3, 0, 4, 8, 12, 16}));
}

TEST_F(BoardScreenScores, APayoffThatIsFarTooLargeIsAnErrorWithAMessage)
{
    putResults();
    SetupLines lines = defaultSetupLines();
    lines[setup_line::kPayoff] = "99999999999999999999";
    lines[setup_line::kFinalized] = "1";
    scratch.put(file_name::kSetup, setupFile(lines));
    load();
    board->ScoreSelections();
    EXPECT_EQ(platform.dialogs.shown.size(), 1u);
    EXPECT_FALSE(board->marksShown());
    EXPECT_TRUE(board->mnuScoreSelections.enabled);
}

TEST_F(BoardScreenScores, CommandsThatReplaceTheBoardCloseTheScoreDisplayFirst)
{
    const auto file = putSelection("Smith_JS.THC", emptyBracket("JS", "Smith", "150"));
    loadFinalized();
    platform.dialogs.pick(file);
    board->OpenSelection();
    board->NewSelection();
    board->EnterGameResults();
    EXPECT_EQ(screens.unloads, std::vector(3, ScreenKind::ScoreDisplay));
}

TEST_F(BoardScreenScores, PrintsTheBoardOnOneLandscapePage)
{
    loadFinalized();
    click(0);
    board->PrintForm();
    ASSERT_EQ(platform.printer.drawings.size(), 1u);
    EXPECT_EQ(platform.printer.drawings[0].orientation, ui::Orientation::Landscape);
    int found = 0;
    for (const ui::Caption& caption : platform.printer.drawings[0].drawing.captions)
        found += caption.text == "R1T0";
    EXPECT_EQ(found, 2) << "in the first round and as a winner";
}

TEST_F(BoardScreenScores, CancellingThePrinterDialogEndsQuietly)
{
    loadFinalized();
    platform.printer.dialogAccepted = false;
    board->PrintForm();
    EXPECT_TRUE(platform.printer.drawings.empty());
    EXPECT_TRUE(platform.dialogs.shown.empty());
}

TEST_F(BoardScreenScores, APageThatCouldNotBePrintedIsReported)
{
    loadFinalized();
    platform.printer.trouble = Failure{"no printer"};
    board->PrintForm();
    ASSERT_EQ(platform.dialogs.shown.size(), 1u);
    EXPECT_EQ(platform.dialogs.shown[0].text,
              "Error in attempting to print to the printer\r\nCheck you printer for proper attachment");
}

TEST_F(BoardScreenScores, ReportsAreDisabledWhileTheirScreenIsOpen)
{
    loadFinalized();
    board->mnuReports.click();
    EXPECT_FALSE(board->mnuReports.enabled);
    EXPECT_TRUE(screens.isLoaded(ScreenKind::Reports));
}

TEST_F(BoardScreenScores, TheSetupTakesTheBoardsPlace)
{
    load();
    board->mnuSetupOptions.click();
    EXPECT_EQ(screens.unloads.back(), ScreenKind::Board);
    EXPECT_EQ(screens.loads.back(), (FakeScreens::Load{ScreenKind::Setup, Opening::Plain}));
}

TEST_F(BoardScreenScores, EnteringDemoModeReloadsTheBoard)
{
    scratch.put(file_name::kDemoInstaller, "");
    load();
    platform.programs.whenStarted = [&] { putDemoMode(); };
    platform.dialogs.answer(ui::Answer::Ok);
    board->mnuDemoSet.click();
    EXPECT_EQ(screens.unloads.back(), ScreenKind::Board);
    EXPECT_EQ(screens.loads.back(), (FakeScreens::Load{ScreenKind::Board, Opening::DemoEntered}));
}

TEST_F(BoardScreenScores, ADemoThatDidNotComeReloadsTheBoardPlainly)
{
    load();
    platform.programs.end = Failure{"No space left on device"};
    platform.dialogs.answer(ui::Answer::Ok);
    board->mnuDemoSet.click();
    EXPECT_EQ(screens.unloads.back(), ScreenKind::Board);
    EXPECT_EQ(screens.loads.back(), (FakeScreens::Load{ScreenKind::Board, Opening::Plain}));
}

TEST_F(BoardScreenScores, LeavingDemoModeAsksNothingAndReloadsTheBoard)
{
    putDemoMode();
    loadFinalized();
    board->mnuDemoReset.click();
    EXPECT_FALSE(scratch.has(file_name::kSetup));
    EXPECT_FALSE(scratch.has(file_name::kSettings));
    EXPECT_EQ(screens.loads.back(), (FakeScreens::Load{ScreenKind::Board, Opening::DemoLeft}));
}

TEST_F(BoardScreenScores, TheBoardStaysWhenDemoModeCannotBeLeft)
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

TEST_F(BoardScreenScores, AMissingHelpFileIsExplained)
{
    load();
    platform.help.trouble = Failure{"missing"};
    board->mnuHelpDisplay.click();
    EXPECT_EQ(platform.dialogs.shown.back().caption, "** Help File Problem **");
    EXPECT_EQ(platform.dialogs.shown.back().text, "Trouble loading the help file, make sure that \r\n"
                                                  "TALLYHOOP.HLP is present in the same directory \r\n"
                                                  "as the application program.");
}

TEST(groundFor, CarriesEveryTeamColourComfortably)
{
    const auto luminance = [](ui::Colour colour) {
        const auto part = [](double value) {
            value /= 255;
            return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * part(colour.red) + 0.7152 * part(colour.green) + 0.0722 * part(colour.blue);
    };
    for (const ui::Colour colour : {ui::Colour{0, 0, 255}, ui::Colour{0, 255, 0}, ui::Colour{255, 0, 0}}) {
        const double a = luminance(colour);
        const double b = luminance(groundFor(colour));
        EXPECT_GE((std::max(a, b) + 0.05) / (std::min(a, b) + 0.05), 4.5);
    }
}

} // namespace tallyhoop::test
