// ui/drawing.h - a picture as a value: what a page shows, in units of the page's own, independent of any device.
#pragma once

#include "ui/colour.h"
#include "ui/control.h"

#include <string>
#include <vector>

namespace tallyhoop::ui {

struct Rectangle {
    double x = 0, y = 0, width = 0, height = 0;

    double right() const { return x + width; }
    double bottom() const { return y + height; }
    double centreX() const { return x + width / 2; }
    double centreY() const { return y + height / 2; }
    bool contains(double px, double py) const { return px >= x && px < right() && py >= y && py < bottom(); }
    friend bool operator==(const Rectangle&, const Rectangle&) = default;
};

/// A straight line.
struct Stroke {
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    Colour colour{};
    double thickness = 1;
};

/// A filled box with an outline.
struct Box {
    Rectangle place;
    Colour fill{255, 255, 255};
    Colour outline{};
};

/// A text inside a rectangle. One of a single line is vertically centred; where it is too wide its letters become
/// narrower, and only then it is elided in its middle. One that wraps begins at the top; where it is too high its
/// letters become smaller, and only then it ends with an ellipsis after the last whole line.
struct Caption {
    Rectangle place;
    std::string text;
    double size = 10; ///< height of the letters in drawing units
    Colour colour{};
    Alignment alignment = Alignment::Left;
    bool bold = false;
    bool wrap = false;   ///< lines separated by CR LF, wrapped at the right edge
    bool struck = false; ///< a line through the middle of the letters
};

/// Painted in this order: strokes, boxes, captions.
struct Drawing {
    double width = 0;
    double height = 0;
    std::vector<Stroke> strokes;
    std::vector<Box> boxes;
    std::vector<Caption> captions;
};

} // namespace tallyhoop::ui
