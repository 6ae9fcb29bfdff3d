// pool/outlook/counted_runners.h - a count of first places, whatever the size of the points, slice by slice.
#pragma once

#include "pool/outlook/count_tree.h"
#include "pool/outlook/runners.h"

#include <cstddef>
#include <memory>
#include <variant>

namespace tallyhoop {

/// Counts for those players who may be first.
/// @tparam Number std::uint64_t for counts, double for chances
template <class Number>
class CountedRunners
{
public:
    /// @param step, mostBytes as for FirstCount
    CountedRunners(const Contest& contest, const UpperChance& upperChance, const Step& step, std::size_t mostBytes);
    CountedRunners(const CountedRunners&) = delete; // the tree refers to the runners
    CountedRunners& operator=(const CountedRunners&) = delete;
    CountedRunners(CountedRunners&&) = delete;
    CountedRunners& operator=(CountedRunners&&) = delete;
    ~CountedRunners() = default;

    bool isTooLarge() const { return m_isTooLarge; }

    bool isDone() const;
    double fraction() const;
    void advance();

    /// Hands out each player's counts.
    /// @param tell called with the player, the runner who has the same picks, how many runners there are, and the tree
    template <class Tell>
    void forEachPlayer(const Tell& tell) const
    {
        std::visit(
            [&](const auto& tree) {
                for (std::size_t runner = 0; tree && runner < m_runners.players.size(); ++runner)
                    for (const std::size_t player : m_runners.players[runner])
                        tell(player, runner, m_runners.players.size(), *tree);
            },
            m_tree);
    }

private:
    template <class Points>
    using Tree = std::unique_ptr<CountTree<Points, Number>>;

    template <class Points>
    void makeTree(const UpperChance& upperChance, const Step& step);

    Runners m_runners;
    std::variant<Tree<std::int16_t>, Tree<std::int32_t>> m_tree; ///< none without players, and after a stop
    bool m_isTooLarge = false;
};

} // namespace tallyhoop
