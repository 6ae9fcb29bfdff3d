// screens/outlook/what_if.cpp - the moves of the board, on a bracket that is not saved.
#include "screens/outlook/what_if.h"

#include "pool/moves.h"
#include "pool/outlook/open_games.h"

#include <optional>
#include <utility>

namespace tallyhoop {

namespace {

constexpr std::size_t kMostUndone = 200; ///< far more than a bracket has games

/// @returns the seed of the team at a position; 0 for one that does not come from a row on the way there
std::int16_t seedAt(const Bracket& bracket, Position position, const ByTeamRow<std::int16_t>& seeds)
{
    const std::vector<Position> path = pathOf(bracket, position);
    return path.empty() ? std::int16_t{0} : seeds[*teamRowOf(path.front())];
}

} // namespace

WhatIf::WhatIf(Bracket entered) : m_entered{std::move(entered)}, m_supposed{m_entered} {}

bool WhatIf::press(Position position)
{
    const std::optional<Position> winner = next(position);
    if (!winner || m_supposed.isEmpty(position))
        return false;
    const bool hasWon = m_supposed.at(*winner) == m_supposed.at(position);
    return change(hasWon ? cleared(m_supposed, *winner) : advanced(m_supposed, position));
}

bool WhatIf::takeBack(Position position) { return change(cleared(m_supposed, position)); }

bool WhatIf::asEntered() { return change(m_entered); }

bool WhatIf::fillWithHigherSeeds(const ByTeamRow<std::int16_t>& seeds)
{
    // A game whose winner has won a later one has nothing to choose.
    Bracket filled = OpenGames{m_supposed}.known();
    for (const Position game : gamePositions()) {
        if (!filled.isEmpty(game))
            continue;
        const auto [upper, lower] = *feeders(game);
        filled.copy(seedAt(filled, upper, seeds) >= seedAt(filled, lower, seeds) ? lower : upper, game);
    }
    return change(std::move(filled));
}

bool WhatIf::undo()
{
    if (m_past.empty())
        return false;
    m_supposed = std::move(m_past.back());
    m_past.pop_back();
    return true;
}

bool WhatIf::change(Bracket after)
{
    if (after == m_supposed)
        return false;
    if (m_past.size() == kMostUndone)
        m_past.erase(m_past.begin());
    m_past.push_back(std::exchange(m_supposed, std::move(after)));
    return true;
}

} // namespace tallyhoop
