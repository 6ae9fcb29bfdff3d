// screens/scores/score_table.h - the list of all scores: its columns, moving them, and sorting by their order.
#pragma once

#include "files/data_folder.h"
#include "pool/scoring.h"
#include "reports/score_list.h"
#include "ui/control.h"

#include <cstddef>
#include <string>
#include <vector>

namespace tallyhoop {

/// A player's row, and the file that was scored.
struct ListedScore {
    PlayerScore score;
    FolderFile file;
};

class ScoreTable
{
public:
    /// All columns in their first order, the rows in the order given.
    void begin(std::vector<ListedScore> rows);

    const std::vector<ScoreColumn>& columns() const { return m_columns; }
    const std::vector<ListedScore>& rows() const { return m_rows; }

    /// Moves a column to the place of another, those between move up, and sorts the rows by all columns.
    /// @param from, to places of columns; nothing happens when one is not
    void moveColumn(std::size_t from, std::size_t to);

    /// Moves the scores to the front and sorts by them, the highest first also where the first row has none.
    void bestFirst();

    /// Counts the changes.
    unsigned revision() const { return m_revision; }

    /// Shows the table as it is now, unless the grid shows it already: it may be long.
    void show(ui::Grid& grid) const;

private:
    std::vector<std::string> cellsOf(const ListedScore& row) const;
    void shift(std::size_t from, std::size_t to);
    void arrange(const std::vector<std::size_t>& places);
    std::vector<std::vector<std::string>> allCells() const;

    std::vector<ScoreColumn> m_columns;
    std::vector<ListedScore> m_rows;
    unsigned m_revision = 0;
};

/// Says how rows of cells are to be sorted: by all columns, the leftmost first; equal rows keep their order.
///
/// The first row's leftmost cell decides how: a number above 0 puts the highest numbers first, each cell counting as
/// the number it begins with (0 when it begins with none). Anything else sorts upwards: two numbers by value, other
/// cells as text without regard to case.
/// @returns the places of the rows in their new order
std::vector<std::size_t> sortedOrder(const std::vector<std::vector<std::string>>& rows);

/// The same, but always with the highest numbers first.
std::vector<std::size_t> orderFromTheHighest(const std::vector<std::vector<std::string>>& rows);

} // namespace tallyhoop
