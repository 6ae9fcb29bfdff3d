// reports/pick_table.h - how many players send each team into each round, counted for tables.
//
// The rows are those of the two team selection reports, in their order. The reports count packed picks, whose names are
// cut at commas; these rows are counted from the entries and have every name whole.
#pragma once

#include "pool/entry.h"
#include "reports/team_selection.h"

#include <span>
#include <string>
#include <vector>

namespace tallyhoop {

/// A team, or a player's picks of a team.
struct PickRow {
    std::string team;
    std::string playerLabel; ///< name, "_", initials; empty when all players are counted
    CategoryCounts counts{};

    friend bool operator==(const PickRow&, const PickRow&) = default;
};

/// @returns a row for each team that somebody has picked
std::vector<PickRow> pickRows(std::span<const Entry> entries);

/// @returns a row for each team and each player who has picked it
std::vector<PickRow> pickRowsByPlayer(std::span<const Entry> entries);

} // namespace tallyhoop
