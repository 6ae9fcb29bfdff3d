// pool/outlook/planned_games.cpp - tables instead of searches: numbers of candidates, chances, points.
#include "pool/outlook/planned_games.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace tallyhoop {

namespace {

/// @returns for each of some teams its index among all that can win the game
std::vector<CandidateNumber> numbersAmong(const std::vector<TeamNumber>& winners, const std::vector<TeamNumber>& teams)
{
    std::vector<CandidateNumber> numbers;
    numbers.reserve(teams.size());
    for (const TeamNumber team : teams)
        numbers.push_back(static_cast<CandidateNumber>(std::ranges::lower_bound(winners, team) - winners.begin()));
    return numbers;
}

PointsRow pointsIfWonBy(const Contest& contest, Position game, TeamNumber winner)
{
    PointsRow row(contest.players());
    for (std::size_t player = 0; player < contest.players(); ++player)
        if (contest.picks(player)[game] == winner)
            row[player] = contest.payoff(game);
    return row;
}

PlannedGame planned(const Contest& contest, Position position)
{
    const OpenGames& games = contest.games();
    PlannedGame game;
    game.position = position;
    const auto [upper, lower] = *feeders(position);
    game.upper = upper;
    game.lower = lower;
    const std::vector<TeamNumber>& winners = games.candidates(position);
    game.ofUpper = numbersAmong(winners, games.candidates(game.upper));
    game.ofLower = numbersAmong(winners, games.candidates(game.lower));
    game.walkover = game.ofUpper.empty() ? Side::Lower : Side::Upper;
    for (const TeamNumber winner : winners)
        game.points.push_back(pointsIfWonBy(contest, position, winner));
    return game;
}

void addChances(const OpenGames& games, std::size_t openGame, const UpperChance& upperChance, PlannedGame& game)
{
    game.openGame = openGame;
    for (const TeamNumber upper : games.candidates(game.upper))
        for (const TeamNumber lower : games.candidates(game.lower))
            game.upperChances.push_back(upperChance(openGame, upper, lower));
}

} // namespace

void addRow(const PointsRow& row, PointsRow& sums) { std::ranges::transform(row, sums, sums.begin(), std::plus{}); }

std::vector<PlannedGame> plannedGames(const Contest& contest, const UpperChance& upperChance)
{
    const std::vector<Position>& open = contest.games().games();
    std::vector<PlannedGame> games;
    for (const Position position : gamePositions()) {
        if (contest.games().candidates(position).size() < 2)
            continue;
        PlannedGame& game = games.emplace_back(planned(contest, position));
        if (const auto found = std::ranges::lower_bound(open, position); found != open.end() && *found == position)
            addChances(contest.games(), static_cast<std::size_t>(found - open.begin()), upperChance, game);
    }
    return games;
}

PointsRow decidedPoints(const Contest& contest)
{
    PointsRow row;
    for (std::size_t player = 0; player < contest.players(); ++player)
        row.push_back(contest.points(player, contest.games().known().numbers()));
    return row;
}

Stages staged(std::vector<PlannedGame> games, std::size_t mostOpen)
{
    std::vector<Position> open;
    for (const PlannedGame& game : games)
        if (game.openGame)
            open.push_back(game.position);
    std::ranges::stable_sort(open, {}, roundOf);
    if (open.size() > mostOpen)
        open.erase(open.begin(), open.end() - static_cast<std::ptrdiff_t>(mostOpen));

    ByPosition<bool> isLast{};
    for (const Position position : open)
        isLast[position] = true;
    Stages stages;
    for (PlannedGame& game : games) {
        // A walkover is played when it is known who moves on.
        if (!game.openGame)
            isLast[game.position] = isLast[game.upper] || isLast[game.lower];
        (isLast[game.position] ? stages.last : stages.early).push_back(std::move(game));
    }
    return stages;
}

} // namespace tallyhoop
