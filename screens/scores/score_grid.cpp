// screens/scores/score_grid.cpp - columns that a person drags, and rows that follow them.
#include "screens/scores/score_grid.h"

#include "base/numbers.h"
#include "base/text.h"
#include "base/windows1252.h"

#include <algorithm>
#include <functional>
#include <iterator>
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

template <class T>
void moveElement(std::vector<T>& elements, std::size_t from, std::size_t to)
{
    const auto at = [&elements](std::size_t place) { return elements.begin() + static_cast<std::ptrdiff_t>(place); };
    if (from < to)
        std::rotate(at(from), at(from + 1), at(to + 1));
    else
        std::rotate(at(to), at(from), at(from + 1));
}

} // namespace

std::vector<ui::GridColumn> columnsOf(std::string_view format)
{
    std::vector<ui::GridColumn> columns;
    for (const std::string& part : split(format, '|')) {
        const std::string heading = part.substr(1); // behind the alignment
        columns.push_back({trimTrailingBlanks(heading),
                           part.front() == '>' ? ui::Alignment::Right : ui::Alignment::Left,
                           static_cast<int>(heading.size())});
    }
    return columns;
}

std::vector<std::string> cellsOf(const ScoreLine& line)
{
    return {line.FileName, line.PlayerName, std::to_string(line.Points), std::to_string(line.MaxPoints),
            line.WinningPick};
}

void moveColumn(ui::Grid& grid, std::size_t from, std::size_t to)
{
    if (from >= grid.columns.size() || to >= grid.columns.size())
        return;
    moveElement(grid.columns, from, to);
    for (std::vector<std::string>& row : grid.rows)
        moveElement(row, from, to);
    ++grid.revision;
}

void SortGrid(ui::Grid& grid)
{
    if (grid.rows.empty() || grid.columns.empty())
        return;
    std::vector<SortRow> order = sortRows(grid.rows);
    mergeSort(order, directionOf(order));
    std::vector<std::vector<std::string>> sorted;
    sorted.reserve(order.size());
    for (const SortRow& row : order)
        sorted.push_back(std::move(grid.rows[row.place]));
    grid.rows = std::move(sorted);
    ++grid.revision;
}

} // namespace tallyhoop
