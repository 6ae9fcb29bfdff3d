// tests/screens/board/board_screen_marks_test.cpp - marks on the board: right and wrong picks, and what they forbid.
#include "screens/board/board_fixture.h"

namespace tallyhoop::test {

class BoardScreenMarks : public BoardTest
{
};

constexpr ui::Colour kBlue{0, 0, 255};
constexpr ui::Colour kGreen{0, 255, 0};
constexpr ui::Colour kRed{255, 0, 0};

TEST_F(BoardScreenMarks, ShowsRightAndWrongPicksOfAListedPlayerAndLeavesTheOpenOnes)
{
    loadFinalized();
    drag(0, 24);
    Verdicts verdicts;
    verdicts.values.fill(Verdict::Open);
    verdicts[Position{16}] = Verdict::Good;
    verdicts[Position{24}] = Verdict::Bad;
    verdicts[Position{25}] = Verdict::Possible;
    verdicts[Position{126}] = Verdict::Good;
    verdicts[Position{0}] = Verdict::Bad;
    showListedVerdicts(verdicts);
    EXPECT_EQ(board->status, "Marked: Demo Prophet_DP.THC, 92 of 120");
    EXPECT_EQ(board->lblRegion[16].colour, kGreen);
    EXPECT_EQ(board->lblResult[0].text, "=");
    EXPECT_EQ(board->lblRegion[24].colour, kRed);
    EXPECT_EQ(board->lblResult[8].text, "X");
    EXPECT_EQ(board->lblRegion[25].colour, kBlue);
    EXPECT_EQ(board->lblResult[9].text, "");
    EXPECT_EQ(board->lblResult[62].text, "=");
    EXPECT_EQ(board->lblRegion[0].colour, kBlue) << "first-round rows are no games";
}

TEST_F(BoardScreenMarks, NothingCanBeChangedWhileThePicksAreMarked)
{
    putNoResultsYet();
    loadFinalized();
    score();
    click(0);
    EXPECT_EQ(at(16), "");
    EXPECT_FALSE(board->mnuHighSeed.enabled);
    board->cmdDefaultColors.click();
    click(0);
    EXPECT_EQ(at(16), "R1T0");
    score();
    rightPress(16);
    EXPECT_EQ(at(16), "R1T0");
    EXPECT_FALSE(board->isDragging());
}

TEST_F(BoardScreenMarks, MarksOfAListedPlayerForbidTheSame)
{
    loadFinalized();
    click(0);
    showListedVerdicts(Verdicts{});
    rightPress(16);
    click(2);
    EXPECT_EQ(at(16), "R1T0");
    EXPECT_EQ(at(17), "");
    EXPECT_FALSE(board->mnuHighSeed.enabled);
    EXPECT_TRUE(board->mnuSaveSelection.enabled) << "the results that the list is made of may be saved";
    EXPECT_FALSE(board->cmdDefaultColors.visible) << "the list of scores takes the marks away";
    EXPECT_FALSE(board->txtFinalPoints.locked);
    showListedVerdicts(std::nullopt);
    rightPress(16);
    EXPECT_EQ(at(16), "");
}

TEST_F(BoardScreenMarks, WithoutMarksEveryLabelHasItsNormalLook)
{
    loadFinalized();
    Verdicts verdicts;
    verdicts.values.fill(Verdict::Bad);
    showListedVerdicts(verdicts);
    ASSERT_EQ(board->lblRegion[16].colour, kRed);
    showListedVerdicts(std::nullopt);
    for (std::size_t i = 0; i < 127; ++i)
        EXPECT_EQ(board->lblRegion[i].colour, kBlue);
    for (std::size_t i = 0; i < 63; ++i)
        EXPECT_EQ(board->lblResult[i].text, "");
}

TEST_F(BoardScreenMarks, PressesRaiseTheListOfScoresWhileItIsOpen)
{
    loadFinalized();
    setScoreListOpen(true);
    EXPECT_FALSE(board->lblRegion[0].enabled);
    EXPECT_FALSE(board->txtPlayerName.enabled);
    click(0);
    rightPress(16);
    board->pressBackground();
    EXPECT_TRUE(key(board->lblRegion[0], {ui::Key::Character, ' '}));
    EXPECT_EQ(screens.raised, std::vector(4, ScreenKind::Scores));
    EXPECT_EQ(at(16), "");
    setScoreListOpen(false);
    EXPECT_TRUE(board->lblRegion[0].enabled);
    EXPECT_TRUE(board->txtPlayerName.enabled);
    board->pressBackground();
    EXPECT_EQ(screens.raised.size(), 4u);
}

TEST_F(BoardScreenMarks, TheListOfScoresDisablesEveryTextAndBoxOfTheBoard)
{
    loadFinalized();
    const auto textsAreEnabled = [this](bool enabled) {
        for (const ui::Control* control : board->controls()) {
            const bool isText = dynamic_cast<const ui::Label*>(control) != nullptr ||
                                dynamic_cast<const ui::TextBox*>(control) != nullptr;
            EXPECT_TRUE(!isText || control->enabled == enabled) << control->name;
        }
    };
    textsAreEnabled(true);
    setScoreListOpen(true);
    textsAreEnabled(false);
    setScoreListOpen(false);
    textsAreEnabled(true);
}

} // namespace tallyhoop::test
