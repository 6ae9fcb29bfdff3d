// screens/setup/team_name_editor.h - the list of team names from its file to the screen, its changes, and back.
#pragma once

#include "files/data_folder.h"
#include "files/known_files.h"
#include "screens/setup/team_name_list.h"
#include "ui/control.h"
#include "ui/platform.h"

namespace tallyhoop {

class TeamNameEditor
{
public:
    /// @param list shows the names; its selected row is the one to be changed or deleted
    TeamNameEditor(const DataFolder& folder, const ui::Platform& platform, ui::ListBox& list)
        : m_folder{folder}, m_platform{platform}, m_dialogs{platform.dialogs}, m_list{list}
    {
    }

    TeamNameList& names() { return m_names; }

    /// Whether NCAALIST.THS was there and whole.
    bool isRead() const { return m_isRead; }

    /// Whether NCAALIST.THS is there, and names that it may hold are not in the list: it could not be read, has no
    /// markers, or goes on after an empty line, which ends the list.
    bool isDamaged() const { return m_isDamaged; }

    /// Reads the file, or says why it cannot be read.
    void load();

    /// Ask for a name, or whether the selected one is to go, and do it.
    void add();
    void change();
    void remove();

    /// Asks whether changes are to be saved, if there are any, and writes the file. After any answer there are none.
    /// A damaged file is kept in a dated subfolder before it is replaced; a message says where.
    /// @returns false when the file could not be written; then nothing has changed
    bool saveChanges();

    void showState() { m_list.rows = m_names.rows(); }

private:
    const DataFolder& m_folder;
    const ui::Platform& m_platform;
    ui::Dialogs& m_dialogs;
    ui::ListBox& m_list;
    KnownFiles m_known; ///< the file as it was read
    TeamNameList m_names;
    bool m_isRead = false;
    bool m_isDamaged = false;
};

} // namespace tallyhoop
