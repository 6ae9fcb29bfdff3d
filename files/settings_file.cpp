// files/settings_file.cpp - TALLYHOOP.INI: one line that says whether demo mode is on.
#include "files/settings_file.h"

#include "base/lines.h"
#include "files/file_names.h"
#include "files/replace_file.h"

#include <string>
#include <vector>

namespace tallyhoop {

bool demoModeIsOn(const DataFolder& folder)
{
    const Result<std::string> bytes = folder.read(file_name::kSettings, kMostBytesOfSetup);
    return bytes && settingsSayDemo(*bytes);
}

bool settingsSayDemo(std::string_view bytes)
{
    const std::vector<std::string> lines = linesOf(bytes);
    return !lines.empty() && lines.front() == "1";
}

} // namespace tallyhoop
