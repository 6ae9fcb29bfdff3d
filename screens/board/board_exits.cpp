// screens/board/board_exits.cpp - which screens close before another one opens.
#include "screens/board/board_exits.h"

#include "screens/demo_mode.h"
#include "screens/help_display.h"

#include <optional>

namespace tallyhoop {

BoardExits::BoardExits(const DataFolder& folder, const ui::Platform& platform, Screens& screens)
    : m_folder{folder}, m_platform{platform}, m_screens{screens}
{
}

void BoardExits::toPlayers()
{
    m_screens.unload(ScreenKind::Scores);
    m_screens.load(ScreenKind::Players);
}

void BoardExits::toSetup()
{
    m_screens.unload(ScreenKind::Scores);
    m_screens.unload(ScreenKind::Board);
    m_screens.load(ScreenKind::Setup);
}

void BoardExits::toReports()
{
    m_screens.unload(ScreenKind::Scores);
    m_screens.load(ScreenKind::Reports);
}

void BoardExits::toOutlook()
{
    m_screens.unload(ScreenKind::Scores);
    m_screens.load(ScreenKind::Outlook);
}

void BoardExits::toEntryForm()
{
    m_screens.unload(ScreenKind::Scores);
    m_screens.load(ScreenKind::EntryForm);
}

void BoardExits::toImport()
{
    m_screens.unload(ScreenKind::Scores);
    m_screens.load(ScreenKind::Import);
}

void BoardExits::toMoney()
{
    m_screens.unload(ScreenKind::Scores);
    m_screens.load(ScreenKind::Money);
}

void BoardExits::toDemo()
{
    if (!enterDemo(m_folder, m_platform))
        return;
    m_screens.unload(ScreenKind::Scores);
    toFreshBoard({});
}

void BoardExits::fromDemo()
{
    m_screens.unload(ScreenKind::Scores);
    if (const std::optional<std::string> news = leaveDemo(m_folder, m_platform))
        toFreshBoard(*news);
}

void BoardExits::toFreshBoard(const std::string& news)
{
    m_screens.unload(ScreenKind::Board);
    m_screens.load(ScreenKind::Board, news);
}

void BoardExits::toHelp(const std::string& topic) { showHelp(m_folder, m_platform, topic); }

} // namespace tallyhoop
