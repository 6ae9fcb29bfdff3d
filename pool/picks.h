// pool/picks.h - the brackets of entries without the names on them.
#pragma once

#include "pool/entry.h"

#include <span>
#include <vector>

namespace tallyhoop {

/// @returns one for each entry, in their order
std::vector<Bracket> picksOf(std::span<const Entry> entries);

} // namespace tallyhoop
