// screens/board/pool_copy.h - a dated copy of the whole pool inside its folder.
#pragma once

#include "files/data_folder.h"
#include "ui/platform.h"

#include <string>

namespace tallyhoop {

/// Copies the field, the results, the lists and all selections into a new folder. What went wrong is shown.
/// @returns what was done, for the status line
std::string backUpPool(const DataFolder& folder, const ui::Platform& platform);

} // namespace tallyhoop
