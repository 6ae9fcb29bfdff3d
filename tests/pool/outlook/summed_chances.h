// tests/pool/outlook/summed_chances.h - the chances of every outcome added up one by one, to check the outlook against.
#pragma once

#include "pool/outlook/chances.h"
#include "pool/outlook/contest.h"
#include "pool/outlook/first_places.h"

namespace tallyhoop::test {

/// Some chance for every pairing, 0 and 1 among them.
double someChance(std::size_t game, TeamNumber upper, TeamNumber lower);

/// @param contest one or more players
ChanceOutlook summedChances(const Contest& contest, const UpperChance& upperChance);

} // namespace tallyhoop::test
