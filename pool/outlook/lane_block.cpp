// pool/outlook/lane_block.cpp - every lane so far once more for each class of a further region.
#include "pool/outlook/lane_block.h"

#include <algorithm>

namespace tallyhoop {

template <class Points, class Number>
void LaneBlock<Points, Number>::begin(std::size_t runners)
{
    m_runners = runners;
    m_points.assign(runners, 0);
    m_outcomes.assign(1, 0);
    m_weights.assign(1, 1);
    m_strides.clear();
    m_total = 1;
}

template <class Points, class Number>
void LaneBlock<Points, Number>::add(const RegionClasses<Points, Number>& classes)
{
    const std::size_t before = m_outcomes.size();
    const std::size_t after = before * classes.size();
    const std::size_t row = Lanes<Points>::padded(m_runners);
    m_strides.push_back({before, classes.size()});
    m_before.swap(m_points);
    m_points.resize(m_runners * after);
    Points* to = m_points.data();
    for (std::size_t runner = 0; runner < m_runners; ++runner)
        for (std::size_t number = 0; number < classes.size(); ++number) {
            const Points more = classes.points[number * row + runner];
            for (std::size_t lane = 0; lane < before; ++lane)
                *to++ = static_cast<Points>(m_before[runner * before + lane] + more);
        }
    m_outcomes.resize(after);
    m_weights.resize(after);
    for (std::size_t lane = after; lane-- > 0;) {
        m_outcomes[lane] = m_outcomes[lane % before] | classes.outcomes[lane / before];
        m_weights[lane] = static_cast<LaneWeight<Points, Number>>(
            m_weights[lane % before] * static_cast<LaneWeight<Points, Number>>(classes.weights[lane / before]));
    }
    m_total *= classes.total;
}

template <class Points, class Number>
void LaneBlock<Points, Number>::close()
{
    const std::size_t used = size();
    m_inUse.assign(Lanes<Points>::padded(used), 0);
    std::fill_n(m_inUse.begin(), used, Points{-1});
    m_weights.resize(lanes());
    if (lanes() == used)
        return;
    m_before.swap(m_points);
    m_points.assign(m_runners * lanes(), 0);
    for (std::size_t runner = 0; runner < m_runners; ++runner)
        std::copy_n(&m_before[runner * used], used, &m_points[runner * lanes()]);
}

template class LaneBlock<std::int16_t, std::uint64_t>;
template class LaneBlock<std::int32_t, std::uint64_t>;
template class LaneBlock<std::int16_t, double>;
template class LaneBlock<std::int32_t, double>;

} // namespace tallyhoop
