// screens/board/board_geometry.cpp - shares of width and height; the right half mirrors the left one.
#include "screens/board/board_geometry.h"

#include <algorithm>
#include <cmath>

namespace tallyhoop {

namespace {

constexpr int kRowsDown = 2 * kRowsPerRegion; ///< two regions are above one another

/// The measures from which every rectangle follows.
struct Measures {
    BoardShares shares;
    double width, height;
    double margin, gap;      ///< at the edges; between columns
    double top, regionGap;   ///< room above the first row; between upper and lower region
    double column, row, box; ///< width of a column; distance of two rows; height of a place
    double textSize;
};

Measures measure(double width, double height, const BoardShares& shares)
{
    Measures m{};
    m.shares = shares;
    m.width = width;
    m.height = height;
    m.margin = std::max(4.0, width * 0.006);
    m.gap = width * 0.0085;
    m.top = height * shares.top;
    m.regionGap = height * 0.026;
    m.row = (height - m.top - m.regionGap - m.margin) / kRowsDown;
    m.box = m.row * 0.9;
    m.column = (width / 2 - m.margin - 5 * m.gap) / (shares.firstColumn + 4 + shares.centre);
    m.textSize = std::min(m.row * shares.textOfRow, m.column * shares.textOfColumn);
    return m;
}

ui::Rectangle mirrored(const ui::Rectangle& place, double width)
{
    return {width - place.right(), place.y, place.width, place.height};
}

/// Left edge of the column that holds the winners of round 1..4 in the left half; 0 is the first round.
double columnLeft(const Measures& m, int round)
{
    if (round == 0)
        return m.margin;
    return m.margin + m.shares.firstColumn * m.column + m.gap + (round - 1) * (m.column + m.gap);
}

/// Middle height of row 0..15, which may lie between two rows, of the upper (0) or lower (1) region.
double rowCentre(const Measures& m, int lower, double row)
{
    return m.top + lower * (kRowsPerRegion * m.row + m.regionGap) + (row + 0.5) * m.row;
}

/// A place inside a region, as if that were in the left half.
ui::Rectangle placeInRegion(const Measures& m, int lower, Position position)
{
    if (const std::optional<TeamRow> row = teamRowOf(position)) {
        const double left = columnLeft(m, 0) + m.shares.seed * m.column;
        const double middle = rowCentre(m, lower, rowInRegion(*row));
        return {left, middle - m.box / 2, (m.shares.firstColumn - m.shares.seed) * m.column, m.box};
    }
    const int round = roundOf(position);
    const double rowsPerGame = std::pow(2, round);
    const double row = (gameOfColumn(position) + 0.5) * rowsPerGame - 0.5;
    return {columnLeft(m, round), rowCentre(m, lower, row) - m.box / 2, m.column, m.box};
}

void placeRegions(const Measures& m, BoardGeometry& board)
{
    for (int region = 0; region < kRegions; ++region) {
        const bool right = region >= 2;
        const auto side = [&](const ui::Rectangle& place) { return right ? mirrored(place, m.width) : place; };
        for (const Position game : gamesOfRegion(region))
            board.positions[game] = side(placeInRegion(m, region % 2, game));
        for (const Position team : teamsOfRegion(region)) {
            board.positions[team] = side(placeInRegion(m, region % 2, team));
            const TeamRow row = *teamRowOf(team);
            const double middle = rowCentre(m, region % 2, rowInRegion(row));
            board.seeds[row] = side({columnLeft(m, 0), middle - m.box / 2, m.shares.seed * m.column, m.box});
        }
        board.regionTitles[static_cast<std::size_t>(region)] =
            side({columnLeft(m, 3), rowCentre(m, region % 2, 0) - m.row / 2, 1.5 * m.column + m.gap, 1.7 * m.row});
    }
}

void placeFinals(const Measures& m, BoardGeometry& board)
{
    const double middle = m.top + (m.height - m.top - m.margin) / 2;
    const double champion = middle - m.shares.champion * m.row;
    const ui::Rectangle semifinal{columnLeft(m, 4), middle - m.box / 2, m.column, m.box};
    const double width = 1.5 * m.column;
    board.positions[kSemifinalA] = semifinal;
    board.positions[kSemifinalB] = mirrored(semifinal, m.width);
    board.positions[kChampion] = {m.width / 2 - width / 2, champion - 0.7 * m.row, width, 1.4 * m.row};
    board.championCaption = {m.width / 2 - width / 3, champion - 2.0 * m.row, 2 * width / 3, 1.1 * m.row};
}

void placeMarkers(const Measures& m, BoardGeometry& board)
{
    for (const Position position : gamePositions()) {
        ui::Rectangle& place = board.positions[position];
        const double width = m.shares.marker * m.column;
        place.width -= width;
        board.results[*gameOf(position)] = {place.right(), place.y, width, place.height};
    }
}

/// A round's name and its points side by side, together centred in a strip.
void placeRound(BoardGeometry& board, std::size_t caption, const ui::Rectangle& strip)
{
    const double name = strip.width * 0.68;
    board.roundCaptions[caption] = {strip.x, strip.y, name, strip.height};
    board.roundPoints[caption] = {strip.x + name, strip.y, strip.width - name, strip.height};
}

void placeHeaders(const Measures& m, BoardGeometry& board)
{
    const double headerHeight = m.top * 0.34;
    board.title = {m.width * 0.2, m.top * 0.06, m.width * 0.6, m.top * 0.54};
    board.demoMode = {m.margin, m.top * 0.06, m.width * 0.19, m.top * 0.54};
    for (int round = 1; round <= 4; ++round) {
        const ui::Rectangle strip{columnLeft(m, round), m.top - headerHeight * 1.06, m.column, headerHeight};
        placeRound(board, roundIndex(round), strip);
        placeRound(board, roundIndex(round) + 4, mirrored(strip, m.width));
    }
    const ui::Rectangle& semifinal = board.positions[kSemifinalA];
    const double centre = m.width / 2;
    placeRound(board, 8, {centre - 0.6 * m.column, semifinal.bottom() + 0.25 * m.row, 1.2 * m.column, m.row * 1.1});
    const ui::Rectangle& champion = board.positions[kChampion];
    placeRound(board, 9, {centre - 0.75 * m.column, champion.bottom() + 0.1 * m.row, 1.5 * m.column, m.row * 1.1});
}

/// The whole place of a position, its marker included.
ui::Rectangle wholePlace(const BoardGeometry& board, Position position)
{
    ui::Rectangle place = board.positions[position];
    if (const std::optional<Game> game = gameOf(position))
        place.width += board.results[*game].width;
    return place;
}

/// The bracket that joins two entrants with the place of their winner, all in the left half or all in the right one.
void joinInRegion(const Measures& m, BoardGeometry& board, Position position)
{
    const auto [first, second] = *feeders(position);
    const ui::Rectangle upper = wholePlace(board, first);
    const ui::Rectangle lower = wholePlace(board, second);
    const ui::Rectangle winner = wholePlace(board, position);
    const bool right = *regionOf(position) >= 2;
    const double from = right ? upper.x : upper.right();
    const double bend = right ? upper.x - m.gap / 2 : upper.right() + m.gap / 2;
    const double to = right ? winner.right() : winner.x;
    board.connectors.push_back({from, upper.centreY(), bend, upper.centreY(), {}});
    board.connectors.push_back({from, lower.centreY(), bend, lower.centreY(), {}});
    board.connectors.push_back({bend, upper.centreY(), bend, lower.centreY(), {}});
    board.connectors.push_back({bend, winner.centreY(), to, winner.centreY(), {}});
}

/// The region winners are above and below their semi-final, in the same column: the line runs along the inner edge.
void joinSemifinal(const Measures& m, BoardGeometry& board, Position position)
{
    const bool right = position == kSemifinalB;
    const auto [first, second] = *feeders(position);
    const ui::Rectangle upper = wholePlace(board, first);
    const ui::Rectangle lower = wholePlace(board, second);
    const ui::Rectangle winner = wholePlace(board, position);
    const double edge = right ? winner.x : winner.right();
    const double bend = right ? edge - m.gap / 2 : edge + m.gap / 2;
    for (const double y : {upper.centreY(), winner.centreY(), lower.centreY()})
        board.connectors.push_back({edge, y, bend, y, {}});
    board.connectors.push_back({bend, upper.centreY(), bend, lower.centreY(), {}});
}

void joinFinal(BoardGeometry& board)
{
    const ui::Rectangle champion = wholePlace(board, kChampion);
    for (const Position entrant : {kSemifinalA, kSemifinalB}) {
        const ui::Rectangle place = wholePlace(board, entrant);
        const double edge = entrant == kSemifinalA ? champion.x : champion.right();
        board.connectors.push_back({place.centreX(), place.y, place.centreX(), champion.centreY(), {}});
        board.connectors.push_back({place.centreX(), champion.centreY(), edge, champion.centreY(), {}});
    }
}

/// How far a place lies in a direction, and how far off the line; nothing useful when it lies the other way.
struct Reach {
    double ahead, aside;
};

Reach reach(const ui::Rectangle& from, const ui::Rectangle& to, Direction direction)
{
    const double dx = to.centreX() - from.centreX();
    const double dy = to.centreY() - from.centreY();
    switch (direction) {
    case Direction::Up:
        return {-dy, std::abs(dx)};
    case Direction::Down:
        return {dy, std::abs(dx)};
    case Direction::Left:
        return {-dx, std::abs(dy)};
    case Direction::Right:
        break;
    }
    return {dx, std::abs(dy)};
}

} // namespace

BoardGeometry layOutBoard(double width, double height, const BoardShares& shares)
{
    const Measures m = measure(width, height, shares);
    BoardGeometry board;
    board.textSize = m.textSize;
    placeRegions(m, board);
    placeFinals(m, board);
    placeMarkers(m, board);
    placeHeaders(m, board);
    for (int region = 0; region < kRegions; ++region)
        for (const Position game : gamesOfRegion(region))
            joinInRegion(m, board, game);
    joinSemifinal(m, board, kSemifinalA);
    joinSemifinal(m, board, kSemifinalB);
    joinFinal(board);
    return board;
}

std::optional<Direction> directionOf(ui::Key key)
{
    switch (key) {
    case ui::Key::Up:
        return Direction::Up;
    case ui::Key::Down:
        return Direction::Down;
    case ui::Key::Left:
        return Direction::Left;
    case ui::Key::Right:
        return Direction::Right;
    default:
        return std::nullopt;
    }
}

Position neighbour(const BoardGeometry& geometry, Position position, Direction direction)
{
    const ui::Rectangle from = wholePlace(geometry, position);
    // Up and down stay in the column; left and right may leave the row, because the next round is between two rows.
    const bool vertical = direction == Direction::Up || direction == Direction::Down;
    const double minimum = vertical ? 1.0 : from.width / 3;
    Position nearest = position;
    double best = 0;
    for (const Position candidate : allPositions()) {
        const auto [ahead, aside] = reach(from, wholePlace(geometry, candidate), direction);
        if (candidate == position || ahead < minimum || (vertical && aside > 0.95 * from.width))
            continue;
        const double distance = vertical ? ahead + 1000 * aside : 20 * ahead + aside;
        if (nearest == position || distance < best) {
            nearest = candidate;
            best = distance;
        }
    }
    return nearest;
}

} // namespace tallyhoop
