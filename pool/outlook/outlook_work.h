// pool/outlook/outlook_work.h - works an outlook out in slices: what is certain, who is first how often, which
// places.
#pragma once

#include "base/step.h"
#include "pool/field.h"
#include "pool/outlook/chances.h"
#include "pool/outlook/contest.h"
#include "pool/outlook/figures.h"
#include "pool/outlook/first_count.h"
#include "pool/outlook/first_places.h"
#include "pool/outlook/forecast.h"
#include "pool/outlook/place_count.h"
#include "pool/outlook/prospects.h"
#include "pool/outlook/worked_out.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <variant>
#include <vector>

namespace tallyhoop {

/// How many players are too many for what.
struct OutlookLimits {
    std::size_t atOnce = 1'000;               ///< more are counted later, because that takes longer than people wait
    std::size_t placed = kMostPlacedPlayers;  ///< the places of more are not counted: they stay between two
    std::size_t countBytes = kMostCountBytes; ///< where a count would be too large for it, there is a forecast
};

/// Works an outlook out. Knows nothing of threads: one object belongs to one thread at a time, and needs nothing of
/// what it was made from any longer.
///
/// Few open games are counted first, because that is done at once; with more of them it is first found what can be
/// proven without counting. Before they are counted, a quick forecast says about what will come out. Too many to count
/// make a forecast only, which grows until it is stopped or large enough.
class OutlookWork
{
public:
    /// So few open games are counted before anything else.
    static constexpr std::size_t kFewGames = 15;

    /// A forecast does not grow further.
    static constexpr std::uint64_t kMostSamples = 20 * kForecastSamples;

    /// @param known of the same results, by whatever chances: this is not worked out once more
    OutlookWork(Contest contest, const Field& field, ChanceKind kind, const OutlookLimits& limits = {},
                WorkedOut known = {});

    const Contest& contest() const { return m_contest; }

    /// Whether counting takes so little time that the person may wait for it.
    bool isCountedAtOnce() const
    {
        return m_contest.games().size() <= kFewGames && m_contest.players() <= m_limits.atOnce;
    }

    /// Nothing is left to do.
    bool isDone() const { return m_stage == m_plan.size(); }

    /// How much of the result is there, 0..1, growing steadily. A forecast of kForecastSamples counts as whole,
    /// although it grows further.
    double fraction() const;

    /// Does one slice: some milliseconds. Only finding what is certain about hundreds of players, and preparing to
    /// count for them, takes longer.
    /// @param step called while such a slice lasts; when it asks to stop, what is known by then stays, and all is done
    void advance(const Step& step = goOn);

    /// Whether there are chances already, counted or estimated.
    bool hasChances() const { return isCounted() || samples() > 0; }

    /// Whether there are chances that may be taken over as a result: counted, or a forecast of kForecastSamples.
    bool hasFigures() const;

    /// How many parts of the work are finished.
    std::size_t stagesDone() const { return m_stage; }

    /// What is known so far.
    OutlookFigures figures() const;

    /// What the next work by the same results need not find once more. A forecast begins anew, but its chances stay
    /// until there are more samples again.
    WorkedOut workedOut() const;

private:
    enum class Stage { QuickForecast, Prospects, Chances, Firsts, Places, Forecast };

    std::vector<Stage> planFor(ChanceKind kind) const;
    bool isKnown(Stage stage) const;
    void forecastInstead();
    void findCertainties(const Step& step);
    void takeFirsts(FirstOutlook counted);
    void takeCounted(ChanceKind kind, ChanceOutlook chances);
    template <class Count, class Make, class Take>
    void count(const Step& step, Make make, Take take);
    void forecast(std::uint64_t samples);
    std::uint64_t quickSamples() const;
    double fractionOfStage() const;
    std::vector<PlayerProspect> prospects() const;
    const WorkedOut::Found<OutlookFigures>& keptForecast() const;
    bool isCounted() const;
    std::uint64_t samples() const;
    OutlookFigures chances() const;
    OutlookFigures newForecast() const;
    void finishStage();

    Contest m_contest;
    ChanceKind m_kind;
    UpperChance m_upperChance;
    OutlookLimits m_limits;
    std::vector<Stage> m_plan;
    std::size_t m_stage = 0;         ///< in the plan
    std::size_t m_prospectSteps = 0; ///< done of finding what is certain, two for each player

    std::variant<std::monostate, FirstCount, ChanceCount, PlaceCount> m_running;
    std::optional<Forecast> m_forecast;                     ///< nothing once there are counted chances
    WorkedOut::Found<std::vector<PlayerProspect>> m_proven; ///< also where the search was stopped
    WorkedOut m_known;
};

} // namespace tallyhoop
