// pool/outlook/outlook_work.cpp - which parts the work has, and what each adds to what is known.
#include "pool/outlook/outlook_work.h"

#include <algorithm>
#include <memory>
#include <type_traits>
#include <utility>

namespace tallyhoop {

namespace {

constexpr std::uint64_t kQuickSlices = 20; ///< of a quick forecast: about a tenth of a second

/// Samples of one slice: a sample takes longer the more players there are.
std::uint64_t samplesOfASlice(std::size_t players)
{
    return std::clamp<std::uint64_t>(25'000 / (players + 1), 10, 500);
}

FirstChances partOf(const FirstPlaces& places, double outcomes)
{
    const auto alone = static_cast<double>(places.alone);
    return {alone / outcomes, (static_cast<double>(places.outcomes()) - alone) / outcomes, places.share() / outcomes};
}

/// The counts as parts of all outcomes, which are all alike.
ChanceOutlook partsOf(const FirstOutlook& counted, std::size_t games)
{
    const auto outcomes = static_cast<double>(counted.outcomes);
    ChanceOutlook parts;
    parts.upperWins.assign(games, counted.players.empty() ? 0 : 0.5);
    for (const PlayerFirsts& firsts : counted.players) {
        PlayerChances player{partOf(firsts.all, outcomes), {}};
        for (const FirstPlaces& given : firsts.ifUpperWins)
            player.andUpperWins.push_back(partOf(given, outcomes));
        parts.players.push_back(std::move(player));
    }
    return parts;
}

} // namespace

OutlookWork::OutlookWork(Contest contest, const Field& field, ChanceKind kind, const OutlookLimits& limits,
                         WorkedOut known)
    : m_contest{std::move(contest)},
      m_kind{kind},
      m_upperChance{chancesOf(kind, m_contest, field)},
      m_limits{limits},
      m_plan{planFor(kind)},
      m_proven{known.proven},
      m_known{std::move(known)}
{
    std::erase_if(m_plan, [this](Stage stage) { return isKnown(stage); });
}

std::vector<OutlookWork::Stage> OutlookWork::planFor(ChanceKind kind) const
{
    const std::size_t openGames = m_contest.games().size();
    if (openGames > kMostCountedGames)
        return {Stage::Prospects, Stage::Forecast};
    const bool areFew = openGames <= kFewGames;
    std::vector<Stage> plan;
    if (!areFew)
        plan = {Stage::QuickForecast, Stage::Prospects};
    if (kind != ChanceKind::Alike)
        plan.push_back(Stage::Chances);
    plan.push_back(Stage::Firsts); // also beside other chances: it decides the verdicts
    if (areFew)
        plan.push_back(Stage::Prospects);
    if (openGames <= kMostPlacedGames && m_contest.players() <= m_limits.placed)
        plan.push_back(Stage::Places);
    return plan;
}

bool OutlookWork::isKnown(Stage stage) const
{
    switch (stage) {
    case Stage::QuickForecast:
        return isCounted() || samples() >= quickSamples();
    case Stage::Prospects:
        return m_known.proven != nullptr;
    case Stage::Chances:
        return isCounted();
    case Stage::Firsts:
        return m_known.firsts != nullptr;
    case Stage::Places:
        return m_known.places != nullptr;
    case Stage::Forecast:
        return isCounted() || samples() >= kMostSamples;
    }
    return false;
}

void OutlookWork::advance(const Step& step)
{
    if (isDone())
        return;
    switch (m_plan[m_stage]) {
    case Stage::QuickForecast:
        forecast(quickSamples());
        break;
    case Stage::Prospects:
        findCertainties(step);
        break;
    case Stage::Chances:
        count<ChanceCount>(
            step,
            [&] {
                return ChanceCount{m_contest, m_upperChance, step, m_limits.countBytes};
            },
            [this](const ChanceCount& done) { takeCounted(m_kind, done.outlook()); });
        break;
    case Stage::Firsts:
        count<FirstCount>(
            step,
            [&] {
                return FirstCount{m_contest, step, m_limits.countBytes};
            },
            [this](const FirstCount& done) { takeFirsts(done.outlook()); });
        break;
    case Stage::Places:
        count<PlaceCount>(
            step,
            [&] {
                return PlaceCount{m_contest, step};
            },
            [this](const PlaceCount& done) {
                m_known.places = std::make_shared<const std::vector<PlayerPlaces>>(done.places());
            });
        break;
    case Stage::Forecast:
        forecast(kMostSamples);
        break;
    }
}

void OutlookWork::findCertainties(const Step& step)
{
    bool stopped = false;
    m_proven = std::make_shared<const std::vector<PlayerProspect>>(findProspects(m_contest, [&] {
        ++m_prospectSteps;
        stopped = stopped || !step();
        return !stopped;
    }));
    if (stopped) {
        m_stage = m_plan.size();
        return;
    }
    m_known.proven = m_proven;
    finishStage();
}

void OutlookWork::takeFirsts(FirstOutlook counted)
{
    takeCounted(ChanceKind::Alike, partsOf(counted, m_contest.games().size()));
    m_known.firsts = std::make_shared<const FirstOutlook>(std::move(counted));
}

void OutlookWork::takeCounted(ChanceKind kind, ChanceOutlook chances)
{
    m_known.counted.at(static_cast<std::size_t>(kind)) = std::make_shared<const ChanceOutlook>(std::move(chances));
}

template <class Count, class Make, class Take>
void OutlookWork::count(const Step& step, Make make, Take take)
{
    if (!std::holds_alternative<Count>(m_running))
        m_running.emplace<Count>(make());
    else
        std::get<Count>(m_running).advance();
    if (!step()) {
        m_running = std::monostate{};
        m_stage = m_plan.size();
        return;
    }
    const Count& running = std::get<Count>(m_running);
    if constexpr (!std::is_same_v<Count, PlaceCount>)
        if (running.isTooLarge()) {
            forecastInstead();
            return;
        }
    if (!running.isDone())
        return;
    take(running);
    m_forecast.reset();
    finishStage();
}

/// What was found before stays.
void OutlookWork::forecastInstead()
{
    m_running = std::monostate{};
    m_plan.resize(m_stage);
    for (const Stage stage : {Stage::Prospects, Stage::Forecast})
        if (!isKnown(stage))
            m_plan.push_back(stage);
}

std::uint64_t OutlookWork::quickSamples() const { return kQuickSlices * samplesOfASlice(m_contest.players()); }

/// @param samples that it grows to
void OutlookWork::forecast(std::uint64_t samples)
{
    if (!m_forecast)
        m_forecast.emplace(m_contest, m_upperChance);
    m_forecast->add(samplesOfASlice(m_contest.players()));
    const bool isExact = m_forecast->isExact();
    if (isExact)
        takeCounted(m_kind, m_forecast->outlook());
    if (m_forecast->samples() >= samples || isExact || m_contest.players() == 0)
        finishStage();
}

void OutlookWork::finishStage()
{
    m_running = std::monostate{};
    ++m_stage;
}

double OutlookWork::fraction() const
{
    return isDone() ? 1 : (static_cast<double>(m_stage) + fractionOfStage()) / static_cast<double>(m_plan.size());
}

double OutlookWork::fractionOfStage() const
{
    const Stage stage = m_plan[m_stage];
    if (stage == Stage::QuickForecast || stage == Stage::Forecast) {
        const std::uint64_t whole = stage == Stage::QuickForecast ? quickSamples() : kForecastSamples;
        return std::min(static_cast<double>(samples()) / static_cast<double>(whole), 1.0);
    }
    if (const auto* firsts = std::get_if<FirstCount>(&m_running))
        return firsts->fraction();
    if (const auto* chances = std::get_if<ChanceCount>(&m_running))
        return chances->fraction();
    if (const auto* places = std::get_if<PlaceCount>(&m_running))
        return places->fraction();
    if (stage == Stage::Prospects && m_contest.players() > 0)
        return static_cast<double>(m_prospectSteps) / static_cast<double>(2 * m_contest.players());
    return 0;
}

bool OutlookWork::hasFigures() const
{
    return isCounted() || samples() >= kForecastSamples || (isDone() && hasChances());
}

OutlookFigures OutlookWork::figures() const
{
    OutlookFigures figures = chances();
    figures.prospects = prospects();
    if (m_known.firsts)
        for (const PlayerFirsts& player : m_known.firsts->players)
            figures.firstOutcomes.push_back(player.all.outcomes());
    return figures;
}

std::vector<PlayerProspect> OutlookWork::prospects() const
{
    std::vector<PlayerProspect> known = m_proven ? *m_proven : unknownProspects(m_contest.players());
    if (m_known.firsts)
        addCount(known, *m_known.firsts);
    if (m_known.places)
        addCount(known, *m_known.places);
    return known;
}

const WorkedOut::Found<OutlookFigures>& OutlookWork::keptForecast() const
{
    return m_known.forecasts.at(static_cast<std::size_t>(m_kind));
}

bool OutlookWork::isCounted() const { return m_known.counted.at(static_cast<std::size_t>(m_kind)) != nullptr; }

/// @returns those of the larger forecast, the kept or the new one
std::uint64_t OutlookWork::samples() const
{
    return std::max(keptForecast() ? keptForecast()->samples : 0, m_forecast ? m_forecast->samples() : 0);
}

/// @returns figures without what is certain
OutlookFigures OutlookWork::chances() const
{
    if (isCounted()) {
        OutlookFigures figures;
        figures.source = ChanceSource::Counted;
        figures.chances = *m_known.counted.at(static_cast<std::size_t>(m_kind));
        figures.errors.resize(m_contest.players());
        return figures;
    }
    if (keptForecast() && keptForecast()->samples == samples())
        return *keptForecast();
    return samples() > 0 ? newForecast() : OutlookFigures{};
}

OutlookFigures OutlookWork::newForecast() const
{
    OutlookFigures figures;
    figures.source = ChanceSource::Forecast;
    figures.chances = m_forecast->outlook();
    figures.samples = m_forecast->samples();
    for (std::size_t player = 0; player < m_contest.players(); ++player) {
        figures.errors.push_back(m_forecast->standardError(player));
        std::vector<double>& errors = figures.swingErrors.emplace_back();
        for (std::size_t game = 0; game < m_contest.games().size(); ++game)
            errors.push_back(m_forecast->standardErrorOfSwing(figures.chances, player, game));
    }
    return figures;
}

WorkedOut OutlookWork::workedOut() const
{
    WorkedOut found = m_known;
    WorkedOut::Found<OutlookFigures>& forecast = found.forecasts.at(static_cast<std::size_t>(m_kind));
    if (isCounted())
        forecast.reset();
    else if (m_forecast && m_forecast->samples() > (forecast ? forecast->samples : 0))
        forecast = std::make_shared<const OutlookFigures>(newForecast());
    return found;
}

} // namespace tallyhoop
