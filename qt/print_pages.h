// qt/print_pages.h - lays printouts out on sheets and paints them on a printer, in a PDF or in a preview.
#pragma once

#include "ui/printer.h"

#include <QByteArray>
#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPainter>
#include <vector>

namespace tallyhoop::qt {

/// The lines of one sheet, and the distance between them in twips (1440 to the inch).
struct Sheet {
    std::vector<std::string> lines;
    double spacing = 0;
};

/// Divides lines into sheets. A form feed ends a page of the report. A page that is too long for a sheet at the natural
/// spacing is set tighter, down to 9 points a line; if that is not enough it keeps the natural spacing and continues
/// on another sheet. Pages without lines are left out; there is always at least one sheet.
/// @param height  of the printable area, twips
/// @param natural the font's own line spacing, twips
std::vector<Sheet> layOut(const std::vector<std::string>& lines, double height, double natural);

/// Paints onto sheets of the device, whose page layout and orientation are set already. Where a line is wider than the
/// paper all lines get smaller letters, down to half their size; what is wider still goes on in the next line.
/// @returns false when the device gives no (further) page
bool paintPages(QPagedPaintDevice& device, const ui::TextPrintout& printout);
bool paintPages(QPagedPaintDevice& device, const ui::DrawingPrintout& printout);
bool paintPages(QPagedPaintDevice& device, const ui::Printout& printout);

QPageLayout::Orientation orientationOf(const ui::Printout& printout);

/// @returns the width of the printable area in twips
int printableWidthTwips(const QPageLayout& layout);

/// @returns the printout as a PDF file, empty when that failed
QByteArray toPdf(const ui::Printout& printout, QPageLayout layout);

} // namespace tallyhoop::qt
