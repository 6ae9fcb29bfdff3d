// pool/outlook/chances.cpp - the seeds and the picks as chances.
#include "pool/outlook/chances.h"

#include <array>
#include <cstdint>
#include <limits>
#include <utility>
#include <vector>

namespace tallyhoop {

namespace {

template <class T>
using ByTeam = std::array<T, std::numeric_limits<TeamNumber>::max() + 1>;

/// @returns the seed of each team; 0 for those without
ByTeam<std::int16_t> seedsOf(const TeamNames& names, const Field& field)
{
    ByTeam<std::int16_t> seeds{};
    ByTeam<int> rows{};
    const ByTeamRow<std::int16_t> seedNumbersOfRows = seedNumbers(field);
    for (const TeamRow row : allTeamRows()) {
        const TeamNumber team = names.numberOf(field.teams[row]);
        ++rows[team];
        seeds[team] = rows[team] == 1 ? seedNumbersOfRows[row] : std::int16_t{0};
    }
    seeds[kNoTeam] = 0;
    return seeds;
}

} // namespace

UpperChance alikeChances()
{
    return [](std::size_t, TeamNumber, TeamNumber) { return 0.5; };
}

UpperChance seedChances(const OpenGames& games, const Field& field)
{
    return [seeds = seedsOf(games.known().names(), field)](std::size_t, TeamNumber upper, TeamNumber lower) {
        const double own = seeds[upper];
        const double other = seeds[lower];
        return own > 0 && other > 0 ? other / (own + other) : 0.5;
    };
}

UpperChance pickedChances(const Contest& contest)
{
    std::vector<ByTeam<double>> picked(contest.games().size()); // the players who picked a team to win an open game
    for (std::size_t openGame = 0; openGame < picked.size(); ++openGame)
        for (std::size_t player = 0; player < contest.players(); ++player)
            ++picked[openGame][contest.picks(player)[contest.games().games()[openGame]]];
    return [picked = std::move(picked)](std::size_t openGame, TeamNumber upper, TeamNumber lower) {
        const double own = picked[openGame][upper];
        const double other = picked[openGame][lower];
        return (own + 1) / (own + other + 2);
    };
}

UpperChance chancesOf(ChanceKind kind, const Contest& contest, const Field& field)
{
    switch (kind) {
    case ChanceKind::BySeed:
        return seedChances(contest.games(), field);
    case ChanceKind::AsPicked:
        return pickedChances(contest);
    case ChanceKind::Alike:
        break;
    }
    return alikeChances();
}

} // namespace tallyhoop
