// screens/board/player_strip.h - the strip below the bracket: whose it is, its score, and the organiser's comments.
#pragma once

#include "pool/entry.h"
#include "pool/entry_check.h"
#include "ui/control.h"

#include <functional>

namespace tallyhoop {

/// Which of the fields the person may not edit now.
enum class FieldLock {
    None,
    Player, ///< initials and name: those of the results are fixed
    All,    ///< the picks are marked: nothing can be changed
};

class PlayerStrip
{
    ui::Screen* m_owner; // first: the controls list themselves with it
    std::function<void()> m_edited;

public:
    /// @param edited       the person changed one of the three fields
    /// @param unmarkPicks  the person pressed Default Colors
    PlayerStrip(ui::Screen* owner, std::function<void()> edited, std::function<void()> unmarkPicks);

    ui::TextBox txtComment1{m_owner, "txtComment1"};
    ui::TextBox txtComment2{m_owner, "txtComment2"};
    ui::Label lblPlayerInitials{m_owner, "lblPlayerInitials"};
    ui::Label lblPlayerName{m_owner, "lblPlayerName"};
    ui::Label lblFinalPoints{m_owner, "lblFinalPoints"};
    ui::TextBox txtPlayerInitials{m_owner, "txtPlayerInitials", m_edited};
    ui::TextBox txtPlayerName{m_owner, "txtPlayerName", m_edited};
    ui::TextBox txtFinalPoints{m_owner, "txtFinalPoints", m_edited};
    ui::TextBox txtPointScore{m_owner, "txtPointScore"};
    ui::Command cmdDefaultColors;

    /// @returns the field that a fault is in
    ui::TextBox& boxOf(EntryFault fault);

    /// Shows an entry's texts in the three fields.
    void showPlayer(const Entry& entry);

    /// @returns whether the three fields hold an entry's texts
    bool holdsPlayer(const Entry& entry) const;

    /// @param canUnmark     the picks are marked and Default Colors takes the marks away
    /// @param scoreListOpen nothing on the board can be changed while the list of all scores is open
    void showStrip(const Field& field, FieldLock lock, bool canUnmark, bool scoreListOpen);

    /// Enter moves the focus round the three fields. @returns the next one, nullptr for any other control
    ui::Control* afterEnter(const ui::Control& control);

private:
    void putIntoWords();
};

} // namespace tallyhoop
