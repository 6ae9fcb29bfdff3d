// pool/outlook/lane_block.h - the outcomes of some regions combined, side by side in lanes.
#pragma once

#include "pool/outlook/lanes.h"
#include "pool/outlook/region_classes.h"

#include <cstddef>
#include <vector>

namespace tallyhoop {

/// All combinations of the classes of some regions: a lane is a combination.
template <class Points, class Number>
class LaneBlock
{
public:
    static constexpr std::size_t kMostLanes = 256;

    /// Begins anew, with one lane in which nothing happens.
    void begin(std::size_t runners);

    /// Combines every lane with every class of one more region.
    void add(const RegionClasses<Points, Number>& classes);

    /// Fills up with lanes that are not in use. Nothing can be added afterwards.
    void close();

    std::size_t size() const { return m_outcomes.size(); } ///< lanes in use
    std::size_t lanes() const { return m_inUse.size(); }   ///< with those that fill up

    const Points* points(std::size_t runner) const { return &m_points[runner * m_inUse.size()]; }
    const Points* inUse() const { return m_inUse.data(); } ///< -1 for each lane in use, else 0
    const LaneWeight<Points, Number>* weights() const { return m_weights.data(); }
    OutcomeNumber outcome(std::size_t lane) const { return m_outcomes[lane]; } ///< one of the lane's
    Number total() const { return m_total; }                                   ///< of the weights

    /// How the lanes repeat a region: `length` lanes for a class, then as many for the next, all over again.
    struct Stride {
        std::size_t length = 1;
        std::size_t classes = 1;

        std::size_t classOf(std::size_t lane) const { return lane / length % classes; }
    };
    const Stride& stride(std::size_t region) const { return m_strides[region]; }

private:
    std::size_t m_runners = 0;
    std::vector<Points> m_points; ///< runner by runner; once it is closed with those that fill up
    std::vector<Points> m_before; ///< the same before the last addition
    std::vector<OutcomeNumber> m_outcomes;
    std::vector<LaneWeight<Points, Number>> m_weights;
    std::vector<Points> m_inUse;
    std::vector<Stride> m_strides;
    Number m_total{};
};

} // namespace tallyhoop
