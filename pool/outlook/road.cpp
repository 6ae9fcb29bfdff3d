// pool/outlook/road.cpp - what was known after each round, counted or forecast one after the other.
#include "pool/outlook/road.h"

#include <algorithm>
#include <utility>

namespace tallyhoop {

namespace {

constexpr std::uint64_t kSamplesOfSlice = 100;

/// @returns the latest round that has a winner; 0 when none has
int latestRound(const Bracket& results)
{
    int latest = 0;
    for (const Position game : gamePositions())
        if (!results.isEmpty(game))
            latest = std::max(latest, roundOf(game));
    return latest;
}

Bracket knownAfter(int round, Bracket results)
{
    for (const Position game : gamePositions())
        if (roundOf(game) > round)
            results.clear(game);
    return results;
}

} // namespace

std::vector<RoadStage> roadStages(const Bracket& results)
{
    // Before later games are taken out, they say who has won the earlier ones that are missing.
    const OpenGames games{results};
    const int latest = latestRound(results);
    std::vector<RoadStage> stages;
    stages.reserve(static_cast<std::size_t>(latest) + 1);
    for (int round = 0; round < latest; ++round)
        stages.push_back({round, false, knownAfter(round, games.known())});
    stages.push_back({latest, true, results});
    return stages;
}

Road::Road(const Bracket& results, std::span<const Bracket> picks, const Payoffs& payoffs, Chances chances,
           const RoadLimits& limits)
    : m_stages{roadStages(results)},
      m_picks{picks.begin(), picks.end()},
      m_payoffs{payoffs},
      m_chances{std::move(chances)},
      m_limits{limits}
{
}

bool Road::stageIsDone() const
{
    if (m_count)
        return m_count->isDone();
    return m_forecast->samples() >= (m_forecast->isExact() ? 1 : m_limits.samples);
}

void Road::advance(const Step& step)
{
    if (isDone())
        return;
    try {
        work(step);
    } catch (...) {
        leaveStage(); // what is half counted is of no use
        throw;
    }
}

void Road::work(const Step& step)
{
    if (!m_count && !m_forecast) {
        begin(step);
        if (!step()) {
            leaveStage();
            return;
        }
    } else if (m_count)
        m_count->advance();
    else
        m_forecast->add(std::min(kSamplesOfSlice, m_limits.samples - m_forecast->samples()));
    if (stageIsDone())
        addPoint();
}

void Road::begin(const Step& step)
{
    const Contest contest{stage().results, m_picks, m_payoffs};
    m_openGames = contest.games().size();
    if (m_openGames > m_limits.countedGames) {
        forecast(contest);
        return;
    }
    m_count.emplace(contest, m_chances(contest), step, m_limits.countBytes);
    if (m_count->isTooLarge()) {
        m_count.reset();
        forecast(contest);
    }
}

void Road::forecast(const Contest& contest) { m_forecast.emplace(contest, m_chances(contest), m_limits.seed); }

void Road::addPoint()
{
    const bool sampled = m_forecast && !m_forecast->isExact();
    const ChanceOutlook outlook = m_count ? m_count->outlook() : m_forecast->outlook();
    RoadPoint point{0, false, m_openGames, sampled ? m_forecast->samples() : 0, {}, {}};
    for (std::size_t player = 0; player < outlook.players.size(); ++player) {
        point.chances.push_back(outlook.players[player].all);
        point.errors.push_back(sampled ? m_forecast->standardError(player) : 0);
    }
    add(std::move(point));
}

void Road::takeNow(RoadPoint now) { add(std::move(now)); }

void Road::add(RoadPoint point)
{
    point.round = stage().round;
    point.isNow = stage().isNow;
    m_points.insert(m_points.begin(), std::move(point));
    leaveStage();
}

void Road::leaveStage()
{
    m_count.reset();
    m_forecast.reset();
}

} // namespace tallyhoop
