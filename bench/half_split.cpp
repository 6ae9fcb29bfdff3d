// bench/half_split.cpp - two halves of the regions, all of the one with all of the other.
#include "bench/half_split.h"

#include "pool/outlook/lanes.h"
#include "pool/outlook/region_points.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>
#include <utility>

namespace tallyhoop::bench {

namespace {

using Points = std::int16_t;
using Vector = Lanes<Points>::Vector;
using End = RegionEnd<Points>;
constexpr std::size_t kCount = Lanes<Points>::kCount;

/// The outcomes of two regions combined, player by player.
struct Half {
    std::size_t outcomes = 0;
    std::vector<Points> points; ///< filled up to whole vectors
    std::vector<Points> isUsed; ///< -1 for each outcome, 0 for what fills up

    Half(const End& one, const End& other, std::size_t players) : outcomes{one.outcomes.size() * other.outcomes.size()}
    {
        const std::size_t row = Lanes<Points>::padded(players);
        const std::size_t lanes = Lanes<Points>::padded(outcomes);
        points.resize(players * lanes);
        isUsed.resize(lanes);
        std::fill_n(isUsed.begin(), outcomes, Points{-1});
        for (std::size_t player = 0; player < players; ++player)
            for (std::size_t i = 0; i < one.outcomes.size(); ++i)
                for (std::size_t j = 0; j < other.outcomes.size(); ++j)
                    points[player * lanes + i * other.outcomes.size() + j] =
                        static_cast<Points>(one.points[i * row + player] + other.points[j * row + player]);
    }

    std::size_t lanes() const { return Lanes<Points>::padded(outcomes); }
};

struct Comparison {
    const Half& half;
    std::vector<Points> before; ///< for each player: from the other half and the last three games
    std::vector<Points> alone;  ///< player by player, a vector each: how often first and nobody else is
    std::vector<Points> first;  ///< how often first
    std::vector<Points> scores; ///< for the use of compare()
};

[[gnu::always_inline]] inline void add(const Vector& mask, Points* counts)
{
    Vector sum;
    std::memcpy(&sum, counts, sizeof sum);
    sum -= mask;
    std::memcpy(counts, &sum, sizeof sum);
}

[[gnu::always_inline]] inline void compare(Comparison& comparison)
{
    const std::size_t players = comparison.before.size();
    const std::size_t lanes = comparison.half.lanes();
    for (std::size_t lane = 0; lane < lanes; lane += kCount) {
        const Points* points = comparison.half.points.data() + lane;
        Vector most = Vector{} + std::numeric_limits<Points>::min();
        Vector second = most;
        for (std::size_t player = 0; player < players; ++player) {
            Vector score;
            std::memcpy(&score, points + player * lanes, sizeof score);
            score += comparison.before[player];
            std::memcpy(&comparison.scores[player * kCount], &score, sizeof score);
            const Vector less = score > most ? most : score;
            second = less > second ? less : second;
            most = score > most ? score : most;
        }
        Vector isUsed;
        std::memcpy(&isUsed, &comparison.half.isUsed[lane], sizeof isUsed);
        const Vector isAlone = isUsed & (second < most);
        for (std::size_t player = 0; player < players; ++player) {
            Vector score;
            std::memcpy(&score, &comparison.scores[player * kCount], sizeof score);
            const Vector isFirst = isUsed & (score == most);
            add(isFirst, &comparison.first[player * kCount]);
            add(isFirst & isAlone, &comparison.alone[player * kCount]);
        }
    }
}

#if defined(__x86_64__)
[[gnu::target("avx2")]] void compareWithAvx2(Comparison& comparison) { compare(comparison); }
#endif

void compareBest(Comparison& comparison)
{
#if defined(__x86_64__)
    if (__builtin_cpu_supports("avx2")) {
        compareWithAvx2(comparison);
        return;
    }
#endif
    compare(comparison);
}

void addUp(Comparison& comparison, std::vector<SplitFirsts>& firsts)
{
    for (std::size_t i = 0; i < comparison.first.size(); ++i) {
        const auto alone = static_cast<std::uint16_t>(std::exchange(comparison.alone[i], Points{0}));
        firsts[i / kCount].alone += alone;
        firsts[i / kCount].together += static_cast<std::uint64_t>(
            static_cast<std::uint16_t>(std::exchange(comparison.first[i], Points{0})) - alone);
    }
}

} // namespace

std::vector<SplitFirsts> countByHalves(const Contest& contest)
{
    const std::size_t players = contest.players();
    const auto regions = regionPoints<Points>(contest);
    const auto finals = combinations(openAmong(contest.games(), finalGames()));
    std::vector<SplitFirsts> firsts(players);
    for (const End& third : regions[2].ends)
        for (const End& fourth : regions[3].ends) {
            const Half lower{third, fourth, players};
            const std::vector<Points> none(players * kCount);
            Comparison comparison{lower, std::vector<Points>(players), none, none, none};
            for (const End& first : regions[0].ends)
                for (const End& second : regions[1].ends) {
                    const Half upper{first, second, players};
                    for (const OutcomeNumber outcome : finals) {
                        ByPosition<TeamNumber> teams = contest.games().known().numbers();
                        int region = 0;
                        for (const End* end : {&first, &second, &third, &fourth})
                            teams[regionWinner(region++)] = end->winner;
                        playAll(contest.games(), finalGames(), outcome, teams);
                        for (std::size_t i = 0; i < upper.outcomes; ++i) {
                            for (std::size_t player = 0; player < players; ++player)
                                comparison.before[player] =
                                    static_cast<Points>(contest.points(player, teams, finalGames()) +
                                                        upper.points[player * upper.lanes() + i]);
                            compareBest(comparison);
                        }
                        addUp(comparison, firsts);
                    }
                }
        }
    return firsts;
}

} // namespace tallyhoop::bench
