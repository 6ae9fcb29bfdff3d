// screens/reports/report_maker.h - makes any of the seven reports under a progress window, and names damaged files.
#pragma once

#include "files/data_folder.h"
#include "output/report_making.h"
#include "ui/platform.h"

#include <span>
#include <string>
#include <variant>

namespace tallyhoop {

/// Why there is no report.
struct NoReport {
    ui::Message message;
    WithoutReport consequence = WithoutReport::Untick;
};

/// A report's lines, or why there are none.
using MadeReport = std::variant<ReportLines, NoReport>;

/// @returns the message that ends a report which cannot be made
/// @param reason empty = not known
ui::Message reportFailure(const ReportKind& kind, const std::string& reason);

class ReportMaker
{
public:
    ReportMaker(const DataFolder& folder, const ui::Platform& platform, const Field& field);

    /// Makes a report. Damaged files are named by messages of their own while it is made; a failure of the report
    /// itself is left to the caller to show. Writes nothing.
    /// @param title as it is on the screen
    /// @param files every player's file, in list order
    MadeReport make(const ReportKind& kind, const std::string& title, std::span<const FolderFile> files);

    /// Makes a report's table for spreadsheets, likewise.
    /// @pre csvFileOf(kind.id) has a name
    std::variant<std::string, NoReport> makeCsv(const ReportKind& kind, std::span<const FolderFile> files);

private:
    const DataFolder& m_folder;
    const ui::Platform& m_platform;
    const Field& m_field;
};

} // namespace tallyhoop
