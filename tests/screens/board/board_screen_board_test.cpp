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

TEST_F(BoardScreenBoard, HoldsTheBracketThatItShows)
{
    loadFinalized();
    drag(2, 24);
    for (const Position position : allPositions())
        EXPECT_EQ(board->bracket().at(position), at(position));
    EXPECT_EQ(board->bracket().at(Position{24}), "R1T2");
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

TEST_F(BoardScreenBoard, ADropAfterACancelledDragDoesNothing)
{
    loadFinalized();
    press(0);
    board->cancelDrag();
    drop(0);
    EXPECT_EQ(at(16), "");
}

TEST_F(BoardScreenBoard, ADragShowsWhoIsDraggedAndWhereItMayLand)
{
    loadFinalized();
    EXPECT_FALSE(board->mayDropOn(Position{16}));
    EXPECT_FALSE(board->isDragging());
    press(0);
    EXPECT_TRUE(board->isDragging());
    EXPECT_EQ(board->draggedTeam(), "R1T0");
    EXPECT_TRUE(board->mayDropOn(Position{16}));
    EXPECT_TRUE(board->mayDropOn(Position{126}));
    EXPECT_FALSE(board->mayDropOn(Position{17}));
    EXPECT_FALSE(board->mayDropOn(Position{125}));
    drop(17);
    EXPECT_FALSE(board->isDragging());
}

TEST_F(BoardScreenBoard, ADragEndsWhenTheBoardIsReplacedMeanwhile)
{
    putNoResultsYet();
    const auto file = putSelection("Smith_JS.THC", emptyBracket("JS", "Smith", "150"));
    loadFinalized();
    for (const auto& command : std::vector<std::function<void()>>{
             [&] { board->mnuNewSelection.click(); }, [&] { open(file); },
             [&] { score(), board->cmdDefaultColors.click(); }, [&] { enterResults(); }, [&] { score(); }}) {
        press(0);
        ASSERT_TRUE(board->isDragging());
        command();
        EXPECT_FALSE(board->isDragging());
        drop(16);
        EXPECT_EQ(at(16), "");
    }
    EXPECT_TRUE(screens.isLoaded(ScreenKind::Scores)) << "the last command was to open the list of scores";
}

TEST_F(BoardScreenBoard, EnterGoesRoundTheThreeFieldsAndIsSwallowed)
{
    loadFinalized();
    const ui::KeyPress enter{ui::Key::Enter};
    EXPECT_TRUE(key(board->txtPlayerInitials, enter));
    EXPECT_EQ(board->focused, &board->txtPlayerName);
    EXPECT_TRUE(key(board->txtPlayerName, enter));
    EXPECT_EQ(board->focused, &board->txtFinalPoints);
    EXPECT_TRUE(key(board->txtFinalPoints, enter));
    EXPECT_EQ(board->focused, &board->txtPlayerInitials);
    EXPECT_FALSE(key(board->lblRegion[3], enter));
}

TEST_F(BoardScreenBoard, EnterPressesDefaultColorsWhileItIsTheDefault)
{
    loadFinalized();
    putNoResultsYet();
    board->mnuNewSelection.click(); // the results have come since
    score();
    ASSERT_TRUE(marksShown());
    EXPECT_TRUE(key(board->txtPlayerName, {ui::Key::Enter}));
    EXPECT_FALSE(marksShown());
}

TEST_F(BoardScreenBoard, HighSeedsFillsTheRegionsAndLeavesTheFinals)
{
    loadFinalized();
    drag(31, 126);
    board->mnuHighSeed.click();
    // Rows of the seeds 1, 8, 5, 4, 6, 3, 7, 2: those that win their first game.
    const std::array<int, 8> rows = {0, 2, 4, 6, 8, 10, 12, 14};
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(at(16 + i), team(0, rows[static_cast<std::size_t>(i)]));
    for (int region = 0; region < 4; ++region)
        EXPECT_EQ(at(31 * region + 30), team(region, 0));
    EXPECT_EQ(at(124), "R2T0");
    EXPECT_EQ(at(125), "");
    EXPECT_EQ(at(126), "R2T0");
    EXPECT_TRUE(board->unsaved);
}

TEST_F(BoardScreenBoard, ASeedThatDoesNotFitCountsAsNone)
{
    Field made = fieldOfTeams("1");
    made.seeds[1] = "99999"; // far above 16 bits; as no seed it is better than seed 1
    putField(made);
    load();
    board->mnuHighSeed.click();
    EXPECT_EQ(at(16), "R1T1");
}

} // namespace tallyhoop::test
