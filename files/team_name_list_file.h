// files/team_name_list_file.h - NCAALIST.THS: the maintained list of team names.
#pragma once

#include "base/result.h"
#include "files/data_folder.h"
#include "files/known_files.h"
#include "ui/dialogs.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tallyhoop {

/// Reads a team list file's bytes.
/// @returns the names in file order, as they stand; a failure when a marker is missing
Result<std::vector<std::string>> readTeamNameList(std::string_view bytes);

/// @returns the file of these names between its markers; a name equal to the one written just before it, and an empty
///          first name, is left out
std::string teamNameListFile(std::span<const std::string> names);

/// Reads NCAALIST.THS; shows its message on failure.
/// @returns the names; nothing on failure
std::optional<std::vector<std::string>> ReadTeamNames(const DataFolder& folder, ui::Dialogs& dialogs);

/// Replaces NCAALIST.THS; asks first when somebody else has changed it since it was noted. A failure shows "** ERROR IN
/// WRITING FILE **" with the path. @returns whether it was written
bool WriteTeamNames(const DataFolder& folder, ui::Dialogs& dialogs, KnownFiles& known,
                    std::span<const std::string> names);

} // namespace tallyhoop
