// reports/final_sheet.h - the sheet that ends a season: final places, prizes, and what the total of the final decides.
#pragma once

#include "base/result.h"
#include "pool/entry.h"
#include "pool/prizes/final_places.h"
#include "pool/prizes/prize_table.h"
#include "pool/prizes/tied_pairs.h"
#include "pool/scoring.h"
#include "reports/report_layout.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tallyhoop {

inline constexpr const char* kFinalSheetFile = "FINAL.TXT";   ///< bare name of the report's text file
inline constexpr const char* kFinalSheetName = "Final Sheet"; ///< as people call it

/// A player's row. Points are whole points.
struct FinalRow {
    std::size_t player = 0; ///< index of the score
    std::string name{};     ///< initials, ", ", name; a selection without either has that of its file
    std::size_t place = 1;
    bool isShared = false; ///< others have the same place
    bool isLast = false;   ///< nobody comes after this place, and somebody before it
    int points = 0;
    std::optional<int> predicted{}; ///< total of the final; nothing = none
    std::optional<int> off{};       ///< predicted less real; nothing unless both are known
    Money prize{};
};

/// Everything the sheet says.
struct FinalSheet {
    std::size_t openGames = 0; ///< as the outlook counts them: those that can still end in two ways; 0 = the tournament
                               ///< is over, else what it would be if it ended like this
    bool isFinalPlayed = false; ///< the champion is known
    TieRule rule = TieRule::Nearest;
    std::optional<int> total{};  ///< of the final; nothing = not known, and equal points share their place
    bool isTotalUseless = false; ///< the final is played, and the results have something else than a total
    Money entryFee{};            ///< of each player
    Purse purse{};
    std::vector<FinalRow> rows{};       ///< in the order of the places
    std::vector<TiedPair> pairs{};      ///< what the total will decide; none when it is known
    bool arePairsOfPrizes = false;      ///< so many are tied that pairs on places that win nothing are left out
    std::vector<std::string> remarks{}; ///< further lines above the rows, such as what could not be read
};

/// Makes the sheet, from the last four on: before that nothing is near its end.
/// @param scores  one per player, by these results; players that nothing tells apart are listed, and get odd cents, in
///                the order in which the standings list them
/// @param results its tie-breaker is the total of the final, which counts when there is a champion
/// @returns a failure when there are no scores, or a region winner is missing
Result<FinalSheet> finalSheetOf(std::span<const PlayerScore> scores, const Entry& results, const PrizeTable& table);

/// Lays the sheet out: places, where the money goes, and the pairs of tied players.
/// @param title centred on every page; one that is too wide starts at the left edge
ReportLines finalSheetLines(std::string_view title, const FinalSheet& sheet);

} // namespace tallyhoop
