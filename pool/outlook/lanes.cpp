// pool/outlook/lanes.cpp - two passes over the runners for each vector: the most points, then who has them.
#include "pool/outlook/lanes.h"

#include <atomic>

namespace tallyhoop {

namespace {

// Everything below is inlined into the functions at the end, which are compiled for different processors.
template <class Vector, class Number>
[[gnu::always_inline]] inline void load(Vector& vector, const Number* from)
{
    __builtin_memcpy(&vector, from, sizeof vector);
}

template <class Vector, class Number>
[[gnu::always_inline]] inline void store(const Vector& vector, Number* to)
{
    __builtin_memcpy(to, &vector, sizeof vector);
}

template <class Vector>
[[gnu::always_inline]] inline bool anySet(const Vector& vector)
{
    std::array<std::uint64_t, sizeof vector / sizeof(std::uint64_t)> words{};
    __builtin_memcpy(&words, &vector, sizeof words);
    return (words[0] | words[1] | words[2] | words[3]) != 0;
}

/// A weight for each lane. (The size of a vector type must not depend on a template's argument.)
template <class Weight>
struct WeightLanes;
template <>
struct WeightLanes<std::uint16_t> {
    using Vector [[gnu::vector_size(32)]] = std::uint16_t;
};
template <>
struct WeightLanes<std::uint32_t> {
    using Vector [[gnu::vector_size(32)]] = std::uint32_t;
};

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
[[gnu::always_inline]] inline void listTies(Heat<Points, Number>& heat, std::size_t lane, Vector& tied,
                                            const Vector& players)
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
            tie.firstLane = lane;
            tie.runner = i;
            tie.players = static_cast<std::size_t>(together);
            store(isFirst, tie.lanes.data());
        }
    }
}

template <class Points>
[[gnu::always_inline]] inline void countAlone(Heat<Points, std::uint64_t>& heat, std::size_t lane, std::size_t runner,
                                              const typename Lanes<Points>::Vector& isAlone)
{
    using Weights = typename WeightLanes<std::make_unsigned_t<Points>>::Vector;
    const auto mask = reinterpret_cast<Weights>(isAlone);
    Weights counts;
    load(counts, heat.runners[runner].alone + lane);
    counts += mask & heat.before;
    store(counts, heat.runners[runner].alone + lane);
    Weights weights;
    load(weights, heat.weights + lane);
    Weights sums;
    load(sums, &heat.sums[runner * Lanes<Points>::kCount]);
    sums += mask & weights;
    store(sums, &heat.sums[runner * Lanes<Points>::kCount]);
}

template <class Points>
[[gnu::always_inline]] inline void countAlone(Heat<Points, double>& heat, std::size_t lane, std::size_t runner,
                                              const typename Lanes<Points>::Vector& isAlone)
{
    using Chances = typename ChanceLanes<Lanes<Points>::kCount>::Vector;
    const Chances minusOne = __builtin_convertvector(isAlone, Chances);
    Chances counts;
    load(counts, heat.runners[runner].alone + lane);
    counts -= minusOne * heat.before;
    store(counts, heat.runners[runner].alone + lane);
    Chances weights;
    load(weights, heat.weights + lane);
    Chances sums;
    load(sums, &heat.sums[runner * Lanes<Points>::kCount]);
    sums -= minusOne * weights;
    store(sums, &heat.sums[runner * Lanes<Points>::kCount]);
}

template <class Points, class Number>
[[gnu::always_inline]] inline void countVector(Heat<Points, Number>& heat, std::size_t lane)
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
[[gnu::always_inline]] inline void countAll(Heat<Points, Number>& heat)
{
    constexpr std::size_t kCount = Lanes<Points>::kCount;
    heat.ties.clear();
    heat.scores.resize(heat.runners.size() * kCount);
    heat.sums.assign(heat.runners.size() * kCount, 0);
    for (std::size_t lane = 0; lane < heat.lanes; lane += kCount)
        countVector(heat, lane);
    for (std::size_t i = 0; i < heat.runners.size(); ++i)
        for (std::size_t lane = 0; lane < kCount; ++lane)
            heat.runners[i].sum += static_cast<Number>(heat.sums[i * kCount + lane]);
}

template <class Points>
[[gnu::always_inline]] inline bool isBeaten(const Points* limits, Points before, const std::vector<Points>& points)
{
    using Vector = typename Lanes<Points>::Vector;
    for (std::size_t i = 0; i < points.size(); i += Lanes<Points>::kCount) {
        Vector limit;
        Vector other;
        load(limit, limits + i);
        load(other, &points[i]);
        if (anySet(limit + before < other))
            return true;
    }
    return false;
}

template <class Points>
[[gnu::always_inline]] inline void keep(const std::vector<Points>& limits, const std::vector<Points>& points,
                                        const std::vector<std::size_t>& all, std::vector<std::size_t>& kept)
{
    kept.clear();
    for (const std::size_t i : all)
        if (!isBeaten(&limits[i * points.size()], points[i], points))
            kept.push_back(i);
}

#if defined(__x86_64__)
template <class Points, class Number>
[[gnu::target("avx2")]] void countWithAvx2(Heat<Points, Number>& heat)
{
    countAll(heat);
}

template <class Points>
[[gnu::target("avx2")]] void keepWithAvx2(const std::vector<Points>& limits, const std::vector<Points>& points,
                                          const std::vector<std::size_t>& all, std::vector<std::size_t>& kept)
{
    keep(limits, points, all, kept);
}

bool hasAvx2() { return __builtin_cpu_supports("avx2") != 0; }
#else
bool hasAvx2() { return false; }
#endif

std::atomic<bool>& usesAvx2()
{
    static std::atomic<bool> uses{hasAvx2()};
    return uses;
}

} // namespace

bool useAvx2(bool wanted) { return usesAvx2().exchange(wanted && hasAvx2()); }

template <class Points, class Number>
void countLanes(Heat<Points, Number>& heat)
{
#if defined(__x86_64__)
    if (usesAvx2()) {
        countWithAvx2(heat);
        return;
    }
#endif
    countAll(heat);
}

template <class Points>
void keepAlive(const std::vector<Points>& limits, const std::vector<Points>& points,
               const std::vector<std::size_t>& all, std::vector<std::size_t>& kept)
{
#if defined(__x86_64__)
    if (usesAvx2()) {
        keepWithAvx2(limits, points, all, kept);
        return;
    }
#endif
    keep(limits, points, all, kept);
}

template void countLanes(Heat<std::int16_t, std::uint64_t>&);
template void countLanes(Heat<std::int32_t, std::uint64_t>&);
template void countLanes(Heat<std::int16_t, double>&);
template void countLanes(Heat<std::int32_t, double>&);
template void keepAlive(const std::vector<std::int16_t>&, const std::vector<std::int16_t>&,
                        const std::vector<std::size_t>&, std::vector<std::size_t>&);
template void keepAlive(const std::vector<std::int32_t>&, const std::vector<std::int32_t>&,
                        const std::vector<std::size_t>&, std::vector<std::size_t>&);

} // namespace tallyhoop
