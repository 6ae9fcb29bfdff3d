// pool/position.h - the places of a 64-team bracket, and all arithmetic with their numbers.
//
// Four regions of 31 places (16 teams, then the winners of four rounds), then two semi-final winners and the champion.
// The numbers are those of the data files and of the controls; nobody outside of these two files calculates with them.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>

namespace tallyhoop {

inline constexpr int kRegions = 4;
inline constexpr int kRowsPerRegion = 16;
inline constexpr int kTeams = 64;
inline constexpr int kGames = 63;
inline constexpr int kRounds = 6;
inline constexpr int kPositions = 127;

enum class Position : int {}; ///< a place of the bracket, 0..126: the index of `lblRegion`
enum class Game : int {};     ///< 0..62, in the order of the places of their winners: the index of `lblResult`
enum class TeamRow : int {};  ///< a row of the starting field, 0..63, region by region: the index of `txtSeed`

inline constexpr Position kSemifinalA{124}; ///< winner of regions 1 and 2
inline constexpr Position kSemifinalB{125}; ///< winner of regions 3 and 4
inline constexpr Position kChampion{126};

constexpr int index(Position position) { return static_cast<int>(position); }
constexpr int index(Game game) { return static_cast<int>(game); }
constexpr int index(TeamRow row) { return static_cast<int>(row); }

/// @returns where an array of the six rounds keeps a round 1..6
constexpr std::size_t roundIndex(int round) { return static_cast<std::size_t>(round - 1); }

/// A value for each of the N things that an enum counts, such as a verdict for each position.
template <class Id, class T, std::size_t N>
struct IndexedBy {
    std::array<T, N> values{};

    constexpr T& operator[](Id id) { return values[static_cast<std::size_t>(id)]; }
    constexpr const T& operator[](Id id) const { return values[static_cast<std::size_t>(id)]; }

    /// The values of so many neighbours.
    constexpr std::span<T> from(Id first, std::size_t count)
    {
        return std::span{values}.subspan(static_cast<std::size_t>(first), count);
    }
    constexpr std::span<const T> from(Id first, std::size_t count) const
    {
        return std::span{values}.subspan(static_cast<std::size_t>(first), count);
    }

    friend bool operator==(const IndexedBy&, const IndexedBy&) = default;
};

template <class T>
using ByPosition = IndexedBy<Position, T, kPositions>;
template <class T>
using ByGame = IndexedBy<Game, T, kGames>;
template <class T>
using ByTeamRow = IndexedBy<TeamRow, T, kTeams>;

/// The 127 positions in the order of their numbers: no winner comes before the two that met for it.
const std::array<Position, kPositions>& allPositions();

/// The 63 positions that hold a winner, in the order of their games.
const std::array<Position, kGames>& gamePositions();

/// The 64 rows of the starting field.
const std::array<TeamRow, kTeams>& allTeamRows();

/// The 16 positions of a region's teams, the 15 of its winners, and the three that follow the regions, ascending.
std::span<const Position> teamsOfRegion(int region);
std::span<const Position> gamesOfRegion(int region);
std::span<const Position> finalGames();

/// @returns the position of the team in first-round row 0..15 of region 0..3
Position firstRoundPosition(int region, int row);

/// @returns the position that a row of the starting field fills
Position positionOf(TeamRow row);

/// @returns the position of a game's winner
Position positionOf(Game game);

/// @returns the row of the starting field that fills a position; nothing for the place of a winner
std::optional<TeamRow> teamRowOf(Position position);

/// @returns the region 0..3 and the first-round row 0..15 of a row of the starting field
int regionOf(TeamRow row);
int rowInRegion(TeamRow row);

/// @returns the row of the starting field that is row 0..15 of region 0..3
TeamRow teamRowAt(int region, int row);

/// @returns the row so many rows further on, region by region; nothing after the last
std::optional<TeamRow> rowAfter(TeamRow row, std::size_t rows = 1);

/// @returns the game that decides a position, nothing for a first-round row
std::optional<Game> gameOf(Position position);

/// @returns true for the 64 places that the setup fills
bool isFirstRound(Position position);

/// @returns the round 1..6 whose winner a position holds, 0 for a first-round row
int roundOf(Position position);

/// @returns the region 0..3 of a position; nothing for the last three
std::optional<int> regionOf(Position position);

/// @returns the position that holds the winner of a region 0..3
Position regionWinner(int region);

/// @returns which game of its column a winner comes from, counted from 0: from the top of its region, or of the two
///          semi-finals
int gameOfColumn(Position position);

/// @returns where a team goes that wins from here; nothing after the champion
std::optional<Position> next(Position position);

/// @returns the two positions whose teams meet for this one, the upper first; nothing for a first-round row
std::optional<std::array<Position, 2>> feeders(Position position);

/// @returns true when a team at `source` may be carried to `target`: it is the same place or lies ahead on the way to
///          the championship
bool isOnPath(Position source, Position target);

} // namespace tallyhoop
