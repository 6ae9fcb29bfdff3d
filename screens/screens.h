// screens/screens.h - how screens open and close one another.
#pragma once

#include <string>

namespace tallyhoop {

enum class ScreenKind { Board, Scores, Setup, Seeds, Reports, Players, Email, Outlook, EntryForm, Import, Money };

/// Opens and closes screens. A screen may unload itself: it is destroyed once its command has returned.
class Screens
{
public:
    virtual ~Screens() = default;

    /// Loads a screen and shows it; a modal one returns when it has closed. One that is loaded comes to the front.
    /// @param news what the screen says then, of what led to it; empty = nothing
    virtual void load(ScreenKind kind, const std::string& news = {}) = 0;

    /// Unloads a screen; nothing happens when it is not loaded.
    virtual void unload(ScreenKind kind) = 0;

    virtual bool isLoaded(ScreenKind kind) const = 0;
    virtual void bringToFront(ScreenKind kind) = 0;

    /// Unloads every screen, last loaded first, and ends the program.
    virtual void endProgram() = 0;
};

} // namespace tallyhoop
