// base/csv_cells.cpp - one character after another; a quotation mark inside of quotation marks is doubled.
#include "base/csv_cells.h"

#include "base/text.h"

#include <algorithm>
#include <map>
#include <utility>

namespace tallyhoop {

namespace {

/// Excel's own way to name the separator: a first line such as "sep=;".
constexpr std::string_view kSeparatorLine = "sep=";

constexpr std::string_view kSeparators = ",;\t";

bool isFormula(std::string_view cell)
{
    const std::size_t first = cell.find_first_not_of("' "); // some spreadsheets leave outer blanks out
    return first != std::string_view::npos &&
           std::string_view{"=+-@\t\r\n"}.find(cell[first]) != std::string_view::npos;
}

class CsvReader
{
public:
    CsvReader(std::string_view text, char separator) : m_text{text}, m_separator{separator} {}

    Result<std::vector<CsvRow>> read()
    {
        std::vector<CsvRow> rows;
        while (m_at < m_text.size()) {
            CsvRow row(1);
            if (!takeRow(row))
                return Failure{"A quotation mark in row " + std::to_string(rows.size() + 1) + " is not closed."};
            rows.push_back(std::move(row));
        }
        return rows;
    }

private:
    /// @returns false when a quotation mark is not closed
    bool takeRow(CsvRow& row)
    {
        while (m_at < m_text.size()) {
            const char c = m_text[m_at];
            if (c == '\r' || c == '\n') {
                endLine();
                return true;
            }
            ++m_at;
            if (c == m_separator)
                row.emplace_back();
            else if (c != '"' || !row.back().empty())
                row.back().push_back(c); // a quotation mark inside of a cell that has none around it is one of its own
            else if (!takeQuoted(row.back()))
                return false;
        }
        return true;
    }

    bool takeQuoted(std::string& cell)
    {
        while (m_at < m_text.size()) {
            const char c = m_text[m_at++];
            if (c != '"') {
                cell.push_back(c);
            } else if (m_at < m_text.size() && m_text[m_at] == '"') {
                cell.push_back('"');
                ++m_at;
            } else {
                return true;
            }
        }
        return false;
    }

    void endLine()
    {
        if (m_text[m_at++] == '\r' && m_at < m_text.size() && m_text[m_at] == '\n')
            ++m_at;
    }

    std::string_view m_text;
    char m_separator;
    std::size_t m_at = 0;
};

/// Of rows with several cells, most have a number of cells in common.
struct Alike {
    std::size_t rows = 0;
    std::size_t cells = 0;

    bool isMoreThan(const Alike& other) const { return rows != other.rows ? rows > other.rows : cells > other.cells; }
};

Alike alikeIn(const std::vector<CsvRow>& rows)
{
    std::map<std::size_t, std::size_t> rowsOfSize;
    for (const CsvRow& row : rows)
        if (row.size() > 1)
            ++rowsOfSize[row.size()];
    Alike most;
    for (const auto& [cells, count] : rowsOfSize)
        if (const Alike alike{count, cells}; alike.isMoreThan(most))
            most = alike;
    return most;
}

/// A separator makes rows alike. Counting it does not help: commas may be in every title of a table that has
/// semicolons.
Result<std::vector<CsvRow>> rowsByTheirSeparator(std::string_view text)
{
    Result<std::vector<CsvRow>> best = CsvReader{text, kSeparators.front()}.read();
    Alike most = best ? alikeIn(*best) : Alike{};
    for (const char separator : kSeparators.substr(1)) {
        if (text.find(separator) == std::string_view::npos)
            continue;
        Result<std::vector<CsvRow>> rows = CsvReader{text, separator}.read();
        const Alike alike = rows ? alikeIn(*rows) : Alike{};
        const bool saysMore = !rows && most.rows == 0; // than cells that are whole lines
        if (alike.isMoreThan(most) || saysMore) {
            most = alike;
            best = std::move(rows);
        }
    }
    return best;
}

std::string quotedCell(std::string_view cell)
{
    // A semicolon, too: some spreadsheets would end the cell there, and take what follows for a formula.
    const bool needsQuotes =
        cell.find_first_of("\",;\t\r\n") != std::string_view::npos || cell.starts_with(' ') || cell.ends_with(' ');
    if (!needsQuotes)
        return std::string{cell};
    std::string all = "\"";
    for (const char c : cell) {
        all.push_back(c);
        if (c == '"')
            all.push_back(c);
    }
    return all + '"';
}

} // namespace

Result<std::vector<CsvRow>> csvRows(std::string_view text)
{
    const std::string_view line = text.substr(0, text.find_first_of("\r\n"));
    const bool isNamed = line.size() == kSeparatorLine.size() + 1 && line.starts_with(kSeparatorLine) &&
                         kSeparators.find(line.back()) != std::string_view::npos;
    if (!isNamed)
        return rowsByTheirSeparator(text);
    std::string_view table = text.substr(line.size());
    table.remove_prefix(table.starts_with(kLineBreak) ? kLineBreak.size() : std::min<std::size_t>(table.size(), 1));
    return CsvReader{table, line.back()}.read();
}

std::string csvText(std::span<const CsvRow> rows)
{
    std::string text;
    for (const CsvRow& row : rows) {
        std::vector<std::string> cells;
        cells.reserve(row.size());
        std::ranges::transform(row, std::back_inserter(cells), quotedCell);
        text += joined(cells, ",");
        text += kLineBreak;
    }
    return text;
}

std::string guarded(std::string_view cell) { return isFormula(cell) ? '\'' + std::string{cell} : std::string{cell}; }

std::string unguarded(std::string_view cell)
{
    return std::string{cell.starts_with('\'') && isFormula(cell) ? cell.substr(1) : cell};
}

} // namespace tallyhoop
