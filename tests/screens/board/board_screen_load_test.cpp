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
    for (int position = 0; position < 127; ++position)
        EXPECT_EQ(board->lblRegion[static_cast<std::size_t>(position)].toolTip,
                  isFirstRound(Position{position}) ? "Left Click or Drag to Select" : "");
}

TEST_F(BoardScreenLoad, ShowsTitlesPayoffsSeedsAndCommentsOfTheSetup)
{
    SetupLines lines = defaultSetupLines();
    lines[setup_line::kTitle] = "Our pool";
    lines[setup_line::kRegion + 2] = "Orient";
    lines[setup_line::kPayoff + 5] = "32";
    lines[setup_line::kSeed + 3] = "99";
    lines[setup_line::kComment1] = "first|second";
    scratch.put(file_name::kSetup, setupFile(lines));
    load();
    EXPECT_EQ(board->lblTitle.text, "Our pool");
    EXPECT_EQ(board->lblRegionTitle[2].text, "Orient");
    EXPECT_EQ(board->lblInfo[5].text, "32");
    for (int region = 0; region < 4; ++region)
        EXPECT_EQ(board->txtSeed[static_cast<std::size_t>(16 * region + 3)].text, "99");
    EXPECT_EQ(board->txtComment1.text, "first\r\nsecond");
}

TEST_F(BoardScreenLoad, DisablesWhatNeedsAFinalizedField)
{
    putSetup("0");
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
    putSelection(file_name::kResults, emptyBracket("A", "FinalResults", ""));
    load();
    EXPECT_TRUE(board->mnuScoreSelections.enabled);
}

TEST_F(BoardScreenLoad, CapturesTheBoardIntoTheSharedLines)
{
    loadFinalized();
    EXPECT_EQ(state.selectionLines[1], "R1T0");
    EXPECT_EQ(state.selectionLines[63], "R3T0");
    EXPECT_EQ(state.selectionLines[17], "");
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

TEST_F(BoardScreenLoad, ShowsDemoStateAfterTheDemoCommandsWhateverTheFilesSay)
{
    load(Opening::DemoEntered);
    EXPECT_TRUE(board->mnuDemoReset.enabled);
    EXPECT_FALSE(board->mnuDemoSet.enabled);
    EXPECT_TRUE(board->lblDemoMode.visible);
}

TEST_F(BoardScreenLoad, LetsDemoModeBeLeftThoughItsSettingsWereNotWrittenYet)
{
    putSetup("1");
    load(Opening::DemoEntered);
    EXPECT_TRUE(board->mnuDemo.enabled);
    EXPECT_TRUE(board->mnuDemoReset.enabled);
}

TEST_F(BoardScreenLoad, StartsAfreshWhenDemoModeIsLeft)
{
    load(Opening::DemoLeft);
    EXPECT_EQ(at(0), "TEAM1");
    EXPECT_FALSE(board->mnuDemoReset.enabled);
    EXPECT_TRUE(board->mnuDemoSet.enabled);
    EXPECT_FALSE(board->lblDemoMode.visible);
    EXPECT_FALSE(board->mnuScoreSelections.enabled);
    EXPECT_FALSE(board->mnuGameResults.enabled);
    EXPECT_EQ(state.setupLines[setup_line::kFinalized], "0");
}

TEST_F(BoardScreenLoad, SaysOnceWhereChangesMadeInDemoModeAreKept)
{
    state.notice = "Files that you changed in demo mode are kept in Backup.";
    load(Opening::DemoLeft);
    EXPECT_EQ(board->status, "Files that you changed in demo mode are kept in Backup.");
    EXPECT_EQ(state.notice, "");
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
