// ui/printer.h - what the program asks of a printer.
#pragma once

#include "base/result.h"
#include "ui/drawing.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <variant>
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

/// Pictures, each fitted to a page of its own.
struct DrawingPrintout {
    std::string title;
    std::vector<Drawing> drawings;
    Orientation orientation = Orientation::Landscape;
};

using Printout = std::variant<TextPrintout, DrawingPrintout>;

/// @returns a printout's title, whatever it shows
inline const std::string& titleOf(const Printout& printout)
{
    return std::visit([](const auto& any) -> const std::string& { return any.title; }, printout);
}

/// What a preview shows, and what the person can do with the printout that is shown.
struct Preview {
    std::vector<Printout> printouts; ///< at least one; of several the person chooses in a list
    std::function<void(const Printout&)> print;
    std::function<void(const Printout&)> savePdf;
};

class Printer
{
public:
    virtual ~Printer() = default;

    /// @returns the fonts the printer can use
    virtual std::vector<std::string> fontNames() = 0;

    /// Shows the printer dialog; what is chosen holds for the printouts that follow. Where there is neither a printer
    /// nor something else that the system's dialog could choose, it shows none. @returns false when cancelled
    virtual bool choosePrinter() = 0;

    /// Shows the font dialog, fixed-pitch families first. @returns nothing when cancelled
    virtual std::optional<PrinterFont> chooseFont() = 0;

    /// @returns the width of the printable area, 1440 units to the inch
    virtual int pageWidthTwips(Orientation orientation) = 0;

    /// @returns whether there is something to print on: a printer, or a file chosen in the printer dialog
    virtual bool isThere() = 0;

    /// @returns the file that was chosen in the printer dialog for the next printout; empty = it goes to paper
    virtual std::filesystem::path outputFile() = 0;

    virtual Result<Done> print(const Printout& printout) = 0;

    virtual Result<Done> savePdf(const Printout& printout, const std::filesystem::path& file) = 0;

    /// Shows the pages in a window and waits until it is closed. What it does meanwhile is in the preview.
    virtual void preview(const Preview& preview) = 0;
};

} // namespace tallyhoop::ui
