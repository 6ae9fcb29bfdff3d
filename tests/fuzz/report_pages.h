// tests/fuzz/report_pages.h - what must hold of every report, and its lines page by page.
#pragma once

#include "fuzz/targets.h"
#include "reports/report_layout.h"

#include <cstddef>
#include <vector>

namespace tallyhoop::fuzz {

/// Writes the report as its file and reads it again: it must hold the same lines.
Complaint readsBack(const ReportLines& lines);

/// Splits a report at its form feeds.
std::vector<ReportLines> pagesOf(const ReportLines& lines);

/// @returns the lines below the header of each page
/// @param firstHeader,otherHeaders how many lines the header of the first page, and of every other one, has
ReportLines bodyOf(const ReportLines& lines, std::size_t firstHeader, std::size_t otherHeaders);

/// @returns a complaint when a line is longer
Complaint noLongerThan(std::size_t width, const ReportLines& lines);

} // namespace tallyhoop::fuzz
