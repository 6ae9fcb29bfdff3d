// reports/results_by_team.h - for each region winner, where every player would end up if that team won the title.
#pragma once

#include "base/result.h"
#include "base/step.h"
#include "pool/entry.h"
#include "pool/scoring.h"
#include "reports/report_layout.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tallyhoop {

/// A player as a packed work row, fields separated by ",": best, file name, sure, current, champion, runner-up; numbers
/// as three digits.
/// @param projected     the score under the projection
/// @param currentPoints points held now
std::string resultsByTeamWorkRow(const PlayerScore& projected, int currentPoints);

/// What comes out of a packed work row: texts, for a "," inside a name shifts what follows it.
struct ResultsByTeamRow {
    std::string best;
    std::string fileName;
    std::string sure;
    std::string current;
    std::string winningPick;  ///< empty = none
    std::string runnerUpPick; ///< empty = none
};

/// Takes the first six pieces of a packed work row; further ones are lost.
ResultsByTeamRow resultsByTeamRow(std::string_view workRow);

/// One team that can still win the title, with every player's score if it does.
struct TeamOutcome {
    std::string team;
    std::vector<std::string> workRows; ///< packed, ascending
    std::size_t pickWidth = 0;         ///< longest champion and runner-up together; the same for every team
};

/// Scores every player now and for every team that can still win; one step of work for each.
/// @param results with all four region winners
/// @returns the teams in order, those without a chance left out; of no use when the work was stopped; a failure when a
///          number does not fit 16 bits
Result<std::vector<TeamOutcome>> resultsByTeamOutcomes(std::span<const Entry> entries, const Bracket& results,
                                                       const Payoffs& payoffs, const Step& step = goOn);

/// Lays the report out: each team's rows from the best case down.
/// @returns a failure when the title is wider than the page
Result<ReportLines> resultsByTeamLines(std::string_view title, std::span<const TeamOutcome> outcomes);

} // namespace tallyhoop
