// screens/outlook/game_swings.h - whom to root for: what each open game means to a player, and to the pool.
#pragma once

#include "pool/field.h"
#include "pool/outlook/contest.h"
#include "pool/outlook/figures.h"

#include <cstddef>
#include <span>
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

/// How much more of first place a player has when the upper side wins than when the lower one does, in percentage
/// points: 31.2 = root for the upper side, -31.2 = for the lower one; 0 also for what is within the error of a
/// forecast. In the order of OpenGames::games().
/// @pre the figures have chances, which are those of this contest
std::vector<double> swingsFor(std::size_t player, const OutlookFigures& figures);

/// What an open game means to all players together.
struct GameWeight {
    std::size_t openGame = 0; ///< index in OpenGames::games()
    double swing = 0;         ///< the sum of what swingsFor() says of the players, without signs
    double error = 0;         ///< a bound for the standard error of this sum; 0 = exact
};

/// The games that matter, in the order in which they are listed: those that can be played next first, then the later
/// ones; of these those that matter most first, and of equal ones the earlier game.
/// @param games of the contest, in the order of OpenGames::games()
/// @returns none where the figures have no chances
std::vector<GameWeight> weightsOf(const OutlookFigures& figures, std::span<const OpenGame> games);

} // namespace tallyhoop
