// pool/outlook/forecast.cpp - samples, sums and squares.
#include "pool/outlook/forecast.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tallyhoop {

Forecast::Forecast(const Contest& contest, const UpperChance& upperChance, std::uint64_t seed)
    : Forecast{contest, staged(plannedGames(contest, upperChance), kCountedGames), seed}
{
}

Forecast::Forecast(const Contest& contest, Stages&& stages, std::uint64_t seed)
    : m_players{contest.players()},
      m_random{seed},
      m_earlyGames{std::move(stages.early)},
      m_lastGames{std::move(stages.last), contest.players()},
      m_decided{decidedPoints(contest)},
      m_sums(contest.players()),
      m_squares(contest.players()),
      m_upperWins(contest.games().size())
{
    for (PlayerChances& player : m_sums)
        player.andUpperWins.resize(contest.games().size());
    m_openEarly = static_cast<std::size_t>(
        std::ranges::count_if(m_earlyGames, [](const PlannedGame& game) { return game.openGame.has_value(); }));
}

void Forecast::add(std::uint64_t samples)
{
    if (isExact())
        samples = m_samples == 0 ? std::min<std::uint64_t>(samples, 1) : 0;
    for (std::uint64_t i = 0; i < samples && m_players > 0; ++i) {
        playEarlyGames();
        m_lastGames.count(m_points, m_teams);
        addSample();
    }
    m_samples += samples;
}

void Forecast::playEarlyGames()
{
    m_points = m_decided;
    m_upperWon.clear();
    for (const PlannedGame& game : m_earlyGames) {
        Side side = game.walkover;
        if (game.openGame) {
            // The 53 highest bits make a number of 0 up to but not including 1, all of them exact.
            const double random = static_cast<double>(m_random() >> 11) * 0x1p-53;
            side = random < game.upperChance(m_teams) ? Side::Upper : Side::Lower;
            if (side == Side::Upper)
                m_upperWon.push_back(*game.openGame);
        }
        addRow(game.points[game.play(side, m_teams)], m_points);
    }
}

void Forecast::addSample()
{
    for (const std::size_t openGame : m_upperWon)
        ++m_upperWins[openGame];
    for (const std::size_t player : m_lastGames.firsts()) {
        const FirstChances& chances = m_lastGames.chances(player);
        m_sums[player].all += chances;
        m_squares[player] += chances.share * chances.share;
        for (const std::size_t openGame : m_upperWon)
            m_sums[player].andUpperWins[openGame] += chances;
    }
}

ChanceOutlook Forecast::outlook() const
{
    ChanceOutlook outlook{m_sums, m_upperWins};
    m_lastGames.addTo(outlook);
    const auto samples = static_cast<double>(std::max<std::uint64_t>(m_samples, 1));
    for (PlayerChances& player : outlook.players) {
        player.all /= samples;
        for (FirstChances& chances : player.andUpperWins)
            chances /= samples;
    }
    for (double& chance : outlook.upperWins)
        chance /= samples;
    return outlook;
}

double Forecast::standardError(std::size_t player) const
{
    if (m_samples < 2)
        return isExact() && m_samples == 1 ? 0 : 1;
    const auto samples = static_cast<double>(m_samples);
    const double mean = m_sums[player].all.share / samples;
    const double variance = std::max(m_squares[player] / samples - mean * mean, 0.0);
    return std::max(std::sqrt(variance / (samples - 1)), 1 / samples);
}

double Forecast::standardErrorGiven(double share, double sideWins) const
{
    const double samples = sideWins * static_cast<double>(m_samples);
    if (isExact() && m_samples == 1)
        return 0;
    if (samples < 2)
        return 1;
    return std::max(std::sqrt(std::max(share * (1 - share), 0.0) / (samples - 1)), 1 / samples);
}

/// The two sides win in different outcomes, so that their errors are independent.
double Forecast::standardErrorOfSwing(const ChanceOutlook& made, std::size_t player, std::size_t openGame) const
{
    const double upperWins = made.upperWins.at(openGame);
    return std::hypot(standardErrorGiven(made.given(player, openGame, Side::Upper).share, upperWins),
                      standardErrorGiven(made.given(player, openGame, Side::Lower).share, 1 - upperWins));
}

} // namespace tallyhoop
