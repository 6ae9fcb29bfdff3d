// pool/outlook/counted_runners.cpp - chooses the size of the points.
#include "pool/outlook/counted_runners.h"

#include <cstdlib>
#include <limits>
#include <utility>
#include <vector>

namespace tallyhoop {

namespace {

/// Whether 16 bits are enough for all points, and for the number of those who have them.
bool fitsSmallPoints(const Contest& contest)
{
    std::int32_t sum = 0;
    for (const Position game : gamePositions())
        sum += std::abs(contest.payoff(game));
    return sum <= kMostSmallPoints && contest.players() <= std::numeric_limits<std::int16_t>::max();
}

/// @param bytes those of a number of points
/// @returns the bytes of the largest tables of a count between some runners
std::size_t bytesOfTables(const Contest& runners, std::size_t bytes)
{
    std::size_t ends = 1; // for their sums
    for (int region = 0; region < kRegions; ++region)
        ends += runners.games().candidates(regionWinner(region)).size();
    return ends * runners.players() * runners.players() * bytes;
}

} // namespace

template <class Number>
CountedRunners<Number>::CountedRunners(const Contest& contest, const UpperChance& upperChance, const Step& step,
                                       std::size_t mostBytes)
    : m_runners{runnersOf(contest, step)}
{
    if (m_runners.players.empty() || !step())
        return;
    const bool isSmall = fitsSmallPoints(contest);
    m_isTooLarge = bytesOfTables(m_runners.contest, isSmall ? sizeof(std::int16_t) : sizeof(std::int32_t)) > mostBytes;
    if (m_isTooLarge)
        return;
    if (isSmall)
        makeTree<std::int16_t>(upperChance, step);
    else
        makeTree<std::int32_t>(upperChance, step);
}

template <class Number>
template <class Points>
void CountedRunners<Number>::makeTree(const UpperChance& upperChance, const Step& step)
{
    std::vector<std::size_t> players;
    for (const std::vector<std::size_t>& same : m_runners.players)
        players.push_back(same.size());
    auto tree = std::make_unique<CountTree<Points, Number>>(m_runners.contest, players, upperChance, step);
    if (step()) // without all points and leads there is nothing to count with
        m_tree = std::move(tree);
}

template <class Number>
bool CountedRunners<Number>::isDone() const
{
    return std::visit([](const auto& tree) { return !tree || tree->isDone(); }, m_tree);
}

template <class Number>
double CountedRunners<Number>::fraction() const
{
    return std::visit([](const auto& tree) { return tree ? tree->fraction() : 1; }, m_tree);
}

template <class Number>
void CountedRunners<Number>::advance()
{
    if (!isDone())
        std::visit([](const auto& tree) { tree->advance(); }, m_tree);
}

template class CountedRunners<std::uint64_t>;
template class CountedRunners<double>;

} // namespace tallyhoop
