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

/// The weight of a lane: how many outcomes it counts for, or how likely they are. What counts has as many bits as the
/// points.
/// @tparam Number std::uint64_t for outcomes, double for chances
template <class Points, class Number>
using LaneWeight = std::conditional_t<std::is_integral_v<Number>, std::make_unsigned_t<Points>, float>;

/// One who may be first in some of the lanes. The pointers are to as many numbers as there are lanes.
template <class Points, class Number>
struct HeatRunner {
    const Points* points = nullptr;              ///< in each lane
    Points before = 0;                           ///< points that come on top in every lane
    Points players = 1;                          ///< how many have these points
    LaneWeight<Points, Number>* alone = nullptr; ///< raised in the lanes in which the runner is first and one player
    Number sum{};                                ///< raised by the weights of these lanes
};

/// Lanes of one vector in which a runner is first together with others.
template <class Points>
struct Tie {
    std::size_t firstLane = 0;
    std::size_t runner = 0;
    std::size_t players = 0;                           ///< how many are first, 2 or more
    std::array<Points, Lanes<Points>::kCount> lanes{}; ///< -1 for those in which it is so, 0 for others
};

/// A comparison of some runners in all lanes.
template <class Points, class Number>
struct Heat {
    std::size_t lanes = 0;                               ///< a multiple of Lanes<Points>::kCount
    const Points* inUse = nullptr;                       ///< -1 for each lane, 0 for those that fill up a vector
    const LaneWeight<Points, Number>* weights = nullptr; ///< of each lane; counts add up to no more than they hold
    LaneWeight<Points, Number> before = 1;               ///< by so much `alone` is raised
    std::vector<HeatRunner<Points, Number>> runners;     ///< 1 or more
    std::vector<Tie<Points>> ties;                       ///< those found, one for each runner in it

    std::vector<Points> scores;                   ///< for the use of countLanes()
    std::vector<LaneWeight<Points, Number>> sums; ///< likewise
};

/// Finds who is first in each lane. Those alone are counted; ties are listed.
/// @pre `Points` can count all players
template <class Points, class Number>
void countLanes(Heat<Points, Number>& heat);

/// Keeps of some runners those who can still be first.
/// @param limits runner by runner, in rows of a multiple of Lanes<Points>::kCount: the most by which the one can still
///               gain on each other; what fills up a row is out of reach
/// @param points a row
/// @param all    indices of runners
/// @param kept   those of them who are not behind anybody by more than their limit
template <class Points>
void keepAlive(const std::vector<Points>& limits, const std::vector<Points>& points,
               const std::vector<std::size_t>& all, std::vector<std::size_t>& kept);

/// Chooses how all of this is done from now on; it begins with AVX2 where the processor has it.
/// @param wanted without meaning on other processors
/// @returns whether it was used before
bool useAvx2(bool wanted);

} // namespace tallyhoop
