// qt/svg_path.h - the outline that the text of an SVG path means.
#pragma once

#include <QPainterPath>
#include <QStringView>
#include <optional>

namespace tallyhoop::qt {

/// Reads the attribute "d" of a path: lines, cubic curves, and circular arcs whose axes are not turned, each absolute
/// or relative.
/// @returns nothing when there is anything else in it
std::optional<QPainterPath> svgPath(QStringView text);

} // namespace tallyhoop::qt
