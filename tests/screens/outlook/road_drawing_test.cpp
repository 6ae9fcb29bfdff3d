// tests/screens/outlook/road_drawing_test.cpp - the chart's lines, scale, band and names, on a page of 600 by 240.
//
// The plot reaches from 42 to 470 and from 24 down to 206: the scale is 182 units high.
#include "screens/outlook/road_drawing.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace tallyhoop::test {
namespace {

constexpr double kLeft = 42;
constexpr double kMiddle = 256;
constexpr double kRight = 470;
constexpr double kBottom = 206;

RoadPoint sharesAt(const std::vector<double>& shares)
{
    RoadPoint point;
    for (const double share : shares)
        point.chances.push_back({.share = share});
    point.errors.resize(shares.size());
    return point;
}

struct RoadDrawing : testing::Test {
    RoadColours colours;
    RoadPicture picture{{"Start", "Round 1", "Now"},
                        {sharesAt({0.2, 0.3, 0.7}), sharesAt({0.4, 0.3, 0.3}), sharesAt({0.5, 0.5, 0})},
                        {"AB, Adams", "C, Baker", "D, Clark"},
                        0,
                        "all outcomes alike"};

    ui::Drawing draw() const { return drawRoad(picture, 600, 240, colours); }

    static std::vector<ui::Stroke> strokes(const ui::Drawing& drawing, ui::Colour colour)
    {
        std::vector<ui::Stroke> found;
        std::ranges::copy_if(drawing.strokes, std::back_inserter(found),
                             [&](const ui::Stroke& stroke) { return stroke.colour == colour; });
        return found;
    }

    static std::vector<ui::Caption> captions(const ui::Drawing& drawing, const std::string& text)
    {
        std::vector<ui::Caption> found;
        std::ranges::copy_if(drawing.captions, std::back_inserter(found),
                             [&](const ui::Caption& caption) { return caption.text == text; });
        return found;
    }

    static std::vector<ui::Caption> captionsThatBegin(const ui::Drawing& drawing, const std::string& text)
    {
        std::vector<ui::Caption> found;
        std::ranges::copy_if(drawing.captions, std::back_inserter(found),
                             [&](const ui::Caption& caption) { return caption.text.starts_with(text); });
        return found;
    }

    static void expectStroke(const ui::Stroke& stroke, double x1, double y1, double x2, double y2)
    {
        EXPECT_DOUBLE_EQ(stroke.x1, x1);
        EXPECT_NEAR(stroke.y1, y1, 1e-9);
        EXPECT_DOUBLE_EQ(stroke.x2, x2);
        EXPECT_NEAR(stroke.y2, y2, 1e-9);
    }
};

TEST_F(RoadDrawing, LeadsEverybodyFromTimeToTime)
{
    const std::vector<ui::Stroke> others = strokes(draw(), colours.others);
    ASSERT_EQ(others.size(), 4u) << "two players, two steps each";
    expectStroke(others[0], kLeft, kBottom - 0.3 * 182, kMiddle, kBottom - 0.3 * 182);
    expectStroke(others[1], kMiddle, kBottom - 0.3 * 182, kRight, kBottom - 0.5 * 182);
    expectStroke(others[3], kMiddle, kBottom - 0.3 * 182, kRight, kBottom);
    EXPECT_EQ(others[0].thickness, 1);
}

TEST_F(RoadDrawing, ShowsTheChosenPlayerInBoldAboveTheOthers)
{
    const ui::Drawing drawing = draw();
    const std::vector<ui::Stroke> chosen = strokes(drawing, colours.chosen);
    ASSERT_EQ(chosen.size(), 2u);
    expectStroke(chosen[0], kLeft, kBottom - 0.2 * 182, kMiddle, kBottom - 0.4 * 182);
    EXPECT_GT(chosen[0].thickness, 2);
    EXPECT_EQ(drawing.strokes.back().colour, colours.chosen) << "painted last";
    ASSERT_EQ(drawing.boxes.size(), 3u) << "a dot at each time";
    EXPECT_DOUBLE_EQ(drawing.boxes[1].place.centreX(), kMiddle);
    EXPECT_DOUBLE_EQ(drawing.boxes[1].place.centreY(), kBottom - 0.4 * 182);
    EXPECT_TRUE(captions(drawing, "AB, Adams").at(0).bold);
    EXPECT_EQ(captions(drawing, "AB, Adams").at(0).colour, colours.chosen);
    EXPECT_FALSE(captions(drawing, "C, Baker").at(0).bold);
}

TEST_F(RoadDrawing, HasNobodyInBoldWhenNobodyIsChosen)
{
    picture.chosen.reset();
    const ui::Drawing drawing = draw();
    EXPECT_EQ(strokes(drawing, colours.others).size(), 6u);
    EXPECT_TRUE(strokes(drawing, colours.chosen).empty());
    EXPECT_TRUE(drawing.boxes.empty());
    EXPECT_TRUE(std::ranges::none_of(drawing.captions, &ui::Caption::bold));
}

TEST_F(RoadDrawing, HasTheSmallestScaleThatHasRoomForAll)
{
    EXPECT_EQ(captions(draw(), "100 %").size(), 1u);
    EXPECT_EQ(captions(draw(), "75 %").size(), 1u);
    picture.points = {sharesAt({0.01, 0.03, 0}), sharesAt({0.04, 0.02, 0}), sharesAt({0.03, 0.02, 0})};
    const ui::Drawing drawing = draw();
    for (const char* const percent : {"0 %", "1 %", "2 %", "3 %", "4 %"})
        EXPECT_EQ(captions(drawing, percent).size(), 1u) << percent;
    expectStroke(strokes(drawing, colours.chosen).at(0), kLeft, kBottom - 182 / 4.0, kMiddle, kBottom - 182);
    picture.points[0] = sharesAt({0.041, 0, 0});
    EXPECT_EQ(captions(draw(), "8 %").size(), 1u);
    EXPECT_EQ(captions(draw(), "1 %").size(), 0u);
}

TEST_F(RoadDrawing, HasABandWhereItIsAForecast)
{
    picture.points[0].samples = 1000;
    picture.points[0].errors = {0.05, 0.01, 0.01};
    const ui::Drawing drawing = draw();
    const std::vector<ui::Stroke> band = strokes(drawing, colours.band);
    // Two errors to either side of 20 percent; then the limits run to the counted 40.
    ASSERT_EQ(band.size(), 3u);
    expectStroke(band[0], kLeft, kBottom - 0.3 * 182, kLeft, kBottom - 0.1 * 182);
    expectStroke(band[1], kLeft, kBottom - 0.3 * 182, kMiddle, kBottom - 0.4 * 182);
    expectStroke(band[2], kLeft, kBottom - 0.1 * 182, kMiddle, kBottom - 0.4 * 182);
    EXPECT_EQ(captions(drawing, "forecast").size(), 1u);
    EXPECT_EQ(captions(drawing, "counted").size(), 2u);
    picture.chosen = 7;
    EXPECT_TRUE(strokes(draw(), colours.band).empty()) << "only of a chosen player";
}

TEST_F(RoadDrawing, CutsABandThatLeavesTheScale)
{
    picture.points[0].samples = 1000;
    picture.points[0].errors[0] = 0.2;
    expectStroke(strokes(draw(), colours.band).at(0), kLeft, kBottom - 0.6 * 182, kLeft, kBottom);
}

TEST_F(RoadDrawing, NamesAsManyAsThereIsRoomForWithoutOverlaps)
{
    // Given: 14 players whose lines end 14 units apart all over the scale, where 182 / 14 = 13 names have room.
    picture.names.clear();
    std::vector<double> shares;
    for (int player = 0; player < 14; ++player) {
        picture.names.push_back("Player " + std::to_string(player));
        shares.push_back((13 - player) / 13.0);
    }
    picture.points = {sharesAt(shares)};
    picture.chosen = 13;
    const std::vector<ui::Caption> names = captionsThatBegin(draw(), "Player");
    // Then: the last is named because he is chosen, and 12 of the others.
    ASSERT_EQ(names.size(), 13u);
    for (std::size_t i = 0; i < 12; ++i) {
        EXPECT_EQ(names[i].text, "Player " + std::to_string(i));
        EXPECT_NEAR(names[i].place.y, 24 + 14 * static_cast<double>(i), 1e-9);
    }
    EXPECT_EQ(names.back().text, "Player 13");
    EXPECT_TRUE(names.back().bold);
    EXPECT_NEAR(names.back().place.bottom(), kBottom, 1e-9);
}

TEST_F(RoadDrawing, NamesNobodyFarFromTheEndOfHisLine)
{
    // Given: three lines that end in one point; a third name would be two lines of text away.
    picture.names = {"Player 0", "Player 1", "Player 2"};
    picture.points = {sharesAt({0.5, 0.5, 0.5})};
    picture.chosen = 2;
    const std::vector<ui::Caption> names = captionsThatBegin(draw(), "Player");
    ASSERT_EQ(names.size(), 2u);
    EXPECT_EQ(std::ranges::count(names, "Player 2", &ui::Caption::text), 1) << "the chosen one";
    EXPECT_EQ(std::ranges::count(names, "Player 0", &ui::Caption::text), 1);
    const auto [upper, lower] = std::minmax(names[0].place.y, names[1].place.y);
    EXPECT_GE(lower - upper, 14);
}

TEST_F(RoadDrawing, LeavesOutTheMiddleOfALongName)
{
    picture.names = {"Twenty-four letters long", "Twenty-five letters, long", "D, Clark"};
    picture.points = {sharesAt({0.5, 0.2, 0})};
    const ui::Drawing drawing = draw();
    EXPECT_EQ(captions(drawing, "Twenty-four letters long").size(), 1u);
    // 21 letters stay: the first 11 and the last 10.
    EXPECT_EQ(captions(drawing, "Twenty-five...ters, long").size(), 1u);
}

TEST_F(RoadDrawing, ShowsWhatIsFoundWhileEarlierTimesAreMissing)
{
    picture.points.erase(picture.points.begin(), picture.points.begin() + 2);
    const ui::Drawing drawing = draw();
    EXPECT_TRUE(strokes(drawing, colours.others).empty()) << "one point makes no line";
    ASSERT_EQ(drawing.boxes.size(), 1u);
    EXPECT_DOUBLE_EQ(drawing.boxes[0].place.centreX(), kRight);
    ASSERT_EQ(captions(drawing, "counted").size(), 1u);
    EXPECT_DOUBLE_EQ(captions(drawing, "counted")[0].place.centreX(), kRight);
    EXPECT_DOUBLE_EQ(captions(drawing, "Start").at(0).place.centreX(), kLeft);
    EXPECT_EQ(captions(drawing, "not worked out").size(), 2u);
    EXPECT_DOUBLE_EQ(captions(drawing, "not worked out")[0].place.centreX(), kLeft);
    picture.isWorking = true;
    EXPECT_EQ(captions(draw(), "working").size(), 2u);
    EXPECT_EQ(captions(draw(), "not worked out").size(), 0u);
    picture.points.clear();
    const ui::Drawing empty = draw();
    EXPECT_EQ(empty.strokes.size(), 5u) << "only the grid";
    EXPECT_TRUE(captions(empty, "AB, Adams").empty());
}

TEST_F(RoadDrawing, OfOneTimeIsAtTheRightEnd)
{
    picture.times = {"Now"};
    picture.points = {sharesAt({0.5, 0.5, 0})};
    const ui::Drawing drawing = draw();
    EXPECT_DOUBLE_EQ(drawing.boxes.at(0).place.centreX(), kRight);
    EXPECT_DOUBLE_EQ(captions(drawing, "Now").at(0).place.centreX(), kRight);
}

TEST_F(RoadDrawing, SaysWhichChancesItShows)
{
    EXPECT_EQ(captions(draw(), "Share of first place, all outcomes alike").size(), 1u);
}

TEST_F(RoadDrawing, StaysOnItsPage)
{
    for (const auto& [width, height] : {std::pair{600.0, 240.0}, {200.0, 120.0}, {1100.0, 800.0}}) {
        const ui::Drawing drawing = drawRoad(picture, width, height);
        const auto isOnPage = [&](const ui::Rectangle& place) {
            return place.x >= 0 && place.y >= 0 && place.right() <= width && place.bottom() <= height;
        };
        EXPECT_EQ(drawing.width, width);
        EXPECT_EQ(drawing.height, height);
        for (const ui::Caption& caption : drawing.captions)
            EXPECT_TRUE(isOnPage(caption.place)) << caption.text << " on " << width;
        for (const ui::Stroke& stroke : drawing.strokes)
            EXPECT_TRUE(isOnPage({stroke.x1, stroke.y1, 0, 0}) && isOnPage({stroke.x2, stroke.y2, 0, 0}));
    }
}

TEST(RoadStageInWords, IsStartARoundOrNow)
{
    EXPECT_EQ(stageInWords(0, false), "Start");
    EXPECT_EQ(stageInWords(3, false), "Round 3");
    EXPECT_EQ(stageInWords(3, true), "Now");
    EXPECT_EQ(stageInWords(0, true), "Now");
}

} // namespace
} // namespace tallyhoop::test
