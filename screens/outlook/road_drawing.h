// screens/outlook/road_drawing.h - the road as a chart: time from left to right, shares of first place upwards.
#pragma once

#include "pool/outlook/road.h"
#include "ui/drawing.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace tallyhoop {

/// @param round 0..6, as in RoadStage
/// @returns "Start", "Round 1" or "Now"
std::string stageInWords(int round, bool isNow);

/// What the chart shows.
struct RoadPicture {
    std::vector<std::string> times; ///< in words, one for each stage of the road
    std::vector<RoadPoint> points;  ///< those found so far, which belong to the last of the times; no more than these
    std::vector<std::string> names; ///< of the players
    std::optional<std::size_t> chosen; ///< the player in bold; nothing = none
    std::string chances;               ///< in words, such as "all outcomes alike"
    bool isWorking = false;            ///< the points that are missing will come

    friend bool operator==(const RoadPicture&, const RoadPicture&) = default;
};

/// By default for white paper.
struct RoadColours {
    ui::Colour text{30, 32, 40};
    ui::Colour grid{215, 218, 225};
    ui::Colour others{150, 155, 165}; ///< everybody who is not chosen
    ui::Colour chosen{15, 80, 180};
    ui::Colour band{150, 185, 230};
};

/// Draws each player's share of first place at each time as a line, in percent. The scale ends at 4, 8, 20, 40, 60 or
/// 100 percent, the smallest that has room for all. At a time that is a forecast the chosen player has a band of two
/// standard errors to either side, and the time says that it is one; a time without a point says why. At the right end
/// are the names of the chosen player and of as many others as there is room for, the largest shares now first, in the
/// height of their lines or as near as they can be.
/// @param width, height in units; at least 200 by 120
ui::Drawing drawRoad(const RoadPicture& picture, double width, double height, const RoadColours& colours = {});

} // namespace tallyhoop
