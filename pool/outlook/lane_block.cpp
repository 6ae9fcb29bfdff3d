// pool/outlook/lane_block.cpp - every lane so far once more for each outcome of a further region.
#include "pool/outlook/lane_block.h"

#include <numeric>

namespace tallyhoop {

template <class Points>
LaneBlock<Points>::LaneBlock(std::size_t players) : m_players{players}, m_points(players)
{
}

template <class Points>
void LaneBlock<Points>::add(const RegionEnd<Points>& end)
{
    const std::size_t before = m_outcomes.size();
    const std::size_t outcomes = end.outcomes.size();
    const std::size_t row = Lanes<Points>::padded(m_players);
    m_strides.push_back({before, outcomes});
    std::vector<Points> points(m_players * before * outcomes);
    for (std::size_t player = 0; player < m_players; ++player)
        for (std::size_t outcome = 0; outcome < outcomes; ++outcome)
            for (std::size_t lane = 0; lane < before; ++lane)
                points[(player * outcomes + outcome) * before + lane] =
                    static_cast<Points>(m_points[player * before + lane] + end.points[outcome * row + player]);
    m_points = std::move(points);
    m_outcomes.resize(before * outcomes);
    m_chances.resize(before * outcomes);
    for (std::size_t lane = before * outcomes; lane-- > 0;) {
        const std::size_t outcome = lane / before;
        m_outcomes[lane] = m_outcomes[lane % before] | end.outcomes[outcome];
        m_chances[lane] = m_chances[lane % before] * static_cast<float>(end.chances[outcome]);
    }
}

template <class Points>
void LaneBlock<Points>::close()
{
    const std::size_t used = size();
    m_inUse.assign(Lanes<Points>::padded(used), 0);
    std::fill_n(m_inUse.begin(), used, Points{-1});
    m_chances.resize(lanes());
    std::vector<Points> points(m_players * lanes());
    for (std::size_t player = 0; player < m_players; ++player)
        std::copy_n(&m_points[player * used], used, &points[player * lanes()]);
    m_points = std::move(points);
}

template <class Points>
double LaneBlock<Points>::totalChance() const
{
    return std::accumulate(m_chances.begin(), m_chances.end(), 0.0);
}

template class LaneBlock<std::int16_t>;
template class LaneBlock<std::int32_t>;

} // namespace tallyhoop
