// pool/outlook/chances.cpp - the seeds and the picks as chances.
#include "pool/outlook/chances.h"

#include <algorithm>
#include <array>
#include <vector>

namespace tallyhoop {

UpperChance alikeChances()
{
    return [](std::size_t, TeamNumber, TeamNumber) { return 0.5; };
}

UpperChance seedChances(const OpenGames& games, const Field& field)
{
    std::array<double, 256> seedOf{}; // by team number
    const ByTeamRow<std::int16_t> seeds = seedNumbers(field);
    for (const TeamRow row : allTeamRows())
        seedOf.at(games.known().numbers()[positionOf(row)]) = seeds[row];
    return [seedOf](std::size_t, TeamNumber upper, TeamNumber lower) {
        const double own = seedOf.at(upper);
        const double other = seedOf.at(lower);
        return own > 0 && other > 0 ? other / (own + other) : 0.5;
    };
}

UpperChance pickedChances(const Contest& contest)
{
    const std::vector<Position>& games = contest.games().games();
    std::vector<std::array<double, 256>> parts(games.size()); // by team number
    for (std::size_t game = 0; game < games.size(); ++game) {
        for (std::size_t player = 0; player < contest.players(); ++player)
            parts[game].at(contest.picks(player)[games[game]]) += 1.0 / static_cast<double>(contest.players());
        for (double& part : parts[game])
            part = std::max(part, kPickedFloor);
    }
    return [parts](std::size_t game, TeamNumber upper, TeamNumber lower) {
        const double own = parts.at(game).at(upper);
        return own / (own + parts[game].at(lower));
    };
}

} // namespace tallyhoop
