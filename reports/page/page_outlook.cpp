// reports/page/page_outlook.cpp - takes over what the outlook's report says.
#include "reports/page/page_outlook.h"

#include <algorithm>
#include <cstdint>

namespace tallyhoop {

namespace {

PagePlayerOutlook playerOutlookOf(const OutlookRow& row)
{
    PagePlayerOutlook player;
    player.first = chanceInWords(row, row.first);
    player.share = chanceInWords(row, row.share);
    player.sharePercent = row.share;
    player.verdict = verdictInWords(row.prospect);
    player.best = placeInWords(row.best);
    player.worst = placeInWords(row.worst);
    return player;
}

void addCounted(PagePlayerOutlook& player, const FirstPlaces& firsts)
{
    player.firstAlone = std::to_string(firsts.alone);
    player.firstShared = std::to_string(firsts.outcomes() - firsts.alone);
}

std::vector<PageRoadPoint> roadOf(std::span<const RoadPoint> points)
{
    std::vector<PageRoadPoint> road;
    road.reserve(points.size());
    for (const RoadPoint& point : points) {
        PageRoadPoint& made = road.emplace_back(PageRoadPoint{point.round, point.isNow, {}, {}});
        made.shares.reserve(point.chances.size());
        for (const FirstChances& chances : point.chances)
            made.shares.push_back(chances.share);
        if (point.samples > 0 && !point.errors.empty())
            made.error = errorInWords(100 * std::ranges::max(point.errors));
    }
    return road;
}

} // namespace

PageOutlook pageOutlookOf(const OutlookBasis& basis, std::span<const OutlookRow> rows, const FirstOutlook* counted,
                          std::span<const RoadPoint> road)
{
    PageOutlook outlook;
    outlook.outcomes = std::to_string(std::uint64_t{1} << basis.openGames);
    outlook.exact = basis.source == ChanceSource::Counted;
    outlook.chances = chancesInWords(basis.chances);
    outlook.basis = basisInWords(basis);
    outlook.players.reserve(rows.size());
    for (const OutlookRow& row : rows) {
        PagePlayerOutlook& player = outlook.players.emplace_back(playerOutlookOf(row));
        if (counted)
            addCounted(player, counted->players[row.player].all);
    }
    outlook.road = roadOf(road);
    return outlook;
}

} // namespace tallyhoop
