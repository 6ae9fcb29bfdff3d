// reports/team_selection_detail.h - for each team, the players who send it on, and how far.
#pragma once

#include "reports/team_selection.h"

#include <string>
#include <string_view>
#include <vector>

namespace tallyhoop {

/// Lays out the detail.
/// @param entries as pickEntries() gives them; none gives one page header alone
/// @returns a failure when the title or a team's name is too long, or an entry has no usable category
Result<ReportLines> teamSelectionDetailLines(std::string_view title, const std::vector<std::string>& entries);

} // namespace tallyhoop
