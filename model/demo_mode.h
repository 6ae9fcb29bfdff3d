// model/demo_mode.h - a complete sample pool, put in place by a separate installer and taken away again.
#pragma once

#include "model/data_folder.h"
#include "ui/platform.h"

#include <array>

namespace tallyhoop {

/// The sample players' selection files: few, fixed, and unlikely names for real players.
inline constexpr std::array<const char*, 4> kDemoSelectionFiles = {
    "Demo Favorite_DF.THC", "Demo Halfway_DH.THC", "Demo Longshot_DL.THC", "Demo Prophet_DP.THC"};

/// Deletes the settings, setup, results and player files and the sample selections, as far as they exist.
/// @returns a failure naming the first file that could not be deleted; the others are deleted all the same
Result<Done> clearDemoDataFiles(const DataFolder& folder);

/// Clears the data files, starts the installer and waits for the person's OK and for the sample pool to be there. When the installer cannot be started or
/// the folder cannot be written, says so and deletes nothing.
/// @returns whether the sample pool was asked for
bool startDemo(const DataFolder& folder, const ui::Platform& platform);

/// The question before demo mode is entered. @returns whether the person wants it and it was started
bool enterDemo(const DataFolder& folder, const ui::Platform& platform);

/// Deletes the sample pool and says that normal operation follows.
void leaveDemo(const DataFolder& folder, const ui::Platform& platform);

} // namespace tallyhoop
