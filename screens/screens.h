// screens/screens.h - how screens reach one another: opened and closed through Screens, the board through BracketBoard.
#pragma once

#include "base/result.h"
#include "screens/mod_tallyhoop.h"
#include "ui/drawing.h"

#include <array>
#include <cstdint>
#include <filesystem>

namespace tallyhoop {

enum class ScreenKind { Board, ScoreDisplay, Setup, SeedPositions, Reports, PlayerNames, EMail };

/// What happened just before a screen is loaded, where its load must know.
enum class Opening {
    Plain,
    DemoEntered, ///< the sample pool was installed by a command of the screen loaded before
    DemoLeft,    ///< the sample pool was removed by it
};

/// Opens and closes screens. A screen may unload itself: it is destroyed once its command has returned.
class Screens
{
public:
    virtual ~Screens() = default;

    /// Loads a screen and shows it; a modal one returns when it has closed. One that is loaded comes to the front.
    virtual void load(ScreenKind kind, Opening opening = Opening::Plain) = 0;

    /// Unloads a screen; nothing happens when it is not loaded.
    virtual void unload(ScreenKind kind) = 0;

    virtual bool isLoaded(ScreenKind kind) const = 0;
    virtual void bringToFront(ScreenKind kind) = 0;

    /// Unloads every screen, last loaded first, and ends the program.
    virtual void endProgram() = 0;
};

/// Whole points for a right pick in rounds 1..6.
using Payoffs = std::array<std::int16_t, 6>;

/// What other screens may ask of the bracket board. Whoever holds it is unloaded before the board.
class BracketBoard
{
public:
    virtual ~BracketBoard() = default;

    /// Copies the board into the shared selection lines.
    virtual void captureBoard() = 0;

    /// The payoffs as displayed; a failure when one does not fit 16 bits.
    virtual Result<Payoffs> payoffs() const = 0;

    /// Shows the shared verdict on every pick.
    virtual void MarkScores() = 0;
    virtual void ClearMarks() = 0;

    /// While the score display is open the board's fields and labels are disabled, and presses bring it to the front.
    virtual void setScoreDisplayOpen(bool open) = 0;

    virtual void setReportsEnabled(bool enabled) = 0;

    /// The commands of the same names.
    virtual void EnterGameResults() = 0;
    virtual void ScoreSelections() = 0;
    virtual void PrintForm() = 0;

    /// Puts a player's file on the board as opening it does.
    virtual void showSelection(const std::filesystem::path& file) = 0;

    /// @returns the board as a picture
    virtual ui::Drawing drawing() const = 0;
};

} // namespace tallyhoop
