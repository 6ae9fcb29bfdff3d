// pool/outlook/chances.h - how likely the upper team is to win an open game: three ways to say so.
#pragma once

#include "pool/field.h"
#include "pool/outlook/contest.h"

#include <functional>

namespace tallyhoop {

/// The chance that the upper team wins an open game when these two meet in it, 0..1.
/// @param openGame index in OpenGames::games()
using UpperChance = std::function<double(std::size_t openGame, TeamNumber upper, TeamNumber lower)>;

/// Every game is the toss of a coin, so that all outcomes are alike.
UpperChance alikeChances();

/// The better seed wins more often: a beats b with the chance b / (a + b), where a and b are the seeds. One half where
/// a seed is not a number above 0.
UpperChance seedChances(const OpenGames& games, const Field& field);

/// The least part of the players that a team counts as picked by.
inline constexpr double kPickedFloor = 0.02;

/// The team wins more often that more players picked to win this game: u / (u + l), where u and l are the parts of the
/// players who picked the upper and the lower team in it, each at least kPickedFloor. One half without players.
UpperChance pickedChances(const Contest& contest);

} // namespace tallyhoop
