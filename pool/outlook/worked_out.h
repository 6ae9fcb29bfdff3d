// pool/outlook/worked_out.h - what has been found of some results, to be kept when other ones are looked at.
#pragma once

#include "pool/bracket.h"
#include "pool/outlook/figures.h"
#include "pool/outlook/first_places.h"
#include "pool/outlook/place_count.h"
#include "pool/outlook/prospects.h"

#include <array>
#include <memory>
#include <utility>
#include <vector>

namespace tallyhoop {

/// What has been found of some results, each part as a whole; nothing = not found yet. The parts never change, so any
/// thread may read them, and a copy takes no time.
struct WorkedOut {
    template <class Part>
    using Found = std::shared_ptr<const Part>;

    // By whatever chances.
    Found<std::vector<PlayerProspect>> proven;
    Found<FirstOutlook> firsts;
    Found<std::vector<PlayerPlaces>> places;

    // By ChanceKind.
    std::array<Found<ChanceOutlook>, 3> counted;
    std::array<Found<OutlookFigures>, 3> forecasts; ///< where nothing is counted: the chances of the largest one
};

/// Keeps what has been found of the results as entered and of those that are supposed now; the rest is forgotten.
class KeptOutlooks
{
public:
    explicit KeptOutlooks(Bracket entered) : m_entered{std::move(entered)} {}

    /// @param results as entered or as supposed from now on
    /// @returns what is known of them
    const WorkedOut& turnTo(const Bracket& results);

    /// Nothing is kept of results that were neither entered nor turned to last.
    void keep(const Bracket& results, WorkedOut found);

private:
    Bracket m_entered;
    Bracket m_supposed; ///< those turned to last
    WorkedOut m_ofEntered;
    WorkedOut m_ofSupposed;
};

} // namespace tallyhoop
