// tests/screens/players/players_screen_trouble_test.cpp - a list that cannot be read or written, and text that it
// cannot hold.
#include "screens/players/players_screen_fixture.h"

namespace tallyhoop::test {
namespace {

TEST_F(PlayersScreenTest, AFaultyListStaysEmptyAndCannotBeOverwritten)
{
    const std::string faulty = playerFile({adams}) + "\"too short\"\r\n";
    scratch.put("PLAYERNAMES.CSV", faulty);
    PlayersScreen& names = openAfterSave(SaveKind::Replaced, "Adams_B.THC", "Adams,B");
    EXPECT_EQ(platform.dialogs.captionsShown(), std::vector<std::string>{"** ERROR Found in PLAYERNAMES.CSV file **"});
    EXPECT_TRUE(names.lstNames.rows.empty());
    EXPECT_FALSE(names.cmdAdd.enabled);
    EXPECT_FALSE(names.cmdChange.enabled);
    EXPECT_FALSE(names.cmdDelete.enabled);
    names.cmdExit.click();
    EXPECT_TRUE(closed());
    EXPECT_EQ(written(), faulty);
}

TEST_F(PlayersScreenTest, WhenTheListCannotBeWrittenNothingIsDeletedAndDoneCanBeTriedAgain)
{
    platform.dialogs.answer(ui::Answer::Ok);
    PlayersScreen& names = open();
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

TEST_F(PlayersScreenTest, ARecordThatCouldNotBeAddedStaysInTheBoxesAndIsAddedOnceLater)
{
    PlayersScreen& names = openAfterSave(SaveKind::NewFile, "Baker_C.THC", "Baker,C");
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

TEST_F(PlayersScreenTest, AChangeThatCouldNotBeWrittenInTheSameNameModeCanBeTriedAgain)
{
    PlayersScreen& names = openAfterSave(SaveKind::SameName, "Adams_B.THC", "Adams,B");
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

// What the file cannot hold.

TEST_F(PlayersScreenTest, ADoubleQuoteCannotBeTyped)
{
    PlayersScreen& names = open();
    for (ui::TextBox* box : {&names.txtName, &names.txtEmail, &names.txtPhone}) {
        EXPECT_TRUE(names.keyPressed(*box, {ui::Key::Character, '"'}));
        EXPECT_FALSE(names.keyPressed(*box, {ui::Key::Character, '\''}));
    }
}

TEST_F(PlayersScreenTest, APastedQuoteBecomesAnApostropheAndALineBreakABlank)
{
    PlayersScreen& names = open();
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
