// screens/scores/score_printout.cpp - what is shown, as it goes out.
#include "screens/scores/score_printout.h"

#include "base/text.h"
#include "reports/score_list.h"
#include "screens/spreadsheet.h"

namespace tallyhoop {

namespace {

std::vector<std::string> headingsOf(const ui::Grid& grid)
{
    std::vector<std::string> headings;
    headings.reserve(grid.columns.size());
    for (const ui::GridColumn& column : grid.columns)
        headings.push_back(column.heading);
    return headings;
}

} // namespace

std::vector<std::string> scorePrintout(const ui::Grid& grid, std::chrono::year_month_day day)
{
    return scoreListLines(headingsOf(grid), grid.rows, day);
}

std::string tabSeparated(const ui::Grid& grid)
{
    std::string text = joined(headingsOf(grid), "\t").append(kLineBreak); // ours: "-MAX-" stays as it is
    for (const std::vector<std::string>& row : grid.rows)
        text += tabSeparatedLine(row);
    return text;
}

} // namespace tallyhoop
