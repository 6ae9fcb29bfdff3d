// tests/reports/counted_outlook.h - the outlook of a small pool, everything counted, all outcomes alike.
#pragma once

#include "pool/outlook/chances.h"
#include "pool/outlook/figures.h"
#include "pool/outlook/first_count.h"
#include "pool/outlook/place_count.h"
#include "reports/four_players.h"
#include "reports/outlook_rows.h"

#include <vector>

namespace tallyhoop::test {

inline OutlookFigures countedFigures(const std::vector<Entry>& players, const Bracket& results)
{
    std::vector<Bracket> picks;
    for (const Entry& player : players)
        picks.push_back(player.picks);
    const Contest contest{results, picks, kUsualPayoffs};
    OutlookFigures figures;
    figures.source = ChanceSource::Counted;
    figures.chances = countChances(contest, alikeChances());
    figures.errors.resize(players.size());
    figures.prospects = findProspects(contest);
    addCount(figures.prospects, countFirsts(contest));
    addCount(figures.prospects, countPlaces(contest));
    return figures;
}

/// In the order of the players.
/// @param entered the shares by the results as entered, which are counted too; empty = there is nothing to compare
inline std::vector<OutlookRow> countedRows(const std::vector<Entry>& players, const Bracket& results,
                                           const std::vector<double>& entered = {})
{
    return outlookRows(players, standingsBy(players, results, kUsualPayoffs), countedFigures(players, results),
                       {entered, std::vector<double>(entered.size())});
}

} // namespace tallyhoop::test
