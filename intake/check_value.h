// intake/check_value.h - the number at the end of a handed-in text that shows whether it arrived as it was sent.
#pragma once

#include "pool/position.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace tallyhoop {

/// The CRC-32 of zip files and of many others: reflected polynomial EDB88320, start and final inversion.
std::uint32_t crc32(std::string_view bytes);

/// @returns a number as 8 capital hexadecimal digits
std::string eightDigits(std::uint32_t number);

/// What is known of an entry before anybody looks at the field: texts in canonical characters.
struct CheckedTexts {
    std::string name;
    std::string initials;
    std::string total;
    ByGame<std::string> picks{}; ///< empty = open
};

/// @returns the check value: that of all the texts, each followed by a line feed
std::string checkValue(const CheckedTexts& texts);

} // namespace tallyhoop
