// screens/board/board_history.h - undo and redo on the board: whole boards, because one press can change a whole path.
#pragma once

#include "pool/entry.h"
#include "screens/board/board_picture.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace tallyhoop {

/// Everything on the board that a command of the editing kind can change.
struct BoardSnapshot {
    Entry entry; ///< the picks, and what is typed beside them
    std::optional<ShownScore> score;
    std::filesystem::path openedFile;
    bool resultsMode = false;
    bool unsaved = false;
    int sheet = 0; ///< New takes a fresh one; what is typed, and the file, belong to a sheet, not to its picks
    std::optional<Position> pickedByKey{}; ///< the game that 1 or 2 filled in to make this board; nothing = another way

    friend bool operator==(const BoardSnapshot&, const BoardSnapshot&) = default;
};

class BoardHistory
{
public:
    /// Notes the board as it was before a change; what had been undone can no longer be redone.
    void remember(BoardSnapshot before);

    /// @param current the board as it is now, to be able to come back to it
    /// @returns the board to go back to; nothing when there is none
    std::optional<BoardSnapshot> undo(BoardSnapshot current);
    std::optional<BoardSnapshot> redo(BoardSnapshot current);

    /// The board as it is now was written to a file: it is that of its sheet now, and the sheet's other boards differ
    /// from what the file holds.
    void boardWasSaved(int sheet, const std::filesystem::path& file);

    bool canUndo() const { return !m_past.empty(); }
    bool canRedo() const { return !m_future.empty(); }
    void clear();

private:
    std::vector<BoardSnapshot> m_past;   ///< oldest first
    std::vector<BoardSnapshot> m_future; ///< next one last
};

} // namespace tallyhoop
