// base/text.h - small text helpers that several screens and reports share.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tallyhoop {

inline constexpr std::string_view kLineBreak = "\r\n";

/// Removes blanks from the end; other white space stays.
std::string trimTrailingBlanks(std::string_view text);

/// Removes blanks from both ends.
std::string withoutOuterBlanks(std::string_view text);

/// @returns the 1-based place of the last character that is not a blank, 0 when there is none
std::size_t lastNonBlank(std::string_view text);

/// @returns true when a field counts as blank: it is empty or begins with a blank
bool isBlankField(std::string_view text);

/// Replaces every CR LF pair by "|".
std::string encodeLineBreaks(std::string_view text);

/// Replaces every "|" by a CR LF pair.
std::string decodeLineBreaks(std::string_view text);

/// @returns the text padded on the right with blanks, or cut, to exactly this many characters
std::string fitted(std::string_view text, std::size_t width);

/// Keeps a text on one line: a line break, and every other control character, becomes a blank of the same width.
std::string asOneLine(std::string text);

/// @returns this many blanks (or of the given character)
std::string blanks(std::size_t count);
std::string repeated(char character, std::size_t count);

/// Splits at every separator; an empty text gives one empty piece.
std::vector<std::string> split(std::string_view text, char separator);

/// Puts a row where it belongs in a list kept in ascending case-insensitive order, after equal ones.
/// @returns the row's index
std::size_t insertSorted(std::vector<std::string>& rows, std::string row);

/// Joins lines with CR LF, none after the last.
std::string joinLines(const std::vector<std::string>& lines);

/// Joins texts with something between each two of them.
std::string joined(std::span<const std::string> texts, std::string_view between);

/// Keeps the first twenty lines, for a message box has to fit the screen, and adds "and 5 more" for the others.
std::vector<std::string> fewEnoughForAMessage(std::vector<std::string> lines);

} // namespace tallyhoop
