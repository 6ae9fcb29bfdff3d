// tests/pool/outlook/summed_chances.cpp - one outcome after the other.
#include "pool/outlook/summed_chances.h"

#include "pool/sample_brackets.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace tallyhoop::test {

namespace {

double chanceOf(const OpenGames& games, OutcomeNumber outcome, const ByPosition<TeamNumber>& teams,
                const UpperChance& upperChance)
{
    double chance = 1;
    for (std::size_t i = 0; i < games.size(); ++i) {
        const auto [upper, lower] = entrantsOf(games.games()[i]);
        const double wins = upperChance(i, teams[upper], teams[lower]);
        chance *= sideOf(outcome, i) == Side::Upper ? wins : 1 - wins;
    }
    return chance;
}

} // namespace

double someChance(std::size_t game, TeamNumber upper, TeamNumber lower)
{
    return static_cast<double>((game * 7 + upper * 3U + lower * 5U) % 11) / 10;
}

ChanceOutlook summedChances(const Contest& contest, const UpperChance& upperChance)
{
    const std::size_t games = contest.games().size();
    ChanceOutlook sums{std::vector<PlayerChances>(contest.players()), std::vector<double>(games)};
    for (PlayerChances& player : sums.players)
        player.andUpperWins.resize(games);
    for (OutcomeNumber outcome = 0; outcome < contest.games().outcomes(); ++outcome) {
        const ByPosition<TeamNumber> teams = contest.games().outcomeNumbers(outcome);
        const double chance = chanceOf(contest.games(), outcome, teams, upperChance);
        std::vector<std::int32_t> points;
        for (std::size_t player = 0; player < contest.players(); ++player)
            points.push_back(contest.points(player, teams));
        const std::int32_t most = std::ranges::max(points);
        const auto together = static_cast<double>(std::ranges::count(points, most));
        const auto add = [&](FirstChances& chances) {
            (together == 1 ? chances.alone : chances.together) += chance;
            chances.share += chance / together;
        };
        for (std::size_t player = 0; player < points.size(); ++player) {
            if (points[player] < most)
                continue;
            add(sums.players[player].all);
            for (std::size_t game = 0; game < games; ++game)
                if (sideOf(outcome, game) == Side::Upper)
                    add(sums.players[player].andUpperWins[game]);
        }
        for (std::size_t game = 0; game < games; ++game)
            sums.upperWins[game] += sideOf(outcome, game) == Side::Upper ? chance : 0;
    }
    return sums;
}

} // namespace tallyhoop::test
