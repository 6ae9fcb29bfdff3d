// app/wiring.cpp - one entry for each screen: where it is placed, how it is made, which view shows it.
#include "app/wiring.h"

#include "qt/views/board_view.h"
#include "qt/views/email_view.h"
#include "qt/views/players_view.h"
#include "qt/views/reports_view.h"
#include "qt/views/scores_view.h"
#include "qt/views/seeds_view.h"
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

void registerScreens(qt::ScreenHost& host, const DataFolder& folder, const ui::Platform& platform, SharedValues& shared)
{
    using qt::Placement;
    // Screens that work on the board or on the setup are loaded while it is, and unloaded before it.
    const auto board = [&host]() -> BoardScreen& { return *host.find<BoardScreen>(ScreenKind::Board); };
    const auto setup = [&host]() -> SetupScreen& { return *host.find<SetupScreen>(ScreenKind::Setup); };

    host.registerScreen<BoardScreen>(
        ScreenKind::Board, Placement::Stacked,
        [&](const std::string& notice) {
            return std::make_unique<BoardScreen>(
                folder, platform, host, BoardScreen::Shared{shared.field, shared.savedPlayer, shared.listedVerdicts},
                notice);
        },
        shownBy<qt::BoardView, BoardScreen>());
    host.registerScreen<ScoresScreen>(
        ScreenKind::Scores, Placement::OwnWindow,
        [&, board](const std::string&) {
            return std::make_unique<ScoresScreen>(folder, platform, host, shared.field, board().bracket(),
                                                  shared.listedVerdicts);
        },
        shownBy<qt::ScoresView, ScoresScreen>());
    host.registerScreen<SetupScreen>(
        ScreenKind::Setup, Placement::Stacked,
        [&](const std::string& notice) {
            return std::make_unique<SetupScreen>(folder, platform, host, shared.field, notice);
        },
        shownBy<qt::SetupView, SetupScreen>());
    host.registerScreen<SeedsScreen>(
        ScreenKind::Seeds, Placement::Modal,
        [&, setup](const std::string&) {
            return std::make_unique<SeedsScreen>(setup().teamsOfFirstRegion(), setup().seeds(), platform.dialogs, host);
        },
        shownBy<qt::SeedsView, SeedsScreen>());
    host.registerScreen<ReportsScreen>(
        ScreenKind::Reports, Placement::Stacked,
        [&, board](const std::string&) {
            return std::make_unique<ReportsScreen>(folder, platform, host, shared.field, shared.mailDraft, board());
        },
        shownBy<qt::ReportsView, ReportsScreen>());
    host.registerScreen<PlayersScreen>(
        ScreenKind::Players, Placement::Stacked,
        [&](const std::string&) { return std::make_unique<PlayersScreen>(folder, platform, host, shared.savedPlayer); },
        shownBy<qt::PlayersView, PlayersScreen>());
    host.registerScreen<EmailScreen>(
        ScreenKind::Email, Placement::Modal,
        [&](const std::string&) { return std::make_unique<EmailScreen>(folder, platform, host, shared.mailDraft); },
        shownBy<qt::EmailView, EmailScreen>());
}

} // namespace tallyhoop
