// screens/printer_setup.h - what comes before every printout of text: the printer, the font, the orientation.
#pragma once

#include "ui/platform.h"

#include <optional>
#include <string_view>

namespace tallyhoop {

/// How a text is to be printed.
struct PrinterSetup {
    ui::PrinterFont font;
    ui::Orientation orientation = ui::Orientation::Portrait;

    friend bool operator==(const PrinterSetup&, const PrinterSetup&) = default;
};

/// @returns landscape for exactly "Landscape", portrait for any other text
ui::Orientation orientationOf(std::string_view text);

/// Readies the printer for text in fixed columns: Courier New, 10 points. When the printer lacks that font a message
/// says so and the person chooses another one.
/// @param showDialog  the person chooses the printer first
/// @param orientation "Landscape", or any other text for portrait
/// @returns nothing when the person cancelled a dialog: nothing is to be printed then
std::optional<PrinterSetup> setUpPrinter(const ui::Platform& platform, bool showDialog, std::string_view orientation);

} // namespace tallyhoop
