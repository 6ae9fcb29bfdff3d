// pool/filled_in.h - how far a bracket is filled in.
#pragma once

#include "pool/bracket.h"

namespace tallyhoop {

/// @returns how many of the 63 games have a winner
int gamesFilledIn(const Bracket& bracket);

} // namespace tallyhoop
