// pool/prizes/final_places.cpp - places by points and predictions, and who gets how much of a shared prize.
#include "pool/prizes/final_places.h"

#include <algorithm>
#include <cstdlib>
#include <numeric>
#include <tuple>

namespace tallyhoop {

namespace {

/// What the order goes by, the smallest first: points, how the prediction is to be taken, how far off it is.
using Merit = std::tuple<int, int, int>;

enum PredictionRank : int { kCounts, kOver, kNone };

Merit meritOf(const PlayerScore& score, TieRule rule, std::optional<int> total)
{
    if (rule == TieRule::Share || !total)
        return {-score.points, kCounts, 0};
    if (!hasPredicted(score))
        return {-score.points, kNone, 0};
    const bool isOver = rule == TieRule::NotOver && score.finalPoints > *total;
    return {-score.points, isOver ? kOver : kCounts, std::abs(score.finalPoints - *total)};
}

/// Takes the places from one on that are shared. @returns how many there are
std::size_t sharedFrom(std::span<const FinalPlace> places, std::size_t first)
{
    return std::min(places[first].sharedBy, places.size() - first);
}

} // namespace

bool hasPredicted(const PlayerScore& score) { return score.finalPoints > 0; }

std::vector<FinalPlace> finalPlaces(std::span<const PlayerScore> scores, TieRule rule, std::optional<int> total)
{
    std::vector<Merit> merits;
    merits.reserve(scores.size());
    for (const PlayerScore& score : scores)
        merits.push_back(meritOf(score, rule, total));
    std::vector<std::size_t> order(scores.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::stable_sort(order, {}, [&](std::size_t player) { return merits[player]; });

    std::vector<FinalPlace> places;
    places.reserve(order.size());
    for (std::size_t first = 0; first < order.size();) {
        std::size_t after = first + 1;
        while (after < order.size() && merits[order[after]] == merits[order[first]])
            ++after;
        const bool isLast = after == order.size() && first > 0;
        for (std::size_t i = first; i < after; ++i)
            places.push_back({order[i], first + 1, after - first, isLast});
        first = after;
    }
    return places;
}

std::vector<Money> payouts(std::span<const FinalPlace> places, std::span<const Money> prizes)
{
    std::vector<Money> paid(places.size());
    for (std::size_t first = 0; first < places.size();) {
        const std::size_t players = sharedFrom(places, first);
        Money sum;
        for (std::size_t i = first; i < std::min(first + players, prizes.size()); ++i)
            sum += prizes[i];
        const auto shares = static_cast<std::int64_t>(players);
        // All remainders are the same: the odd cents go down the list.
        for (std::size_t i = 0; i < players; ++i)
            paid[first + i] = {sum.cents / shares + (static_cast<std::int64_t>(i) < sum.cents % shares ? 1 : 0)};
        first += players;
    }
    return paid;
}

} // namespace tallyhoop
