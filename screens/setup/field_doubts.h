// screens/setup/field_doubts.h - what is allowed in a field but seldom meant: repeated teams, and names of the default.
#pragma once

#include "pool/field.h"

#include <optional>
#include <string>

namespace tallyhoop {

/// @returns a sentence for the status line, of bounded length; empty when there are no doubts
std::string doubtsInShort(const Field& field);

/// @returns a line for each repeated team and each row with a default name, the first twenty; empty when there are none
std::string doubtsInFull(const Field& field);

/// @returns the first row that is in doubt, a team's second row where it is repeated; nothing when there are no doubts
std::optional<TeamRow> firstDoubt(const Field& field);

} // namespace tallyhoop
