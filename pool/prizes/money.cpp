// pool/prizes/money.cpp - amounts and percentages as text; nothing here is ever a binary fraction.
#include "pool/prizes/money.h"

#include "base/text.h"

#include <algorithm>
#include <fmt/format.h>

namespace tallyhoop {

namespace {

constexpr bool isDigit(char character) { return character >= '0' && character <= '9'; }

/// Reads hundredths: digits, and up to two more after a point or a comma.
/// @returns nothing for other texts and for more than the most
std::optional<std::int64_t> hundredthsOf(std::string_view text, std::int64_t most)
{
    const std::size_t separator = text.find_first_of(".,");
    const std::string_view whole = text.substr(0, separator);
    std::string fraction{separator == std::string_view::npos ? std::string_view{} : text.substr(separator + 1)};
    const bool isFractionSound = separator == std::string_view::npos || (!fraction.empty() && fraction.size() <= 2);
    if (whole.empty() || !isFractionSound)
        return std::nullopt;
    fraction.resize(2, '0');
    std::int64_t hundredths = 0;
    for (const char character : std::string{whole} + fraction) {
        if (!isDigit(character))
            return std::nullopt;
        hundredths = hundredths * 10 + (character - '0');
        if (hundredths > most)
            return std::nullopt;
    }
    return hundredths;
}

} // namespace

std::string moneyInWords(Money amount)
{
    // The smallest number has no positive counterpart of its own type.
    const auto cents = amount.cents < 0 ? 0ULL - static_cast<unsigned long long>(amount.cents)
                                        : static_cast<unsigned long long>(amount.cents);
    return fmt::format("{}{}.{:02}", amount.cents < 0 ? "-" : "", cents / 100, cents % 100);
}

std::optional<Money> moneyOf(std::string_view text)
{
    const std::optional<std::int64_t> cents = hundredthsOf(withoutOuterBlanks(text), kMostMoney.cents);
    return cents ? std::optional{Money{*cents}} : std::nullopt;
}

std::string percentageInWords(Percent share)
{
    const int whole = share.hundredths / 100;
    const int rest = share.hundredths % 100;
    return rest == 0 ? fmt::format("{} %", whole) : fmt::format("{}.{:02} %", whole, rest);
}

std::optional<Percent> percentageOf(std::string_view text)
{
    std::string number = withoutOuterBlanks(text);
    if (!number.ends_with('%'))
        return std::nullopt;
    number.pop_back();
    const std::optional<std::int64_t> hundredths = hundredthsOf(withoutOuterBlanks(number), kWhole.hundredths);
    return hundredths ? std::optional{Percent{static_cast<int>(*hundredths)}} : std::nullopt;
}

} // namespace tallyhoop
