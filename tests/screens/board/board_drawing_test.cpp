// tests/screens/board/board_drawing_test.cpp - the board on paper shows what the board on screen does.
#include "screens/board/board_drawing.h"

#include <algorithm>
#include <gmock/gmock.h>

namespace tallyhoop::test {
namespace {

using testing::Contains;
using testing::IsSupersetOf;
using testing::Not;

struct BoardDrawing : testing::Test {
    Field field = defaultField();
    Bracket bracket = startingBracket(field);
    Verdicts verdicts;
    Entry player{bracket, "JS", "Smith", "150", {}};

    ui::Drawing draw(const Verdicts* marks = nullptr, std::optional<ShownScore> score = {}, bool demo = false) const
    {
        return drawBoard({field, bracket, marks, demo}, player, score);
    }

    static std::vector<std::string> texts(const ui::Drawing& drawing)
    {
        std::vector<std::string> found;
        for (const ui::Caption& caption : drawing.captions)
            found.push_back(caption.text);
        return found;
    }

    static std::vector<ui::Caption> captions(const ui::Drawing& drawing, const std::string& text)
    {
        std::vector<ui::Caption> found;
        std::ranges::copy_if(drawing.captions, std::back_inserter(found),
                             [&text](const ui::Caption& caption) { return caption.text == text; });
        return found;
    }
};

TEST_F(BoardDrawing, FillsALandscapePage)
{
    player.picks = bracket;
    field.comment1 = "first";
    field.comment2 = "second";
    const ui::Drawing drawing = draw(&verdicts, ShownScore{1, 2}, true);
    EXPECT_EQ(drawing.width, 1100);
    EXPECT_EQ(drawing.height, 800);
    const auto isOnPage = [](const ui::Rectangle& place) {
        return place.x >= 0 && place.y >= 0 && place.right() <= 1100 && place.bottom() <= 800;
    };
    for (const ui::Box& box : drawing.boxes)
        EXPECT_TRUE(isOnPage(box.place));
    for (const ui::Caption& caption : drawing.captions)
        EXPECT_TRUE(isOnPage(caption.place)) << caption.text;
    EXPECT_FALSE(drawing.strokes.empty());
}

TEST_F(BoardDrawing, ShowsTitlesRoundsPointsSeedsAndTeams)
{
    bracket.put(Position{16}, "TEAM1");
    const ui::Drawing drawing = draw();
    EXPECT_THAT(texts(drawing), IsSupersetOf({"2001 NCAA Tournament", "West Region", "South Region",
                                              "1st round:", "Final game:", "CHAMPION", " 16", "TEAM64"}));
    EXPECT_EQ(captions(drawing, "TEAM1").size(), 2u) << "in the first round and as a winner";
    EXPECT_EQ(captions(drawing, " 8").size(), 6u) << "the seed of four regions, the points on both sides";
    EXPECT_EQ(captions(drawing, " 12").size(), 1u) << "the points of the semi-final";
    EXPECT_EQ(captions(drawing, "12").size(), 4u) << "a seed of four regions";
}

TEST_F(BoardDrawing, ShowsWhoseBracketItIs)
{
    player.initials = "js";
    field.comment1 = "pay\r\nsoon";
    const ui::Drawing drawing = draw(nullptr, ShownScore{1, 2});
    EXPECT_THAT(texts(drawing), IsSupersetOf({"Initials", "js", "Name", "Smith",
                                              "Predict total points in Championship game", "150", "Points: 1 / 2"}));
    ASSERT_EQ(captions(drawing, "pay\r\nsoon").size(), 1u);
    EXPECT_TRUE(captions(drawing, "pay\r\nsoon")[0].wrap);
}

TEST_F(BoardDrawing, ShowsNothingForWhatIsEmpty)
{
    player = {};
    EXPECT_THAT(texts(draw()), Not(Contains("")));
}

/// Of 255, as a grey printer mixes it.
int greyOf(ui::Colour colour) { return (colour.red * 30 + colour.green * 59 + colour.blue * 11) / 100; }

TEST_F(BoardDrawing, MarksRightAndWrongPicksDarkOnWhite)
{
    bracket.put(Position{16}, "Upset U");
    bracket.put(Position{17}, "Late Loser");
    verdicts[Position{16}] = Verdict::Good;
    verdicts[Position{17}] = Verdict::Bad;
    verdicts[Position{0}] = Verdict::Bad;
    const ui::Drawing drawing = draw(&verdicts);
    ASSERT_EQ(captions(drawing, "=").size(), 1u);
    ASSERT_EQ(captions(drawing, "X").size(), 1u);
    EXPECT_TRUE(captions(drawing, "=")[0].bold);
    EXPECT_TRUE(captions(drawing, "X")[0].bold);
    EXPECT_EQ(captions(drawing, "=")[0].colour, captions(drawing, "Upset U").at(0).colour);
    EXPECT_EQ(captions(drawing, "X")[0].colour, captions(drawing, "Late Loser").at(0).colour);
    EXPECT_NE(captions(drawing, "=")[0].colour, captions(drawing, "X")[0].colour);
    for (const ui::Caption& caption : drawing.captions)
        EXPECT_LT(greyOf(caption.colour), 65) << caption.text << ": too light for grey paper";
    for (const ui::Box& box : drawing.boxes)
        EXPECT_EQ(box.fill, (ui::Colour{255, 255, 255}));
    EXPECT_TRUE(captions(draw(), "=").empty()) << "nothing is marked without verdicts";
}

TEST_F(BoardDrawing, StrikesWrongPicksThroughForPrintersWithoutColour)
{
    bracket.put(Position{16}, "Upset U");
    bracket.put(Position{17}, "Late Loser");
    verdicts[Position{16}] = Verdict::Good;
    verdicts[Position{17}] = Verdict::Bad;
    verdicts[Position{0}] = Verdict::Bad;
    const ui::Drawing drawing = draw(&verdicts);
    EXPECT_TRUE(captions(drawing, "Late Loser").at(0).struck);
    EXPECT_EQ(std::ranges::count(drawing.captions, true, &ui::Caption::struck), 1)
        << "neither the mark, nor a right pick, nor a row of the field, which is no pick";
}

TEST_F(BoardDrawing, MarksTheResultsWithWhatAPlayerMadeOfThemAndStrikesNoWinnerThrough)
{
    bracket.put(Position{16}, "Upset U");
    bracket.put(Position{17}, "Real Winner");
    verdicts[Position{16}] = Verdict::Good;
    verdicts[Position{17}] = Verdict::Bad;
    const ui::Drawing drawing =
        drawBoard({field, bracket, &verdicts, false, MarkedNames::Results, nullptr, "Marked: Baker_C.THC, 92 of 120"},
                  player, {});
    EXPECT_EQ(std::ranges::count(drawing.captions, true, &ui::Caption::struck), 0);
    const ui::Colour plain = captions(drawing, "TEAM1").at(0).colour;
    EXPECT_EQ(captions(drawing, "Real Winner").at(0).colour, plain);
    EXPECT_EQ(captions(drawing, "Upset U").at(0).colour, plain);
    EXPECT_NE(captions(drawing, "X").at(0).colour, plain);
    EXPECT_EQ(captions(drawing, "=").size(), 1u);
    EXPECT_EQ(captions(drawing, "Marked: Baker_C.THC, 92 of 120").size(), 1u);
}

TEST_F(BoardDrawing, LetsANameUseThePlaceOfTheMarkerThatIsNotThere)
{
    bracket.put(Position{16}, "Upset U");
    verdicts[Position{16}] = Verdict::Good;
    const double marked = captions(draw(&verdicts), "Upset U").at(0).place.width;
    const double unmarked = captions(draw(), "Upset U").at(0).place.width;
    EXPECT_GT(unmarked, marked * 1.1);
}

TEST_F(BoardDrawing, HasBoxesToWriteTheNameIntoOnABlankSheet)
{
    player = {bracket, "JS", "Smith", "150", {}};
    const ui::Drawing filled = draw();
    player = {};
    const ui::Drawing blank = draw();
    EXPECT_EQ(blank.boxes.size(), filled.boxes.size());
    for (const char* const text : {"JS", "Smith", "150"}) {
        const ui::Rectangle place = captions(filled, text).at(0).place;
        const auto box = std::ranges::find_if(blank.boxes, [&](const ui::Box& candidate) {
            return candidate.place.contains(place.x, place.y) && candidate.place.right() >= place.right();
        });
        ASSERT_NE(box, blank.boxes.end()) << text;
        EXPECT_NE(box->outline, box->fill) << text;
        EXPECT_GE(box->place.height, 24) << text; // on Letter 0.7 points a unit: 6 mm for a pen
    }
}

TEST_F(BoardDrawing, SaysThatItIsADemonstration)
{
    EXPECT_THAT(texts(draw()), Not(Contains("Demonstration Mode")));
    EXPECT_THAT(texts(draw(nullptr, {}, true)), Contains("Demonstration Mode"));
}

} // namespace
} // namespace tallyhoop::test
