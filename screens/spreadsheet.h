// screens/spreadsheet.h - tables for the clipboard, as spreadsheets take them.
#pragma once

#include <span>
#include <string>

namespace tallyhoop {

/// @returns a line of cells separated by tabs, ended by CR LF. Numbers stay as they are. A cell that a spreadsheet
/// would
///          take for a formula, or for the beginning of a quotation, gets an apostrophe in front: names are data. What
///          separates cells and lines becomes a blank.
std::string tabSeparatedLine(std::span<const std::string> cells);

} // namespace tallyhoop
