// screens/outlook/outlook_worker.h - has the outlook worked out in the background, and gives what is known by now.
#pragma once

#include "pool/outlook/outlook_work.h"
#include "pool/outlook/road.h"
#include "pool/outlook/worked_out.h"
#include "ui/background.h"

#include <array>
#include <exception>
#include <memory>
#include <optional>
#include <vector>

namespace tallyhoop {

/// What is known of an outlook.
struct OutlookKnown {
    OutlookFigures figures;
    std::vector<RoadPoint> road; ///< by the results as entered: the points known; empty = none that are new
    bool isWhole = false;        ///< the figures are all there is to find
};

/// Belongs to the thread that shows; the other one, where slices are done, shares with it only what is guarded.
class OutlookWorker
{
public:
    /// @param entered the results as entered
    /// @param picks   one bracket a player
    OutlookWorker(Bracket entered, std::vector<Bracket> picks, const Payoffs& payoffs, Field field,
                  std::unique_ptr<ui::Background> background);
    ~OutlookWorker();
    OutlookWorker(const OutlookWorker&) = delete;
    OutlookWorker& operator=(const OutlookWorker&) = delete;

    /// Begins with other results or chances; what ran before is abandoned. Few open games are counted before this
    /// returns: everybody's chances are news then, and what is known of these results from before. Where that fails, it
    /// is news that nothing is known.
    /// @param supposed the results, supposed ones with them
    void begin(const Bracket& supposed, ChanceKind kind);

    /// Has the slice that is running end soon, and no more begin; what is known by then is news.
    void stop();

    /// Whether there is news, or will be.
    bool isWorking() const;

    /// How much of the figures is there, as OutlookWork::fraction().
    double fraction() const;

    /// @returns what has ended the work before its time, such as a lack of memory; nothing when nothing has. What was
    ///          news before stays known.
    std::exception_ptr trouble() const;

    /// @returns what is known, when that is more than at the last time; it is collected anew only after it was taken
    std::optional<OutlookKnown> news();

private:
    class Exchange;
    class Slices;

    void run(const Bracket& supposed, ChanceKind kind);
    std::shared_ptr<Road> roadOf(ChanceKind kind);

    Bracket m_entered;
    KeptOutlooks m_kept;
    std::vector<Bracket> m_picks;
    Payoffs m_payoffs;
    Field m_field;
    std::array<std::shared_ptr<Road>, 3> m_roads; ///< by ChanceKind; touched by slices alone once they are made
    std::shared_ptr<Exchange> m_exchange;         ///< with the slices of the job begun last
    std::unique_ptr<ui::Background> m_background; ///< last: it ends before the rest is gone
};

} // namespace tallyhoop
