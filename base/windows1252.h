// base/windows1252.h - which byte of our texts is which character, and the case-insensitive order of texts.
//
// Inside the core a text is one byte per character, in Windows-1252, exactly as the data files hold it. The five bytes
// that Windows-1252 leaves unassigned (81, 8D, 8F, 90, 9D) are the control characters of the same number, so
// every byte survives the conversion to Unicode and back.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tallyhoop {

/// @returns the Unicode character of a byte
char32_t unicodeOf(unsigned char byte);

/// @returns the byte of a Unicode character, nothing when Windows-1252 lacks it
std::optional<unsigned char> byteOf(char32_t character);

/// Appends a character below 10000 hexadecimal to a text in UTF-8: none that we have a byte for is above.
void appendUtf8(std::string& utf8, char32_t character);

/// Converts a text to UTF-8.
std::string toUtf8(std::string_view text);

/// Converts UTF-8 to a text; a character that Windows-1252 lacks, and a broken sequence, becomes "?".
std::string fromUtf8(std::string_view utf8);

/// @returns the byte with A-Z and the accented capitals made small; others as they are
unsigned char folded(unsigned char byte);

/// Makes a-z and the accented small letters capital (those that have a capital in Windows-1252).
std::string upperCase(std::string_view text);

/// Compares without regard to case: folds both and compares byte by byte. @returns <0, 0 or >0
int compareFolded(std::string_view left, std::string_view right);

bool equalFolded(std::string_view left, std::string_view right);
bool startsWithFolded(std::string_view text, std::string_view prefix);
bool endsWithFolded(std::string_view text, std::string_view end);

/// Orders texts for sorted lists; equal keys are left in order of arrival by stable sorts.
struct FoldedLess {
    bool operator()(std::string_view left, std::string_view right) const { return compareFolded(left, right) < 0; }
};

} // namespace tallyhoop
