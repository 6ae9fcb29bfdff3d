// tests/screens/board/board_geometry_test.cpp - rectangles and neighbours at several sizes.
#include "screens/board/board_geometry.h"

#include <gtest/gtest.h>

namespace tallyhoop::test {

class BoardGeometryAt : public ::testing::TestWithParam<std::pair<double, double>>
{
protected:
    double width = GetParam().first;
    double height = GetParam().second;
    BoardGeometry board = layOutBoard(width, height);

    static bool overlap(const ui::Rectangle& a, const ui::Rectangle& b)
    {
        return a.x < b.right() - 0.01 && b.x < a.right() - 0.01 && a.y < b.bottom() - 0.01 && b.y < a.bottom() - 0.01;
    }
};

TEST_P(BoardGeometryAt, PutsEverythingInsideTheArea)
{
    const auto inside = [&](const ui::Rectangle& place) {
        return place.x >= 0 && place.y >= 0 && place.right() <= width && place.bottom() <= height && place.width > 0;
    };
    for (const auto& place : board.positions.values)
        EXPECT_TRUE(inside(place));
    for (const auto& place : board.results.values)
        EXPECT_TRUE(inside(place));
    for (const auto& place : board.seeds.values)
        EXPECT_TRUE(inside(place));
    for (const auto& place : board.roundPoints)
        EXPECT_TRUE(inside(place));
}

TEST_P(BoardGeometryAt, LetsNoTwoLabelsOverlap)
{
    std::vector<ui::Rectangle> all{board.title, board.demoMode, board.championCaption};
    const auto add = [&all](const auto& places) { all.insert(all.end(), places.begin(), places.end()); };
    add(board.positions.values);
    add(board.results.values);
    add(board.seeds.values);
    add(board.regionTitles);
    add(board.roundCaptions);
    add(board.roundPoints);
    for (std::size_t i = 0; i < all.size(); ++i)
        for (std::size_t j = i + 1; j < all.size(); ++j)
            EXPECT_FALSE(overlap(all[i], all[j])) << i << " and " << j;
}

TEST_P(BoardGeometryAt, MirrorsTheRightHalf)
{
    for (int row = 0; row < 32; ++row) {
        const ui::Rectangle& left = board.seeds[TeamRow{row}];
        const ui::Rectangle& right = board.seeds[TeamRow{row + 32}];
        EXPECT_NEAR(left.x, width - right.right(), 0.01);
        EXPECT_NEAR(left.y, right.y, 0.01);
    }
}

TEST_P(BoardGeometryAt, PutsAWinnerBetweenItsEntrants)
{
    for (const Position position : gamePositions()) {
        if (position == kChampion)
            continue;
        const auto [first, second] = *feeders(position);
        const double middle = (board.positions[first].centreY() + board.positions[second].centreY()) / 2;
        EXPECT_NEAR(board.positions[position].centreY(), middle, height * 0.02);
    }
}

INSTANTIATE_TEST_SUITE_P(Sizes, BoardGeometryAt,
                         ::testing::Values(std::pair{1366.0, 590.0}, std::pair{1920.0, 900.0}, std::pair{1000.0, 500.0},
                                           std::pair{1100.0, 682.0}));

TEST(Neighbour, FollowsTheBracketToTheRightAndBack)
{
    const BoardGeometry board = layOutBoard(1366, 600);
    const auto from = [&board](int position, Direction direction) {
        return index(neighbour(board, Position{position}, direction));
    };
    EXPECT_EQ(from(0, Direction::Right), 16);
    EXPECT_EQ(from(16, Direction::Right), 24);
    EXPECT_EQ(from(30, Direction::Up), 30);
    EXPECT_EQ(from(30, Direction::Down), 124);
    EXPECT_EQ(from(0, Direction::Up), 0);
    EXPECT_EQ(from(15, Direction::Down), 31) << "the lower region follows";
    EXPECT_EQ(from(0, Direction::Left), 0);
    EXPECT_EQ(from(62, Direction::Left), 78) << "the right half runs the other way";
    EXPECT_EQ(from(124, Direction::Right), 126);
}

TEST(Neighbour, ReachesEveryPositionWithTheArrowKeys)
{
    const BoardGeometry board = layOutBoard(1366, 600);
    ByPosition<bool> seen{};
    std::vector<Position> queue{Position{0}};
    seen[Position{0}] = true;
    while (!queue.empty()) {
        const Position position = queue.back();
        queue.pop_back();
        for (const Direction direction : {Direction::Up, Direction::Down, Direction::Left, Direction::Right}) {
            const Position reached = neighbour(board, position, direction);
            if (!seen[reached]) {
                seen[reached] = true;
                queue.push_back(reached);
            }
        }
    }
    for (const Position position : allPositions())
        EXPECT_TRUE(seen[position]) << index(position);
}

} // namespace tallyhoop::test
