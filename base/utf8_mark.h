// base/utf8_mark.h - the byte order mark, by which other programs know UTF-8, and which some of them write.
#pragma once

#include <string_view>

namespace tallyhoop {

inline constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF"; ///< the byte order mark in UTF-8

} // namespace tallyhoop
