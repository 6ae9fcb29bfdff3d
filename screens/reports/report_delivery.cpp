// screens/reports/report_delivery.cpp - sets the printer up, asks for a file, prints.
#include "screens/reports/report_delivery.h"

#include "base/windows1252.h"
#include "files/data_folder.h"
#include "screens/printing_trouble.h"
#include "screens/reports/report_output.h"
#include "ui/work.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace tallyhoop {

namespace {

constexpr const char* kPdfExtension = ".PDF";

/// @returns nothing when the person cancelled a dialog
std::optional<ui::TextPrintout> printoutOf(const ui::Platform& platform, bool showDialog, const ReportKind& kind,
                                           const ReportLines& lines)
{
    const std::optional<PrinterSetup> setup = setUpPrinter(platform, showDialog, orientationOf(kind.orientation));
    if (!setup)
        return std::nullopt;
    return textPrintout(kind.name, lines, *setup, platform.printer);
}

/// Thousands of pages take a moment to paint; the pointer is normal again before a failure is shown.
void deliverBusily(const ui::Platform& platform, const char* what, const std::function<Result<Done>()>& deliver)
{
    const Result<Done> delivered = [&] {
        const Work work{platform.progress, what, 1};
        return deliver();
    }();
    if (!delivered)
        showPrintingTrouble(platform.dialogs);
}

std::string withoutExtension(std::string_view fileName) { return std::string{fileName.substr(0, fileName.rfind('.'))}; }

/// @returns the file to write, its extension .PDF; nothing when the person does not want it after all
std::optional<std::filesystem::path> choosePdf(ui::Dialogs& dialogs, const std::filesystem::path& folder,
                                               const std::string& dialogCaption, const std::string& proposedName)
{
    std::optional<std::filesystem::path> file =
        dialogs.saveFile({dialogCaption, "PDF files (*.PDF)", "*.PDF", folder, proposedName});
    if (!file)
        return std::nullopt;
    if (!endsWithFolded(file->filename().string(), kPdfExtension))
        *file += kPdfExtension;
    std::error_code unknown;
    if (!std::filesystem::exists(*file, unknown))
        return file;
    const ui::Answer answer = dialogs.show(
        {"", "Do you want to replace the existing file ?\r\n" + shown(*file), ui::Buttons::YesNo, ui::Icon::Question});
    return answer == ui::Answer::Yes ? file : std::nullopt;
}

} // namespace

void printReport(const ui::Platform& platform, bool showDialog, const ReportKind& kind, const ReportLines& lines)
{
    if (const auto printout = printoutOf(platform, showDialog, kind, lines))
        deliverBusily(platform, kind.name, [&] { return platform.printer.print(*printout); });
}

void previewReport(const ui::Platform& platform, const ReportKind& kind, const ReportLines& lines)
{
    if (const auto printout = printoutOf(platform, false, kind, lines))
        platform.printer.preview(*printout);
}

void saveAsPdf(const ui::Platform& platform, const std::filesystem::path& folder, const ReportKind& kind,
               const ReportLines& lines)
{
    const auto file = choosePdf(platform.dialogs, folder, std::string{"Save as PDF: "} + kind.name,
                                withoutExtension(kind.file) + kPdfExtension);
    if (!file)
        return;
    if (const auto printout = printoutOf(platform, false, kind, lines))
        deliverBusily(platform, kind.name, [&] { return platform.printer.savePdf(*printout, *file); });
}

void saveAsPdf(const ui::Platform& platform, const std::filesystem::path& folder,
               const ui::DrawingPrintout& boardPrintout)
{
    const auto file = choosePdf(platform.dialogs, folder, "Save Board as PDF", "Bracket.PDF");
    if (file && !platform.printer.savePdf(boardPrintout, *file))
        showPrintingTrouble(platform.dialogs);
}

} // namespace tallyhoop
