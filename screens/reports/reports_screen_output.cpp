// screens/reports/reports_screen_output.cpp - the output step: to the printer or to the report's own file; preview and
// PDF.
#include "base/lines.h"
#include "base/windows1252.h"
#include "files/file_names.h"
#include "screens/printing_trouble.h"
#include "screens/reports/report_output.h"
#include "screens/reports/reports_screen.h"
#include "ui/work.h"

namespace tallyhoop {

namespace {

constexpr const char* kPdfEnding = ".PDF";

std::string withoutEnding(std::string_view fileName) { return std::string{fileName.substr(0, fileName.rfind('.'))}; }

} // namespace

Result<Done> ReportsScreen::OutputReport(std::string_view reportKey, const ReportLines& lines)
{
    const std::string bytes = fileOf(lines);
    if (Result<Done> written = m_folder.write(file_name::kWorkFile, bytes); !written)
        return written;
    const ReportKind* kind = findReport(reportKey);
    if (kind == nullptr)
        return Done{};
    if (!toPrinter)
        return m_folder.write(kind->file, bytes);
    printReport(*kind, lines);
    return Done{};
}

void ReportsScreen::printReport(const ReportKind& kind, const ReportLines& lines)
{
    const bool showDialog = !useDefaultPrinter;
    const std::optional<PrinterSetup> setup = setUpPrinter(m_platform, showDialog, kind.orientation);
    if (!setup)
        return;
    deliverBusily(kind.name,
                  [&] { return m_platform.printer.print(textPrintout(kind.name, lines, *setup, m_platform.printer)); });
}

/// Thousands of pages take a moment to paint; the pointer is normal again before a failure is told.
void ReportsScreen::deliverBusily(const char* what, const std::function<Result<Done>()>& deliver)
{
    const Result<Done> delivered = [&] {
        const Work work{m_platform.progress, what, 1};
        return deliver();
    }();
    if (!delivered)
        showPrintingTrouble(m_platform.dialogs);
}

void ReportsScreen::forEachTickedReport(const char* commandCaption,
                                        const std::function<void(const ReportKind&, const ReportLines&)>& deliver)
{
    listFiles();
    bool anyTicked = false;
    bool cancelled = false;
    for (std::size_t index = 0; index < kReports && !cancelled; ++index) {
        if (!chkOptions[index].ticked)
            continue;
        anyTicked = true;
        if (const std::optional<ReportLines> lines = makeReport(index, cancelled))
            deliver(reportTable()[index], *lines);
    }
    if (!anyTicked)
        m_platform.dialogs.show({std::string{"Tallyhoop - frmPoolReports, "} + commandCaption,
                                 std::string{"You will need to select one of the Report Selections before\r\n"
                                             "choosing the \""} +
                                     commandCaption + "\" Command Button",
                                 ui::Buttons::Ok, ui::Icon::Exclamation});
}

void ReportsScreen::previewSelectedReports()
{
    forEachTickedReport("Preview", [this](const ReportKind& kind, const ReportLines& lines) {
        if (const std::optional<PrinterSetup> setup = setUpPrinter(m_platform, false, kind.orientation))
            m_platform.printer.preview(textPrintout(kind.name, lines, *setup, m_platform.printer));
    });
}

void ReportsScreen::saveSelectedReportsAsPdf()
{
    forEachTickedReport("Save as PDF",
                        [this](const ReportKind& kind, const ReportLines& lines) { saveAsPdf(kind, lines); });
}

void ReportsScreen::saveAsPdf(const ReportKind& kind, const ReportLines& lines)
{
    const auto file = choosePdf(std::string{"Save as PDF: "} + kind.name, withoutEnding(kind.file) + kPdfEnding);
    if (!file)
        return;
    const std::optional<PrinterSetup> setup = setUpPrinter(m_platform, false, kind.orientation);
    if (!setup)
        return;
    deliverBusily(kind.name, [&] {
        return m_platform.printer.savePdf(textPrintout(kind.name, lines, *setup, m_platform.printer), *file);
    });
}

/// @returns the file to write, its name ending in .PDF; nothing when the person does not want it after all
std::optional<std::filesystem::path> ReportsScreen::choosePdf(const std::string& dialogCaption,
                                                              const std::string& proposedName)
{
    std::optional<std::filesystem::path> file =
        m_platform.dialogs.saveFile({dialogCaption, "PDF files (*.PDF)", "*.PDF", m_folder.folder(), proposedName});
    if (!file)
        return std::nullopt;
    if (!endsWithFolded(file->filename().string(), kPdfEnding))
        *file += kPdfEnding;
    std::error_code unknown;
    if (!std::filesystem::exists(*file, unknown))
        return file;
    const ui::Answer answer = m_platform.dialogs.show(
        {"", "Do you want to replace the existing file ?\r\n" + shown(*file), ui::Buttons::YesNo, ui::Icon::Question});
    return answer == ui::Answer::Yes ? file : std::nullopt;
}

void ReportsScreen::previewBoard() { m_platform.printer.preview(boardPrintout()); }

void ReportsScreen::saveBoardAsPdf()
{
    const auto file = choosePdf("Save Board as PDF", "Bracket.PDF");
    if (file && !m_platform.printer.savePdf(boardPrintout(), *file))
        showPrintingTrouble(m_platform.dialogs);
}

ui::DrawingPrintout ReportsScreen::boardPrintout() const
{
    return {"Tallyhoop", m_board.drawing(), ui::Orientation::Landscape};
}

} // namespace tallyhoop
