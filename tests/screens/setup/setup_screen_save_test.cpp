// tests/screens/setup/setup_screen_save_test.cpp - the setup screen: finalizing the field and saving it.
#include "screens/setup/setup_fixture.h"

namespace tallyhoop::test {
namespace {

using ui::Answer;

constexpr const char* kBlank = "You have selected FINALIZE and there are blank fields , this MUST be corrected!";

class SetupScreenSave : public SetupFixture
{
protected:
    /// With a field without doubtful teams.
    SetupScreen& loaded()
    {
        SetupFixture::loaded();
        for (std::size_t i = 0; i < 64; ++i)
            made->txtRegion[i].text = "Team " + std::to_string(i);
        settle();
        return *made;
    }

    void finalizeAndSave()
    {
        if (!isFinalizing())
            click(made->cmdFinalize);
        made->mnuSaveStartingField.click();
    }

    /// The save was refused: one message, the focus on the box, nothing written.
    void expectRefusal(const ui::Control& box, const std::string& caption, const std::string& text)
    {
        EXPECT_EQ(dialogs().shown, (std::vector<ui::Message>{{caption, text, ui::Buttons::Ok, ui::Icon::Exclamation}}));
        EXPECT_EQ(made->focused, &box);
        EXPECT_FALSE(files.has("POOLSTART.THS"));
        EXPECT_TRUE(screens.unloads.empty());
        EXPECT_TRUE(isFinalizing());
        EXPECT_EQ(made->news().text, "Not saved.");
    }
};

/// The file of a field whose team i (0..63) is "Team i", with the given tail after the payoffs.
std::string expectedFile(const std::string& payoffs, const std::string& seeds, const std::string& tail)
{
    std::string bytes = "*START*\r\n";
    for (int i = 0; i < 64; ++i)
        bytes += "Team " + std::to_string(i) + "\r\n";
    return bytes + "Pool of 2000\r\nWest\r\nMidwest\r\nEast\r\nSouth\r\n" + payoffs + seeds + tail + "*END*\r\n";
}

const std::string kDefaultSeeds =
    " 1\r\n16\r\n 8\r\n 9\r\n 5\r\n12\r\n 4\r\n13\r\n 6\r\n11\r\n 3\r\n14\r\n 7\r\n10\r\n 2\r\n15\r\n";

void fillIn(SetupScreen& screen)
{
    for (std::size_t i = 0; i < 64; ++i)
        screen.txtRegion[i].text = "Team " + std::to_string(i);
    const char* titles[] = {"Pool of 2000", "West", "Midwest", "East", "South"};
    for (std::size_t i = 0; i < 5; ++i)
        screen.TxtInfo[i].text = titles[i];
    const char* payoffs[] = {"1", "2", "3x", "99", "1.5", "10"};
    for (std::size_t i = 0; i < 6; ++i)
        screen.txtInfo6[i].text = payoffs[i];
    screen.txtComment1.text = "one\r\ntwo\r\n";
    screen.txtComment2.text = "";
}

TEST_F(SetupScreenSave, WritesEveryTextAsItIsInItsBox)
{
    SetupScreen& screen = loaded();
    fillIn(screen);
    screen.mnuSaveStartingField.click();
    EXPECT_EQ(files.get("POOLSTART.THS"),
              expectedFile("1\r\n2\r\n3x\r\n99\r\n1.5\r\n10\r\n", kDefaultSeeds, "one|two|\r\n\r\n0\r\n"));
    EXPECT_TRUE(dialogs().shown.empty());
    EXPECT_TRUE(screens.unloads.empty()); // the screen stays open
}

TEST_F(SetupScreenSave, WhatWasWrittenIsShownAgain)
{
    fillIn(loaded());
    made->mnuSaveStartingField.click();
    const SetupScreen& again = loaded();
    EXPECT_EQ(again.txtRegion[63].text, "Team 63");
    EXPECT_EQ(again.txtInfo6[2].text, "3x");
    EXPECT_EQ(again.txtComment1.text, "one\r\ntwo\r\n");
}

TEST_F(SetupScreenSave, AVerticalBarTypedIntoACommentComesBackAsALineBreak)
{
    loaded().txtComment2.text = "a|b";
    made->mnuSaveStartingField.click();
    EXPECT_EQ(loaded().txtComment2.text, "a\r\nb");
}

TEST_F(SetupScreenSave, WithoutFinalizeEmptyNamesAndAPayoffOfZeroAreSavedWithoutAMessage)
{
    SetupScreen& screen = loaded();
    click(screen.cmdClear);
    screen.txtInfo6[0].text = "0";
    screen.TxtInfo[0].text = "";
    screen.mnuSaveStartingField.click();
    EXPECT_TRUE(dialogs().shown.empty());
    const std::string bytes = files.get("POOLSTART.THS");
    EXPECT_TRUE(bytes.starts_with("*START*\r\n\r\n\r\n"));
    EXPECT_NE(bytes.find("\r\n0\r\n2\r\n4\r\n8\r\n12\r\n16\r\n"), std::string::npos);
}

TEST_F(SetupScreenSave, FinalizeArmsTheNextSaveAndDisablesItself)
{
    SetupScreen& screen = loaded();
    click(screen.cmdFinalize);
    EXPECT_FALSE(screen.cmdFinalize.enabled);
    EXPECT_FALSE(files.has("POOLSTART.THS"));
    EXPECT_NE(screen.status.find("Finalize Tournament takes effect with File, Save."), std::string::npos);
}

TEST_F(SetupScreenSave, EnterPressedTwiceOnFinalizeEmptiesNoTeamBox)
{
    SetupScreen& screen = loaded();
    const std::vector<std::string> before = teams(0, 64);
    click(screen.cmdFinalize);
    EXPECT_EQ(screen.focused, &screen.txtInfo6[5]);
    press(ui::Key::Enter);
    EXPECT_EQ(teams(0, 64), before);
}

TEST_F(SetupScreenSave, FinalizingRefusesAnEmptyTeamName)
{
    SetupScreen& screen = loaded();
    screen.txtRegion[40].text = "";
    screen.txtRegion[41].text = "";
    finalizeAndSave();
    expectRefusal(screen.txtRegion[40], "Initial TEAM FIELD NAMES are BLANK", kBlank);
}

TEST_F(SetupScreenSave, FinalizingRefusesABlankTitle)
{
    SetupScreen& screen = loaded();
    screen.TxtInfo[0].text = " ";
    screen.txtInfo6[0].text = "0"; // checked later
    finalizeAndSave();
    expectRefusal(screen.TxtInfo[0], "TITLE or REGION TITLES are BLANK", kBlank);
}

TEST_F(SetupScreenSave, FinalizingRefusesABlankRegionTitle)
{
    SetupScreen& screen = loaded();
    screen.TxtInfo[4].text = "";
    finalizeAndSave();
    expectRefusal(screen.TxtInfo[4], "TITLE or REGION TITLES are BLANK", kBlank);
}

TEST_F(SetupScreenSave, FinalizingRefusesPayoffsOutsideOneToNinetyNine)
{
    SetupScreen& screen = loaded();
    screen.txtInfo6[5].text = "100";
    finalizeAndSave();
    expectRefusal(screen.txtInfo6[5], "PAYOFF POINTS / ROUND are INVALID",
                  "You have selected FINALIZE and the PAYOFF POINTS / ROUND fields must be between 1 & 99!");
}

TEST_F(SetupScreenSave, FinalizingAcceptsPayoffsByTheirLeadingNumber)
{
    SetupScreen& screen = loaded();
    fillIn(screen); // 3x, 99 and 1.5 among them
    dialogs().answer(Answer::Ok);
    finalizeAndSave();
    EXPECT_EQ(files.get("POOLSTART.THS"),
              expectedFile("1\r\n2\r\n3x\r\n99\r\n1.5\r\n10\r\n", kDefaultSeeds, "one|two|\r\n\r\n1\r\n"));
}

TEST_F(SetupScreenSave, AfterTheLastCorrectionTheSaveGoesThrough)
{
    SetupScreen& screen = loaded();
    screen.txtRegion[2].text = "";
    finalizeAndSave();
    screen.txtRegion[2].text = "Duke";
    dialogs().answer(Answer::Ok);
    finalizeAndSave();
    EXPECT_TRUE(files.has("POOLSTART.THS"));
}

TEST_F(SetupScreenSave, FinalizingAsksFirstAndThenShowsTheBoard)
{
    loaded();
    dialogs().answer(Answer::Ok);
    finalizeAndSave();
    EXPECT_EQ(dialogs().shown,
              (std::vector<ui::Message>{
                  {"",
                   "ARE YOU FINISHED WITH ALL SETUP OPTIONS??\r\n"
                   "You selected the \"Finalize Tournament\" option and then selected to save this SETUP File.\r\n"
                   "\r\n"
                   "If you complete this option, you will not be able to make any addtional Setup changes.\r\n"
                   "THE SETUP FUNCTION FOR THE TOURNAMENT WILL BE CONSIDERED FINAL!\r\n"
                   "\r\n"
                   "If you ARE FINISHED with your setup, then this is fine.  Select OK and the file will be saved.\r\n"
                   "\r\n"
                   "Otherwise, select CANCEL and the \"Finalize Tournament\" option will be reset.",
                   ui::Buttons::OkCancel, ui::Icon::None}}));
    EXPECT_EQ(screens.loads, std::vector{ScreenKind::Board});
    EXPECT_EQ(screens.unloads, std::vector{ScreenKind::Setup});
    EXPECT_NE(files.get("POOLSTART.THS").find("\r\n1\r\n*END*\r\n"), std::string::npos);
}

TEST_F(SetupScreenSave, CancelAtTheQuestionWritesNothingAndTheNextSaveWritesZero)
{
    SetupScreen& screen = loaded();
    dialogs().answer(Answer::Cancel);
    finalizeAndSave();
    EXPECT_FALSE(files.has("POOLSTART.THS"));
    EXPECT_EQ(screen.status.find("Finalize Tournament takes effect"), std::string::npos);
    EXPECT_TRUE(screen.cmdFinalize.enabled);
    EXPECT_TRUE(screens.unloads.empty());

    screen.mnuSaveStartingField.click();
    EXPECT_EQ(dialogs().shown.size(), 1U);
    EXPECT_NE(files.get("POOLSTART.THS").find("\r\n0\r\n*END*\r\n"), std::string::npos);
}

TEST_F(SetupScreenSave, ASaveOfAFinalizedFieldWithoutPressingFinalizeWritesZero)
{
    loaded();
    dialogs().answer(Answer::Ok);
    finalizeAndSave();
    loaded().mnuSaveStartingField.click();
    EXPECT_NE(files.get("POOLSTART.THS").find("\r\n0\r\n*END*\r\n"), std::string::npos);
}

TEST_F(SetupScreenSave, DemoModeRefusesTheSave)
{
    files.put("TALLYHOOP.INI", "1\r\n");
    loaded().mnuSaveStartingField.click();
    EXPECT_EQ(dialogs().shown, (std::vector<ui::Message>{{"DEMO MODE SAVE ATTEMPT",
                                                          "You are attempting to save the Setup information while\r\n"
                                                          "you are in DEMO Mode.  This is not allowed!\r\n"
                                                          " \r\n"
                                                          "See Help for information on DEMO MODE or select\r\n"
                                                          "Menu: MENU Mode / DEMO-Reset to exit DEMO MODE.",
                                                          ui::Buttons::Ok, ui::Icon::Exclamation, "demo"}}));
    EXPECT_FALSE(files.has("POOLSTART.THS"));
}

TEST_F(SetupScreenSave, InDemoModeTheFinalizeQuestionStillComesBeforeTheRefusal)
{
    files.put("TALLYHOOP.INI", "1\r\n");
    SetupScreen& screen = loaded();
    dialogs().answer(Answer::Ok);
    finalizeAndSave();
    EXPECT_EQ(dialogs().captionsShown(), (std::vector<std::string>{"", "DEMO MODE SAVE ATTEMPT"}));
    EXPECT_NE(screen.status.find("Finalize Tournament takes effect"), std::string::npos); // as it was
    EXPECT_FALSE(screen.cmdFinalize.enabled);
    EXPECT_FALSE(files.has("POOLSTART.THS"));
    EXPECT_TRUE(screens.unloads.empty());
}

TEST_F(SetupScreenSave, FinalizingNamesDoubtfulTeamsBeforeItsQuestion)
{
    SetupScreen& screen = loaded();
    screen.TxtInfo[2].text = "Midwest";
    screen.txtRegion[5].text = "Duke";
    screen.txtRegion[20].text = "duke "; // region 2, row 5
    screen.txtRegion[63].text = "TEAM64";
    dialogs().answer(Answer::Ok).answer(Answer::Ok);
    finalizeAndSave();
    ASSERT_EQ(dialogs().shown.size(), 2U);
    EXPECT_EQ(dialogs().shown[0],
              (ui::Message{"Teams of the Field",
                           "Some teams of this field may not be what you mean:\r\n"
                           " \r\n"
                           "Duke is in the field 2 times: West Region, row 6; Midwest, row 5.\r\n"
                           "Not named yet: TEAM64 (South Region, row 16).\r\n"
                           " \r\n"
                           "Teams are told apart by their names only, in picks as in results.\r\n"
                           "OK goes on all the same.  CANCEL leads to the first of them, and the\r\n"
                           "\"Finalize Tournament\" option will be reset.",
                           ui::Buttons::OkCancel, ui::Icon::Question, "setup"}));
    EXPECT_TRUE(dialogs().shown[1].text.starts_with("ARE YOU FINISHED"));
    EXPECT_NE(files.get("POOLSTART.THS").find("\r\n1\r\n*END*\r\n"), std::string::npos);
}

TEST_F(SetupScreenSave, CancelAtTheDoubtfulTeamsLeadsToTheFirstOfThemAndWritesNothing)
{
    SetupScreen& screen = loaded();
    screen.txtRegion[5].text = screen.txtRegion[20].text = "Duke";
    screen.txtRegion[40].text = "team7";
    dialogs().answer(Answer::Cancel);
    finalizeAndSave();
    EXPECT_EQ(dialogs().captionsShown(), std::vector<std::string>{"Teams of the Field"});
    EXPECT_EQ(screen.focused, &screen.txtRegion[5]);
    screen.showState();
    EXPECT_TRUE(screen.cmdFinalize.enabled);
    EXPECT_FALSE(files.has("POOLSTART.THS"));
}

TEST_F(SetupScreenSave, ASaveWithoutFinalizingAsksNothingAboutDoubtfulTeams)
{
    SetupScreen& screen = loaded();
    screen.txtRegion[5].text = screen.txtRegion[20].text = "Duke";
    screen.mnuSaveStartingField.click();
    EXPECT_TRUE(dialogs().shown.empty());
    EXPECT_TRUE(files.has("POOLSTART.THS"));
}

TEST_F(SetupScreenSave, AFailingWriteKeepsEverythingOnScreen)
{
    SetupScreen& screen = loaded();
    fillIn(screen);
    std::filesystem::create_directories(files.path() / "POOLSTART.THS" / "in the way");
    dialogs().answer(Answer::Ok);
    finalizeAndSave();
    ASSERT_EQ(dialogs().shown.size(), 2U);
    EXPECT_EQ(dialogs().shown[1].caption, "** ERROR IN WRITING FILE **");
    EXPECT_NE(dialogs().shown[1].text.find(folder.shownPathOf("POOLSTART.THS")), std::string::npos);
    EXPECT_TRUE(screens.unloads.empty());
    EXPECT_EQ(screen.txtRegion[0].text, "Team 0");
    EXPECT_NE(screen.status.find("not saved yet"), std::string::npos);
}

TEST_F(SetupScreenSave, AFinalizingSaveAlsoAsksAboutChangedTeamNames)
{
    SetupScreen& screen = loaded();
    click(screen.cmdOverride);
    edit(screen.txtRegion[0], "Utopia");
    press(ui::Key::Enter);
    dialogs().answer(Answer::Ok).answer(Answer::Yes);
    finalizeAndSave();
    EXPECT_EQ(dialogs().captionsShown(), (std::vector<std::string>{"", "TEAM NAMES Changed / Added"}));
    EXPECT_NE(files.get("NCAALIST.THS").find("\r\nUtopia\r\n"), std::string::npos);
    EXPECT_EQ(screens.unloads, std::vector{ScreenKind::Setup});
}

} // namespace
} // namespace tallyhoop::test
