// pool/prizes/prize_table.h - what the players pay, what is kept back, and what each place wins.
#pragma once

#include "base/result.h"
#include "pool/prizes/money.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace tallyhoop {

/// How players with equal points are told apart by the total points that they predicted for the final.
enum class TieRule : std::uint8_t {
    Nearest, ///< the prediction nearest to the real total is ahead
    NotOver, ///< the nearest one that does not go over it; those that do come after, the nearest of them first
    Share,   ///< they share their places
};

/// An amount, or a share.
using Prize = std::variant<Money, Percent>;

/// @returns such as "50.00" and "60 %"
std::string prizeInWords(const Prize& prize);

/// @returns nothing when the text is neither an amount nor a percentage
std::optional<Prize> prizeOf(std::string_view text);

/// The places that can win something.
inline constexpr std::size_t kMostPrizes = 100;

/// What the organiser says about money; nobody pays and nobody wins by default.
struct PrizeTable {
    Money entryFee{};            ///< of each player
    Prize keptBack = Money{};    ///< a share is one of all fees, rounded down to whole cents
    std::vector<Prize> prizes{}; ///< for places 1, 2, ..., at most kMostPrizes; a share is one of what the fees leave
                                 ///< when what is kept back and the prizes that are amounts are taken off
    TieRule ties = TieRule::Nearest;

    friend bool operator==(const PrizeTable&, const PrizeTable&) = default;
};

/// @returns what is wrong with the table; nothing when it can be paid out
std::optional<Failure> faultOf(const PrizeTable& table);

/// Where the money of a pool goes: fees = keptBack + all prizes + left, to the cent.
struct Purse {
    Money fees; ///< of all players, paid or not
    Money keptBack;
    std::vector<Money> prizes; ///< for places 1, 2, ..., no more than there are players
    Money left;                ///< that nobody wins; negative = the prizes need as much from elsewhere

    friend bool operator==(const Purse&, const Purse&) = default;
};

/// Splits the fees of a number of players. Shares come out to the cent: each is rounded down, and the cents that remain
/// go to the largest remainders, among equal ones to the better place.
Purse purseOf(const PrizeTable& table, std::size_t players);

} // namespace tallyhoop
