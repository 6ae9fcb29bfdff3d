// pool/outlook/region_points.cpp - a region played in every way.
#include "pool/outlook/region_points.h"

#include "pool/outlook/margins.h"

#include <algorithm>

namespace tallyhoop {

namespace {

/// Adds an outcome with the points that it brings each player.
template <class Points>
void addOutcome(const Contest& contest, std::span<const Position> played, const ByPosition<TeamNumber>& teams,
                OutcomeNumber outcome, double chance, std::vector<RegionEnd<Points>>& ends)
{
    const TeamNumber winner = teams[played.back()];
    auto end = std::ranges::find(ends, winner, &RegionEnd<Points>::winner);
    if (end == ends.end()) {
        end = ends.insert(end, RegionEnd<Points>{});
        end->winner = winner;
    }
    end->outcomes.push_back(outcome);
    end->chances.push_back(chance);
    const std::size_t row = end->points.size();
    end->points.resize(row + Lanes<Points>::padded(contest.players()));
    for (std::size_t player = 0; player < contest.players(); ++player)
        end->points[row + player] = static_cast<Points>(contest.points(player, teams, played));
}

} // namespace

template <class Points>
std::array<RegionPoints<Points>, kRegions> regionPoints(const Contest& contest, const UpperChance& upperChance)
{
    std::array<RegionPoints<Points>, kRegions> regions;
    for (int number = 0; number < kRegions; ++number) {
        RegionPoints<Points>& region = regions.at(static_cast<std::size_t>(number));
        const std::span<const Position> played = gamesOfRegion(number);
        region.games = openAmong(contest.games(), played);
        for (const OutcomeNumber outcome : combinations(region.games)) {
            ByPosition<TeamNumber> teams = contest.games().known().numbers();
            const double chance = playAll(contest.games(), played, outcome, teams, upperChance);
            addOutcome(contest, played, teams, outcome, chance, region.ends);
        }
    }
    return regions;
}

template <class Points>
void addLeads(const Contest& contest, std::array<RegionPoints<Points>, kRegions>& regions, const Step& step)
{
    const std::size_t row = Lanes<Points>::padded(contest.players());
    Margins margins{contest};
    for (std::size_t leader = 0; leader < contest.players() && step(); ++leader) {
        margins.findLeads(leader);
        for (int region = 0; region < kRegions; ++region) {
            const std::vector<TeamNumber>& winners = contest.games().candidates(regionWinner(region));
            for (RegionEnd<Points>& end : regions.at(static_cast<std::size_t>(region)).ends) {
                const auto candidate = std::ranges::lower_bound(winners, end.winner) - winners.begin();
                const auto leads = margins.at(regionWinner(region), static_cast<std::size_t>(candidate));
                end.leads.resize(row * contest.players());
                std::ranges::transform(leads, end.leads.begin() + static_cast<std::ptrdiff_t>(row * leader),
                                       [](std::int32_t lead) { return static_cast<Points>(lead); });
            }
        }
    }
}

template std::array<RegionPoints<std::int16_t>, kRegions> regionPoints(const Contest&, const UpperChance&);
template std::array<RegionPoints<std::int32_t>, kRegions> regionPoints(const Contest&, const UpperChance&);

template void addLeads(const Contest&, std::array<RegionPoints<std::int16_t>, kRegions>&, const Step&);
template void addLeads(const Contest&, std::array<RegionPoints<std::int32_t>, kRegions>&, const Step&);

double playAll(const OpenGames& games, std::span<const Position> played, OutcomeNumber outcome,
               ByPosition<TeamNumber>& teams, const UpperChance& upperChance)
{
    const std::vector<Position>& open = games.games();
    auto next = std::ranges::lower_bound(open, played.front());
    double chance = 1;
    for (const Position game : played) {
        if (next == open.end() || *next != game) {
            games.play(game, Side::Upper, teams);
            continue;
        }
        const auto openGame = static_cast<std::size_t>(next++ - open.begin());
        const Side side = sideOf(outcome, openGame);
        if (upperChance) {
            const auto [upper, lower] = *feeders(game);
            const double ofUpper = upperChance(openGame, teams[upper], teams[lower]);
            chance *= side == Side::Upper ? ofUpper : 1 - ofUpper;
        }
        games.play(game, side, teams);
    }
    return chance;
}

std::vector<std::size_t> openAmong(const OpenGames& games, std::span<const Position> positions)
{
    std::vector<std::size_t> open;
    for (std::size_t i = 0; i < games.size(); ++i)
        if (positions.front() <= games.games()[i] && games.games()[i] <= positions.back())
            open.push_back(i);
    return open;
}

std::vector<OutcomeNumber> combinations(const std::vector<std::size_t>& openGames)
{
    std::vector<OutcomeNumber> all{0};
    for (const std::size_t game : openGames) {
        const std::size_t sofar = all.size();
        for (std::size_t i = 0; i < sofar; ++i)
            all.push_back(all[i] | OutcomeNumber{1} << game);
    }
    return all;
}

} // namespace tallyhoop
