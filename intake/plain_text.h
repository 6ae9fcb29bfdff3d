// intake/plain_text.h - text from outside: which characters it is made of, and which of them are as good as others.
//
// Mail programs and word processors replace quotation marks, dashes and blanks by others that look alike. Names are
// compared, and check values calculated, in canonical characters, of which there is one for each look.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tallyhoop {

/// Finds out how a text is encoded and converts it: UTF-16 with a byte order mark, UTF-8 with or without one, otherwise
/// Windows-1252. What of UTF-16 cannot be kept, such as an emoji, becomes U+FFFD, which no file of ours can hold.
/// @returns UTF-8 without a byte order mark
std::string utf8Of(std::string_view bytes);

/// @returns whether the bytes begin with a byte order mark: only a text from another program does
bool hasByteOrderMark(std::string_view bytes);

/// @returns whether the bytes are UTF-8, plain ASCII included
bool isUtf8(std::string_view bytes);

/// Any kind of blank, line breaks included, as a blank, never two in a row, none at the ends; without invisible
/// characters. @returns UTF-8
std::string withPlainBlanks(std::string_view utf8);

/// The text in canonical characters: one kind of blank, apostrophe, quotation mark and hyphen, no invisible characters,
/// a blank for ">", with which mail programs quote; never two blanks in a row, none at the ends. Case stays.
/// @returns Windows-1252, "?" for what it lacks
std::string canonical(std::string_view utf8);

/// @returns the text, a long one cut, on one line and in quotation marks, as sentences quote what came from outside
std::string quotedText(std::string_view text);

/// @returns whether a text has control characters, line breaks and tabs included
bool hasControlCharacters(std::string_view text);

} // namespace tallyhoop
