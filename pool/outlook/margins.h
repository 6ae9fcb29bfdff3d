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

    /// Finds the leads of one player; forgets those of the one before.
    void find(std::size_t leader);

    /// @returns for each player the most points by which the leader can be ahead of him at the end; negative where he
    ///          can be neither ahead nor level; 0 for himself
    std::vector<std::int32_t> atTheEnd() const;

    /// @returns the same in the games up to a position, itself included, of those outcomes in which a team comes out
    ///          there
    /// @param candidate index in OpenGames::candidates(position)
    std::span<const std::int32_t> at(Position position, std::size_t candidate) const
    {
        return m_leads[position][candidate];
    }

private:
    using Leads = std::vector<std::int32_t>; ///< one for each player

    void findAt(Position game);
    Leads most(Position position) const;
    void addGame(Position game, TeamNumber winner, Leads& leads) const;

    const Contest& m_contest;
    std::size_t m_leader = 0;
    ByPosition<std::vector<TeamNumber>> m_picks; ///< one for each player
    ByPosition<std::vector<Leads>> m_leads;      ///< one for each candidate; one where nobody comes out
};

} // namespace tallyhoop
