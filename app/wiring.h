// app/wiring.h - which class stands behind each screen, and what it is handed.
#pragma once

#include "model/data_folder.h"
#include "model/mod_tallyhoop.h"
#include "ui/platform.h"
#include "ui/qt/screen_host.h"

namespace tallyhoop {

/// Registers every screen with the host. All arguments must outlive the host's screens.
void registerScreens(qt::ScreenHost& host, const DataFolder& folder, const ui::Platform& platform, modTallyhoop& state);

} // namespace tallyhoop
