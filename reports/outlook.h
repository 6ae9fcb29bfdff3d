// reports/outlook.h - the outlook as a text report.
#pragma once

#include "reports/outlook_rows.h"
#include "reports/report_layout.h"

#include <span>
#include <string>
#include <vector>

namespace tallyhoop {

inline constexpr const char* kOutlookFile = "OUTLOOK.TXT";  ///< bare name of the report's text file
inline constexpr const char* kOutlookName = "Pool Outlook"; ///< as people call it

/// What every output of an outlook says above its rows.
struct OutlookHeading {
    std::string title;               ///< of the field
    std::vector<std::string> whatIf; ///< see whatIfInWords(); empty = the results are those entered
    std::vector<std::string> basis;  ///< see basisInWords()
};

/// Lays the report out.
/// @param heading on every page; its title is centred, and one that is too wide starts at the left edge
/// @param rows    in the order in which they are to be printed; none = no lines
ReportLines outlookLines(const OutlookHeading& heading, std::span<const OutlookRow> rows);

} // namespace tallyhoop
