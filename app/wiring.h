// app/wiring.h - which class stands behind each screen, and what it is handed.
#pragma once

#include "files/data_folder.h"
#include "qt/screen_host.h"
#include "screens/mod_tallyhoop.h"
#include "ui/platform.h"

namespace tallyhoop {

/// Registers every screen with the host. All arguments must outlive the host's screens.
void registerScreens(qt::ScreenHost& host, const DataFolder& folder, const ui::Platform& platform, modTallyhoop& state);

} // namespace tallyhoop
