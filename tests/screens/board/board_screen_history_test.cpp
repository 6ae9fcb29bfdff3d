// tests/screens/board/board_screen_history_test.cpp - taking changes of the board back, and making them again.
#include "screens/board/board_fixture.h"

namespace tallyhoop::test {

class BoardScreenHistory : public BoardTest
{
};

TEST_F(BoardScreenHistory, UndoAndRedoStepThroughTheChanges)
{
    loadFinalized();
    EXPECT_FALSE(board->mnuUndo.enabled);
    click(0);
    drag(2, 24);
    rightPress(17);
    ASSERT_EQ(at(24), "");
    board->undo();
    EXPECT_EQ(at(24), "R1T2");
    board->undo();
    EXPECT_EQ(at(17), "");
    EXPECT_EQ(at(16), "R1T0");
    board->redo();
    EXPECT_EQ(at(24), "R1T2");
    board->undo();
    board->undo();
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
    board->undo();
    EXPECT_EQ(at(16), "");
    EXPECT_EQ(board->txtPlayerInitials.text, "JS");
    EXPECT_EQ(board->txtPlayerName.text, "Smith");
    EXPECT_EQ(board->txtFinalPoints.text, "150");
    EXPECT_TRUE(board->unsaved);
}

TEST_F(BoardScreenHistory, UndoBehindASaveIsUnsavedWork)
{
    loadFinalized();
    const auto file = putSelection("Smith_JS.THC", emptyBracket("JS", "Smith", "150"));
    board->showSelection(file);
    click(0);
    platform.dialogs.pick(file);
    board->SaveSelection();
    ASSERT_FALSE(board->unsaved);
    board->undo();
    EXPECT_EQ(at(16), "");
    EXPECT_TRUE(board->unsaved);
    board->redo();
    EXPECT_FALSE(board->unsaved);
}

TEST_F(BoardScreenHistory, UndoBehindTheFirstSaveKeepsTheFile)
{
    loadFinalized();
    board->txtPlayerInitials.text = "JS";
    board->txtPlayerName.text = "Smith";
    board->txtFinalPoints.text = "150";
    click(0);
    const std::filesystem::path file = scratch.path() / "Smith_JS.THC";
    platform.dialogs.pick(file);
    board->SaveSelection();
    board->undo();
    EXPECT_EQ(at(16), "");
    EXPECT_EQ(state.selectionFile.OpenedFile, file);
    EXPECT_TRUE(board->unsaved);
    platform.dialogs.pick(file);
    board->SaveSelection();
    EXPECT_TRUE(platform.dialogs.shown.empty()) << "saving under its own name asks nothing";
}

TEST_F(BoardScreenHistory, UndoIsImpossibleWhileTheVerdictIsShown)
{
    loadFinalized();
    click(0);
    board->MarkScores();
    EXPECT_FALSE(board->mnuUndo.enabled);
    board->ClearMarks();
    EXPECT_TRUE(board->mnuUndo.enabled);
}

TEST_F(BoardScreenHistory, UndoingNewBringsBackTheWholeBoard)
{
    loadFinalized();
    const auto file = putSelection("Smith_JS.THC", emptyBracket("JS", "Smith", "150"));
    board->showSelection(file);
    click(0);
    board->NewSelection();
    EXPECT_EQ(board->txtPlayerName.text, "");
    EXPECT_TRUE(state.selectionFile.OpenedFile.empty());
    board->undo();
    EXPECT_EQ(at(16), "R1T0");
    EXPECT_EQ(board->txtPlayerInitials.text, "JS");
    EXPECT_EQ(board->txtPlayerName.text, "Smith");
    EXPECT_EQ(board->txtFinalPoints.text, "150");
    EXPECT_EQ(state.selectionFile.OpenedFile, file);
    EXPECT_TRUE(board->unsaved);
}

TEST_F(BoardScreenHistory, UndoingNewComesBackToResultsMode)
{
    loadFinalized();
    board->EnterGameResults();
    click(0);
    board->NewSelection();
    EXPECT_FALSE(board->resultsMode());
    board->undo();
    EXPECT_TRUE(board->resultsMode());
    EXPECT_TRUE(board->txtPlayerName.locked);
    EXPECT_FALSE(board->mnuGameResults.enabled);
    EXPECT_TRUE(board->mnuScoreSelections.enabled);
    EXPECT_EQ(at(16), "R1T0");
}

} // namespace tallyhoop::test
