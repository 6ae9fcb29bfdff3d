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

    bool isTooLarge() const { return m_isTooLarge; }

    bool isDone() const { return m_next == m_slices; }
    double fraction() const { return isDone() ? 1 : static_cast<double>(m_next) / static_cast<double>(m_slices); }
    void advance();

    /// Tells each player's counts.
    /// @param tell called with the player, the runner who stands for him, how many runners there are, and the tree
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

    Runners m_runners;
    std::variant<Tree<std::int16_t>, Tree<std::int32_t>> m_tree; ///< none without players
    bool m_isTooLarge = false;
    std::size_t m_slices = 0;
    std::size_t m_next = 0;
};

} // namespace tallyhoop
