// screens/board/board_drawing.h - the board as a picture for paper.
#pragma once

#include "ui/drawing.h"

namespace tallyhoop {

class BoardScreen;

/// Draws the board as it is shown, marks included, on a landscape page of 1100 by 800 units.
ui::Drawing drawBoard(const BoardScreen& board);

/// @returns the ground on which a team name of this colour is read comfortably
ui::Colour groundFor(ui::Colour textColour);

} // namespace tallyhoop
