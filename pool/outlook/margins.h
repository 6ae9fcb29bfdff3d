// pool/outlook/margins.h - by how much one player can be ahead of another: exact over all outcomes, without counting.
#pragma once

#include "pool/outlook/contest.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace tallyhoop {

/// The largest lead of one player over each of the players, of all outcomes. As what a player earns is a sum over
/// games, it is a small recursion over (position, team that comes out there), which grows with the teams and not with
/// the outcomes.
class Margins
{
public:
    /// @param contest must outlive this
    explicit Margins(const Contest& contest);

    /// Finds the largest leads of one player over each other; forgets what was found before.
    void findLeads(std::size_t leader) { find(leader, 1); }

    /// Finds the largest leads of each other over one player; forgets what was found before.
    void findLeadsOver(std::size_t player) { find(player, -1); }

    /// @returns for each player the lead found, in points at the end; negative when that one is behind in every
    /// outcome;
    ///          0 for the player
    std::vector<std::int32_t> atTheEnd() const;

    /// @returns the same, counting only the games up to a position, itself included, in those outcomes in which a team
    ///          comes out there
    /// @param candidate index in OpenGames::candidates(position)
    std::span<const std::int32_t> at(Position position, std::size_t candidate) const
    {
        return m_leads[position][candidate];
    }

private:
    using Leads = std::vector<std::int32_t>; ///< one for each player

    /// A position before which nothing is open, nor at it, and what the games up to it have brought each player.
    struct Closed {
        Position position{};
        Leads points;
    };

    void findClosed();
    void find(std::size_t player, std::int32_t sign);
    void findAt(Position game);
    Leads most(Position position) const;
    void addGame(Position game, TeamNumber winner, Leads& leads) const;

    const Contest& m_contest;
    std::size_t m_player = 0;
    std::int32_t m_sign = 1;                     ///< -1 = leads over the player
    std::vector<Closed> m_closed;                ///< the last ones on their ways, no later than the region's winner
    std::vector<Position> m_open;                ///< those of the games that come after these, ascending
    ByPosition<std::vector<TeamNumber>> m_picks; ///< one for each player
    ByPosition<std::vector<Leads>> m_leads;      ///< one for each candidate; one where nobody comes out
};

} // namespace tallyhoop
