// reports/text_table.cpp - measures the cells, and puts them beside each other.
#include "reports/text_table.h"

#include "base/text.h"

#include <algorithm>

namespace tallyhoop {

namespace {

constexpr std::size_t kGap = 2;

std::vector<std::size_t> widthsOf(std::span<const TextColumn> columns, std::span<const std::vector<std::string>> rows)
{
    std::vector<std::size_t> widths(columns.size());
    for (std::size_t i = 0; i < columns.size(); ++i) {
        widths[i] = columns[i].heading.size();
        for (const std::vector<std::string>& row : rows)
            widths[i] = std::max(widths[i], row[i].size());
    }
    return widths;
}

class TableLine
{
public:
    TableLine(std::span<const TextColumn> columns, std::span<const std::size_t> widths)
        : m_columns{columns}, m_widths{widths}
    {
    }

    std::string of(std::span<const std::string> cells) const
    {
        std::string line;
        for (std::size_t i = 0; i < m_columns.size(); ++i) {
            const std::string padding = blanks(m_widths[i] - cells[i].size());
            line += i > 0 ? blanks(kGap) : std::string{};
            line += m_columns[i].align == Align::Right ? padding + cells[i] : cells[i] + padding;
        }
        return trimTrailingBlanks(line);
    }

private:
    std::span<const TextColumn> m_columns;
    std::span<const std::size_t> m_widths;
};

} // namespace

TextTable textTable(std::span<const TextColumn> columns, std::span<const std::vector<std::string>> rows)
{
    const std::vector<std::size_t> widths = widthsOf(columns, rows);
    const TableLine line{columns, widths};
    std::vector<std::string> headings;
    std::vector<std::string> rules;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        headings.push_back(columns[i].heading);
        rules.push_back(dashes(widths[i]));
    }

    TextTable table;
    table.heading = {line.of(headings), line.of(rules)};
    table.width = table.heading.back().size();
    table.rows.reserve(rows.size());
    for (const std::vector<std::string>& row : rows)
        table.rows.push_back(line.of(row));
    return table;
}

} // namespace tallyhoop
