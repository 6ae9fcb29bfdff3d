// screens/outlook/outlook_output.cpp - what each way out takes of the outlook, and what has become of it.
#include "screens/outlook/outlook_output.h"

#include "base/lines.h"
#include "base/numbers.h"
#include "reports/csv_tables.h"
#include "reports/score_list.h"
#include "screens/outlook/outlook_words.h"
#include "screens/printouts.h"
#include "screens/reports/report_output.h"
#include "screens/saving_as.h"
#include "screens/spreadsheet.h"

#include <array>
#include <filesystem>
#include <fmt/format.h>

namespace tallyhoop {

namespace {

constexpr const char* kReportTrouble = "Tallyhoop - frmPoolOutlook, cmdSaveReport";

} // namespace

std::string outlookForSpreadsheets(const OutlookSheet& sheet)
{
    std::vector<std::string> about{std::string{kOutlookName} + ": " + sheet.heading.title};
    about.insert(about.end(), sheet.heading.whatIf.begin(), sheet.heading.whatIf.end());
    about.insert(about.end(), sheet.heading.basis.begin(), sheet.heading.basis.end());
    std::string text = tabSeparatedLine(std::array{sentencesOf(about)}) + tabSeparatedLine(outlookCellHeadings());
    for (const OutlookRow& row : sheet.rows)
        text += tabSeparatedLine(outlookCells(row));
    return text;
}

std::string OutlookOutput::saveReport(const OutlookSheet& sheet) const
{
    const std::string bytes = fileOf(outlookLines(sheet.heading, sheet.rows));
    if (const Result<Done> written = m_folder.write(kOutlookFile, bytes); !written) {
        m_platform.dialogs.show({kReportTrouble,
                                 std::string{kOutlookFile} + " could not be written.\r\n" + written.failure().message,
                                 ui::Buttons::Ok, ui::Icon::Critical});
        return {};
    }
    return writtenSentence(std::array{m_folder.pathTo(kOutlookFile)});
}

std::string OutlookOutput::print(const OutlookSheet& sheet) const
{
    if (!m_platform.printer.choosePrinter())
        return {};
    return printOut(m_platform, printoutOf(sheet)).sentence;
}

std::string OutlookOutput::preview(const OutlookSheet& sheet) const
{
    return showPreview(m_platform, m_folder.folder(), {printoutOf(sheet)});
}

std::string OutlookOutput::savePdf(const OutlookSheet& sheet) const
{
    return saveAsPdf(m_platform, m_folder.folder(), {printoutOf(sheet)});
}

std::string OutlookOutput::saveCsv(const OutlookSheet& sheet) const
{
    const bool isSupposed = !sheet.heading.whatIf.empty();
    const auto file = saveAs(m_platform, m_folder,
                             {"Save Pool Outlook as CSV", "Tables for spreadsheets (*.CSV)", ".CSV",
                              isSupposed ? kSupposedOutlookTable : kOutlookTable, outlookCsv(sheet.rows)});
    return file ? "Saved " + shown(file->filename()) + "." : std::string{};
}

std::string OutlookOutput::copy(const OutlookSheet& sheet) const
{
    m_platform.clipboard.put(outlookForSpreadsheets(sheet));
    return "Copied " + counted(sheet.rows.size(), "row", "rows") + ", to be pasted into a spreadsheet.";
}

ui::DrawingPrintout OutlookOutput::printoutOf(const OutlookSheet& sheet) const
{
    return {kOutlookName, drawOutlook(sheet, shortDate(m_platform.clock.today())), ui::Orientation::Portrait};
}

} // namespace tallyhoop
