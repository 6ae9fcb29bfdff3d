// screens/open_selection.h - what the import may ask of the board below it.
#pragma once

#include <filesystem>
#include <span>

namespace tallyhoop {

/// Whoever holds it is unloaded before the board.
class OpenSelection
{
public:
    virtual ~OpenSelection() = default;

    /// @returns the file of the selection on the board; empty = it has none, or the board holds the results
    virtual std::filesystem::path openFile() const = 0;

    /// @returns whether there are changes on the board that no file holds
    virtual bool holdsUnsavedChanges() const = 0;

    /// Selections were written. When the open one is among them, the board shows it as it is now; but changes that are
    /// not saved stay, and whoever saves them is asked first.
    virtual void selectionsWereWritten(std::span<const std::filesystem::path> files) = 0;
};

} // namespace tallyhoop
