// reports/report_table.cpp - one row per report; a new report is a new row and a new pair of files.
// Texts are kept letter for letter, odd spellings included.
#include "reports/report_table.h"

namespace tallyhoop {

const std::array<ReportKind, kReports>& reportTable()
{
    static const std::array<ReportKind, kReports> table{{
        {ReportId::TournamentStandings, "RPTOPT1.TXT", PageOrientation::Landscape, "Tournament Standings (RPTOPT1.TXT)",
         "Tournament Standings", "Tallyhoop - frmPoolReports, Tournament Standings",
         "Who leads, who can still win, and with which champion."},
        {ReportId::PlayerListing, "RPTOPT2.TXT", PageOrientation::Landscape, "Player Listing (RPTOPT2.TXT)",
         "Player Listing", "TALLYHOOP - frmPoolReports, Player Listing",
         "The player list: names, files, e-mail addresses and phone numbers."},
        {ReportId::TeamSelectionSummary, "RPTOPT3.TXT", PageOrientation::Portrait,
         "Team Selection Summary (RPTOPT3.TXT)", "Team Selection Summary",
         "Tallyhoop - frmPoolReports, Team Selection Summary", "How many players send each team into each round."},
        {ReportId::TeamSelectionDetail, "RPTOPT4.TXT", PageOrientation::Portrait, "Team Selection Detail (RPTOPT4.TXT)",
         "Team Selection Detail", "Tallyhoop - frmPoolReports, Team Selection Detail",
         "Which players send each team into each round."},
        {ReportId::PlayerSelectionDetail, "RPTOPT5.TXT", PageOrientation::Landscape,
         "Player Selection Detail (RPTOPT5.TXT)", "Player Selection Detail",
         "Tallyhoop - frmPoolReports, Player Selection Detail", "Every player's bracket, each on a page of its own."},
        {ReportId::ResultsByPlayer, "RPTOPT6.TXT", PageOrientation::Portrait,
         "Projected Results by Player (RPTOPT6.TXT)", "Projected Results by Player",
         "Tallyhoop - frmPoolReports, Results by Player",
         "Each player's points for every way the last three games can end."},
        {ReportId::ResultsByTeam, "RPTOPT7.TXT", PageOrientation::Portrait, "Projected Results by Team (RPTOPT7.TXT)",
         "Projected Results by Team", "Tallyhoop - frmPoolReports, Results by Team",
         "Who wins the pool if this or that team wins the tournament."},
    }};
    return table;
}

const ReportKind& reportKind(ReportId id) { return reportTable()[static_cast<std::size_t>(id)]; }

} // namespace tallyhoop
