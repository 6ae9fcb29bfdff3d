// pool/outlook/lanes.h - many outcomes side by side in the vector registers: who has the most points in each.
//
// Written with the compiler's vector extensions; on x86-64 it is compiled a second time for AVX2, which is used where
// the processor has it.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <vector>

namespace tallyhoop {

/// Points side by side, one for each of some neighbouring outcomes: a lane is an outcome.
template <class Points>
struct Lanes {
    static constexpr std::size_t kBytes = 32;
    static constexpr std::size_t kCount = kBytes / sizeof(Points);
    using Vector [[gnu::vector_size(kBytes)]] = Points;

    /// @returns so many numbers, filled up to whole vectors
    static constexpr std::size_t padded(std::size_t numbers) { return (numbers + kCount - 1) / kCount * kCount; }
};

/// What a lane counts: outcomes, or their chances. The counter of outcomes has as many bits as the points.
template <class Points, class Number>
using LaneCounter = std::conditional_t<std::is_integral_v<Number>, std::make_unsigned_t<Points>, float>;

/// One who may be first in some of the lanes. The pointers are to as many numbers as there are lanes.
template <class Points, class Number>
struct Runner {
    const Points* points = nullptr;               ///< in each lane
    Points before = 0;                            ///< points that come on top in every lane
    Points players = 1;                           ///< how many have these points
    LaneCounter<Points, Number>* alone = nullptr; ///< raised in the lanes in which the runner is first and one player
    Number sum{};                                 ///< raised by the lanes counted so
};

/// Lanes of one vector in which several players are first.
template <class Points>
struct Tie {
    std::size_t vector = 0; ///< number of the vector
    std::size_t runner = 0;
    std::size_t players = 0;                           ///< how many are first in them, 2 or more
    std::array<Points, Lanes<Points>::kCount> lanes{}; ///< -1 for those in which it is so, 0 for others
};

/// A comparison of some runners in all lanes.
template <class Points, class Number>
struct Heat {
    std::size_t lanes = 0;                       ///< a multiple of Lanes<Points>::kCount
    const Points* inUse = nullptr;               ///< -1 for each lane, 0 for those that only fill up the last vector
    const float* laneChances = nullptr;          ///< with chances only: of each lane, given what comes before
    float chance = 1;                            ///< with chances only: of what comes before
    std::vector<Runner<Points, Number>> runners; ///< 1 or more
    std::vector<Tie<Points>> ties;               ///< those found; one for each runner in it

    std::vector<Points> scores; ///< for the use of countLanes()
    std::vector<Points> sums;   ///< likewise
};

/// Finds who is first in each lane. Those alone are counted; ties are listed.
template <class Points, class Number>
void countLanes(Heat<Points, Number>& heat);

/// @returns whether for some i limits[i] + before < others[i]
/// @param lanes a multiple of Lanes<Points>::kCount
template <class Points>
inline bool isBeaten(const Points* limits, Points before, const Points* others, std::size_t lanes)
{
    using Vector = typename Lanes<Points>::Vector;
    for (std::size_t i = 0; i < lanes; i += Lanes<Points>::kCount) {
        Vector limit;
        Vector other;
        __builtin_memcpy(&limit, limits + i, sizeof limit);
        __builtin_memcpy(&other, others + i, sizeof other);
        const auto less = limit + before < other;
        std::array<std::uint64_t, Lanes<Points>::kBytes / sizeof(std::uint64_t)> words;
        __builtin_memcpy(&words, &less, sizeof words);
        if ((words[0] | words[1] | words[2] | words[3]) != 0)
            return true;
    }
    return false;
}

} // namespace tallyhoop
