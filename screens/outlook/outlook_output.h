// screens/outlook/outlook_output.h - the ways out of the outlook: a text report, paper, a PDF file, the clipboard.
#pragma once

#include "files/data_folder.h"
#include "screens/outlook/outlook_sheet.h"
#include "ui/platform.h"

#include <string>

namespace tallyhoop {

/// Takes the outlook as it is shown. Each way returns a sentence for the status line, empty when a message has said
/// what there is to say or the person has cancelled it.
class OutlookOutput
{
public:
    /// @param folder of the pool: all that is ever written there is kOutlookFile
    OutlookOutput(const DataFolder& folder, const ui::Platform& platform) : m_folder{folder}, m_platform{platform} {}

    std::string saveReport(const OutlookSheet& sheet) const;

    /// On a printer that the person chooses.
    std::string print(const OutlookSheet& sheet) const;

    std::string preview(const OutlookSheet& sheet) const;
    std::string savePdf(const OutlookSheet& sheet) const;
    std::string saveCsv(const OutlookSheet& sheet) const;
    std::string copy(const OutlookSheet& sheet) const;

private:
    ui::DrawingPrintout printoutOf(const OutlookSheet& sheet) const;

    const DataFolder& m_folder;
    const ui::Platform& m_platform;
};

/// @returns the table for a spreadsheet, after a line that says what it is: cells separated by tabs, figures as numbers
std::string outlookForSpreadsheets(const OutlookSheet& sheet);

} // namespace tallyhoop
