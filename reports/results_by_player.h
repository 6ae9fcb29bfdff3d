// reports/results_by_player.h - for every player, the points under each of the eight ways the tournament can still end.
#pragma once

#include "base/result.h"
#include "base/step.h"
#include "pool/entry.h"
#include "pool/projection.h"
#include "reports/report_layout.h"

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tallyhoop {

/// A way the tournament can still end: who loses the final, and the results it would then have.
struct FinalOutcome {
    std::string opponent; ///< as the other semi-final holds it
    Bracket results;
};

/// By region winner 0..3 and final opponent, first or second; nothing where it can no longer happen.
template <class T>
using ByFinal = std::array<std::array<std::optional<T>, 2>, kRegions>;

/// @param results with all four region winners
ByFinal<FinalOutcome> finalOutcomes(const Bracket& results);

/// One player of the report. Points are whole points.
struct ResultsByPlayerRow {
    std::string fileName;
    std::string winningPick;  ///< empty = none
    std::string runnerUpPick; ///< empty = none
    int points = 0;
    int maxPoints = 0;
    ByFinal<int> projected; ///< the most points under each outcome
};

/// Scores every player now and under every outcome, one step of work each.
/// @returns rows in the order of the entries, fewer when the work was stopped; a failure when a number does not fit 16
///          bits
Result<std::vector<ResultsByPlayerRow>> resultsByPlayerRows(std::span<const Entry> entries, const Bracket& results,
                                                            const ByFinal<FinalOutcome>& outcomes,
                                                            const Payoffs& payoffs, const Step& step = goOn);

/// Lays the report out.
/// @returns a failure when the title is wider than the page, and when the longest region winner's name has fewer than
///          11 characters: the current and the maximum points would not fit on one line
Result<ReportLines> resultsByPlayerLines(std::string_view title, const FinalFour& finalFour,
                                         const ByFinal<FinalOutcome>& outcomes,
                                         std::span<const ResultsByPlayerRow> rows);

} // namespace tallyhoop
