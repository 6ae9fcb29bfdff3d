// pool/outlook/contest.h - who earns what in the games still open: all that the outlook needs to know of a pool.
#pragma once

#include "base/result.h"
#include "pool/entry.h"
#include "pool/outlook/open_games.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace tallyhoop {

/// The results, what they leave open, and every player's picks in the numbers of the results' names.
///
/// A player earns the payoff of the round for each game whose winner is the pick, so what a completed bracket brings is
/// a sum over its games.
class Contest
{
public:
    /// @param results teams in the first-round rows, winners as far as they are known
    /// @param picks   one bracket a player
    Contest(const Bracket& results, std::span<const Bracket> picks, const Payoffs& payoffs);

    /// The contest of a pool as it stands: without results none is decided, and first-round rows that the results lack
    /// are those of the field.
    /// @returns a failure when a payoff does not fit 16 bits
    static Result<Contest> of(const Pool& pool);

    const OpenGames& games() const { return m_games; }

    /// The players, in the order of the picks given.
    std::size_t players() const { return m_picks.size(); }

    /// @returns the team picked, as games().known().names() numbers it; kNoTeam and numbers above TeamNames::kMost win
    ///          nothing
    const ByPosition<TeamNumber>& picks(std::size_t player) const { return m_picks[player]; }

    /// Whole points for a right pick there; 0 for the first-round rows.
    std::int32_t payoff(Position game) const { return m_payoffs[game]; }

    /// @returns what a player gets for some games, given their winners
    std::int32_t points(std::size_t player, const ByPosition<TeamNumber>& teams,
                        std::span<const Position> played = gamePositions()) const;

    /// @returns the same contest between some of the players
    Contest among(std::span<const std::size_t> players) const;

private:
    OpenGames m_games;
    std::vector<ByPosition<TeamNumber>> m_picks;
    ByPosition<std::int32_t> m_payoffs;
};

} // namespace tallyhoop
