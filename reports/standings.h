// reports/standings.h - the tournament standings: every player, most points first.
#pragma once

#include "base/result.h"
#include "pool/scoring.h"
#include "reports/report_layout.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tallyhoop {

/// A player as a packed work row, fields separated by ";": points, player name, file name, most points, good picks, bad
/// picks, champion, tie-breaker; numbers as three digits, so that their order as text is their order as numbers.
std::string standingsWorkRow(const PlayerScore& score);

/// What comes out of a packed work row: texts, for a ";" inside a name shifts what follows it.
struct StandingsRow {
    std::string points;
    std::string playerName;
    std::string fileName;
    std::string maxPoints;
    std::string goodPicks;
    std::string badPicks;
    std::string winningPick;
    std::string finalPoints;
};

/// Takes the first eight pieces of a packed work row; further ones are lost.
StandingsRow standingsRow(std::string_view workRow);

/// @returns the packed rows in print order: the most points first, and of equal points the later name in the alphabet
std::vector<std::string> standingsWorkRows(std::span<const PlayerScore> scores);

/// @returns the same order as places in `scores`
std::vector<std::size_t> standingsOrder(std::span<const PlayerScore> scores);

/// @returns the games without a verdict, negative for a damaged selection; a failure when a shifted field holds a
///          number of picks beyond 16 bits
Result<int> openPicks(const StandingsRow& row);

/// Lays the report out. Among equal points the later name in the alphabet comes first: the sorted rows are read
/// backwards.
/// @param title  centred on every page; one that is too wide starts at the left edge
/// @param scores one per player, in any order
/// @returns a failure when a shifted field holds a number of picks beyond 16 bits
Result<ReportLines> standingsLines(std::string_view title, std::span<const PlayerScore> scores);

} // namespace tallyhoop
