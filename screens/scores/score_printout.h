// screens/scores/score_printout.h - the score display's table on paper and on the clipboard.
#pragma once

#include "ui/control.h"

#include <chrono>
#include <string>
#include <vector>

namespace tallyhoop {

/// @returns the printed lines: a title with the date, the headings, and the rows, columns in the order on screen
std::vector<std::string> scorePrintout(const ui::Grid& grid, std::chrono::year_month_day day);

/// @returns headings and rows as a spreadsheet takes them: cells separated by tabs, lines ended by CR LF
std::string tabSeparated(const ui::Grid& grid);

} // namespace tallyhoop
