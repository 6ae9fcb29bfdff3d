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

} // namespace

template <class Number>
CountedRunners<Number>::CountedRunners(const Contest& contest, const UpperChance& upperChance, const Step& step)
    : m_runners{runnersOf(contest, step)}
{
    std::vector<std::size_t> players;
    for (const std::vector<std::size_t>& same : m_runners.players)
        players.push_back(same.size());
    if (players.empty() || !step())
        return;
    const auto make = [&]<class Points>(Points) {
        auto tree = std::make_unique<CountTree<Points, Number>>(m_runners.contest, players, upperChance, step);
        m_slices = tree->slices();
        m_tree = std::move(tree);
    };
    if (sumOfPayoffs(contest) <= kMostSmallPoints)
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
