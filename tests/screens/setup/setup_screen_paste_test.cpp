// tests/screens/setup/setup_screen_paste_test.cpp - the setup screen: pasting team names.
#include "screens/setup/setup_fixture.h"

namespace tallyhoop::test {
namespace {

class SetupScreenPaste : public SetupFixture
{
};

TEST_F(SetupScreenPaste, TakesANameOfTheListInAnyCaseAndSpellsItAsTheListDoes)
{
    SetupScreen& screen = loaded();
    EXPECT_TRUE(paste(screen.txtRegion[4], "iowa ST."));
    EXPECT_EQ(screen.txtRegion[4].text, "Iowa St.");
    EXPECT_TRUE(dialogs().shown.empty());
    EXPECT_EQ(screen.status, "There are changes that are not saved yet.");
}

TEST_F(SetupScreenPaste, RefusesANameThatTheListLacks)
{
    SetupScreen& screen = loaded();
    EXPECT_TRUE(paste(screen.txtRegion[4], "Duk"));
    EXPECT_EQ(screen.txtRegion[4].text, "TEAM5");
    ASSERT_EQ(dialogs().shown.size(), 1U);
    EXPECT_EQ(
        dialogs().shown[0],
        (ui::Message{"Team Names Pasted", "These lines are not in the list of team names and were not entered:\r\nDuk",
                     ui::Buttons::Ok, ui::Icon::Exclamation}));
}

TEST_F(SetupScreenPaste, ABlockFillsTheFollowingBoxesAndListsWhatDidNotMatchOnce)
{
    SetupScreen& screen = loaded();
    EXPECT_TRUE(paste(screen.txtRegion[10], "duke\r\nNowhere\r\n\r\nTEXAS\nElsewhere\n"));
    EXPECT_EQ(teams(9, 6), (std::vector<std::string>{"TEAM10", "Duke", "TEAM12", "TEAM13", "Texas", "TEAM15"}));
    ASSERT_EQ(dialogs().shown.size(), 1U);
    EXPECT_EQ(dialogs().shown[0].text,
              "These lines are not in the list of team names and were not entered:\r\nNowhere\r\nElsewhere");
}

TEST_F(SetupScreenPaste, SaysWhatCameAfterTheLastBox)
{
    SetupScreen& screen = loaded();
    EXPECT_TRUE(paste(screen.txtRegion[63], "Ohio\r\nIowa"));
    EXPECT_EQ(screen.txtRegion[63].text, "Ohio");
    EXPECT_EQ(screen.txtRegion[0].text, "TEAM1");
    ASSERT_EQ(dialogs().shown.size(), 1U);
    EXPECT_EQ(dialogs().shown[0].text, "These lines come after the last team box and were not entered:\r\nIowa");
}

TEST_F(SetupScreenPaste, ShowsTwentyLinesAtMost)
{
    SetupScreen& screen = loaded();
    std::string block;
    for (int i = 1; i <= 23; ++i)
        block += "No " + std::to_string(i) + "\r\n";
    paste(screen.txtRegion[0], block);
    ASSERT_EQ(dialogs().shown.size(), 1U);
    const std::string& text = dialogs().shown[0].text;
    EXPECT_NE(text.find("No 20\r\nand 3 more"), std::string::npos);
    EXPECT_EQ(text.find("No 21"), std::string::npos);
}

TEST_F(SetupScreenPaste, AnyTextGetsInWhileSelectingIsOverridden)
{
    SetupScreen& screen = loaded();
    click(screen.cmdOverride);
    EXPECT_FALSE(paste(screen.txtRegion[0], "Nowhere")); // the box inserts it at its caret
    EXPECT_TRUE(paste(screen.txtRegion[0], "Nowhere\r\nElsewhere"));
    EXPECT_EQ(teams(0, 3), (std::vector<std::string>{"Nowhere", "Elsewhere", "TEAM3"}));
    EXPECT_TRUE(dialogs().shown.empty());
}

TEST_F(SetupScreenPaste, OtherBoxesTakeWhatIsPasted)
{
    SetupScreen& screen = loaded();
    EXPECT_FALSE(paste(screen.TxtInfo[0], "Our Pool"));
    EXPECT_FALSE(paste(screen.txtComment1, "one\r\ntwo"));
}

} // namespace
} // namespace tallyhoop::test
