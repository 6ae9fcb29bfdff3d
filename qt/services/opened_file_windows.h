// qt/services/opened_file_windows.h - opens files as a double-click does.
//
// Nothing of Qt is in here.
#pragma once

#include "base/result.h"

#include <filesystem>
#include <optional>

namespace tallyhoop::qt {

/// Asks Windows to open a file with the program for its extension.
/// @returns why none has been started
std::optional<Failure> openByItsProgram(const std::filesystem::path& file);

} // namespace tallyhoop::qt
