// files/settings_file.h - TALLYHOOP.INI: one line that says whether demo mode is on.
#pragma once

#include "files/data_folder.h"

#include <string_view>

namespace tallyhoop {

/// @returns true when the first line of a settings file's bytes is exactly "1"
bool settingsSayDemo(std::string_view bytes);

/// Reads TALLYHOOP.INI. @returns true when its first line is exactly "1"
bool demoModeIsOn(const DataFolder& folder);

} // namespace tallyhoop
