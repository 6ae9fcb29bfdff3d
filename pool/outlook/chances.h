// pool/outlook/chances.h - how likely the upper team is to win an open game: three ways to say so.
#pragma once

#include "pool/field.h"
#include "pool/outlook/contest.h"

#include <cstddef>
#include <functional>

namespace tallyhoop {

/// The chance that the upper team wins an open game when these two meet in it, 0..1. Needs nothing of what it was made
/// from any longer.
/// @param openGame index in OpenGames::games()
/// @param upper    a team that can come there from above, as known().names() of the OpenGames numbers it; `lower` from
///                 below
using UpperChance = std::function<double(std::size_t openGame, TeamNumber upper, TeamNumber lower)>;

/// Every game is the toss of a coin, so that all outcomes are alike.
UpperChance alikeChances();

/// The better seed wins more often: a beats b with the chance b / (a + b), where a and b are the seeds.
/// @param field has the seeds of its teams, whose names are compared exactly
/// @note One half when one of the two has no seed: its name is on no row of the field or on more than one, or the text
///       of its seed does not begin with a number of 1 to 32767. Equal seeds make one half, too.
UpperChance seedChances(const OpenGames& games, const Field& field);

/// The team wins more often that more players have picked to win this game: u of them the upper one, l the lower one,
/// whatever the others picked. The chance is (u + 1) / (u + l + 2), as if each of the two had one player more. So no
/// team is without a chance because nobody dared to pick it: its floor is 1 / (n + 2) against a team that all n players
/// picked. And where few players are left with a pick, or none, the chance is near one half.
UpperChance pickedChances(const Contest& contest);

/// The three, in the order in which people are offered them.
enum class ChanceKind { Alike, BySeed, AsPicked };

/// @param field has the seeds
UpperChance chancesOf(ChanceKind kind, const Contest& contest, const Field& field);

} // namespace tallyhoop
