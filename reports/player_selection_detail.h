// reports/player_selection_detail.h - every player's whole bracket as a table, one page each.
#pragma once

#include "base/result.h"
#include "files/read_pool.h"
#include "reports/report_layout.h"

#include <array>
#include <span>
#include <string>
#include <string_view>

namespace tallyhoop {

/// One player's table: a row for each of the 32 teams sent into the second round, and how far each is sent.
struct PlayerSelectionTable {
    static constexpr std::size_t kRows = 32;
    static constexpr std::size_t kColumns = 6;

    std::array<std::string, kRows> DetailRows;                   ///< the team of each row; empty = no pick
    std::array<std::array<bool, kRows>, kColumns> DetailMarks{}; ///< [column][row]: print the team there
};

PlayerSelectionTable playerSelectionTable(const SelectionLines& lines);

/// @returns the name up to the first ".THC" in any case, the whole name when it has none
std::string playerOfFileName(std::string_view fileName);

/// Lays the report out, players in the order given.
/// @returns a failure when the title is wider than the page
Result<ReportLines> playerSelectionDetailLines(std::string_view title, std::span<const PoolEntry* const> players);

/// @returns the players in the alphabetical order of their file names, case ignored
std::vector<const PoolEntry*> playersByFileName(const ReadPool& pool);

} // namespace tallyhoop
