// screens/demo_mode.h - a complete sample pool, put in place by a separate installer and taken away again.
#pragma once

#include "files/data_folder.h"
#include "screens/screens.h"
#include "ui/platform.h"

#include <array>
#include <filesystem>
#include <optional>
#include <string>

namespace tallyhoop {

/// The sample players' selection files: few, fixed, and unlikely names for real players.
inline constexpr std::array<const char*, 4> kDemoSelectionFiles = {"Demo Favorite_DF.THC", "Demo Halfway_DH.THC",
                                                                   "Demo Longshot_DL.THC", "Demo Prophet_DP.THC"};

/// Copies what clearDemoDataFiles() is about to delete into a dated subfolder, each file whole: all that the demo did
/// not bring as it is now. The settings of demo mode and a player list without players are nothing to keep.
/// @returns the subfolder; nothing when there is nothing to keep; or a failure, with nothing changed
Result<std::optional<std::filesystem::path>> keepOwnFiles(const DataFolder& folder, const ui::Clock& clock);

/// Deletes the settings, setup, results and player files and the sample selections, as far as they exist.
/// @returns a failure naming the first file that could not be deleted; the others are deleted all the same
Result<Done> clearDemoDataFiles(const DataFolder& folder);

/// Keeps the person's own files, clears the data files, starts the installer, waits for the person's OK, says where the
/// own files are, and waits for the sample pool to be there. When the installer cannot be started, the folder cannot be
/// written or a file cannot be kept, says so and deletes nothing. When the sample pool does not come, says that too.
/// @returns how the screen is to be loaded anew: in demo mode, or plainly, when the files are gone and no sample pool
///          has come; nothing when the files are as they were
std::optional<Opening> startDemo(const DataFolder& folder, const ui::Platform& platform);

/// The question before demo mode is entered. @returns as startDemo(); nothing when the person does not want it
std::optional<Opening> enterDemo(const DataFolder& folder, const ui::Platform& platform);

/// Deletes the sample pool and says that normal operation follows. What the person has changed meanwhile is kept; when
/// it cannot be, says so and deletes nothing.
/// @param notice becomes a sentence for the status line when there was something to keep
/// @returns whether demo mode was left
bool leaveDemo(const DataFolder& folder, const ui::Platform& platform, std::string& notice);

} // namespace tallyhoop
