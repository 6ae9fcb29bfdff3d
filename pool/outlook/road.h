// pool/outlook/road.h - how each player's chance to be first has changed from round to round.
#pragma once

#include "base/step.h"
#include "pool/outlook/chances.h"
#include "pool/outlook/contest.h"
#include "pool/outlook/first_count.h"
#include "pool/outlook/forecast.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <vector>

namespace tallyhoop {

/// One time on the road: before the first game, after a round, or now.
struct RoadStage {
    int round = 0;      ///< 0 = before the first game, 1..6 = after this round; of now the latest round begun
    bool isNow = false; ///< everything is known that is entered
    Bracket results;    ///< what was known then

    friend bool operator==(const RoadStage&, const RoadStage&) = default;
};

/// @param results teams in the first-round rows, winners as far as they are known
/// @returns the stages in the order of time: before the first game, after each round but the latest begun, now; only
///          now when no winner is entered
/// @note A round counts as far as its games are known, no matter when they were entered: a game of it that is missing
///       is open after it, unless its winner has won a later game that is entered. A game of a later round is open,
///       also when it is entered already.
std::vector<RoadStage> roadStages(const Bracket& results);

/// Everybody's chances at one stage.
struct RoadPoint {
    int round = 0;                     ///< as in RoadStage
    bool isNow = false;                ///< as in RoadStage
    std::size_t openGames = 0;         ///< how many were open then
    std::uint64_t samples = 0;         ///< of the forecast; 0 = counted
    std::vector<FirstChances> chances; ///< one for each player, in the order of the picks
    std::vector<double> errors;        ///< the standard error of each one's share of first place, 0..1; 0 = counted

    friend bool operator==(const RoadPoint&, const RoadPoint&) = default;
};

/// How much work a road may be.
struct RoadLimits {
    std::size_t countedGames = kMostCountedGames; ///< where more games are open, forecast; 0..40
    std::uint64_t samples = kForecastSamples;     ///< of each forecast, 2 or more
    std::uint64_t seed = kForecastSeed;
    std::size_t countBytes = kMostCountBytes; ///< where a count would be too large for it, forecast
};

/// Finds the points of a road in slices, as FirstCount does, from now backwards: the later the faster.
class Road
{
public:
    /// Makes the chances of a stage's games; called for each stage while the work goes on.
    using Chances = std::function<UpperChance(const Contest& contest)>;

    /// @param results as for roadStages()
    /// @param picks   one bracket a player
    Road(const Bracket& results, std::span<const Bracket> picks, const Payoffs& payoffs, Chances chances,
         const RoadLimits& limits = {});

    bool isDone() const { return m_points.size() == m_stages.size(); }

    /// Takes over what is known of now from elsewhere, so that it is not worked out once more.
    /// @param now its round and isNow are those of the stage, whatever they are here
    /// @pre no point is found yet
    void takeNow(RoadPoint now);

    /// Does one slice of the work: some milliseconds, more for hundreds of players. Nothing when it is done.
    /// @param step called while such a slice lasts; when it asks to stop, the next slice begins it anew
    /// @note After an exception the next slice begins the stage anew; the points found before stay.
    void advance(const Step& step = goOn);

    /// The points found so far, in the order of time; the last is now.
    const std::vector<RoadPoint>& points() const { return m_points; }

private:
    const RoadStage& stage() const { return m_stages[m_stages.size() - 1 - m_points.size()]; }
    void work(const Step& step);
    void begin(const Step& step);
    void leaveStage();
    void forecast(const Contest& contest);
    bool stageIsDone() const;
    void addPoint();
    void add(RoadPoint point);

    std::vector<RoadStage> m_stages;
    std::vector<Bracket> m_picks;
    Payoffs m_payoffs;
    Chances m_chances;
    RoadLimits m_limits;
    std::vector<RoadPoint> m_points;

    // The stage being worked on; neither between two stages.
    std::size_t m_openGames = 0;
    std::optional<ChanceCount> m_count;
    std::optional<Forecast> m_forecast;
};

} // namespace tallyhoop
