// pool/outlook/count_tree.cpp - down the branches with those still in the race, and the counts back to the games.
#include "pool/outlook/count_tree.h"

#include <algorithm>
#include <limits>
#include <numeric>

namespace tallyhoop {

namespace {

/// How much larger than any lead a limit is that nobody reaches.
template <class Points>
constexpr Points kNoLimit = std::is_same_v<Points, std::int16_t> ? 2 * kMostSmallPoints : 1 << 29;

template <class Number>
constexpr bool kCounts = std::is_integral_v<Number>;

/// What an outcome of a chance is counted as.
template <class Number>
Number worth(double chance)
{
    if constexpr (kCounts<Number>)
        return 1;
    else
        return chance;
}

template <class Points, class Number>
Number totalOf(const RegionEnd<Points>& end)
{
    if constexpr (kCounts<Number>)
        return end.outcomes.size();
    else
        return std::accumulate(end.chances.begin(), end.chances.end(), 0.0);
}

template <class Points, class Number>
Number totalOf(const LaneBlock<Points>& block)
{
    if constexpr (kCounts<Number>)
        return block.size();
    else
        return block.totalChance();
}

} // namespace

template <class Points, class Number>
CountTree<Points, Number>::CountTree(const Contest& contest, std::vector<std::size_t> players,
                                     const UpperChance& upperChance)
    : m_contest{contest},
      m_players{std::move(players)},
      m_upperChance{upperChance},
      m_finalGames{openAmong(contest.games(), finalGames())},
      m_row{Lanes<Points>::padded(contest.players())},
      m_regions{regionPoints<Points>(contest, upperChance)},
      m_block{contest.players()},
      m_witnesses(contest.players())
{
    orderRegions();
}

template <class Points, class Number>
void CountTree<Points, Number>::orderRegions()
{
    const auto most = [this](std::size_t region) {
        std::size_t outcomes = 0;
        for (const End& end : m_regions[region].ends)
            outcomes = std::max(outcomes, end.outcomes.size());
        return outcomes;
    };
    std::array<std::size_t, kRegions> order{0, 1, 2, 3};
    std::ranges::stable_sort(order, {}, most);
    std::size_t lanes = 1;
    for (const std::size_t region : order) {
        m_slices *= m_regions[region].ends.size();
        lanes *= most(region);
        if (m_depth == 0 && lanes <= LaneBlock<Points>::kMostLanes) {
            m_laneRegions.push_back(region);
            m_mostLanes = Lanes<Points>::padded(lanes);
        } else {
            m_levels[++m_depth].region = region;
        }
    }
    m_laneEnds.assign(m_laneRegions.size(), std::numeric_limits<std::size_t>::max());
}

template <class Points, class Number>
void CountTree<Points, Number>::count(std::size_t slice)
{
    chooseEnds(slice);
    for (const OutcomeNumber outcome : combinations(m_finalGames))
        countFinal(outcome);
    for (std::size_t level = 1; level <= m_depth; ++level)
        addOutcomes(level);
}

/// Those of the lanes change least often.
template <class Points, class Number>
void CountTree<Points, Number>::chooseEnds(std::size_t slice)
{
    for (std::size_t level = 1; level <= m_depth; ++level) {
        const std::size_t ends = m_regions[m_levels[level].region].ends.size();
        m_levels[level].end = slice % ends;
        slice /= ends;
    }
    std::vector<std::size_t> laneEnds;
    for (const std::size_t region : m_laneRegions) {
        laneEnds.push_back(slice % m_regions[region].ends.size());
        slice /= m_regions[region].ends.size();
    }
    if (laneEnds != m_laneEnds) {
        addLanes();
        m_laneEnds = laneEnds;
        m_block = LaneBlock<Points>{m_contest.players()};
        Level& lanes = m_levels[0];
        lanes.limits.assign(m_row * m_contest.players(), 0);
        for (std::size_t i = 0; i < m_laneRegions.size(); ++i) {
            const End& end = m_regions[m_laneRegions[i]].ends[laneEnds[i]];
            m_block.add(end);
            std::ranges::transform(lanes.limits, end.leads, lanes.limits.begin(), std::plus{});
        }
        m_block.close();
        lanes.outcomes = totalOf<Points, Number>(m_block);
    }
    for (std::size_t level = 1; level <= m_depth; ++level)
        addLimits(level);
}

template <class Points, class Number>
void CountTree<Points, Number>::addLimits(std::size_t level)
{
    const Level& below = m_levels[level - 1];
    Level& here = m_levels[level];
    here.limits.resize(below.limits.size());
    std::ranges::transform(below.limits, end(level).leads, here.limits.begin(), std::plus{});
    here.outcomes = below.outcomes * totalOf<Points, Number>(end(level));
}

template <class Points, class Number>
void CountTree<Points, Number>::countFinal(OutcomeNumber outcome)
{
    ByPosition<TeamNumber> teams = m_contest.games().known().numbers();
    for (std::size_t level = 1; level <= m_depth; ++level)
        teams[regionWinner(static_cast<int>(m_levels[level].region))] = end(level).winner;
    for (std::size_t i = 0; i < m_laneRegions.size(); ++i)
        teams[regionWinner(static_cast<int>(m_laneRegions[i]))] =
            m_regions[m_laneRegions[i]].ends[m_laneEnds[i]].winner;
    const double chance = playAll(m_contest.games(), finalGames(), outcome, teams, m_upperChance);
    m_final = outcome;
    std::vector<Points> points(m_row, -kNoLimit<Points>); // nobody is behind those who only fill up the row
    for (std::size_t runner = 0; runner < m_contest.players(); ++runner)
        points[runner] = static_cast<Points>(m_contest.points(runner, teams, finalGames()));
    setRunning(points);
    if (m_running.size() == 1)
        countWhole(m_depth, 0, chance);
    else
        descend(m_depth, chance);
    addSums(m_depth);
}

/// Finds those who can still be first, and takes what concerns them out of the tables.
template <class Points, class Number>
void CountTree<Points, Number>::setRunning(const std::vector<Points>& points)
{
    m_running.clear();
    const std::vector<Points>& limits = m_levels[m_depth].limits;
    for (std::size_t runner = 0; runner < m_contest.players(); ++runner)
        if (!isBeaten(&limits[runner * m_row], points[runner], points.data(), m_row))
            m_running.push_back(runner);
    m_runningRow = Lanes<Points>::padded(m_running.size());
    for (std::size_t level = 0; level <= m_depth; ++level) {
        Level& here = m_levels[level];
        here.points.assign(m_runningRow, 0);
        here.runningLimits.assign(m_runningRow * m_running.size(), kNoLimit<Points>);
        for (std::size_t i = 0; i < m_running.size(); ++i)
            for (std::size_t j = 0; j < m_running.size(); ++j)
                here.runningLimits[i * m_runningRow + j] = here.limits[m_running[i] * m_row + m_running[j]];
        if (level == 0)
            continue;
        const End& decided = end(level);
        here.outcomePoints.assign(m_runningRow * decided.outcomes.size(), 0);
        for (std::size_t outcome = 0; outcome < decided.outcomes.size(); ++outcome)
            for (std::size_t i = 0; i < m_running.size(); ++i)
                here.outcomePoints[outcome * m_runningRow + i] = decided.points[outcome * m_row + m_running[i]];
    }
    Level& top = m_levels[m_depth];
    for (std::size_t i = 0; i < m_running.size(); ++i)
        top.points[i] = points[m_running[i]];
    top.alive.resize(m_running.size());
    std::iota(top.alive.begin(), top.alive.end(), std::size_t{0});
}

template <class Points, class Number>
void CountTree<Points, Number>::descend(std::size_t level, double chance)
{
    if (level == 0) {
        countHeat(chance);
        return;
    }
    Level& here = m_levels[level];
    Level& below = m_levels[level - 1];
    const End& decided = end(level);
    for (here.outcome = 0; here.outcome < decided.outcomes.size(); ++here.outcome) {
        for (std::size_t i = 0; i < m_runningRow; ++i)
            below.points[i] = static_cast<Points>(here.points[i] + here.outcomePoints[here.outcome * m_runningRow + i]);
        below.alive.clear();
        for (const std::size_t i : here.alive)
            if (!isBeaten(&below.runningLimits[i * m_runningRow], below.points[i], below.points.data(), m_runningRow))
                below.alive.push_back(i);
        const double both = chance * decided.chances[here.outcome];
        if (below.alive.size() == 1)
            countWhole(level - 1, below.alive.front(), both);
        else
            descend(level - 1, both);
        addSums(level - 1);
    }
}

/// One is left: first in all outcomes of the branch.
template <class Points, class Number>
void CountTree<Points, Number>::countWhole(std::size_t level, std::size_t running, double chance)
{
    const std::size_t runner = m_running[running];
    Pending& pending = m_pending[sizeFor(m_players[runner])];
    const Number all = worth<Number>(chance) * m_levels[level].outcomes;
    if (all == 0) // a chance of nothing: no factor of it may be divided by
        return;
    pending.sums[level][running] += all;
    pending.everyLane[runner] += all / m_levels[0].outcomes;
    for (std::size_t open = 1; open <= level; ++open)
        pending.everyOutcome[open - 1][runner] += all / totalOf<Points, Number>(end(open));
    if (!m_witnesses[runner])
        m_witnesses[runner] = decided(level) | m_block.outcome(0);
}

template <class Points, class Number>
void CountTree<Points, Number>::countHeat(double chance)
{
    if (++m_visits == std::numeric_limits<std::make_unsigned_t<Points>>::max())
        addLanes();
    const Level& here = m_levels[0];
    Pending& alone = m_pending[sizeFor(1)];
    m_heat.lanes = m_block.lanes();
    m_heat.inUse = m_block.inUse();
    m_heat.laneChances = m_block.chances().data();
    m_heat.chance = static_cast<float>(chance);
    m_heat.runners.clear();
    for (const std::size_t i : here.alive) {
        const std::size_t runner = m_running[i];
        m_heat.runners.push_back({m_block.points(runner), here.points[i], static_cast<Points>(m_players[runner]),
                                  &alone.lanes[runner * m_block.lanes()], Number{}});
    }
    countLanes(m_heat);
    for (std::size_t i = 0; i < m_heat.runners.size(); ++i) {
        if constexpr (kCounts<Number>)
            alone.sums[0][here.alive[i]] += m_heat.runners[i].sum;
        else
            alone.sums[0][here.alive[i]] += m_heat.runners[i].sum * chance;
        if (m_heat.runners[i].sum > 0 && !m_witnesses[m_running[here.alive[i]]])
            findWitnessInHeat(i);
    }
    for (const Tie<Points>& tie : m_heat.ties)
        addTie(tie, chance);
}

template <class Points, class Number>
void CountTree<Points, Number>::addTie(const Tie<Points>& tie, double chance)
{
    constexpr std::size_t kCount = Lanes<Points>::kCount;
    const std::size_t running = m_levels[0].alive[tie.runner];
    const std::size_t runner = m_running[running];
    Pending& pending = m_pending[sizeFor(tie.players)];
    const std::size_t first = tie.vector * kCount;
    auto* counters = &pending.lanes[runner * m_block.lanes() + first];
    Number sum{};
    for (std::size_t lane = 0; lane < kCount; ++lane) {
        if constexpr (kCounts<Number>) {
            counters[lane] = static_cast<LaneCounter<Points, Number>>(counters[lane] - tie.lanes[lane]);
            sum -= static_cast<Number>(tie.lanes[lane]);
        } else if (tie.lanes[lane] != 0) {
            counters[lane] += static_cast<float>(chance);
            sum += chance * static_cast<double>(m_block.chances()[first + lane]);
        }
    }
    pending.sums[0][running] += sum;
    if (!m_witnesses[runner])
        findWitnessInHeat(tie.runner);
}

/// Hands what a branch has brought to the branch that it is part of, or to the last three games.
template <class Points, class Number>
void CountTree<Points, Number>::addSums(std::size_t level)
{
    const std::size_t runners = m_contest.players();
    for (std::size_t size = 0; size < m_sizes.size(); ++size) {
        Pending& pending = m_pending[size];
        for (const std::size_t i : m_levels[level].alive) {
            const Number sum = std::exchange(pending.sums[level][i], Number{});
            if (sum == 0)
                continue;
            const std::size_t runner = m_running[i];
            if (level < m_depth) {
                pending.sums[level + 1][i] += sum;
                pending.outcomes[level][m_levels[level + 1].outcome * runners + runner] += sum;
                continue;
            }
            m_sizes[size].all[runner] += sum;
            for (const std::size_t game : m_finalGames)
                if (sideOf(m_final, game) == Side::Upper)
                    m_sizes[size].ifUpperWins[game * runners + runner] += sum;
        }
    }
}

template <class Points, class Number>
void CountTree<Points, Number>::addLanes()
{
    m_visits = 0;
    const std::size_t lanes = m_block.lanes();
    std::vector<Number> ofLanes(lanes);
    for (std::size_t size = 0; size < m_sizes.size(); ++size) {
        Pending& pending = m_pending[size];
        for (std::size_t runner = 0; runner < m_contest.players(); ++runner) {
            auto* counters = &pending.lanes[runner * lanes];
            Number any{};
            for (std::size_t lane = 0; lane < m_block.size(); ++lane) {
                ofLanes[lane] = static_cast<Number>(counters[lane]) + pending.everyLane[runner];
                if constexpr (!kCounts<Number>)
                    ofLanes[lane] *= static_cast<double>(m_block.chances()[lane]);
                any += ofLanes[lane];
            }
            std::fill_n(counters, lanes, LaneCounter<Points, Number>{});
            pending.everyLane[runner] = 0;
            if (any == 0)
                continue;
            for (std::size_t i = 0; i < m_laneRegions.size(); ++i) {
                std::vector<Number> outcomes(m_block.stride(i).outcomes);
                for (std::size_t lane = 0; lane < m_block.size(); ++lane)
                    outcomes[m_block.stride(i).outcome(lane)] += ofLanes[lane];
                const RegionPoints<Points>& region = m_regions[m_laneRegions[i]];
                addToGames(region, region.ends[m_laneEnds[i]], outcomes, m_sizes[size], runner);
            }
        }
    }
}

template <class Points, class Number>
void CountTree<Points, Number>::addOutcomes(std::size_t level)
{
    const End& decided = end(level);
    const std::size_t runners = m_contest.players();
    std::vector<Number> outcomes(decided.outcomes.size());
    for (std::size_t size = 0; size < m_sizes.size(); ++size) {
        Pending& pending = m_pending[size];
        for (std::size_t runner = 0; runner < runners; ++runner) {
            const Number every = std::exchange(pending.everyOutcome[level - 1][runner], Number{});
            Number any{};
            for (std::size_t i = 0; i < outcomes.size(); ++i) {
                outcomes[i] = std::exchange(pending.outcomes[level - 1][i * runners + runner], Number{}) +
                              every * worth<Number>(decided.chances[i]);
                any += outcomes[i];
            }
            if (any != 0)
                addToGames(m_regions[m_levels[level].region], decided, outcomes, m_sizes[size], runner);
        }
    }
}

template <class Points, class Number>
void CountTree<Points, Number>::addToGames(const RegionPoints<Points>& region, const End& end,
                                           std::span<const Number> outcomes, Size& size, std::size_t runner) const
{
    for (const std::size_t game : region.games) {
        Number sum{};
        for (std::size_t i = 0; i < outcomes.size(); ++i)
            if (sideOf(end.outcomes[i], game) == Side::Upper)
                sum += outcomes[i];
        size.ifUpperWins[game * m_contest.players() + runner] += sum;
    }
}

template <class Points, class Number>
std::size_t CountTree<Points, Number>::sizeFor(std::size_t together)
{
    m_sizeNumbers.resize(std::max(m_sizeNumbers.size(), together + 1));
    if (m_sizeNumbers[together] != 0)
        return m_sizeNumbers[together] - 1;
    const std::size_t runners = m_contest.players();
    Size& size = m_sizes.emplace_back();
    size.together = together;
    size.all.resize(runners);
    size.ifUpperWins.resize(runners * m_contest.games().size());
    Pending& pending = m_pending.emplace_back();
    pending.lanes.resize(runners * m_mostLanes);
    pending.everyLane.resize(runners);
    for (std::size_t level = 1; level <= m_depth; ++level) {
        std::size_t outcomes = 0;
        for (const End& each : m_regions[m_levels[level].region].ends)
            outcomes = std::max(outcomes, each.outcomes.size());
        pending.outcomes[level - 1].resize(outcomes * runners);
        pending.everyOutcome[level - 1].resize(runners);
    }
    for (std::vector<Number>& sums : pending.sums)
        sums.resize(runners);
    m_sizeNumbers[together] = m_sizes.size();
    return m_sizes.size() - 1;
}

/// @returns the bits of what is decided on a branch with so many open regions besides the lanes; of these any outcome
template <class Points, class Number>
OutcomeNumber CountTree<Points, Number>::decided(std::size_t level) const
{
    OutcomeNumber outcome = m_final;
    for (std::size_t i = 1; i <= m_depth; ++i)
        outcome |= end(i).outcomes[i <= level ? 0 : m_levels[i].outcome];
    return outcome;
}

template <class Points, class Number>
void CountTree<Points, Number>::findWitnessInHeat(std::size_t index)
{
    const auto pointsOf = [](const Runner<Points, Number>& runner, std::size_t lane) {
        return runner.points[lane] + runner.before;
    };
    for (std::size_t lane = 0; lane < m_block.size(); ++lane) {
        const auto own = pointsOf(m_heat.runners[index], lane);
        if (std::ranges::all_of(m_heat.runners, [&](const auto& other) { return pointsOf(other, lane) <= own; })) {
            m_witnesses[m_running[m_levels[0].alive[index]]] = decided(0) | m_block.outcome(lane);
            return;
        }
    }
}

template class CountTree<std::int16_t, std::uint64_t>;
template class CountTree<std::int32_t, std::uint64_t>;
template class CountTree<std::int16_t, double>;
template class CountTree<std::int32_t, double>;

} // namespace tallyhoop
