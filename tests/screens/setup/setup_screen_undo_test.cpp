// tests/screens/setup/setup_screen_undo_test.cpp - the setup screen: taking back what was done to its texts.
#include "screens/setup/setup_fixture.h"

namespace tallyhoop::test {
namespace {

class SetupScreenUndo : public SetupFixture
{
protected:
    void undo()
    {
        made->mnuUndo.click();
        settle();
    }
    void redo()
    {
        made->mnuRedo.click();
        settle();
    }
};

TEST_F(SetupScreenUndo, BringsTheTeamsBackThatClearAllTookAway)
{
    SetupScreen& screen = loaded();
    const std::vector<std::string> before = teams(0, 64);
    EXPECT_FALSE(screen.mnuUndo.enabled);
    click(screen.cmdClear);
    EXPECT_EQ(screen.news().text, "All 64 team boxes are empty.  Edit, Undo brings the names back.");
    EXPECT_TRUE(screen.mnuUndo.enabled);
    undo();
    EXPECT_EQ(teams(0, 64), before);
    EXPECT_EQ(screen.news().text, "");
    EXPECT_FALSE(screen.mnuUndo.enabled);
    redo();
    EXPECT_EQ(teams(0, 64), std::vector<std::string>(64, ""));
    EXPECT_FALSE(screen.mnuRedo.enabled);
}

TEST_F(SetupScreenUndo, IsNotOfferedAnyMoreInWordsAfterTheNextChange)
{
    SetupScreen& screen = loaded();
    click(screen.cmdClear);
    settle();
    ASSERT_NE(screen.news().text, "") << "it stays until something changes";
    screen.txtRegion[5].text = "Duke";
    settle();
    EXPECT_EQ(screen.news().text, "");
}

TEST_F(SetupScreenUndo, TakesAPastedBlockBackInOneStep)
{
    SetupScreen& screen = loaded();
    paste(screen.txtRegion[2], "Duke\nIowa\nTexas");
    EXPECT_EQ(teams(2, 3), (std::vector<std::string>{"Duke", "Iowa", "Texas"}));
    undo();
    EXPECT_EQ(teams(2, 3), (std::vector<std::string>{"TEAM3", "TEAM4", "TEAM5"}));
}

TEST_F(SetupScreenUndo, GivesTheNameBackThatWasReplacedFromTheListAndSelectsIt)
{
    SetupScreen& screen = loaded();
    focus(screen.txtRegion[9]);
    press(ui::Key::Down); // empties the box
    press(ui::Key::Enter);
    EXPECT_EQ(screen.txtRegion[9].text, "Akron");
    focus(screen.txtRegion[9]);
    undo();
    EXPECT_EQ(screen.txtRegion[9].text, "TEAM10");
    EXPECT_EQ(screen.txtRegion[9].selectionStart, 0);
    EXPECT_EQ(screen.txtRegion[9].selectionLength, 6) << "not the five letters of the name before";
    EXPECT_FALSE(screen.mnuUndo.enabled);
}

TEST_F(SetupScreenUndo, TakesSeedsAndCommentsBackAsTheyWereTyped)
{
    SetupScreen& screen = loaded();
    edit(screen.txtComment1, "a|b");
    screen.seeds()[0] = "16";
    settle();
    EXPECT_EQ(screen.lblSeed[0].text, "16");
    undo();
    EXPECT_EQ(screen.lblSeed[0].text, " 1");
    EXPECT_EQ(screen.txtComment1.text, "a|b");
    undo();
    EXPECT_EQ(screen.txtComment1.text, "");
}

TEST_F(SetupScreenUndo, ReachesBackBeyondASaveAndThenTheFieldIsUnsavedAgain)
{
    SetupScreen& screen = loaded();
    edit(screen.TxtInfo[0], "Office Pool");
    screen.mnuSaveStartingField.click();
    undo();
    EXPECT_EQ(screen.TxtInfo[0].text, "2001 NCAA Tournament");
    EXPECT_TRUE(screen.status.starts_with("There are changes that are not saved yet.")) << screen.status;
}

} // namespace
} // namespace tallyhoop::test
