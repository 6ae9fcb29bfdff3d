// tests/screens/board/board_screen_history_test.cpp - taking changes of the board back, and making them again.
#include "screens/board/board_fixture.h"

#include <functional>
#include <utility>
#include <vector>

namespace tallyhoop::test {

class BoardScreenHistory : public BoardTest
{
protected:
    void undo() { board->mnuUndo.click(); }
    void redo() { board->mnuRedo.click(); }
};

TEST_F(BoardScreenHistory, UndoAndRedoStepThroughTheChanges)
{
    loadFinalized();
    EXPECT_FALSE(board->mnuUndo.enabled);
    click(0);
    drag(2, 24);
    rightPress(17);
    ASSERT_EQ(at(24), "");
    undo();
    EXPECT_EQ(at(24), "R1T2");
    undo();
    EXPECT_EQ(at(17), "");
    EXPECT_EQ(at(16), "R1T0");
    redo();
    EXPECT_EQ(at(24), "R1T2");
    undo();
    undo();
    EXPECT_EQ(at(16), "");
    EXPECT_FALSE(board->mnuUndo.enabled);
    EXPECT_FALSE(board->unsaved);
    EXPECT_TRUE(board->mnuRedo.enabled);
    click(4);
    EXPECT_FALSE(board->mnuRedo.enabled);
}

TEST_F(BoardScreenHistory, UndoOfAPickKeepsWhatWasTypedSince)
{
    loadFinalized();
    click(0);
    fill("JS", "Smith", "150");
    board->txtPlayerName.edited();
    undo();
    EXPECT_EQ(at(16), "");
    EXPECT_EQ(board->txtPlayerInitials.text, "JS");
    EXPECT_EQ(board->txtPlayerName.text, "Smith");
    EXPECT_EQ(board->txtFinalPoints.text, "150");
    EXPECT_TRUE(board->unsaved);
}

TEST_F(BoardScreenHistory, UndoAfterASaveIsUnsavedWork)
{
    loadFinalized();
    const auto file = putSelection("Smith_JS.THC", emptyBracket("JS", "Smith", "150"));
    open(file);
    click(0);
    saveAs(file);
    ASSERT_FALSE(board->unsaved);
    undo();
    EXPECT_EQ(at(16), "");
    EXPECT_TRUE(board->unsaved);
    redo();
    EXPECT_FALSE(board->unsaved);
}

TEST_F(BoardScreenHistory, UndoAfterTheFirstSaveKeepsTheFile)
{
    loadFinalized();
    fill("JS", "Smith", "150");
    click(0);
    const std::filesystem::path file = scratch.path() / "Smith_JS.THC";
    saveAs(file);
    undo();
    EXPECT_EQ(at(16), "");
    EXPECT_EQ(board->document, "Smith_JS.THC");
    EXPECT_TRUE(board->unsaved);
    saveAs(file);
    EXPECT_TRUE(platform.dialogs.shown.empty()) << "saving under its own name asks nothing";
}

TEST_F(BoardScreenHistory, UndoAndRedoAreImpossibleWhileThePicksAreMarked)
{
    putNoResultsYet();
    loadFinalized();
    click(0);
    click(2);
    undo();
    for (const auto& [mark, unmark] : std::vector<std::pair<std::function<void()>, std::function<void()>>>{
             {[&] { score(); }, [&] { board->cmdDefaultColors.click(); }},
             {[&] { showListedVerdicts(Verdicts{}); }, [&] { showListedVerdicts(std::nullopt); }},
             {[&] { setScoreListOpen(true); }, [&] { setScoreListOpen(false); }}}) {
        mark();
        EXPECT_FALSE(board->mnuUndo.enabled);
        EXPECT_FALSE(board->mnuRedo.enabled);
        undo();
        EXPECT_EQ(at(16), "R1T0");
        unmark();
        EXPECT_TRUE(board->mnuUndo.enabled);
        EXPECT_TRUE(board->mnuRedo.enabled);
    }
}

TEST_F(BoardScreenHistory, UndoingNewBringsBackTheWholeBoard)
{
    loadFinalized();
    const auto file = putSelection("Smith_JS.THC", emptyBracket("JS", "Smith", "150"));
    open(file);
    click(0);
    board->mnuNewSelection.click();
    EXPECT_EQ(board->txtPlayerName.text, "");
    EXPECT_EQ(board->document, "");
    undo();
    EXPECT_EQ(at(16), "R1T0");
    EXPECT_EQ(board->txtPlayerInitials.text, "JS");
    EXPECT_EQ(board->txtPlayerName.text, "Smith");
    EXPECT_EQ(board->txtFinalPoints.text, "150");
    EXPECT_EQ(board->document, "Smith_JS.THC");
    EXPECT_TRUE(board->unsaved);
}

TEST_F(BoardScreenHistory, UndoingNewComesBackToResultsMode)
{
    loadFinalized();
    enterResults();
    click(0);
    board->mnuNewSelection.click();
    EXPECT_FALSE(resultsMode());
    undo();
    EXPECT_TRUE(resultsMode());
    EXPECT_TRUE(board->txtPlayerName.locked);
    EXPECT_FALSE(board->mnuGameResults.enabled);
    EXPECT_TRUE(board->mnuScoreSelections.enabled);
    EXPECT_EQ(at(16), "R1T0");
    EXPECT_EQ(board->news().text, "");
    EXPECT_EQ(board->explanation, "Game results: click the real winners forward and save.");
}

TEST_F(BoardScreenHistory, ComingBackToResultsModeLeavesTheFocusOnNoLockedBox)
{
    loadFinalized();
    enterResults();
    board->mnuNewSelection.click();
    board->focused = &board->txtPlayerName;
    undo();
    ASSERT_TRUE(resultsMode());
    EXPECT_EQ(board->focused, &board->lblRegion[Position{0}]);
}

TEST_F(BoardScreenHistory, ComingBackToResultsModeSaysWhatToDoThere)
{
    loadFinalized();
    enterResults();
    board->mnuNewSelection.click();
    fill("JS", "Smith", "150");
    click(0);
    saveAs(scratch.path() / "Smith_JS.THC");
    ASSERT_EQ(board->news().text, "Saved Smith_JS.THC. 62 games have no pick.");
    undo();
    EXPECT_EQ(board->news().text, "") << "this board is not the one that was saved";
    undo();
    ASSERT_TRUE(resultsMode());
    EXPECT_EQ(board->news().text, "");
    EXPECT_EQ(board->explanation, "Game results: click the real winners forward and save.");
}

TEST_F(BoardScreenHistory, UndoAfterASaveOfTheResultsIsUnsavedWork)
{
    loadFinalized();
    enterResults();
    click(0);
    save();
    ASSERT_FALSE(board->unsaved);
    undo();
    EXPECT_TRUE(board->unsaved);
    redo();
    EXPECT_FALSE(board->unsaved);
}

TEST_F(BoardScreenHistory, ResultsThatWereSavedMeanwhileCanBeScoredAgainst)
{
    loadFinalized();
    enterResults();
    board->mnuNewSelection.click();
    EXPECT_FALSE(board->mnuScoreSelections.enabled);
    undo();
    save(); // the results, for the first time
    redo();
    EXPECT_FALSE(resultsMode());
    EXPECT_TRUE(board->mnuScoreSelections.enabled);
}

TEST_F(BoardScreenHistory, RedoingNewBeginsAgain)
{
    loadFinalized();
    const auto file = putSelection("Smith_JS.THC", emptyBracket("JS", "Smith", "150"));
    open(file);
    click(0);
    board->mnuNewSelection.click();
    undo();
    redo();
    EXPECT_EQ(at(16), "");
    EXPECT_EQ(board->txtPlayerName.text, "");
    EXPECT_EQ(board->document, "");
    EXPECT_FALSE(board->unsaved);
}

TEST_F(BoardScreenHistory, OpeningASelectionForgetsThePast)
{
    loadFinalized();
    const auto file = putSelection("Smith_JS.THC", emptyBracket("JS", "Smith", "150"));
    click(0);
    open(file);
    EXPECT_FALSE(board->mnuUndo.enabled);
    EXPECT_FALSE(board->mnuRedo.enabled);
}

} // namespace tallyhoop::test
