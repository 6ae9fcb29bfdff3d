// tests/screens/board/board_screen_board_test.cpp - clicks, drags, presses and keys on the board.
#include "screens/board/board_fixture.h"

namespace tallyhoop::test {

class BoardScreenBoard : public BoardTest
{
};

TEST_F(BoardScreenBoard, AClickSendsATeamOneRoundOnUpToTheChampion)
{
    loadFinalized();
    for (const int position : {0, 16, 24, 28, 30, 124})
        click(position);
    for (const int position : {16, 24, 28, 30, 124, 126})
        EXPECT_EQ(at(position), "R1T0");
    click(126);
    EXPECT_EQ(at(126), "R1T0");
}

TEST_F(BoardScreenBoard, AClickRemovesTheDisplacedTeamFromItsLaterRoundsOnly)
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

TEST_F(BoardScreenBoard, ADragCarriesATeamThroughAllItsRounds)
{
    loadFinalized();
    drag(2, 126);
    for (const int position : {17, 24, 28, 30, 124, 126})
        EXPECT_EQ(at(position), "R1T2");
}

TEST_F(BoardScreenBoard, ADragOverAnotherChampionOverwritesThePath)
{
    loadFinalized();
    drag(0, 126);
    drag(2, 126);
    EXPECT_EQ(at(16), "R1T0");
    for (const int position : {17, 24, 28, 30, 124, 126})
        EXPECT_EQ(at(position), "R1T2");
}

TEST_F(BoardScreenBoard, ADropOffThePathOrBackwardsChangesNothing)
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

TEST_F(BoardScreenBoard, ARightPressOnARegionWinnerTakesTheTeamOutOfTheFinals)
{
    loadFinalized();
    drag(0, 126);
    rightPress(30);
    for (const int position : {30, 124, 126})
        EXPECT_EQ(at(position), "");
    EXPECT_EQ(at(28), "R1T0");
}

TEST_F(BoardScreenBoard, ARightPressNeverEmptiesAFirstRoundRow)
{
    loadFinalized();
    for (const int position : {0, 15, 31, 62, 93, 108})
        rightPress(position);
    EXPECT_EQ(at(0), "R1T0");
    EXPECT_EQ(at(108), "R4T15");
}

TEST_F(BoardScreenBoard, ADropBesideThePressDoesNothing)
{
    loadFinalized();
    board->PressPosition(0, MouseButton::Left);
    board->cancelDrag();
    board->DropOnPosition(0);
    EXPECT_EQ(at(16), "");
}

TEST_F(BoardScreenBoard, ADragShowsWhereItMayLand)
{
    loadFinalized();
    EXPECT_FALSE(board->mayDropOn(16));
    board->PressPosition(0, MouseButton::Left);
    EXPECT_TRUE(board->mayDropOn(16));
    EXPECT_TRUE(board->mayDropOn(126));
    EXPECT_FALSE(board->mayDropOn(17));
    EXPECT_FALSE(board->mayDropOn(125));
}

TEST_F(BoardScreenBoard, EnterGoesRoundTheThreeFieldsAndIsSwallowed)
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

TEST_F(BoardScreenBoard, EnterPressesDefaultColorsWhileItIsTheDefault)
{
    loadFinalized();
    putSelection(file_name::kResults, emptyBracket("A", "FinalResults", ""));
    board->ScoreSelections();
    ASSERT_TRUE(board->marksShown());
    EXPECT_TRUE(board->keyPressed(board->txtPlayerName, {ui::Key::Enter}));
    EXPECT_FALSE(board->marksShown());
}

TEST_F(BoardScreenBoard, HighSeedsFillsTheRegionsAndLeavesTheFinals)
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

} // namespace tallyhoop::test
