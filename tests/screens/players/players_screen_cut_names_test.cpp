// tests/screens/players/players_screen_cut_names_test.cpp - two players whose long file names are cut to the same.
#include "screens/players/players_screen_fixture.h"

namespace tallyhoop::test {
namespace {

/// Both names begin with the same 33 characters, which is all that a record keeps of them.
class PlayersWithCutNames : public PlayersScreenTest
{
protected:
    const std::string cutName = "MONTGOMERY-FEATHERSTONEHAUGH_WILH"; // 33 characters
    const std::string filesName = "Montgomery-Featherstonehaugh_Wilhelmina.THC";
    const std::string wilhelm = csv("Wilhelm,W", cutName, "w@example.org");
    const std::string wilhelmina = csv("Wilhelmina,W", cutName, "wa@example.org");

    ui::Message listedAlready(const std::string& player) const
    {
        return {"Pool Names Maintenance",
                "The list has a record for this file already:\r\n\r\n" + player + "   " + cutName +
                    "\r\n\r\nDo you want to add another one?",
                ui::Buttons::OkCancel, ui::Icon::Question, "players"};
    }

    /// A new selection's record could not be added; it goes into the list when another row is selected.
    void putNewRecordIntoTheListWithTheNextRow()
    {
        scratch.put("PLAYERNAMES.CSV", twoPlayers);
        scratch.put(filesName, "the picks of Wilhelmina");
        openAfterSave(SaveKind::NewFile, filesName, "Wilhelmina,W");
        blockWriting();
        screen->cmdAdd.click();
        std::filesystem::remove_all(scratch.path() / "PLAYERNAMES.CSV");
        select(0);
    }

    PlayersWithCutNames() { scratch.put("PLAYERNAMES.CSV", playerFile({wilhelm, wilhelmina})); }
};

TEST_F(PlayersWithCutNames, DeletingOneKeepsTheOnlyFileForItMayBeTheOthers)
{
    scratch.put(filesName, "the picks of Wilhelmina");
    platform.dialogs.answer(ui::Answer::Ok);
    PlayersScreen& names = open();
    select(0);
    names.cmdDelete.click();
    const std::string text = "Another record has the same File Name, cut to 33 characters,\r\n"
                             "but only one selection file begins with it:\r\n" +
                             filesName +
                             "\r\nIt may be the other player's, so it will NOT be deleted.\r\n\r\n"
                             "If you continue, only this Player Name record will be deleted";
    ASSERT_EQ(platform.dialogs.shown.size(), 1u);
    EXPECT_EQ(platform.dialogs.shown.front().text, text);
    names.cmdExit.click();
    EXPECT_EQ(scratch.get(filesName), "the picks of Wilhelmina");
    EXPECT_EQ(written(), playerFile({wilhelmina}));
}

TEST_F(PlayersWithCutNames, CancelledNothingIsDeleted)
{
    scratch.put(filesName, "the picks of Wilhelmina");
    platform.dialogs.answer(ui::Answer::Cancel);
    PlayersScreen& names = open();
    select(0);
    names.cmdDelete.click();
    names.cmdExit.click();
    EXPECT_TRUE(scratch.has(filesName));
    EXPECT_EQ(written(), playerFile({wilhelm, wilhelmina}));
}

TEST_F(PlayersWithCutNames, TheLastRecordOfTheNameTakesItsFileAlong)
{
    scratch.put(filesName, "the picks of Wilhelmina");
    scratch.put("PLAYERNAMES.CSV", playerFile({adams, wilhelmina}));
    platform.dialogs.answer(ui::Answer::Ok);
    PlayersScreen& names = open();
    select(1);
    names.cmdDelete.click();
    names.cmdExit.click();
    EXPECT_FALSE(scratch.has(filesName));
    EXPECT_EQ(written(), playerFile({adams}));
}

TEST_F(PlayersWithCutNames, SavingOnesFileBringsThatPlayersRecord)
{
    scratch.put(filesName, "the picks of Wilhelmina");
    PlayersScreen& names = openAfterSave(SaveKind::SameName, filesName, "Wilhelmina,W");
    EXPECT_EQ(names.txtEmail.text, "wa@example.org");
}

TEST_F(PlayersWithCutNames, SavingTheFileOfAThirdPlayerTakesNobodysRecord)
{
    scratch.put(filesName, "the picks of a third");
    PlayersScreen& names = openAfterSave(SaveKind::Replaced, filesName, "Somebody,E");
    EXPECT_EQ(names.lstNames.rows.size(), 2u);
    EXPECT_EQ(names.txtName.text, "Somebody,E");
    platform.dialogs.answer(ui::Answer::Ok);
    names.cmdAdd.click();
    EXPECT_EQ(platform.dialogs.shown, std::vector{listedAlready("Wilhelm,W")});
    EXPECT_EQ(written(), playerFile({csv("Somebody,E", cutName), wilhelm, wilhelmina}));
    EXPECT_EQ(screens.news, std::vector<std::string>{"Somebody,E is in the list now."});
}

/// The list has only one of the two, and his file is gone.
class PlayersWithOneCutName : public PlayersWithCutNames
{
protected:
    PlayersWithOneCutName()
    {
        scratch.put("PLAYERNAMES.CSV", playerFile({wilhelm}));
        scratch.put(filesName, "the picks of Wilhelmina");
    }
};

TEST_F(PlayersWithOneCutName, SavingTheOthersFileDoesNotTakeTheRecord)
{
    PlayersScreen& names = openAfterSave(SaveKind::NewFile, filesName, "Wilhelmina,W");
    EXPECT_EQ(names.lstNames.rows.size(), 1u);
    EXPECT_EQ(names.txtEmail.text, "");
    platform.dialogs.answer(ui::Answer::Ok);
    names.cmdAdd.click();
    EXPECT_EQ(platform.dialogs.shown, std::vector{listedAlready("Wilhelm,W")});
    EXPECT_EQ(written(), playerFile({wilhelm, csv("Wilhelmina,W", cutName)}));
}

TEST_F(PlayersWithOneCutName, ARecordThatWasRenamedIsNotDoubledUnasked)
{
    scratch.put("PLAYERNAMES.CSV", playerFile({csv("Mina,W", cutName, "w@example.org")}));
    PlayersScreen& names = openAfterSave(SaveKind::SameName, filesName, "Wilhelmina,W");
    platform.dialogs.answer(ui::Answer::Cancel);
    names.cmdAdd.click();
    EXPECT_EQ(platform.dialogs.shown, std::vector{listedAlready("Mina,W")});
    EXPECT_EQ(written(), playerFile({csv("Mina,W", cutName, "w@example.org")}));
    EXPECT_TRUE(stillOpen());
}

TEST_F(PlayersWithOneCutName, NothingIsAskedOnceThereAreTwoSuchFiles)
{
    scratch.put("Montgomery-Featherstonehaugh_Wilhelm.THC", "the picks of Wilhelm");
    openAfterSave(SaveKind::NewFile, filesName, "Wilhelmina,W").cmdAdd.click();
    EXPECT_TRUE(platform.dialogs.shown.empty());
    EXPECT_EQ(written(), playerFile({wilhelm, csv("Wilhelmina,W", cutName)}));
}

TEST_F(PlayersWithOneCutName, NorWhenItIsTriedAgainAfterAFailure)
{
    scratch.put("Montgomery-Featherstonehaugh_Wilhelm.THC", "the picks of Wilhelm");
    openAfterSave(SaveKind::NewFile, filesName, "Wilhelmina,W");
    blockWriting();
    screen->cmdAdd.click();
    EXPECT_EQ(platform.dialogs.captionsShown(), std::vector<std::string>{"** ERROR IN WRITING FILE **"});
    std::filesystem::remove_all(scratch.path() / "PLAYERNAMES.CSV");
    screen->cmdAdd.click();
    EXPECT_EQ(platform.dialogs.shown.size(), 1u);
    EXPECT_EQ(written(), playerFile({wilhelm, csv("Wilhelmina,W", cutName)}));
}

TEST_F(PlayersWithOneCutName, DeletingTheRecordKeepsTheFileThatWasJustSaved)
{
    platform.dialogs.answer(ui::Answer::Ok);
    PlayersScreen& names = openAfterSave(SaveKind::NewFile, filesName, "Wilhelmina,W");
    select(0);
    names.cmdDelete.click();
    ASSERT_EQ(platform.dialogs.shown.size(), 1u);
    EXPECT_NE(platform.dialogs.shown.front().text.find("it will NOT be deleted"), std::string::npos);
    names.cmdExit.click();
    EXPECT_EQ(scratch.get(filesName), "the picks of Wilhelmina");
    EXPECT_EQ(written(), playerFile({}));
}

TEST_F(PlayersWithOneCutName, ARecordThatWasGivenThePlayersNameIsTheMissingOne)
{
    openAfterSave(SaveKind::NewFile, filesName, "Wilhelmina,W");
    select(0);
    screen->txtName.text = "Wilhelmina,W";
    screen->cmdChange.click();
    screen->cmdExit.click();
    EXPECT_EQ(written(), playerFile({csv("Wilhelmina,W", cutName, "w@example.org")}));
    EXPECT_EQ(screens.news, std::vector<std::string>{"The player list is saved."});
}

TEST_F(PlayersWithCutNames, TheRecordsOfOthersAreNotTheRecordOfTheSavedFile)
{
    scratch.put(filesName, "the picks of a third");
    PlayersScreen& names = openAfterSave(SaveKind::Replaced, filesName, "Somebody,E");
    select(0);
    names.txtPhone.text = "555-9999";
    names.cmdChange.click();
    names.cmdExit.click();
    EXPECT_EQ(written(), playerFile({csv("Wilhelm,W", cutName, "w@example.org", "555-9999"), wilhelmina}));
    EXPECT_EQ(screens.news, std::vector{filesName + " is saved, and has no record in the player list."});
}

TEST_F(PlayersWithCutNames, ARecordThatWentIntoTheListWithTheNextRowIsNotMissing)
{
    putNewRecordIntoTheListWithTheNextRow();
    screen->cmdExit.click();
    EXPECT_EQ(written(), playerFile({adams, smith, csv("Wilhelmina,W", cutName)}));
    EXPECT_EQ(screens.news, std::vector<std::string>{"The player list is saved."});
}

TEST_F(PlayersWithCutNames, ARecordThatIsChangedAfterwardsIsNotMissingEither)
{
    putNewRecordIntoTheListWithTheNextRow();
    select(2);
    screen->txtName.text = "Wilhelmina,X";
    screen->cmdChange.click();
    screen->cmdExit.click();
    EXPECT_EQ(written(), playerFile({adams, smith, csv("Wilhelmina,X", cutName)}));
    EXPECT_EQ(screens.news, std::vector<std::string>{"The player list is saved."});
}

TEST_F(PlayersWithCutNames, AddingAPlayerTwiceNamesTheRecordThatIsThere)
{
    scratch.put(filesName, "the picks of Wilhelmina");
    platform.dialogs.answer(ui::Answer::Cancel);
    PlayersScreen& names = openAfterSave(SaveKind::NewFile, filesName, "Somebody,E");
    names.txtName.text = "Wilhelmina,W";
    names.cmdAdd.click();
    EXPECT_EQ(platform.dialogs.shown, std::vector{listedAlready("Wilhelmina,W")});
    EXPECT_EQ(written(), playerFile({wilhelm, wilhelmina}));
}

} // namespace
} // namespace tallyhoop::test
