// model/settings_file.h - TALLYHOOP.INI: one line that says whether demo mode is on.
#pragma once

#include "model/data_folder.h"

namespace tallyhoop {

/// Reads TALLYHOOP.INI anew. @returns true when its first line is exactly "1"
bool demoModeIsOn(const DataFolder& folder);

} // namespace tallyhoop
