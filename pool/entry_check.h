// pool/entry_check.h - what an entry must have before it is saved.
#pragma once

#include "pool/entry.h"

#include <optional>
#include <vector>

namespace tallyhoop {

enum class EntryKind { Player, Results };

/// What is missing or impossible.
enum class EntryFault {
    Initials,    ///< blank: empty, or begins with a blank
    Name,        ///< blank likewise
    FinalPoints, ///< not 50..250; results may be saved before the final is played, so only the upper bound holds for
                 ///< them
};

/// @returns every fault, in this order
std::vector<EntryFault> entryFaults(const Entry& entry, EntryKind kind);

/// @returns the first fault in this order; nothing when the entry may be saved. Games without a pick are no fault.
std::optional<EntryFault> entryFault(const Entry& entry, EntryKind kind);

} // namespace tallyhoop
