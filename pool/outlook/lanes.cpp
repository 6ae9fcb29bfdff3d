// pool/outlook/lanes.cpp - two passes over the runners for each vector: the most points, then who has them.
#include "pool/outlook/lanes.h"

namespace tallyhoop {

namespace {

// Everything below is inlined into the functions at the end, which are compiled for different processors.
#define TALLYHOOP_INLINE [[gnu::always_inline]] inline

template <class Vector, class Number>
TALLYHOOP_INLINE void load(Vector& vector, const Number* from)
{
    __builtin_memcpy(&vector, from, sizeof vector);
}

template <class Vector, class Number>
TALLYHOOP_INLINE void store(const Vector& vector, Number* to)
{
    __builtin_memcpy(to, &vector, sizeof vector);
}

template <class Vector>
TALLYHOOP_INLINE bool anySet(const Vector& vector)
{
    std::array<std::uint64_t, sizeof vector / sizeof(std::uint64_t)> words;
    __builtin_memcpy(&words, &vector, sizeof words);
    return (words[0] | words[1] | words[2] | words[3]) != 0;
}

/// A chance for each lane of a vector of points. (The size of a vector type must not depend on a template's argument.)
template <std::size_t kLanes>
struct ChanceLanes;
template <>
struct ChanceLanes<8> {
    using Vector [[gnu::vector_size(8 * sizeof(float))]] = float;
};
template <>
struct ChanceLanes<16> {
    using Vector [[gnu::vector_size(16 * sizeof(float))]] = float;
};

/// Lists the runners of the lanes in which several players are first.
template <class Points, class Number, class Vector>
TALLYHOOP_INLINE void listTies(Heat<Points, Number>& heat, std::size_t lane, Vector& tied, const Vector& players)
{
    constexpr std::size_t kCount = Lanes<Points>::kCount;
    for (Points together = 2; anySet(tied); ++together) {
        const Vector now = tied & (players == together);
        if (!anySet(now))
            continue;
        tied &= ~now;
        for (std::size_t i = 0; i < heat.runners.size(); ++i) {
            Vector isFirst;
            load(isFirst, &heat.scores[i * kCount]);
            isFirst &= now;
            if (!anySet(isFirst))
                continue;
            Tie<Points>& tie = heat.ties.emplace_back();
            tie.vector = lane / kCount;
            tie.runner = i;
            tie.players = static_cast<std::size_t>(together);
            store(isFirst, tie.lanes.data());
        }
    }
}

template <class Points>
TALLYHOOP_INLINE void countAlone(Heat<Points, std::uint64_t>& heat, std::size_t lane, std::size_t runner,
                                 const typename Lanes<Points>::Vector& isAlone)
{
    using Vector = typename Lanes<Points>::Vector;
    Vector counts;
    load(counts, heat.runners[runner].alone + lane);
    counts -= isAlone;
    store(counts, heat.runners[runner].alone + lane);
    Vector sums;
    load(sums, &heat.sums[runner * Lanes<Points>::kCount]);
    sums -= isAlone;
    store(sums, &heat.sums[runner * Lanes<Points>::kCount]);
}

template <class Points>
TALLYHOOP_INLINE void countAlone(Heat<Points, double>& heat, std::size_t lane, std::size_t runner,
                                 const typename Lanes<Points>::Vector& isAlone)
{
    using Chances = typename ChanceLanes<Lanes<Points>::kCount>::Vector;
    const Chances minusOne = __builtin_convertvector(isAlone, Chances);
    Chances counts;
    load(counts, heat.runners[runner].alone + lane);
    counts -= minusOne * heat.chance;
    store(counts, heat.runners[runner].alone + lane);
    Chances laneChances;
    load(laneChances, heat.laneChances + lane);
    laneChances *= minusOne;
    float sum = 0;
    for (std::size_t i = 0; i < Lanes<Points>::kCount; ++i)
        sum -= laneChances[i];
    heat.runners[runner].sum += static_cast<double>(sum);
}

template <class Points, class Number>
TALLYHOOP_INLINE void countVector(Heat<Points, Number>& heat, std::size_t lane)
{
    using Vector = typename Lanes<Points>::Vector;
    constexpr std::size_t kCount = Lanes<Points>::kCount;
    const std::size_t runners = heat.runners.size();
    Vector most;
    load(most, heat.runners[0].points + lane);
    most += heat.runners[0].before;
    store(most, heat.scores.data());
    for (std::size_t i = 1; i < runners; ++i) {
        Vector score;
        load(score, heat.runners[i].points + lane);
        score += heat.runners[i].before;
        store(score, &heat.scores[i * kCount]);
        most = score > most ? score : most;
    }
    Vector players{};
    for (std::size_t i = 0; i < runners; ++i) {
        Vector isFirst;
        load(isFirst, &heat.scores[i * kCount]);
        isFirst = isFirst == most;
        store(isFirst, &heat.scores[i * kCount]);
        players += isFirst & heat.runners[i].players;
    }
    Vector inUse;
    load(inUse, heat.inUse + lane);
    const Vector oneIsFirst = inUse & (players == 1);
    for (std::size_t i = 0; i < runners; ++i) {
        Vector isFirst;
        load(isFirst, &heat.scores[i * kCount]);
        isFirst &= oneIsFirst;
        countAlone<Points>(heat, lane, i, isFirst);
    }
    Vector tied = inUse & (players != 1);
    if (anySet(tied))
        listTies(heat, lane, tied, players);
}

template <class Points, class Number>
TALLYHOOP_INLINE void countAll(Heat<Points, Number>& heat)
{
    constexpr std::size_t kCount = Lanes<Points>::kCount;
    heat.ties.clear();
    heat.scores.resize(heat.runners.size() * kCount);
    heat.sums.assign(heat.runners.size() * kCount, 0);
    for (std::size_t lane = 0; lane < heat.lanes; lane += kCount)
        countVector(heat, lane);
    if constexpr (std::is_integral_v<Number>)
        for (std::size_t i = 0; i < heat.runners.size(); ++i)
            for (std::size_t lane = 0; lane < kCount; ++lane)
                heat.runners[i].sum += static_cast<Number>(heat.sums[i * kCount + lane]);
}

#if defined(__x86_64__)
template <class Points, class Number>
[[gnu::target("avx2")]] void countWithAvx2(Heat<Points, Number>& heat)
{
    countAll(heat);
}

bool hasAvx2()
{
    static const bool has = __builtin_cpu_supports("avx2") != 0;
    return has;
}
#endif

} // namespace

template <class Points, class Number>
void countLanes(Heat<Points, Number>& heat)
{
#if defined(__x86_64__)
    if (hasAvx2()) {
        countWithAvx2(heat);
        return;
    }
#endif
    countAll(heat);
}

template void countLanes(Heat<std::int16_t, std::uint64_t>&);
template void countLanes(Heat<std::int32_t, std::uint64_t>&);
template void countLanes(Heat<std::int16_t, double>&);
template void countLanes(Heat<std::int32_t, double>&);

} // namespace tallyhoop
