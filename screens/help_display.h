// screens/help_display.h - the help commands of all screens.
#pragma once

#include "files/data_folder.h"
#include "ui/platform.h"

#include <string>

namespace tallyhoop {

/// Shows TALLYHOOP.HLP at a topic; when that fails, the message that says where the file should be.
void showHelp(const DataFolder& folder, const ui::Platform& platform, const std::string& topic);

} // namespace tallyhoop
