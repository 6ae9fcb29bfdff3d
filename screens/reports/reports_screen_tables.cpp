// screens/reports/reports_screen_tables.cpp - the ticked reports as tables for spreadsheets.
#include "screens/reports/reports_screen.h"

#include "base/text.h"
#include "reports/csv_tables.h"
#include "screens/saving_as.h"

#include <algorithm>
#include <utility>

namespace tallyhoop {

bool ReportsScreen::isTableTicked() const
{
    return std::ranges::any_of(reportTable(), [this](const ReportKind& kind) {
        return csvFileOf(kind.id) != nullptr && chkOptions[kind.id].ticked;
    });
}

void ReportsScreen::saveSelectedTables()
{
    say({});
    m_refusalTopic.clear();
    listFiles();
    std::vector<std::string> saved;
    for (const ReportKind& kind : reportTable()) {
        const char* const table = csvFileOf(kind.id);
        if (table == nullptr || !chkOptions[kind.id].ticked)
            continue;
        std::variant<std::string, NoReport> made = m_maker.makeCsv(kind, m_files);
        if (const auto* reason = std::get_if<NoReport>(&made)) {
            refuse(kind, *reason);
            if (reason->consequence == WithoutReport::EndRun)
                break;
        } else if (const auto file =
                       saveAs(m_platform, m_folder,
                              {std::string{"Save "} + kind.name + " as CSV", "Tables for spreadsheets (*.CSV)", ".CSV",
                               table, std::get<std::string>(std::move(made))})) {
            saved.push_back(shown(file->filename()));
        }
    }
    if (!saved.empty())
        say("Saved " + joined(saved, ", ") + ".");
}

} // namespace tallyhoop
