// reports/player_selection_detail.h - every player's whole bracket as a table, one page each.
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

/// One player's table: a row for each of the 32 teams sent into the second round, and how far each is sent.
struct PlayerSelectionTable {
    static constexpr std::size_t kRows = 32;
    static constexpr std::size_t kColumns = 6;

    std::array<std::string, kRows> teams;                  ///< the team of each row; empty = no pick
    std::array<std::array<bool, kRows>, kColumns> marks{}; ///< [column][row]: print the team there
};

PlayerSelectionTable playerSelectionTable(const Bracket& picks);

/// @returns the name up to the first ".THC" in any case, the whole name when it has none
std::string playerOfFileName(std::string_view fileName);

/// @returns the players in the alphabetical order of their file names, case ignored; they point into `entries`
std::vector<const Entry*> playersByFileName(std::span<const Entry> entries);

/// Lays the report out, players in the order given.
/// @returns a failure when the title is wider than the page
Result<ReportLines> playerSelectionDetailLines(std::string_view title, std::span<const Entry* const> players);

} // namespace tallyhoop
