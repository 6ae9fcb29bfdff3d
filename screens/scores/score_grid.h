// screens/scores/score_grid.h - the table of the score display: its columns, moving them, and sorting by their order.
#pragma once

#include "pool/scoring.h"
#include "ui/control.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tallyhoop {

/// The columns as they stand before any is moved: file name, player name, score, maximum, winning pick. A "<" aligns to
/// the left, a ">" to the right; a column is as wide as its heading with the blanks behind it.
inline constexpr std::string_view kScoreColumns =
    "<File Name                       |<Player Name        |>Score   |>-MAX- |<Winning Pick           ";

/// Takes a format such as kScoreColumns apart.
std::vector<ui::GridColumn> columnsOf(std::string_view format);

/// @returns a player's cells in the columns' original order
std::vector<std::string> cellsOf(const ScoreLine& line);

/// Moves a column, its cells with it, to the place of another; those between move up.
/// @param from, to indices of columns; nothing happens when one is not
void moveColumn(ui::Grid& grid, std::size_t from, std::size_t to);

/// Sorts the rows by all columns, the leftmost first; equal rows keep their order.
///
/// The first row's leftmost cell decides how: a number above 0 puts the highest numbers first, each cell counting as
/// the number it begins with (0 when it begins with none). Anything else sorts upwards: two numbers by value, other
/// cells as text without regard to case.
void SortGrid(ui::Grid& grid);

} // namespace tallyhoop
