// pool/outlook/region_classes.cpp - equal rows of differences, found by their hash.
#include "pool/outlook/region_classes.h"

#include <algorithm>
#include <bit>
#include <type_traits>

namespace tallyhoop {

template <class Points, class Number>
void RegionClasses<Points, Number>::find(const RegionPoints<Points>& region, const RegionEnd<Points>& end,
                                         std::span<const std::size_t> runners)
{
    const std::size_t row = Lanes<Points>::padded(runners.size());
    const std::size_t endRow = end.points.size() / end.outcomes.size();
    const std::size_t games = region.games.size();
    points.clear();
    weights.clear();
    ifUpperWins.clear();
    outcomes.clear();
    total = 0;
    m_found.assign(std::bit_ceil(2 * end.outcomes.size()), 0);
    for (std::size_t outcome = 0; outcome < end.outcomes.size(); ++outcome) {
        const Points* all = &end.points[outcome * endRow];
        points.resize((size() + 1) * row);
        Points* own = &points[size() * row];
        for (std::size_t i = 0; i < runners.size(); ++i)
            own[i] = static_cast<Points>(all[runners[i]] - all[runners[0]]);
        const std::size_t number = classFor(row);
        if (number == size()) {
            weights.push_back(0);
            ifUpperWins.resize(weights.size() * games);
            outcomes.push_back(end.outcomes[outcome]);
        }
        const auto weight = static_cast<Number>(end.chances[outcome]);
        total += weight;
        weights[number] += weight;
        for (std::size_t game = 0; game < games; ++game)
            if (sideOf(end.outcomes[outcome], region.games[game]) == Side::Upper)
                ifUpperWins[number * games + game] += weight;
    }
    points.resize(size() * row);
}

/// @returns the class of the last row, which need not be one yet
template <class Points, class Number>
std::size_t RegionClasses<Points, Number>::classFor(std::size_t row)
{
    const auto own = points.end() - static_cast<std::ptrdiff_t>(row);
    std::uint64_t hash = 0;
    for (auto i = own; i != points.end(); ++i)
        hash = (hash ^ static_cast<std::uint64_t>(*i)) * 0x9E37'79B9'7F4A'7C15;
    for (std::size_t slot = hash >> 32;; ++slot) {
        std::uint32_t& found = m_found[slot & (m_found.size() - 1)];
        if (found == 0) {
            found = static_cast<std::uint32_t>(size() + 1);
            return size();
        }
        if (std::equal(own, points.end(), points.begin() + static_cast<std::ptrdiff_t>((found - 1) * row)))
            return found - 1;
    }
}

template struct RegionClasses<std::int16_t, std::uint64_t>;
template struct RegionClasses<std::int32_t, std::uint64_t>;
template struct RegionClasses<std::int16_t, double>;
template struct RegionClasses<std::int32_t, double>;

} // namespace tallyhoop
