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
    for (const auto& place : board.positions)
        EXPECT_TRUE(inside(place));
    for (const auto& place : board.results)
        EXPECT_TRUE(inside(place));
    for (const auto& place : board.seeds)
        EXPECT_TRUE(inside(place));
    for (const auto& place : board.roundPoints)
        EXPECT_TRUE(inside(place));
}

TEST_P(BoardGeometryAt, LetsNoTwoLabelsOverlap)
{
    std::vector<ui::Rectangle> all{board.title, board.demoMode, board.championCaption};
    all.insert(all.end(), board.positions.begin(), board.positions.end());
    all.insert(all.end(), board.results.begin(), board.results.end());
    all.insert(all.end(), board.seeds.begin(), board.seeds.end());
    all.insert(all.end(), board.regionTitles.begin(), board.regionTitles.end());
    all.insert(all.end(), board.roundCaptions.begin(), board.roundCaptions.end());
    all.insert(all.end(), board.roundPoints.begin(), board.roundPoints.end());
    for (std::size_t i = 0; i < all.size(); ++i)
        for (std::size_t j = i + 1; j < all.size(); ++j)
            EXPECT_FALSE(overlap(all[i], all[j])) << i << " and " << j;
}

TEST_P(BoardGeometryAt, MirrorsTheRightHalf)
{
    for (std::size_t i = 0; i < kTeams; ++i) {
        const auto& left = board.seeds[i % 32];
        const auto& right = board.seeds[i % 32 + 32];
        EXPECT_NEAR(left.x, width - right.right(), 0.01);
        EXPECT_NEAR(left.y, right.y, 0.01);
    }
}

TEST_P(BoardGeometryAt, PutsAWinnerBetweenItsEntrants)
{
    for (const Position position : gamePositions()) {
        if (index(position) == kChampion)
            continue;
        const auto [first, second] = bracketMap().feeders(index(position));
        const double middle = (board.positions[static_cast<std::size_t>(first)].centreY() +
                               board.positions[static_cast<std::size_t>(second)].centreY()) /
                              2;
        EXPECT_NEAR(board.positions[static_cast<std::size_t>(index(position))].centreY(), middle, height * 0.02);
    }
}

INSTANTIATE_TEST_SUITE_P(Sizes, BoardGeometryAt,
                         ::testing::Values(std::pair{1366.0, 590.0}, std::pair{1920.0, 900.0}, std::pair{1000.0, 500.0},
                                           std::pair{1100.0, 682.0}));

TEST(neighbour, FollowsTheBracketToTheRightAndBack)
{
    const BoardGeometry board = layOutBoard(1366, 600);
    EXPECT_EQ(neighbour(board, 0, Direction::Right), 16);
    EXPECT_EQ(neighbour(board, 16, Direction::Right), 24);
    EXPECT_EQ(neighbour(board, 30, Direction::Up), 30);
    EXPECT_EQ(neighbour(board, 30, Direction::Down), 124);
    EXPECT_EQ(neighbour(board, 0, Direction::Up), 0);
    EXPECT_EQ(neighbour(board, 15, Direction::Down), 31) << "the lower region follows";
    EXPECT_EQ(neighbour(board, 0, Direction::Left), 0);
    EXPECT_EQ(neighbour(board, 62, Direction::Left), 78) << "the right half runs the other way";
    EXPECT_EQ(neighbour(board, 124, Direction::Right), 126);
}

TEST(neighbour, ReachesEveryPositionWithTheArrowKeys)
{
    const BoardGeometry board = layOutBoard(1366, 600);
    std::array<bool, kPositions> seen{};
    std::vector<int> queue{0};
    seen[0] = true;
    while (!queue.empty()) {
        const int position = queue.back();
        queue.pop_back();
        for (const Direction direction : {Direction::Up, Direction::Down, Direction::Left, Direction::Right}) {
            const int next = neighbour(board, position, direction);
            if (!seen[static_cast<std::size_t>(next)]) {
                seen[static_cast<std::size_t>(next)] = true;
                queue.push_back(next);
            }
        }
    }
    for (int position = 0; position < kPositions; ++position)
        EXPECT_TRUE(seen[static_cast<std::size_t>(position)]) << position;
}

} // namespace tallyhoop::test
