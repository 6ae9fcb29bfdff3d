// files/team_name_list_file.h - NCAALIST.THS: the maintained list of team names.
#pragma once

#include "base/result.h"
#include "files/data_folder.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tallyhoop {

/// Reads a team list file's bytes.
/// @returns the names in file order, as they are; a failure when a marker is missing
Result<std::vector<std::string>> readTeamNameList(std::string_view bytes);

/// Reads the folder's list. @returns a failure that names the file when it is missing, unreadable or damaged
Result<std::vector<std::string>> readTeamNames(const DataFolder& folder);

/// @returns the file of these names between its markers; a name equal to the one written just before it, and an empty
///          first name, is left out
std::string teamNameListFile(std::span<const std::string> names);

} // namespace tallyhoop
