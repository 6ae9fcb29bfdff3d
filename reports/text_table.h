// reports/text_table.h - tables in fixed pitch whose columns are as wide as what is in them.
#pragma once

#include "reports/report_layout.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace tallyhoop {

enum class Align : std::uint8_t { Left, Right };

struct TextColumn {
    std::string heading;
    Align align = Align::Left;
};

/// A table's lines, without blanks at their ends; columns are two blanks apart.
struct TextTable {
    std::size_t width = 0; ///< of the longest line
    ReportLines heading;   ///< the columns' headings and a rule
    ReportLines rows;
};

/// @param rows a cell for each column, on one line each
TextTable textTable(std::span<const TextColumn> columns, std::span<const std::vector<std::string>> rows);

} // namespace tallyhoop
