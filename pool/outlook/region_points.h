// pool/outlook/region_points.h - what the outcomes of one region bring the players, sorted by who wins the region.
#pragma once

#include "base/step.h"
#include "pool/outlook/chances.h"
#include "pool/outlook/contest.h"
#include "pool/outlook/lanes.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace tallyhoop {

/// All outcomes of a region's open games after which the same team has won it. The regions and the last three games
/// have nothing in common but these teams.
/// @tparam Points a type that holds the sum of all payoffs, two times over
template <class Points>
struct RegionEnd {
    TeamNumber winner = kNoTeam;
    std::vector<OutcomeNumber> outcomes; ///< 1 or more; the bits of all other games are 0
    std::vector<double> chances;         ///< of each outcome; 1 without chances
    std::vector<Points> points;          ///< outcome by outcome, in rows: what it brings each player
    std::vector<Points> leads; ///< see addLeads(); player by player, in rows: the largest of him over each player
};

/// One region. A row has Lanes<Points>::padded(players) numbers, 0 at its end.
template <class Points>
struct RegionPoints {
    std::vector<std::size_t> games;      ///< the open ones, as indices in OpenGames::games()
    std::vector<RegionEnd<Points>> ends; ///< one for each team that can win the region; one when it is known
};

/// @param upperChance empty = without chances
/// @param step called often; after a stop some outcomes are missing
/// @returns the four regions of a contest, without leads
template <class Points>
std::array<RegionPoints<Points>, kRegions> regionPoints(const Contest& contest, const UpperChance& upperChance = {},
                                                        const Step& step = goOn);

/// Finds the leads in the regions of a contest.
/// @param step called for each player; after a stop some are missing
template <class Points>
void addLeads(const Contest& contest, std::array<RegionPoints<Points>, kRegions>& regions, const Step& step);

/// Fills in the winners of some neighbouring games as an outcome says.
/// @param upperChance empty = without chances
/// @returns the chance that it happens so; 1 without chances
double playAll(const OpenGames& games, std::span<const Position> played, OutcomeNumber outcome,
               ByPosition<TeamNumber>& teams, const UpperChance& upperChance = {});

/// @returns the indices of the open games among some neighbouring positions
std::vector<std::size_t> openAmong(const OpenGames& games, std::span<const Position> positions);

/// @returns every combination of the bits of some open games, ascending
std::vector<OutcomeNumber> combinations(const std::vector<std::size_t>& openGames);

} // namespace tallyhoop
