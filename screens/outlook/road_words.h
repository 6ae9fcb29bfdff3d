// screens/outlook/road_words.h - the road for who cannot see the chart.
#pragma once

#include "screens/outlook/road_drawing.h"

#include <string>

namespace tallyhoop {

/// @returns the chosen player's shares of first place as far as they are known, such as "JB, Joe Brandt: start 7.1 %
///          (forecast), round 1 11.2 %, now 34.4 %"; where nobody is chosen, the three largest shares now
std::string roadInWords(const RoadPicture& picture);

} // namespace tallyhoop
