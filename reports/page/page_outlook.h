// reports/page/page_outlook.h - the outlook as the pool's page shows it.
#pragma once

#include "pool/outlook/first_places.h"
#include "pool/outlook/road.h"
#include "reports/outlook_rows.h"
#include "reports/outlook_words.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace tallyhoop {

/// What an outlook says of one player, in the words of the outlook's report.
struct PagePlayerOutlook {
    std::string firstAlone;             ///< in how many outcomes, as a decimal number; empty = not counted
    std::string firstShared;            ///< together with others; empty = not counted
    std::string first;                  ///< the chance to be first in percent, alone or together; empty = not known
    std::string share;                  ///< of first place in percent; empty = not known
    std::optional<double> sharePercent; ///< the same to sort by; nothing = not known
    std::string verdict;
    std::string best;  ///< place
    std::string worst; ///< place
};

/// Everybody's share of first place at one time, 0..1.
struct PageRoadPoint {
    int round = 0;              ///< 0 = before the first game, 1..6 = after this round; of now the latest round begun
    bool isNow = false;         ///< everything is known that is entered
    std::vector<double> shares; ///< one for each player
    std::string error{};        ///< of a forecast: the largest standard error in percentage points; empty = counted
};

/// What the program knows of the pool's end.
struct PageOutlook {
    std::string outcomes;                   ///< of all open games, as a decimal number
    bool exact = false;                     ///< every outcome was counted
    std::string chances;                    ///< by which chances, in words
    std::vector<std::string> basis;         ///< what it is made from, in words
    std::vector<PagePlayerOutlook> players; ///< in the order of the entries
    std::vector<PageRoadPoint> road;        ///< in the order of time; empty = not known
};

/// Puts an outlook on a page.
/// @param rows    one for each entry, in their order
/// @param counted everybody's first places; nullptr = not counted
/// @param road    the points that are known
PageOutlook pageOutlookOf(const OutlookBasis& basis, std::span<const OutlookRow> rows,
                          const FirstOutlook* counted = nullptr, std::span<const RoadPoint> road = {});

} // namespace tallyhoop
