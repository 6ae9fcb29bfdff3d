// tests/scoring/frmPoolMisc_test.cpp - the score display as a person uses it.
#include "scoring/frmPoolMisc.h"

#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "fakes/scratch_folder.h"
#include "model/selection_file.h"
#include "scoring/sample_brackets.h"

#include <gmock/gmock.h>

namespace tallyhoop {
namespace {

using test::everyLowerTeamWins;
using test::everyUpperTeamWins;
using test::without;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

struct ScoreDisplay : testing::Test {
    test::ScratchFolder scratch;
    DataFolder folder = scratch.folder();
    test::FakePlatform platform;
    modTallyhoop state;
    test::FakeScreens screens;
    test::FakeBoard board{state};
    frmPoolMisc screen{folder, platform.services, state, screens, board};

    ScoreDisplay()
    {
        // Region 1 is played: its upper teams won, 8 * 1 + 4 * 2 + 2 * 4 + 8 = 32 points.
        board.onBoard = without(everyUpperTeamWins(), 32, 127);
    }

    void putPlayer(const std::string& fileName, const std::string& initials, const std::string& name,
                   SelectionLines lines, const std::string& finalPoints = "145")
    {
        lines[selection_line::kInitials] = initials;
        lines[selection_line::kName] = name;
        lines[selection_line::kFinalPoints] = finalPoints;
        scratch.put(fileName, selectionFile(lines));
    }

    /// Smith has everything right (32 of 168), Adams everything wrong in region 1 (0), Brown the first round of it (8).
    void putThreePlayers()
    {
        putPlayer("Smith_JS.THC", "JS", "Smith", everyUpperTeamWins());
        putPlayer("Adams_QA.THC", "QA", "Adams", everyLowerTeamWins());
        putPlayer("Brown_TB.THC", "TB", "Brown", without(everyUpperTeamWins(), 25, 31));
    }

    std::vector<std::string> column(std::size_t index) const
    {
        std::vector<std::string> cells;
        for (const auto& row : screen.msgScoreDisplay.rows)
            cells.push_back(row.at(index));
        return cells;
    }

    std::vector<std::string> headings() const
    {
        std::vector<std::string> texts;
        for (const ui::GridColumn& gridColumn : screen.msgScoreDisplay.columns)
            texts.push_back(gridColumn.heading);
        return texts;
    }

    void dragHeading(std::size_t from, std::optional<std::size_t> to)
    {
        screen.msgScoreDisplay.columnPressed(from);
        screen.msgScoreDisplay.columnReleased(to);
    }

    std::vector<std::string> boardCallsSince(std::size_t first) const
    {
        return {board.calls.begin() + static_cast<std::ptrdiff_t>(first), board.calls.end()};
    }
};

TEST_F(ScoreDisplay, ShowsItsHeadingsAndHoldsTheBoardWhenItOpens)
{
    putThreePlayers();
    screen.load();
    EXPECT_EQ(screen.caption, "Display Scores (Total, Possible)");
    EXPECT_THAT(headings(), ElementsAre("File Name", "Player Name", "Score", "-MAX-", "Winning Pick"));
    EXPECT_THAT(screen.msgScoreDisplay.rows, IsEmpty());
    EXPECT_THAT(screen.filList.rows, ElementsAre("Adams_QA.THC", "Brown_TB.THC", "Smith_JS.THC"));
    EXPECT_TRUE(board.scoreDisplayOpen);
    EXPECT_EQ(screen.lblInformation.text, "Select a Heading Column and drag to another position to change sequence");
}

TEST_F(ScoreDisplay, SaysWhyThereIsNoRow)
{
    screen.load();
    EXPECT_EQ(screen.msgScoreDisplay.emptyNote,
              "No scores yet: press the long button below. Each saved selection gets a row.");
    screen.cmdOk.click();
    EXPECT_THAT(screen.msgScoreDisplay.rows, IsEmpty());
    EXPECT_EQ(screen.msgScoreDisplay.emptyNote,
              "No selections are saved in the program's folder, so there are no scores.");
}

TEST_F(ScoreDisplay, SaysThatNothingCouldBeScored)
{
    putThreePlayers();
    EXPECT_TRUE(folder.remove("Adams_QA.THC"));
    EXPECT_TRUE(folder.remove("Brown_TB.THC"));
    board.shownPayoffs = Payoffs{32767, 32767, 32767, 32767, 32767, 32767}; // twice that is too much for a score
    screen.load();
    screen.cmdOk.click();
    EXPECT_THAT(screen.msgScoreDisplay.rows, IsEmpty());
    EXPECT_EQ(screen.msgScoreDisplay.emptyNote, "None of the saved selections could be scored.");
}

TEST_F(ScoreDisplay, CalculatesARowForEveryPlayerInTheOrderOfTheFiles)
{
    putThreePlayers();
    screen.load();
    screen.cmdOk.click();
    ASSERT_EQ(screen.msgScoreDisplay.rows.size(), 3u);
    // Adams: nothing right in region 1, which is worth 32; the semi-final and the title were picked from other regions.
    EXPECT_THAT(screen.msgScoreDisplay.rows[0], ElementsAre("Adams_QA.THC", "QA, Adams", "0", "136", "Team 64"));
    // Brown: eight games of one point; the title pick is Team 1, whose region winner was left empty. The semi-final of
    // regions 1 and 2 still has an entrant from region 2, so it counts as possible.
    EXPECT_THAT(screen.msgScoreDisplay.rows[1], ElementsAre("Brown_TB.THC", "TB, Brown", "8", "144", "Team 1"));
    EXPECT_THAT(screen.msgScoreDisplay.rows[2], ElementsAre("Smith_JS.THC", "JS, Smith", "32", "168", "Team 1"));
    EXPECT_EQ(board.calls.front(), "ClearMarks");
    EXPECT_EQ(platform.progress.begun, 1);
    EXPECT_EQ(platform.progress.ended, 1);
}

TEST_F(ScoreDisplay, LeavesOnlyTheHeadingsWithoutSelectionFiles)
{
    screen.load();
    screen.cmdOk.click();
    EXPECT_THAT(screen.msgScoreDisplay.rows, IsEmpty());
    dragHeading(2, 0);
    EXPECT_THAT(screen.msgScoreDisplay.rows, IsEmpty());
    EXPECT_EQ(headings().front(), "Score");
    EXPECT_TRUE(platform.dialogs.shown.empty());
}

TEST_F(ScoreDisplay, CalculatesTwiceWithoutDuplicates)
{
    putThreePlayers();
    screen.load();
    screen.cmdOk.click();
    const auto rows = screen.msgScoreDisplay.rows;
    screen.cmdOk.click();
    EXPECT_EQ(screen.msgScoreDisplay.rows, rows);
}

TEST_F(ScoreDisplay, ShowsExactlyTheFilesThatAreThereAtEachCalculation)
{
    putThreePlayers();
    screen.load();
    screen.cmdOk.click();
    std::filesystem::remove(scratch.path() / "Adams_QA.THC");
    putPlayer("zorn_z.thc", "Z", "Zorn", everyUpperTeamWins());
    screen.cmdOk.click();
    EXPECT_THAT(column(0), ElementsAre("Brown_TB.THC", "Smith_JS.THC", "zorn_z.thc"));
    EXPECT_THAT(screen.filList.rows, ElementsAre("Brown_TB.THC", "Smith_JS.THC", "zorn_z.thc"));
}

TEST_F(ScoreDisplay, RestoresTheOriginalColumnsWhenCalculatingAgain)
{
    putThreePlayers();
    screen.load();
    screen.cmdOk.click();
    dragHeading(2, 0);
    screen.cmdOk.click();
    EXPECT_THAT(headings(), ElementsAre("File Name", "Player Name", "Score", "-MAX-", "Winning Pick"));
    EXPECT_THAT(column(0), ElementsAre("Adams_QA.THC", "Brown_TB.THC", "Smith_JS.THC"));
}

TEST_F(ScoreDisplay, SortsByScoreDownwardsWhenThatHeadingIsDraggedToTheFront)
{
    putThreePlayers();
    putPlayer("Clark_TC.THC", "TC", "Clark", everyUpperTeamWins());
    screen.load();
    screen.cmdOk.click();
    dragHeading(2, 0); // the first row holds 0 for Adams: upwards
    EXPECT_THAT(column(0), ElementsAre("0", "8", "32", "32"));

    screen.cmdOk.click();
    dragHeading(3, 0); // the maximum: 136, 144, 168, 168
    EXPECT_THAT(headings(), ElementsAre("-MAX-", "File Name", "Player Name", "Score", "Winning Pick"));
    EXPECT_THAT(column(0), ElementsAre("168", "168", "144", "136"));
    EXPECT_THAT(column(1), ElementsAre("Clark_TC.THC", "Smith_JS.THC", "Brown_TB.THC", "Adams_QA.THC"))
        << "equal in every number: the order of arrival";
}

TEST_F(ScoreDisplay, OrdersEqualScoresByTheFollowingColumns)
{
    putPlayer("A_A.THC", "A", "A", without(everyUpperTeamWins(), 127, 127)); // 32 of 152
    putPlayer("B_B.THC", "B", "B", everyUpperTeamWins());                    // 32 of 168
    screen.load();
    screen.cmdOk.click();
    dragHeading(2, 0);
    EXPECT_THAT(column(0), ElementsAre("32", "32"));
    EXPECT_THAT(column(1), ElementsAre("B_B.THC", "A_A.THC")) << "the maximum decides: names count as 0";
}

TEST_F(ScoreDisplay, SortsAgainInThePresentOrderOnAPressAndReleaseOfOneHeading)
{
    putThreePlayers();
    screen.load();
    screen.cmdOk.click();
    dragHeading(1, 0); // player name to the front
    EXPECT_THAT(column(0), ElementsAre("JS, Smith", "QA, Adams", "TB, Brown"));
    dragHeading(3, 3);
    EXPECT_THAT(column(0), ElementsAre("JS, Smith", "QA, Adams", "TB, Brown"));
    EXPECT_EQ(screen.msgScoreDisplay.headingPressed, std::nullopt);
}

TEST_F(ScoreDisplay, LeavesTheOrderAloneWhenAHeadingIsDroppedOutside)
{
    putThreePlayers();
    screen.load();
    screen.cmdOk.click();
    const auto rows = screen.msgScoreDisplay.rows;
    screen.msgScoreDisplay.columnPressed(2);
    EXPECT_EQ(screen.msgScoreDisplay.headingPressed, 2u);
    screen.msgScoreDisplay.columnReleased(std::nullopt);
    EXPECT_EQ(screen.msgScoreDisplay.rows, rows);
    EXPECT_EQ(headings().front(), "File Name");
    EXPECT_EQ(screen.msgScoreDisplay.headingPressed, std::nullopt);

    screen.msgScoreDisplay.columnReleased(1); // a release that nothing was pressed for
    EXPECT_EQ(screen.msgScoreDisplay.rows, rows);
}

TEST_F(ScoreDisplay, MarksThePlayersVerdictWhenAFileNameIsClicked)
{
    putThreePlayers();
    screen.load();
    screen.cmdOk.click();
    const std::size_t before = board.calls.size();
    screen.msgScoreDisplay.cellPressed(0, 0); // Adams
    EXPECT_THAT(boardCallsSince(before), ElementsAre("ClearMarks", "captureBoard", "MarkScores"));
    EXPECT_EQ(state.verdict.SlotStatus[17], Verdict::Bad);
    screen.msgScoreDisplay.cellPressed(2, 0); // Smith
    EXPECT_EQ(state.verdict.SlotStatus[17], Verdict::Good);
}

TEST_F(ScoreDisplay, DoesNothingWhenAnotherCellIsClicked)
{
    putThreePlayers();
    screen.load();
    screen.cmdOk.click();
    const std::size_t before = board.calls.size();
    for (const std::size_t other : {1u, 2u, 3u, 4u})
        screen.msgScoreDisplay.cellPressed(0, other);
    EXPECT_THAT(boardCallsSince(before), IsEmpty());
}

TEST_F(ScoreDisplay, KnowsAFileNameInWhateverColumnAndCaseItStands)
{
    putPlayer("zorn_z.thc", "Z", "Zorn", everyUpperTeamWins());
    screen.load();
    screen.cmdOk.click();
    dragHeading(0, 4); // to the end
    const std::size_t before = board.calls.size();
    screen.msgScoreDisplay.cellPressed(0, 4);
    EXPECT_THAT(boardCallsSince(before), ElementsAre("ClearMarks", "captureBoard", "MarkScores"));
}

TEST_F(ScoreDisplay, MarksAFileWhoseNameWouldNotStandForAFileOfTheFolder)
{
    putPlayer("Team: Red\\_X.THC", "X", "Red", everyUpperTeamWins());
    screen.load();
    screen.cmdOk.click();
    screen.msgScoreDisplay.cellPressed(0, 0);
    EXPECT_TRUE(platform.dialogs.shown.empty());
    EXPECT_EQ(state.verdict.SlotStatus[17], Verdict::Good);
}

TEST_F(ScoreDisplay, NeverReadsOutsideTheFolderForACellThatLooksLikeAFileName)
{
    std::filesystem::create_directory(scratch.path() / "sub");
    scratch.put("sub/X.THC", selectionFile(everyUpperTeamWins()));
    putPlayer("Smith_JS.THC", "JS", "sub/X.THC", everyUpperTeamWins());
    screen.load();
    screen.cmdOk.click();
    ASSERT_THAT(screen.msgScoreDisplay.rows[0], testing::Contains("JS, sub/X.THC"));
    const std::size_t before = board.calls.size();
    for (std::size_t column = 1; column < 5; ++column)
        screen.msgScoreDisplay.cellPressed(0, column);
    EXPECT_THAT(boardCallsSince(before), ElementsAre("ClearMarks"));
    EXPECT_EQ(platform.dialogs.shown.size(), 1u);
}

TEST_F(ScoreDisplay, ShowsTheRowOfAFileThatCannotBeReadAsItWasScored)
{
    scratch.put("Damaged_D.THC", "not a selection\r\n");
    screen.load();
    screen.cmdOk.click();
    ASSERT_EQ(screen.msgScoreDisplay.rows.size(), 1u);
    EXPECT_THAT(screen.msgScoreDisplay.rows[0], ElementsAre("Damaged_D.THC", ", ", "0", "0", ""));
    ASSERT_EQ(platform.dialogs.shown.size(), 1u);
    EXPECT_EQ(platform.dialogs.shown[0].caption, "** ERROR IN OPENING FILE - ReadSelections Routine **");
    EXPECT_THAT(platform.dialogs.shown[0].text, HasSubstr("Damaged_D.THC"));
}

TEST_F(ScoreDisplay, NamesAFileWhoseTieBreakerDoesNotFitAndGoesOn)
{
    putPlayer("Adams_QA.THC", "QA", "Adams", everyUpperTeamWins(), "70000");
    putPlayer("Smith_JS.THC", "JS", "Smith", everyUpperTeamWins());
    screen.load();
    screen.cmdOk.click();
    EXPECT_THAT(column(0), ElementsAre("Smith_JS.THC"));
    ASSERT_EQ(platform.dialogs.shown.size(), 1u);
    EXPECT_THAT(platform.dialogs.shown[0].text, HasSubstr("Adams_QA.THC"));
    EXPECT_EQ(platform.dialogs.shown[0].icon, ui::Icon::Critical);
}

TEST_F(ScoreDisplay, SaysOnceThatAPayoffDoesNotFit)
{
    putThreePlayers();
    board.shownPayoffs = Failure{"The number \"99999\" is out of range."};
    screen.load();
    screen.cmdOk.click();
    EXPECT_THAT(screen.msgScoreDisplay.rows, IsEmpty());
    EXPECT_EQ(platform.dialogs.shown.size(), 1u);
}

TEST_F(ScoreDisplay, KeepsTheOldTableWhenThePersonCancels)
{
    putThreePlayers();
    screen.load();
    screen.cmdOk.click();
    const auto rows = screen.msgScoreDisplay.rows;
    platform.progress.cancelAt = 1;
    std::filesystem::remove(scratch.path() / "Adams_QA.THC");
    screen.cmdOk.click();
    EXPECT_EQ(screen.msgScoreDisplay.rows, rows);
    ASSERT_EQ(platform.dialogs.shown.size(), 1u);
    EXPECT_EQ(platform.dialogs.shown[0].text, "The scores were not calculated.");
    EXPECT_EQ(platform.progress.ended, 2);
}

TEST_F(ScoreDisplay, PrintsTheTableInCourierNewPortraitWithoutAsking)
{
    putPlayer("Smith_JS.THC", "JS", "Smith", everyUpperTeamWins());
    screen.load();
    screen.cmdOk.click();
    screen.cmdPrint.click();
    EXPECT_EQ(platform.printer.printerDialogs, 0);
    ASSERT_EQ(platform.printer.texts.size(), 1u);
    const ui::TextPrintout& printout = platform.printer.texts[0];
    EXPECT_EQ(printout.font, (ui::PrinterFont{"Courier New", 10, false, false}));
    EXPECT_EQ(printout.orientation, ui::Orientation::Portrait);
    EXPECT_THAT(printout.lines, ElementsAre("                TALLYHOOP POINT SUMMARY: 5-March-01", "", "",
                                            "     File Name     Player Name   Score   -MAX-  Winning Pick", "",
                                            "     Smith_JS.THC  JS, Smith        32     168  Team 1      "));
    EXPECT_TRUE(platform.dialogs.shown.empty());
}

TEST_F(ScoreDisplay, PrintsNothingWhenTheFontDialogIsCancelled)
{
    platform.printer.fonts.clear();
    screen.load();
    screen.cmdPrint.click();
    EXPECT_EQ(platform.printer.fontDialogs, 1);
    EXPECT_THAT(platform.printer.texts, IsEmpty());
    EXPECT_EQ(platform.dialogs.shown.size(), 1u) << "the missing font, and no word about the cancel";
}

TEST_F(ScoreDisplay, SaysWhenPrintingFails)
{
    platform.printer.trouble = Failure{"no printer"};
    screen.load();
    screen.cmdPrint.click();
    ASSERT_EQ(platform.dialogs.shown.size(), 1u);
    EXPECT_EQ(platform.dialogs.shown[0].caption, "");
    EXPECT_EQ(platform.dialogs.shown[0].text, "Error in attempting to print to the printer\r\n"
                                              "Check you printer for proper attachment");
}

TEST_F(ScoreDisplay, CopiesTheTableForASpreadsheet)
{
    putPlayer("Smith_JS.THC", "JS", "Smith", everyUpperTeamWins());
    screen.load();
    screen.cmdOk.click();
    dragHeading(2, 0);
    screen.cmdCopy.click();
    EXPECT_EQ(platform.clipboard.text, "Score\tFile Name\tPlayer Name\t-MAX-\tWinning Pick\r\n"
                                       "32\tSmith_JS.THC\tJS, Smith\t168\tTeam 1\r\n");
}

TEST_F(ScoreDisplay, UnloadsItselfOnExitAndOnClosing)
{
    screen.load();
    screen.cmdExit.click();
    screen.closeRequested();
    EXPECT_THAT(screens.unloads, ElementsAre(ScreenKind::ScoreDisplay, ScreenKind::ScoreDisplay));
}

TEST_F(ScoreDisplay, GivesTheBoardBackWithoutMarksWhoeverUnloadsIt)
{
    screen.load();
    const std::size_t before = board.calls.size();
    screen.unloading();
    EXPECT_FALSE(board.scoreDisplayOpen);
    EXPECT_THAT(boardCallsSince(before), ElementsAre("ClearMarks"));
}

TEST_F(ScoreDisplay, HasAllItsControls)
{
    for (const char* name : {"msgScoreDisplay", "filList", "cmdOk", "cmdPrint", "cmdCopy", "cmdExit", "lblInformation"})
        EXPECT_NE(screen.find(name), nullptr) << name;
    EXPECT_FALSE(screen.filList.visible);
}

} // namespace
} // namespace tallyhoop
