// screens/outlook/outlook_worker.cpp - slices on the one side, news on the other, and what is guarded between them.
#include "screens/outlook/outlook_worker.h"

#include "screens/outlook/outlook_job.h"

#include <cstddef>
#include <mutex>
#include <utility>

namespace tallyhoop {

/// Between the thread that works and the one that shows: one for each job.
class OutlookWorker::Exchange
{
public:
    /// @param results of which the job finds something
    /// @param known   what it begins with
    Exchange(Bracket results, WorkedOut known) : m_results{std::move(results)}, m_workedOut{std::move(known)} {}

    // For the thread that shows.

    void stop()
    {
        const std::lock_guard lock{m_mutex};
        m_isStopped = true;
    }

    bool isWorking() const
    {
        const std::lock_guard lock{m_mutex};
        return !m_isOver || m_news;
    }

    double fraction() const
    {
        const std::lock_guard lock{m_mutex};
        return m_fraction;
    }

    std::exception_ptr trouble() const
    {
        const std::lock_guard lock{m_mutex};
        return m_trouble;
    }

    std::optional<OutlookKnown> news()
    {
        const std::lock_guard lock{m_mutex};
        return std::exchange(m_news, std::nullopt);
    }

    const Bracket& results() const { return m_results; }

    WorkedOut workedOut() const
    {
        const std::lock_guard lock{m_mutex};
        return m_workedOut;
    }

    // For the thread that works.

    bool isStopped() const
    {
        const std::lock_guard lock{m_mutex};
        return m_isStopped;
    }

    /// Whether the last news was taken.
    bool isCurious() const
    {
        const std::lock_guard lock{m_mutex};
        return !m_news;
    }

    void setFraction(double fraction)
    {
        const std::lock_guard lock{m_mutex};
        m_fraction = fraction;
    }

    void keep(WorkedOut found)
    {
        const std::lock_guard lock{m_mutex};
        std::swap(m_workedOut, found);
    }

    /// @param isOver nothing will follow
    void publish(OutlookKnown known, bool isOver)
    {
        // The older news is destroyed after the lock is gone.
        std::optional<OutlookKnown> news{std::move(known)};
        const std::lock_guard lock{m_mutex};
        std::swap(m_news, news);
        m_isOver = isOver;
    }

    /// Nothing follows; the news that there is stays.
    void fail(const std::exception_ptr& trouble)
    {
        const std::lock_guard lock{m_mutex};
        m_trouble = trouble;
        m_isOver = true;
    }

private:
    const Bracket m_results;
    mutable std::mutex m_mutex;
    std::optional<OutlookKnown> m_news;
    WorkedOut m_workedOut;
    double m_fraction = 0;
    std::exception_ptr m_trouble;
    bool m_isStopped = false;
    bool m_isOver = false;
};

/// A job, slice by slice.
class OutlookWorker::Slices
{
public:
    /// @param of what the job is made of
    template <class... Of>
    explicit Slices(std::shared_ptr<Exchange> exchange, Of&&... of)
        : m_job{std::forward<Of>(of)...}, m_exchange{std::move(exchange)}
    {
        m_job.countFewGames();
    }

    /// @param goesOn false = the job was abandoned
    bool advance(const Step& goesOn)
    {
        m_job.advance([&] {
            m_exchange->setFraction(m_job.work().fraction());
            const bool isStopped = m_exchange->isStopped();
            m_isCut = m_isCut || (isStopped && !m_job.work().isDone());
            return !isStopped && goesOn();
        });
        m_exchange->setFraction(m_job.work().fraction());
        const bool isOver = m_job.isDone() || m_exchange->isStopped();
        if (isOver || m_exchange->isCurious() || m_job.stagesDone() != m_publishedStages) {
            m_publishedStages = m_job.stagesDone();
            publish(m_job.road().points(), isOver);
        }
        return !isOver;
    }

    /// What is known before the first slice. The road still belongs to the slice of another job.
    void publishStart(bool isOver)
    {
        m_exchange->setFraction(m_job.work().fraction());
        publish({}, isOver);
    }

private:
    void publish(std::vector<RoadPoint> road, bool isOver)
    {
        m_exchange->keep(m_job.work().workedOut());
        m_exchange->publish({m_job.work().figures(), std::move(road), m_job.work().isDone() && !m_isCut}, isOver);
    }

    OutlookJob m_job;
    std::shared_ptr<Exchange> m_exchange;
    bool m_isCut = false; ///< in the middle of a slice of the figures
    std::size_t m_publishedStages = 0;
};

OutlookWorker::OutlookWorker(Bracket entered, std::vector<Bracket> picks, const Payoffs& payoffs, Field field,
                             std::unique_ptr<ui::Background> background)
    : m_entered{std::move(entered)},
      m_kept{m_entered},
      m_picks{std::move(picks)},
      m_payoffs{payoffs},
      m_field{std::move(field)},
      m_background{std::move(background)}
{
}

OutlookWorker::~OutlookWorker() = default;

void OutlookWorker::begin(const Bracket& supposed, ChanceKind kind)
{
    if (m_exchange)
        m_kept.keep(m_exchange->results(), m_exchange->workedOut());
    auto exchange = std::make_shared<Exchange>(supposed, m_kept.turnTo(supposed));
    OutlookKnown nothing;
    nothing.figures.prospects = unknownProspects(m_picks.size());
    exchange->publish(std::move(nothing), false);
    m_exchange = std::move(exchange);
    try {
        run(supposed, kind);
    } catch (...) {
        m_background->abandon(); // what was begun before is no longer wanted
        m_exchange->fail(std::current_exception());
    }
}

void OutlookWorker::run(const Bracket& supposed, ChanceKind kind)
{
    const auto slices = std::make_shared<Slices>(m_exchange, Contest{supposed, m_picks, m_payoffs}, m_field, kind,
                                                 roadOf(kind), supposed == m_entered, m_exchange->workedOut());
    slices->publishStart(false);
    if (!m_background->run([slices](const Step& goesOn) { return slices->advance(goesOn); },
                           [exchange = m_exchange](const std::exception_ptr& trouble) { exchange->fail(trouble); }))
        slices->publishStart(true);
}

void OutlookWorker::stop()
{
    if (m_exchange)
        m_exchange->stop();
}

bool OutlookWorker::isWorking() const { return m_exchange && m_exchange->isWorking(); }

double OutlookWorker::fraction() const { return m_exchange ? m_exchange->fraction() : 0; }

std::exception_ptr OutlookWorker::trouble() const { return m_exchange ? m_exchange->trouble() : nullptr; }

std::optional<OutlookKnown> OutlookWorker::news() { return m_exchange ? m_exchange->news() : std::nullopt; }

std::shared_ptr<Road> OutlookWorker::roadOf(ChanceKind kind)
{
    std::shared_ptr<Road>& road = m_roads.at(static_cast<std::size_t>(kind));
    if (!road)
        road = std::make_shared<Road>(m_entered, m_picks, m_payoffs, [kind, field = m_field](const Contest& contest) {
            return chancesOf(kind, contest, field);
        });
    return road;
}

} // namespace tallyhoop
