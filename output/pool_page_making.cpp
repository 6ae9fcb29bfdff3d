// output/pool_page_making.cpp - the outlook first, then how it came about.
#include "output/pool_page_making.h"

#include "base/one_line.h"
#include "base/text.h"
#include "output/final_sheet_making.h"
#include "output/outlook_making.h"
#include "pool/outlook/place_count.h"
#include "pool/picks.h"
#include "pool/projection.h"
#include "pool/results.h"

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

namespace tallyhoop {

namespace {

/// Points looked at, each in some nanoseconds: the outcomes, times the players.
constexpr std::uint64_t kWorkOfPlaces = std::uint64_t{1} << 31;

RoadPoint nowOf(const MadeOutlook& outlook)
{
    RoadPoint now;
    now.openGames = outlook.basis.openGames;
    now.samples = outlook.figures.samples;
    now.errors = outlook.figures.errors;
    now.chances.reserve(outlook.figures.chances.players.size());
    for (const PlayerChances& player : outlook.figures.chances.players)
        now.chances.push_back(player.all);
    return now;
}

std::vector<RoadPoint> roadTo(const MadeOutlook& outlook, const Pool& pool, const Payoffs& payoffs,
                              const RoadLimits& limits, const Step& step)
{
    const Bracket results = completedResults(pool.results.value_or(Entry{}), pool.field).picks;
    Road road{results, picksOf(pool.entries), payoffs,
              [&](const Contest& contest) { return chancesOf(outlook.basis.chances, contest, pool.field); }, limits};
    if (outlook.figures.source != ChanceSource::None)
        road.takeNow(nowOf(outlook));
    while (!road.isDone() && step())
        road.advance(step);
    return road.points();
}

/// @returns a sheet without rows that says why there is none, or the one that was made
PageFinalSheet finalSheetOrReason(const Result<FinalSheet>& made)
{
    if (made)
        return pageFinalSheetOf(*made);
    return {{"There is no final sheet.", onOneLine(made.failure().message)}, {}};
}

} // namespace

std::size_t mostPlacedOnPage(std::size_t openGames)
{
    return std::min<std::size_t>(kMostPlacedPlayers, openGames < 32 ? kWorkOfPlaces >> openGames : 0);
}

Result<PoolPage> makePoolPage(const OpenedPool& opened, const Read<Prizes>& prizes, ChanceKind chances,
                              const Step& step, const RoadLimits& road)
{
    const Pool& pool = opened.pool;
    const Bracket results = completedResults(pool.results.value_or(Entry{}), pool.field).picks;
    OutlookLimits limits;
    limits.placed = mostPlacedOnPage(OpenGames{results}.size());
    Result<MadeOutlook> made = makeOutlook(opened, chances, step, limits);
    if (!made)
        return made.failure();
    const std::vector<RoadPoint> points = roadTo(*made, pool, *pool.field.payoffs.points(), road, step);
    std::vector<OutlookRow> rows = made->rows;
    std::ranges::sort(rows, {}, &OutlookRow::player);
    PageOutlook outlook = pageOutlookOf(made->basis, rows, made->isExact() ? made->firsts.get() : nullptr, points);
    std::ranges::move(unreadInWords(opened), std::back_inserter(outlook.basis));

    const Result<PoolPage> shown = poolPageOf(pool, std::move(outlook));
    if (!shown)
        return shown;
    PoolPage page = *shown;
    if (pool.results && finalFourState(pool.results->picks) != FinalFourState::Incomplete)
        page.finalSheet = finalSheetOrReason(makeFinalSheet(opened, prizes.value.table, prizes.trouble));
    return page;
}

std::string whyNoFinalSheet(const PoolPage& page)
{
    const bool isMissing = page.finalSheet && page.finalSheet->rows.empty();
    return isMissing ? joined(page.finalSheet->notes, " ") : std::string{};
}

} // namespace tallyhoop
