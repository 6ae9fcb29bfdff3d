// screens/outlook/game_swings.cpp - the difference that a game makes, and the sum of all.
#include "screens/outlook/game_swings.h"

#include "screens/board/board_words.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <optional>

namespace tallyhoop {

namespace {

constexpr std::size_t kMostNamed = 2; ///< teams
constexpr std::array kQuarters{"1st", "2nd", "3rd", "4th"};

bool isNamedByTeams(const OpenGames& games, Position side)
{
    const std::size_t teams = games.candidates(side).size();
    return teams > 0 && teams <= kMostNamed;
}

const char* halfOf(Position place) { return gameOfColumn(place) == 0 ? "upper" : "lower"; }

/// @returns the regions whose winners meet for a semi-final, "West - East"
std::string regionsOf(Position semifinal, const Field& field, const char* between)
{
    const auto [upper, lower] = *feeders(semifinal);
    return shortNameOfRegion(field, *regionOf(upper)) + between + shortNameOfRegion(field, *regionOf(lower));
}

/// @returns from which part of the bracket a winner of the second round or a later one comes
std::string partOf(Position side, const Field& field)
{
    const std::optional<int> region = regionOf(side);
    if (!region)
        return regionsOf(side, field, " / ") + " winner";
    const std::string name = shortNameOfRegion(field, *region);
    switch (roundOf(side)) {
    case 2:
        return name + " " + kQuarters.at(static_cast<std::size_t>(gameOfColumn(side))) + " quarter";
    case 3:
        return name + " " + halfOf(side) + " half";
    default:
        return name + " winner";
    }
}

std::string sideOf(const OpenGames& games, Position side, const Field& field)
{
    if (!isNamedByTeams(games, side))
        return partOf(side, field);
    const TeamNames& names = games.known().names();
    const std::vector<TeamNumber>& teams = games.candidates(side);
    const std::string& first = names.nameOf(teams.front());
    return teams.size() == 1 ? first : first + " / " + names.nameOf(teams.back());
}

std::string roundOfGame(Position game, const Field& field)
{
    if (game == kChampion)
        return "Final";
    const std::optional<int> region = regionOf(game);
    if (!region)
        return "Semi-final: " + regionsOf(game, field, " - ");
    const std::string name = shortNameOfRegion(field, *region);
    return game == regionWinner(*region) ? name + " final" : name + " " + halfOf(game) + " semi-final";
}

double errorOfSwing(std::size_t player, std::size_t openGame, const OutlookFigures& figures)
{
    return figures.swingErrors.empty() ? 0 : 100 * figures.swingErrors.at(player).at(openGame);
}

double swingFor(std::size_t player, std::size_t openGame, const OutlookFigures& figures)
{
    const double swing = 100 * (figures.chances.given(player, openGame, Side::Upper).share -
                                figures.chances.given(player, openGame, Side::Lower).share);
    return isBeyondError(swing, errorOfSwing(player, openGame, figures)) ? swing : 0;
}

/// Players who want the same side take first place from each other, so that the variance of their sum is not more than
/// the sum of their variances. Those who want different sides can differ together: the two errors are added.
GameWeight weightOf(std::size_t openGame, const OutlookFigures& figures)
{
    GameWeight weight{openGame};
    double upperVariance = 0;
    double lowerVariance = 0;
    for (std::size_t player = 0; player < figures.chances.players.size(); ++player) {
        const double swing = swingFor(player, openGame, figures);
        if (swing == 0)
            continue;
        weight.swing += std::abs(swing);
        const double error = errorOfSwing(player, openGame, figures);
        (swing > 0 ? upperVariance : lowerVariance) += error * error;
    }
    weight.error = std::sqrt(upperVariance) + std::sqrt(lowerVariance);
    return weight;
}

} // namespace

std::vector<OpenGame> openGamesOf(const OpenGames& games, const Field& field)
{
    std::vector<OpenGame> open;
    for (const Position game : games.games()) {
        const auto [upper, lower] = *feeders(game);
        const bool isNext = games.candidates(upper).size() == 1 && games.candidates(lower).size() == 1;
        const bool isNamed = isNamedByTeams(games, upper) && isNamedByTeams(games, lower);
        open.push_back({game, sideOf(games, upper, field), sideOf(games, lower, field), isNext,
                        isNamed ? std::string{} : roundOfGame(game, field)});
    }
    return open;
}

std::vector<double> swingsFor(std::size_t player, const OutlookFigures& figures)
{
    std::vector<double> swings;
    for (std::size_t game = 0; game < figures.chances.upperWins.size(); ++game)
        swings.push_back(swingFor(player, game, figures));
    return swings;
}

std::vector<GameWeight> weightsOf(const OutlookFigures& figures, std::span<const OpenGame> games)
{
    std::vector<GameWeight> weights;
    for (std::size_t game = 0; game < figures.chances.upperWins.size(); ++game)
        if (const GameWeight weight = weightOf(game, figures); weight.swing >= kLeastSwing)
            weights.push_back(weight);
    std::ranges::stable_sort(weights, std::greater{}, &GameWeight::swing);
    std::stable_partition(weights.begin(), weights.end(),
                          [&](const GameWeight& weight) { return games[weight.openGame].isNext; });
    return weights;
}

} // namespace tallyhoop
