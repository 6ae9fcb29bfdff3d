// screens/spreadsheet.cpp - cells that stay what they are.
#include "screens/spreadsheet.h"

#include "base/numbers.h"
#include "base/text.h"

#include <cstddef>
#include <string_view>
#include <utility>

namespace tallyhoop {

namespace {

constexpr std::string_view kBeginsOther = "=+-@\""; ///< than a text, in one spreadsheet or another

std::string cellText(std::string cell)
{
    cell = asOneLine(std::move(cell));
    const std::size_t begin = cell.find_first_not_of(' '); // some leave blanks out
    if (begin == std::string::npos || kBeginsOther.find(cell[begin]) == std::string_view::npos || isNumber(cell))
        return cell;
    return "'" + cell;
}

} // namespace

std::string tabSeparatedLine(std::span<const std::string> cells)
{
    std::string line;
    for (std::size_t column = 0; column < cells.size(); ++column)
        line += (column > 0 ? "\t" : "") + cellText(cells[column]);
    return line.append(kLineBreak);
}

} // namespace tallyhoop
