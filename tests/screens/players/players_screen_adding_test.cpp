// tests/screens/players/players_screen_adding_test.cpp - which records are added, and what is said of one that is not.
#include "screens/players/players_screen_fixture.h"

namespace tallyhoop::test {
namespace {

using PlayersScreenAdding = PlayersScreenTest;

ui::Message listedAlready(const std::string& record)
{
    return {"Pool Names Maintenance",
            "The list has a record for this file already:\r\n\r\n" + record + "\r\n\r\nDo you want to add another one?",
            ui::Buttons::OkCancel, ui::Icon::Question, "players"};
}

TEST_F(PlayersScreenAdding, ANewSelectionsRecordIsAnnounced)
{
    openAfterSave(SaveKind::NewFile, "Baker_C.THC", "Baker,C");
    EXPECT_EQ(screen->news().text, "Add Record puts Baker,C into the list.");
}

TEST_F(PlayersScreenAdding, TheBoardSaysWhenDoneLeftANewSelectionOut)
{
    openAfterSave(SaveKind::NewFile, "Baker_C.THC", "Baker,C").cmdExit.click();
    EXPECT_EQ(screens.loads, std::vector{ScreenKind::Board});
    EXPECT_EQ(screens.news, std::vector<std::string>{"Baker_C.THC is saved, and has no record in the player list."});
}

TEST_F(PlayersScreenAdding, TheBoardSaysSoAfterCancelToo)
{
    openAfterSave(SaveKind::NewFile, "Baker_C.THC", "Baker,C").cmdCancel.click();
    EXPECT_EQ(screens.news, std::vector<std::string>{"Baker_C.THC is saved, and has no record in the player list."});
}

TEST_F(PlayersScreenAdding, TheBoardSaysSoWhenOnlyOtherRecordsWereSaved)
{
    openAfterSave(SaveKind::NewFile, "Baker_C.THC", "Baker,C");
    select(0);
    screen->txtPhone.text = "555-9999";
    screen->cmdChange.click();
    screen->cmdExit.click();
    EXPECT_EQ(screens.news, std::vector<std::string>{"Baker_C.THC is saved, and has no record in the player list."});
}

TEST_F(PlayersScreenAdding, TheBoardSaysWhoIsInTheListNow)
{
    openAfterSave(SaveKind::NewFile, "Baker_C.THC", "Baker,C").cmdAdd.click();
    EXPECT_TRUE(closed());
    EXPECT_EQ(screens.loads, std::vector{ScreenKind::Board});
    EXPECT_EQ(screens.news, std::vector<std::string>{"Baker,C is in the list now."});
}

TEST_F(PlayersScreenAdding, TheBoardSaysWhoIsInTheListNowForAFileInAFolderFarAwayToo)
{
    // Its record holds 33 characters of the path, which is no name of a selection file.
    openAfterSave(SaveKind::NewFile, "../a folder with a very long name/Baker_C.THC", "Baker,C").cmdAdd.click();
    EXPECT_TRUE(closed());
    EXPECT_EQ(screens.news, std::vector<std::string>{"Baker,C is in the list now."});
}

TEST_F(PlayersScreenAdding, NothingIsMissingAfterARecordThatWasAddedUnderAnotherName)
{
    openAfterSave(SaveKind::NewFile, "Baker_C.THC", "Baker,C");
    blockWriting();
    screen->txtName.text = "Baker,Charles";
    screen->cmdAdd.click();
    std::filesystem::remove_all(scratch.path() / "PLAYERNAMES.CSV");
    select(0); // the record goes back into the list
    screen->cmdExit.click();
    EXPECT_EQ(written(), playerFile({adams, csv("Baker,Charles", "BAKER_C.THC"), smith}));
    EXPECT_EQ(screens.news, std::vector<std::string>{"The player list is saved."});
}

TEST_F(PlayersScreenAdding, TheBoardSaysThatARecordIsMissingWhichCouldNotBeWritten)
{
    openAfterSave(SaveKind::NewFile, "Baker_C.THC", "Baker,C");
    blockWriting();
    screen->cmdAdd.click();
    screen->cmdCancel.click();
    EXPECT_EQ(screens.news, std::vector<std::string>{"Baker_C.THC is saved, and has no record in the player list."});
}

TEST_F(PlayersScreenAdding, AChangeAndADeletionAreAnnouncedAndSavedWithDone)
{
    open();
    select(0);
    screen->cmdChange.click();
    EXPECT_EQ(screen->news().text, "Adams,B is changed.  Done saves this; Cancel forgets it.");
    select(1);
    screen->cmdDelete.click();
    EXPECT_EQ(screen->news().text, "Smith,JS is deleted.  Done saves this; Cancel forgets it.");
    screen->cmdExit.click();
    EXPECT_EQ(screens.news, std::vector<std::string>{"The player list is saved."});
}

TEST_F(PlayersScreenAdding, AListThatCannotBeSavedIsAnnounced)
{
    open();
    screen->txtName.text = "Baker,C";
    blockWriting();
    screen->cmdAdd.click();
    EXPECT_TRUE(stillOpen());
    EXPECT_EQ(screen->news().text, "Not saved.");
}

TEST_F(PlayersScreenAdding, NothingIsSaidWhenTheListIsOpenedByItself)
{
    open().cmdExit.click();
    EXPECT_TRUE(closed());
    EXPECT_TRUE(screens.loads.empty());
}

TEST_F(PlayersScreenAdding, AnEmptyRecordIsNot)
{
    open().txtPhone.text = "  ";
    screen->cmdAdd.click();
    EXPECT_EQ(platform.dialogs.shown,
              (std::vector<ui::Message>{{"Pool Names Maintenance", "The boxes are empty: there is nothing to add.",
                                         ui::Buttons::Ok, ui::Icon::Exclamation, "players"}}));
    EXPECT_EQ(screen->focused, &screen->txtName);
    EXPECT_EQ(written(), twoPlayers);
    EXPECT_TRUE(stillOpen());
}

TEST_F(PlayersScreenAdding, ARecordWithNothingButANameIs)
{
    open().txtName.text = "Baker,C";
    screen->cmdAdd.click();
    EXPECT_EQ(written(), playerFile({adams, csv("Baker,C", ""), smith}));
}

TEST_F(PlayersScreenAdding, ASecondRecordOfAFileIsNamedAndCanBeCancelled)
{
    platform.dialogs.answer(ui::Answer::Cancel);
    open();
    select(1);
    screen->txtName.text = "Smith,Jo";
    screen->cmdAdd.click();
    EXPECT_EQ(platform.dialogs.shown, std::vector{listedAlready("Smith,JS   SMITH_JS.THC")});
    EXPECT_EQ(written(), twoPlayers);
    EXPECT_TRUE(stillOpen());
}

TEST_F(PlayersScreenAdding, ASecondRecordOfAFileIsAddedAfterOk)
{
    platform.dialogs.answer(ui::Answer::Ok);
    open();
    select(1);
    screen->txtName.text = "Smith,Jo";
    screen->cmdAdd.click();
    EXPECT_EQ(written(), playerFile({adams, csv("Smith,Jo", "SMITH_JS.THC", "js@example.org", "555-0102"), smith}));
}

} // namespace
} // namespace tallyhoop::test
