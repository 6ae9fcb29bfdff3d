// pool/entry.h - a bracket with a name on it, and a pool of them.
#pragma once

#include "base/result.h"
#include "pool/field.h"

#include <optional>
#include <string>
#include <vector>

namespace tallyhoop {

/// One player's picks; the results have the same shape. Texts are kept exactly as typed.
struct Entry {
    Bracket picks;
    std::string initials;
    std::string name;
    std::string finalPoints; ///< the predicted total of the final game, the tie-breaker; empty = none
    std::string fileName;    ///< the file it came from, as listed; empty = none

    friend bool operator==(const Entry&, const Entry&) = default;
};

/// Everything that a standing or a projection is made of.
struct Pool {
    Field field;
    std::optional<Entry> results; ///< nothing = none entered yet
    std::vector<Entry> entries;   ///< in the order of their file names
    std::vector<Failure> trouble; ///< what could not be read, or not whole; what was read is there
};

} // namespace tallyhoop
