// screens/reports/report_delivery.h - a report, or the board, to the printer, to a preview and to a PDF file.
#pragma once

#include "reports/report_layout.h"
#include "reports/report_table.h"
#include "ui/platform.h"

#include <filesystem>

namespace tallyhoop {

/// Prints a report under a busy pointer and says so when that fails. Nothing happens when the person cancels a dialog.
/// @param showDialog the person chooses the printer first
void printReport(const ui::Platform& platform, bool showDialog, const ReportKind& kind, const ReportLines& lines);

/// Shows a report as it would be printed on the default printer.
void previewReport(const ui::Platform& platform, const ReportKind& kind, const ReportLines& lines);

/// Saves a report or the board as a PDF file that the person names, and says so when that fails. A name that does
/// not have the extension ".PDF" in any case gets it; an existing file is replaced after a question.
/// @param folder where the dialog begins
void saveAsPdf(const ui::Platform& platform, const std::filesystem::path& folder, const ReportKind& kind,
               const ReportLines& lines);
void saveAsPdf(const ui::Platform& platform, const std::filesystem::path& folder,
               const ui::DrawingPrintout& boardPrintout);

} // namespace tallyhoop
