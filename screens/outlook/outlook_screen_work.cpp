// screens/outlook/outlook_screen_work.cpp - what the outlook screen works out: when it begins, and what comes of it.
#include "screens/outlook/outlook_screen.h"

#include "reports/outlook_words.h"
#include "screens/outlook/outlook_words.h"

#include <utility>

namespace tallyhoop {

void OutlookScreen::load()
{
    if (m_opened.isCancelled) {
        m_screens.unload(ScreenKind::Outlook);
        m_screens.load(ScreenKind::Board, "The outlook was cancelled: not every selection was read.");
        return;
    }
    showUnread(m_platform.dialogs, m_opened);
    startWork();
}

void OutlookScreen::startWork()
{
    m_stopped = false;
    if (!m_worker) {
        grdPlayers.emptyNote = m_pool.field.payoffs.points().failure().message;
        return;
    }
    OpenGames games{m_whatIf.supposed()};
    m_standings = standingsBy(m_pool.entries, m_whatIf.supposed(), *m_pool.field.payoffs.points());
    m_worker->begin(m_whatIf.supposed(), m_kind);
    m_games = std::move(games); // together with the figures, which are news now
}

void OutlookScreen::stop()
{
    m_stopped = true;
    m_worker->stop();
    say("Stopped: what is known by now stays.");
}

void OutlookScreen::takeFigures()
{
    if (std::optional<OutlookKnown> known = m_worker ? m_worker->news() : std::nullopt) {
        m_figures = std::move(known->figures);
        m_isWhole = known->isWhole;
        if (!known->road.empty())
            m_roads.at(static_cast<std::size_t>(m_kind)) = std::move(known->road);
        keepAsEntered();
        m_hasNews = true;
    }
    if (!std::exchange(m_hasNews, false))
        return;
    makeRows();
    chooseLeader();
    showRows();
}

/// What is known of the results as entered is what later suppositions are compared with: the best there was.
void OutlookScreen::keepAsEntered()
{
    EnteredShares& best = m_entered.at(static_cast<std::size_t>(m_kind));
    const auto isBetter = [&best](std::uint64_t samples) {
        return best.known.shares.empty() || (best.samples > 0 && (samples == 0 || samples > best.samples));
    };
    if (!m_whatIf.isChanged() && m_figures.source != ChanceSource::None && isBetter(m_figures.samples)) {
        best = {{{}, m_figures.errors}, m_figures.samples};
        for (const PlayerChances& player : m_figures.chances.players)
            best.known.shares.push_back(player.all.share);
    }
    const std::vector<RoadPoint>& road = m_roads.at(static_cast<std::size_t>(m_kind));
    if (!road.empty() && isBetter(road.back().samples)) {
        best = {{{}, road.back().errors}, road.back().samples};
        for (const FirstChances& player : road.back().chances)
            best.known.shares.push_back(player.share);
    }
}

RoadPicture OutlookScreen::roadPicture() const
{
    RoadPicture picture;
    for (const RoadStage& stage : roadStages(m_whatIf.entered()))
        picture.times.push_back(stageInWords(stage.round, stage.isNow));
    picture.points = m_roads.at(static_cast<std::size_t>(m_kind));
    picture.names.resize(m_pool.entries.size());
    for (const OutlookRow& row : m_rows)
        picture.names[row.player] = row.name;
    picture.chosen = m_chosen;
    picture.chances = chancesInWords(m_kind);
    picture.isWorking = isWorking() && !m_stopped;
    return picture;
}

} // namespace tallyhoop
