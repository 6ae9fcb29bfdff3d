// reports/team_selection_detail.h - for each team, the players who send it on, and how far.
#pragma once

#include "reports/team_selection.h"
#include "ui/dialogs.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tallyhoop {

/// Writes the detail report. The fields hold what the next row is made of.
class TeamSelectionDetailWriter
{
public:
    explicit TeamSelectionDetailWriter(std::string_view title) : m_title{title} {}

    std::string team;        ///< empty before the first team
    std::string playerLabel; ///< cut or padded to its column
    CategoryCounts counts{}; ///< emptied by each row

    /// "Open" starts a report, "Output" writes a player's row (with the page head and the team's line where they are
    /// due), "Close" ends the report.
    /// @returns the message that says why it failed; nothing = success
    std::optional<ui::Message> WriteTmSelDetail(std::string_view option);

    /// @returns the lines written since "Open"
    ReportLines takeLines() { return std::move(m_lines); }

private:
    void open();
    Result<Done> output();
    Result<Done> startPage();
    Result<Done> writeTeam();

    std::string_view m_title;
    ReportLines m_lines;
    std::string m_lastTeam;
    int m_lineOfPage = 0;
    bool m_isFirstPage = true;
};

/// What became of the detail report: its lines, or the message that says why there are none.
struct TeamSelectionDetail {
    ReportLines lines;
    std::optional<ui::Message> trouble;
};

/// Lays out the detail.
/// @param entries as pickEntries() gives them; none gives one page head alone
TeamSelectionDetail teamSelectionDetail(std::string_view title, const std::vector<std::string>& entries);

} // namespace tallyhoop
