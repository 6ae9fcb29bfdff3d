// reports/report_table.cpp - one row per report; a new report is a new row and a new pair of files.
#include "reports/report_table.h"

#include <algorithm>

namespace tallyhoop {

const std::array<ReportKind, kReports>& reportTable()
{
    static const std::array<ReportKind, kReports> table{{
        {ReportId::TournamentStandings, "TournamentStandings", "RPTOPT1.TXT", "Landscape",
         "Tournament Standings (RPTOPT1.TXT)", "Tournament Standings",
         "Tallyhoop - frmPoolReports, Tournament Standings", "Who leads, who can still win, and with which champion."},
        {ReportId::PlayerListing, "PlayerListing", "RPTOPT2.TXT", "Landscape", "Player Listing (RPTOPT2.TXT)",
         "Player Listing", "TALLYHOOP - frmPoolReports, Player Listing",
         "The player list: names, files, e-mail addresses and phone numbers."}, // sic
        {ReportId::TeamSelectionSummary, "TeamSelectionSummary", "RPTOPT3.TXT", "Portrait",
         "Team Selection Summary (RPTOPT3.TXT)", "Team Selection Summary",
         "Tallyhoop - frmPoolReports, Team Selection Summary", "How many players send each team into each round."},
        {ReportId::TeamSelectionDetail, "TeamSelectionDetail", "RPTOPT4.TXT", "Portrait",
         "Team Selection Detail (RPTOPT4.TXT)", "Team Selection Detail",
         "Tallyhoop - frmPoolReports, Team Selection Detail", "Which players send each team into each round."},
        {ReportId::PlayerSelectionDetail, "PlayerSelectionDetail", "RPTOPT5.TXT", "Landscape",
         "Player Selection Detail (RPTOPT5.TXT)", "Player Selection Detail",
         "Tallyhoop - frmPoolReports, Player Selection Detail", "Every player's bracket, each on a page of its own."},
        {ReportId::ResultsByPlayer, "ResultsByPlayer", "RPTOPT6.TXT", "Portrait",
         "Projected Results by Player (RPTOPT6.TXT)", "Projected Results by Player",
         "Tallyhoop - frmPoolReports, Results by Player",
         "Each player's points for every way the last three games can end."},
        {ReportId::ResultsByTeam, "ResultsByTeam", "RPTOPT7.TXT", "Portrait", "Projected Results by Team (RPTOPT7.TXT)",
         "Projected Results by Team", "Tallyhoop - frmPoolReports, Results by Team",
         "Who wins the pool if this or that team wins the tournament."},
    }};
    return table;
}

const ReportKind& reportKind(ReportId id) { return reportTable()[static_cast<std::size_t>(id)]; }

const ReportKind* findReport(std::string_view key)
{
    const auto at =
        std::ranges::find(reportTable(), key, [](const ReportKind& kind) { return std::string_view{kind.key}; });
    return at == reportTable().end() ? nullptr : &*at;
}

ui::Message reportFailure(const ReportKind& kind, const std::string& reason)
{
    return {kind.failureTitle, reason.empty() ? "General Error Condition" : reason, ui::Buttons::Ok,
            ui::Icon::Critical};
}

} // namespace tallyhoop
