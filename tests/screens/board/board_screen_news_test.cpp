// tests/screens/board/board_screen_news_test.cpp - what the board says of saving, changes and games without a pick.
#include "screens/board/board_fixture.h"

namespace tallyhoop::test {

class BoardScreenNews : public BoardTest
{
protected:
    const std::string& news() const { return board->news().text; }

    void loadResultsSaved()
    {
        loadFinalized();
        enterResults();
        click(0);
        save();
        ASSERT_EQ(news(), "The results are saved.");
    }
};

TEST_F(BoardScreenNews, OfASaveEndsWithTheNextChangeOfTheBracket)
{
    loadResultsSaved();
    click(2);
    EXPECT_EQ(news(), "");
    save();
    ASSERT_EQ(news(), "The results are saved.");
    rightPress(17);
    EXPECT_EQ(news(), "");
}

TEST_F(BoardScreenNews, OfASaveEndsWithUndoAndRedo)
{
    loadResultsSaved();
    board->mnuUndo.click();
    EXPECT_EQ(news(), "");
    save();
    board->mnuUndo.click();
    save();
    ASSERT_EQ(news(), "The results are saved.");
    board->mnuRedo.click();
    EXPECT_EQ(news(), "");
}

TEST_F(BoardScreenNews, OfASaveEndsWithTyping)
{
    loadResultsSaved();
    board->txtFinalPoints.text = "150";
    board->txtFinalPoints.edited();
    EXPECT_EQ(news(), "");
    EXPECT_TRUE(board->unsaved);
}

TEST_F(BoardScreenNews, OfASaveStaysWhenAPressChangesNothing)
{
    loadResultsSaved();
    rightPress(0); // a row of the field
    EXPECT_EQ(news(), "The results are saved.");
}

TEST_F(BoardScreenNews, SayThatARefusedSaveSavedNothing)
{
    loadResultsSaved();
    board->txtFinalPoints.text = "251";
    save();
    EXPECT_EQ(news(), "Not saved.");
}

TEST_F(BoardScreenNews, SayThatACancelledSaveSavedNothing)
{
    loadFinalized();
    fill("JS", "Smith", "150");
    platform.dialogs.pick(std::nullopt);
    save();
    EXPECT_EQ(news(), "Not saved.");
}

TEST_F(BoardScreenNews, SayThatAFailedSaveSavedNothing)
{
    loadFinalized();
    fill("JS", "Smith", "150");
    saveAs(scratch.path() / "missing folder" / "Smith_JS.THC");
    EXPECT_EQ(news(), "Not saved.");
}

TEST_F(BoardScreenNews, SayHowManyGamesOfASavedSelectionHaveNoPick)
{
    loadFinalized();
    fill("JS", "Smith", "150");
    drag(0, 126); // six games
    const auto file = scratch.path() / "Smith_JS.THC";
    saveAs(file);
    EXPECT_EQ(news(), "Saved Smith_JS.THC. 57 games have no pick.");
    for (const Position game : gamePositions())
        if (board->bracket().isEmpty(game)) {
            const Position from = feeders(game)->front();
            click(index(from));
        }
    saveAs(file);
    EXPECT_EQ(news(), "Saved Smith_JS.THC.");
}

TEST_F(BoardScreenNews, TheStatusCountsThePicks)
{
    load();
    EXPECT_EQ(board->status, "") << "there is nothing to pick yet";
    loadFinalized();
    EXPECT_EQ(board->status, "0 of 63 picked");
    drag(0, 24);
    EXPECT_EQ(board->status, "2 of 63 picked");
    enterResults();
    click(0);
    EXPECT_EQ(board->status, "1 of 63 played");
}

TEST_F(BoardScreenNews, ATieBreakerThatCannotBeUsedIsThatOfTheBoard)
{
    putNoResultsYet();
    loadFinalized();
    open(putSelection("Smith_JS.THC", emptyBracket("JS", "Smith", "99999")));
    score();
    ASSERT_EQ(platform.dialogs.shown.size(), 1u);
    EXPECT_TRUE(
        platform.dialogs.shown[0].text.starts_with("The predicted total points of Smith_JS.THC cannot be used."))
        << platform.dialogs.shown[0].text;
    board->mnuNewSelection.click();
    board->txtFinalPoints.text = "99999";
    score();
    EXPECT_TRUE(
        platform.dialogs.shown[1].text.starts_with("The predicted total points of this selection cannot be used."))
        << platform.dialogs.shown[1].text;
}

TEST_F(BoardScreenNews, ResultsThatAreNotSavedAreSavedBeforeTheBoardTurnsToSomethingElse)
{
    loadFinalized();
    EXPECT_TRUE(board->mayBeLeft()) << "there is nothing to lose";
    enterResults();
    EXPECT_TRUE(board->mayBeLeft());
    EXPECT_TRUE(platform.dialogs.shown.empty());
    click(0);
    EXPECT_TRUE(board->holdsUnsavedResults());
    platform.dialogs.answer(ui::Answer::Cancel);
    EXPECT_FALSE(board->mayBeLeft());
    EXPECT_FALSE(scratch.has("TALLYHOOP.THS"));
    platform.dialogs.answer(ui::Answer::Ok);
    EXPECT_TRUE(board->mayBeLeft());
    EXPECT_EQ(platform.dialogs.shown.back().text, "The board holds results that are not saved.\r\n"
                                                  "If you continue, they are saved first.");
    EXPECT_EQ(savedAt(saved("TALLYHOOP.THS"), 16), "R1T0");
    EXPECT_FALSE(board->holdsUnsavedResults());
}

TEST_F(BoardScreenNews, ResultsThatCannotBeSavedKeepTheBoard)
{
    loadFinalized();
    enterResults();
    click(0);
    board->txtFinalPoints.text = "251";
    platform.dialogs.answer(ui::Answer::Ok);
    EXPECT_FALSE(board->mayBeLeft());
    EXPECT_TRUE(board->unsaved);
}

TEST_F(BoardScreenNews, NewAsksWhenTheFieldIsNoLongerFinalInTheFolder)
{
    loadFinalized();
    click(0);
    putField(fieldOfTeams("0")); // by another program
    platform.dialogs.answer(ui::Answer::Cancel);
    board->mnuNewSelection.click();
    EXPECT_EQ(platform.dialogs.shown.back().caption, "NO FINAL FIELD IN THE FOLDER");
    EXPECT_TRUE(platform.dialogs.shown.back().refusalIsDefault);
    EXPECT_EQ(at(16), "R1T0") << "the board stays, and can be saved";
    EXPECT_TRUE(board->mnuSaveSelection.enabled);
    platform.dialogs.answer(ui::Answer::Ok);
    board->mnuNewSelection.click();
    EXPECT_EQ(at(16), "");
    EXPECT_FALSE(board->mnuSaveSelection.enabled);
    EXPECT_TRUE(board->mnuSetup.enabled) << "the way on";
}

TEST_F(BoardScreenNews, NewAsksNothingAboutTheFieldWhenNothingIsLost)
{
    loadFinalized();
    putField(fieldOfTeams("0")); // by another program
    board->mnuNewSelection.click();
    EXPECT_TRUE(platform.dialogs.shown.empty());
    EXPECT_FALSE(board->mnuSaveSelection.enabled) << "the field was loaded again";
}

} // namespace tallyhoop::test
