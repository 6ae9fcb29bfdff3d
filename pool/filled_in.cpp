// pool/filled_in.cpp - counts the games that have a winner.
#include "pool/filled_in.h"

#include <algorithm>

namespace tallyhoop {

int gamesFilledIn(const Bracket& bracket)
{
    return static_cast<int>(
        std::ranges::count_if(gamePositions(), [&](Position game) { return !bracket.isEmpty(game); }));
}

} // namespace tallyhoop
