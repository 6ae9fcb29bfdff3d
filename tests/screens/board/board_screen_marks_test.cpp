// tests/screens/board/board_screen_marks_test.cpp - the verdict on the board: right and wrong picks, and what they
// forbid.
#include "screens/board/board_fixture.h"

namespace tallyhoop::test {

class BoardScreenMarks : public BoardTest
{
};

constexpr ui::Colour kBlue{0, 0, 255};
constexpr ui::Colour kGreen{0, 255, 0};
constexpr ui::Colour kRed{255, 0, 0};

TEST_F(BoardScreenMarks, MarksRightAndWrongPicksAndLeavesTheOpenOnes)
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

TEST_F(BoardScreenMarks, PressesAreIgnoredWhileTheVerdictIsShown)
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

TEST_F(BoardScreenMarks, ClearMarksGivesEveryLabelItsNormalLook)
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

TEST_F(BoardScreenMarks, PressesRaiseTheScoreDisplayWhileItIsOpen)
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

} // namespace tallyhoop::test
