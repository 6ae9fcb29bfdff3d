// pool/results.h - the entry that holds what really happened.
#pragma once

#include "pool/entry.h"

namespace tallyhoop {

/// @returns the results before the first game: the field's teams, and the initials and name that all results have
Entry newResults(const Field& field);

/// Results from a damaged file may lack what saving needs.
/// @returns them with blank initials, a blank name and empty first-round rows filled in as in new results; the rest
///          stays
Entry completedResults(Entry results, const Field& field);

} // namespace tallyhoop
