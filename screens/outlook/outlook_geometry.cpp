// screens/outlook/outlook_geometry.cpp - the board's arrangement with other shares, and the room beside its places.
#include "screens/outlook/outlook_geometry.h"

#include <algorithm>

namespace tallyhoop {

namespace {

constexpr BoardShares kShares{.top = 0.02,
                              .seed = 0,
                              .marker = 0,
                              .firstColumn = 1.75,
                              .centre = 0.05,
                              .champion = 2,
                              .textOfRow = 0.8,
                              .textOfColumn = 0.17};
constexpr double kSmallestText = 9; ///< where the units are pixels, less cannot be read

// In heights of a letter.
constexpr double kSwing = 3.9;      ///< room for "+100.0"
constexpr double kShortSwing = 3.1; ///< room for "+12.3": before the second round nobody has more at stake
constexpr double kTitle = 1.8;

constexpr double kFrame = 3; ///< room at the edges for a frame

/// Rounds 1 to 3 have their swings on the side of the middle of the board, later ones on the other: there the next or
/// the last column has no place at that height.
bool isSwingOnTheRight(Position position)
{
    const std::optional<int> region = regionOf(position);
    const bool isRightHalf = region ? *region >= 2 : position == kSemifinalB;
    return isRightHalf == (roundOf(position) > 3);
}

void placeTitles(BoardGeometry& board, double height)
{
    for (int region = 0; region < kRegions; ++region) {
        const Position winner = regionWinner(region);
        const ui::Rectangle& outer = board.positions[feeders(winner)->front()];
        const ui::Rectangle& inner = board.positions[winner];
        const double left = std::min(outer.x, inner.x);
        const double room = kTitle * board.textSize;
        board.regionTitles[static_cast<std::size_t>(region)] = {left, region % 2 == 0 ? kFrame : height - kFrame - room,
                                                                std::max(outer.right(), inner.right()) - left, room};
    }
}

} // namespace

BoardGeometry layOutOutlook(double width, double height)
{
    BoardGeometry board = layOutBoard(width, height, kShares);
    board.textSize = std::max(board.textSize, kSmallestText);
    placeTitles(board, height);
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
