// qt/line_icon.h - icons drawn from SVG at any size, their lines in the palette's text colour.
#pragma once

#include <QIcon>

namespace tallyhoop::qt {

/// @param resource an SVG picture; what it draws in "currentColor" follows the palette
/// @returns a null icon when there is no such picture, or SvgPicture cannot read it
QIcon lineIcon(const QString& resource);

} // namespace tallyhoop::qt
