// screens/outlook/game_swings.h - whom to root for: what each open game means to a player, and to the pool.
#pragma once

#include "pool/field.h"
#include "pool/outlook/contest.h"
#include "pool/outlook/first_places.h"

#include <cstddef>
#include <string>
#include <vector>

namespace tallyhoop {

/// What is known of the two sides of an open game.
struct OpenGame {
    Position game{};
    std::string upper; ///< in words: see openGamesOf()
    std::string lower;
    bool isNext = false;    ///< both teams are known: it can be played
    std::string round = {}; ///< which game it is, where the teams do not say that; else empty

    friend bool operator==(const OpenGame&, const OpenGame&) = default;
};

/// Names the open games as people do. A side of up to two teams is named after them, "Duke" or "Duke / Kansas"; one of
/// more than two after the part of the bracket that it comes from: "West 2nd quarter", "West upper half",
/// "West winner", "West / East winner". A game with such a side is called after its round, without the teams:
/// "West upper semi-final", "West final", "Semi-final: West - East", "Final".
/// @param field names the regions
/// @returns in the order of OpenGames::games()
std::vector<OpenGame> openGamesOf(const OpenGames& games, const Field& field);

/// A swing of less rounds to nothing.
inline constexpr double kLeastSwing = 0.05;

/// How much more of first place a player has when the upper side wins than when the lower one does, in percent:
/// 31.2 = root for the upper side, -31.2 = for the lower one. In the order of OpenGames::games().
/// @pre the chances are those of this contest
std::vector<double> swingsFor(std::size_t player, const ChanceOutlook& chances);

/// What an open game means to all players together.
struct GameWeight {
    std::size_t openGame = 0; ///< index in OpenGames::games()
    double swing = 0;         ///< the sum of the players' swings without their signs, in percent
};

/// The games that matter, those that matter most first; of equal ones the earlier game first.
std::vector<GameWeight> weightsOf(const ChanceOutlook& chances);

} // namespace tallyhoop
