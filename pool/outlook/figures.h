// pool/outlook/figures.h - what is known of an outlook so far, counted or estimated.
#pragma once

#include "pool/outlook/first_places.h"
#include "pool/outlook/prospects.h"

#include <cmath>
#include <cstdint>
#include <vector>

namespace tallyhoop {

/// Where the chances come from.
enum class ChanceSource {
    None,     ///< there are none yet
    Forecast, ///< estimated from samples
    Counted,  ///< every outcome was counted
};

/// @returns whether a difference is larger than chance makes: at least two standard errors, which it is by chance in
///          about one of 20 cases
/// @param error the standard error of the difference; 0 = exact
inline bool isBeyondError(double difference, double error) { return std::abs(difference) >= 2 * error; }

/// What is known so far, a value for each player in the order of the contest.
struct OutlookFigures {
    std::vector<PlayerProspect> prospects; ///< those that nothing is known of yet are Open, with every place possible
    ChanceSource source = ChanceSource::None; ///< of the chances
    ChanceOutlook chances;                    ///< empty as long as there is no source
    std::vector<double> errors; ///< the standard error of each share, 0..1; 0 = exact; empty without source
    /// The standard error, or a bound for it, of the difference that each open game makes to the share: [player][game],
    /// 0..; empty = exact, or without source.
    std::vector<std::vector<double>> swingErrors;
    std::uint64_t samples = 0;                ///< that a forecast is made of so far
    std::vector<std::uint64_t> firstOutcomes; ///< in how many outcomes a player is first; empty = not counted
};

} // namespace tallyhoop
