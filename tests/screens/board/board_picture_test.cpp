// tests/screens/board/board_picture_test.cpp - marks, their colours, and which round a caption names.
#include "screens/board/board_picture.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace tallyhoop::test {
namespace {

double luminance(ui::Colour colour)
{
    const auto part = [](double value) {
        value /= 255;
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(colour.red) + 0.7152 * part(colour.green) + 0.0722 * part(colour.blue);
}

TEST(MarkOf, IsGreenForARightPickAndRedForAWrongPick)
{
    EXPECT_STREQ(markOf(Verdict::Good).text, "=");
    EXPECT_EQ(markOf(Verdict::Good).colour, (ui::Colour{0, 255, 0}));
    EXPECT_STREQ(markOf(Verdict::Bad).text, "X");
    EXPECT_EQ(markOf(Verdict::Bad).colour, (ui::Colour{255, 0, 0}));
}

TEST(MarkOf, LeavesAllOtherPicksBlueWithoutASymbol)
{
    for (const Verdict verdict : {Verdict::None, Verdict::Open, Verdict::Possible}) {
        EXPECT_STREQ(markOf(verdict).text, "");
        EXPECT_EQ(markOf(verdict).colour, (ui::Colour{0, 0, 255}));
        EXPECT_EQ(markOf(verdict).background, (ui::Colour{252, 252, 255}));
    }
}

TEST(MarkOf, HasABackgroundOnWhichItsColourIsReadComfortably)
{
    for (const Verdict verdict : {Verdict::None, Verdict::Good, Verdict::Bad, Verdict::Open, Verdict::Possible}) {
        const double text = luminance(markOf(verdict).colour);
        const double background = luminance(markOf(verdict).background);
        EXPECT_GE((std::max(text, background) + 0.05) / (std::min(text, background) + 0.05), 4.5);
    }
}

TEST(RoundOfCaption, CountsFourRoundsOnTheLeftTheSameOnTheRightAndTheLastTwo)
{
    const std::array<int, 10> rounds = {1, 2, 3, 4, 1, 2, 3, 4, 5, 6};
    for (std::size_t caption = 0; caption < rounds.size(); ++caption)
        EXPECT_EQ(roundOfCaption(caption), rounds.at(caption)) << caption;
}

TEST(BoardPicture, HasNoVerdictWhereNothingIsMarked)
{
    const Field field;
    const Bracket bracket;
    Verdicts verdicts;
    verdicts[Position{16}] = Verdict::Bad;
    EXPECT_EQ((BoardPicture{field, bracket}.verdictAt(Position{16})), Verdict::None);
    EXPECT_EQ((BoardPicture{field, bracket, &verdicts}.verdictAt(Position{16})), Verdict::Bad);
}

} // namespace
} // namespace tallyhoop::test
