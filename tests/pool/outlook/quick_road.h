// tests/pool/outlook/quick_road.h - a road for tests that do not look at its figures.
#pragma once

#include "pool/outlook/road.h"

namespace tallyhoop::test {

/// Takes some milliseconds also where nothing is optimised.
inline constexpr RoadLimits kQuickRoad{.countedGames = 7, .samples = 2};

} // namespace tallyhoop::test
