// files/team_name_list_file.cpp - NCAALIST.THS: a name on each line, between two markers.
#include "files/team_name_list_file.h"

#include "base/lines.h"
#include "files/file_names.h"

#include <utility>

namespace tallyhoop {

namespace {

constexpr const char* kUnreadableList =
    "Problem locating or Reading NCAALIST.THS file\r\n\r\nMODULE: modTallyhoop - ReadTeamNames";

} // namespace

Result<std::vector<std::string>> readTeamNameList(std::string_view bytes)
{
    std::vector<std::string> lines = linesOf(bytes);
    if (lines.empty() || !lines.front().starts_with(kStartMarker))
        return Failure{"The list does not begin with its start marker."};
    if (lines.size() == 1 || lines.back() != kEndMarker)
        return Failure{"The list does not end with its end marker."};
    lines.pop_back();
    lines.erase(lines.begin());
    return lines;
}

std::string teamNameListFile(std::span<const std::string> names)
{
    std::vector<std::string> lines{kStartMarker};
    std::string lastWritten;
    for (const std::string& name : names) {
        if (name == lastWritten)
            continue;
        lines.push_back(name);
        lastWritten = name;
    }
    lines.emplace_back(kEndMarker);
    return fileOf(lines);
}

Result<std::vector<std::string>> readTeamNames(const DataFolder& folder)
{
    if (const Result<std::string> bytes = folder.read(file_name::kTeamNames))
        if (Result<std::vector<std::string>> names = readTeamNameList(*bytes))
            return names;
    return Failure{kUnreadableList};
}

} // namespace tallyhoop
