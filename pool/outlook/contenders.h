// pool/outlook/contenders.h - those players who may still be first when only the last few games are left.
#pragma once

#include "pool/outlook/planned_games.h"

#include <cstddef>
#include <vector>

namespace tallyhoop {

/// Finds the largest lead that each player can still win over the one who has most points, by a small recursion over
/// (game, team that can win it), and drops who cannot catch up. Made once for the same games, run for each sample.
class Contenders
{
public:
    /// @param games ascending; must outlive this
    Contenders(const std::vector<PlannedGame>& games, std::size_t players);

    /// @param points of each player so far
    /// @param teams  who came out of the earlier games
    void find(const PointsRow& points, const ByPosition<CandidateNumber>& teams);

    /// The players who may be first in some outcome, ascending; 1 or more of them.
    const std::vector<std::size_t>& players() const { return m_players; }

    /// The teams that can win a game now, by its index; one may be in it twice.
    const std::vector<CandidateNumber>& winners(std::size_t game) const { return m_ends[game].winners; }

private:
    /// The ways a game can end.
    struct End {
        std::vector<CandidateNumber> winners;
        std::vector<PointsRow> leads; ///< for each winner: the most that each player can win over the leader up to
                                      ///< here; rows beyond the winners are kept for the next sample
        PointsRow most; ///< the largest of them
    };

    void findWinners(std::size_t game, Side side, const ByPosition<CandidateNumber>& teams);
    void addWinner(std::size_t game, CandidateNumber winner, const PointsRow& own, const PointsRow& other);
    const PointsRow& mostAt(Position position) const;

    const std::vector<PlannedGame>& m_games;
    ByPosition<std::size_t> m_gameAt{};    ///< the index of the game and 1; 0 = an earlier one
    std::vector<std::size_t> m_finalGames; ///< those whose winners no other of the games waits for
    PointsRow m_nothing;                   ///< a row of 0
    std::vector<End> m_ends;               ///< one for each game
    std::size_t m_leader = 0;
    PointsRow m_limits; ///< the most points with which each player can end, as the leader ends now
    std::vector<std::size_t> m_players;
};

} // namespace tallyhoop
