// screens/outlook/outlook_job.h - all that is worked out for one supposition, what is wanted first at first.
#pragma once

#include "pool/outlook/outlook_work.h"
#include "pool/outlook/road.h"

#include <cstddef>
#include <memory>

namespace tallyhoop {

/// The outlook by the results as supposed, then everybody's chances by the results as entered, then how these came
/// about; at last a forecast grows further. Knows nothing of threads.
class OutlookJob
{
public:
    /// @param contest     by the results as supposed
    /// @param road        of the results as entered by the same chances; what it lacks is added to it, so that the next
    ///                    job finds it there
    /// @param isAsEntered whether nothing is supposed: then the work's chances are those of now on the road
    /// @param known       as for OutlookWork
    OutlookJob(Contest contest, const Field& field, ChanceKind kind, std::shared_ptr<Road> road, bool isAsEntered,
               WorkedOut known = {});

    /// Finds everybody's chances at once where few games are open, some dozen milliseconds for hundreds of players.
    void countFewGames();

    const OutlookWork& work() const { return m_work; }
    const Road& road() const { return *m_road; }
    bool isDone() const { return m_work.isDone() && m_road->isDone(); }

    /// How many parts are finished, of the work and of the road.
    std::size_t stagesDone() const { return m_work.stagesDone() + m_road->points().size(); }

    /// Does one slice, as OutlookWork::advance().
    void advance(const Step& step = goOn);

private:
    void findNow(const Step& step);

    OutlookWork m_work;
    std::shared_ptr<Road> m_road;
    bool m_isAsEntered;
};

} // namespace tallyhoop
