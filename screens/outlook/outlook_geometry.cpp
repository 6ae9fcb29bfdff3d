// screens/outlook/outlook_geometry.cpp - the board's rows with columns that overlap, and the room beside its places.
#include "screens/outlook/outlook_geometry.h"

#include <algorithm>
#include <array>
#include <optional>

namespace tallyhoop {

namespace {

constexpr BoardShares kShares{.top = 0.034,
                              .seed = 0,
                              .marker = 0,
                              .firstColumn = 1.75,
                              .centre = 0.05,
                              .champion = 2,
                              .textOfRow = 0.8,
                              .textOfColumn = 0.17};
constexpr double kBottom = 0.027;   ///< room below the last row for the titles of the lower regions, of the height
constexpr double kSmallestText = 9; ///< where the units are pixels, less cannot be read

// In heights of a letter.
constexpr double kSwing = 3.9;       ///< room for "+100.0"
constexpr double kShortSwing = 3.1;  ///< room for "+12.3": before the second round nobody has more at stake
constexpr double kFirstColumn = 2.2; ///< it is wider than the others: its swings take room from the names
constexpr double kTitle = 1.8;

constexpr double kFrame = 3;            ///< room at the edges for a frame
constexpr double kGap = 0.0085;         ///< between columns, of the width
constexpr double kWidestChampion = 1.4; ///< in widths of the other places

bool isInRightHalf(Position position)
{
    const std::optional<int> region = regionOf(position);
    return region ? *region >= 2 : position == kSemifinalB;
}

/// Rounds 1 to 3 have their swings on the side of the middle of the board, later ones on the other: there the next or
/// the last column has no place at that height.
bool isSwingOnTheRight(Position position) { return isInRightHalf(position) == (roundOf(position) > 3); }

/// Where the columns of the left half begin. No two places of rounds 1 to 4 are at the same height, so each column
/// begins where the one two before it ends, and all are as wide as if there were only three.
struct Columns {
    double gap = 0;
    double width = 0;             ///< of each place after the first round
    double firstWidth = 0;        ///< of each place before it
    std::array<double, 5> left{}; ///< of the teams and the winners of rounds 1 to 4
};

Columns columnsOf(const BoardGeometry& board, double width)
{
    Columns columns;
    columns.gap = width * kGap;
    const double first = board.positions[allPositions().front()].x;
    const double end = width / 2 - columns.gap;
    columns.width = (end - first - 1.5 * columns.gap - (kFirstColumn + kSwing) * board.textSize) / 3;
    columns.firstWidth = columns.width + kFirstColumn * board.textSize;
    const double second = first + columns.firstWidth + columns.gap;
    const double last = end - columns.width;
    columns.left = {first, second, last - columns.gap / 2 - columns.width, second + columns.width + columns.gap / 2,
                    last};
    return columns;
}

void spread(BoardGeometry& board, const Columns& columns, double width)
{
    for (const Position position : allPositions()) {
        if (position == kChampion)
            continue;
        const int column = teamRowOf(position) ? 0 : std::min(roundOf(position), 4);
        ui::Rectangle& place = board.positions[position];
        place.width = column == 0 ? columns.firstWidth : columns.width;
        place.x = columns.left.at(static_cast<std::size_t>(column));
        if (isInRightHalf(position))
            place.x = width - place.right();
    }
    ui::Rectangle& champion = board.positions[kChampion];
    const double room = width / 2 - (columns.left[2] + columns.width + kSwing * board.textSize) - columns.gap / 2;
    champion.width = std::min(2 * room, kWidestChampion * columns.width);
    champion.x = (width - champion.width) / 2;
}

/// @param x1, x2 in the left half
void connect(BoardGeometry& board, bool isRight, double width, double x1, double y1, double x2, double y2)
{
    if (isRight) {
        x1 = width - x1;
        x2 = width - x2;
    }
    board.connectors.push_back({x1, y1, x2, y2, {}});
}

/// Joins the entrants of a game with the place of its winner, which covers the middle of the line.
void join(BoardGeometry& board, const Columns& columns, double width, Position game)
{
    const bool isRight = isInRightHalf(game);
    const int round = roundOf(game);
    const auto [first, second] = *feeders(game);
    const double upper = board.positions[first].centreY();
    const double lower = board.positions[second].centreY();
    const double middle = board.positions[game].centreY();
    const auto line = [&](double x1, double y1, double x2, double y2) {
        connect(board, isRight, width, x1, y1, x2, y2);
    };
    if (round > 1 && round < 5) {
        const double bend = columns.left.at(static_cast<std::size_t>(round)) + columns.gap / 2;
        line(bend, upper, bend, lower);
        return;
    }
    // Beside the first column, and at the inner edge of the last one.
    const double edge = round == 1 ? columns.left[0] + columns.firstWidth : columns.left[4] + columns.width;
    const double bend = edge + columns.gap / 2;
    line(edge, upper, bend, upper);
    line(edge, lower, bend, lower);
    line(bend, upper, bend, lower);
    line(bend, middle, round == 1 ? columns.left[1] : edge, middle);
}

void joinAll(BoardGeometry& board, const Columns& columns, double width)
{
    board.connectors.clear();
    for (const Position game : gamePositions())
        if (game != kChampion)
            join(board, columns, width, game);
    const ui::Rectangle& champion = board.positions[kChampion];
    for (const Position entrant : {kSemifinalA, kSemifinalB}) {
        const double x = board.positions[entrant].centreX();
        board.connectors.push_back({x, board.positions[entrant].centreY(), x, champion.centreY(), {}});
        board.connectors.push_back({x, champion.centreY(), champion.centreX(), champion.centreY(), {}});
    }
}

/// Above and below the places of the later rounds, up to the middle.
void placeTitles(BoardGeometry& board, const Columns& columns, double width, double height)
{
    const double room = kTitle * board.textSize;
    const double left = columns.left[2];
    const double right = columns.left[4] + columns.width;
    for (int region = 0; region < kRegions; ++region)
        board.regionTitles[static_cast<std::size_t>(region)] = {
            region < 2 ? left : width - right, region % 2 == 0 ? kFrame : height - kFrame - room, right - left, room};
}

} // namespace

BoardGeometry layOutOutlook(double width, double height)
{
    BoardGeometry board = layOutBoard(width, height * (1 - kBottom), kShares);
    board.textSize = std::max(board.textSize, kSmallestText);
    const Columns columns = columnsOf(board, width);
    spread(board, columns, width);
    joinAll(board, columns, width);
    placeTitles(board, columns, width, height);
    const ui::Rectangle& champion = board.positions[kChampion];
    const double caption = board.championCaption.height;
    board.championCaption = {champion.x, champion.y - caption, champion.width, caption};
    return board;
}

ui::Rectangle swingPlace(const BoardGeometry& geometry, Position position)
{
    const ui::Rectangle& place = geometry.positions[position];
    if (teamRowOf(position)) {
        const double width = kShortSwing * geometry.textSize;
        return {place.right() - width, place.y, width, place.height};
    }
    const double width = kSwing * geometry.textSize;
    return {isSwingOnTheRight(position) ? place.right() : place.x - width, place.y, width, place.height};
}

ui::Rectangle teamBesideSwing(const BoardGeometry& geometry, Position position)
{
    ui::Rectangle place = geometry.positions[position];
    if (teamRowOf(position))
        place.width = swingPlace(geometry, position).x - place.x;
    return place;
}

} // namespace tallyhoop
