// tests/screens/players/players_screen_after_save_test.cpp - what a save on the board leaves for the player list.
#include "screens/players/players_screen_fixture.h"

namespace tallyhoop::test {
namespace {

const ui::Message kNoSelections{"Pool Names Maintenance",
                                "** You selected a change record where no Pool \r\nSelections have been made **\r\n\r\n"
                                "If you continue this Player Name record will\r\nbe deleted",
                                ui::Buttons::OkCancel, ui::Icon::Question};

TEST_F(PlayersScreenTest, ANewFileIsShownInCapitalsAndAddRecordIsTheDefault)
{
    PlayersScreen& names = openAfterSave(SaveKind::NewFile, "Baker_C.THC", "Baker,C");
    EXPECT_EQ(names.txtName.text, "Baker,C");
    EXPECT_EQ(names.txtFileName.text, "BAKER_C.THC");
    EXPECT_TRUE(names.cmdAdd.isDefault);
    EXPECT_EQ(names.lstNames.rows, (std::vector<std::string>{adamsRow, smithRow}));
    names.txtEmail.text = "c@example.org";
    names.cmdAdd.click();
    EXPECT_EQ(written(), playerFile({adams, csv("Baker,C", "BAKER_C.THC", "c@example.org"), smith}));
    EXPECT_TRUE(closed());
}

TEST_F(PlayersScreenTest, DoneAfterANewFileWithoutAddingItJustCloses)
{
    openAfterSave(SaveKind::NewFile, "Baker_C.THC", "Baker,C").cmdExit.click();
    EXPECT_TRUE(closed());
    EXPECT_EQ(written(), twoPlayers);
}

TEST_F(PlayersScreenTest, AReplacedFileTakesItsRecordOutForEditing)
{
    PlayersScreen& names = openAfterSave(SaveKind::Replaced, "Smith_JS.THC", "Smith,Jo");
    EXPECT_EQ(names.lstNames.rows, std::vector<std::string>{adamsRow});
    EXPECT_FALSE(names.lstNames.selected);
    EXPECT_EQ(names.txtName.text, "Smith,Jo");
    EXPECT_EQ(names.txtFileName.text, "SMITH_JS.THC");
    EXPECT_EQ(names.txtEmail.text, "js@example.org");
    EXPECT_EQ(names.txtPhone.text, "555-0102");

    names.cmdExit.click(); // No further edit is needed.
    EXPECT_EQ(written(), playerFile({adams, csv("Smith,Jo", "SMITH_JS.THC", "js@example.org", "555-0102")}));
    EXPECT_TRUE(closed());
}

TEST_F(PlayersScreenTest, AReplacedFilesRecordIsNotDoubledByAddRecord)
{
    openAfterSave(SaveKind::Replaced, "Smith_JS.THC", "Smith,JS").cmdAdd.click();
    EXPECT_EQ(written(), twoPlayers);
}

TEST_F(PlayersScreenTest, CancelAfterAReplacedFileKeepsItsRecord)
{
    openAfterSave(SaveKind::Replaced, "Smith_JS.THC", "Smith,Jo").cmdCancel.click();
    EXPECT_EQ(written(), twoPlayers);
}

TEST_F(PlayersScreenTest, ARecordTakenOutGoesBackWhenAnotherRowIsSelected)
{
    scratch.put("PLAYERNAMES.CSV", playerFile({adams, smith, csv("Young,Z", "YOUNG_Z.THC")}));
    PlayersScreen& names = openAfterSave(SaveKind::Replaced, "Adams_B.THC", "Adams,B");
    names.txtPhone.text = "555-7777";
    select(1); // Young, the second of the two rows left
    EXPECT_EQ(names.lstNames.rows, (std::vector<std::string>{row("Adams,B", "ADAMS_B.THC", "b@example.org", "555-7777"),
                                                             smithRow, row("Young,Z", "YOUNG_Z.THC")}));
    EXPECT_EQ(names.lstNames.selectedText(), row("Young,Z", "YOUNG_Z.THC"));
    EXPECT_EQ(names.txtName.text, "Young,Z");
    names.cmdExit.click();
    EXPECT_EQ(written(), playerFile({csv("Adams,B", "ADAMS_B.THC", "b@example.org", "555-7777"), smith,
                                     csv("Young,Z", "YOUNG_Z.THC")}));
}

TEST_F(PlayersScreenTest, ANewFileThatAPlayerAlreadyHasWorksAsAReplacedOne)
{
    PlayersScreen& names = openAfterSave(SaveKind::NewFile, "smith_js.thc", "Smith,JS");
    EXPECT_EQ(names.lstNames.rows, std::vector<std::string>{adamsRow});
    EXPECT_EQ(names.txtEmail.text, "js@example.org");
    EXPECT_FALSE(names.cmdAdd.isDefault);
    names.cmdExit.click();
    EXPECT_EQ(written(), twoPlayers);
}

TEST_F(PlayersScreenTest, AReplacedFileThatNoPlayerHasIsANewOne)
{
    PlayersScreen& names = openAfterSave(SaveKind::Replaced, "Baker_C.THC", "Baker,C");
    EXPECT_TRUE(names.cmdAdd.isDefault);
    EXPECT_FALSE(names.unsaved);
}

TEST_F(PlayersScreenTest, AFileSavedUnderItsOwnNameAllowsOnlyCompleteChanges)
{
    PlayersScreen& names = openAfterSave(SaveKind::SameName, "Adams_B.THC", "Adams,B");
    EXPECT_EQ(names.lstNames.selected, 0);
    EXPECT_EQ(names.txtEmail.text, "b@example.org");
    EXPECT_TRUE(names.cmdChange.enabled);
    EXPECT_TRUE(names.cmdCancel.enabled);
    EXPECT_FALSE(names.cmdAdd.enabled);
    EXPECT_FALSE(names.cmdDelete.enabled);
    EXPECT_FALSE(names.cmdExit.enabled);
    EXPECT_FALSE(names.lstNames.enabled);

    names.txtPhone.text = "555-4242";
    names.cmdChange.click();
    EXPECT_EQ(written(), playerFile({csv("Adams,B", "ADAMS_B.THC", "b@example.org", "555-4242"), smith}));
    EXPECT_TRUE(closed());
}

TEST_F(PlayersScreenTest, AFileSavedUnderItsOwnNameThatNoPlayerHasIsANewOne)
{
    PlayersScreen& names = openAfterSave(SaveKind::SameName, "Baker_C.THC", "Baker,C");
    EXPECT_TRUE(names.cmdAdd.enabled && names.cmdDelete.enabled && names.cmdExit.enabled && names.lstNames.enabled);
    EXPECT_TRUE(names.cmdAdd.isDefault);
}

TEST_F(PlayersScreenTest, InThatModeARecordWhoseFileVanishedIsDeletedAndTheScreenCloses)
{
    platform.dialogs.answer(ui::Answer::Ok);
    PlayersScreen& names = openAfterSave(SaveKind::SameName, "Smith_JS.THC", "Smith,JS");
    names.cmdChange.click();
    EXPECT_EQ(platform.dialogs.shown, std::vector<ui::Message>{kNoSelections});
    EXPECT_EQ(written(), playerFile({adams}));
    EXPECT_TRUE(closed());
}

TEST_F(PlayersScreenTest, AFullRecordMeansTheOneFileThatBeginsWithIt)
{
    const std::string longName = "Montgomery-Featherstonehaugh_Wilhelmina.THC"; // 43 characters
    scratch.put(longName, "a bracket");
    const std::string record = csv("Montgomery-Featherstoneha", "MONTGOMERY-FEATHERSTONEHAUGH_WILH", "m@example.org");
    scratch.put("PLAYERNAMES.CSV", playerFile({record}));
    platform.dialogs.answer(ui::Answer::Ok);
    PlayersScreen& names = openAfterSave(SaveKind::NewFile, longName, "Montgomery-Featherstonehaugh,Wilhelmina");
    EXPECT_TRUE(names.lstNames.rows.empty()) << "its record was not found";
    names.cmdAdd.click();
    EXPECT_EQ(written(), playerFile({record}));

    saved.reset();
    PlayersScreen& later = open();
    select(0);
    later.cmdDelete.click();
    later.cmdExit.click();
    EXPECT_FALSE(scratch.has(longName));
}

TEST_F(PlayersScreenTest, ClosingClearsWhatTheBoardLeft)
{
    openAfterSave(SaveKind::NewFile, "Baker_C.THC", "Baker,C");
    screen->unloading();
    EXPECT_FALSE(saved);
}

} // namespace
} // namespace tallyhoop::test
