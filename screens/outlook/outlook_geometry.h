// screens/outlook/outlook_geometry.h - where the places of the outlook's bracket are, and the swings beside them.
#pragma once

#include "screens/board/board_geometry.h"

namespace tallyhoop {

/// Lays the bracket out without headers, seeds and markers. A column overlaps the one before it where both have room at
/// different heights. The lower regions have their titles below them.
/// @param width, height in the caller's units, at least 1
BoardGeometry layOutOutlook(double width, double height);

/// @returns where the swing of a place is: beside it, and on its right end in the first column, where both sides of
///          every game are next to each other
ui::Rectangle swingPlace(const BoardGeometry& geometry, Position position);

/// @returns where the team of a place is that has a swing
ui::Rectangle teamBesideSwing(const BoardGeometry& geometry, Position position);

} // namespace tallyhoop
