// tests/screens/setup/setup_screen_names_test.cpp - the setup screen: maintaining the list of team names.
#include "files/setup_file.h"
#include "screens/setup/setup_fixture.h"

namespace tallyhoop::test {
namespace {

using ui::Answer;
using ui::Key;

class SetupScreenNames : public SetupFixture
{
protected:
    /// Types a name into a team box while selecting is overridden, and presses Enter.
    void typeFreely(std::size_t box, const std::string& name)
    {
        if (!isOverridden())
            click(made->cmdOverride);
        edit(made->txtRegion[box], name);
        press(Key::Enter);
    }

    /// Closing the screen asks about changed names; they are dropped here.
    void expectChangesToSave()
    {
        dialogs().answer(Answer::No);
        made->unloading();
        EXPECT_EQ(dialogs().shown.back().caption, "TEAM NAMES Changed / Added");
    }

    void expectNothingToSave()
    {
        dialogs().shown.clear();
        made->unloading();
        EXPECT_TRUE(dialogs().shown.empty());
    }

    /// Leaves the screen and saves the changed names.
    void leaveAndSave()
    {
        dialogs().answer(Answer::Yes);
        made->mnuEnd.click();
    }
};

const std::vector<std::string> kSmallList = {"Akron",  "Duke", "Duquesne", "Iowa", "Iowa St.",
                                             "Kansas", "LSU",  "Ohio",     "Texas"};

TEST_F(SetupScreenNames, AddAsksForANameAndSortsItIn)
{
    SetupScreen& screen = loaded();
    pressRow(5); // Kansas
    dialogs().type("Drake");
    click(screen.cmdAddName);
    ASSERT_EQ(dialogs().asked.size(), 1U);
    EXPECT_EQ(dialogs().asked[0].caption, "Name Addition");
    EXPECT_EQ(dialogs().asked[0].prompt, "You have chosen to add a name to the \r\n"
                                         "list of NCAA teams.  Enter the new name \r\n"
                                         "and press enter.");
    EXPECT_EQ(dialogs().asked[0].proposal, "");
    EXPECT_EQ(screen.lstTeamNames.rows[1], "Drake");
    EXPECT_EQ(screen.lstTeamNames.rows.size(), 10U);
    EXPECT_EQ(screen.lstTeamNames.selectedText(), "Kansas");
    expectChangesToSave();
}

TEST_F(SetupScreenNames, AddTakesTheAnswerAsTyped)
{
    SetupScreen& screen = loaded();
    dialogs().type(" Drake ");
    click(screen.cmdAddName);
    EXPECT_EQ(screen.lstTeamNames.rows[0], " Drake ");
}

TEST_F(SetupScreenNames, AddWithAnEmptyAnswerLeavesListAndFlagUnchanged)
{
    SetupScreen& screen = loaded();
    dialogs().type("");
    click(screen.cmdAddName);
    EXPECT_EQ(screen.lstTeamNames.rows, kSmallList);
    expectNothingToSave();
}

TEST_F(SetupScreenNames, AddingANameTwiceShowsItTwiceAndWritesItOnce)
{
    SetupScreen& screen = loaded();
    dialogs().type("X").type("X").answer(Answer::Yes);
    click(screen.cmdAddName);
    click(screen.cmdAddName);
    EXPECT_EQ(screen.lstTeamNames.rows[9], "X");
    EXPECT_EQ(screen.lstTeamNames.rows[10], "X");
    screen.mnuEnd.click();
    EXPECT_EQ(files.get("NCAALIST.THS"), crlf({"*START*", "Akron", "Duke", "Duquesne", "Iowa", "Iowa St.", "Kansas",
                                               "LSU", "Ohio", "Texas", "X", "*END*"}));
}

TEST_F(SetupScreenNames, ChangeWithoutASelectionShowsItsMessageAndNeverAsks)
{
    SetupScreen& screen = loaded();
    click(screen.cmdChangeName);
    EXPECT_EQ(dialogs().shown,
              (std::vector<ui::Message>{{"Team Name Changes", "** You need to select one team to CHANGE **",
                                         ui::Buttons::Ok, ui::Icon::Exclamation}}));
    EXPECT_TRUE(dialogs().asked.empty());
    expectNothingToSave();
}

TEST_F(SetupScreenNames, ChangeReplacesTheSelectedNameInPlace)
{
    SetupScreen& screen = loaded();
    pressRow(1);
    dialogs().type("Zebra");
    click(screen.cmdChangeName);
    ASSERT_EQ(dialogs().asked.size(), 1U);
    EXPECT_EQ(dialogs().asked[0].caption, "Team Name Changes");
    EXPECT_EQ(dialogs().asked[0].proposal, "Duke");
    EXPECT_EQ(dialogs().asked[0].prompt, "You have chosen to change a name in the \r\n"
                                         "list of NCAA teams.  Enter your changes \r\n"
                                         "and press enter.");
    EXPECT_EQ(screen.lstTeamNames.rows[1], "Zebra"); // sorted when the list is shown again
    EXPECT_EQ(screen.lstTeamNames.selected, 1);
    expectChangesToSave();
}

TEST_F(SetupScreenNames, ChangeWithAnEmptyAnswerDoesNothing)
{
    SetupScreen& screen = loaded();
    pressRow(1);
    dialogs().type("");
    click(screen.cmdChangeName);
    EXPECT_EQ(screen.lstTeamNames.rows, kSmallList);
    expectNothingToSave();
}

TEST_F(SetupScreenNames, DeleteWithoutASelectionShowsItsMessage)
{
    SetupScreen& screen = loaded();
    click(screen.cmdDeleteName);
    EXPECT_EQ(dialogs().shown,
              (std::vector<ui::Message>{{"Team Name Delete", "** You need to select one team to DELETE **",
                                         ui::Buttons::Ok, ui::Icon::Exclamation}}));
    EXPECT_EQ(screen.lstTeamNames.rows, kSmallList);
}

TEST_F(SetupScreenNames, DeleteRemovesTheSelectedNameAfterAConfirmation)
{
    SetupScreen& screen = loaded();
    pressRow(3);
    dialogs().answer(Answer::Ok);
    click(screen.cmdDeleteName);
    EXPECT_EQ(dialogs().shown, (std::vector<ui::Message>{{"Team Name Delete",
                                                          "You have chosen to delete a name in the \r\n"
                                                          "list of NCAA teams.  Confirm that you want to \r\n"
                                                          "delete the team: Iowa",
                                                          ui::Buttons::OkCancel, ui::Icon::Question}}));
    EXPECT_EQ(screen.lstTeamNames.rows.size(), 8U);
    EXPECT_EQ(screen.lstTeamNames.rows[3], "Iowa St.");
    EXPECT_FALSE(screen.lstTeamNames.selected);
    expectChangesToSave();
}

TEST_F(SetupScreenNames, DeleteIsGivenUpOnCancel)
{
    SetupScreen& screen = loaded();
    pressRow(3);
    dialogs().answer(Answer::Cancel);
    click(screen.cmdDeleteName);
    EXPECT_EQ(screen.lstTeamNames.rows, kSmallList);
    expectNothingToSave();
}

TEST_F(SetupScreenNames, DeletingAndThenAnsweringNoKeepsTheOldFile)
{
    SetupScreen& screen = loaded();
    pressRow(3);
    dialogs().answer(Answer::Ok).answer(Answer::No);
    click(screen.cmdDeleteName);
    screen.mnuEnd.click();
    EXPECT_EQ(files.get("NCAALIST.THS"), smallTeamList());
    EXPECT_EQ(screens.unloads, std::vector{ScreenKind::Setup});
    screen.unloading(); // the question does not come twice
    EXPECT_EQ(dialogs().shown.size(), 2U);
}

TEST_F(SetupScreenNames, NamesTypedFreelyAreCollectedOnceEach)
{
    loaded();
    typeFreely(0, "Utopia");
    typeFreely(1, "Arcadia");
    typeFreely(2, "Utopia");
    typeFreely(3, "utopia"); // other text, other name
    EXPECT_EQ(made->focused, &made->txtRegion[4]);
    leaveAndSave();
    EXPECT_EQ(files.get("NCAALIST.THS"), crlf({"*START*", "Akron", "Arcadia", "Duke", "Duquesne", "Iowa", "Iowa St.",
                                               "Kansas", "LSU", "Ohio", "Texas", "Utopia", "utopia", "*END*"}));
}

TEST_F(SetupScreenNames, AnEmptyBoxIsNotCollected)
{
    loaded();
    typeFreely(0, "");
    expectNothingToSave();
    EXPECT_EQ(made->focused, &made->txtRegion[1]);
}

TEST_F(SetupScreenNames, ThereIsRoomForAnyNumberOfTypedNames)
{
    loaded();
    for (std::size_t i = 0; i < 64; ++i)
        typeFreely(i, "New " + std::to_string(i));
    leaveAndSave();
    const std::string list = files.get("NCAALIST.THS");
    for (int i = 0; i < 64; ++i)
        EXPECT_NE(list.find("\r\nNew " + std::to_string(i) + "\r\n"), std::string::npos) << i;
}

TEST_F(SetupScreenNames, SavingOnExitSortsTypedNamesInAndWritesOneThatWasThereAlreadyOnce)
{
    loaded();
    typeFreely(0, "Utopia");
    typeFreely(1, "Duke");
    typeFreely(2, "Arcadia");
    dialogs().answer(Answer::Yes);
    made->mnuEnd.click();
    EXPECT_EQ(dialogs().shown, (std::vector<ui::Message>{{"TEAM NAMES Changed / Added",
                                                          "You have added or changed the Team Names ...\r\n"
                                                          "Do you want to save these changes made to\r\n"
                                                          "the list of team names?",
                                                          ui::Buttons::YesNo, ui::Icon::Question}}));
    EXPECT_EQ(files.get("NCAALIST.THS"), crlf({"*START*", "Akron", "Arcadia", "Duke", "Duquesne", "Iowa", "Iowa St.",
                                               "Kansas", "LSU", "Ohio", "Texas", "Utopia", "*END*"}));
    EXPECT_EQ(screens.unloads, std::vector{ScreenKind::Setup});
}

TEST_F(SetupScreenNames, ATypedNameIsWrittenOnceAlsoWhenAChangedNameIsOutOfOrder)
{
    SetupScreen& screen = loaded();
    pressRow(4); // Iowa St., in the middle, where a search for a sorted place looks first
    dialogs().type("Ames").answer(Answer::Yes);
    click(screen.cmdChangeName);
    typeFreely(0, "Duke");
    screen.mnuEnd.click();
    EXPECT_EQ(files.get("NCAALIST.THS"), crlf({"*START*", "Akron", "Duke", "Duquesne", "Iowa", "Ames", "Kansas", "LSU",
                                               "Ohio", "Texas", "*END*"}));
}

TEST_F(SetupScreenNames, AnsweringNoOnExitLosesTypedNames)
{
    loaded();
    typeFreely(0, "Utopia");
    dialogs().answer(Answer::No);
    made->mnuEnd.click();
    EXPECT_EQ(files.get("NCAALIST.THS"), smallTeamList());
    EXPECT_EQ(screens.unloads, std::vector{ScreenKind::Setup});
}

TEST_F(SetupScreenNames, NothingIsAskedWhenNoNameChanged)
{
    loaded();
    made->mnuEnd.click();
    made->unloading();
    EXPECT_TRUE(dialogs().shown.empty());
}

TEST_F(SetupScreenNames, AFailingWriteKeepsTheScreenTheNamesAndTheFile)
{
    SetupScreen& screen = loaded();
    typeFreely(0, "Utopia");
    std::filesystem::remove(files.path() / "NCAALIST.THS");
    std::filesystem::create_directories(files.path() / "NCAALIST.THS" / "in the way");
    dialogs().answer(Answer::Yes);
    screen.mnuEnd.click();
    ASSERT_EQ(dialogs().shown.size(), 2U);
    EXPECT_EQ(dialogs().shown[1].caption, "** ERROR IN WRITING FILE **");
    EXPECT_NE(dialogs().shown[1].text.find(folder.shownPathOf("NCAALIST.THS")), std::string::npos);
    EXPECT_TRUE(screens.loads.empty());
    EXPECT_TRUE(screens.unloads.empty());
    EXPECT_EQ(screen.lstTeamNames.rows, kSmallList);

    // Once the trouble is gone the same command succeeds.
    std::filesystem::remove_all(files.path() / "NCAALIST.THS");
    dialogs().answer(Answer::Yes);
    screen.mnuEnd.click();
    EXPECT_NE(files.get("NCAALIST.THS").find("\r\nUtopia\r\n"), std::string::npos);
    EXPECT_EQ(screens.unloads, std::vector{ScreenKind::Setup});
}

TEST_F(SetupScreenNames, TheQuestionAlsoComesWhenSomebodyElseUnloadsTheScreen)
{
    loaded();
    typeFreely(0, "Utopia");
    dialogs().answer(Answer::Yes);
    made->unloading();
    EXPECT_NE(files.get("NCAALIST.THS").find("\r\nUtopia\r\n"), std::string::npos);
}

TEST_F(SetupScreenNames, TheQuestionAlsoComesWhenADemoCommandReloadsTheScreen)
{
    files.put("TALLYHOOP.INI", "1\r\n");
    loaded();
    typeFreely(0, "Utopia");
    dialogs().answer(Answer::Yes);
    made->mnuDemoReset.click();
    EXPECT_NE(files.get("NCAALIST.THS").find("\r\nUtopia\r\n"), std::string::npos);
    EXPECT_EQ(screens.loads, std::vector{ScreenKind::Setup});
}

TEST_F(SetupScreenNames, ADemoCommandKeepsTheScreenAndTheNamesThatCannotBeWritten)
{
    files.put("TALLYHOOP.INI", "1\r\n");
    Field sample = defaultField();
    sample.teams[TeamRow{0}] = "Sample";
    files.put("POOLSTART.THS", setupFile(sample));
    SetupScreen& screen = loaded();
    click(screen.cmdFinalize);
    typeFreely(0, "Utopia");
    std::filesystem::remove(files.path() / "NCAALIST.THS");
    std::filesystem::create_directories(files.path() / "NCAALIST.THS" / "in the way");
    dialogs().answer(Answer::Yes);
    screen.mnuDemoReset.click();
    EXPECT_EQ(dialogs().shown.back().caption, "** ERROR IN WRITING FILE **");
    EXPECT_TRUE(screens.unloads.empty());
    EXPECT_TRUE(screens.loads.empty());
    EXPECT_EQ(screen.lstTeamNames.rows, kSmallList);

    // Everything else is as on a screen that is loaded again.
    EXPECT_EQ(screen.txtRegion[0].text, "TEAM1");
    EXPECT_FALSE(screen.lblDemoMode.visible);
    EXPECT_FALSE(screen.mnuDemoReset.enabled);
    EXPECT_TRUE(screen.mnuDemoSet.enabled);
    EXPECT_TRUE(screen.cmdFinalize.enabled);
    EXPECT_TRUE(screen.status.starts_with("There are no unsaved changes.")) << screen.status;
    EXPECT_EQ(screen.news().text, "Files that you changed in demo mode are kept in the folder "
                                  "Backup 2001-03-05 101530."); // such as the field above

    // And the names can still be saved.
    std::filesystem::remove_all(files.path() / "NCAALIST.THS");
    dialogs().answer(Answer::Yes);
    screen.mnuEnd.click();
    EXPECT_NE(files.get("NCAALIST.THS").find("\r\nUtopia\r\n"), std::string::npos);
}

} // namespace
} // namespace tallyhoop::test
