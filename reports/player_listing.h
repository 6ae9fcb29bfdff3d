// reports/player_listing.h - the player list as a table, each column as wide as its longest entry.
#pragma once

#include "reports/report_layout.h"

#include <span>
#include <string>
#include <string_view>

namespace tallyhoop {

/// Lays the listing out, players in file order.
/// @param title     centred on every page; one that is too wide starts at the left edge
/// @param fileLines the lines of PLAYERNAMES.CSV, its header line first; none gives no lines
ReportLines playerListingLines(std::string_view title, std::span<const std::string> fileLines);

} // namespace tallyhoop
