// cli/json.h - figures as JSON; docs/cli.md and docs/schemas/ say what programs can rely on.
//
// Each is one object in UTF-8, ended by a line break.
#pragma once

#include "output/outlook_making.h"
#include "pool/entry.h"
#include "pool/scoring.h"
#include "reports/final_sheet.h"

#include <span>
#include <string>
#include <string_view>

namespace tallyhoop::cli {

/// @returns the standings in the order of the report
std::string standingsJson(std::string_view title, std::span<const PlayerScore> scores);

/// @returns the list of all scores in its order
std::string scoresJson(std::span<const PlayerScore> scores);

/// @param entries those that the outlook was made of
std::string outlookJson(const MadeOutlook& outlook, std::span<const Entry> entries);

/// @param entries those that the sheet was made of
std::string finalJson(std::string_view title, const FinalSheet& sheet, std::span<const Entry> entries);

} // namespace tallyhoop::cli
