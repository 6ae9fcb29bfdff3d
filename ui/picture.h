// ui/picture.h - a control that shows a drawing, made for the room and the colours that it has.
#pragma once

#include "ui/control.h"
#include "ui/drawing.h"

#include <functional>

namespace tallyhoop::ui {

/// The colours of the window, for a drawing in it.
struct PictureColours {
    Colour text{};
    Colour accent{}; ///< what matters most, also as a text; on the background as easy to read as the text
    Colour soft{};   ///< the accent, paler
    Colour line{};   ///< what is to be seen, but does not matter most
    Colour grid{};   ///< what is there to hold on to, such as the lines of a scale
};

/// A picture. Who cannot see it hears spokenName, which says the same in words.
struct Picture : Control {
    Picture(Screen* owner, std::string_view controlName) : Control{owner, controlName} {}

    /// Makes the drawing for this room, in units that are as large on the display as a small font's pixels; called
    /// whenever the room, the colours or the revision differ.
    std::function<Drawing(double width, double height, const PictureColours& colours)> draw;
    unsigned revision = 0; ///< increase when the drawing shows something else
};

} // namespace tallyhoop::ui
