// ui/printer.h - what the program asks of a printer.
#pragma once

#include "base/result.h"
#include "ui/drawing.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace tallyhoop::ui {

enum class Orientation { Portrait = 1, Landscape = 2 };

struct PrinterFont {
    std::string name;
    double points = 10;
    bool bold = false;
    bool italic = false;

    friend bool operator==(const PrinterFont&, const PrinterFont&) = default;
};

/// Lines of fixed-pitch text. A line whose first character is a form feed (12) starts a new page and is not printed.
struct TextPrintout {
    std::string title; ///< the job's name
    std::vector<std::string> lines;
    PrinterFont font;
    Orientation orientation = Orientation::Portrait;
    int originTwips = 0; ///< how far the text starts to the right of the printable area's left edge, 1440 to the inch
};

/// A picture, fitted to one page.
struct DrawingPrintout {
    std::string title;
    Drawing drawing;
    Orientation orientation = Orientation::Landscape;
};

class Printer
{
public:
    virtual ~Printer() = default;

    /// @returns the fonts the printer can use
    virtual std::vector<std::string> fontNames() = 0;

    /// Shows the printer dialog; what is chosen holds for the printouts that follow. @returns false when cancelled
    virtual bool choosePrinter() = 0;

    /// Shows the font dialog, fixed-pitch families first. @returns nothing when cancelled
    virtual std::optional<PrinterFont> chooseFont() = 0;

    /// @returns the width of the printable area, 1440 units to the inch
    virtual int pageWidthTwips(Orientation orientation) = 0;

    virtual Result<Done> print(const TextPrintout& printout) = 0;
    virtual Result<Done> print(const DrawingPrintout& printout) = 0;

    virtual Result<Done> savePdf(const TextPrintout& printout, const std::filesystem::path& file) = 0;
    virtual Result<Done> savePdf(const DrawingPrintout& printout, const std::filesystem::path& file) = 0;

    /// Shows the pages in a window and waits until it is closed.
    virtual void preview(const TextPrintout& printout) = 0;
    virtual void preview(const DrawingPrintout& printout) = 0;
};

} // namespace tallyhoop::ui
