// tests/pages/pool_page_maker.cpp - makes the page of a folder's pool, and the engine's figures to compare it with.
//
//   pool_page_maker page FOLDER       prints the page; its outlook is counted when no more than 15 games are open, and
//                                     is a small forecast before that
//   pool_page_maker engine FOLDER     prints what the program says of results that are supposed. A line of the input is
//                                     one case: pairs of a place and a row of the field, the winners that come on top
//                                     of those entered. A line of the output has the open games, then for each player
//                                     place, points, points possible, outcomes first alone and shared, and the share
#include "files/pool_files.h"
#include "pool/outlook/chances.h"
#include "pool/outlook/first_count.h"
#include "pool/outlook/forecast.h"
#include "pool/outlook/place_count.h"
#include "pool/outlook/road.h"
#include "pool/results.h"
#include "reports/page/pool_page.h"

#include <fmt/format.h>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

namespace tallyhoop {
namespace {

constexpr std::size_t kCounted = 15; ///< open games
constexpr std::uint64_t kSamples = 100;

/// A pool with what the outlook is made of.
struct Played {
    Pool pool;
    Payoffs payoffs{};
    Bracket results;
    std::vector<Bracket> picks;
};

Played playedPool(const std::string& folder)
{
    Played played;
    played.pool = readPool(DataFolder{folder});
    played.payoffs = *played.pool.field.payoffs.points();
    played.results = completedResults(played.pool.results.value_or(Entry{}), played.pool.field).picks;
    for (const Entry& entry : played.pool.entries)
        played.picks.push_back(entry.picks);
    return played;
}

void addForecast(OutlookFigures& figures, const Contest& contest)
{
    Forecast forecast{contest, alikeChances()};
    forecast.add(kSamples);
    figures.source = ChanceSource::Forecast;
    figures.chances = forecast.outlook();
    figures.samples = forecast.samples();
    for (std::size_t player = 0; player < contest.players(); ++player)
        figures.errors.push_back(forecast.standardError(player));
}

std::vector<RoadPoint> roadOf(const Played& played)
{
    RoadLimits limits;
    limits.countedGames = kCounted;
    limits.samples = kSamples;
    Road road{played.results, played.picks, played.payoffs, [](const Contest&) { return alikeChances(); }, limits};
    while (!road.isDone())
        road.advance();
    return road.points();
}

PageOutlook outlookOf(const Played& played)
{
    const Contest contest{played.results, played.picks, played.payoffs};
    OutlookFigures figures;
    figures.prospects = findProspects(contest);
    std::optional<FirstOutlook> counted;
    if (contest.games().size() <= kCounted) {
        counted = countFirsts(contest);
        addCount(figures.prospects, *counted);
        addCount(figures.prospects, countPlaces(contest));
        figures.source = ChanceSource::Counted;
        figures.chances = countChances(contest, alikeChances());
        figures.errors.resize(contest.players());
    } else {
        addForecast(figures, contest);
    }
    const auto rows =
        outlookRows(played.pool.entries, standingsBy(played.pool.entries, played.results, played.payoffs), figures);
    return pageOutlookOf(basisOf(ChanceKind::Alike, contest.games().size(), figures), rows,
                         counted ? &*counted : nullptr, roadOf(played));
}

void printPage(const std::string& folder)
{
    const Played played = playedPool(folder);
    std::cout << poolPage(*poolPageOf(played.pool, outlookOf(played)));
}

Bracket supposedBy(const std::string& winners, Bracket results, const Field& field)
{
    std::istringstream pairs{winners};
    for (int place = 0, row = 0; pairs >> place >> row;)
        results.put(Position{place}, field.teams[TeamRow{row}]);
    return results;
}

void printFigures(const Played& played, const Bracket& supposed)
{
    const Contest contest{supposed, played.picks, played.payoffs};
    std::cout << contest.games().size();
    const auto standings = standingsBy(played.pool.entries, supposed, played.payoffs);
    const FirstOutlook counted = contest.games().size() <= kCounted ? countFirsts(contest) : FirstOutlook{};
    for (std::size_t player = 0; player < standings.size(); ++player) {
        const auto& [place, points, possible] = standings[player];
        std::cout << fmt::format(" {} {} {}", place, points, possible);
        if (counted.players.empty())
            continue;
        const FirstPlaces& firsts = counted.players[player].all;
        std::cout << fmt::format(" {} {} {}", firsts.alone, firsts.outcomes() - firsts.alone, firsts.share());
    }
    std::cout << '\n';
}

int run(const std::vector<std::string>& words)
{
    if (words.size() != 2)
        return 2;
    if (words[0] == "page") {
        printPage(words[1]);
    } else if (words[0] == "engine") {
        const Played played = playedPool(words[1]);
        for (std::string line; std::getline(std::cin, line);)
            printFigures(played, supposedBy(line, played.results, played.pool.field));
    } else {
        return 2;
    }
    return std::cout.flush() ? 0 : 1;
}

} // namespace
} // namespace tallyhoop

int main(int count, char* words[]) { return tallyhoop::run({words + 1, words + count}); }
