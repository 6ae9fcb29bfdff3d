// screens/setup/setup_history.h - undo and redo on the setup screen: all its texts, as they were before each change.
#pragma once

#include "pool/field.h"

#include <optional>
#include <vector>

namespace tallyhoop {

/// Finds out by itself what has changed: it is shown the texts after every command. Changes of one and the same text
/// that follow one another are one step, so that a name comes back whole and not letter by letter.
class SetupHistory
{
public:
    /// Forgets all steps. @param now what the screen holds; its `finalized` plays no part, here and below
    void begin(Field now);

    /// A command has ended. When it changed anything, what had been undone can no longer be redone.
    /// @returns whether it did
    bool note(Field now);

    /// @returns what the screen is to hold; nothing when there is no such step
    std::optional<Field> undo();
    std::optional<Field> redo();

    bool canUndo() const { return !m_past.empty(); }
    bool canRedo() const { return !m_future.empty(); }

private:
    std::optional<Field> step(std::vector<Field>& from, std::vector<Field>& to);

    Field m_now;
    std::vector<Field> m_past;     ///< oldest first
    std::vector<Field> m_future;   ///< next one last
    std::optional<int> m_lastText; ///< the one text that the last step changed; nothing = several, or it was undone
};

} // namespace tallyhoop
