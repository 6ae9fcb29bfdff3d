// pool/moves.cpp - the rules of moving teams, without any screen.
#include "pool/moves.h"

#include <algorithm>
#include <string>
#include <utility>

namespace tallyhoop {

namespace {

/// Makes room for a team: removes the one that is at a position from a place on, if it is another.
Bracket displaced(Bracket bracket, Position position, std::string_view newTeam, std::optional<Position> clearedFrom)
{
    const std::string old = bracket.at(position); // a copy: the bracket that it is part of changes
    if (old.empty() || old == newTeam)
        return bracket;
    return withoutTeamFrom(std::move(bracket), clearedFrom, old);
}

Bracket carriedOneRound(const Bracket& bracket, Position from, std::string_view team)
{
    const std::optional<Position> winner = next(from);
    if (!winner)
        return bracket;
    Bracket after = displaced(bracket, *winner, team, winner);
    after.copy(from, *winner);
    return after;
}

Bracket carriedAlongPath(const Bracket& bracket, Position source, Position target, std::string_view team)
{
    Bracket after = displaced(bracket, target, team, next(target));
    for (std::optional<Position> position = next(source); position && *position <= target; position = next(*position))
        after.put(*position, team);
    return after;
}

} // namespace

Bracket withoutTeamFrom(Bracket bracket, std::optional<Position> start, std::string_view team)
{
    for (std::optional<Position> position = start; position; position = next(*position))
        if (bracket.at(*position) == team)
            bracket.clear(*position);
    return bracket;
}

Bracket cleared(Bracket bracket, Position position)
{
    if (isFirstRound(position))
        return bracket;
    const std::string team = bracket.at(position);
    bracket.clear(position);
    return team.empty() ? bracket : withoutTeamFrom(std::move(bracket), next(position), team);
}

Bracket advanced(const Bracket& bracket, Position from) { return carriedOneRound(bracket, from, bracket.at(from)); }

Bracket dropped(const Bracket& bracket, Position source, Position target, std::string_view team)
{
    if (source == target)
        return carriedOneRound(bracket, source, team);
    return isOnPath(source, target) ? carriedAlongPath(bracket, source, target, team) : bracket;
}

Bracket withHighSeeds(Bracket bracket, const ByTeamRow<std::int16_t>& seeds)
{
    ByPosition<std::int16_t> seedAt;
    for (const TeamRow row : allTeamRows())
        seedAt[positionOf(row)] = seeds[row];
    // In the order of the positions both entrants of a game are decided before the game itself.
    for (int region = 0; region < kRegions; ++region) {
        for (const Position winner : gamesOfRegion(region)) {
            const auto [upper, lower] = *feeders(winner);
            const Position better = seedAt[upper] >= seedAt[lower] ? lower : upper;
            bracket.copy(better, winner);
            seedAt[winner] = seedAt[better];
        }
    }
    return bracket;
}

std::optional<Position> openGameAfter(const Bracket& bracket, Position game)
{
    std::array<Position, kGames> games = gamePositions();
    std::rotate(games.begin(), std::ranges::upper_bound(games, game), games.end());
    const auto open = std::ranges::find_if(games, [&](Position other) { return bracket.isEmpty(other); });
    return open == games.end() ? std::nullopt : std::optional{*open};
}

std::vector<Position> pathOf(const Bracket& bracket, Position position)
{
    const TeamNumber team = bracket.numbers()[position];
    std::vector<Position> path;
    if (team == kNoTeam)
        return path;
    for (const TeamRow row : allTeamRows()) {
        if (bracket.numbers()[positionOf(row)] != team || !isOnPath(positionOf(row), position))
            continue;
        for (std::optional<Position> place = positionOf(row); place; place = next(*place))
            if (bracket.numbers()[*place] == team)
                path.push_back(*place);
        break;
    }
    return path;
}

} // namespace tallyhoop
