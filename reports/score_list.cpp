// reports/score_list.cpp - columns as wide as what they hold, in a fixed-pitch font.
#include "reports/score_list.h"

#include "base/text.h"

#include <algorithm>
#include <cstddef>
#include <fmt/format.h>
#include <utility>

namespace tallyhoop {

namespace {

constexpr std::size_t kNarrow = 5;        ///< columns up to this width hold numbers
constexpr std::size_t kNumberWidth = 6;   ///< and are printed to the right in this one
constexpr std::size_t kWidestFormat = 38; ///< a longer text is printed whole, without padding for the others
constexpr std::size_t kMargin = 5;
constexpr std::size_t kGap = 2;

using Row = std::vector<std::string>;

/// The table as it is printed: headings first, something in every cell.
std::vector<Row> tableOf(const Row& headings, std::span<const Row> rows)
{
    std::vector<Row> table{headings};
    table.insert(table.end(), rows.begin(), rows.end());
    for (Row& row : table)
        for (std::string& cell : row)
            if (cell.empty())
                cell = " ";
    return table;
}

std::vector<std::size_t> widthsOf(const std::vector<Row>& table)
{
    std::vector<std::size_t> widths(table.front().size());
    for (const Row& row : table)
        for (std::size_t column = 0; column < widths.size(); ++column)
            widths[column] = std::max(widths[column], row[column].size());
    return widths;
}

std::string missingBlanks(const std::string& text, std::size_t width)
{
    return blanks(width > text.size() ? width - text.size() : 0);
}

std::string printedCell(const std::string& text, std::size_t columnWidth)
{
    if (columnWidth <= kNarrow)
        return missingBlanks(text, kNumberWidth) + text;
    return text + missingBlanks(text, std::min(columnWidth, kWidestFormat));
}

std::string printedRow(const Row& row, const std::vector<std::size_t>& widths)
{
    std::string line = blanks(kMargin);
    for (std::size_t column = 0; column < row.size(); ++column) {
        if (column > 0)
            line += blanks(kGap);
        line += printedCell(row[column], widths[column]);
    }
    return asOneLine(std::move(line)); // the name of a file can hold line breaks
}

} // namespace

const char* headingOf(ScoreColumn column)
{
    switch (column) {
    case ScoreColumn::FileName:
        return "File Name";
    case ScoreColumn::PlayerName:
        return "Player Name";
    case ScoreColumn::Score:
        return "Score";
    case ScoreColumn::Maximum:
        return "-MAX-";
    case ScoreColumn::WinningPick:
        break;
    }
    return "Winning Pick";
}

std::string cellOf(const PlayerScore& score, ScoreColumn column)
{
    switch (column) {
    case ScoreColumn::FileName:
        return score.fileName;
    case ScoreColumn::PlayerName:
        return score.playerName;
    case ScoreColumn::Score:
        return std::to_string(score.points);
    case ScoreColumn::Maximum:
        return std::to_string(score.maxPoints);
    case ScoreColumn::WinningPick:
        break;
    }
    return score.winningPick;
}

std::string shortDate(std::chrono::year_month_day day)
{
    constexpr std::array<const char*, 12> kMonths = {"January",   "February", "March",    "April",
                                                     "May",       "June",     "July",     "August",
                                                     "September", "October",  "November", "December"};
    const int yearOfCentury = (static_cast<int>(day.year()) % 100 + 100) % 100;
    return fmt::format("{}-{}-{:02}", static_cast<unsigned>(day.day()),
                       kMonths.at(static_cast<unsigned>(day.month()) - 1), yearOfCentury);
}

std::vector<std::string> scoreListLines(const Row& headings, std::span<const Row> rows, std::chrono::year_month_day day)
{
    const std::vector<Row> table = tableOf(headings, rows);
    const std::vector<std::size_t> widths = widthsOf(table);
    std::vector<std::string> lines{blanks(kMargin) + "           TALLYHOOP POINT SUMMARY: " + shortDate(day), "", "",
                                   printedRow(table.front(), widths), ""};
    for (std::size_t row = 1; row < table.size(); ++row)
        lines.push_back(printedRow(table[row], widths));
    return lines;
}

} // namespace tallyhoop
