#include "app/wiring.h"

#include "qt/views/board_view.h"
#include "qt/views/email_view.h"
#include "qt/views/player_names_view.h"
#include "qt/views/reports_view.h"
#include "qt/views/score_display_view.h"
#include "qt/views/seed_positions_view.h"
#include "qt/views/setup_view.h"
#include "screens/board/board_screen.h"
#include "screens/players/email_screen.h"
#include "screens/players/players_screen.h"
#include "screens/reports/reports_screen.h"
#include "screens/scores/scores_screen.h"
#include "screens/setup/seeds_screen.h"
#include "screens/setup/setup_screen.h"

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
    const auto board = [&host]() -> BracketBoard& { return *host.find<BoardScreen>(ScreenKind::Board); };
    const auto setup = [&host]() -> SetupScreen& { return *host.find<SetupScreen>(ScreenKind::Setup); };

    host.registerScreen<BoardScreen>(
        ScreenKind::Board, Placement::Stacked,
        [&](Opening opening) { return std::make_unique<BoardScreen>(folder, platform, state, host, opening); },
        shownBy<qt::BoardView, BoardScreen>());
    host.registerScreen<ScoresScreen>(
        ScreenKind::ScoreDisplay, Placement::OwnWindow,
        [&, board](Opening) { return std::make_unique<ScoresScreen>(folder, platform, state, host, board()); },
        shownBy<qt::ScoreDisplayView, ScoresScreen>());
    host.registerScreen<SetupScreen>(
        ScreenKind::Setup, Placement::Stacked,
        [&](Opening opening) { return std::make_unique<SetupScreen>(folder, platform, state, host, opening); },
        shownBy<qt::SetupView, SetupScreen>());
    host.registerScreen<SeedsScreen>(
        ScreenKind::SeedPositions, Placement::Modal,
        [&, setup](Opening) { return std::make_unique<SeedsScreen>(setup(), platform, state, host); },
        shownBy<qt::SeedPositionsView, SeedsScreen>());
    host.registerScreen<ReportsScreen>(
        ScreenKind::Reports, Placement::Stacked,
        [&, board](Opening) { return std::make_unique<ReportsScreen>(folder, platform, state, host, board()); },
        shownBy<qt::ReportsView, ReportsScreen>());
    host.registerScreen<PlayersScreen>(
        ScreenKind::PlayerNames, Placement::Stacked,
        [&](Opening) { return std::make_unique<PlayersScreen>(folder, platform, state, host); },
        shownBy<qt::PlayerNamesView, PlayersScreen>());
    host.registerScreen<EmailScreen>(
        ScreenKind::EMail, Placement::Modal,
        [&](Opening) { return std::make_unique<EmailScreen>(folder, platform, state, host); },
        shownBy<qt::EmailView, EmailScreen>());
}

} // namespace tallyhoop
