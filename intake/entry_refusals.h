// intake/entry_refusals.h - why an entry that was handed in is not taken.
#pragma once

#include "intake/handed_in.h"

#include <string>
#include <vector>

namespace tallyhoop {

/// @returns every reason, those of its reader first, a sentence each; empty for an entry that may be taken. Games
///          without a pick are no reason.
std::vector<std::string> refusalsOf(const HandedIn& handedIn, const Field& field);

} // namespace tallyhoop
