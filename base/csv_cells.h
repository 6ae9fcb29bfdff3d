// base/csv_cells.h - tables as comma-separated values: rows of cells, and the quotation that keeps them apart.
//
// As RFC 4180 has it; the separator may be a semicolon, which spreadsheets write where the comma is the decimal point,
// or a tab: of the three that which gives most rows the same number of cells, or the one that a first line such as
// "sep=;" names. A cell that a spreadsheet would take for a formula is written with an apostrophe before it, and read
// without it.
#pragma once

#include "base/result.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tallyhoop {

using CsvRow = std::vector<std::string>;

/// @param text  any encoding in which ASCII is one byte each
/// @returns the rows, also empty ones, as rows of one empty cell; a failure when a quotation mark is not closed
Result<std::vector<CsvRow>> csvRows(std::string_view text);

/// @returns the rows as text: separated by commas, each ended by CR LF, quoted where it is needed
std::string csvText(std::span<const CsvRow> rows);

/// @returns the cell as it is written: one that begins with "=", "+", "-", "@", a tab or a line break, apostrophes and
///          blanks before it or not, has an apostrophe more
std::string guarded(std::string_view cell);

/// @returns the cell without the apostrophe that guarded() added
std::string unguarded(std::string_view cell);

} // namespace tallyhoop
