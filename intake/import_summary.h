// intake/import_summary.h - the one text at the end of an import.
#pragma once

#include "intake/importing.h"

#include <string>

namespace tallyhoop {

/// @returns what was written and what was not, with the reasons; lines separated by CR LF, none after the last
std::string summaryOf(const Review& review, const ImportOutcome& outcome);

} // namespace tallyhoop
