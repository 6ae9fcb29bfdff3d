// screens/board_printouts.h - what the reports screen may ask of the board below it.
#pragma once

#include "ui/printer.h"

#include <filesystem>

namespace tallyhoop {

/// Whoever holds it is unloaded before the board.
class BoardPrintouts
{
public:
    virtual ~BoardPrintouts() = default;

    /// @returns the board as it is, on one page; its title is whose it is
    virtual ui::DrawingPrintout printout() const = 0;

    /// Puts the results on the board, to be edited. Changes of a selection that are not saved can be undone back to.
    virtual void showGameResults() = 0;

    /// Puts a player's file on the board as opening it does, and marks right and wrong picks.
    virtual void showScored(const std::filesystem::path& file) = 0;

    /// Prints what is on the board.
    virtual void printForm() = 0;

    /// @returns whether results are on the board that no file holds as they are
    virtual bool holdsUnsavedResults() const = 0;

    /// Before the board turns to something else: offers to save such results.
    /// @returns false when it must not, because the person does not want to, or because they could not be saved
    virtual bool mayBeLeft() = 0;

    /// The same before it turns to the results; asks as well before it loads a field that is no longer final.
    virtual bool mayShowGameResults() = 0;
};

} // namespace tallyhoop
