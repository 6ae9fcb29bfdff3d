// tests/screens/setup/setup_screen_test.cpp - the setup screen: what it shows when opened, its modes, leaving it.
#include "screens/setup/setup_fixture.h"

#include <algorithm>

namespace tallyhoop::test {
namespace {

using ui::Answer;

class SetupScreenTest : public SetupFixture
{
};

/// A setup file with telling texts: "T1".."T64", seeds "S1".."S16".
std::string tellingSetup(const std::string& finalized = "0")
{
    std::string bytes = "*START*\r\n";
    for (int i = 1; i <= 64; ++i)
        bytes += "T" + std::to_string(i) + "\r\n";
    bytes += "Our Pool\r\nR1\r\nR2\r\nR3\r\nR4\r\n3\r\n5\r\n7\r\n9\r\n11\r\n13\r\n";
    for (int i = 1; i <= 16; ++i)
        bytes += "S" + std::to_string(i) + "\r\n";
    return bytes + "first|second\r\nanother\r\n" + finalized + "\r\n*END*\r\n";
}

TEST_F(SetupScreenTest, HasTheColourOfItsListFromTheBeginning)
{
    const SetupScreen screen{folder, computer.services, screens, field};
    EXPECT_EQ(screen.lstTeamNames.background, (ui::Colour{0x80, 0xFF, 0x80}));
}

TEST_F(SetupScreenTest, HasTheTabOrderThatItsKeyRulesRelyOn)
{
    const SetupScreen screen{folder, computer.services, screens, field};
    EXPECT_EQ(screen.controlAtTab(0), &screen.txtRegion[0]);
    EXPECT_EQ(screen.controlAtTab(63), &screen.txtRegion[63]);
    EXPECT_EQ(screen.controlAtTab(64), &screen.TxtInfo[1]);
    EXPECT_EQ(screen.controlAtTab(67), &screen.TxtInfo[4]);
    EXPECT_EQ(screen.controlAtTab(68), &screen.TxtInfo[0]);
    EXPECT_EQ(screen.controlAtTab(69), &screen.txtComment1);
    EXPECT_EQ(screen.controlAtTab(70), &screen.txtComment2);
    EXPECT_EQ(screen.controlAtTab(71), &screen.txtInfo6[0]);
    EXPECT_EQ(screen.controlAtTab(76), &screen.txtInfo6[5]);
    EXPECT_EQ(screen.controlAtTab(77), &screen.cmdFinalize);
    EXPECT_EQ(screen.controlAtTab(78), &screen.lstTeamNames);
}

TEST_F(SetupScreenTest, ReportsADamagedFieldBeforeADamagedTeamList)
{
    files.put("POOLSTART.THS", "damaged");
    files.put("NCAALIST.THS", "damaged");
    loaded();
    ASSERT_EQ(dialogs().shown.size(), 2u);
    EXPECT_EQ(dialogs().shown[0].text, "Problem with file, will use default values");
    EXPECT_EQ(dialogs().shown[1].text,
              "Problem locating or Reading NCAALIST.THS file\r\n\r\nMODULE: modTallyhoop - ReadTeamNames");
}

TEST_F(SetupScreenTest, ShowsTheSetupFile)
{
    files.put("POOLSTART.THS", tellingSetup());
    const SetupScreen& screen = loaded();
    EXPECT_EQ(screen.txtRegion[0].text, "T1");
    EXPECT_EQ(screen.txtRegion[63].text, "T64");
    EXPECT_EQ(screen.TxtInfo[0].text, "Our Pool");
    EXPECT_EQ(screen.TxtInfo[1].text, "R1");
    EXPECT_EQ(screen.TxtInfo[4].text, "R4");
    EXPECT_EQ(screen.txtInfo6[0].text, "3");
    EXPECT_EQ(screen.txtInfo6[5].text, "13");
    EXPECT_EQ(screen.txtComment1.text, "first\r\nsecond");
    EXPECT_EQ(screen.txtComment2.text, "another");
    for (const std::size_t region : {0U, 1U, 2U, 3U}) {
        EXPECT_EQ(screen.lblSeed[16 * region].text, "S1");
        EXPECT_EQ(screen.lblSeed[16 * region + 15].text, "S16");
    }
    EXPECT_EQ(field.seeds[15], "S16");
    EXPECT_EQ(field.teams[TeamRow{63}], "T64"); // what the board will show
    EXPECT_TRUE(dialogs().shown.empty());
}

TEST_F(SetupScreenTest, ShowsTheDefaultsWithoutASetupFile)
{
    const SetupScreen& screen = loaded();
    EXPECT_EQ(screen.txtRegion[0].text, "TEAM1");
    EXPECT_EQ(screen.TxtInfo[0].text, "2001 NCAA Tournament");
    EXPECT_EQ(screen.lblSeed[0].text, " 1");
    EXPECT_EQ(screen.lblSeed[17].text, "16");
    EXPECT_EQ(screen.txtComment1.text, "");
    EXPECT_FALSE(isFinalizing());
    EXPECT_FALSE(isOverridden());
    pressRow(1);
    EXPECT_TRUE(screen.txtRegion[0].background); // it is the one that the list fills
}

TEST_F(SetupScreenTest, ListsTheTeamNamesSortedUpToTheFirstEmptyOne)
{
    files.put("NCAALIST.THS", crlf({"*START*", "Texas", "akron", "Duke", "", "Iowa", "*END*"}));
    EXPECT_EQ(loaded().lstTeamNames.rows, (std::vector<std::string>{"akron", "Duke", "Texas"}));
}

TEST_F(SetupScreenTest, StaysUsableWithoutATeamListAndSaysHowNamesAreTyped)
{
    const SetupScreen& screen = loadedAsIs();
    ASSERT_EQ(dialogs().shown.size(), 1U);
    EXPECT_EQ(dialogs().shown[0].caption, "");
    EXPECT_EQ(dialogs().shown[0].text, "Problem locating or Reading NCAALIST.THS file\r\n\r\nMODULE: modTallyhoop - "
                                       "ReadTeamNames");
    EXPECT_TRUE(screen.lstTeamNames.rows.empty());
    EXPECT_NE(screen.status.find("Override Selecting Team Names"), std::string::npos);
}

TEST_F(SetupScreenTest, KnowsNothingOfNamesTypedOnAnEarlierScreen)
{
    SetupScreen& earlier = loaded();
    click(earlier.cmdOverride);
    edit(earlier.txtRegion[0], "Old");
    press(ui::Key::Enter);
    loaded().mnuEnd.click();
    EXPECT_TRUE(dialogs().shown.empty());
}

TEST_F(SetupScreenTest, KeepsOfTheOpenFieldWhatAShortFileLacks)
{
    field.comment1 = "the fee";
    files.put("POOLSTART.THS", crlf({"*START*", "Duke", "*END*"}));
    const SetupScreen& screen = loaded();
    EXPECT_EQ(screen.txtRegion[0].text, "Duke");
    EXPECT_EQ(screen.txtComment1.text, "the fee");
}

TEST_F(SetupScreenTest, LeavesTheOpenFieldAsTheFileHasIt)
{
    SetupScreen& screen = loaded();
    edit(screen.TxtInfo[0], "Changed");
    screen.mnuSaveStartingField.click();
    EXPECT_EQ(field, defaultField()); // the board reads the file anew
}

TEST_F(SetupScreenTest, OffersDemoModeOnlyWhileTheFieldIsNotFinalized)
{
    files.put("POOLSTART.THS", tellingSetup("0"));
    const SetupScreen& open = loaded();
    EXPECT_TRUE(open.mnuDemoSet.enabled);
    EXPECT_FALSE(open.mnuDemoReset.enabled);
    EXPECT_FALSE(open.lblDemoMode.visible);

    files.put("POOLSTART.THS", tellingSetup("1"));
    const SetupScreen& finalized = loaded();
    EXPECT_FALSE(finalized.mnuDemoSet.enabled);
    EXPECT_FALSE(finalized.mnuDemoReset.enabled);
    EXPECT_FALSE(isFinalizing()); // whatever the file says
}

TEST_F(SetupScreenTest, ReadsTheFinalizedFlagAsANumber)
{
    files.put("POOLSTART.THS", tellingSetup("no"));
    EXPECT_TRUE(loaded().mnuDemoSet.enabled);
    files.put("POOLSTART.THS", tellingSetup(" 1x"));
    EXPECT_FALSE(loaded().mnuDemoSet.enabled);
}

TEST_F(SetupScreenTest, ShowsThatDemoModeIsOn)
{
    files.put("TALLYHOOP.INI", "1\r\n");
    const SetupScreen& screen = loaded();
    EXPECT_FALSE(screen.mnuDemoSet.enabled);
    EXPECT_TRUE(screen.mnuDemoReset.enabled);
    EXPECT_TRUE(screen.lblDemoMode.visible);
}

TEST_F(SetupScreenTest, OverrideModeDisablesTheListAndItsButtonsAndReturnsToTheTeamBox)
{
    SetupScreen& screen = loaded();
    focus(screen.txtRegion[7]);
    click(screen.cmdOverride);
    EXPECT_TRUE(isOverridden());
    EXPECT_EQ(screen.cmdOverride.caption, "Continue &Selecting");
    EXPECT_FALSE(screen.lstTeamNames.enabled);
    EXPECT_FALSE(screen.cmdAddName.enabled);
    EXPECT_FALSE(screen.cmdChangeName.enabled);
    EXPECT_FALSE(screen.cmdDeleteName.enabled);
    EXPECT_EQ(screen.focused, &screen.txtRegion[7]);

    click(screen.cmdOverride);
    EXPECT_FALSE(isOverridden());
    EXPECT_EQ(screen.cmdOverride.caption, "Override &Selecting Team Names");
    EXPECT_TRUE(screen.lstTeamNames.enabled);
    EXPECT_TRUE(screen.cmdAddName.enabled);
    EXPECT_TRUE(screen.cmdChangeName.enabled);
    EXPECT_TRUE(screen.cmdDeleteName.enabled);
    EXPECT_EQ(screen.focused, &screen.txtRegion[7]);
}

TEST_F(SetupScreenTest, ClearEmptiesAllTeamBoxesWithoutAskingAndGoesToTheFirst)
{
    SetupScreen& screen = loaded();
    click(screen.cmdClear);
    EXPECT_EQ(teams(0, 64), std::vector<std::string>(64));
    EXPECT_EQ(screen.focused, &screen.txtRegion[0]);
    EXPECT_TRUE(dialogs().shown.empty());
}

TEST_F(SetupScreenTest, ExitShowsTheBoardAndDropsUnsavedEditsWithoutAQuestion)
{
    SetupScreen& screen = loaded();
    edit(screen.TxtInfo[0], "Changed");
    screen.mnuEnd.click();
    EXPECT_EQ(screens.loads, std::vector{ScreenKind::Board});
    EXPECT_EQ(screens.unloads, std::vector{ScreenKind::Setup});
    EXPECT_TRUE(dialogs().shown.empty());
    EXPECT_FALSE(files.has("POOLSTART.THS"));
}

TEST_F(SetupScreenTest, ClosingTheWindowMeansExitAndEscapeMeansNothing)
{
    SetupScreen& screen = loaded();
    EXPECT_TRUE(press(ui::Key::Escape));
    EXPECT_TRUE(screens.unloads.empty());
    screen.closeRequested();
    EXPECT_EQ(screens.unloads, std::vector{ScreenKind::Setup});
}

TEST_F(SetupScreenTest, StatusLineShowsUnsavedEditsUntilTheyAreSaved)
{
    SetupScreen& screen = loaded();
    EXPECT_TRUE(screen.status.starts_with("There are no unsaved changes.")) << screen.status;
    edit(screen.TxtInfo[0], "Changed");
    EXPECT_TRUE(screen.status.starts_with("There are changes that are not saved yet.")) << screen.status;
    EXPECT_FALSE(screen.unsaved);
    screen.mnuSaveStartingField.click();
    EXPECT_TRUE(screen.status.starts_with("There are no unsaved changes.")) << screen.status;
    edit(screen.txtComment1, "Note");
    EXPECT_TRUE(screen.status.starts_with("There are changes that are not saved yet.")) << screen.status;
    edit(screen.txtComment1, "");
    EXPECT_TRUE(screen.status.starts_with("There are no unsaved changes.")) << screen.status;
}

TEST_F(SetupScreenTest, StatusLineNamesRepeatedTeamsAndThoseNotNamedYet)
{
    SetupScreen& screen = loaded();
    EXPECT_EQ(screen.status, "There are no unsaved changes.  Not named yet: TEAM1 and 63 more.");
    click(screen.cmdClear);
    EXPECT_EQ(screen.status, "There are changes that are not saved yet.");
    screen.txtRegion[0].text = screen.txtRegion[63].text = "Duke";
    settle();
    EXPECT_EQ(screen.status, "There are changes that are not saved yet.  More than once: Duke.");
}

TEST_F(SetupScreenTest, StatusLineBeginsWithWhatMustNotBeCutOff)
{
    files.put("NCAALIST.THS", "*START*\r\nAkron\r\n\r\nDuke\r\n*END*\r\n");
    SetupScreen& screen = loaded();
    screen.txtRegion[0].text = screen.txtRegion[63].text = "Duke";
    click(screen.cmdFinalize);
    EXPECT_EQ(screen.status, "There are changes that are not saved yet.  Finalize Tournament takes effect with File, "
                             "Save.  More than once: Duke.  Not named yet: TEAM2 and 61 more.  The list of team "
                             "names could not be read whole; a save keeps the old file.");
}

TEST_F(SetupScreenTest, ASaveIsNotAnnouncedAndEndsWhatWasSaidBefore)
{
    SetupScreen& screen = loaded();
    click(screen.cmdClear);
    ASSERT_NE(screen.news().text, "");
    screen.mnuSaveStartingField.click();
    EXPECT_TRUE(files.has("POOLSTART.THS"));
    EXPECT_EQ(screen.news().text, "");
}

TEST_F(SetupScreenTest, OpensTheSeedPositions)
{
    loaded().mnuSeating.click();
    EXPECT_EQ(screens.loads, std::vector{ScreenKind::Seeds});
}

TEST_F(SetupScreenTest, ShowsTheHelpFileAndTheAboutBox)
{
    SetupScreen& screen = loaded();
    screen.mnuHelpDisplay.click();
    EXPECT_EQ(computer.help.shown, std::vector{files.path() / "TALLYHOOP.HLP"});
    EXPECT_EQ(computer.help.topics, std::vector<std::string>{"setup"});
    screen.mnuHelpAbout.click();
    EXPECT_EQ(dialogs().aboutShown, 1);
}

TEST_F(SetupScreenTest, SaysSoWhenTheHelpFileCannotBeShown)
{
    computer.help.trouble = Failure{"missing"};
    loaded().mnuHelpDisplay.click();
    EXPECT_EQ(dialogs().captionsShown(), std::vector<std::string>{"** Help File Problem **"});
}

TEST_F(SetupScreenTest, DemoStartReloadsThisScreenAfterTheQuestion)
{
    SetupScreen& screen = loaded();
    computer.programs.whenStarted = [this] { files.put("TALLYHOOP.INI", "1\r\n"); };
    dialogs().answer(Answer::Ok);
    screen.mnuDemoSet.click();
    EXPECT_EQ(dialogs().captionsShown(),
              (std::vector<std::string>{"** DEMO MODE SET **", "STALLYHOOP DEMOSTRATION MODE"}));
    EXPECT_EQ(computer.programs.started.size(), 1U);
    EXPECT_EQ(screens.unloads, std::vector{ScreenKind::Setup});
    EXPECT_EQ(screens.loads, std::vector{ScreenKind::Setup});
    EXPECT_EQ(screens.news,
              std::vector<std::string>{"The sample pool is there: leave this screen, and choose File, Open "
                                       "Selection to look at one of its players."});
}

TEST_F(SetupScreenTest, DemoStartReloadsThisScreenAlsoWhenNoSamplePoolComes)
{
    SetupScreen& screen = loaded();
    computer.programs.end = Failure{"No space left on device"};
    dialogs().answer(Answer::Ok);
    screen.mnuDemoSet.click();
    EXPECT_EQ(screens.unloads, std::vector{ScreenKind::Setup});
    EXPECT_EQ(screens.loads, std::vector{ScreenKind::Setup});
    EXPECT_EQ(screens.news, std::vector<std::string>{""});
}

TEST_F(SetupScreenTest, DemoStartDoesNothingOnCancel)
{
    files.put("POOLSTART.THS", tellingSetup());
    SetupScreen& screen = loaded();
    dialogs().answer(Answer::Cancel);
    screen.mnuDemoSet.click();
    EXPECT_TRUE(screens.unloads.empty());
    EXPECT_TRUE(screens.loads.empty());
    EXPECT_TRUE(computer.programs.started.empty());
    EXPECT_EQ(files.get("POOLSTART.THS"), tellingSetup());
}

TEST_F(SetupScreenTest, DemoResetDeletesTheSampleAndReloadsThisScreen)
{
    files.put("TALLYHOOP.INI", "1\r\n");
    files.put("POOLSTART.THS", tellingSetup("1"));
    SetupScreen& screen = loaded();
    screen.mnuDemoReset.click();
    EXPECT_FALSE(files.has("TALLYHOOP.INI"));
    EXPECT_FALSE(files.has("POOLSTART.THS"));
    EXPECT_EQ(screens.unloads, std::vector{ScreenKind::Setup});
    EXPECT_EQ(screens.loads, std::vector{ScreenKind::Setup});
}

TEST_F(SetupScreenTest, SaysWhereChangesMadeInDemoModeAreKept)
{
    files.put("TALLYHOOP.INI", "1\r\n");
    files.put("POOLSTART.THS", tellingSetup("1"));
    loaded().mnuDemoReset.click(); // the field is not that of the sample: it is kept
    EXPECT_EQ(screens.news,
              std::vector<std::string>{
                  "Files that you changed in demo mode are kept in the folder Backup 2001-03-05 101530."});
}

TEST_F(SetupScreenTest, StaysInDemoModeWhenItCannotBeLeft)
{
    files.put("TALLYHOOP.INI", "1\r\n");
    std::filesystem::resize_file(files.put("TALLYHOOP.THS", ""), (64u << 20) + 1); // too large to be read and kept
    SetupScreen& screen = loaded();
    screen.mnuDemoReset.click();
    EXPECT_TRUE(files.has("TALLYHOOP.INI"));
    EXPECT_TRUE(files.has("TALLYHOOP.THS"));
    EXPECT_TRUE(screens.loads.empty());
    EXPECT_TRUE(screens.unloads.empty());
}

TEST_F(SetupScreenTest, ReadsAgainWhatADemoCommandLeftInTheFolder)
{
    SetupScreen& screen = loaded();
    computer.programs.whenStarted = [this] {
        files.put("POOLSTART.THS", tellingSetup("1"));
        files.put("TALLYHOOP.INI", "1\r\n");
    };
    dialogs().answer(Answer::Ok);
    screen.mnuDemoSet.click();
    SetupScreen& sample = loaded();
    EXPECT_EQ(sample.txtRegion[0].text, "T1");
    EXPECT_TRUE(sample.mnuDemoReset.enabled);
    EXPECT_FALSE(sample.mnuDemoSet.enabled);
    EXPECT_TRUE(sample.lblDemoMode.visible);

    sample.mnuDemoReset.click();
    const SetupScreen& left = loaded();
    EXPECT_EQ(left.txtRegion[0].text, "TEAM1");
    EXPECT_FALSE(left.mnuDemoReset.enabled);
    EXPECT_TRUE(left.mnuDemoSet.enabled);
    EXPECT_FALSE(left.lblDemoMode.visible);
}

} // namespace
} // namespace tallyhoop::test
