// pool/outlook/first_places.cpp - sums of counts.
#include "pool/outlook/first_places.h"

#include <algorithm>

namespace tallyhoop {

std::uint64_t FirstPlaces::outcomes() const
{
    std::uint64_t sum = alone;
    for (const SharedFirsts& some : shared)
        sum += some.outcomes;
    return sum;
}

double FirstPlaces::share() const
{
    auto sum = static_cast<double>(alone);
    for (const SharedFirsts& some : shared)
        sum += static_cast<double>(some.outcomes) / static_cast<double>(some.together);
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
    auto place = std::ranges::lower_bound(shared, together, {}, &SharedFirsts::together);
    if (place == shared.end() || place->together != together)
        place = shared.insert(place, {together, 0});
    place->outcomes += outcomes;
}

FirstPlaces without(const FirstPlaces& all, const FirstPlaces& part)
{
    FirstPlaces rest = all;
    rest.alone -= part.alone;
    for (const SharedFirsts& some : part.shared)
        std::ranges::lower_bound(rest.shared, some.together, {}, &SharedFirsts::together)->outcomes -= some.outcomes;
    std::erase_if(rest.shared, [](const SharedFirsts& some) { return some.outcomes == 0; });
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
