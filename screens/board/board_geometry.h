// screens/board/board_geometry.h - where everything of the bracket is: one arrangement for the screen and for paper.
//
// Region 1 is top left, 2 bottom left, 3 top right, 4 bottom right; the right half is the left one mirrored. The
// semi-final winners and the champion are in the middle.
#pragma once

#include "pool/position.h"
#include "ui/drawing.h"
#include "ui/keys.h"

#include <array>
#include <optional>
#include <vector>

namespace tallyhoop {

/// How many captions name the rounds: rounds 1..4 on the left, then 1..4 on the right, the semi-final, the final.
inline constexpr std::size_t kRoundCaptions = 10;

struct BoardGeometry {
    double textSize = 0; ///< height of the letters of a team name

    ui::Rectangle title;
    ui::Rectangle demoMode;
    std::array<ui::Rectangle, kRegions> regionTitles;
    ByPosition<ui::Rectangle> positions;
    ByGame<ui::Rectangle> results; ///< the markers, right of the places they belong to
    ByTeamRow<ui::Rectangle> seeds;
    std::array<ui::Rectangle, kRoundCaptions> roundCaptions;
    std::array<ui::Rectangle, kRoundCaptions> roundPoints; ///< rounds 1..4 left, 1..4 right, semi-final, final
    ui::Rectangle championCaption;
    std::vector<ui::Stroke> connectors; ///< black; whoever draws them chooses the colour
};

/// How the room is shared out; by default as on the board.
struct BoardShares {
    double top = 0.094;          ///< room for the headers above the first row, of the height
    double seed = 0.19;          ///< width of a seed, in columns
    double marker = 0.14;        ///< width of a marker, in columns
    double firstColumn = 1.24;   ///< width of seed and team of the first column, in columns
    double centre = 0.16;        ///< half the room between the halves, in columns
    double champion = 4.6;       ///< height of the champion above the middle, in rows
    double textOfRow = 0.72;     ///< letters are not higher, in rows
    double textOfColumn = 0.102; ///< nor than this, in columns
};

/// Lays the bracket out in an area of this size.
/// @param width, height in the caller's units, at least 1
BoardGeometry layOutBoard(double width, double height, const BoardShares& shares = {});

/// Which way an arrow key goes.
enum class Direction { Up, Down, Left, Right };

/// @returns the direction of an arrow key, nothing for any other key
std::optional<Direction> directionOf(ui::Key key);

/// @returns the position that an arrow key reaches from here along the picture; the same one at the edge
Position neighbour(const BoardGeometry& geometry, Position position, Direction direction);

} // namespace tallyhoop
