// intake/game_words.h - what people call a game.
#pragma once

#include "pool/field.h"

#include <string>

namespace tallyhoop {

/// @returns such as "West, round 2, game 1", "semifinal 2" and "final"; "region 3" for a region without a title
std::string gameWords(const Field& field, Game game);

} // namespace tallyhoop
