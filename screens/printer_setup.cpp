// screens/printer_setup.cpp - every column of every printed text assumes a fixed-pitch font; this is where it is
// chosen.
#include "screens/printer_setup.h"

#include <algorithm>
#include <string>
#include <vector>

namespace tallyhoop {

namespace {

constexpr const char* kFixedPitchFont = "Courier New";
constexpr double kPoints = 10;

constexpr const char* kFontIsMissing = "Tallyhoop attempted to use the default font: *Courier New*\r\n"
                                       "But, this font isn't supported by your selected printer..\r\n"
                                       "\r\n"
                                       "Please select another font from the following options.\r\n"
                                       "\r\n"
                                       "Fixed-Pitch fonts will produce the most readable report.";

bool printerHas(ui::Printer& printer, const std::string& font)
{
    const std::vector<std::string> fonts = printer.fontNames();
    return std::ranges::find(fonts, font) != fonts.end();
}

std::optional<ui::PrinterFont> fontForText(const ui::Platform& platform)
{
    if (printerHas(platform.printer, kFixedPitchFont))
        return ui::PrinterFont{kFixedPitchFont, kPoints};
    platform.dialogs.show({"", kFontIsMissing, ui::Buttons::Ok, ui::Icon::Exclamation});
    return platform.printer.chooseFont();
}

} // namespace

std::optional<PrinterSetup> setUpPrinter(const ui::Platform& platform, bool showDialog, ui::Orientation orientation)
{
    if (showDialog && !platform.printer.choosePrinter())
        return std::nullopt;
    const std::optional<ui::PrinterFont> font = fontForText(platform);
    if (!font)
        return std::nullopt;
    return PrinterSetup{*font, orientation};
}

} // namespace tallyhoop
