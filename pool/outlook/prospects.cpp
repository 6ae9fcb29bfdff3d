// pool/outlook/prospects.cpp - limits from the largest leads, witnesses from a search, certainty from counts.
#include "pool/outlook/prospects.h"

#include "pool/outlook/margins.h"
#include "pool/outlook/witness_search.h"

#include <algorithm>

namespace tallyhoop {

namespace {

/// What one player's largest leads over the others say about all of them.
void addLeads(std::span<const std::int32_t> leads, std::size_t leader, std::vector<PlayerProspect>& prospects)
{
    PlayerProspect& own = prospects[leader];
    for (std::size_t other = 0; other < leads.size(); ++other) {
        if (leads[other] < 0) {
            ++own.best.least;
            if (!own.rival || leads[other] < leads[*own.rival])
                own.rival = other;
        }
        if (leads[other] <= 0 && other != leader)
            --prospects[other].worst.most;
    }
}

/// What the end of one outcome says about everybody.
void addOutcome(OutcomeNumber outcome, std::span<const std::int32_t> points, std::vector<PlayerProspect>& prospects)
{
    std::vector<std::int32_t> sorted{points.begin(), points.end()};
    std::ranges::sort(sorted, std::greater{});
    for (std::size_t player = 0; player < points.size(); ++player) {
        const auto ahead = std::ranges::lower_bound(sorted, points[player], std::greater{}) - sorted.begin();
        const std::size_t place = static_cast<std::size_t>(ahead) + 1;
        if (ahead == 0 && !prospects[player].witness)
            prospects[player].witness = outcome;
        prospects[player].best.most = std::min(prospects[player].best.most, place);
        prospects[player].worst.least = std::max(prospects[player].worst.least, place);
    }
}

} // namespace

std::vector<PlayerProspect> unknownProspects(std::size_t players)
{
    PlayerProspect unknown;
    unknown.best.most = unknown.worst.most = players;
    return std::vector<PlayerProspect>(players, unknown);
}

std::vector<PlayerProspect> findProspects(const Contest& contest, const Step& step)
{
    const std::size_t players = contest.players();
    std::vector<PlayerProspect> prospects(players);
    for (PlayerProspect& prospect : prospects)
        prospect.best.most = prospect.worst.most = players;
    Margins margins{contest};
    std::vector<PlayerProspect> limited = prospects;
    for (std::size_t player = 0; player < players; ++player) {
        margins.findLeads(player);
        addLeads(margins.atTheEnd(), player, limited);
        if (!step())
            return prospects;
    }
    prospects = std::move(limited);

    const WitnessSearch search{contest};
    for (std::size_t player = 0; player < players; ++player) {
        const PlayerProspect& own = prospects[player];
        const WitnessSearch::Found found = search.bestFor(player, !own.rival && !own.witness);
        addOutcome(found.outcome, found.points, prospects);
        if (!step())
            break;
    }
    for (PlayerProspect& prospect : prospects)
        if (prospect.rival)
            prospect.prospect = Prospect::Out;
        else if (prospect.worst.most == 1)
            prospect.prospect = Prospect::Clinched;
        else if (prospect.witness)
            prospect.prospect = Prospect::Alive;
    return prospects;
}

void addCount(std::vector<PlayerProspect>& prospects, const FirstOutlook& counted)
{
    for (std::size_t player = 0; player < prospects.size(); ++player) {
        PlayerProspect& prospect = prospects[player];
        const PlayerFirsts& firsts = counted.players[player];
        const std::uint64_t outcomes = firsts.all.outcomes();
        prospect.prospect = outcomes == 0                  ? Prospect::Out
                            : outcomes == counted.outcomes ? Prospect::Clinched
                                                           : Prospect::Alive;
        if (!prospect.witness)
            prospect.witness = firsts.witness;
        if (outcomes > 0)
            prospect.best = {1, 1};
        else
            prospect.best.least = std::max(prospect.best.least, std::size_t{2});
        if (outcomes == counted.outcomes)
            prospect.worst = {1, 1};
        else
            prospect.worst.least = std::max(prospect.worst.least, std::size_t{2});
    }
}

void addCount(std::vector<PlayerProspect>& prospects, std::span<const PlayerPlaces> counted)
{
    for (std::size_t player = 0; player < prospects.size(); ++player) {
        prospects[player].best = {counted[player].best(), counted[player].best()};
        prospects[player].worst = {counted[player].worst(), counted[player].worst()};
    }
}

} // namespace tallyhoop
