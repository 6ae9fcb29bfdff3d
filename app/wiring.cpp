#include "app/wiring.h"

#include "bracket/frmPoolMain.h"
#include "ui/qt/views/board_view.h"

#include <memory>

namespace tallyhoop {

void registerScreens(qt::ScreenHost& host, const DataFolder& folder, const ui::Platform& platform, modTallyhoop& state)
{
    host.registerScreen<frmPoolMain>(
        ScreenKind::Board, qt::Placement::Stacked,
        [&](Opening opening) { return std::make_unique<frmPoolMain>(folder, platform, state, host, opening); },
        [](frmPoolMain& board, qt::Desk& desk) { return std::make_unique<qt::BoardView>(board, desk); });
}

} // namespace tallyhoop
