// tests/screens/players/players_screen_test.cpp - adding, changing and deleting players.
#include "screens/players/players_screen_fixture.h"

namespace tallyhoop::test {
namespace {

const ui::Message kSelectBeforeChange{"Pool Names Maintenance", "** You need to select one record prior to CHANGE **",
                                      ui::Buttons::Ok, ui::Icon::Exclamation};
const ui::Message kSelectBeforeDelete{"Pool Names Maintenance", "** You need to select one record prior to DELETE **",
                                      ui::Buttons::Ok, ui::Icon::Exclamation};
const ui::Message kNoSelections{"Pool Names Maintenance",
                                "** You selected a change record where no Pool \r\nSelections have been made **\r\n\r\n"
                                "If you continue this Player Name record will\r\nbe deleted",
                                ui::Buttons::OkCancel, ui::Icon::Question};
const ui::Message kBothDeleted{"Pool Names Maintenance",
                               "The player record and the Pool Selections\r\n"
                               "will both be deleted if you continue, Ok??",
                               ui::Buttons::OkCancel, ui::Icon::Question};

TEST_F(PlayersScreenTest, ShowsColumnsAndAFileNameThatCannotBeChanged)
{
    PlayersScreen& names = open();
    EXPECT_TRUE(names.lstNames.fixedPitch);
    EXPECT_TRUE(names.txtFileName.locked);
}

TEST_F(PlayersScreenTest, ListsThePlayersAlphabeticallyInColumns)
{
    scratch.put("PLAYERNAMES.CSV", playerFile({smith, csv("baker,C", "BAKER_C.THC"), adams}));
    PlayersScreen& names = open();
    EXPECT_EQ(names.lstNames.rows, (std::vector<std::string>{adamsRow, row("baker,C", "BAKER_C.THC"), smithRow}));
    EXPECT_FALSE(names.lstNames.selected);
    EXPECT_EQ(names.txtName.text, "");
    EXPECT_EQ(names.status, "3 players");
}

TEST_F(PlayersScreenTest, ASelectedRowFillsTheBoxesWithoutItsPadding)
{
    PlayersScreen& names = open();
    select(1);
    EXPECT_EQ(names.txtName.text, "Smith,JS");
    EXPECT_EQ(names.txtFileName.text, "SMITH_JS.THC");
    EXPECT_EQ(names.txtEmail.text, "js@example.org");
    EXPECT_EQ(names.txtPhone.text, "555-0102");
}

TEST_F(PlayersScreenTest, AddRecordWritesTheListInOrderAndCloses)
{
    PlayersScreen& names = open();
    names.txtName.text = "Baker,C";
    names.txtEmail.text = "c@example.org";
    names.txtPhone.text = "555-0103";
    names.cmdAdd.click();
    EXPECT_EQ(written(), playerFile({adams, csv("Baker,C", "", "c@example.org", "555-0103"), smith}));
    EXPECT_TRUE(closed());
    EXPECT_TRUE(platform.dialogs.shown.empty());
}

TEST_F(PlayersScreenTest, ALongNameIsStoredCutAndTheBoxShowsTheCutText)
{
    PlayersScreen& names = open();
    names.txtName.text = "Abcdefghijklmnopqrstuvwxyz1234"; // 30 characters
    names.txtEmail.text = std::string(44, 'e');
    names.txtPhone.text = "555-0103-45678X"; // 15 characters
    names.cmdAdd.click();
    EXPECT_EQ(names.txtName.text, "Abcdefghijklmnopqrstuvwxy");
    EXPECT_EQ(names.txtEmail.text, std::string(43, 'e'));
    EXPECT_EQ(names.txtPhone.text, "555-0103-45678");
    EXPECT_EQ(written(),
              playerFile({csv("Abcdefghijklmnopqrstuvwxy", "", std::string(43, 'e'), "555-0103-45678"), adams, smith}));
}

TEST_F(PlayersScreenTest, ChangeWithoutASelectionExplainsItself)
{
    open().cmdChange.click();
    EXPECT_EQ(platform.dialogs.shown, std::vector<ui::Message>{kSelectBeforeChange});
}

TEST_F(PlayersScreenTest, DeleteWithoutASelectionExplainsItself)
{
    open().cmdDelete.click();
    EXPECT_EQ(platform.dialogs.shown, std::vector<ui::Message>{kSelectBeforeDelete});
}

TEST_F(PlayersScreenTest, AChangedRowKeepsItsPlaceAndIsWrittenByDone)
{
    PlayersScreen& names = open();
    select(0);
    names.txtName.text = "Zwick,B";
    names.cmdChange.click();
    const std::string zwickRow = row("Zwick,B", "ADAMS_B.THC", "b@example.org", "555-0101");
    EXPECT_EQ(names.lstNames.rows, (std::vector<std::string>{zwickRow, smithRow}));
    EXPECT_EQ(names.txtName.text + names.txtFileName.text + names.txtEmail.text + names.txtPhone.text, "");
    EXPECT_TRUE(names.unsaved);
    EXPECT_EQ(written(), twoPlayers);
    EXPECT_TRUE(stillOpen());

    names.cmdExit.click();
    EXPECT_EQ(written(), playerFile({csv("Zwick,B", "ADAMS_B.THC", "b@example.org", "555-0101"), smith}));
    EXPECT_TRUE(closed());
}

TEST_F(PlayersScreenTest, ASecondPressOnCompleteChangesDoesNotTouchTheRowAgain)
{
    PlayersScreen& names = open();
    select(0);
    names.cmdChange.click();
    names.cmdChange.click();
    EXPECT_EQ(platform.dialogs.shown, std::vector<ui::Message>{kSelectBeforeChange});
    EXPECT_EQ(names.lstNames.rows, (std::vector<std::string>{adamsRow, smithRow}));
}

TEST_F(PlayersScreenTest, AChangeWithoutASelectionFileOffersToDeleteTheRecord)
{
    platform.dialogs.answer(ui::Answer::Ok);
    PlayersScreen& names = open();
    select(1); // There is no Smith_JS.THC.
    names.cmdChange.click();
    EXPECT_EQ(platform.dialogs.shown, std::vector<ui::Message>{kNoSelections});
    EXPECT_EQ(names.lstNames.rows, std::vector<std::string>{adamsRow});
    EXPECT_EQ(names.txtName.text, "");
    names.cmdExit.click();
    EXPECT_EQ(written(), playerFile({adams}));
}

TEST_F(PlayersScreenTest, ThatOfferCancelledLeavesRecordAndBoxes)
{
    platform.dialogs.answer(ui::Answer::Cancel);
    PlayersScreen& names = open();
    select(1);
    names.txtPhone.text = "555-9999";
    names.cmdChange.click();
    EXPECT_EQ(names.lstNames.rows, (std::vector<std::string>{adamsRow, smithRow}));
    EXPECT_EQ(names.txtPhone.text, "555-9999");
    EXPECT_FALSE(names.unsaved);
}

TEST_F(PlayersScreenTest, DeletingAPlayerDeletesTheFileOnlyWithDone)
{
    platform.dialogs.answer(ui::Answer::Ok);
    PlayersScreen& names = open();
    select(0);
    names.cmdDelete.click();
    EXPECT_EQ(platform.dialogs.shown, std::vector<ui::Message>{kBothDeleted});
    EXPECT_EQ(names.lstNames.rows, std::vector<std::string>{smithRow});
    EXPECT_EQ(names.txtName.text, "");
    EXPECT_TRUE(scratch.has("Adams_B.THC"));

    names.cmdExit.click();
    EXPECT_FALSE(scratch.has("Adams_B.THC"));
    EXPECT_EQ(written(), playerFile({smith}));
    EXPECT_TRUE(closed());
}

TEST_F(PlayersScreenTest, DoneDeletesTheFilesOfAllPlayersDeletedBefore)
{
    scratch.put("Smith_JS.THC", "bracket of Smith\r\n");
    platform.dialogs.answer(ui::Answer::Ok).answer(ui::Answer::Ok);
    PlayersScreen& names = open();
    select(0);
    names.cmdDelete.click();
    select(0);
    names.cmdDelete.click();
    names.cmdExit.click();
    EXPECT_FALSE(scratch.has("Adams_B.THC"));
    EXPECT_FALSE(scratch.has("Smith_JS.THC"));
    EXPECT_EQ(written(), playerFile({}));
}

TEST_F(PlayersScreenTest, DeletingRefusedKeepsEverything)
{
    platform.dialogs.answer(ui::Answer::Cancel);
    PlayersScreen& names = open();
    select(0);
    names.cmdDelete.click();
    EXPECT_EQ(names.lstNames.rows, (std::vector<std::string>{adamsRow, smithRow}));
    names.cmdExit.click();
    EXPECT_TRUE(scratch.has("Adams_B.THC"));
    EXPECT_EQ(written(), twoPlayers);
}

TEST_F(PlayersScreenTest, DeletingAndThenCancelKeepsRecordAndFile)
{
    platform.dialogs.answer(ui::Answer::Ok);
    PlayersScreen& names = open();
    select(0);
    names.cmdDelete.click();
    names.cmdCancel.click();
    EXPECT_TRUE(closed());
    EXPECT_TRUE(scratch.has("Adams_B.THC"));
    EXPECT_EQ(written(), twoPlayers);
}

TEST_F(PlayersScreenTest, DeletingAPlayerWithoutSelectionFileAsksNothing)
{
    PlayersScreen& names = open();
    select(1);
    names.cmdDelete.click();
    EXPECT_TRUE(platform.dialogs.shown.empty());
    EXPECT_EQ(names.lstNames.rows, std::vector<std::string>{adamsRow});
}

TEST_F(PlayersScreenTest, AFileThatVanishedBeforeDoneIsNoTrouble)
{
    platform.dialogs.answer(ui::Answer::Ok);
    PlayersScreen& names = open();
    select(0);
    names.cmdDelete.click();
    std::filesystem::remove(scratch.path() / "Adams_B.THC");
    names.cmdExit.click();
    EXPECT_TRUE(closed());
    EXPECT_EQ(platform.dialogs.shown.size(), 1u);
}

TEST_F(PlayersScreenTest, DoneWithoutAChangeJustCloses)
{
    PlayersScreen& names = open();
    select(0);
    names.txtName.text = "typed, but never completed";
    scratch.put("PLAYERNAMES.CSV", "changed by someone else");
    names.cmdExit.click();
    EXPECT_EQ(written(), "changed by someone else");
    EXPECT_TRUE(closed());
}

TEST_F(PlayersScreenTest, TheCloseButtonAndEscapeAreCancel)
{
    PlayersScreen& names = open();
    select(0);
    names.cmdChange.click();
    names.closeRequested();
    EXPECT_TRUE(closed());
    EXPECT_EQ(written(), twoPlayers);
}

TEST_F(PlayersScreenTest, LeadsToTheEntryFormOfAFinalFieldOnly)
{
    EXPECT_FALSE(open().cmdEntryForm.enabled);
    field.finalized = "1";
    screen->showState();
    ASSERT_TRUE(screen->cmdEntryForm.enabled);
    screen->cmdEntryForm.click();
    EXPECT_EQ(screens.loads, std::vector{ScreenKind::EntryForm});
    EXPECT_TRUE(stillOpen());
}

TEST_F(PlayersScreenTest, OffersTheEntryFormForTheListAsItIsSavedOnly)
{
    field.finalized = "1";
    open();
    select(0);
    screen->txtEmail.text = "new@example.org";
    screen->cmdChange.click();
    EXPECT_FALSE(screen->cmdEntryForm.enabled) << "the form would be mailed to the address in the file";
    openAfterSave(SaveKind::NewFile, "Baker_C.THC", "Baker,C");
    EXPECT_FALSE(screen->cmdEntryForm.enabled);
    scratch.put("PLAYERNAMES.CSV", "saved by a spreadsheet\r\n");
    saved.reset();
    EXPECT_FALSE(open().cmdEntryForm.enabled);
}

TEST_F(PlayersScreenTest, NothingButASelectionFileOfTheFolderIsEverDeleted)
{
    const std::filesystem::path outside = scratch.path() / "sub" / "OTHER.THC";
    std::filesystem::create_directory(scratch.path() / "sub");
    scratch.put("sub/OTHER.THC", "not ours");
    scratch.put("TALLYHOOP.THS", "results");
    std::filesystem::create_directory(scratch.path() / "FOLDER.THC");
    for (const std::string name : {"sub/OTHER.THC", "SUB\\OTHER.THC", "TALLYHOOP.THS", "PLAYERNAMES.CSV", "..", ".",
                                   "FOLDER.THC", "../OTHER.THC", ""}) {
        scratch.put("PLAYERNAMES.CSV", playerFile({csv("Mallory,X", name)}));
        screens.unloads.clear();
        PlayersScreen& names = open();
        select(0);
        names.cmdDelete.click();
        names.cmdExit.click();
        EXPECT_TRUE(closed()) << name;
        EXPECT_EQ(written(), playerFile({})) << name;
    }
    EXPECT_TRUE(platform.dialogs.shown.empty()) << "a question promised to delete a file";
    EXPECT_TRUE(std::filesystem::exists(outside));
    EXPECT_TRUE(scratch.has("TALLYHOOP.THS"));
    EXPECT_TRUE(scratch.has("FOLDER.THC"));
}

} // namespace
} // namespace tallyhoop::test
