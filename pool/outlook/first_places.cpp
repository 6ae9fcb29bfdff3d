// pool/outlook/first_places.cpp - sums of counts.
#include "pool/outlook/first_places.h"

#include <algorithm>
#include <numeric>

namespace tallyhoop {

std::uint64_t FirstPlaces::outcomes() const { return std::accumulate(shared.begin(), shared.end(), alone); }

double FirstPlaces::share() const
{
    auto sum = static_cast<double>(alone);
    for (std::size_t i = 0; i < shared.size(); ++i)
        sum += static_cast<double>(shared[i]) / static_cast<double>(i + 2);
    return sum;
}

void FirstPlaces::add(std::size_t together, std::uint64_t outcomes)
{
    if (outcomes == 0)
        return;
    if (together == 1) {
        alone += outcomes;
        return;
    }
    shared.resize(std::max(shared.size(), together - 1));
    shared[together - 2] += outcomes;
}

FirstPlaces without(const FirstPlaces& all, const FirstPlaces& part)
{
    FirstPlaces rest = all;
    rest.alone -= part.alone;
    for (std::size_t i = 0; i < part.shared.size(); ++i)
        rest.shared[i] -= part.shared[i];
    while (!rest.shared.empty() && rest.shared.back() == 0)
        rest.shared.pop_back();
    return rest;
}

FirstPlaces PlayerFirsts::given(std::size_t openGame, Side side) const
{
    const FirstPlaces& upper = ifUpperWins.at(openGame);
    return side == Side::Upper ? upper : without(all, upper);
}

FirstChances ChanceOutlook::given(std::size_t player, std::size_t openGame, Side side) const
{
    const PlayerChances& own = players.at(player);
    const FirstChances& upper = own.andUpperWins.at(openGame);
    if (side == Side::Upper) {
        const double wins = upperWins.at(openGame);
        return wins > 0 ? FirstChances{upper.alone / wins, upper.together / wins, upper.share / wins} : own.all;
    }
    const double wins = 1 - upperWins.at(openGame);
    if (wins <= 0)
        return own.all;
    return {(own.all.alone - upper.alone) / wins, (own.all.together - upper.together) / wins,
            (own.all.share - upper.share) / wins};
}

FirstChances& FirstChances::operator/=(double by)
{
    alone /= by;
    together /= by;
    share /= by;
    return *this;
}

} // namespace tallyhoop
