// screens/outlook/outlook_sheet.h - the outlook on paper: the table of players, the road, and the games that matter.
#pragma once

#include "reports/outlook.h"
#include "screens/outlook/road_drawing.h"
#include "ui/drawing.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace tallyhoop {

/// What a game means, in words.
struct SheetGame {
    std::string game;
    std::string rootFor; ///< the side that helps the chosen player; "-" = neither does; empty = nobody is chosen
    std::string helps;   ///< by how much; empty = nobody is chosen
    std::string all;     ///< what it means to all players together
    std::string when;    ///< when it can be played
};

/// The outlook as it is shown, which is what goes out of it.
struct OutlookSheet {
    OutlookHeading heading;
    std::vector<OutlookRow> rows;        ///< in the order of the table
    std::optional<std::size_t> chosen{}; ///< OutlookRow::player of the chosen player; nothing = nobody is
    std::string chosenName{};
    std::string proof{};            ///< what is proven about the chosen player, in a sentence
    RoadPicture road{};             ///< by the results as entered, whatever is supposed
    std::vector<SheetGame> games{}; ///< in the order in which they are listed
    bool isForecast = false;        ///< the figures of the games have errors
};

/// Draws the sheet on upright pages of 800 by 1100 units, as many as it takes: first the table, its headings on each
/// page, each player in one row; then the road; then the games. What is supposed is said on every page.
/// @param date as it is printed
std::vector<ui::Drawing> drawOutlook(const OutlookSheet& sheet, const std::string& date);

} // namespace tallyhoop
