// tests/fuzz/outlook.cpp - a pool of arbitrary brackets: the outlook against every outcome scored.
#include "fuzz/fuzzed_pool.h"
#include "fuzz/targets.h"
#include "pool/outlook/brute_force.h"
#include "pool/outlook/first_count.h"
#include "pool/outlook/forecast.h"
#include "pool/outlook/prospects.h"
#include "pool/outlook/summed_chances.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace tallyhoop::fuzz {
namespace {

constexpr std::size_t kMostOpen = 10; // some more than a forecast counts, few enough to score every outcome
constexpr std::size_t kMostPlayers = 6;

/// Plays all open games but the last few, so that every outcome can be scored.
Bracket withFewOpen(const Bracket& results)
{
    const OpenGames open{results};
    if (open.size() <= kMostOpen)
        return results;
    Bracket played = open.outcome(results.names().size());
    for (std::size_t i = open.size() - kMostOpen; i < open.size(); ++i)
        played.clear(open.games()[i]);
    return played;
}

Complaint compare(const PlayerProspect& found, const PlayerFirsts& firsts, const PlayerPlaces& places,
                  std::uint64_t outcomes)
{
    const std::uint64_t first = firsts.all.outcomes();
    if ((found.prospect == Prospect::Clinched) != (first == outcomes))
        return "clinched is not being first in every outcome";
    if ((found.prospect == Prospect::Out && first > 0) || (found.prospect == Prospect::Alive && first == 0))
        return "somebody is out and alive";
    if (found.best.least > places.best() || found.best.most < places.best() || found.worst.least > places.worst() ||
        found.worst.most < places.worst())
        return "a place is beyond its limits";
    return std::nullopt;
}

bool areClose(const FirstChances& some, const FirstChances& others)
{
    const auto isClose = [](double one, double other) { return std::abs(one - other) < 1e-5; };
    return isClose(some.alone, others.alone) && isClose(some.together, others.together) &&
           isClose(some.share, others.share);
}

bool areClose(const ChanceOutlook& some, const ChanceOutlook& others)
{
    for (std::size_t player = 0; player < some.players.size(); ++player) {
        const PlayerChances& one = some.players[player];
        const PlayerChances& other = others.players[player];
        if (!areClose(one.all, other.all) ||
            !std::ranges::equal(one.andUpperWins, other.andUpperWins,
                                [](const auto& ofOne, const auto& ofOther) { return areClose(ofOne, ofOther); }))
            return false;
    }
    return true;
}

Complaint compareChances(const Contest& contest)
{
    const ChanceOutlook expected = test::summedChances(contest, test::someChance);
    if (!areClose(countChances(contest, test::someChance), expected))
        return "the chances are not the sum over every outcome";
    Forecast forecast{contest, test::someChance};
    forecast.add(1);
    if (forecast.isExact() && !areClose(forecast.outlook(), expected))
        return "a forecast that counts everything is not the sum over every outcome";
    return std::nullopt;
}

} // namespace

Complaint outlook(std::string_view bytes)
{
    const FuzzedPool pool = decodePool(bytes);
    std::vector<Bracket> picks;
    for (std::size_t i = 0; i < std::min(pool.entries.size(), kMostPlayers); ++i)
        picks.push_back(pool.entries[i].picks);
    const Contest contest{withFewOpen(pool.results), picks, pool.payoffs};
    if (contest.games().size() > kMostOpen)
        return "playing a game opens others";

    const test::Counted expected = test::countByScoring(contest.games(), picks, pool.payoffs);
    const FirstOutlook counted = countFirsts(contest);
    const std::vector<PlayerProspect> prospects = findProspects(contest);
    if (countPlaces(contest) != expected.places)
        return "the places are not those of every outcome scored";
    for (std::size_t player = 0; player < picks.size(); ++player) {
        const PlayerFirsts& firsts = expected.firsts.players[player];
        if (counted.players[player].all != firsts.all || counted.players[player].ifUpperWins != firsts.ifUpperWins)
            return "the first places are not those of every outcome scored";
        if (Complaint complaint = compare(prospects[player], firsts, expected.places[player], expected.firsts.outcomes))
            return complaint;
    }
    return picks.empty() ? std::nullopt : compareChances(contest);
}

} // namespace tallyhoop::fuzz
