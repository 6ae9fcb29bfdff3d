// tests/screens/scores/scores_screen_test.cpp - the score display: opening, calculating, what can go wrong, closing.
#include "screens/scores/scores_screen_fixture.h"

namespace tallyhoop::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

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
} // namespace tallyhoop::test
