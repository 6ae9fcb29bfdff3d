// reports/results_by_player.h - for every player, the points under each of the eight ways the tournament can still end.
#pragma once

#include "base/result.h"
#include "files/read_pool.h"
#include "pool/projection.h"
#include "reports/report_layout.h"

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tallyhoop {

/// A way the tournament can still end: who wins over whom, and the results that would then stand.
struct FinalOutcome {
    std::string opponent; ///< as the other semi-final holds it
    SelectionLines results{};
};

/// By region winner 1..4 (entries 0..3) and final opponent, first or second; nothing where it can no longer happen.
template <class T>
using ByFinal = std::array<std::array<std::optional<T>, 2>, 4>;

ByFinal<FinalOutcome> finalOutcomes(const SelectionLines& results, const FinalFour& finalFour);

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
/// @returns rows in pool order, fewer when the work was cancelled; a failure when a number does not fit 16 bits
Result<std::vector<ResultsByPlayerRow>> resultsByPlayerRows(const ReadPool& pool, const SelectionLines& results,
                                                            const ByFinal<FinalOutcome>& outcomes,
                                                            const Payoffs& payoffs, Work& work);

/// Lays the report out.
/// @returns a failure when the title is wider than the page, and when the longest region winner's name has fewer than
/// 11
///          characters: the two points would not fit behind one another
Result<ReportLines> resultsByPlayerLines(std::string_view title, const FinalFour& finalFour,
                                         const ByFinal<FinalOutcome>& outcomes,
                                         std::span<const ResultsByPlayerRow> rows);

} // namespace tallyhoop
