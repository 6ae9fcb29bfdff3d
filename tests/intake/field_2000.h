// tests/intake/field_2000.h - a finalized field, entries for it, and their text as the entry form writes it.
#pragma once

#include "pool/entry.h"

#include <string>
#include <string_view>
#include <vector>

namespace tallyhoop::test {

/// The field of 2000 with a comma in one name ("Miami, FL", row 56); regions West, Midwest, East, South.
Field field2000();

/// The bracket in which the upper team wins every game; the champion is Duke.
Bracket upperTeamsWin();

/// Such an entry: initials as typed.
Entry upperEntry(std::string name = "Ann Smith", std::string initials = "as", std::string total = "142");

/// The entry's text, lines ended by LF, written independently of the program, the check value included.
/// @param email empty = without
std::string formText(const Entry& entry, std::string_view email = "ann@example.org");

/// The text of a form that was filled in by "Zo\xE9 O\x92Neil" (UTF-8), which has the check value 6623D64A.
std::string exampleText();

/// @returns a text with every occurrence replaced
std::string replaced(std::string text, std::string_view what, std::string_view by);

/// @returns a text in UTF-16 with its byte order mark, low bytes first
std::string utf16Of(std::string_view text);

/// @returns the text with something before each line
std::string withEachLine(std::string_view before, std::string_view text);

} // namespace tallyhoop::test
