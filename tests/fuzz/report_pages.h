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

/// @returns the lines below the head of each page
/// @param firstHead,otherHeads how many lines the head of the first page, and of every other one, has
ReportLines bodyOf(const ReportLines& lines, std::size_t firstHead, std::size_t otherHeads);

/// @returns a complaint when a line is longer
Complaint noLongerThan(std::size_t width, const ReportLines& lines);

} // namespace tallyhoop::fuzz
