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
    EXPECT_TRUE(screen.status.starts_with("There are changes that are not saved yet.")) << screen.status;
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

TEST_F(SetupScreenPaste, ACommentTakesFourThousandCharacters)
{
    SetupScreen& screen = loaded();
    focus(screen.txtComment1);
    screen.txtComment1.text = std::string(10, 'a');
    EXPECT_FALSE(paste(screen.txtComment1, std::string(3990, 'b'))); // it fits, and the box inserts it
    EXPECT_TRUE(paste(screen.txtComment1, std::string(3991, 'b')));
    ASSERT_EQ(dialogs().shown.size(), 1U);
    EXPECT_EQ(dialogs().shown[0], (ui::Message{"Comment Pasted",
                                               "A comment has room for 4000 characters.\r\n"
                                               "With what you pasted it would have 4001, so nothing was inserted.",
                                               ui::Buttons::Ok, ui::Icon::Exclamation}));
}

TEST_F(SetupScreenPaste, WhatItReplacesInACommentMakesRoom)
{
    SetupScreen& screen = loaded();
    focus(screen.txtComment2);
    screen.txtComment2.text = std::string(4000, 'a');
    screen.txtComment2.selectionLength = 5;
    EXPECT_FALSE(paste(screen.txtComment2, "12345"));
    EXPECT_TRUE(paste(screen.txtComment2, "123456"));
}

TEST_F(SetupScreenPaste, AFullCommentSaysSoWhenMoreIsTyped)
{
    SetupScreen& screen = loaded();
    focus(screen.txtComment1);
    screen.txtComment1.text = std::string(3999, 'a');
    EXPECT_FALSE(type('b'));
    screen.txtComment1.text += 'b';
    EXPECT_TRUE(type('c'));
    EXPECT_EQ(screen.news().text, "A comment has room for 4000 characters.");
    EXPECT_TRUE(press(ui::Key::Enter));
    EXPECT_FALSE(press(ui::Key::Backspace));
    screen.txtComment1.selectionLength = 1;
    EXPECT_FALSE(type('c')); // it replaces the selected one
}

} // namespace
} // namespace tallyhoop::test
