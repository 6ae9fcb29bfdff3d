// reports/team_selection.h - what the two team selection reports share: one entry per pick, in order, and how a row of
// counts looks. The summary counts how many players send each team into each round; the detail says which players do.
#pragma once

#include "base/result.h"
#include "pool/entry.h"
#include "reports/report_layout.h"

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tallyhoop {

/// Picks by category 1..6: 2nd round, 3rd round, 4th round, region finals, tournament finals, champion. Entry 0 takes
/// what has no category and is never printed.
using CategoryCounts = std::array<int, kRounds + 1>;

/// @returns how the detail names a player: name, "_", initials
std::string playerLabelOf(const Entry& entry);

/// A pick as a packed work row: team, ",", player label, ",", category.
std::string pickEntry(std::string_view team, std::string_view playerLabel, int category);

/// What comes out of a packed pick entry. A "," inside a name shifts what follows: the team is the text up to the
/// first ",", the label the text up to the second, the category the leading number of all that follows.
struct Pick {
    std::string team;
    std::string playerLabel;
    std::size_t category = 0; ///< 0..6
};

/// @returns a failure when the category is beyond 0..6
Result<Pick> parsePickEntry(std::string_view entry);

/// Packs every pick of every player, ascending without regard to case.
std::vector<std::string> pickEntries(std::span<const Entry> entries);

/// Writes the header of a page of either report: the page header and the three lines of column headings.
/// @returns a failure when the title is wider than the page
Result<Done> addTeamSelectionHeader(ReportLines& lines, std::string_view title, std::string_view reportName);

/// @returns the team's name padded to the column before the counts; a failure when it is longer than that column
Result<std::string> teamColumn(const std::string& team);

/// @returns the six counts under their headings
std::string countColumns(const CategoryCounts& counts);

/// The line below a team's counts in the summary, and below the headings.
std::string countRule();

/// Lays out the summary.
/// @param entries as pickEntries() gives them; none gives one page header alone
/// @returns a failure when the title or a team's name is too long, or an entry has no usable category
Result<ReportLines> teamSelectionSummaryLines(std::string_view title, const std::vector<std::string>& entries);

} // namespace tallyhoop
