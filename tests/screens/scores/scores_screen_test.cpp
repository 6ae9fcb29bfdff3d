// tests/screens/scores/scores_screen_test.cpp - the list of scores: opening, calculating, what can go wrong, closing.
#include "screens/scores/scores_screen_fixture.h"

namespace tallyhoop::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

TEST_F(ScoreDisplay, ShowsItsHeadingsAndNoRowWhenItOpens)
{
    putThreePlayers();
    open();
    EXPECT_THAT(headings(), ElementsAre("File Name", "Player Name", "Score", "-MAX-", "Winning Pick"));
    EXPECT_THAT(screen.msgScoreDisplay.rows, IsEmpty());
    EXPECT_THAT(screen.filList.rows, ElementsAre("Adams_QA.THC", "Brown_TB.THC", "Smith_JS.THC"));
    EXPECT_FALSE(screen.filList.visible);
}

TEST_F(ScoreDisplay, SaysWhyThereIsNoRow)
{
    open();
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
    setPayoffs({"32767", "32767", "32767", "32767", "32767", "32767"}); // twice that is too much for a score
    open();
    screen.cmdOk.click();
    EXPECT_THAT(screen.msgScoreDisplay.rows, IsEmpty());
    EXPECT_EQ(screen.msgScoreDisplay.emptyNote, "None of the saved selections could be scored.");
}

TEST_F(ScoreDisplay, CalculatesARowForEveryPlayerInTheOrderOfTheFiles)
{
    putThreePlayers();
    open();
    markSomebody();
    screen.cmdOk.click();
    ASSERT_EQ(screen.msgScoreDisplay.rows.size(), 3u);
    // Adams: nothing right in region 1, which is worth 32; the semi-final and the title were picked from other regions.
    EXPECT_THAT(screen.msgScoreDisplay.rows[0], ElementsAre("Adams_QA.THC", "QA, Adams", "0", "136", "Team 64"));
    // Brown: eight games of one point; the title pick is Team 1, whose region winner was left empty. The semi-final of
    // regions 1 and 2 still has an entrant from region 2, so it counts as possible.
    EXPECT_THAT(screen.msgScoreDisplay.rows[1], ElementsAre("Brown_TB.THC", "TB, Brown", "8", "144", "Team 1"));
    EXPECT_THAT(screen.msgScoreDisplay.rows[2], ElementsAre("Smith_JS.THC", "JS, Smith", "32", "168", "Team 1"));
    EXPECT_FALSE(marked) << "marks of a player who was chosen before";
    EXPECT_EQ(platform.progress.begun, 1);
    EXPECT_EQ(platform.progress.ended, 1);
}

TEST_F(ScoreDisplay, LeavesOnlyTheHeadingsWithoutSelectionFiles)
{
    open();
    screen.cmdOk.click();
    EXPECT_THAT(screen.msgScoreDisplay.rows, IsEmpty());
    dragHeading(2, 0);
    EXPECT_THAT(screen.msgScoreDisplay.rows, IsEmpty());
    EXPECT_EQ(headings().front(), "Score");
    EXPECT_TRUE(platform.dialogs.shown.empty());
}

TEST_F(ScoreDisplay, ShowsExactlyTheFilesThatAreThereAtEachCalculation)
{
    putThreePlayers();
    open();
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
    open();
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
    open();
    screen.cmdOk.click();
    EXPECT_THAT(column(0), ElementsAre("Smith_JS.THC"));
    ASSERT_EQ(platform.dialogs.shown.size(), 1u);
    EXPECT_THAT(platform.dialogs.shown[0].text, HasSubstr("Adams_QA.THC"));
    EXPECT_EQ(platform.dialogs.shown[0].icon, ui::Icon::Critical);
}

TEST_F(ScoreDisplay, SaysOnceThatAPayoffDoesNotFit)
{
    putThreePlayers();
    setPayoffs({"1", "2", "4", "8", "12", "99999"});
    open();
    screen.cmdOk.click();
    EXPECT_THAT(screen.msgScoreDisplay.rows, IsEmpty());
    ASSERT_EQ(platform.dialogs.shown.size(), 1u);
    EXPECT_EQ(platform.dialogs.shown[0],
              (ui::Message{"", field.payoffs.points().failure().message, ui::Buttons::Ok, ui::Icon::Critical}));
    EXPECT_EQ(platform.progress.begun, 0);
}

TEST_F(ScoreDisplay, KeepsTheOldTableWhenThePersonCancels)
{
    putThreePlayers();
    open();
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
    open();
    screen.cmdExit.click();
    screen.closeRequested();
    EXPECT_THAT(screens.unloads, ElementsAre(ScreenKind::Scores, ScreenKind::Scores));
}

TEST_F(ScoreDisplay, GivesTheBoardBackWithoutMarksWhoeverUnloadsIt)
{
    open();
    markSomebody();
    screen.unloading();
    EXPECT_FALSE(marked);
}

TEST_F(ScoreDisplay, TakesTheResultsFromTheBoardAndThePicksFromTheFiles)
{
    results = without(everyUpperTeamWins(), 16, 126);
    results.put(Position{16}, "Team 2"); // since the list was opened
    putPlayer("Smith_JS.THC", "JS", "Smith", everyUpperTeamWins());
    open();
    screen.cmdOk.click();
    ASSERT_EQ(screen.msgScoreDisplay.rows.size(), 1u);
    // The champion, Team 1, lost its first game: 1 + 2 + 4 + 8 + 12 + 16 of the 168 points are gone.
    EXPECT_THAT(screen.msgScoreDisplay.rows[0], ElementsAre("Smith_JS.THC", "JS, Smith", "0", "125", "Team 1"));
    screen.msgScoreDisplay.cellPressed(0, 0);
    ASSERT_TRUE(marked);
    EXPECT_EQ(marked->verdicts[Position{16}], Verdict::Bad);
    EXPECT_EQ(marked->verdicts[Position{24}], Verdict::Bad);
    EXPECT_EQ(marked->verdicts[Position{17}], Verdict::Possible);
}

} // namespace
} // namespace tallyhoop::test
