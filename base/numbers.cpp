// base/numbers.cpp - numbers that are held as text.
#include "base/numbers.h"

#include <charconv>
#include <cmath>
#include <fmt/format.h>
#include <limits>

namespace tallyhoop {
namespace {

constexpr bool isDigit(char character) { return character >= '0' && character <= '9'; }
constexpr bool isSpace(char character) { return character == ' ' || character == '\t'; }

/// A number at the beginning of a text, still as characters.
struct NumberText {
    bool negative = false;
    std::string_view whole;        ///< digits before the decimal point
    std::string_view unsignedPart; ///< digits, point, digits
    std::size_t length = 0;        ///< characters up to the end of the number, blanks before it included
    bool found = false;            ///< there is at least one digit
};

std::size_t digitsFrom(std::string_view text, std::size_t place)
{
    while (place < text.size() && isDigit(text[place]))
        ++place;
    return place;
}

NumberText numberAtStart(std::string_view text)
{
    NumberText number;
    std::size_t place = 0;
    while (place < text.size() && isSpace(text[place]))
        ++place;
    if (place < text.size() && (text[place] == '-' || text[place] == '+'))
        number.negative = text[place++] == '-';
    const std::size_t begin = place;
    place = digitsFrom(text, begin);
    number.whole = text.substr(begin, place - begin);
    number.found = !number.whole.empty();
    if (place < text.size() && text[place] == '.') {
        const std::size_t fractionEnd = digitsFrom(text, place + 1);
        number.found = number.found || fractionEnd > place + 1;
        place = fractionEnd;
    }
    number.unsignedPart = text.substr(begin, place - begin);
    number.length = place;
    return number;
}

/// Long texts would make a message box as wide as they are.
std::string shortened(std::string_view text)
{
    constexpr std::size_t kMost = 40;
    return text.size() <= kMost ? std::string{text} : std::string{text.substr(0, kMost)} + "...";
}

} // namespace

double leadingNumber(std::string_view text)
{
    const NumberText number = numberAtStart(text);
    if (!number.found)
        return 0;
    double value = 0;
    const char* begin = number.unsignedPart.data();
    const auto outcome = std::from_chars(begin, begin + number.unsignedPart.size(), value, std::chars_format::fixed);
    if (outcome.ec == std::errc::result_out_of_range) {
        const bool isHuge = number.whole.find_first_not_of('0') != std::string_view::npos;
        value = isHuge ? std::numeric_limits<double>::max() : 0;
    }
    return number.negative ? -value : value;
}

bool isNumber(std::string_view text)
{
    const NumberText number = numberAtStart(text);
    if (!number.found)
        return false;
    for (const char character : text.substr(number.length))
        if (!isSpace(character))
            return false;
    return true;
}

long long roundHalfEven(double value)
{
    constexpr double kLimit = 9223372036854775808.0; // 2^63, the first value that does not fit
    if (std::isnan(value))
        return 0;
    if (value >= kLimit)
        return std::numeric_limits<long long>::max();
    if (value < -kLimit)
        return std::numeric_limits<long long>::min();
    const double below = std::floor(value);
    const double rest = value - below;
    const auto whole = static_cast<long long>(below);
    const bool goesUp = rest > 0.5 || (rest == 0.5 && whole % 2 != 0);
    return goesUp ? whole + 1 : whole;
}

Result<std::int16_t> wholeNumber(std::string_view text)
{
    using Limits = std::numeric_limits<std::int16_t>;
    const long long value = roundHalfEven(leadingNumber(text));
    if (value < Limits::min() || value > Limits::max())
        return Failure{"The number \"" + shortened(text) + "\" is out of range: it must lie between -32768 and 32767."};
    return static_cast<std::int16_t>(value);
}

std::string counted(std::size_t count, std::string_view one, std::string_view more)
{
    return std::to_string(count).append(" ").append(count == 1 ? one : more);
}

std::string threeDigits(long long value)
{
    // The smallest number has no positive counterpart of its own type.
    const auto magnitude =
        value < 0 ? 0ULL - static_cast<unsigned long long>(value) : static_cast<unsigned long long>(value);
    return fmt::format("{}{:03}", value < 0 ? "-" : "", magnitude);
}

std::string threeColumns(long long value) { return fmt::format("{:>3}", value); }

} // namespace tallyhoop
