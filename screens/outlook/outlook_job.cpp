// screens/outlook/outlook_job.cpp - whose turn it is.
#include "screens/outlook/outlook_job.h"

#include <utility>

namespace tallyhoop {

OutlookJob::OutlookJob(Contest contest, const Field& field, ChanceKind kind, std::shared_ptr<Road> road,
                       bool isAsEntered, WorkedOut known)
    : m_work{std::move(contest), field, kind, {}, std::move(known)}, m_road{std::move(road)}, m_isAsEntered{isAsEntered}
{
}

void OutlookJob::countFewGames()
{
    while (m_work.isCountedAtOnce() && !m_work.hasChances() && !m_work.isDone())
        m_work.advance();
}

void OutlookJob::advance(const Step& step)
{
    if (m_work.hasFigures() && m_road->points().empty())
        findNow(step);
    else if (m_work.fraction() >= 1 && !m_road->isDone())
        m_road->advance(step);
    else
        m_work.advance(step);
}

void OutlookJob::findNow(const Step& step)
{
    if (!m_isAsEntered) {
        m_road->advance(step);
        return;
    }
    OutlookFigures figures = m_work.figures();
    RoadPoint now;
    now.openGames = m_work.contest().games().size();
    now.samples = figures.samples;
    for (const PlayerChances& player : figures.chances.players)
        now.chances.push_back(player.all);
    now.errors = std::move(figures.errors);
    m_road->takeNow(std::move(now));
}

} // namespace tallyhoop
