// pool/moves.cpp - the rules of moving teams, without any screen.
#include "pool/moves.h"

#include <algorithm>

namespace tallyhoop {

namespace {

constexpr std::size_t at(int position) { return static_cast<std::size_t>(position); }

int next(int position) { return bracketMap().NextPosition(position); }

/// Makes room for a team: removes the team that stands at a position from there on, if it is another one.
void displace(TeamNamesOnBoard& teams, int position, const std::string& newTeam, int clearedFrom)
{
    const std::string displaced = teams[at(position)]; // a copy: the walk may empty the place it stands on
    if (!displaced.empty() && displaced != newTeam)
        ClearTeamForward(teams, displaced, clearedFrom);
}

void advanceOneRound(TeamNamesOnBoard& teams, int position, const std::string& draggedTeam)
{
    if (position == kChampion)
        return;
    const int winner = next(position);
    displace(teams, winner, draggedTeam, winner);
    teams[at(winner)] = teams[at(position)];
}

void carryAlongPath(TeamNamesOnBoard& teams, int source, int target, const std::string& draggedTeam)
{
    // Behind the champion there is nothing that a displaced team could still stand in.
    if (target < kChampion)
        displace(teams, target, draggedTeam, next(target));
    for (int position = source; position < target;) {
        position = next(position);
        teams[at(position)] = draggedTeam;
    }
}

} // namespace

void ClearTeamForward(TeamNamesOnBoard& teams, const std::string& team, int start)
{
    // The caller may name a place of the board that is emptied on the way: only a copy stays what it is.
    const std::string cleared = team; // NOLINT(performance-unnecessary-copy-initialization)
    for (int position = start; position <= kChampion; position = next(position))
        if (teams[at(position)] == cleared)
            teams[at(position)].clear();
}

void clearPosition(TeamNamesOnBoard& teams, int position)
{
    if (isFirstRound(Position{position}))
        return;
    if (!teams[at(position)].empty())
        ClearTeamForward(teams, teams[at(position)], next(position));
    teams[at(position)].clear();
}

bool isOnPath(int source, int target)
{
    int position = source;
    while (position < target)
        position = next(position);
    return position == target;
}

void dropOnPosition(TeamNamesOnBoard& teams, int source, int target, const std::string& draggedTeam)
{
    // The caller may name a place of the board.
    const std::string team = draggedTeam; // NOLINT(performance-unnecessary-copy-initialization)
    if (source == target)
        advanceOneRound(teams, target, team);
    else if (isOnPath(source, target))
        carryAlongPath(teams, source, target, team);
}

void selectHighSeeds(TeamNamesOnBoard& teams, const std::array<std::int16_t, kTeams>& seeds)
{
    std::array<std::int16_t, kPositions> seedAt{};
    for (int row = 0; row < kTeams; ++row)
        seedAt[at(index(firstRoundPosition(row / kRowsPerRegion, row % kRowsPerRegion)))] = seeds[at(row)];

    for (int region = 0; region < kRegions; ++region) {
        // In position order both entrants of a game are decided before the game itself.
        const int firstEntrant = index(firstRoundPosition(region, 0));
        for (int upper = firstEntrant; upper < firstEntrant + kRegionBlock - 1; upper += 2) {
            const int lower = upper + 1;
            const int better = seedAt[at(upper)] >= seedAt[at(lower)] ? lower : upper;
            const int winner = next(upper);
            teams[at(winner)] = teams[at(better)];
            seedAt[at(winner)] = seedAt[at(better)];
        }
    }
}

} // namespace tallyhoop
