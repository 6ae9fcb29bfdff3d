// tests/screens/board/board_screen_files_test.cpp - opening and beginning a selection.
#include "screens/board/board_fixture.h"

#include <functional>
#include <vector>

namespace tallyhoop::test {

class BoardScreenFiles : public BoardTest
{
};

TEST_F(BoardScreenFiles, OpenShowsTheFileAndUnlocksTheFields)
{
    Entry entry = emptyBracket("JS", "Smith", "150");
    entry.picks.put(Position{16}, "R1T1");
    const auto file = putSelection("Smith_JS.THC", entry);
    putNoResultsYet();
    loadFinalized();
    enterResults();
    open(file);
    EXPECT_EQ(at(16), "R1T1");
    EXPECT_EQ(board->txtPlayerName.text, "Smith");
    EXPECT_FALSE(board->txtPlayerName.locked);
    EXPECT_TRUE(board->txtPlayerName.tabStop);
    EXPECT_FALSE(resultsMode());
    EXPECT_TRUE(board->mnuGameResults.enabled);
    EXPECT_TRUE(board->mnuScoreSelections.enabled);
    EXPECT_EQ(board->document, "Smith_JS.THC");
    EXPECT_EQ(board->news().text, "Opened Smith_JS.THC.");
}

TEST_F(BoardScreenFiles, CancellingTheOpenDialogChangesNothing)
{
    loadFinalized();
    click(0);
    platform.dialogs.pick(std::nullopt);
    board->mnuOpenSelection.click();
    EXPECT_EQ(at(16), "R1T0");
    EXPECT_TRUE(platform.dialogs.shown.empty());
}

TEST_F(BoardScreenFiles, ADamagedFileIsReportedAndShownAsFarAsItGoes)
{
    const auto file = scratch.put("Short_S.THC", crlf({"Alpha", "Beta"}));
    loadFinalized();
    open(file);
    EXPECT_EQ(platform.dialogs.shown.back().caption, "** ERROR IN OPENING FILE - ReadSelections Routine **");
    EXPECT_EQ(platform.dialogs.shown.back().text,
              "There is a problem opening: " + file.string() + "\r\n\r\n The program will attempt to continue ......");
    EXPECT_EQ(at(0), "Alpha");
    EXPECT_EQ(at(1), "Beta");
    EXPECT_EQ(at(2), "");
}

TEST_F(BoardScreenFiles, NewSelectionClearsTheBoardAndEndsResultsMode)
{
    putNoResultsYet();
    loadFinalized();
    enterResults();
    drag(0, 126);
    board->txtFinalPoints.text = "170";
    board->mnuNewSelection.click();
    for (const Position position : gamePositions())
        EXPECT_EQ(at(position), "");
    EXPECT_EQ(at(0), "R1T0");
    EXPECT_EQ(board->txtPlayerInitials.text + board->txtPlayerName.text + board->txtFinalPoints.text, "");
    EXPECT_FALSE(board->txtPlayerInitials.locked);
    EXPECT_FALSE(resultsMode());
    EXPECT_TRUE(board->mnuGameResults.enabled);
    EXPECT_TRUE(board->mnuScoreSelections.enabled);
    EXPECT_TRUE(board->mnuSaveSelection.enabled);
    EXPECT_FALSE(board->cmdDefaultColors.visible);
    EXPECT_EQ(board->document, "");
}

TEST_F(BoardScreenFiles, NewSelectionForgetsTheOpenedFile)
{
    loadFinalized();
    open(putSelection("Smith_JS.THC", emptyBracket("JS", "Smith", "150")));
    board->mnuNewSelection.click();
    EXPECT_EQ(board->document, "");
    fill("KJ", "Jones", "150");
    saveAs(scratch.path() / "Jones_KJ.THC");
    EXPECT_TRUE(platform.dialogs.shown.empty()) << "this is no other name for Smith's file";
    EXPECT_EQ(screens.loads, std::vector{ScreenKind::Players});
}

TEST_F(BoardScreenFiles, NewSelectionOpenResultsAndUnloadingDropAnUnusedHandOver)
{
    const auto file = putSelection("Smith_JS.THC", emptyBracket("JS", "Smith", "150"));
    loadFinalized();
    for (const auto& command :
         std::vector<std::function<void()>>{[&] { board->mnuNewSelection.click(); }, [&] { open(file); },
                                            [&] { enterResults(); }, [&] { board->unloading(); }}) {
        savedPlayer = SavedPlayer{"Smith,JS", file, SaveKind::SameName};
        command();
        EXPECT_FALSE(savedPlayer);
    }
}

TEST_F(BoardScreenFiles, LoadingTheBoardDropsAnUnusedHandOver)
{
    savedPlayer = SavedPlayer{"Smith,JS", scratch.path() / "Smith_JS.THC", SaveKind::SameName};
    load();
    EXPECT_FALSE(savedPlayer);
}

/// Every trace of a scored selection is gone.
TEST_F(BoardScreenFiles, NewAndOpenLeaveTheScoredState)
{
    Entry results = emptyBracket("A", "FinalResults", "");
    results.picks.put(Position{16}, "R1T1");
    putSelection(file_name::kResults, results);
    const auto file = putSelection("Smith_JS.THC", emptyBracket("JS", "Smith", "150"));
    loadFinalized();
    for (const auto& command :
         std::vector<std::function<void()>>{[&] { board->mnuNewSelection.click(); }, [&] { open(file); }}) {
        click(0);
        score();
        ASSERT_EQ(board->lblResult[0].text, "X");
        ASSERT_EQ(board->txtPointScore.text, "Points: 0 / 0");
        command();
        EXPECT_FALSE(marksShown());
        EXPECT_EQ(board->lblResult[0].text, "");
        EXPECT_EQ(board->lblRegion[16].colour, board->lblRegion[0].colour);
        EXPECT_EQ(board->txtPointScore.text, "");
        EXPECT_TRUE(board->mnuSaveSelection.enabled);
        EXPECT_TRUE(board->mnuScoreSelections.enabled);
        EXPECT_FALSE(board->txtPlayerName.locked);
        EXPECT_FALSE(board->cmdDefaultColors.enabled);
    }
}

} // namespace tallyhoop::test
