// reports/player_listing.h - the player list as a table, each column as wide as its longest entry.
#pragma once

#include "reports/report_layout.h"

#include <span>
#include <string>
#include <string_view>

namespace tallyhoop {

/// One line of the table: a player, or the column headings. Trailing blanks do not count.
struct PlayerListingRow {
    std::string name;
    std::string fileName;
    std::string email;
    std::string phone;
};

/// Lays the listing out, players in the order given.
/// @param title centred on every page; one that is too wide starts at the left edge
/// @param rows  the column headings first, cut to the width of the players' entries; no rows at all give no lines
ReportLines playerListingLines(std::string_view title, std::span<const PlayerListingRow> rows);

} // namespace tallyhoop
