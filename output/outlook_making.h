// output/outlook_making.h - the outlook of a pool, worked out before anybody looks at it.
#pragma once

#include "base/step.h"
#include "output/opened_pool.h"
#include "pool/outlook/chances.h"
#include "pool/outlook/first_places.h"
#include "pool/outlook/outlook_work.h"
#include "reports/outlook.h"
#include "reports/outlook_words.h"

#include <memory>
#include <vector>

namespace tallyhoop {

/// By the results as entered, as the outlook's screen has it once it says that nothing is left to do or, where the
/// outcomes are too many to count, once its first forecast is whole.
struct MadeOutlook {
    OutlookHeading heading;
    OutlookBasis basis;
    std::vector<OutlookRow> rows; ///< the largest shares of first place first
    OutlookFigures figures;
    std::shared_ptr<const FirstOutlook> firsts; ///< who is first in how many outcomes; nothing = not counted

    /// Whether every outcome was counted, and by these chances.
    bool isExact() const { return firsts != nullptr && figures.source == ChanceSource::Counted; }
};

/// Takes as long as the screen does: from some milliseconds to half a minute.
/// @param step called between slices of some milliseconds; when it asks to stop, what is known by then is returned
/// @param limits for how many players what is worked out
/// @returns a failure when a payoff is no number
Result<MadeOutlook> makeOutlook(const OpenedPool& opened, ChanceKind chances, const Step& step = goOn,
                                const OutlookLimits& limits = {});

} // namespace tallyhoop
