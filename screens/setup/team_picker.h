// screens/setup/team_picker.h - filling the team boxes: from the list, by typing ahead or with the arrow keys, or
// freely.
#pragma once

#include "pool/position.h"
#include "screens/setup/team_name_list.h"
#include "ui/control.h"
#include "ui/dialogs.h"
#include "ui/keys.h"

#include <string>

namespace tallyhoop {

/// The rules of keyboard, mouse and clipboard for 64 boxes and a list beside them. A box is named by its row of the
/// field.
class TeamPicker
{
public:
    using Boxes = ui::ControlArray<ui::TextBox, kTeams>;

    /// @param list  shows the rows of `names`
    /// @param names gets the names that are typed freely
    TeamPicker(Boxes& boxes, ui::ListBox& list, TeamNameList& names) : m_boxes{boxes}, m_list{list}, m_names{names} {}

    /// Whether names are typed freely instead of picked from the list.
    bool isOverridden() const { return m_isOverridden; }

    /// Changes over, and goes back to the box that had the focus last.
    void toggleOverride();

    /// Empties all boxes and goes to the first.
    void clearBoxes();

    void boxGotFocus(TeamRow box);
    void listPressed() { m_listFillsBox = true; }
    void listLostFocus() { m_listFillsBox = false; }

    /// @returns true when the key was dealt with and must not reach the box or the list
    bool boxKey(TeamRow box, const ui::KeyPress& press);
    bool listKey(const ui::KeyPress& press);

    /// Puts the list's selected name into the box that had the focus last, and goes on to the next.
    void takeSelected();

    /// The person changed a box other than by a key press: cut, undone, dropped into.
    void boxEdited(TeamRow box);

    /// Fills this box and the following ones, one line each, and says which lines it could not enter.
    /// @returns false when the box is to insert the text itself
    bool pasted(TeamRow box, const std::string& text, ui::Dialogs& dialogs);

    /// Marks the box that the list is about to fill, if it is.
    void showState();

private:
    void search(ui::TextBox& box, const ui::KeyPress& press);
    void goToList(TeamRow box, ui::Key key);
    void accept(TeamRow box);

    Boxes& m_boxes;
    ui::ListBox& m_list;
    TeamNameList& m_names;
    bool m_isOverridden = false;
    TeamRow m_lastBox{};         ///< the box that had the focus last
    bool m_listFillsBox = false; ///< the list is about to fill that box
};

} // namespace tallyhoop
