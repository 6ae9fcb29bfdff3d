// pool/prizes/prize_table.cpp - splits the fees: what is kept back, amounts, and shares of the rest.
#include "pool/prizes/prize_table.h"

#include <algorithm>
#include <numeric>
#include <span>

namespace tallyhoop {

namespace {

/// Both factors are far below the limit: a sum of fees is below 10^13 for 100,000 players.
Money shareOf(Money sum, int hundredths) { return {sum.cents * hundredths / kWhole.hundredths}; }

std::int64_t remainderOf(Money sum, int hundredths) { return sum.cents * hundredths % kWhole.hundredths; }

int hundredthsOf(const Prize& prize)
{
    const Percent* share = std::get_if<Percent>(&prize);
    return share != nullptr ? share->hundredths : 0;
}

int sumOfShares(std::span<const Prize> prizes)
{
    return std::accumulate(prizes.begin(), prizes.end(), 0,
                           [](int sum, const Prize& prize) { return sum + hundredthsOf(prize); });
}

Money sumOfAmounts(std::span<const Prize> prizes)
{
    Money sum;
    for (const Prize& prize : prizes)
        if (const Money* amount = std::get_if<Money>(&prize))
            sum += *amount;
    return sum;
}

/// Gives the cents that rounding down has left to the places with the largest remainders.
void giveRemainingCents(std::vector<Money>& paid, std::span<const Prize> prizes, Money shared)
{
    std::vector<std::size_t> places(prizes.size());
    std::iota(places.begin(), places.end(), std::size_t{0});
    std::ranges::stable_sort(
        places, [&](std::int64_t left, std::int64_t right) { return left > right; },
        [&](std::size_t place) { return remainderOf(shared, hundredthsOf(prizes[place])); });
    Money given;
    for (const Prize& prize : prizes)
        given += shareOf(shared, hundredthsOf(prize));
    const std::int64_t cents = (shareOf(shared, sumOfShares(prizes)) - given).cents;
    for (std::size_t i = 0; i < static_cast<std::size_t>(cents); ++i)
        paid[places[i]] += Money{1};
}

} // namespace

std::string prizeInWords(const Prize& prize)
{
    if (const Money* amount = std::get_if<Money>(&prize))
        return moneyInWords(*amount);
    return percentageInWords(std::get<Percent>(prize));
}

std::optional<Prize> prizeOf(std::string_view text)
{
    if (const std::optional<Percent> share = percentageOf(text))
        return *share;
    if (const std::optional<Money> amount = moneyOf(text))
        return *amount;
    return std::nullopt;
}

std::optional<Failure> faultOf(const PrizeTable& table)
{
    const int shares = sumOfShares(table.prizes);
    if (shares > kWhole.hundredths)
        return Failure{"The shares of the prizes come to " + percentageInWords({shares}) +
                       ": together they can be 100 % at most."};
    return std::nullopt;
}

Purse purseOf(const PrizeTable& table, std::size_t players)
{
    const std::span<const Prize> prizes = std::span{table.prizes}.first(std::min(players, table.prizes.size()));
    Purse purse;
    purse.fees = {table.entryFee.cents * static_cast<std::int64_t>(players)};
    const Money* amount = std::get_if<Money>(&table.keptBack);
    purse.keptBack = amount != nullptr ? *amount : shareOf(purse.fees, hundredthsOf(table.keptBack));
    purse.left = purse.fees - purse.keptBack - sumOfAmounts(prizes);

    const Money shared = std::max(purse.left, Money{});
    purse.prizes.reserve(prizes.size());
    for (const Prize& prize : prizes) {
        const Money* fixed = std::get_if<Money>(&prize);
        purse.prizes.push_back(fixed != nullptr ? *fixed : shareOf(shared, hundredthsOf(prize)));
    }
    giveRemainingCents(purse.prizes, prizes, shared);
    purse.left = purse.left - shareOf(shared, sumOfShares(prizes));
    return purse;
}

} // namespace tallyhoop
