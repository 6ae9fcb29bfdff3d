// screens/outlook/game_swings.cpp - the difference that a game makes, and the sum of all.
#include "screens/outlook/game_swings.h"

#include <algorithm>
#include <cmath>
#include <functional>

namespace tallyhoop {

namespace {

std::string sideOf(const OpenGames& games, Position position)
{
    const std::vector<TeamNumber>& teams = games.candidates(position);
    if (teams.empty() || teams.size() > 2)
        return {};
    const TeamNames& names = games.known().names();
    const std::string& first = names.nameOf(teams.front());
    return teams.size() == 1 ? first : first + " / " + names.nameOf(teams.back());
}

double swingFor(std::size_t player, std::size_t openGame, const ChanceOutlook& chances)
{
    return 100 *
           (chances.given(player, openGame, Side::Upper).share - chances.given(player, openGame, Side::Lower).share);
}

} // namespace

std::vector<OpenGame> openGamesOf(const OpenGames& games)
{
    std::vector<OpenGame> open;
    for (const Position game : games.games()) {
        const auto [upper, lower] = *feeders(game);
        const bool isNext = games.candidates(upper).size() == 1 && games.candidates(lower).size() == 1;
        open.push_back({game, sideOf(games, upper), sideOf(games, lower), isNext});
    }
    return open;
}

std::vector<double> swingsFor(std::size_t player, const ChanceOutlook& chances)
{
    std::vector<double> swings;
    for (std::size_t game = 0; game < chances.upperWins.size(); ++game)
        swings.push_back(swingFor(player, game, chances));
    return swings;
}

std::vector<GameWeight> weightsOf(const ChanceOutlook& chances)
{
    std::vector<GameWeight> weights;
    for (std::size_t game = 0; game < chances.upperWins.size(); ++game) {
        GameWeight weight{game, 0};
        for (std::size_t player = 0; player < chances.players.size(); ++player)
            weight.swing += std::abs(swingFor(player, game, chances));
        if (weight.swing >= kLeastSwing)
            weights.push_back(weight);
    }
    std::ranges::stable_sort(weights, std::greater{}, &GameWeight::swing);
    return weights;
}

} // namespace tallyhoop
