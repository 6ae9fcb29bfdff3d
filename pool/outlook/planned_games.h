// pool/outlook/planned_games.h - the undecided games, prepared for being played and scored very often.
#pragma once

#include "pool/outlook/chances.h"
#include "pool/outlook/contest.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace tallyhoop {

/// A team that can come to a position: its index in OpenGames::candidates() there; 0 for nobody.
using CandidateNumber = std::uint8_t;

/// A number of points for each of some players.
using PointsRow = std::vector<std::int32_t>;

/// Adds one row to another of the same length.
void addRow(const PointsRow& row, PointsRow& sums);

/// A game that has more than one team to win it: an open one or a walkover.
struct PlannedGame {
    Position position{};
    Position upper{};
    Position lower{};
    std::optional<std::size_t> openGame;  ///< its index in OpenGames::games(); nothing = a walkover
    Side walkover = Side::Upper;          ///< who moves on where there is nothing to play
    std::vector<CandidateNumber> ofUpper; ///< by number at `upper`: the same team's number here
    std::vector<CandidateNumber> ofLower; ///< by number at `lower`
    std::vector<double> upperChances;     ///< the upper's numbers in rows of the lower's; empty for a walkover
    std::vector<PointsRow> points;        ///< by number here: what it brings each player if this team wins

    /// The chance that the upper team wins. @pre the game is open
    double upperChance(const ByPosition<CandidateNumber>& teams) const
    {
        return upperChances[teams[upper] * ofLower.size() + teams[lower]];
    }

    /// Fills in the winner. @returns the winner's number here
    CandidateNumber play(Side side, ByPosition<CandidateNumber>& teams) const
    {
        return teams[position] = side == Side::Upper ? ofUpper[teams[upper]] : ofLower[teams[lower]];
    }
};

/// All of a contest's, ascending.
/// @param upperChance called while they are prepared
std::vector<PlannedGame> plannedGames(const Contest& contest, const UpperChance& upperChance);

/// @returns the points that the decided games bring each player
PointsRow decidedPoints(const Contest& contest);

/// Divides planned games.
struct Stages {
    std::vector<PlannedGame> early; ///< ascending
    std::vector<PlannedGame> last;  ///< ascending; none of the early games waits for one of them
};

/// @param mostOpen so many open games can be among the last: those of the latest rounds, in each from the end
Stages staged(std::vector<PlannedGame> games, std::size_t mostOpen);

} // namespace tallyhoop
