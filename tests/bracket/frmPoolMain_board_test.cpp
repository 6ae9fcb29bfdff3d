#include "bracket/board_fixture.h"

#include <random>
#include <set>

namespace tallyhoop::test {

class frmPoolMainBoard : public BoardTest
{
};

constexpr ui::Colour kBlue{0, 0, 255};
constexpr ui::Colour kGreen{0, 255, 0};
constexpr ui::Colour kRed{255, 0, 0};

TEST_F(frmPoolMainBoard, AClickSendsATeamOneRoundOnUpToTheChampion)
{
    loadFinalized();
    for (const int position : {0, 16, 24, 28, 30, 124})
        click(position);
    for (const int position : {16, 24, 28, 30, 124, 126})
        EXPECT_EQ(at(position), "R1T0");
    click(126);
    EXPECT_EQ(at(126), "R1T0");
}

TEST_F(frmPoolMainBoard, AClickRemovesTheDisplacedTeamFromItsLaterRoundsOnly)
{
    loadFinalized();
    drag(0, 30);
    drag(31, 124);
    click(1);
    EXPECT_EQ(at(16), "R1T1");
    for (const int position : {24, 28, 30})
        EXPECT_EQ(at(position), "");
    EXPECT_EQ(at(124), "R2T0") << "other teams further along are untouched";
}

TEST_F(frmPoolMainBoard, ADragCarriesATeamThroughAllItsRounds)
{
    loadFinalized();
    drag(2, 126);
    for (const int position : {17, 24, 28, 30, 124, 126})
        EXPECT_EQ(at(position), "R1T2");
}

TEST_F(frmPoolMainBoard, ADragOverAnotherChampionOverwritesThePath)
{
    loadFinalized();
    drag(0, 126);
    drag(2, 126);
    EXPECT_EQ(at(16), "R1T0");
    for (const int position : {17, 24, 28, 30, 124, 126})
        EXPECT_EQ(at(position), "R1T2");
}

TEST_F(frmPoolMainBoard, ADropOffThePathOrBackwardsChangesNothing)
{
    loadFinalized();
    click(0);
    drag(0, 47);
    drag(0, 17);
    drag(16, 0);
    EXPECT_EQ(at(47), "");
    EXPECT_EQ(at(17), "");
    EXPECT_EQ(at(0), "R1T0");
    EXPECT_EQ(at(16), "R1T0");
}

TEST_F(frmPoolMainBoard, ARightPressOnARegionWinnerTakesTheTeamOutOfTheFinals)
{
    loadFinalized();
    drag(0, 126);
    rightPress(30);
    for (const int position : {30, 124, 126})
        EXPECT_EQ(at(position), "");
    EXPECT_EQ(at(28), "R1T0");
}

TEST_F(frmPoolMainBoard, ARightPressNeverEmptiesAFirstRoundRow)
{
    loadFinalized();
    for (const int position : {0, 15, 31, 62, 93, 108})
        rightPress(position);
    EXPECT_EQ(at(0), "R1T0");
    EXPECT_EQ(at(108), "R4T15");
}

TEST_F(frmPoolMainBoard, ADropBesideThePressDoesNothing)
{
    loadFinalized();
    board->PressPosition(0, MouseButton::Left);
    board->cancelDrag();
    board->DropOnPosition(0);
    EXPECT_EQ(at(16), "");
}

TEST_F(frmPoolMainBoard, ADragShowsWhereItMayLand)
{
    loadFinalized();
    EXPECT_FALSE(board->mayDropOn(16));
    board->PressPosition(0, MouseButton::Left);
    EXPECT_TRUE(board->mayDropOn(16));
    EXPECT_TRUE(board->mayDropOn(126));
    EXPECT_FALSE(board->mayDropOn(17));
    EXPECT_FALSE(board->mayDropOn(125));
}

TEST_F(frmPoolMainBoard, EnterGoesRoundTheThreeFieldsAndIsSwallowed)
{
    loadFinalized();
    const ui::KeyPress enter{ui::Key::Enter};
    EXPECT_TRUE(board->keyPressed(board->txtPlayerInitials, enter));
    EXPECT_EQ(board->focused, &board->txtPlayerName);
    EXPECT_TRUE(board->keyPressed(board->txtPlayerName, enter));
    EXPECT_EQ(board->focused, &board->txtFinalPoints);
    EXPECT_TRUE(board->keyPressed(board->txtFinalPoints, enter));
    EXPECT_EQ(board->focused, &board->txtPlayerInitials);
    EXPECT_FALSE(board->keyPressed(board->lblRegion[3], enter));
}

TEST_F(frmPoolMainBoard, EnterPressesDefaultColorsWhileItIsTheDefault)
{
    loadFinalized();
    putSelection(file_name::kResults, emptyBracket("A", "FinalResults", ""));
    board->ScoreSelections();
    ASSERT_TRUE(board->marksShown());
    EXPECT_TRUE(board->keyPressed(board->txtPlayerName, {ui::Key::Enter}));
    EXPECT_FALSE(board->marksShown());
}

TEST_F(frmPoolMainBoard, MarksRightAndWrongPicksAndLeavesTheOpenOnes)
{
    loadFinalized();
    drag(0, 24);
    state.verdict.SlotStatus.fill(Verdict::Open);
    state.verdict.SlotStatus[17] = Verdict::Good;
    state.verdict.SlotStatus[25] = Verdict::Bad;
    state.verdict.SlotStatus[26] = Verdict::Possible;
    state.verdict.SlotStatus[127] = Verdict::Good;
    state.verdict.SlotStatus[1] = Verdict::Bad;
    board->MarkScores();
    EXPECT_EQ(board->lblRegion[16].colour, kGreen);
    EXPECT_EQ(board->lblResult[0].text, "=");
    EXPECT_EQ(board->lblRegion[24].colour, kRed);
    EXPECT_EQ(board->lblResult[8].text, "X");
    EXPECT_EQ(board->lblRegion[25].colour, kBlue);
    EXPECT_EQ(board->lblResult[9].text, "");
    EXPECT_EQ(board->lblResult[62].text, "=");
    EXPECT_EQ(board->lblRegion[0].colour, kBlue) << "first-round rows are no games";
}

TEST_F(frmPoolMainBoard, TellsVerdictsToThoseWhoCannotSeeColours)
{
    loadFinalized();
    drag(0, 24);
    state.verdict.SlotStatus.fill(Verdict::Open);
    state.verdict.SlotStatus[17] = Verdict::Good;
    state.verdict.SlotStatus[25] = Verdict::Bad;
    board->MarkScores();
    EXPECT_EQ(board->lblRegion[16].spokenName, "West, winner of first round, game 1, = right pick: R1T0");
    EXPECT_EQ(board->lblRegion[24].spokenName, "West, winner of second round, game 1, X wrong pick: R1T0");
    EXPECT_EQ(board->lblResult[0].spokenName, "= right pick");
    board->ClearMarks();
    EXPECT_EQ(board->lblRegion[16].spokenName, "West, winner of first round, game 1: R1T0");
    EXPECT_EQ(board->lblResult[0].spokenName, "");
}

TEST_F(frmPoolMainBoard, TellsEachPlaceApartByItsName)
{
    loadFinalized();
    EXPECT_EQ(board->lblRegion[2].spokenName, "West, first round, row 3, seed 8: R1T2");
    EXPECT_EQ(board->lblRegion[23].spokenName, "West, winner of first round, game 8: no team");
    EXPECT_EQ(board->lblRegion[29].spokenName, "West, winner of regional semi-final, game 2: no team");
    EXPECT_EQ(board->lblRegion[30].spokenName, "West, winner of regional final: no team");
    EXPECT_EQ(board->lblRegion[125].spokenName, "winner of semi-final, game 2: no team");
    EXPECT_EQ(board->lblRegion[126].spokenName, "winner of final: no team");
    std::set<std::string> names;
    for (std::size_t i = 0; i < board->lblRegion.size(); ++i)
        names.insert(board->lblRegion[i].spokenName);
    EXPECT_EQ(names.size(), board->lblRegion.size());
}

TEST_F(frmPoolMainBoard, PressesAreIgnoredWhileTheVerdictIsShown)
{
    loadFinalized();
    board->MarkScores();
    click(0);
    EXPECT_EQ(at(16), "");
    board->ClearMarks();
    click(0);
    EXPECT_EQ(at(16), "R1T0");
    board->MarkScores();
    rightPress(16);
    EXPECT_EQ(at(16), "R1T0");
}

TEST_F(frmPoolMainBoard, ClearMarksGivesEveryLabelItsNormalLook)
{
    loadFinalized();
    state.verdict.SlotStatus.fill(Verdict::Bad);
    board->MarkScores();
    board->ClearMarks();
    for (std::size_t i = 0; i < 127; ++i)
        EXPECT_EQ(board->lblRegion[i].colour, kBlue);
    for (std::size_t i = 0; i < 63; ++i)
        EXPECT_EQ(board->lblResult[i].text, "");
}

TEST_F(frmPoolMainBoard, PressesRaiseTheScoreDisplayWhileItIsOpen)
{
    loadFinalized();
    board->setScoreDisplayOpen(true);
    EXPECT_FALSE(board->lblRegion[0].enabled);
    EXPECT_FALSE(board->txtPlayerName.enabled);
    click(0);
    rightPress(16);
    board->PressBackground();
    EXPECT_EQ(screens.raised,
              (std::vector{ScreenKind::ScoreDisplay, ScreenKind::ScoreDisplay, ScreenKind::ScoreDisplay}));
    EXPECT_EQ(at(16), "");
    board->setScoreDisplayOpen(false);
    EXPECT_TRUE(board->lblRegion[0].enabled);
    EXPECT_TRUE(board->txtPlayerName.enabled);
    board->PressBackground();
    EXPECT_EQ(screens.raised.size(), 3u);
}

TEST_F(frmPoolMainBoard, ArrowKeysFollowThePictureAndSpaceAdvances)
{
    loadFinalized();
    const auto press = [&](ui::Key key) { return board->keyPressed(*board->focused, {key}); };
    board->focused = &board->lblRegion[0];
    EXPECT_TRUE(press(ui::Key::Down));
    EXPECT_EQ(board->focused, &board->lblRegion[1]);
    EXPECT_TRUE(board->keyPressed(board->lblRegion[1], {ui::Key::Character, ' '}));
    EXPECT_EQ(at(16), "R1T1");
    EXPECT_TRUE(press(ui::Key::Right));
    EXPECT_EQ(board->focused, &board->lblRegion[16]);
    EXPECT_TRUE(press(ui::Key::Delete));
    EXPECT_EQ(at(16), "");
}

TEST_F(frmPoolMainBoard, TheBracketIsOneStopOfTheTabOrder)
{
    loadFinalized();
    board->gotFocus(board->lblRegion[24]);
    for (std::size_t i = 0; i < 127; ++i)
        EXPECT_EQ(board->lblRegion[i].tabStop, i == 24);
}

TEST_F(frmPoolMainBoard, EachPlaceSaysWhatCanBeDoneThere)
{
    loadFinalized();
    const auto said = [&](std::size_t position) { return board->lblRegion[position].explanation; };
    EXPECT_EQ(said(0), "Click or press Space to send R1T0 to the next round, or drag it as far as it goes.");
    EXPECT_EQ(said(16), "Nobody stands here yet: click or drag a team that can get here.");
    drag(0, 126);
    EXPECT_EQ(said(16), "Click or press Space to send R1T0 on, drag it further; right click or Delete takes it away.");
    EXPECT_EQ(said(126), "R1T0 wins the tournament. A right click or Delete takes the team away.");
    rightPress(16);
    EXPECT_EQ(said(126), "Nobody stands here yet: click or drag a team that can get here.");
    board->setScoreDisplayOpen(true);
    EXPECT_EQ(said(0), "The list of scores is open; close it to change the bracket.");
    board->setScoreDisplayOpen(false);
    EXPECT_EQ(said(0), "Click or press Space to send R1T0 to the next round, or drag it as far as it goes.");
}

TEST_F(frmPoolMainBoard, AMarkedPlaceSaysWhatItIsWorth)
{
    loadFinalized();
    drag(0, 24); // the winner of its first two games
    state.verdict.SlotStatus[17] = Verdict::Good;
    state.verdict.SlotStatus[25] = Verdict::Bad;
    state.verdict.SlotStatus[26] = Verdict::Bad;
    board->MarkScores();
    const auto said = [&](std::size_t position) { return board->lblRegion[position].explanation; };
    EXPECT_EQ(said(16), "A right pick: 1 point earned."); // the default payoffs: 1, 2, 4, 8, 12, 16
    EXPECT_EQ(said(24), "A wrong pick: 2 points lost.");
    EXPECT_EQ(said(25), "Nobody was picked: 2 points lost.");
    EXPECT_EQ(said(126), "Not decided yet: worth 16 points.");
    EXPECT_EQ(said(0), "The picks are marked; choose Default Colors to change them again.");
    EXPECT_EQ(board->lblResult[0].explanation, said(16));
    board->ClearMarks();
    EXPECT_EQ(said(25), "Nobody stands here yet: click or drag a team that can get here.");
}

TEST_F(frmPoolMainBoard, HighSeedsFillsTheRegionsAndLeavesTheFinals)
{
    loadFinalized();
    drag(31, 126);
    board->SelectHighSeeds();
    // Rows of the seeds 1, 8, 5, 4, 6, 3, 7, 2: those that win their first game.
    const std::array<int, 8> rows = {0, 2, 4, 6, 8, 10, 12, 14};
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(at(16 + i), team(0, rows[static_cast<std::size_t>(i)]));
    for (int region = 0; region < 4; ++region)
        EXPECT_EQ(at(31 * region + 30), team(region, 0));
    EXPECT_EQ(at(124), "R2T0");
    EXPECT_EQ(at(125), "");
    EXPECT_EQ(at(126), "R2T0");
}

TEST_F(frmPoolMainBoard, UndoAndRedoStepThroughTheChanges)
{
    loadFinalized();
    EXPECT_FALSE(board->mnuUndo.enabled);
    click(0);
    drag(2, 24);
    rightPress(17);
    ASSERT_EQ(at(24), "");
    board->undo();
    EXPECT_EQ(at(24), "R1T2");
    board->undo();
    EXPECT_EQ(at(17), "");
    EXPECT_EQ(at(16), "R1T0");
    board->redo();
    EXPECT_EQ(at(24), "R1T2");
    board->undo();
    board->undo();
    EXPECT_EQ(at(16), "");
    EXPECT_FALSE(board->mnuUndo.enabled);
    EXPECT_FALSE(board->unsaved);
    EXPECT_TRUE(board->mnuRedo.enabled);
    click(4);
    EXPECT_FALSE(board->mnuRedo.enabled);
}

TEST_F(frmPoolMainBoard, UndoOfAPickKeepsWhatWasTypedSince)
{
    loadFinalized();
    click(0);
    fill("JS", "Smith", "150");
    board->txtPlayerName.edited();
    board->undo();
    EXPECT_EQ(at(16), "");
    EXPECT_EQ(board->txtPlayerInitials.text, "JS");
    EXPECT_EQ(board->txtPlayerName.text, "Smith");
    EXPECT_EQ(board->txtFinalPoints.text, "150");
    EXPECT_TRUE(board->unsaved);
}

TEST_F(frmPoolMainBoard, UndoBehindASaveIsUnsavedWork)
{
    loadFinalized();
    const auto file = putSelection("Smith_JS.THC", emptyBracket("JS", "Smith", "150"));
    board->showSelection(file);
    click(0);
    platform.dialogs.pick(file);
    board->SaveSelection();
    ASSERT_FALSE(board->unsaved);
    board->undo();
    EXPECT_EQ(at(16), "");
    EXPECT_TRUE(board->unsaved);
    board->redo();
    EXPECT_FALSE(board->unsaved);
}

TEST_F(frmPoolMainBoard, UndoBehindTheFirstSaveKeepsTheFile)
{
    loadFinalized();
    board->txtPlayerInitials.text = "JS";
    board->txtPlayerName.text = "Smith";
    board->txtFinalPoints.text = "150";
    click(0);
    const std::filesystem::path file = scratch.path() / "Smith_JS.THC";
    platform.dialogs.pick(file);
    board->SaveSelection();
    board->undo();
    EXPECT_EQ(at(16), "");
    EXPECT_EQ(state.selectionFile.OpenedFile, file);
    EXPECT_TRUE(board->unsaved);
    platform.dialogs.pick(file);
    board->SaveSelection();
    EXPECT_TRUE(platform.dialogs.shown.empty()) << "saving under its own name asks nothing";
}

TEST_F(frmPoolMainBoard, UndoIsImpossibleWhileTheVerdictIsShown)
{
    loadFinalized();
    click(0);
    board->MarkScores();
    EXPECT_FALSE(board->mnuUndo.enabled);
    board->ClearMarks();
    EXPECT_TRUE(board->mnuUndo.enabled);
}

TEST_F(frmPoolMainBoard, UndoingNewBringsBackTheWholeBoard)
{
    loadFinalized();
    const auto file = putSelection("Smith_JS.THC", emptyBracket("JS", "Smith", "150"));
    board->showSelection(file);
    click(0);
    board->NewSelection();
    EXPECT_EQ(board->txtPlayerName.text, "");
    EXPECT_TRUE(state.selectionFile.OpenedFile.empty());
    board->undo();
    EXPECT_EQ(at(16), "R1T0");
    EXPECT_EQ(board->txtPlayerInitials.text, "JS");
    EXPECT_EQ(board->txtPlayerName.text, "Smith");
    EXPECT_EQ(board->txtFinalPoints.text, "150");
    EXPECT_EQ(state.selectionFile.OpenedFile, file);
    EXPECT_TRUE(board->unsaved);
}

TEST_F(frmPoolMainBoard, UndoingNewComesBackToResultsMode)
{
    loadFinalized();
    board->EnterGameResults();
    click(0);
    board->NewSelection();
    EXPECT_FALSE(board->resultsMode());
    board->undo();
    EXPECT_TRUE(board->resultsMode());
    EXPECT_TRUE(board->txtPlayerName.locked);
    EXPECT_FALSE(board->mnuGameResults.enabled);
    EXPECT_TRUE(board->mnuScoreSelections.enabled);
    EXPECT_EQ(at(16), "R1T0");
}

} // namespace tallyhoop::test
