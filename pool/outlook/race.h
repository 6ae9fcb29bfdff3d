// pool/outlook/race.h - counts how a few runners end over all outcomes of the regions, once it is known who wins these.
#pragma once

#include "pool/outlook/lane_block.h"
#include "pool/outlook/lanes.h"
#include "pool/outlook/region_classes.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace tallyhoop {

/// The outcomes of some regions become lanes, those of the others the branches of a tree above them. Runners who can no
/// longer be first on a branch are dropped there; where one is left, the branch is counted as a whole.
template <class Points, class Number>
class Race
{
public:
    /// What was counted for one number of players who are first together.
    struct Count {
        std::size_t together = 1;
        std::vector<Number> all;                             ///< for each runner
        std::array<std::vector<Number>, kRegions> ofClasses; ///< by region, class by class: for each runner
        bool isUsed = false;                                 ///< in this race; else all of it is without meaning

    private:
        friend class Race;
        std::vector<LaneWeight<Points, Number>> lanes;        ///< runner by runner: for each lane
        std::array<std::vector<Number>, kRegions> everyClass; ///< by region: for each runner, before their weights
        std::array<std::vector<Number>, kRegions + 1> sums;   ///< by level: for each runner
    };

    /// @param players for each runner, how many players it stands for
    explicit Race(std::vector<std::size_t> players) : m_players{std::move(players)} {}

    /// Begins. What an earlier race has counted is forgotten.
    /// @param runners who is in it, one or more
    /// @param points  for each of them: points from elsewhere
    /// @param ends    for each region: the outcomes that are left, with leads
    void begin(std::span<const std::size_t> runners, std::span<const Points> points,
               const std::array<RegionPoints<Points>, kRegions>& regions,
               const std::array<const RegionEnd<Points>*, kRegions>& ends);

    /// Whether all is counted; also before the first race.
    bool isDone() const { return m_isDone; }

    /// How much is, 0..1, growing steadily.
    double fraction() const;

    /// Counts some of the branches. @pre !isDone()
    void advance();

    const RegionClasses<Points, Number>& classes(std::size_t region) const { return m_classes[region]; }
    const std::vector<Count>& counts() const { return m_counts; }

    /// @returns an outcome of the regions in which one of the runners is first; nothing when there is none
    const std::optional<OutcomeNumber>& witness(std::size_t i) const { return m_witnesses[i]; }

private:
    /// What is known once so many regions besides the lanes are still open.
    struct Level {
        std::size_t region = 0;         ///< the one that is decided next; without a meaning for level 0
        std::size_t classNumber = 0;    ///< of that one: the class being counted; all of them are = size()
        Number weight{};                ///< of all that is decided
        std::vector<Points> limits;     ///< runner by runner, in rows: most that the one can gain on each other
        Number outcomes{};              ///< in the regions still open
        std::vector<Points> points;     ///< a row: in all that is decided
        std::vector<std::size_t> alive; ///< those who can still be first
    };

    void chooseLevels(const std::array<const RegionEnd<Points>*, kRegions>& ends);
    void addLeads(const RegionEnd<Points>& end, std::vector<Points>& limits) const;
    std::size_t goOn();
    void descend();
    void leave();
    void countWhole(std::size_t i);
    void countHeat(Number weight);
    void runHeat(LaneWeight<Points, Number> laneWeight, Number weight);
    void addTie(const Tie<Points>& tie, LaneWeight<Points, Number> laneWeight, Number weight);
    void addSums(std::size_t level);
    void addLanes(Number factor);
    void addVector(std::size_t first, Number factor, LaneWeight<Points, Number>* lanes, std::size_t i,
                   Count& count) const;
    void addEveryClass();

    Count& countFor(std::size_t together);
    OutcomeNumber decided(std::size_t level) const;
    void findWitness(std::size_t heatRunner);

    std::vector<std::size_t> m_players;
    std::span<const std::size_t> m_runners;
    std::size_t m_row = 0;
    std::array<RegionClasses<Points, Number>, kRegions> m_classes;
    std::vector<std::size_t> m_laneRegions;
    std::size_t m_depth = 0; ///< the highest level
    std::array<Level, kRegions + 1> m_levels;
    std::size_t m_level = 0; ///< that of the branch being counted
    bool m_isDone = true;
    LaneBlock<Points, Number> m_block;
    Heat<Points, Number> m_heat;
    Number m_laneWeights{}; ///< by how much a lane may have been raised since the lanes were last added up

    std::vector<Count> m_counts;
    std::vector<std::size_t> m_countNumbers; ///< by players together: index in m_counts and 1; 0 = not met
    std::vector<std::optional<OutcomeNumber>> m_witnesses;
};

} // namespace tallyhoop
