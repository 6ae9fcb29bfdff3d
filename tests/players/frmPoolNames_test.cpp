// tests/players/frmPoolNames_test.cpp - adding, changing and deleting players, and what a save on the board leaves.
#include "players/frmPoolNames.h"

#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "fakes/scratch_folder.h"
#include "players/player_file.h"

#include <gtest/gtest.h>
#include <memory>

namespace tallyhoop::test {
namespace {

class frmPoolNamesTest : public testing::Test
{
protected:
    frmPoolNamesTest()
    {
        scratch.put("PLAYERNAMES.CSV", twoPlayers);
        scratch.put("Adams_B.THC", "bracket of Adams\r\n");
    }

    frmPoolNames& open()
    {
        screens.open.insert(ScreenKind::PlayerNames);
        screen = std::make_unique<frmPoolNames>(folder, platform.services, state, screens);
        screen->load();
        return *screen;
    }

    frmPoolNames& openAfterSave(SaveKind kind, const std::string& file, const std::string& player)
    {
        state.handOver = PlayerHandOver{player, scratch.path() / file, kind};
        return open();
    }

    void select(int row)
    {
        screen->lstNames.selected = row;
        screen->lstNames.chosen();
    }

    bool closed() const { return screens.unloads == std::vector<ScreenKind>{ScreenKind::PlayerNames}; }
    bool stillOpen() const { return screens.unloads.empty(); }
    std::string written() const { return scratch.get("PLAYERNAMES.CSV"); }

    /// Makes every write of the player list fail: its temporary file's and its own place are taken.
    void blockWriting() const
    {
        std::filesystem::remove(scratch.path() / "PLAYERNAMES.CSV");
        std::filesystem::create_directory(scratch.path() / "PLAYERNAMES.CSV");
        scratch.put("PLAYERNAMES.CSV/occupied", "x");
    }

    const std::string adams = csv("Adams,B", "ADAMS_B.THC", "b@example.org", "555-0101");
    const std::string smith = csv("Smith,JS", "SMITH_JS.THC", "js@example.org", "555-0102");
    const std::string twoPlayers = playerFile({adams, smith});
    const std::string adamsRow = row("Adams,B", "ADAMS_B.THC", "b@example.org", "555-0101");
    const std::string smithRow = row("Smith,JS", "SMITH_JS.THC", "js@example.org", "555-0102");

    ScratchFolder scratch;
    DataFolder folder{scratch.folder()};
    FakePlatform platform;
    modTallyhoop state;
    FakeScreens screens;
    std::unique_ptr<frmPoolNames> screen;
};

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

TEST_F(frmPoolNamesTest, HasItsCaptionsAndHints)
{
    frmPoolNames& names = open();
    EXPECT_EQ(names.caption, "PlayerName Edit");
    EXPECT_EQ(names.lblName.text, "Name (Last, IN):");
    EXPECT_EQ(names.lblFileName.text, "FileName:");
    EXPECT_EQ(names.lblFileNameNote.text, "The File Name cannot be changed");
    EXPECT_EQ(names.lblEmail.text, "EMail Address:");
    EXPECT_EQ(names.lblPhone.text, "Phone No:");
    EXPECT_EQ(names.cmdChange.toolTip, "Store the CHANGEs made");
    EXPECT_EQ(names.cmdDelete.toolTip, "Select to DELETE selected record");
    EXPECT_TRUE(names.lstNames.fixedPitch);
    EXPECT_TRUE(names.txtFileName.locked);
}

TEST_F(frmPoolNamesTest, ListsThePlayersAlphabeticallyInColumns)
{
    scratch.put("PLAYERNAMES.CSV", playerFile({smith, csv("baker,C", "BAKER_C.THC"), adams}));
    frmPoolNames& names = open();
    EXPECT_EQ(names.lstNames.rows, (std::vector<std::string>{adamsRow, row("baker,C", "BAKER_C.THC"), smithRow}));
    EXPECT_FALSE(names.lstNames.selected);
    EXPECT_EQ(names.txtName.text, "");
    EXPECT_EQ(names.status, "3 players");
}

TEST_F(frmPoolNamesTest, ASelectedRowFillsTheBoxesWithoutItsPadding)
{
    frmPoolNames& names = open();
    select(1);
    EXPECT_EQ(names.txtName.text, "Smith,JS");
    EXPECT_EQ(names.txtFileName.text, "SMITH_JS.THC");
    EXPECT_EQ(names.txtEmail.text, "js@example.org");
    EXPECT_EQ(names.txtPhone.text, "555-0102");
}

TEST_F(frmPoolNamesTest, AddRecordWritesTheListInOrderAndCloses)
{
    frmPoolNames& names = open();
    names.txtName.text = "Baker,C";
    names.txtEmail.text = "c@example.org";
    names.txtPhone.text = "555-0103";
    names.cmdAdd.click();
    EXPECT_EQ(written(), playerFile({adams, csv("Baker,C", "", "c@example.org", "555-0103"), smith}));
    EXPECT_TRUE(closed());
    EXPECT_TRUE(platform.dialogs.shown.empty());
}

TEST_F(frmPoolNamesTest, ALongNameIsStoredCutAndTheBoxShowsTheCutText)
{
    frmPoolNames& names = open();
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

TEST_F(frmPoolNamesTest, ChangeWithoutASelectionExplainsItself)
{
    open().cmdChange.click();
    EXPECT_EQ(platform.dialogs.shown, std::vector<ui::Message>{kSelectBeforeChange});
}

TEST_F(frmPoolNamesTest, DeleteWithoutASelectionExplainsItself)
{
    open().cmdDelete.click();
    EXPECT_EQ(platform.dialogs.shown, std::vector<ui::Message>{kSelectBeforeDelete});
}

TEST_F(frmPoolNamesTest, AChangedRowKeepsItsPlaceAndIsWrittenByDone)
{
    frmPoolNames& names = open();
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

TEST_F(frmPoolNamesTest, ASecondPressOnCompleteChangesDoesNotTouchTheRowAgain)
{
    frmPoolNames& names = open();
    select(0);
    names.cmdChange.click();
    names.cmdChange.click();
    EXPECT_EQ(platform.dialogs.shown, std::vector<ui::Message>{kSelectBeforeChange});
    EXPECT_EQ(names.lstNames.rows, (std::vector<std::string>{adamsRow, smithRow}));
}

TEST_F(frmPoolNamesTest, AChangeWithoutASelectionFileOffersToDeleteTheRecord)
{
    platform.dialogs.answer(ui::Answer::Ok);
    frmPoolNames& names = open();
    select(1); // There is no Smith_JS.THC.
    names.cmdChange.click();
    EXPECT_EQ(platform.dialogs.shown, std::vector<ui::Message>{kNoSelections});
    EXPECT_EQ(names.lstNames.rows, std::vector<std::string>{adamsRow});
    EXPECT_EQ(names.txtName.text, "");
    names.cmdExit.click();
    EXPECT_EQ(written(), playerFile({adams}));
}

TEST_F(frmPoolNamesTest, ThatOfferCancelledLeavesRecordAndBoxes)
{
    platform.dialogs.answer(ui::Answer::Cancel);
    frmPoolNames& names = open();
    select(1);
    names.txtPhone.text = "555-9999";
    names.cmdChange.click();
    EXPECT_EQ(names.lstNames.rows, (std::vector<std::string>{adamsRow, smithRow}));
    EXPECT_EQ(names.txtPhone.text, "555-9999");
    EXPECT_FALSE(names.unsaved);
}

TEST_F(frmPoolNamesTest, DeletingAPlayerDeletesTheFileOnlyWithDone)
{
    platform.dialogs.answer(ui::Answer::Ok);
    frmPoolNames& names = open();
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

TEST_F(frmPoolNamesTest, DeletingRefusedKeepsEverything)
{
    platform.dialogs.answer(ui::Answer::Cancel);
    frmPoolNames& names = open();
    select(0);
    names.cmdDelete.click();
    EXPECT_EQ(names.lstNames.rows, (std::vector<std::string>{adamsRow, smithRow}));
    names.cmdExit.click();
    EXPECT_TRUE(scratch.has("Adams_B.THC"));
    EXPECT_EQ(written(), twoPlayers);
}

TEST_F(frmPoolNamesTest, DeletingAndThenCancelKeepsRecordAndFile)
{
    platform.dialogs.answer(ui::Answer::Ok);
    frmPoolNames& names = open();
    select(0);
    names.cmdDelete.click();
    names.cmdCancel.click();
    EXPECT_TRUE(closed());
    EXPECT_TRUE(scratch.has("Adams_B.THC"));
    EXPECT_EQ(written(), twoPlayers);
}

TEST_F(frmPoolNamesTest, DeletingAPlayerWithoutSelectionFileAsksNothing)
{
    frmPoolNames& names = open();
    select(1);
    names.cmdDelete.click();
    EXPECT_TRUE(platform.dialogs.shown.empty());
    EXPECT_EQ(names.lstNames.rows, std::vector<std::string>{adamsRow});
}

TEST_F(frmPoolNamesTest, AFileThatVanishedBeforeDoneIsNoTrouble)
{
    platform.dialogs.answer(ui::Answer::Ok);
    frmPoolNames& names = open();
    select(0);
    names.cmdDelete.click();
    std::filesystem::remove(scratch.path() / "Adams_B.THC");
    names.cmdExit.click();
    EXPECT_TRUE(closed());
    EXPECT_EQ(platform.dialogs.shown.size(), 1u);
}

TEST_F(frmPoolNamesTest, DoneWithoutAChangeJustCloses)
{
    frmPoolNames& names = open();
    select(0);
    names.txtName.text = "typed, but never completed";
    scratch.put("PLAYERNAMES.CSV", "changed by someone else");
    names.cmdExit.click();
    EXPECT_EQ(written(), "changed by someone else");
    EXPECT_TRUE(closed());
}

TEST_F(frmPoolNamesTest, TheCloseButtonAndEscapeAreCancel)
{
    frmPoolNames& names = open();
    select(0);
    names.cmdChange.click();
    names.closeRequested();
    EXPECT_TRUE(closed());
    EXPECT_EQ(written(), twoPlayers);
}

TEST_F(frmPoolNamesTest, NothingButASelectionFileOfTheFolderIsEverDeleted)
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
        frmPoolNames& names = open();
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

// A selection that the board has just saved.

TEST_F(frmPoolNamesTest, ANewFileIsShownInCapitalsAndAddRecordIsTheDefault)
{
    frmPoolNames& names = openAfterSave(SaveKind::NewFile, "Baker_C.THC", "Baker,C");
    EXPECT_EQ(names.txtName.text, "Baker,C");
    EXPECT_EQ(names.txtFileName.text, "BAKER_C.THC");
    EXPECT_TRUE(names.cmdAdd.isDefault);
    EXPECT_EQ(names.lstNames.rows, (std::vector<std::string>{adamsRow, smithRow}));
    names.txtEmail.text = "c@example.org";
    names.cmdAdd.click();
    EXPECT_EQ(written(), playerFile({adams, csv("Baker,C", "BAKER_C.THC", "c@example.org"), smith}));
    EXPECT_TRUE(closed());
}

TEST_F(frmPoolNamesTest, DoneAfterANewFileWithoutAddingItJustCloses)
{
    openAfterSave(SaveKind::NewFile, "Baker_C.THC", "Baker,C").cmdExit.click();
    EXPECT_TRUE(closed());
    EXPECT_EQ(written(), twoPlayers);
}

TEST_F(frmPoolNamesTest, AReplacedFileTakesItsRecordOutForEditing)
{
    frmPoolNames& names = openAfterSave(SaveKind::Replaced, "Smith_JS.THC", "Smith,Jo");
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

TEST_F(frmPoolNamesTest, AReplacedFilesRecordIsNotDoubledByAddRecord)
{
    openAfterSave(SaveKind::Replaced, "Smith_JS.THC", "Smith,JS").cmdAdd.click();
    EXPECT_EQ(written(), twoPlayers);
}

TEST_F(frmPoolNamesTest, CancelAfterAReplacedFileKeepsItsRecord)
{
    openAfterSave(SaveKind::Replaced, "Smith_JS.THC", "Smith,Jo").cmdCancel.click();
    EXPECT_EQ(written(), twoPlayers);
}

TEST_F(frmPoolNamesTest, ARecordTakenOutGoesBackWhenAnotherRowIsSelected)
{
    scratch.put("PLAYERNAMES.CSV", playerFile({adams, smith, csv("Young,Z", "YOUNG_Z.THC")}));
    frmPoolNames& names = openAfterSave(SaveKind::Replaced, "Adams_B.THC", "Adams,B");
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

TEST_F(frmPoolNamesTest, ANewFileThatAPlayerAlreadyHasWorksAsAReplacedOne)
{
    frmPoolNames& names = openAfterSave(SaveKind::NewFile, "smith_js.thc", "Smith,JS");
    EXPECT_EQ(names.lstNames.rows, std::vector<std::string>{adamsRow});
    EXPECT_EQ(names.txtEmail.text, "js@example.org");
    EXPECT_FALSE(names.cmdAdd.isDefault);
    names.cmdExit.click();
    EXPECT_EQ(written(), twoPlayers);
}

TEST_F(frmPoolNamesTest, AReplacedFileThatNoPlayerHasIsANewOne)
{
    frmPoolNames& names = openAfterSave(SaveKind::Replaced, "Baker_C.THC", "Baker,C");
    EXPECT_TRUE(names.cmdAdd.isDefault);
    EXPECT_FALSE(names.unsaved);
}

TEST_F(frmPoolNamesTest, AFileSavedUnderItsOwnNameAllowsOnlyCompleteChanges)
{
    frmPoolNames& names = openAfterSave(SaveKind::SameName, "Adams_B.THC", "Adams,B");
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

TEST_F(frmPoolNamesTest, AFileSavedUnderItsOwnNameThatNoPlayerHasIsANewOne)
{
    frmPoolNames& names = openAfterSave(SaveKind::SameName, "Baker_C.THC", "Baker,C");
    EXPECT_TRUE(names.cmdAdd.enabled && names.cmdDelete.enabled && names.cmdExit.enabled && names.lstNames.enabled);
    EXPECT_TRUE(names.cmdAdd.isDefault);
}

TEST_F(frmPoolNamesTest, InThatModeARecordWhoseFileVanishedIsDeletedAndTheScreenCloses)
{
    platform.dialogs.answer(ui::Answer::Ok);
    frmPoolNames& names = openAfterSave(SaveKind::SameName, "Smith_JS.THC", "Smith,JS");
    names.cmdChange.click();
    EXPECT_EQ(platform.dialogs.shown, std::vector<ui::Message>{kNoSelections});
    EXPECT_EQ(written(), playerFile({adams}));
    EXPECT_TRUE(closed());
}

TEST_F(frmPoolNamesTest, FileNamesAreComparedWithoutTheirLastEndingOnly)
{
    // "MATTHCOX" holds the letters of the ending; cut there it would be everybody whose name begins with MAT.
    scratch.put("PLAYERNAMES.CSV", playerFile({csv("Matt", "MATTHC_A.THC"), csv("Matthcox", "MATTHCOX.THC")}));
    frmPoolNames& names = openAfterSave(SaveKind::SameName, "Matthcox.THC", "Matthcox,M");
    EXPECT_EQ(names.lstNames.selected, 1);
}

TEST_F(frmPoolNamesTest, AFullRecordStandsForTheOneFileThatBeginsWithIt)
{
    const std::string longName = "Montgomery-Featherstonehaugh_Wilhelmina.THC"; // 43 characters
    scratch.put(longName, "a bracket");
    scratch.put("PLAYERNAMES.CSV", playerFile({csv("Montgomery", "MONTGOMERY-FEATHERSTONEHAUGH_WILHELMINA.THC")}));
    platform.dialogs.answer(ui::Answer::Ok);
    frmPoolNames& names = openAfterSave(SaveKind::NewFile, longName, "Montgomery-Featherstonehaugh,Wilhelmina");
    EXPECT_TRUE(names.lstNames.rows.empty()) << "its record was not found";
    names.cmdAdd.click();
    EXPECT_EQ(written(), playerFile({csv("Montgomery-Featherstoneha", "MONTGOMERY-FEATHERSTONEHAUGH_WILH")}));

    state.handOver.reset();
    frmPoolNames& later = open();
    select(0);
    later.cmdDelete.click();
    later.cmdExit.click();
    EXPECT_FALSE(scratch.has(longName));
}

TEST_F(frmPoolNamesTest, ARecordCutAtABlankStandsForItsFileToo)
{
    const std::string longName = "Featherstonehaugh-Warburton Beau Jr_FB.THC"; // the 33rd character is the second blank
    scratch.put(longName, "a bracket");
    scratch.put("PLAYERNAMES.CSV", playerFile({csv("Featherstonehaugh", "FEATHERSTONEHAUGH-WARBURTON BEAU")}));
    frmPoolNames& names = openAfterSave(SaveKind::NewFile, longName, "Featherstonehaugh,FB");
    EXPECT_TRUE(names.lstNames.rows.empty()) << "its record was not found";
    names.cmdCancel.click();

    state.handOver.reset();
    frmPoolNames& later = open();
    select(0);
    platform.dialogs.answer(ui::Answer::Ok);
    later.cmdDelete.click();
    EXPECT_EQ(platform.dialogs.shown, std::vector<ui::Message>{kBothDeleted});
    later.cmdExit.click();
    EXPECT_FALSE(scratch.has(longName));
}

TEST_F(frmPoolNamesTest, AFullRecordThatSeveralFilesBeginWithStandsForNone)
{
    const std::string start = "Montgomery-Featherstonehaugh_Wilh"; // 33 characters
    scratch.put(start + "elmina.THC", "a bracket");
    scratch.put(start + "elm.THC", "another");
    scratch.put("PLAYERNAMES.CSV", playerFile({csv("Montgomery", start)}));
    frmPoolNames& names = open();
    select(0);
    names.cmdDelete.click();
    names.cmdExit.click();
    EXPECT_TRUE(platform.dialogs.shown.empty());
    EXPECT_TRUE(scratch.has(start + "elmina.THC"));
    EXPECT_TRUE(scratch.has(start + "elm.THC"));
}

TEST_F(frmPoolNamesTest, ClosingClearsTheHandOver)
{
    openAfterSave(SaveKind::NewFile, "Baker_C.THC", "Baker,C");
    screen->unloading();
    EXPECT_FALSE(state.handOver);
}

// Trouble with the file.

TEST_F(frmPoolNamesTest, AFaultyListStaysEmptyAndCannotBeOverwritten)
{
    const std::string faulty = playerFile({adams}) + "\"too short\"\r\n";
    scratch.put("PLAYERNAMES.CSV", faulty);
    frmPoolNames& names = openAfterSave(SaveKind::Replaced, "Adams_B.THC", "Adams,B");
    EXPECT_EQ(platform.dialogs.captionsShown(), std::vector<std::string>{"** ERROR Found in PLAYERNAMES.CSV file **"});
    EXPECT_TRUE(names.lstNames.rows.empty());
    EXPECT_FALSE(names.cmdAdd.enabled);
    EXPECT_FALSE(names.cmdChange.enabled);
    EXPECT_FALSE(names.cmdDelete.enabled);
    names.cmdExit.click();
    EXPECT_TRUE(closed());
    EXPECT_EQ(written(), faulty);
}

TEST_F(frmPoolNamesTest, WhenTheListCannotBeWrittenNothingIsDeletedAndDoneCanBeTriedAgain)
{
    platform.dialogs.answer(ui::Answer::Ok);
    frmPoolNames& names = open();
    select(0);
    names.cmdDelete.click();
    blockWriting();
    names.cmdExit.click();
    EXPECT_EQ(platform.dialogs.shown.back().caption, "** ERROR IN WRITING FILE **");
    EXPECT_TRUE(scratch.has("Adams_B.THC"));
    EXPECT_EQ(names.lstNames.rows, std::vector<std::string>{smithRow});
    EXPECT_TRUE(stillOpen());

    std::filesystem::remove_all(scratch.path() / "PLAYERNAMES.CSV");
    names.cmdExit.click();
    EXPECT_EQ(written(), playerFile({smith}));
    EXPECT_FALSE(scratch.has("Adams_B.THC"));
    EXPECT_TRUE(closed());
}

TEST_F(frmPoolNamesTest, ARecordThatCouldNotBeAddedStaysInTheBoxesAndIsAddedOnceLater)
{
    frmPoolNames& names = openAfterSave(SaveKind::NewFile, "Baker_C.THC", "Baker,C");
    blockWriting();
    names.cmdAdd.click();
    EXPECT_TRUE(stillOpen());
    EXPECT_EQ(names.txtName.text, "Baker,C");
    EXPECT_EQ(names.txtFileName.text, "BAKER_C.THC");
    EXPECT_EQ(names.lstNames.rows, (std::vector<std::string>{adamsRow, smithRow}));

    std::filesystem::remove_all(scratch.path() / "PLAYERNAMES.CSV");
    names.cmdExit.click();
    EXPECT_EQ(written(), playerFile({adams, csv("Baker,C", "BAKER_C.THC"), smith}));
}

TEST_F(frmPoolNamesTest, AChangeThatCouldNotBeWrittenInTheSameNameModeCanBeTriedAgain)
{
    frmPoolNames& names = openAfterSave(SaveKind::SameName, "Adams_B.THC", "Adams,B");
    names.txtPhone.text = "555-4242";
    blockWriting();
    names.cmdChange.click();
    EXPECT_TRUE(stillOpen());
    EXPECT_EQ(names.txtPhone.text, "555-4242");
    EXPECT_EQ(names.lstNames.selected, 0);
    std::filesystem::remove_all(scratch.path() / "PLAYERNAMES.CSV");
    names.cmdChange.click();
    EXPECT_EQ(written(), playerFile({csv("Adams,B", "ADAMS_B.THC", "b@example.org", "555-4242"), smith}));
}

// What cannot stand in the file.

TEST_F(frmPoolNamesTest, ADoubleQuoteCannotBeTyped)
{
    frmPoolNames& names = open();
    for (ui::TextBox* box : {&names.txtName, &names.txtEmail, &names.txtPhone}) {
        EXPECT_TRUE(names.keyPressed(*box, {ui::Key::Character, '"'}));
        EXPECT_FALSE(names.keyPressed(*box, {ui::Key::Character, '\''}));
    }
}

TEST_F(frmPoolNamesTest, APastedQuoteBecomesAnApostropheAndALineBreakABlank)
{
    frmPoolNames& names = open();
    names.txtName.text = "Smith old end";
    names.txtName.selectionStart = 6;
    names.txtName.selectionLength = 3; // "old"
    EXPECT_TRUE(names.pasted(names.txtName, "\"Joe\"\r\nX\nY\rZ"));
    EXPECT_EQ(names.txtName.text, "Smith 'Joe' X Y Z end");
    EXPECT_EQ(names.txtName.selectionStart, 17);
    EXPECT_EQ(names.txtName.selectionLength, 0);
    EXPECT_FALSE(names.pasted(names.txtName, "plain text is inserted by the box itself"));
}

} // namespace
} // namespace tallyhoop::test
