// output/pool_page_making.h - everything that the pool's page shows, gathered and worked out.
#pragma once

#include "base/step.h"
#include "files/prizes_file.h"
#include "output/opened_pool.h"
#include "pool/outlook/chances.h"
#include "pool/outlook/road.h"
#include "reports/page/pool_page.h"

#include <cstddef>
#include <string>

namespace tallyhoop {

/// How much work the page's road is: a chart shows no more, and counting more open games takes seconds.
inline constexpr RoadLimits kPageRoad{.countedGames = 24, .samples = 20'000};

/// Best and worst places are found by counting outcome by outcome, which takes a minute for 1,000 players and 24 open
/// games; for more players than these a page has what can be proven without, such as "2-5".
/// @param openGames 0..63
/// @returns so many players whose places take seconds
std::size_t mostPlacedOnPage(std::size_t openGames);

/// The pool as entered, with its outlook, the road there and, from the last four on, the final sheet.
/// @param prizes of the final sheet, which says so when they are not whole
/// @param step   called between slices of some milliseconds; when it asks to stop, what is known by then is on the page
/// @param road   how much work the road may be
/// @returns a failure when a payoff is no number
Result<PoolPage> makePoolPage(const OpenedPool& opened, const Read<Prizes>& prizes,
                              ChanceKind chances = ChanceKind::Alike, const Step& step = goOn,
                              const RoadLimits& road = kPageRoad);

/// @returns sentences about the final sheet that could not be made; empty when the page has it, or is made before the
///          last four are known
std::string whyNoFinalSheet(const PoolPage& page);

} // namespace tallyhoop
