// pool/outlook/forecast.h - an estimate of who will be first, for when there are too many open games to count.
#pragma once

#include "pool/outlook/chances.h"
#include "pool/outlook/contest.h"
#include "pool/outlook/first_places.h"
#include "pool/outlook/last_games.h"
#include "pool/outlook/planned_games.h"

#include <cstddef>
#include <cstdint>
#include <random>
#include <vector>

namespace tallyhoop {

/// So many samples make a forecast that may be shown as a result.
inline constexpr std::uint64_t kForecastSamples = 200'000;

/// The forecasts of everybody begin with this number, so that they agree.
inline constexpr std::uint64_t kForecastSeed = 2000;

/// Plays the early games at random, each by its chance, and counts all outcomes of the last ones by theirs: a sample.
/// What is counted does not add to the error. The same contest, chances, seed and number of samples make the same
/// forecast, in as many steps as one likes.
class Forecast
{
public:
    /// So many of the open games are counted, those of the latest rounds: from the winners of the regions on, when none
    /// of them is known. Where no more are open, everything is counted: one sample is exact.
    static constexpr std::size_t kCountedGames = 7;

    /// @param upperChance called while it is prepared
    Forecast(const Contest& contest, const UpperChance& upperChance, std::uint64_t seed = kForecastSeed);

    /// Takes so many samples more; one takes some microseconds for fifty players. None where one is enough and taken.
    void add(std::uint64_t samples);

    std::uint64_t samples() const { return m_samples; }

    /// Whether nothing is left to chance: all open games are counted.
    bool isExact() const { return m_openEarly == 0; }

    /// The estimates so far; all 0 before the first sample.
    ChanceOutlook outlook() const;

    /// The standard error of a player's share of first place, which is outlook().players[player].all.share. It is never
    /// less than one sample is worth: who was first in none can still be first. 0 where the share is exact, 1 with
    /// fewer than two samples.
    double standardError(std::size_t player) const;

    /// A bound for the standard error of a share given that a side wins a game.
    /// @param share     that share, 0..1
    /// @param sideWins  the chance that this side wins, 0..1
    /// @returns what it would be if whole outcomes were sampled, which have larger errors; 1 where that is unknown
    double standardErrorGiven(double share, double sideWins) const;

    /// A bound for the standard error of the difference that an open game makes to a player's share of first place.
    /// @param made what outlook() has returned, with no sample taken since
    double standardErrorOfSwing(const ChanceOutlook& made, std::size_t player, std::size_t openGame) const;

private:
    Forecast(const Contest& contest, Stages&& stages, std::uint64_t seed);

    void playEarlyGames();
    void addSample();

    std::size_t m_players;
    std::mt19937_64 m_random; ///< makes the same numbers on every platform
    std::uint64_t m_samples = 0;

    std::vector<PlannedGame> m_earlyGames;
    std::size_t m_openEarly = 0;
    LastGames m_lastGames;
    PointsRow m_decided;

    // The sample being taken.
    ByPosition<CandidateNumber> m_teams;
    PointsRow m_points;
    std::vector<std::size_t> m_upperWon; ///< the open early games that the upper side has won

    // Sums over all samples.
    std::vector<PlayerChances> m_sums;
    std::vector<double> m_squares; ///< of each player's share
    std::vector<double> m_upperWins;
};

} // namespace tallyhoop
