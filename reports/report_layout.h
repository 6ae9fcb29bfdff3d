// reports/report_layout.h - what the text reports share: centring, page headers, page breaks, rows kept in order.
//
// Reports are fixed-pitch: a width is a count of characters, and a character is a byte.
#pragma once

#include "base/result.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tallyhoop {

/// A report, line by line, as it goes to the file. A line that holds only a form feed starts a new page.
using ReportLines = std::vector<std::string>;

inline constexpr const char* kBlankLine = " ";              ///< how reports write an empty line
inline constexpr const char* kFormFeedLine = "\f";          ///< starts a new page
inline constexpr const char* kNoSelection = "NO SELECTION"; ///< is written for a pick that was not made

/// Counts the blanks before a centred text: half the free width, rounded once, halves to even.
/// @returns a negative count when the text is wider than the line
long long centredOnce(std::size_t lineWidth, std::size_t textLength);

/// Counts the blanks before a centred text: half the line minus half the text, where the half text is rounded first and
/// then the difference, halves to even each time. Differs from centredOnce() for some odd widths.
/// @returns a negative count when the text is wider than the line
long long centredTwice(std::size_t lineWidth, std::size_t textLength);

/// @returns this many blanks and the text; a negative count fails with a sentence that names the text
Result<std::string> indented(long long count, std::string_view text);

/// @returns this many blanks and the text; a negative count gives the text alone
std::string indentedOrFlush(long long count, std::string_view text);

/// @returns a row of dashes
std::string dashes(std::size_t count);

/// Writes the header of a page: an empty line, the title, the report's name and an empty line.
void addPageHeader(ReportLines& lines, std::string titleLine, std::string nameLine);

/// Centres the title and the report's name in the same way and writes the header of a page.
/// @param centre one of the counting functions above
/// @returns a failure when one of them is wider than the line
Result<Done> addCentredPageHeader(ReportLines& lines, long long (*centre)(std::size_t, std::size_t), std::size_t width,
                                  std::string_view title, std::string_view name);

/// Puts work rows into the order in which reports take them: ascending without regard to case, equal rows in order of
/// arrival. Reports that run downwards read them from the back.
void sortWorkRows(std::vector<std::string>& rows);

/// Splits a packed work row. The separator is not escaped: one inside a name shifts the fields after it.
/// @returns exactly `count` fields: further pieces are lost, missing ones are empty
std::vector<std::string> workRowFields(std::string_view row, char separator, std::size_t count);

} // namespace tallyhoop
