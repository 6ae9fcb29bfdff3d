// pool/outlook/last_games.h - counts every way in which the last few games can end, given how all others did.
#pragma once

#include "pool/outlook/contenders.h"
#include "pool/outlook/first_places.h"
#include "pool/outlook/planned_games.h"

#include <cstddef>
#include <span>
#include <vector>

namespace tallyhoop {

/// Made once and run for many samples of the earlier games: it keeps the sums over all of them.
class LastGames
{
public:
    /// @param games ascending; some ten of them open at most
    LastGames(std::vector<PlannedGame> games, std::size_t players);
    LastGames(const LastGames&) = delete;
    LastGames& operator=(const LastGames&) = delete;
    ~LastGames() = default;

    /// Counts all outcomes, each by its chance.
    /// @param points of each player so far; 1 or more players
    /// @param teams  who came out of the earlier games; the last games are filled in on the way
    void count(const PointsRow& points, ByPosition<CandidateNumber>& teams);

    /// The players who are first in some outcome of the latest count, in no order.
    std::span<const std::size_t> firsts() const { return m_firsts; }

    /// How likely the latest count found a player to be first.
    const FirstChances& chances(std::size_t player) const { return m_chances[player]; }

    /// Adds the sums over all counts to those of open games: the chances that a player is first and the upper side
    /// wins, and those that it wins.
    void addTo(ChanceOutlook& outlook) const;

private:
    void takeContenders(const PointsRow& points);
    void descend(std::size_t level, std::size_t outcome, double chance);
    void follow(std::size_t level, Side side, std::size_t outcome, double chance);
    void addOutcome(std::size_t outcome, double chance);

    std::vector<PlannedGame> m_games;
    std::vector<std::size_t> m_openGames; ///< of those that are open: the index in OpenGames::games()
    std::size_t m_players;

    // The count being made. Rows are for the contenders only.
    Contenders m_contenders;
    std::vector<std::vector<PointsRow>> m_rows; ///< for each game, by number there
    std::vector<PointsRow> m_points;            ///< after each number of games
    ByPosition<CandidateNumber>* m_teams = nullptr;
    std::vector<std::size_t> m_firstNow; ///< the players who are first in an outcome

    // The latest count, and all of them.
    std::vector<std::size_t> m_firsts;
    std::vector<FirstChances> m_chances;     ///< by player
    std::vector<FirstChances> m_sums;        ///< by outcome and in it by player
    std::vector<double> m_chancesOfOutcomes; ///< likewise
};

} // namespace tallyhoop
