// app/wiring.cpp - one case for each screen: where it is placed, how it is made, which view shows it.
#include "app/wiring.h"

#include "qt/services/handed_in_mail.h"
#include "qt/views/board_view.h"
#include "qt/views/email_view.h"
#include "qt/views/entry_form_view.h"
#include "qt/views/import_view.h"
#include "qt/views/money_view.h"
#include "qt/views/outlook_view.h"
#include "qt/views/players_view.h"
#include "qt/views/reports_view.h"
#include "qt/views/scores_view.h"
#include "qt/views/seeds_view.h"
#include "qt/views/setup_view.h"
#include "screens/board/board_screen.h"
#include "screens/entries/entry_form_screen.h"
#include "screens/import/import_screen.h"
#include "screens/money/money_screen.h"
#include "screens/outlook/outlook_screen.h"
#include "screens/players/email_screen.h"
#include "screens/players/players_screen.h"
#include "screens/reports/reports_screen.h"
#include "screens/scores/scores_screen.h"
#include "screens/setup/seeds_screen.h"
#include "screens/setup/setup_screen.h"
#include "ui/background_thread.h"

#include <memory>
#include <stdexcept>
#include <utility>

namespace tallyhoop {

namespace {

using qt::MadeScreen;
using qt::Placement;

/// Makes the screens, each with its view.
class Wiring
{
public:
    Wiring(qt::ScreenHost& host, qt::Desk& desk, const DataFolder& folder, const ui::Platform& platform,
           SharedValues& shared)
        : m_host{host}, m_desk{desk}, m_folder{folder}, m_platform{platform}, m_shared{shared}
    {
    }

    // No default: the compiler names a kind that is forgotten.
    MadeScreen make(ScreenKind kind) const
    {
        switch (kind) {
        case ScreenKind::Board:
            return shownBy<qt::BoardView>(
                Placement::Stacked,
                made<BoardScreen>(BoardScreen::Shared{m_shared.field, m_shared.savedPlayer, m_shared.listedPlayer,
                                                      m_shared.folderTroubleSaid, m_shared.droppedFiles}));
        case ScreenKind::Scores:
            return shownBy<qt::ScoresView>(
                Placement::OwnWindow, made<ScoresScreen>(m_shared.field, board().bracket(), m_shared.listedPlayer));
        case ScreenKind::Setup:
            return shownBy<qt::SetupView>(Placement::Stacked, made<SetupScreen>(m_shared.field));
        case ScreenKind::Seeds:
            return shownBy<qt::SeedsView>(Placement::Modal,
                                          std::make_unique<SeedsScreen>(setup().teamsOfFirstRegion(), setup().seeds(),
                                                                        m_platform.dialogs, m_host));
        case ScreenKind::Reports:
            return shownBy<qt::ReportsView>(Placement::Stacked,
                                            made<ReportsScreen>(m_shared.field, m_shared.mailDraft, board()));
        case ScreenKind::Players:
            return shownBy<qt::PlayersView>(Placement::Stacked,
                                            made<PlayersScreen>(m_shared.savedPlayer, m_shared.field));
        case ScreenKind::Email:
            return shownBy<qt::EmailView>(Placement::Modal, made<EmailScreen>(m_shared.mailDraft));
        case ScreenKind::Outlook:
            return shownBy<qt::OutlookView>(Placement::Stacked,
                                            std::make_unique<OutlookScreen>(m_folder, pool(), m_platform, m_host,
                                                                            std::make_unique<ui::BackgroundThread>()));
        case ScreenKind::EntryForm:
            return shownBy<qt::EntryFormView>(
                Placement::Modal,
                made<EntryFormScreen>(EntryFormScreen::Shared{m_shared.field, m_shared.mailDraft, m_shared.organiser}));
        case ScreenKind::Import:
            return shownBy<qt::ImportView>(
                Placement::Stacked,
                made<ImportScreen>(ImportScreen::Shared{m_shared.field, board(), m_shared.droppedFiles},
                                   qt::takeMailApart));
        case ScreenKind::Money:
            return shownBy<qt::MoneyView>(Placement::Stacked,
                                          std::make_unique<MoneyScreen>(m_folder, pool(), m_platform, m_host));
        }
        throw std::logic_error{"There is no screen of this kind."};
    }

private:
    // Screens that work on the board or on the setup are loaded while it is, and unloaded before it.
    BoardScreen& board() const { return *m_host.find<BoardScreen>(ScreenKind::Board); }
    SetupScreen& setup() const { return *m_host.find<SetupScreen>(ScreenKind::Setup); }

    OpenedPool pool() const { return openPool(m_folder, m_platform, board()); }

    /// Most screens take the folder, the platform and the host first.
    template <class Kind, class... Shared>
    std::unique_ptr<Kind> made(Shared&&... shared) const
    {
        return std::make_unique<Kind>(m_folder, m_platform, m_host, std::forward<Shared>(shared)...);
    }

    /// Every view takes its screen and the desk.
    template <class View, class Kind>
    MadeScreen shownBy(Placement placement, std::unique_ptr<Kind> screen) const
    {
        auto view = std::make_unique<View>(*screen, m_desk);
        return {placement, std::move(screen), std::move(view)};
    }

    qt::ScreenHost& m_host;
    qt::Desk& m_desk;
    const DataFolder& m_folder;
    const ui::Platform& m_platform;
    SharedValues& m_shared;
};

} // namespace

void wireScreens(qt::ScreenHost& host, qt::Desk& desk, const DataFolder& folder, const ui::Platform& platform,
                 SharedValues& shared)
{
    host.make = [wiring = Wiring{host, desk, folder, platform, shared}](ScreenKind kind) { return wiring.make(kind); };
}

} // namespace tallyhoop
