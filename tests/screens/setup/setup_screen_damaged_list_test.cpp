// tests/screens/setup/setup_screen_damaged_list_test.cpp - a list of team names that was not read whole is not lost.
#include "screens/setup/setup_fixture.h"

namespace tallyhoop::test {
namespace {

class SetupWithDamagedList : public SetupFixture
{
protected:
    const std::string backup = "Backup 2001-03-05 101530"; // the moment of the fake clock

    /// Adds a name to what the screen could read of this list, and saves on leaving.
    void addDrakeTo(const std::string& list)
    {
        files.put("NCAALIST.THS", list);
        SetupScreen& screen = loadedAsIs();
        dialogs().shown.clear();
        dialogs().type("Drake");
        click(screen.cmdAddName);
        dialogs().answer(ui::Answer::Yes);
        screen.mnuEnd.click();
    }

    void expectKept(const std::string& list)
    {
        EXPECT_EQ(files.get(backup + "/NCAALIST.THS"), list);
        ASSERT_EQ(dialogs().shown.size(), 2u) << "the question, and the message where the old file is";
        EXPECT_NE(dialogs().shown.back().text.find((files.path() / backup).string()), std::string::npos);
    }
};

TEST_F(SetupWithDamagedList, AListWithoutItsEndMarkerIsKeptBeforeItIsReplaced)
{
    const std::string list = crlf({"*START*", "Akron", "Duke", "*END* "}); // a blank after the marker
    addDrakeTo(list);
    expectKept(list);
    EXPECT_EQ(files.get("NCAALIST.THS"), crlf({"*START*", "Drake", "*END*"}));
}

TEST_F(SetupWithDamagedList, AListThatGoesOnAfterAnEmptyLineIsKeptBeforeItIsReplaced)
{
    const std::string list = crlf({"*START*", "Akron", "", "Duke", "*END*"});
    addDrakeTo(list);
    expectKept(list);
    EXPECT_EQ(files.get("NCAALIST.THS"), crlf({"*START*", "Akron", "Drake", "*END*"}));
}

TEST_F(SetupWithDamagedList, ASoundListIsReplacedWithoutAWord)
{
    addDrakeTo(crlf({"*START*", "Akron", "", "", "*END*"})); // empty lines at the end hide no name
    EXPECT_FALSE(files.has(backup));
    EXPECT_EQ(dialogs().shown.size(), 1u);
}

TEST_F(SetupWithDamagedList, TheStatusSaysThatItCouldNotBeReadAndNotThatThereIsNone)
{
    files.put("NCAALIST.THS", crlf({"*START*", "Akron", "", "Duke", "*END*"}));
    EXPECT_EQ(loadedAsIs().status, "There are no unsaved changes.  Not named yet: TEAM1 and 63 more.  "
                                   "The list of team names could not be read whole; a save keeps the old file.");
    std::filesystem::remove(files.path() / "NCAALIST.THS");
    EXPECT_NE(loadedAsIs().status.find("  There is no list of team names: "), std::string::npos);
}

} // namespace
} // namespace tallyhoop::test
