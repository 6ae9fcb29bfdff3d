// screens/demo_mode.h - a complete sample pool, put in place by a separate installer and taken away again.
#pragma once

#include "files/data_folder.h"
#include "ui/platform.h"

#include <filesystem>
#include <optional>
#include <string>

namespace tallyhoop {

/// Copies what clearDemoDataFiles() is about to delete into a dated subfolder, each file whole: all that the demo did
/// not bring as it is now. The settings of demo mode and a player list without players are nothing to keep.
/// @returns the subfolder; nothing when there is nothing to keep; or a failure, with nothing changed
Result<std::optional<std::filesystem::path>> keepOwnFiles(const DataFolder& folder, const ui::Clock& clock);

/// Deletes the results and player files, the sample selections, the setup and at last the settings, as far as they
/// exist.
/// @returns a failure naming the first file that could not be deleted; those after it stay. So does demo mode, and
///          leaving it can be tried again
Result<Done> clearDemoDataFiles(const DataFolder& folder);

/// Keeps the person's own files, clears the data files, starts the installer, waits for the person's OK and for the
/// sample pool, and says where the own files are. When the installer cannot be started, the folder cannot be written or
/// a file cannot be kept, says so and deletes nothing. When the sample pool does not come, deletes what came of it,
/// puts the own files back, and says so.
/// @returns whether files were deleted or written, so that the screen is to be loaded again
bool startDemo(const DataFolder& folder, const ui::Platform& platform);

/// The question before demo mode is entered. @returns as startDemo(); false when the person does not want it
bool enterDemo(const DataFolder& folder, const ui::Platform& platform);

/// Deletes the sample pool and says that normal operation follows, and where what the person has changed meanwhile is
/// kept. When that cannot be kept, says so and deletes nothing. When a file cannot be deleted, demo mode stays on, and
/// what the person has changed is kept only if some of it was deleted before.
/// @returns a sentence for the status line of the screen that is to be loaded again, empty for none; nothing when demo
///          mode was not left
std::optional<std::string> leaveDemo(const DataFolder& folder, const ui::Platform& platform);

} // namespace tallyhoop
