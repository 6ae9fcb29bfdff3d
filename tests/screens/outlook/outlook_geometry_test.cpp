// tests/screens/outlook/outlook_geometry_test.cpp - the outlook's bracket at several sizes, with a swing at every
// place.
#include "screens/outlook/outlook_geometry.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

namespace tallyhoop::test {
namespace {

bool overlapping(const ui::Rectangle& a, const ui::Rectangle& b)
{
    return a.x < b.right() - 0.01 && b.x < a.right() - 0.01 && a.y < b.bottom() - 0.01 && b.y < a.bottom() - 0.01;
}

class OutlookGeometryAt : public testing::TestWithParam<std::pair<double, double>>
{
protected:
    /// Everything that can be seen at once, with a name for messages. Both sides of a game have swings as long as it is
    /// open, so all places but the champion's may have one.
    std::vector<std::pair<std::string, ui::Rectangle>> everything() const
    {
        std::vector<std::pair<std::string, ui::Rectangle>> all{{"champion", board.positions[kChampion]},
                                                               {"caption", board.championCaption}};
        for (const Position position : allPositions()) {
            if (position == kChampion)
                continue;
            const std::string name = std::to_string(index(position));
            all.emplace_back("team " + name, teamBesideSwing(board, position));
            all.emplace_back("swing " + name, swingPlace(board, position));
        }
        for (const ui::Rectangle& title : board.regionTitles)
            all.emplace_back("title", title);
        return all;
    }

    double width = GetParam().first;
    double height = GetParam().second;
    BoardGeometry board = layOutOutlook(width, height);
};

TEST_P(OutlookGeometryAt, NothingCoversAnythingElse)
{
    const auto all = everything();
    for (std::size_t i = 0; i < all.size(); ++i)
        for (std::size_t j = i + 1; j < all.size(); ++j)
            EXPECT_FALSE(overlapping(all[i].second, all[j].second)) << all[i].first << " and " << all[j].first;
}

TEST_P(OutlookGeometryAt, EverythingIsInside)
{
    for (const auto& [name, place] : everything()) {
        EXPECT_GE(place.x, 0) << name;
        EXPECT_GE(place.y, 0) << name;
        EXPECT_LE(place.right(), width) << name;
        EXPECT_LE(place.bottom(), height) << name;
    }
}

TEST_P(OutlookGeometryAt, ASwingTouchesItsTeamAndHasItsHeight)
{
    for (const Position position : allPositions()) {
        const ui::Rectangle team = teamBesideSwing(board, position);
        const ui::Rectangle swing = swingPlace(board, position);
        EXPECT_TRUE(std::abs(swing.x - team.right()) < 0.01 || std::abs(team.x - swing.right()) < 0.01)
            << index(position);
        EXPECT_EQ(swing.y, team.y);
        EXPECT_EQ(swing.height, team.height);
    }
}

TEST_P(OutlookGeometryAt, EachPlaceHasRoomForAName)
{
    for (const Position position : allPositions())
        if (teamRowOf(position)) {
            EXPECT_GE(teamBesideSwing(board, position).width, 8 * board.textSize) << index(position);
        } else {
            EXPECT_GE(board.positions[position].width, 9 * board.textSize) << index(position);
        }
    EXPECT_GE(board.positions[kChampion].width, 10 * board.textSize);
}

TEST_P(OutlookGeometryAt, RegionTitlesHaveRoomForWords)
{
    for (const ui::Rectangle& title : board.regionTitles)
        EXPECT_GE(title.width, 14 * board.textSize) << "\"Midwest Region\" in larger letters";
}

TEST_P(OutlookGeometryAt, TheRightHalfMirrorsTheLeftOne)
{
    for (std::size_t i = 0; i < 62; ++i) {
        const ui::Rectangle& left = board.positions[allPositions()[i]];
        const ui::Rectangle& right = board.positions[allPositions()[i + 62]];
        EXPECT_NEAR(left.x, width - right.right(), 0.01) << i;
    }
}

TEST_P(OutlookGeometryAt, ALineLeadsFromEachEntrantToTheWinner)
{
    // Given: lines that are upright or level. Then: a place of a winner is touched by one that touches each entrant.
    const auto touches = [](const ui::Stroke& line, const ui::Rectangle& place) {
        return std::min(line.x1, line.x2) <= place.right() + 0.01 && std::max(line.x1, line.x2) >= place.x - 0.01 &&
               std::min(line.y1, line.y2) <= place.bottom() + 0.01 && std::max(line.y1, line.y2) >= place.y - 0.01;
    };
    const auto touching = [&](Position position) {
        return std::ranges::count_if(board.connectors,
                                     [&](const ui::Stroke& line) { return touches(line, board.positions[position]); });
    };
    for (const Position position : allPositions())
        EXPECT_GE(touching(position), 1) << index(position);
}

TEST_P(OutlookGeometryAt, LettersAreNotSmallerThanNinePixels) { EXPECT_GE(board.textSize, 9); }

INSTANTIATE_TEST_SUITE_P(Sizes, OutlookGeometryAt,
                         testing::Values(std::pair{650.0, 470.0}, std::pair{700.0, 450.0}, std::pair{1080.0, 760.0},
                                         std::pair{1200.0, 700.0}));

} // namespace
} // namespace tallyhoop::test
