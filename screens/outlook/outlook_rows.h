// screens/outlook/outlook_rows.h - the table of players on the screen and on paper: headings, cells, explanations.
#pragma once

#include "reports/outlook_rows.h"
#include "ui/control.h"

#include <string>
#include <vector>

namespace tallyhoop {

/// @returns what a cell shows, in the words of reports/outlook_words.h, with the percent sign; empty for what is not
///          known
std::string cellOf(const OutlookRow& row, OutlookColumn column);

/// @returns whether the rows go from A to Z, from the smallest to the largest, from the best verdict to the worst
bool isAscending(OutlookOrder order);

/// @returns how the rows are sorted, such as "Sorted by Share, from the largest."
std::string sortedInWords(OutlookOrder order);

/// The headings, with alignments and widths.
std::vector<ui::GridColumn> outlookColumns(std::size_t players);

/// @returns what a column means, in a sentence
std::string explanationOf(OutlookColumn column);

/// @returns what a verdict means, in a sentence
std::string explanationOf(Prospect prospect);

} // namespace tallyhoop
