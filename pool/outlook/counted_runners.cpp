// pool/outlook/counted_runners.cpp - chooses the size of the points.
#include "pool/outlook/counted_runners.h"

#include <cstdlib>
#include <vector>

namespace tallyhoop {

namespace {

std::int32_t sumOfPayoffs(const Contest& contest)
{
    std::int32_t sum = 0;
    for (const Position game : gamePositions())
        sum += std::abs(contest.payoff(game));
    return sum;
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
    std::vector<std::size_t> players;
    for (const std::vector<std::size_t>& same : m_runners.players)
        players.push_back(same.size());
    if (players.empty() || !step())
        return;
    const bool isSmall = sumOfPayoffs(contest) <= kMostSmallPoints;
    m_isTooLarge = bytesOfTables(m_runners.contest, isSmall ? sizeof(std::int16_t) : sizeof(std::int32_t)) > mostBytes;
    if (m_isTooLarge)
        return;
    const auto make = [&]<class Points>(Points) {
        auto tree = std::make_unique<CountTree<Points, Number>>(m_runners.contest, players, upperChance, step);
        m_slices = tree->slices();
        m_tree = std::move(tree);
    };
    if (isSmall)
        make(std::int16_t{});
    else
        make(std::int32_t{});
    if (!step())
        m_slices = 0; // without all leads there is nothing to count with
}

template <class Number>
void CountedRunners<Number>::advance()
{
    if (!isDone())
        std::visit([this](const auto& tree) { tree->count(m_next++); }, m_tree);
}

template class CountedRunners<std::uint64_t>;
template class CountedRunners<double>;

} // namespace tallyhoop
