// pool/outlook/count_tree.h - counts all outcomes: a race for each way to win the regions and the last three games.
#pragma once

#include "pool/outlook/contest.h"
#include "pool/outlook/race.h"
#include "pool/outlook/region_points.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace tallyhoop {

/// The sum of the payoffs of all games, each without its sign, up to which 16 bits are enough for points.
inline constexpr std::int32_t kMostSmallPoints = 8000;

/// How often some players are first who all may be, over all outcomes: as counts, or as chances.
/// @tparam Points std::int16_t, or std::int32_t where the payoffs are more than kMostSmallPoints
/// @tparam Number std::uint64_t for counts, double for chances
template <class Points, class Number>
class CountTree
{
public:
    /// First places that a certain number of players share.
    struct Count {
        std::size_t together = 1;        ///< how many are first, 1 = alone
        std::vector<Number> all;         ///< for each runner
        std::vector<Number> ifUpperWins; ///< the same for each open game, one game after the other
    };

    /// @param contest     the runners: one or more, each of them with other points in some outcome than any other; must
    ///                    outlive this
    /// @param players     how many players each of them stands for
    /// @param upperChance for chances; empty for counts
    /// @param step        called for each runner; after a stop nothing can be counted
    CountTree(const Contest& contest, const std::vector<std::size_t>& players, UpperChance upperChance,
              const Step& step);

    bool isDone() const { return m_race.isDone() && m_way == m_ways; }

    /// How much is done, 0..1, growing steadily.
    double fraction() const;

    /// Does one slice of the work. @pre !isDone()
    void advance();

    /// For each number of players who were first together, in no order.
    const std::vector<Count>& counts() const { return m_counts; }

    /// An outcome in which a runner is first; nothing when none was met.
    const std::optional<OutcomeNumber>& witness(std::size_t runner) const { return m_witnesses[runner]; }

private:
    using End = RegionEnd<Points>;

    void chooseEnds(std::size_t number);
    void beginRace();
    void addRace();
    void addRegion(std::size_t region, const std::vector<Number>& ofClasses, Number chance, Count& count) const;
    Count& countFor(std::size_t together);

    const Contest& m_contest;
    UpperChance m_upperChance;
    std::vector<std::size_t> m_finalGames;      ///< the open ones of the last three
    std::vector<OutcomeNumber> m_finalOutcomes; ///< all of these
    std::array<RegionPoints<Points>, kRegions> m_regions;
    std::size_t m_ways = 1; ///< to win the regions and the last three games: a race for each
    std::size_t m_way = 0;  ///< that of the race being counted, or the next one

    std::array<const End*, kRegions> m_ends{}; ///< those of the race
    double m_chance = 1;                       ///< of the outcome of its last three games
    std::vector<Points> m_limits;              ///< runner by runner, in rows: the largest leads in all regions
    std::vector<std::size_t> m_everybody;
    std::vector<std::size_t> m_running; ///< those in the race
    Race<Points, Number> m_race;

    std::vector<Count> m_counts;
    std::vector<std::size_t> m_countNumbers; ///< by players together: index in m_counts and 1; 0 = not met
    std::vector<std::optional<OutcomeNumber>> m_witnesses;
};

} // namespace tallyhoop
