// screens/outlook/side_labels.h - labels beside a chart, moved apart where they would cover each other.
#pragma once

#include <vector>

namespace tallyhoop {

/// Moves labels of the same height as little apart as a sweep downwards and one upwards do.
/// @param middles where the labels' middles are to be, ascending
/// @param top, bottom between which all of them have to be: there is room for all
/// @returns where they are, ascending, `height` or more apart
std::vector<double> movedApart(std::vector<double> middles, double height, double top, double bottom);

} // namespace tallyhoop
