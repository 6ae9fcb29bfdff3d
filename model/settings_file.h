// model/settings_file.h - TALLYHOOP.INI: a first line that says whether demo mode is on; behind it, what the demo
// brought.
//
// The lines behind the first are marks, one for each file of the demo: the file's fingerprint, a blank, its name. They
// tell a file that is still the demo's from one that the person has changed or put there.
#pragma once

#include "model/data_folder.h"

#include <string>
#include <string_view>
#include <vector>

namespace tallyhoop {

/// A file of the demo: bare name and content.
struct DemoFile {
    std::string name;
    std::string bytes;
};

/// @returns true when the first line of a settings file's bytes is exactly "1"
bool settingsSayDemo(std::string_view bytes);

/// @returns the bytes of a settings file that switches demo mode on and marks these files
std::string demoSettings(const std::vector<DemoFile>& files);

/// @returns true when a settings file's bytes say that demo mode is on and mark a file of this name (in any case) and
/// of
///          this very content
bool settingsMark(std::string_view settings, std::string_view name, std::string_view bytes);

/// Reads TALLYHOOP.INI anew. @returns true when its first line is exactly "1"
bool demoModeIsOn(const DataFolder& folder);

} // namespace tallyhoop
