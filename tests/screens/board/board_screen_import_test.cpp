// tests/screens/board/board_screen_import_test.cpp - the way to the import, and what the board makes of its files.
#include "screens/board/board_fixture.h"

#include <gmock/gmock.h>

namespace tallyhoop::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct BoardImport : BoardTest {
    Entry adams(const std::string& points) { return emptyBracket("BA", "Adams", points); }

    void imported(const std::filesystem::path& file)
    {
        board->selectionsWereWritten(std::vector{file});
        board->showState();
    }
};

TEST_F(BoardImport, IsOpenedFromTheMenuOnceTheFieldIsFinal)
{
    putField(fieldOfTeams("0"));
    EXPECT_FALSE(load().mnuImport.enabled);
    EXPECT_FALSE(board->takesFiles());
    loadFinalized();
    EXPECT_TRUE(board->takesFiles());
    setScoreListOpen(true);
    board->mnuImport.click();
    EXPECT_THAT(screens.loads, ElementsAre(ScreenKind::Import));
    EXPECT_FALSE(screens.isLoaded(ScreenKind::Scores));
}

TEST_F(BoardImport, DroppedFilesAreLeftForIt)
{
    loadFinalized();
    board->filesDropped({"a.THC", "folder/b.eml"});
    EXPECT_THAT(screens.loads, ElementsAre(ScreenKind::Import));
    EXPECT_THAT(droppedFiles, ElementsAre("a.THC", "folder/b.eml"));
}

TEST_F(BoardImport, AnOpenSelectionIsShownAsItWasImported)
{
    loadFinalized();
    const auto file = putSelection("Adams_BA.THC", adams("100"));
    open(file);
    putSelection("Adams_BA.THC", adams("200"));
    imported(scratch.path() / "Clark_D.THC");
    EXPECT_EQ(board->txtFinalPoints.text, "100") << "another file";
    imported(file);
    EXPECT_EQ(board->txtFinalPoints.text, "200");
    EXPECT_FALSE(board->unsaved);
}

TEST_F(BoardImport, UnsavedChangesStayAndSavingThemAsks)
{
    loadFinalized();
    const auto file = putSelection("Adams_BA.THC", adams("100"));
    open(file);
    click(0);
    ASSERT_TRUE(board->holdsUnsavedChanges());
    EXPECT_EQ(board->openFile(), file);
    putSelection("Adams_BA.THC", adams("200"));
    imported(file);
    EXPECT_EQ(at(16), team(0, 0));
    EXPECT_EQ(board->txtFinalPoints.text, "100");
    EXPECT_TRUE(board->unsaved);
    platform.dialogs.answer(ui::Answer::No);
    saveAs(file);
    EXPECT_EQ(saved("Adams_BA.THC").finalPoints, "200") << "nothing is replaced unasked";
}

TEST_F(BoardImport, TheFirstSelectionOpensTheWayToTheOutlook)
{
    loadFinalized();
    EXPECT_FALSE(board->mnuOutlook.enabled);
    imported(putSelection("Adams_BA.THC", adams("100")));
    EXPECT_TRUE(board->mnuOutlook.enabled);
}

TEST_F(BoardImport, TheResultsAreNoOpenSelection)
{
    loadFinalized();
    putNoResultsYet();
    open(putSelection("Adams_BA.THC", adams("100")));
    enterResults();
    EXPECT_TRUE(board->openFile().empty());
    imported(scratch.path() / "Adams_BA.THC");
    EXPECT_TRUE(resultsMode());
}

} // namespace
} // namespace tallyhoop::test
