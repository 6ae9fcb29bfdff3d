// pool/prizes/money.h - amounts of money in whole cents, and as people write them.
#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tallyhoop {

/// An amount in whole cents, of whatever currency the pool is in; negative = is missing.
struct Money {
    std::int64_t cents = 0;

    Money& operator+=(Money other)
    {
        cents += other.cents;
        return *this;
    }

    friend constexpr Money operator+(Money left, Money right) { return {left.cents + right.cents}; }
    friend constexpr Money operator-(Money left, Money right) { return {left.cents - right.cents}; }
    friend constexpr bool operator==(Money, Money) = default;
    friend constexpr std::strong_ordering operator<=>(Money left, Money right) { return left.cents <=> right.cents; }
};

/// The largest amount that is taken: sums of it over all players of a pool still fit.
inline constexpr Money kMostMoney{100'000'000};

/// @returns such as "1250.00" and "-0.05"
std::string moneyInWords(Money amount);

/// Reads an amount: digits, and up to two more after a point or a comma; blanks around it do not matter.
/// @returns nothing for other texts and for more than kMostMoney
std::optional<Money> moneyOf(std::string_view text);

/// A part of a sum, in hundredths of a percent, 0..10000.
struct Percent {
    int hundredths = 0;

    friend constexpr bool operator==(Percent, Percent) = default;
    friend constexpr std::strong_ordering operator<=>(Percent left, Percent right)
    {
        return left.hundredths <=> right.hundredths;
    }
};

inline constexpr Percent kWhole{10'000};

/// @returns such as "60 %" and "33.33 %"
std::string percentageInWords(Percent share);

/// Reads a percentage: an amount up to 100 and "%".
/// @returns nothing for other texts
std::optional<Percent> percentageOf(std::string_view text);

} // namespace tallyhoop
