// reports/csv_tables.h - the rows of the standings, the team selections and the outlook as tables for spreadsheets.
//
// A header and a row for each row of the report, in its order; unlike the reports, the tables have names whole that
// hold a separator of the reports' work rows. Comma-separated values as RFC 4180 has them, in UTF-8 with a byte order
// mark; a text that a spreadsheet would take for a formula has an apostrophe before it.
#pragma once

#include "pool/entry.h"
#include "pool/scoring.h"
#include "reports/outlook_rows.h"
#include "reports/report_table.h"

#include <array>
#include <span>
#include <string>
#include <vector>

namespace tallyhoop {

// The names under which the tables are first proposed.
inline constexpr const char* kStandingsTable = "STANDINGS.CSV";
inline constexpr const char* kPicksTable = "PICKS.CSV";
inline constexpr const char* kPicksByPlayerTable = "PICKS-BY-PLAYER.CSV";
inline constexpr const char* kOutlookTable = "OUTLOOK.CSV";
inline constexpr const char* kSupposedOutlookTable = "OUTLOOK-WHAT-IF.CSV"; ///< by other results than those entered

/// @returns the name of a report's table; nullptr for a report that has none
const char* csvFileOf(ReportId report);

std::string standingsCsv(std::span<const PlayerScore> scores);

/// How many players send each team into each round.
std::string picksCsv(std::span<const Entry> entries);

/// Which players do.
std::string picksByPlayerCsv(std::span<const Entry> entries);

/// @param rows in the order in which they are to be
std::string outlookCsv(std::span<const OutlookRow> rows);

/// A row of the outlook as spreadsheets take it: figures without percent signs and, where they can be, as numbers.
using OutlookCells = std::array<std::string, kOutlookColumns + 1>;

/// @returns the headings of these cells
const OutlookCells& outlookCellHeadings();
OutlookCells outlookCells(const OutlookRow& row);

} // namespace tallyhoop
