// reports/report_table.h - the seven text reports: their files, pages and titles.
#pragma once

#include <array>
#include <cstddef>

namespace tallyhoop {

enum class ReportId {
    TournamentStandings,
    PlayerListing,
    TeamSelectionSummary,
    TeamSelectionDetail,
    PlayerSelectionDetail,
    ResultsByPlayer,
    ResultsByTeam,
};

inline constexpr std::size_t kReports = 7;

enum class PageOrientation { Portrait, Landscape };

/// One text report. Its place in the table is its place among the check boxes.
struct ReportKind {
    ReportId id;
    const char* file; ///< bare name of its text file
    PageOrientation orientation;
    const char* caption;      ///< its check box
    const char* name;         ///< as people call it
    const char* failureTitle; ///< caption of the message when it cannot be made
    const char* explanation;  ///< what it says, in one sentence
};

const std::array<ReportKind, kReports>& reportTable();

/// @returns the report's row of the table
const ReportKind& reportKind(ReportId id);

} // namespace tallyhoop
