// ui/colour.h - a colour as red, green and blue, 0..255 each.
#pragma once

#include <cstdint>

namespace tallyhoop::ui {

struct Colour {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    friend bool operator==(Colour, Colour) = default;
};

} // namespace tallyhoop::ui
