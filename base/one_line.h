// base/one_line.h - words of several lines where there is room for one.
#pragma once

#include <string>
#include <string_view>

namespace tallyhoop {

/// @returns the words on one line: a line break and the blanks around it become one blank, outer blanks are gone
std::string onOneLine(std::string_view words);

} // namespace tallyhoop
