// reports/page/pool_page.h - the page that shows a pool in a browser: standings, brackets, what if, picks, the road.
#pragma once

#include "base/result.h"
#include "pool/entry.h"
#include "reports/final_sheet_words.h"
#include "reports/page/page_outlook.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tallyhoop {

inline constexpr const char* kPoolPageFile = "POOL.HTML"; ///< the name it is first proposed under

/// A team, as an index in PoolPage::names; 0 = nobody.
using PageTeam = std::uint32_t;
using PageBracket = ByPosition<PageTeam>;

/// One player as the page shows him. Points are whole points.
struct PagePlayer {
    std::string name;        ///< as tables call the player
    std::string file;        ///< the bare name of the selection; empty = none
    std::string finalPoints; ///< the predicted total of the final as typed; empty = none
    PageBracket picks;
    std::array<std::int32_t, kRounds> pointsByRound{};
    std::int32_t possible = 0; ///< earned and still possible
    std::size_t place = 1;     ///< one more than the number of players with more points
};

/// One row of the sheet that ends the season, as it is shown.
struct PageFinalRow {
    std::string place;
    std::string name;
    std::string points;
    std::string total; ///< the predicted one
    std::string prize; ///< empty = none
    bool isLast = false;
    std::string off{};      ///< such as "+4", the prediction less the real total; empty = not known
    std::size_t player = 0; ///< index in PoolPage::players
};

/// Two players with equal points, and what the total of the final makes of them.
struct PageFinalPair {
    PairInWords words;
    std::size_t lower = 0;  ///< who has the lower prediction, as an index in PoolPage::players
    std::size_t higher = 0; ///< the other one
};

/// The sheet that ends the season.
struct PageFinalSheet {
    std::vector<std::string> notes;        ///< sentences above the rows
    std::vector<PageFinalRow> rows;        ///< in the order of the places; none = the notes say why
    std::vector<std::string> pairsNotes{}; ///< above the pairs, a heading first
    std::vector<PageFinalPair> pairs{};    ///< of tied players, before the total is known
};

/// All that the page shows. Texts are in Windows-1252, as everywhere.
struct PoolPage {
    std::string title;
    std::array<std::string, 2> comments{};           ///< lines separated by CR LF; empty = none
    std::array<std::string, kRegions> regions{};     ///< their titles
    std::array<std::int32_t, kRounds> points{};      ///< for a right pick
    std::array<std::string, kRowsPerRegion> seeds{}; ///< of the rows of a region
    std::array<int, kRowsPerRegion> seedNumbers{};   ///< the same as numbers; 0 = none
    std::vector<std::string> names{std::string{}};   ///< of teams; the first is nobody's
    ByTeamRow<PageTeam> teams;                       ///< of the field
    PageBracket results;                             ///< as entered; without results nobody has won
    std::vector<PagePlayer> players;                 ///< in the order of their files
    std::optional<PageOutlook> outlook;
    std::optional<PageFinalSheet> finalSheet;
};

/// Puts a pool on a page.
/// @param outlook made from the same entries, in their order; nothing = none is shown
/// @returns a failure when the points of a round do not fit 16 bits
Result<PoolPage> poolPageOf(const Pool& pool, std::optional<PageOutlook> outlook = {});

/// Writes the page: one file in UTF-8 that loads nothing, with everything that it shows in it as data.
/// @note The texts of a pool are only ever data on the page, whatever is in them.
std::string poolPage(const PoolPage& page);

} // namespace tallyhoop
