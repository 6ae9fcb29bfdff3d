// screens/board/board_drawing.h - the board as a picture for paper.
#pragma once

#include "pool/entry.h"
#include "screens/board/board_picture.h"
#include "ui/drawing.h"

#include <optional>

namespace tallyhoop {

/// Draws a board with whose it is, marks included, on a landscape page of 1100 by 800 units.
/// @param player its picks are those of the picture
/// @param score  nothing = not scored
ui::Drawing drawBoard(const BoardPicture& picture, const Entry& player, const std::optional<ShownScore>& score);

} // namespace tallyhoop
