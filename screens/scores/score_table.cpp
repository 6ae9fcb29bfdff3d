// screens/scores/score_table.cpp - columns that a person drags, and rows that follow them.
#include "screens/scores/score_table.h"

#include "base/numbers.h"
#include "base/windows1252.h"

#include <algorithm>
#include <functional>
#include <numeric>
#include <span>
#include <utility>

namespace tallyhoop {

namespace {

/// A cell as sorting sees it; its numbers are read once, not at every comparison.
struct SortCell {
    const std::string* text = nullptr;
    double leading = 0;
    bool isNumber = false;
};

/// A row's cells and its place before sorting.
struct SortRow {
    std::vector<SortCell> cells;
    std::size_t place = 0;
};

/// @returns below 0, 0 or above 0: whether the left one comes first, it makes no difference, or the right one does
using CompareCells = int (*)(const SortCell& left, const SortCell& right);

int compareNumbers(double left, double right) { return (left > right) - (left < right); }

int numericDescending(const SortCell& left, const SortCell& right)
{
    return compareNumbers(right.leading, left.leading);
}

int genericAscending(const SortCell& left, const SortCell& right)
{
    if (left.isNumber && right.isNumber)
        return compareNumbers(left.leading, right.leading);
    return compareFolded(*left.text, *right.text);
}

bool comesBefore(const SortRow& left, const SortRow& right, CompareCells compare)
{
    const std::size_t columns = std::min(left.cells.size(), right.cells.size());
    for (std::size_t column = 0; column < columns; ++column)
        if (const int order = compare(left.cells[column], right.cells[column]); order != 0)
            return order < 0;
    return false;
}

/// A merge sort of our own: cells that are partly numbers can contradict each other ("9" before "10" before "1a" before
/// "9"), which the library's sorting must not be given.
void mergeSort(std::span<SortRow> rows, CompareCells compare)
{
    if (rows.size() < 2)
        return;
    const std::span<SortRow> first = rows.first(rows.size() / 2);
    const std::span<SortRow> second = rows.subspan(first.size());
    mergeSort(first, compare);
    mergeSort(second, compare);

    std::vector<SortRow> merged;
    merged.reserve(rows.size());
    std::size_t left = 0;
    std::size_t right = 0;
    while (left < first.size() || right < second.size()) {
        const bool takeRight =
            left == first.size() || (right < second.size() && comesBefore(second[right], first[left], compare));
        merged.push_back(std::move(takeRight ? second[right++] : first[left++]));
    }
    std::ranges::move(merged, rows.begin());
}

std::vector<SortRow> sortRows(const std::vector<std::vector<std::string>>& rows)
{
    std::vector<SortRow> result;
    result.reserve(rows.size());
    for (std::size_t place = 0; place < rows.size(); ++place) {
        SortRow row{{}, place};
        for (const std::string& text : rows[place])
            row.cells.push_back({&text, leadingNumber(text), isNumber(text)});
        result.push_back(std::move(row));
    }
    return result;
}

CompareCells directionOf(const std::vector<SortRow>& rows)
{
    const SortCell& decides = rows.front().cells.front();
    return decides.isNumber && decides.leading > 0 ? numericDescending : genericAscending;
}

std::vector<std::size_t> naturalOrder(std::size_t count)
{
    std::vector<std::size_t> places(count);
    std::iota(places.begin(), places.end(), std::size_t{0});
    return places;
}

std::vector<std::size_t> sorted(std::span<SortRow> rows, CompareCells compare)
{
    mergeSort(rows, compare);
    std::vector<std::size_t> places;
    places.reserve(rows.size());
    for (const SortRow& row : rows)
        places.push_back(row.place);
    return places;
}

/// A column, and how wide it is in characters.
ui::GridColumn gridColumnOf(ScoreColumn column)
{
    switch (column) {
    case ScoreColumn::FileName:
        return {headingOf(column), ui::Alignment::Left, 32};
    case ScoreColumn::PlayerName:
        return {headingOf(column), ui::Alignment::Left, 19};
    case ScoreColumn::Score:
        return {headingOf(column), ui::Alignment::Right, 8};
    case ScoreColumn::Maximum:
        return {headingOf(column), ui::Alignment::Right, 6};
    case ScoreColumn::WinningPick:
        break;
    }
    return {headingOf(column), ui::Alignment::Left, 23};
}

} // namespace

void ScoreTable::begin(std::vector<ListedScore> rows)
{
    m_columns.assign(kScoreColumns.begin(), kScoreColumns.end());
    m_rows = std::move(rows);
    ++m_revision;
}

void ScoreTable::moveColumn(std::size_t from, std::size_t to)
{
    if (from >= m_columns.size() || to >= m_columns.size())
        return;
    shift(from, to);
    arrange(sortedOrder(allCells()));
}

void ScoreTable::bestFirst()
{
    const auto score = std::ranges::find(m_columns, ScoreColumn::Score);
    if (score == m_columns.end())
        return;
    shift(static_cast<std::size_t>(score - m_columns.begin()), 0);
    arrange(orderFromTheHighest(allCells()));
}

/// Moves a column to the place of another; those between move up.
void ScoreTable::shift(std::size_t from, std::size_t to)
{
    const auto at = [this](std::size_t place) { return m_columns.begin() + static_cast<std::ptrdiff_t>(place); };
    if (from < to)
        std::rotate(at(from), at(from + 1), at(to + 1));
    else
        std::rotate(at(to), at(from), at(from + 1));
}

std::vector<std::vector<std::string>> ScoreTable::allCells() const
{
    std::vector<std::vector<std::string>> cells;
    cells.reserve(m_rows.size());
    for (const ListedScore& row : m_rows)
        cells.push_back(cellsOf(row));
    return cells;
}

void ScoreTable::arrange(const std::vector<std::size_t>& places)
{
    std::vector<ListedScore> sorted;
    sorted.reserve(m_rows.size());
    for (const std::size_t place : places)
        sorted.push_back(std::move(m_rows[place]));
    m_rows = std::move(sorted);
    ++m_revision;
}

void ScoreTable::show(ui::Grid& grid) const
{
    if (grid.revision == m_revision)
        return;
    grid.columns.clear();
    for (const ScoreColumn column : m_columns)
        grid.columns.push_back(gridColumnOf(column));
    grid.rows.clear();
    grid.rows.reserve(m_rows.size());
    for (const ListedScore& row : m_rows)
        grid.rows.push_back(cellsOf(row));
    grid.revision = m_revision;
}

std::vector<std::string> ScoreTable::cellsOf(const ListedScore& row) const
{
    std::vector<std::string> cells;
    for (const ScoreColumn column : m_columns)
        cells.push_back(cellOf(row.score, column));
    return cells;
}

std::vector<std::size_t> sortedOrder(const std::vector<std::vector<std::string>>& rows)
{
    if (rows.empty() || rows.front().empty())
        return naturalOrder(rows.size());
    std::vector<SortRow> order = sortRows(rows);
    return sorted(order, directionOf(order));
}

std::vector<std::size_t> orderFromTheHighest(const std::vector<std::vector<std::string>>& rows)
{
    std::vector<SortRow> order = sortRows(rows);
    return sorted(order, numericDescending);
}

} // namespace tallyhoop
