// qt/colours.h - the colours of the windows: those of the desktop, or light or dark ones whatever the desktop has.
#pragma once

namespace tallyhoop::qt {

enum class Colours { Desktop, Light, Dark };

/// Gives all windows these colours, at once.
void useColours(Colours colours);

/// @returns the colours in use: the desktop's as long as no others were chosen
Colours usedColours();

/// Remembers a choice for the next start. It belongs to the person and not to the pool, so it is kept with the
/// settings of the person's other programs; where that is impossible, it lasts until the program ends.
void keepColours(Colours colours);

/// @returns the choice that was kept; the desktop's colours when there is none
Colours keptColours();

} // namespace tallyhoop::qt
