// pool/outlook/count_tree.cpp - who is left for each race, and its counts for the games.
#include "pool/outlook/count_tree.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <numeric>
#include <utility>

namespace tallyhoop {

template <class Points, class Number>
CountTree<Points, Number>::CountTree(const Contest& contest, const std::vector<std::size_t>& players,
                                     UpperChance upperChance, const Step& step)
    : m_contest{contest},
      m_upperChance{std::move(upperChance)},
      m_finalGames{openAmong(contest.games(), finalGames())},
      m_finalOutcomes{combinations(m_finalGames)},
      m_regions{regionPoints<Points>(contest, m_upperChance, step)},
      m_ways{m_finalOutcomes.size()},
      m_everybody(contest.players()),
      m_race{players},
      m_witnesses(contest.players())
{
    addLeads(contest, m_regions, step);
    std::iota(m_everybody.begin(), m_everybody.end(), std::size_t{0});
    for (const RegionPoints<Points>& region : m_regions)
        m_ways *= region.ends.size();
}

template <class Points, class Number>
double CountTree<Points, Number>::fraction() const
{
    return (static_cast<double>(m_way) + (m_race.isDone() ? 0 : m_race.fraction())) / static_cast<double>(m_ways);
}

template <class Points, class Number>
void CountTree<Points, Number>::advance()
{
    if (m_race.isDone())
        beginRace();
    m_race.advance();
    if (!m_race.isDone())
        return;
    addRace();
    ++m_way;
}

/// @param number of the ways to win the regions
template <class Points, class Number>
void CountTree<Points, Number>::chooseEnds(std::size_t number)
{
    for (std::size_t region = 0; region < kRegions; ++region) {
        const std::vector<End>& ends = m_regions[region].ends;
        m_ends[region] = &ends[number % ends.size()];
        number /= ends.size();
    }
    m_limits = m_ends[0]->leads;
    for (std::size_t region = 1; region < kRegions; ++region)
        std::ranges::transform(m_limits, m_ends[region]->leads, m_limits.begin(), std::plus{});
}

template <class Points, class Number>
void CountTree<Points, Number>::beginRace()
{
    const std::size_t finalOutcome = m_way % m_finalOutcomes.size();
    if (finalOutcome == 0)
        chooseEnds(m_way / m_finalOutcomes.size());
    ByPosition<TeamNumber> teams = m_contest.games().known().numbers();
    for (std::size_t region = 0; region < kRegions; ++region)
        teams[regionWinner(static_cast<int>(region))] = m_ends[region]->winner;
    m_chance = playAll(m_contest.games(), finalGames(), m_finalOutcomes[finalOutcome], teams, m_upperChance);
    // Nobody is behind those who only fill up the row.
    std::vector<Points> points(Lanes<Points>::padded(m_contest.players()), std::numeric_limits<Points>::min() / 2);
    for (std::size_t runner = 0; runner < m_contest.players(); ++runner)
        points[runner] = static_cast<Points>(m_contest.points(runner, teams, finalGames()));
    keepAlive(m_limits, points, m_everybody, m_running);
    std::vector<Points> running;
    for (const std::size_t runner : m_running)
        running.push_back(points[runner]);
    m_race.begin(m_running, running, m_regions, m_ends);
}

/// Adds what the race has counted to the open games.
template <class Points, class Number>
void CountTree<Points, Number>::addRace()
{
    const OutcomeNumber finalOutcome = m_finalOutcomes[m_way % m_finalOutcomes.size()];
    const auto weight = static_cast<Number>(m_chance);
    const std::size_t runners = m_contest.players();
    for (const auto& raced : m_race.counts()) {
        if (!raced.isUsed)
            continue;
        Count& count = countFor(raced.together);
        for (std::size_t i = 0; i < m_running.size(); ++i) {
            const Number all = raced.all[i] * weight;
            count.all[m_running[i]] += all;
            for (const std::size_t game : m_finalGames)
                if (sideOf(finalOutcome, game) == Side::Upper)
                    count.ifUpperWins[game * runners + m_running[i]] += all;
        }
        for (std::size_t region = 0; region < kRegions; ++region)
            addRegion(region, raced.ofClasses[region], weight, count);
    }
    for (std::size_t i = 0; i < m_running.size(); ++i)
        if (const auto& witness = m_race.witness(i); witness && !m_witnesses[m_running[i]])
            m_witnesses[m_running[i]] = *witness | finalOutcome;
}

template <class Points, class Number>
void CountTree<Points, Number>::addRegion(std::size_t region, const std::vector<Number>& ofClasses, Number chance,
                                          Count& count) const
{
    const RegionClasses<Points, Number>& classes = m_race.classes(region);
    const std::vector<std::size_t>& games = m_regions[region].games;
    for (std::size_t number = 0; number < classes.size(); ++number)
        for (std::size_t i = 0; i < m_running.size(); ++i) {
            const Number ofClass = ofClasses[number * m_running.size() + i];
            if (ofClass == 0)
                continue;
            const Number weight = classes.weights[number];
            const Number ofWeight =
                weight == 1 ? ofClass * chance : ofClass * chance / weight; // counts: a whole number
            for (std::size_t game = 0; game < games.size(); ++game)
                count.ifUpperWins[games[game] * m_contest.players() + m_running[i]] +=
                    ofWeight * classes.ifUpperWins[number * games.size() + game];
        }
}

template <class Points, class Number>
typename CountTree<Points, Number>::Count& CountTree<Points, Number>::countFor(std::size_t together)
{
    if (together >= m_countNumbers.size())
        m_countNumbers.resize(together + 1);
    std::size_t& number = m_countNumbers[together];
    if (number == 0) {
        Count& made = m_counts.emplace_back();
        made.together = together;
        made.all.resize(m_contest.players());
        made.ifUpperWins.resize(m_contest.players() * m_contest.games().size());
        number = m_counts.size();
    }
    return m_counts[number - 1];
}

template class CountTree<std::int16_t, std::uint64_t>;
template class CountTree<std::int32_t, std::uint64_t>;
template class CountTree<std::int16_t, double>;
template class CountTree<std::int32_t, double>;

} // namespace tallyhoop
