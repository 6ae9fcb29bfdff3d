// pool/outlook/region_classes.h - the outcomes of a region, those together that make no difference between runners.
#pragma once

#include "pool/outlook/region_points.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace tallyhoop {

/// Outcomes of a region that the same team wins, for a few runners: two outcomes are of one class when every runner
/// gets as much more or less from the one than from the other as every other runner.
/// @tparam Number std::uint64_t to count outcomes, double to add up their chances
template <class Points, class Number>
struct RegionClasses {
    std::vector<Points> points; ///< class by class, in rows of Lanes<Points>::padded(runners): points less those of the
                                ///< first runner; then 0
    std::vector<Number> weights;         ///< of each class: its outcomes, or their chance
    std::vector<Number> ifUpperWins;     ///< class by class: the same for each open game of the region
    std::vector<OutcomeNumber> outcomes; ///< of each class: one of them
    Number total{};                      ///< sum of the weights

    std::size_t size() const { return weights.size(); }

    /// Sorts the outcomes of an end.
    /// @param runners indices of players, one or more
    void find(const RegionPoints<Points>& region, const RegionEnd<Points>& end, std::span<const std::size_t> runners);

private:
    std::size_t classFor(std::size_t row);

    std::vector<std::uint32_t> m_found; ///< hash table: a class and 1, or 0
};

} // namespace tallyhoop
