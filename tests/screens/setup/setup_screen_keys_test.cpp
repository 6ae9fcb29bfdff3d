// tests/screens/setup/setup_screen_keys_test.cpp - the setup screen: picking team names by keyboard and mouse.
#include "screens/setup/setup_fixture.h"

#include "ui/list_navigation.h"

namespace tallyhoop::test {
namespace {

using ui::Key;

constexpr ui::Colour kLightGreen{0x80, 0xFF, 0x80};

class SetupScreenKeys : public SetupFixture
{
};

TEST_F(SetupScreenKeys, TypingALetterPutsTheFirstMatchingNameIntoTheBox)
{
    SetupScreen& screen = loaded();
    focus(screen.txtRegion[3]); // holds TEAM4, which the first letter replaces
    EXPECT_TRUE(type('d'));
    EXPECT_EQ(screen.txtRegion[3].text, "Duke");
    EXPECT_EQ(screen.txtRegion[3].selectionStart, 1);
    EXPECT_EQ(screen.txtRegion[3].selectionLength, 3);
    EXPECT_EQ(screen.lstTeamNames.selected, 1);
    type("uq");
    EXPECT_EQ(screen.txtRegion[3].text, "Duquesne");
    EXPECT_EQ(screen.lstTeamNames.selected, 2);
    EXPECT_TRUE(press(Key::Backspace));
    EXPECT_EQ(screen.txtRegion[3].text, "Duke");
}

TEST_F(SetupScreenKeys, ACharacterThatLeadsNowhereChangesNothing)
{
    SetupScreen& screen = loaded();
    type('k');
    EXPECT_TRUE(type('x'));
    EXPECT_EQ(screen.txtRegion[0].text, "Kansas");
    EXPECT_EQ(screen.txtRegion[0].selectionStart, 1);
    EXPECT_EQ(screen.lstTeamNames.selected, 5);
}

TEST_F(SetupScreenKeys, EnterLeavesNothingSelectedInTheBox)
{
    SetupScreen& screen = loaded();
    type('k');
    ASSERT_GT(screen.txtRegion[0].selectionLength, 0);
    press(Key::Enter);
    EXPECT_EQ(screen.txtRegion[0].text, "Kansas");
    EXPECT_EQ(screen.txtRegion[0].selectionLength, 0);
    EXPECT_EQ(screen.focused, &screen.txtRegion[1]);
}

TEST_F(SetupScreenKeys, AKeyThatIsSwallowedSaysWhyUntilOneFinds)
{
    SetupScreen& screen = loaded();
    type("kx");
    EXPECT_EQ(screen.news().text, "No name of the list begins with \"Kx\".");
    type('a');
    EXPECT_EQ(screen.news().text, "");
    EXPECT_EQ(screen.txtRegion[0].text, "Kansas");
    type('\xE9');
    EXPECT_EQ(screen.news().text, "The search knows plain letters only: choose such a name in the list.");
}

TEST_F(SetupScreenKeys, ADoubleClickInTheListIsEnter)
{
    SetupScreen& screen = loaded();
    focus(screen.txtRegion[3]);
    pressRow(4);
    screen.lstTeamNames.doubleClicked();
    settle();
    EXPECT_EQ(screen.txtRegion[3].text, "Iowa St.");
    EXPECT_EQ(screen.focused, &screen.txtRegion[4]);
    EXPECT_EQ(screen.txtRegion[3].background, std::nullopt);
    EXPECT_EQ(screen.lstTeamNames.selected, std::nullopt);
}

TEST_F(SetupScreenKeys, AClickSelectsTheWholeNameAsLongAsNamesArePicked)
{
    SetupScreen& screen = loaded();
    EXPECT_TRUE(screen.txtRegion[9].selectedByClick);
    click(screen.cmdOverride);
    EXPECT_FALSE(screen.txtRegion[9].selectedByClick);
}

TEST_F(SetupScreenKeys, AnAccentedLetterIsDiscardedWhileSelecting)
{
    SetupScreen& screen = loaded();
    EXPECT_TRUE(type('\xE9'));
    EXPECT_EQ(screen.txtRegion[0].text, "TEAM1");
}

TEST_F(SetupScreenKeys, DeleteEmptiesTheBoxWhileSelecting)
{
    SetupScreen& screen = loaded();
    type("iowa");
    EXPECT_TRUE(press(Key::Delete));
    EXPECT_EQ(screen.txtRegion[0].text, "");
}

TEST_F(SetupScreenKeys, BackspaceInFrontOfTheWholeNameEmptiesTheBox)
{
    SetupScreen& screen = loaded();
    EXPECT_TRUE(press(Key::Backspace));
    EXPECT_EQ(screen.txtRegion[0].text, "");
}

TEST_F(SetupScreenKeys, WhatACutLeavesBehindIsNotKeptUnlessTheListHoldsIt)
{
    SetupScreen& screen = loaded();
    edit(screen.txtRegion[0], "Du"); // the rest was cut
    EXPECT_EQ(screen.txtRegion[0].text, "");
    edit(screen.txtRegion[0], "Iowa"); // " St." was cut
    EXPECT_EQ(screen.txtRegion[0].text, "Iowa");
}

TEST_F(SetupScreenKeys, ShortcutsAreNotTakenForText)
{
    SetupScreen& screen = loaded();
    EXPECT_FALSE(screen.keyPressed(screen.txtRegion[0], {.key = Key::Character, .character = 'x', .control = true}));
    EXPECT_FALSE(screen.keyPressed(screen.txtRegion[0], {.key = Key::Character, .character = 'd', .alt = true}));
    EXPECT_EQ(screen.txtRegion[0].text, "TEAM1");
}

TEST_F(SetupScreenKeys, UpInBoxFiveEmptiesItUntilEnterInTheListFillsItAndMovesOn)
{
    SetupScreen& screen = loaded();
    focus(screen.txtRegion[5]);
    EXPECT_TRUE(press(Key::Up));
    EXPECT_EQ(screen.txtRegion[5].text, "");
    EXPECT_EQ(screen.txtRegion[5].background, kLightGreen);
    EXPECT_EQ(screen.focused, &screen.lstTeamNames);
    EXPECT_EQ(screen.lstTeamNames.selected, 0); // none was selected

    press(Key::Down);
    press(Key::Down);
    press(Key::Up);
    EXPECT_EQ(screen.lstTeamNames.selected, 1);
    EXPECT_EQ(screen.txtRegion[5].text, "");

    EXPECT_TRUE(press(Key::Enter));
    EXPECT_EQ(screen.txtRegion[5].text, "Duke");
    EXPECT_EQ(screen.focused, &screen.txtRegion[6]);
    EXPECT_FALSE(screen.lstTeamNames.selected);
    EXPECT_FALSE(screen.txtRegion[5].background); // the list lost the focus
    pressRow(0);
    EXPECT_EQ(screen.txtRegion[6].background, kLightGreen); // the next one to be filled
}

TEST_F(SetupScreenKeys, ForwardedKeysMoveTheListAsIfPressedInIt)
{
    std::string list = "*START*\r\nAkron\r\nDuke\r\nDuquesne\r\nIowa\r\nIowa St.\r\nKansas\r\nLSU\r\nOhio\r\nTexas\r\n";
    for (int i = 10; i < 50; ++i)
        list += "Zteam" + std::to_string(i) + "\r\n";
    files.put("NCAALIST.THS", list + "*END*\r\n");
    for (const Key key : {Key::Up, Key::Down, Key::PageUp, Key::PageDown}) {
        SetupScreen& screen = loaded();
        ASSERT_EQ(screen.lstTeamNames.rows.size(), 49U);
        focus(screen.txtRegion[2]);
        type('t'); // selects Texas, row 8
        ASSERT_EQ(screen.lstTeamNames.selected, 8);
        press(key);
        const auto forwarded = screen.lstTeamNames.selected;

        focus(screen.lstTeamNames);
        screen.lstTeamNames.selected = 8;
        EXPECT_TRUE(press(key));
        EXPECT_EQ(screen.lstTeamNames.selected, forwarded);
        EXPECT_NE(forwarded, 8);
    }
}

TEST_F(SetupScreenKeys, PageKeysAreForwardedToo)
{
    SetupScreen& screen = loaded();
    press(Key::PageDown);
    EXPECT_EQ(screen.txtRegion[0].text, "");
    EXPECT_EQ(screen.focused, &screen.lstTeamNames);
    EXPECT_EQ(screen.lstTeamNames.selected, 0);
    press(Key::PageDown);
    EXPECT_EQ(screen.lstTeamNames.selected, 8); // the last of nine
}

TEST_F(SetupScreenKeys, UpAndDownAreDiscardedInOtherBoxesButNotInTheComments)
{
    SetupScreen& screen = loaded();
    for (ui::TextBox* box : {&screen.TxtInfo[0], &screen.TxtInfo[4], &screen.txtInfo6[0]}) {
        focus(*box);
        EXPECT_TRUE(press(Key::Up));
        EXPECT_TRUE(press(Key::Down));
        EXPECT_FALSE(press(Key::PageUp));
        EXPECT_EQ(screen.focused, box);
    }
    for (ui::TextBox* box : {&screen.txtComment1, &screen.txtComment2}) {
        focus(*box);
        EXPECT_FALSE(press(Key::Up));
        EXPECT_FALSE(press(Key::Down));
    }
    focus(screen.cmdFinalize);
    EXPECT_FALSE(press(Key::Down));
}

TEST_F(SetupScreenKeys, LeftAndRightAreDiscardedInTheList)
{
    SetupScreen& screen = loaded();
    pressRow(4);
    EXPECT_TRUE(press(Key::Left));
    EXPECT_TRUE(press(Key::Right));
    EXPECT_EQ(screen.lstTeamNames.selected, 4);
    EXPECT_FALSE(press(Key::Home));
}

TEST_F(SetupScreenKeys, AMousePressOnTheListMarksTheBoxThatEnterFills)
{
    SetupScreen& screen = loaded();
    focus(screen.txtRegion[9]);
    pressRow(6);
    EXPECT_EQ(screen.txtRegion[9].background, kLightGreen);
    EXPECT_EQ(screen.txtRegion[9].text, "TEAM10"); // not emptied by the mouse
    press(Key::Enter);
    EXPECT_EQ(screen.txtRegion[9].text, "LSU");
    EXPECT_FALSE(screen.txtRegion[9].background);
    EXPECT_EQ(screen.focused, &screen.txtRegion[10]);
}

TEST_F(SetupScreenKeys, TheMarkGoesWhenTheListLosesTheFocus)
{
    SetupScreen& screen = loaded();
    focus(screen.txtRegion[9]);
    pressRow(6);
    focus(screen.txtRegion[20]);
    EXPECT_FALSE(screen.txtRegion[9].background);
    EXPECT_FALSE(screen.txtRegion[20].background);
    EXPECT_FALSE(screen.lstTeamNames.selected);
    pressRow(6);
    press(Key::Enter);
    EXPECT_EQ(screen.txtRegion[20].text, "LSU");
}

TEST_F(SetupScreenKeys, TheListFillsTheLastTeamBoxAlsoAfterAnotherBoxHadTheFocus)
{
    SetupScreen& screen = loaded();
    focus(screen.txtRegion[9]);
    focus(screen.TxtInfo[1]);
    pressRow(6);
    press(Key::Enter);
    EXPECT_EQ(screen.txtRegion[9].text, "LSU");
}

TEST_F(SetupScreenKeys, TheFocusLeavesATeamBoxsTextAsItWas)
{
    SetupScreen& screen = loaded();
    focus(screen.txtRegion[1]);
    focus(screen.txtRegion[2]);
    EXPECT_EQ(teams(1, 2), (std::vector<std::string>{"TEAM2", "TEAM3"}));
}

TEST_F(SetupScreenKeys, EnterMovesToTheNextTeamBoxAndFromTheLastToTheFirst)
{
    SetupScreen& screen = loaded();
    type("o");
    EXPECT_TRUE(press(Key::Enter));
    EXPECT_EQ(screen.txtRegion[0].text, "Ohio");
    EXPECT_EQ(screen.focused, &screen.txtRegion[1]);
    EXPECT_FALSE(screen.lstTeamNames.selected);
    screen.unloading(); // asks about names typed freely
    EXPECT_TRUE(dialogs().shown.empty());

    focus(screen.txtRegion[63]);
    press(Key::Enter);
    EXPECT_EQ(screen.focused, &screen.txtRegion[0]);
}

TEST_F(SetupScreenKeys, EnterInOtherControlsIsPassedOn)
{
    SetupScreen& screen = loaded();
    for (ui::Control* control : std::initializer_list<ui::Control*>{&screen.TxtInfo[0], &screen.txtComment1,
                                                                    &screen.txtInfo6[2], &screen.cmdClear}) {
        focus(*control);
        EXPECT_FALSE(press(Key::Enter));
        EXPECT_EQ(screen.focused, control);
    }
}

TEST_F(SetupScreenKeys, AWholeFieldCanBeTypedWithEnterAfterEachName)
{
    SetupScreen& screen = loaded();
    click(screen.cmdClear);
    for (int i = 0; i < 64; ++i) {
        type(i % 2 == 0 ? "du" : "te");
        press(Key::Enter);
    }
    EXPECT_EQ(teams(0, 2), (std::vector<std::string>{"Duke", "Texas"}));
    EXPECT_EQ(teams(62, 2), (std::vector<std::string>{"Duke", "Texas"}));
    EXPECT_EQ(screen.focused, &screen.txtRegion[0]);
}

TEST_F(SetupScreenKeys, OverrideModeLeavesKeysToTheBox)
{
    SetupScreen& screen = loaded();
    click(screen.cmdOverride);
    for (const Key key : {Key::Up, Key::Down, Key::PageUp, Key::PageDown, Key::Backspace, Key::Delete})
        EXPECT_FALSE(press(key));
    EXPECT_FALSE(type('z'));
    EXPECT_EQ(screen.focused, &screen.txtRegion[0]);
    EXPECT_EQ(screen.txtRegion[0].text, "TEAM1");
    edit(screen.txtRegion[0], "Any text");
    EXPECT_EQ(screen.txtRegion[0].text, "Any text");
}

} // namespace
} // namespace tallyhoop::test
