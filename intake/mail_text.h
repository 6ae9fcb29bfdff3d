// intake/mail_text.h - what the readers of a mail's fields have in common.
#pragma once

#include <string>
#include <string_view>

namespace tallyhoop {

/// What may stand between the words of a field.
inline constexpr std::string_view kMailBlanks = " \t\r\n";

/// @returns the text without the blanks at its begin and end
std::string_view withoutOuterBlanks(std::string_view text);

/// @returns the text with its ASCII letters in lower case
std::string inLowerCase(std::string_view text);

/// @param charset as a field names it; empty = it does not
/// @returns the text in UTF-8: as it is when it is that already, by its character set when the system knows that, else
///          as Windows-1252
std::string inUtf8(std::string_view bytes, const std::string& charset);

} // namespace tallyhoop
