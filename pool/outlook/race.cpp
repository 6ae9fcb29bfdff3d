// pool/outlook/race.cpp - down the branches with those still in the race, and the counts back to the classes.
#include "pool/outlook/race.h"

#include <algorithm>
#include <bit>
#include <limits>
#include <numeric>
#include <utility>

namespace tallyhoop {

namespace {

template <class Points>
constexpr Points kOutOfReach = std::numeric_limits<Points>::max() / 2;

template <class Number>
constexpr bool kCounts = std::is_integral_v<Number>;

/// Numbers that a slice looks at, most of them side by side: about four milliseconds.
constexpr std::size_t kWorkOfASlice = std::size_t{1} << 24;

} // namespace

template <class Points, class Number>
void Race<Points, Number>::begin(std::span<const std::size_t> runners, std::span<const Points> points,
                                 const std::array<RegionPoints<Points>, kRegions>& regions,
                                 const std::array<const RegionEnd<Points>*, kRegions>& ends)
{
    m_runners = runners;
    m_row = Lanes<Points>::padded(runners.size());
    m_witnesses.assign(runners.size(), std::nullopt);
    for (Count& count : m_counts)
        count.isUsed = false;
    for (std::size_t region = 0; region < kRegions; ++region)
        m_classes[region].find(regions[region], *ends[region], runners);
    chooseLevels(ends);
    Level& top = m_levels[m_depth];
    top.points.assign(m_row, 0);
    std::ranges::copy(points, top.points.begin());
    top.alive.resize(runners.size());
    std::iota(top.alive.begin(), top.alive.end(), std::size_t{0});
    top.weight = 1;
    top.classNumber = 0;
    m_level = m_depth;
    m_isDone = false;
}

/// Those regions become lanes that make the most lanes.
template <class Points, class Number>
void Race<Points, Number>::chooseLevels(const std::array<const RegionEnd<Points>*, kRegions>& ends)
{
    std::size_t best = 0;
    std::size_t mostLanes = 0;
    for (std::size_t some = 0; some < 1U << kRegions; ++some) {
        std::size_t lanes = 1;
        std::size_t outcomes = 1;
        for (std::size_t region = 0; region < kRegions; ++region)
            if ((some >> region & 1) != 0) {
                lanes *= m_classes[region].size();
                outcomes *= static_cast<std::size_t>(kCounts<Number> ? m_classes[region].total : 1);
            }
        const bool fits = lanes <= LaneBlock<Points, Number>::kMostLanes || std::has_single_bit(some);
        if (fits && outcomes <= std::numeric_limits<std::uint16_t>::max() && lanes >= mostLanes) {
            best = some;
            mostLanes = lanes;
        }
    }
    m_laneRegions.clear();
    m_block.begin(m_runners.size());
    m_depth = 0;
    Level& lanes = m_levels[0];
    lanes.limits.assign(m_row * m_runners.size(), kOutOfReach<Points>);
    for (std::size_t i = 0; i < m_runners.size(); ++i)
        std::fill_n(&lanes.limits[i * m_row], m_runners.size(), Points{0});
    for (std::size_t region = 0; region < kRegions; ++region)
        if ((best >> region & 1) != 0) {
            m_laneRegions.push_back(region);
            m_block.add(m_classes[region]);
            addLeads(*ends[region], lanes.limits);
        }
    m_block.close();
    lanes.outcomes = m_block.total();
    for (std::size_t region = 0; region < kRegions; ++region)
        if ((best >> region & 1) == 0) {
            const Level& below = m_levels[m_depth];
            Level& here = m_levels[++m_depth];
            here.region = region;
            here.outcomes = below.outcomes * m_classes[region].total;
            here.limits = below.limits;
            addLeads(*ends[region], here.limits);
        }
    for (std::size_t level = 0; level < m_depth; ++level)
        m_levels[level].points.resize(m_row);
}

template <class Points, class Number>
void Race<Points, Number>::addLeads(const RegionEnd<Points>& end, std::vector<Points>& limits) const
{
    const std::size_t endRow = end.points.size() / end.outcomes.size();
    for (std::size_t i = 0; i < m_runners.size(); ++i) {
        const Points* leads = &end.leads[m_runners[i] * endRow];
        for (std::size_t j = 0; j < m_runners.size(); ++j)
            limits[i * m_row + j] = static_cast<Points>(limits[i * m_row + j] + leads[m_runners[j]]);
    }
}

template <class Points, class Number>
void Race<Points, Number>::advance()
{
    for (std::size_t work = 0; work < kWorkOfASlice && !m_isDone;)
        work += goOn();
}

template <class Points, class Number>
double Race<Points, Number>::fraction() const
{
    if (m_isDone)
        return 1;
    double done = 0;
    double part = 1;
    for (std::size_t level = m_depth; level > 0 && level >= m_level; --level) {
        part /= static_cast<double>(m_classes[m_levels[level].region].size());
        done += part * static_cast<double>(m_levels[level].classNumber);
    }
    return done;
}

/// Counts the branch that was come to, or goes on to the next.
/// @returns about how many numbers it was necessary to look at
template <class Points, class Number>
std::size_t Race<Points, Number>::goOn()
{
    const Level& here = m_levels[m_level];
    std::size_t work = m_row;
    if (here.alive.size() == 1) {
        countWhole(here.alive.front());
        leave();
    } else if (m_level == 0) {
        work += here.alive.size() * m_block.lanes();
        countHeat(here.weight);
        leave();
    } else if (here.classNumber < m_classes[here.region].size()) {
        work += here.alive.size() * m_row;
        descend();
    } else {
        leave();
    }
    return work;
}

/// Comes to the branch of the next class.
template <class Points, class Number>
void Race<Points, Number>::descend()
{
    const Level& here = m_levels[m_level];
    Level& below = m_levels[--m_level];
    const RegionClasses<Points, Number>& classes = m_classes[here.region];
    const Points* more = &classes.points[here.classNumber * m_row];
    for (std::size_t i = 0; i < m_row; ++i)
        below.points[i] = static_cast<Points>(here.points[i] + more[i]);
    keepAlive(below.limits, below.points, here.alive, below.alive);
    below.weight = here.weight * classes.weights[here.classNumber];
    below.classNumber = 0;
}

/// Goes back from a branch that is counted.
template <class Points, class Number>
void Race<Points, Number>::leave()
{
    addSums(m_level);
    if (m_level < m_depth) {
        ++m_levels[++m_level].classNumber;
        return;
    }
    addLanes(1);
    addEveryClass();
    m_isDone = true;
}

/// One is left: first in all outcomes of the branch.
template <class Points, class Number>
void Race<Points, Number>::countWhole(std::size_t i)
{
    Count& count = countFor(m_players[m_runners[i]]);
    const Number all = m_levels[m_level].weight * m_levels[m_level].outcomes;
    count.sums[m_level][i] += all;
    if (all == 0) // something on the branch has no chance, and cannot be divided by
        return;
    for (std::size_t open = 1; open <= m_level; ++open)
        count.everyClass[m_levels[open].region][i] += all / m_classes[m_levels[open].region].total;
    for (const std::size_t region : m_laneRegions)
        count.everyClass[region][i] += all / m_classes[region].total;
    if (!m_witnesses[i])
        m_witnesses[i] = decided(m_level) | m_block.outcome(0);
}

template <class Points, class Number>
void Race<Points, Number>::countHeat(Number weight)
{
    using Weight = LaneWeight<Points, Number>;
    if constexpr (!kCounts<Number>) {
        runHeat(static_cast<Weight>(weight), weight);
    } else if (weight > std::numeric_limits<Weight>::max()) {
        addLanes(1);
        runHeat(1, weight);
        addLanes(weight);
    } else {
        if (m_laneWeights + weight > std::numeric_limits<Weight>::max())
            addLanes(1);
        m_laneWeights += weight;
        runHeat(static_cast<Weight>(weight), weight);
    }
}

template <class Points, class Number>
void Race<Points, Number>::runHeat(LaneWeight<Points, Number> laneWeight, Number weight)
{
    const Level& here = m_levels[0];
    Count& alone = countFor(1);
    m_heat.lanes = m_block.lanes();
    m_heat.inUse = m_block.inUse();
    m_heat.weights = m_block.weights();
    m_heat.before = laneWeight;
    m_heat.runners.clear();
    for (const std::size_t i : here.alive)
        m_heat.runners.push_back({m_block.points(i), here.points[i], static_cast<Points>(m_players[m_runners[i]]),
                                  &alone.lanes[i * m_block.lanes()], Number{}});
    countLanes(m_heat);
    for (std::size_t number = 0; number < here.alive.size(); ++number) {
        const std::size_t i = here.alive[number];
        alone.sums[0][i] += m_heat.runners[number].sum * weight;
        if (m_heat.runners[number].sum > 0 && !m_witnesses[i])
            findWitness(number);
    }
    for (const Tie<Points>& tie : m_heat.ties)
        addTie(tie, laneWeight, weight);
}

template <class Points, class Number>
void Race<Points, Number>::addTie(const Tie<Points>& tie, LaneWeight<Points, Number> laneWeight, Number weight)
{
    const std::size_t i = m_levels[0].alive[tie.runner];
    Count& count = countFor(tie.players);
    const LaneWeight<Points, Number>* weights = m_block.weights() + tie.firstLane;
    LaneWeight<Points, Number>* lanes = &count.lanes[i * m_block.lanes() + tie.firstLane];
    LaneWeight<Points, Number> sum{};
    for (std::size_t lane = 0; lane < Lanes<Points>::kCount; ++lane) {
        // Without branches, as ties come unpredictably.
        const auto isTied = static_cast<LaneWeight<Points, Number>>(-tie.lanes[lane]);
        lanes[lane] = static_cast<LaneWeight<Points, Number>>(lanes[lane] + isTied * laneWeight);
        sum = static_cast<LaneWeight<Points, Number>>(sum + isTied * weights[lane]);
    }
    count.sums[0][i] += static_cast<Number>(sum) * weight;
    if (!m_witnesses[i])
        findWitness(tie.runner);
}

/// Hands what a branch has brought to the branch that it is part of, or to the whole.
template <class Points, class Number>
void Race<Points, Number>::addSums(std::size_t level)
{
    for (Count& count : m_counts) {
        if (!count.isUsed)
            continue;
        for (const std::size_t i : m_levels[level].alive) {
            const Number sum = std::exchange(count.sums[level][i], Number{});
            if (sum == 0)
                continue;
            if (level == m_depth) {
                count.all[i] += sum;
                continue;
            }
            const Level& above = m_levels[level + 1];
            count.sums[level + 1][i] += sum;
            count.ofClasses[above.region][above.classNumber * m_runners.size() + i] += sum;
        }
    }
}

/// Adds the lanes up for the classes that they combine. Most of them are 0, often whole vectors.
template <class Points, class Number>
void Race<Points, Number>::addLanes(Number factor)
{
    m_laneWeights = 0;
    for (Count& count : m_counts) {
        if (!count.isUsed)
            continue;
        for (std::size_t i = 0; i < m_runners.size(); ++i)
            for (std::size_t first = 0; first < m_block.lanes(); first += Lanes<Points>::kCount) {
                LaneWeight<Points, Number>* lanes = count.lanes.data() + i * m_block.lanes() + first;
                LaneWeight<Points, Number> any{};
                for (std::size_t lane = 0; lane < Lanes<Points>::kCount; ++lane)
                    any = static_cast<LaneWeight<Points, Number>>(any + (lanes[lane] != 0));
                if (any != 0)
                    addVector(first, factor, lanes, i, count);
            }
    }
}

template <class Points, class Number>
void Race<Points, Number>::addVector(std::size_t first, Number factor, LaneWeight<Points, Number>* lanes, std::size_t i,
                                     Count& count) const
{
    for (std::size_t lane = first; lane < std::min(first + Lanes<Points>::kCount, m_block.size()); ++lane) {
        const auto raised = std::exchange(lanes[lane - first], LaneWeight<Points, Number>{});
        if (raised == 0)
            continue;
        const Number number = factor * static_cast<Number>(raised) * static_cast<Number>(m_block.weights()[lane]);
        for (std::size_t region = 0; region < m_laneRegions.size(); ++region)
            count.ofClasses[m_laneRegions[region]][m_block.stride(region).classOf(lane) * m_runners.size() + i] +=
                number;
    }
}

template <class Points, class Number>
void Race<Points, Number>::addEveryClass()
{
    for (Count& count : m_counts) {
        if (!count.isUsed)
            continue;
        for (std::size_t region = 0; region < kRegions; ++region)
            for (std::size_t i = 0; i < m_runners.size(); ++i)
                if (const Number every = count.everyClass[region][i]; every != 0)
                    for (std::size_t number = 0; number < m_classes[region].size(); ++number)
                        count.ofClasses[region][number * m_runners.size() + i] +=
                            every * m_classes[region].weights[number];
    }
}

template <class Points, class Number>
typename Race<Points, Number>::Count& Race<Points, Number>::countFor(std::size_t together)
{
    if (together >= m_countNumbers.size())
        m_countNumbers.resize(together + 1);
    std::size_t& number = m_countNumbers[together];
    if (number == 0) {
        m_counts.emplace_back().together = together;
        number = m_counts.size();
    }
    Count& count = m_counts[number - 1];
    if (std::exchange(count.isUsed, true))
        return count;
    const std::size_t runners = m_runners.size();
    count.all.assign(runners, 0);
    count.lanes.assign(runners * m_block.lanes(), 0);
    for (std::size_t region = 0; region < kRegions; ++region) {
        count.ofClasses[region].assign(runners * m_classes[region].size(), 0);
        count.everyClass[region].assign(runners, 0);
    }
    for (std::size_t level = 0; level <= m_depth; ++level)
        count.sums[level].assign(runners, 0);
    return count;
}

/// @returns what is decided on a branch with so many open regions besides the lanes; of these any outcome
template <class Points, class Number>
OutcomeNumber Race<Points, Number>::decided(std::size_t level) const
{
    OutcomeNumber outcome = 0;
    for (std::size_t i = 1; i <= m_depth; ++i)
        outcome |= m_classes[m_levels[i].region].outcomes[i <= level ? 0 : m_levels[i].classNumber];
    return outcome;
}

template <class Points, class Number>
void Race<Points, Number>::findWitness(std::size_t heatRunner)
{
    const auto pointsOf = [](const HeatRunner<Points, Number>& runner, std::size_t lane) {
        return runner.points[lane] + runner.before;
    };
    for (std::size_t lane = 0; lane < m_block.size(); ++lane) {
        const auto own = pointsOf(m_heat.runners[heatRunner], lane);
        if (std::ranges::all_of(m_heat.runners, [&](const auto& other) { return pointsOf(other, lane) <= own; })) {
            m_witnesses[m_levels[0].alive[heatRunner]] = decided(0) | m_block.outcome(lane);
            return;
        }
    }
}

template class Race<std::int16_t, std::uint64_t>;
template class Race<std::int32_t, std::uint64_t>;
template class Race<std::int16_t, double>;
template class Race<std::int32_t, double>;

} // namespace tallyhoop
