// screens/printer_setup.h - what comes before every printout of text: the printer, the font, the orientation.
#pragma once

#include "ui/platform.h"

#include <optional>

namespace tallyhoop {

/// How a text is to be printed.
struct PrinterSetup {
    ui::PrinterFont font;
    ui::Orientation orientation = ui::Orientation::Portrait;

    friend bool operator==(const PrinterSetup&, const PrinterSetup&) = default;
};

/// Readies the printer for text in fixed columns: Courier New, 10 points. When the printer lacks that font a message
/// says so and the person chooses another one.
/// @param showDialog the person chooses the printer first
/// @returns nothing when the person cancelled a dialog: nothing is to be printed then
std::optional<PrinterSetup> setUpPrinter(const ui::Platform& platform, bool showDialog, ui::Orientation orientation);

} // namespace tallyhoop
