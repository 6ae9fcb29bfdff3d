// pool/position.h - the places of a 64-team bracket: four regions of 31, two semi-final winners, one champion.
//
// A place is counted in two ways: as a position on the board, 0..126, and as a line of a selection, 1..127, one more.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace tallyhoop {

inline constexpr int kRegions = 4;
inline constexpr int kRowsPerRegion = 16;
inline constexpr int kTeams = 64;
inline constexpr int kGames = 63;
inline constexpr int kRounds = 6;
inline constexpr int kPositions = 127;
inline constexpr int kRegionBlock = 31; ///< positions of one region
inline constexpr int kSemifinalA = 124; ///< winner of regions 1 and 2
inline constexpr int kSemifinalB = 125; ///< winner of regions 3 and 4
inline constexpr int kChampion = 126;
inline constexpr int kChampionEnd = 999; ///< what follows the champion: nothing

enum class Position : int {}; ///< a place on the board, 0..126: the index of `lblRegion`
enum class Slot : int {};     ///< a line of a selection, 1..127; slot s stands for position s - 1

constexpr int index(Position position) { return static_cast<int>(position); }
constexpr int index(Slot slot) { return static_cast<int>(slot); }
constexpr Position positionOf(Slot slot) { return Position{index(slot) - 1}; }
constexpr Slot slotOf(Position position) { return Slot{index(position) + 1}; }

/// @returns the position of the team in first-round row 0..15 of region 0..3
constexpr Position firstRoundPosition(int region, int row) { return Position{kRegionBlock * region + row}; }

/// @returns true for the 64 places that the setup fills
constexpr bool isFirstRound(Position position)
{
    return index(position) < kSemifinalA && index(position) % kRegionBlock < kRowsPerRegion;
}

/// @returns the round 1..6 whose winner stands at a position, 0 for a first-round row
int roundOf(Position position);

/// @returns the region 0..3 of a position, -1 for the last three
constexpr int regionOf(Position position)
{
    return index(position) < kSemifinalA ? index(position) / kRegionBlock : -1;
}

/// The 63 positions that hold a winner, ascending: `lblResult` i stands beside the i-th of them.
const std::array<Position, kGames>& gamePositions();

/// @returns which of the 63 games decides a position, -1 for a first-round row
int gameOf(Position position);

/// Where the winner of every place goes: 128 rows of (row, NextPosition).
class BracketMap
{
public:
    /// Fills the table; always with the same values.
    BracketMap();

    /// @param position 0..126; 127 is an unused row that gives 0
    /// @returns the position that a team moves to from here, kChampionEnd behind the champion
    int NextPosition(int position) const { return m_rows.at(static_cast<std::size_t>(position))[1]; }

    /// @returns the two positions whose teams meet for this one; both -1 for a first-round row
    std::array<int, 2> feeders(int position) const;

private:
    std::array<std::array<std::int16_t, 2>, 128> m_rows{};
};

/// The one table of the program.
const BracketMap& bracketMap();

} // namespace tallyhoop
