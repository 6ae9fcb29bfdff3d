// base/numbers.h - numbers that are held as text or said in one, and the rounding that goes with them.
#pragma once

#include "base/result.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace tallyhoop {

/// Reads the leading number of a text: blanks, a sign, digits, a decimal point and digits; the rest is ignored.
/// @returns 0 when the text does not begin with a number
double leadingNumber(std::string_view text);

/// @returns true when the whole text, blanks around it aside, is one number
bool isNumber(std::string_view text);

/// Rounds to a whole number, halves to even.
long long roundHalfEven(double value);

/// The leading number of a text as a 16-bit whole number, halves rounded to even.
/// @returns a failure naming the text when it does not fit -32768..32767
Result<std::int16_t> wholeNumber(std::string_view text);

/// @returns "1 pick", "2 picks"
std::string counted(std::size_t count, std::string_view one, std::string_view more);

/// Three digits with leading zeros, "007"; a minus sign comes before them, "-064"; a longer number widens.
std::string threeDigits(long long value);

/// Right-aligned in three characters, "  7"; a longer number widens.
std::string threeColumns(long long value);

} // namespace tallyhoop
