// files/setup_file.cpp - POOLSTART.THS: the starting field and the pool's options.
#include "files/setup_file.h"

#include "base/lines.h"
#include "files/file_names.h"
#include "screens/file_messages.h"

#include <algorithm>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace tallyhoop {
namespace {

const ui::Message kDamagedSetup = {"", "Problem with file, will use default values", ui::Buttons::Ok,
                                   ui::Icon::Critical};

SetupReading judge(std::span<const std::string> fileLines)
{
    if (fileLines.empty())
        return SetupReading::DefaultsQuietly;
    if (fileLines.front() != kStartMarker)
        return SetupReading::DefaultsLoudly;
    const std::size_t behindMarker = fileLines.size() - 1;
    if (behindMarker == 0 || behindMarker > std::tuple_size_v<SetupLines>)
        return SetupReading::DefaultsQuietly;
    return fileLines.back() == kEndMarker ? SetupReading::Taken : SetupReading::DefaultsLoudly;
}

void takeDefaults(SetupLines& lines)
{
    SetupLines defaults = defaultSetupLines();
    std::move(defaults.begin(), defaults.begin() + setup_line::kEnd + 1, lines.begin());
}

} // namespace

SetupReading readSetup(std::string_view bytes, SetupLines& lines)
{
    std::vector<std::string> fileLines = linesOf(bytes);
    const SetupReading reading = judge(fileLines);
    if (reading == SetupReading::Taken)
        std::move(fileLines.begin() + 1, fileLines.end(), lines.begin());
    else
        takeDefaults(lines);
    return reading;
}

std::string setupFile(const SetupLines& lines)
{
    std::vector<std::string> fileLines{kStartMarker};
    fileLines.insert(fileLines.end(), lines.begin(), lines.begin() + setup_line::kEnd);
    fileLines.emplace_back(kEndMarker);
    return fileOf(fileLines);
}

void ReadStartingField(const DataFolder& folder, ui::Dialogs& dialogs, modTallyhoop& state)
{
    const Result<std::string> bytes = folder.read(file_name::kSetup);
    if (!bytes)
        takeDefaults(state.setupLines); // the normal case at the very first start: nothing to say
    else if (readSetup(*bytes, state.setupLines) == SetupReading::DefaultsLoudly)
        dialogs.show(kDamagedSetup);
    state.currentTitle = state.setupLines[setup_line::kTitle];
}

bool WriteStartingField(const DataFolder& folder, ui::Dialogs& dialogs, KnownFiles& known, const SetupLines& lines)
{
    return known.replace(folder.pathTo(file_name::kSetup), setupFile(lines), dialogs,
                         writingTrouble(folder.shownPathOf(file_name::kSetup), kCheckSpace));
}

} // namespace tallyhoop
