// pool/outlook/count_tree.h - counts outcomes as a tree: who wins the regions, the last three games, region by region.
#pragma once

#include "pool/outlook/contest.h"
#include "pool/outlook/lane_block.h"
#include "pool/outlook/lanes.h"
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
///
/// Those who can no longer be first on a branch of the tree are dropped there. Where one is left, the branch counts as
/// a whole. The regions with the fewest outcomes come last and together, as a LaneBlock.
///
/// @tparam Points std::int16_t, or std::int32_t where the payoffs are more than kMostSmallPoints
/// @tparam Number std::uint64_t for counts, double for chances
template <class Points, class Number>
class CountTree
{
public:
    /// First places that a certain number of players share.
    struct Size {
        std::size_t together = 1;        ///< how many are first, 1 = alone
        std::vector<Number> all;         ///< for each runner
        std::vector<Number> ifUpperWins; ///< the same for each open game, one game after the other
    };

    /// @param contest     the runners: one or more, each of them with other points in some outcome than any other; must
    ///                    outlive this
    /// @param players     how many players each of them counts for
    /// @param upperChance for chances; empty for counts
    CountTree(const Contest& contest, std::vector<std::size_t> players, const UpperChance& upperChance);

    /// The work comes in so many slices, each to be counted once.
    std::size_t slices() const { return m_slices; }
    void count(std::size_t slice);

    /// To be called after the last slice: makes the figures complete.
    void finish() { addLanes(); }

    /// Those that were met, in no order.
    const std::vector<Size>& sizes() const { return m_sizes; }

    /// An outcome in which a runner is first; nothing when none was met.
    const std::optional<OutcomeNumber>& witness(std::size_t runner) const { return m_witnesses[runner]; }

private:
    using End = RegionEnd<Points>;

    /// Of one size: what is not yet added to the games of the regions it comes from. All for each runner.
    struct Pending {
        std::vector<LaneCounter<Points, Number>> lanes;         ///< runner by runner: each lane
        std::vector<Number> everyLane;                          ///< as much for each lane
        std::array<std::vector<Number>, kRegions> outcomes;     ///< by level: outcome by outcome
        std::array<std::vector<Number>, kRegions> everyOutcome; ///< by level: as much for each outcome
        std::array<std::vector<Number>, kRegions + 1> sums;     ///< by level: all outcomes of the branch; by running
    };

    /// What is known of a branch on which so many regions besides the lanes are still open.
    struct Level {
        std::size_t region = 0;     ///< the one that is decided next; without a meaning for level 0
        std::size_t end = 0;        ///< of that one: which is being counted
        std::vector<Points> limits; ///< runner by runner, in rows: largest leads in the regions still open
        Number outcomes{};          ///< how many there are in the regions still open

        // The same for those running only.
        std::vector<Points> runningLimits;
        std::vector<Points> outcomePoints; ///< of the region that is decided next: outcome by outcome, in rows
        std::vector<Points> points;        ///< a row: in all that is decided
        std::vector<std::size_t> alive;    ///< those who can still be first
        std::size_t outcome = 0;           ///< the one of the region that is decided next
    };

    void orderRegions();
    void chooseEnds(std::size_t slice);
    void addLimits(std::size_t level);
    const End& end(std::size_t level) const { return m_regions[m_levels[level].region].ends[m_levels[level].end]; }

    void countFinal(OutcomeNumber outcome);
    void setRunning(const std::vector<Points>& points);
    void descend(std::size_t level, double chance);
    void countWhole(std::size_t level, std::size_t running, double chance);
    void countHeat(double chance);
    void addTie(const Tie<Points>& tie, double chance);
    void addSums(std::size_t level);

    void addLanes();
    void addOutcomes(std::size_t level);
    void addToGames(const RegionPoints<Points>& region, const End& end, std::span<const Number> outcomes, Size& size,
                    std::size_t runner) const;

    std::size_t sizeFor(std::size_t together);
    OutcomeNumber decided(std::size_t level) const;
    void findWitnessInHeat(std::size_t index);

    const Contest& m_contest;
    std::vector<std::size_t> m_players;
    UpperChance m_upperChance;
    std::vector<std::size_t> m_finalGames; ///< the open ones of the last three
    std::size_t m_row;                     ///< numbers in a row of runners
    std::array<RegionPoints<Points>, kRegions> m_regions;
    std::vector<std::size_t> m_laneRegions; ///< those that are in the lanes
    std::vector<std::size_t> m_laneEnds;    ///< which end of each
    std::size_t m_mostLanes = 0;
    std::size_t m_depth = 0; ///< the highest level
    std::size_t m_slices = 1;

    LaneBlock<Points> m_block;
    std::size_t m_visits = 0; ///< of the block since it was last added up

    OutcomeNumber m_final = 0;          ///< of the last three games, on this branch
    std::vector<std::size_t> m_running; ///< the runners in the race once the last three games are decided
    std::size_t m_runningRow = 0;
    std::array<Level, kRegions + 1> m_levels;
    Heat<Points, Number> m_heat;

    std::vector<Size> m_sizes;
    std::vector<Pending> m_pending;         ///< of each size
    std::vector<std::size_t> m_sizeNumbers; ///< by players together: index in m_sizes and 1; 0 = not met
    std::vector<std::optional<OutcomeNumber>> m_witnesses;
};

} // namespace tallyhoop
