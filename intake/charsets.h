// intake/charsets.h - the character sets of the world, as far as the system knows them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tallyhoop {

/// Converts a text to UTF-8; what is no character of the set becomes "?".
/// @param charset as mails name it
/// @returns nothing when the system does not know the set
std::optional<std::string> utf8FromCharset(std::string_view bytes, const std::string& charset);

} // namespace tallyhoop
