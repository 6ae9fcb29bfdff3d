// pool/outlook/lane_block.h - the outcomes of some regions combined, side by side in lanes.
#pragma once

#include "pool/outlook/lanes.h"
#include "pool/outlook/region_points.h"

#include <cstddef>
#include <span>
#include <vector>

namespace tallyhoop {

/// All combinations of the outcomes of some regions, of which it is known who wins them: a lane is a combination.
template <class Points>
class LaneBlock
{
public:
    static constexpr std::size_t kMostLanes = 1024;

    /// The block without regions: one lane, in which nothing happens.
    /// @param players the number of players
    explicit LaneBlock(std::size_t players);

    /// Combines every lane with every outcome of one more region.
    void add(const RegionEnd<Points>& end);

    /// Fills up with lanes that are not in use. Nothing can be added afterwards.
    void close();

    std::size_t size() const { return m_outcomes.size(); } ///< lanes in use
    std::size_t lanes() const { return m_inUse.size(); }   ///< with those that fill up

    const Points* points(std::size_t player) const { return &m_points[player * m_inUse.size()]; }
    const Points* inUse() const { return m_inUse.data(); } ///< -1 for each lane in use, else 0
    std::span<const float> chances() const { return m_chances; }
    OutcomeNumber outcome(std::size_t lane) const { return m_outcomes[lane]; }
    double totalChance() const;

    /// How the lanes repeat a region: `length` lanes for an outcome, then as many for the next, all over again.
    struct Stride {
        std::size_t length = 1;
        std::size_t outcomes = 1;

        std::size_t outcome(std::size_t lane) const { return lane / length % outcomes; }
    };
    const Stride& stride(std::size_t region) const { return m_strides[region]; }

private:
    std::size_t m_players;
    std::vector<Points> m_points; ///< player by player; once it is closed with those that fill up
    std::vector<OutcomeNumber> m_outcomes{0};
    std::vector<float> m_chances{1};
    std::vector<Points> m_inUse;
    std::vector<Stride> m_strides;
};

} // namespace tallyhoop
