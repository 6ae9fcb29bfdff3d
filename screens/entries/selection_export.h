// screens/entries/selection_export.h - all selections of the pool as one table for a spreadsheet.
#pragma once

#include "files/data_folder.h"
#include "pool/field.h"
#include "ui/platform.h"

#include <string>

namespace tallyhoop {

inline constexpr const char* kSelectionTable = "SELECTIONS.CSV"; ///< the name it is first proposed under

/// Writes the selections of the folder, as they are saved, to a file that the person chooses. A message names those
/// that cannot be read, or not whole: they are left out.
/// @returns what was done, for the status line
std::string exportSelections(const DataFolder& folder, const ui::Platform& platform, const Field& field);

} // namespace tallyhoop
