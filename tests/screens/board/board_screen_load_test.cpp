// tests/screens/board/board_screen_load_test.cpp - what a fresh board shows of the files that it finds.
#include "screens/board/board_fixture.h"

#include <algorithm>

namespace tallyhoop::test {

class BoardScreenLoad : public BoardTest
{
};

TEST_F(BoardScreenLoad, ShowsTheDefaultFieldWithoutASetupFile)
{
    load();
    EXPECT_EQ(at(0), "TEAM1");
    EXPECT_EQ(at(93 + 15), "TEAM64");
    EXPECT_EQ(board->lblTitle.text, "2001 NCAA Tournament");
    EXPECT_EQ(board->txtSeed[0].text, " 1");
    EXPECT_EQ(board->txtSeed[1].text, "16");
    EXPECT_TRUE(platform.dialogs.shown.empty());
}

TEST_F(BoardScreenLoad, PutsEveryTeamInItsFirstRoundRow)
{
    loadFinalized();
    for (int region = 0; region < 4; ++region)
        for (int row = 0; row < 16; ++row)
            EXPECT_EQ(at(31 * region + row), team(region, row));
}

TEST_F(BoardScreenLoad, GivesTheFirstRoundItsToolTipAndTheOthersNone)
{
    loadFinalized();
    for (const Position position : allPositions())
        EXPECT_EQ(board->lblRegion[position].toolTip, isFirstRound(position) ? "Left Click or Drag to Select" : "");
}

TEST_F(BoardScreenLoad, ShowsTitlesPayoffsSeedsAndCommentsOfTheSetup)
{
    Field made = defaultField();
    made.title = "Our pool";
    made.regionTitles[2] = "Orient";
    made.payoffs = PayoffTexts{{"1", "2", "4", "8", "12", "32"}};
    made.seeds[3] = "99";
    made.comment1 = "first\r\nsecond";
    made.comment2 = "third";
    putField(made);
    load();
    EXPECT_EQ(board->lblTitle.text, "Our pool");
    EXPECT_EQ(board->lblRegionTitle[2].text, "Orient");
    EXPECT_EQ(board->lblInfo[5].text, "32");
    for (const std::size_t row : {3, 19, 35, 51})
        EXPECT_EQ(board->txtSeed[row].text, "99");
    EXPECT_EQ(board->txtComment1.text, "first\r\nsecond");
    EXPECT_EQ(board->txtComment2.text, "third");
}

TEST_F(BoardScreenLoad, DisablesWhatNeedsAFinalizedField)
{
    putField(fieldOfTeams("0"));
    load();
    for (const ui::MenuEntry* entry : {&board->mnuScoreSelections, &board->mnuGameResults, &board->mnuNewSelection,
                                       &board->mnuOpenSelection, &board->mnuSaveSelection, &board->mnuReports})
        EXPECT_FALSE(entry->enabled) << entry->name;
    for (const ui::MenuEntry* entry : {&board->mnuSetup, &board->mnuSetupOptions, &board->mnuDemo, &board->mnuDemoSet,
                                       &board->mnuEditNames, &board->mnuHighSeed, &board->mnuPrintForm})
        EXPECT_TRUE(entry->enabled) << entry->name;
    EXPECT_FALSE(board->mnuDemoReset.enabled);
    EXPECT_FALSE(board->lblDemoMode.visible);
}

TEST_F(BoardScreenLoad, ProtectsAFinalizedFieldOutsideDemoMode)
{
    loadFinalized();
    EXPECT_FALSE(board->mnuSetup.enabled);
    EXPECT_FALSE(board->mnuDemo.enabled);
    EXPECT_FALSE(board->mnuDemoSet.enabled);
    EXPECT_TRUE(board->mnuReports.enabled);
    EXPECT_TRUE(board->mnuSaveSelection.enabled);
}

TEST_F(BoardScreenLoad, LeavesTheSetupOpenInDemoMode)
{
    putDemoMode();
    loadFinalized();
    EXPECT_TRUE(board->mnuSetup.enabled);
    EXPECT_TRUE(board->mnuDemo.enabled);
    EXPECT_TRUE(board->mnuDemoReset.enabled);
    EXPECT_FALSE(board->mnuDemoSet.enabled);
    EXPECT_TRUE(board->lblDemoMode.visible);
}

TEST_F(BoardScreenLoad, OffersScoringOnlyWithAResultsFile)
{
    loadFinalized();
    EXPECT_FALSE(board->mnuScoreSelections.enabled);
    putNoResultsYet();
    load();
    EXPECT_TRUE(board->mnuScoreSelections.enabled);
}

TEST_F(BoardScreenLoad, TakesTheFieldForItselfAndForTheOtherScreens)
{
    loadFinalized();
    EXPECT_EQ(field, fieldOfTeams("1"));
    EXPECT_EQ(board->bracket().at(Position{0}), "R1T0");
    EXPECT_EQ(board->bracket().at(Position{62}), "R3T0");
    for (const Position position : gamePositions())
        EXPECT_TRUE(board->bracket().isEmpty(position));
}

TEST_F(BoardScreenLoad, SaysThatASetupFileIsDamagedAndShowsTheDefaultField)
{
    scratch.put(file_name::kSetup, "nonsense\r\n");
    load();
    EXPECT_EQ(platform.dialogs.shown, (std::vector<ui::Message>{{"", "Problem with file, will use default values",
                                                                 ui::Buttons::Ok, ui::Icon::Critical}}));
    EXPECT_EQ(at(0), "TEAM1");
}

TEST_F(BoardScreenLoad, CreatesThePlayerListWhenThereIsNone)
{
    load();
    EXPECT_EQ(scratch.get(file_name::kPlayerNames).size(), 128u);
}

TEST_F(BoardScreenLoad, SaysThatThePlayerListIsFaulty)
{
    scratch.put(file_name::kPlayerNames, "nonsense\r\n");
    load();
    EXPECT_EQ(platform.dialogs.captionsShown(), std::vector<std::string>{"** ERROR Found in PLAYERNAMES.CSV file **"});
}

TEST_F(BoardScreenLoad, LeadsToTheRepairOnlyUntilAFaultyPlayerListIsGone)
{
    scratch.put(file_name::kPlayerNames, "nonsense\r\n");
    loadFinalized();
    EXPECT_EQ(board->helpTopic(), "repair");
    std::filesystem::remove(scratch.path() / file_name::kPlayerNames);
    board->mnuNewSelection.click();
    EXPECT_TRUE(scratch.has(file_name::kPlayerNames)) << "an empty one is written";
    EXPECT_EQ(board->helpTopic(), "selections");
}

TEST_F(BoardScreenLoad, MentionsAFolderThatCannotBeWrittenOnlyOnce)
{
    folder = DataFolder{scratch.path() / "gone"};
    load();
    load(); // another board, as after the setup
    EXPECT_EQ(platform.dialogs.captionsShown(), std::vector<std::string>{"** ERROR IN WRITING FILE **"});
    field.finalized = "1";
    board->showState();
    board->mnuNewSelection.click();
    EXPECT_EQ(platform.dialogs.captionsShown(), std::vector<std::string>{"** ERROR IN WRITING FILE **"});
}

TEST_F(BoardScreenLoad, CreatesThePlayerListOnceTheFolderCanBeWritten)
{
    folder = DataFolder{scratch.path() / "gone"};
    load();
    std::filesystem::create_directory(scratch.path() / "gone");
    load();
    EXPECT_TRUE(folder.exists(file_name::kPlayerNames));
    EXPECT_EQ(platform.dialogs.shown.size(), 1u);
}

TEST_F(BoardScreenLoad, ForgetsTheSampleFieldWhenDemoModeWasLeft)
{
    putDemoMode();
    loadFinalized();
    ASSERT_TRUE(field.isFinalized());
    std::filesystem::remove(scratch.path() / file_name::kSetup);
    std::filesystem::remove(scratch.path() / file_name::kSettings);
    load();
    EXPECT_EQ(field, defaultField());
    EXPECT_EQ(at(0), "TEAM1");
    EXPECT_FALSE(board->mnuDemoReset.enabled);
    EXPECT_TRUE(board->mnuDemoSet.enabled);
    EXPECT_FALSE(board->lblDemoMode.visible);
    EXPECT_FALSE(board->mnuScoreSelections.enabled);
    EXPECT_FALSE(board->mnuGameResults.enabled);
}

TEST_F(BoardScreenLoad, OffersTheWayBackAsLongAsDemoModeIsOn)
{
    putDemoMode(); // and no field: the demo is there in part only
    load();
    EXPECT_TRUE(board->mnuDemo.enabled);
    EXPECT_TRUE(board->mnuDemoReset.enabled);
    EXPECT_FALSE(board->mnuDemoSet.enabled);
    EXPECT_TRUE(board->lblDemoMode.visible);
}

TEST_F(BoardScreenLoad, KeepsWhatItWasGivenToSayUntilABoardIsBegun)
{
    loadFinalized();
    board->say("Files that you changed in demo mode are kept in Backup.");
    board->showState();
    EXPECT_EQ(board->news().text, "Files that you changed in demo mode are kept in Backup.");
    board->mnuNewSelection.click();
    EXPECT_EQ(board->news().text, "");
}

TEST_F(BoardScreenLoad, InDemoModeLeadsToOpenSelectionUntilSomethingIsBegun)
{
    putDemoMode();
    loadFinalized();
    const std::string lead = "This is the sample pool: choose File, Open Selection to look at one of its players.";
    EXPECT_EQ(board->explanation, lead);
    board->pressPosition(Position{0}, MouseButton::Left);
    board->dropOnPosition(Position{16});
    board->showState();
    EXPECT_NE(board->explanation, lead);
    enterResults();
    EXPECT_EQ(board->explanation, "Game results: click the real winners forward and save.");
}

TEST_F(BoardScreenLoad, SaysWhatToDo)
{
    load();
    EXPECT_EQ(board->explanation, "The field is not finalized yet: see Setup, Setup Pool Options.");
    loadFinalized();
    EXPECT_EQ(board->explanation, "Click the winners forward, then enter initials, name and the final's total points.");
    EXPECT_EQ(board->document, "");
    EXPECT_FALSE(board->unsaved);
    EXPECT_EQ(board->focused, &board->txtPlayerInitials);
}

TEST_F(BoardScreenLoad, ListsTheThreeFieldsAtTheirTabPositions)
{
    load();
    EXPECT_EQ(board->controlAtTab(140), &board->txtPlayerInitials);
    EXPECT_EQ(board->controlAtTab(141), &board->txtPlayerName);
    EXPECT_EQ(board->controlAtTab(143), &board->txtFinalPoints);
}

TEST_F(BoardScreenLoad, NamesEveryControlOnce)
{
    load();
    std::vector<std::string> names;
    for (const ui::Control* control : board->controls())
        names.push_back(control->name);
    std::ranges::sort(names);
    EXPECT_EQ(std::ranges::adjacent_find(names), names.end());
    EXPECT_NE(board->find("lblRegion_126"), nullptr);
    EXPECT_NE(board->find("lblResult_62"), nullptr);
    EXPECT_NE(board->find("txtSeed_63"), nullptr);
    EXPECT_NE(board->find("lblInfo_5"), nullptr);
}

} // namespace tallyhoop::test
