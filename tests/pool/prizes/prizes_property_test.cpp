// tests/pool/prizes/prizes_property_test.cpp - random tables and ties: no cent is created or lost, and order is order.
#include "pool/prizes/final_places.h"
#include "pool/prizes/some_scores.h"
#include "pool/prizes/tied_pairs.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <numeric>
#include <random>

namespace tallyhoop::test {
namespace {

constexpr int kTables = 3000;

class Chance
{
public:
    explicit Chance(unsigned seed) : m_random{seed} {}

    int below(int limit) { return static_cast<int>(m_random() % static_cast<unsigned>(limit)); }

    /// @param rest the hundredths of a percent that are left for shares
    Prize prize(int& rest)
    {
        if (below(2) == 0)
            return Money{below(20'000)};
        const Percent share{below(rest + 1)};
        rest -= share.hundredths;
        return share;
    }

    PrizeTable table()
    {
        PrizeTable table;
        table.entryFee = {below(4) == 0 ? 0 : below(10'000)};
        int rest = kWhole.hundredths;
        table.keptBack = prize(rest);
        rest = kWhole.hundredths;
        for (int places = below(8); places > 0; --places)
            table.prizes.push_back(prize(rest));
        if (below(2) == 0)
            table.prizes.emplace_back(Percent{rest}); // everything is to be won
        return table;
    }

    /// Few different points and predictions, so that ties of any size are common.
    std::vector<PlayerScore> scores()
    {
        std::vector<PlayerScore> all;
        const int kinds = 1 + below(6);
        for (int players = below(30); players > 0; --players)
            all.push_back(scoreOf(below(kinds), below(6) == 0 ? 0 : 140 + below(1 + below(40))));
        return all;
    }

    TieRule rule() { return static_cast<TieRule>(below(3)); }
    std::optional<int> total() { return below(3) == 0 ? std::nullopt : std::optional{130 + below(70)}; }

private:
    std::mt19937 m_random;
};

Money sumOf(const std::vector<Money>& amounts) { return std::accumulate(amounts.begin(), amounts.end(), Money{}); }

bool hasAmounts(const PrizeTable& table)
{
    return std::ranges::any_of(table.prizes, [](const Prize& prize) { return std::holds_alternative<Money>(prize); });
}

int sumOfShares(const PrizeTable& table)
{
    int sum = 0;
    for (const Prize& prize : table.prizes)
        sum += std::holds_alternative<Percent>(prize) ? std::get<Percent>(prize).hundredths : 0;
    return sum;
}

TEST(RandomPrizes, AddUpToTheFees)
{
    Chance chance{1};
    for (int i = 0; i < kTables; ++i) {
        const PrizeTable table = chance.table();
        const auto players = static_cast<std::size_t>(chance.below(40));
        const Purse purse = purseOf(table, players);

        ASSERT_FALSE(faultOf(table));
        ASSERT_EQ(purse.fees.cents, table.entryFee.cents * static_cast<std::int64_t>(players));
        ASSERT_EQ(purse.keptBack + sumOf(purse.prizes) + purse.left, purse.fees) << "table " << i;
        for (std::size_t place = 0; place < purse.prizes.size(); ++place) {
            if (const Money* amount = std::get_if<Money>(&table.prizes[place])) {
                ASSERT_EQ(purse.prizes[place], *amount);
            }
            ASSERT_GE(purse.prizes[place], Money{});
        }
        // Shares of everything leave nothing, and never take what is not there.
        if (sumOfShares(table) == kWhole.hundredths && players >= table.prizes.size()) {
            ASSERT_LE(purse.left, Money{}) << "table " << i;
        }
        if (!hasAmounts(table) && purse.keptBack <= purse.fees) {
            ASSERT_GE(purse.left, Money{}) << "table " << i;
        }
    }
}

/// @returns how far a share that was paid is from the exact one, in ten thousandths of a cent
std::int64_t errorOf(Money paid, Money shared, Percent share)
{
    return std::abs(paid.cents * kWhole.hundredths - shared.cents * share.hundredths);
}

TEST(RandomPrizes, AreWithinACentOfTheirExactShares)
{
    Chance chance{2};
    for (int i = 0; i < kTables; ++i) {
        const PrizeTable table = chance.table();
        const Purse purse = purseOf(table, 40);
        Money shared = purse.fees - purse.keptBack;
        for (const Prize& prize : table.prizes)
            if (const Money* amount = std::get_if<Money>(&prize))
                shared = shared - *amount;
        shared = std::max(shared, Money{});
        for (std::size_t place = 0; place < purse.prizes.size(); ++place)
            if (const Percent* share = std::get_if<Percent>(&table.prizes[place])) {
                ASSERT_LT(errorOf(purse.prizes[place], shared, *share), kWhole.hundredths) << "table " << i;
            }
    }
}

TEST(RandomPrizes, ArePaidOutWholeWhateverIsTied)
{
    Chance chance{3};
    for (int i = 0; i < kTables; ++i) {
        const std::vector<PlayerScore> scores = chance.scores();
        const Purse purse = purseOf(chance.table(), scores.size());
        const std::vector<FinalPlace> places = finalPlaces(scores, chance.rule(), chance.total());
        const std::vector<Money> paid = payouts(places, purse.prizes);

        ASSERT_EQ(paid.size(), scores.size());
        ASSERT_EQ(sumOf(paid), sumOf(purse.prizes)) << "table " << i;
        for (std::size_t row = 1; row < paid.size(); ++row) {
            if (places[row].place == places[row - 1].place) {
                ASSERT_LE(paid[row], paid[row - 1]);
                ASSERT_LE(paid[row - 1] - paid[row], Money{1}) << "who shares a place gets the same, to the cent";
            }
        }
    }
}

TEST(RandomPlaces, HoldEveryoneOnceAndCountThoseAhead)
{
    Chance chance{4};
    for (int i = 0; i < kTables; ++i) {
        const std::vector<PlayerScore> scores = chance.scores();
        const std::vector<FinalPlace> places = finalPlaces(scores, chance.rule(), chance.total());

        std::vector<int> seen(scores.size());
        for (std::size_t row = 0; row < places.size(); ++row) {
            ++seen[places[row].player];
            const auto ahead = [&](const FinalPlace& other) { return other.place < places[row].place; };
            const auto sharing = [&](const FinalPlace& other) { return other.place == places[row].place; };
            ASSERT_EQ(std::ranges::count_if(places, ahead) + 1, static_cast<long>(places[row].place));
            ASSERT_EQ(std::ranges::count_if(places, sharing), static_cast<long>(places[row].sharedBy));
            if (row > 0) {
                ASSERT_GE(scores[places[row - 1].player].points, scores[places[row].player].points);
            }
        }
        ASSERT_EQ(seen, std::vector<int>(scores.size(), 1));
    }
}

/// @returns the place of one player
std::size_t placeOf(std::size_t player, const std::vector<FinalPlace>& places)
{
    return std::ranges::find(places, player, &FinalPlace::player)->place;
}

TEST(RandomTies, EndAsThePairsSayForEveryTotal)
{
    constexpr int kPools = 40;
    Chance chance{5};
    for (int i = 0; i < kPools; ++i) {
        const std::vector<PlayerScore> scores = chance.scores();
        const TieRule rule = chance.rule();
        const std::vector<TiedPair> pairs = tiedPairs(scores, finalPlaces(scores, rule, {}), rule);
        for (int total = 100; total <= 200; ++total) {
            const std::vector<FinalPlace> places = finalPlaces(scores, rule, total);
            for (const TiedPair& pair : pairs) {
                const std::size_t lower = placeOf(pair.lower, places);
                const std::size_t higher = placeOf(pair.higher, places);
                const bool byTotal = pair.end == TieEnd::ByTotal;
                const bool isLowerAhead = pair.end == TieEnd::LowerAlways || (byTotal && total <= pair.lowerUpTo);
                ASSERT_EQ(lower < higher, isLowerAhead) << "pool " << i << ", total " << total;
                ASSERT_EQ(higher < lower, byTotal && total >= pair.higherFrom) << "pool " << i << ", total " << total;
            }
        }
    }
}

} // namespace
} // namespace tallyhoop::test
