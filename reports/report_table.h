// reports/report_table.h - the seven text reports: their keys, files, pages and titles.
#pragma once

#include "ui/dialogs.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

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

/// One text report. Its place in the table is its place among the check boxes.
struct ReportKind {
    ReportId id;
    const char* key;          ///< names the report to the output step
    const char* file;         ///< bare name of its text file
    const char* orientation;  ///< "Landscape" or "Portrait", as the printer set-up reads it
    const char* caption;      ///< its check box
    const char* name;         ///< as people call it
    const char* failureTitle; ///< caption of the message when it cannot be made
    const char* explanation;  ///< what it tells, in one sentence
};

const std::array<ReportKind, kReports>& reportTable();

const ReportKind& reportKind(ReportId id);

/// @returns the report of this key, nullptr when there is none
const ReportKind* findReport(std::string_view key);

/// @returns the message that ends a report which cannot be made
ui::Message reportFailure(const ReportKind& kind, const std::string& reason);

} // namespace tallyhoop
