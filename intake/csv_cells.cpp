// intake/csv_cells.cpp - one character after another; a quotation mark inside of quotation marks is doubled.
#include "intake/csv_cells.h"

#include "base/text.h"

#include <algorithm>
#include <utility>

namespace tallyhoop {

namespace {

/// Excel's own way to name the separator: a first line such as "sep=;".
constexpr std::string_view kSeparatorLine = "sep=";

bool isFormula(std::string_view cell)
{
    const std::size_t first = cell.find_first_not_of('\'');
    return first != std::string_view::npos &&
           std::string_view{"=+-@\t\r\n"}.find(cell[first]) != std::string_view::npos;
}

/// @returns the separator that the first line has more of, outside of quotation marks
char separatorOf(std::string_view text)
{
    std::size_t commas = 0;
    std::size_t semicolons = 0;
    bool isQuoted = false;
    for (const char c : text) {
        if (c == '"')
            isQuoted = !isQuoted;
        else if (!isQuoted && (c == '\r' || c == '\n'))
            break;
        commas += !isQuoted && c == ',' ? 1 : 0;
        semicolons += !isQuoted && c == ';' ? 1 : 0;
    }
    return semicolons > commas ? ';' : ',';
}

class CsvReader
{
public:
    explicit CsvReader(std::string_view text) : m_text{text}
    {
        if (text.starts_with(kSeparatorLine) && text.size() > kSeparatorLine.size() &&
            std::string_view{",;\t"}.find(text[kSeparatorLine.size()]) != std::string_view::npos &&
            (text.substr(kSeparatorLine.size() + 1).find_first_of("\r\n") == 0)) {
            m_separator = text[kSeparatorLine.size()];
            m_at = kSeparatorLine.size() + 1;
            endLine();
        } else {
            m_separator = separatorOf(text);
        }
    }

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
    std::size_t m_at = 0;
    char m_separator = ',';
};

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

Result<std::vector<CsvRow>> csvRows(std::string_view text) { return CsvReader{text}.read(); }

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
