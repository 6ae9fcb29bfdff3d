#include "app/wiring.h"

#include "bracket/frmPoolMain.h"
#include "players/frmPoolEMail.h"
#include "players/frmPoolNames.h"
#include "reports/frmPoolReports.h"
#include "scoring/frmPoolMisc.h"
#include "setup/frmPoolEntry.h"
#include "setup/frmPoolSeatings.h"
#include "ui/qt/views/board_view.h"
#include "ui/qt/views/email_view.h"
#include "ui/qt/views/player_names_view.h"
#include "ui/qt/views/reports_view.h"
#include "ui/qt/views/score_display_view.h"
#include "ui/qt/views/seed_positions_view.h"
#include "ui/qt/views/setup_view.h"

#include <memory>

namespace tallyhoop {

namespace {

/// Makes the view of a screen; every view takes its screen and the desk.
template <class View, class Kind>
auto shownBy()
{
    return [](Kind& screen, qt::Desk& desk) { return std::make_unique<View>(screen, desk); };
}

} // namespace

void registerScreens(qt::ScreenHost& host, const DataFolder& folder, const ui::Platform& platform, modTallyhoop& state)
{
    using qt::Placement;
    // Screens that work on the board or on the setup are loaded while it is, and unloaded before it.
    const auto board = [&host]() -> BracketBoard& { return *host.find<frmPoolMain>(ScreenKind::Board); };
    const auto setup = [&host]() -> frmPoolEntry& { return *host.find<frmPoolEntry>(ScreenKind::Setup); };

    host.registerScreen<frmPoolMain>(
        ScreenKind::Board, Placement::Stacked,
        [&](Opening opening) { return std::make_unique<frmPoolMain>(folder, platform, state, host, opening); },
        shownBy<qt::BoardView, frmPoolMain>());
    host.registerScreen<frmPoolMisc>(
        ScreenKind::ScoreDisplay, Placement::OwnWindow,
        [&, board](Opening) { return std::make_unique<frmPoolMisc>(folder, platform, state, host, board()); },
        shownBy<qt::ScoreDisplayView, frmPoolMisc>());
    host.registerScreen<frmPoolEntry>(
        ScreenKind::Setup, Placement::Stacked,
        [&](Opening opening) { return std::make_unique<frmPoolEntry>(folder, platform, state, host, opening); },
        shownBy<qt::SetupView, frmPoolEntry>());
    host.registerScreen<frmPoolSeatings>(
        ScreenKind::SeedPositions, Placement::Modal,
        [&, setup](Opening) { return std::make_unique<frmPoolSeatings>(setup(), platform, state, host); },
        shownBy<qt::SeedPositionsView, frmPoolSeatings>());
    host.registerScreen<frmPoolReports>(
        ScreenKind::Reports, Placement::Stacked,
        [&, board](Opening) { return std::make_unique<frmPoolReports>(folder, platform, state, host, board()); },
        shownBy<qt::ReportsView, frmPoolReports>());
    host.registerScreen<frmPoolNames>(
        ScreenKind::PlayerNames, Placement::Stacked,
        [&](Opening) { return std::make_unique<frmPoolNames>(folder, platform, state, host); },
        shownBy<qt::PlayerNamesView, frmPoolNames>());
    host.registerScreen<frmPoolEMail>(
        ScreenKind::EMail, Placement::Modal,
        [&](Opening) { return std::make_unique<frmPoolEMail>(folder, platform, state, host); },
        shownBy<qt::EmailView, frmPoolEMail>());
}

} // namespace tallyhoop
