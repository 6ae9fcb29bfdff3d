// screens/board/board_exits.h - the ways from the board to the other screens, to help, and out of the program.
#pragma once

#include "files/data_folder.h"
#include "screens/screens.h"
#include "ui/platform.h"

#include <string>

namespace tallyhoop {

/// The list of scores is closed first, wherever a way leads: it works on the board.
class BoardExits
{
public:
    BoardExits(const DataFolder& folder, const ui::Platform& platform, Screens& screens);

    void toPlayers();
    void toSetup();
    void toReports();
    void toOutlook();
    void toEntryForm();
    void toImport();
    void toMoney();

    /// Enters demo mode, or leaves it, and shows what the folder then holds on a fresh board.
    void toDemo();
    void fromDemo();

    void toHelp(const std::string& topic);
    void toAbout() { m_platform.dialogs.about(m_folder.folder()); }
    void endProgram() { m_screens.endProgram(); }

private:
    void toFreshBoard(const std::string& news);

    const DataFolder& m_folder;
    const ui::Platform& m_platform;
    Screens& m_screens;
};

} // namespace tallyhoop
