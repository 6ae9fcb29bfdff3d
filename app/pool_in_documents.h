// app/pool_in_documents.h - a folder of one's own for a program that is installed where nobody may write.
#pragma once

#include "base/result.h"
#include "files/data_folder.h"
#include "ui/dialogs.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>

namespace tallyhoop {

/// @returns whether no pool can be kept beside the program: there is none yet, and no file can be made there
bool needsAnotherFolder(const DataFolder& program);

/// @returns the version of a program's file, later ones being larger; nothing when it has none
using VersionOf = std::function<std::optional<std::uint64_t>(const std::filesystem::path&)>;

/// Offers to make the folder "Tallyhoop" of the person's documents, and to start there. A pool lives in the folder of
/// its program, so the program is copied. Where that has been done before, nothing is asked, and a copy that is older
/// is renewed.
/// @param documents empty = the system knows of none
/// @returns the copy to be started; nothing when the person would rather go on here, when the copy, which may be this
///          program itself, may not write either, or when it failed, which is said
std::optional<std::filesystem::path> offerFolderInDocuments(const DataFolder& program,
                                                            const std::filesystem::path& documents,
                                                            const VersionOf& versionOf, ui::Dialogs& dialogs);

/// Copies the program, with all it is installed with, over what is there of it. The list of team names is the
/// organiser's own once it is there.
/// @returns a failure that names the file
Result<Done> copyProgram(const DataFolder& from, const DataFolder& to);

} // namespace tallyhoop
