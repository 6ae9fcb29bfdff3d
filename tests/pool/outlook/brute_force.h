// tests/pool/outlook/brute_force.h - every outcome scored as a whole bracket, to check the outlook against.
#pragma once

#include "pool/outlook/first_places.h"
#include "pool/outlook/open_games.h"
#include "pool/outlook/place_count.h"
#include "pool/payoffs.h"

#include <vector>

namespace tallyhoop::test {

/// What is counted when every outcome of the open games is scored with score().
struct Counted {
    FirstOutlook firsts;              ///< a witness is the first outcome in which the player is first
    std::vector<PlayerPlaces> places; ///< one for each player
};

Counted countByScoring(const OpenGames& games, const std::vector<Bracket>& picks, const Payoffs& payoffs);

} // namespace tallyhoop::test
