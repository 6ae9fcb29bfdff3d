// files/pool_backup.h - files that are about to be removed, kept in a dated subfolder first.
#pragma once

#include "base/result.h"
#include "files/data_folder.h"

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

namespace tallyhoop {

/// Copies files of the folder, with their times and modes, into a new subfolder such as "Backup 2026-11-20 101530". An
/// existing one is never added to: then " (2)", " (3)" ... follows the name. The subfolder appears with all its
/// files or, whatever happens meanwhile, not at all; the files themselves stay where they are. Several programs can do
/// so at the same time.
/// @param names bare names of files that are there, at least one; a symbolic link is kept as the file that it leads to
/// @param now   local time, for the subfolder's name
/// @returns the subfolder; or a failure that names the file or folder in the way, the copy by its place in the
///          subfolder that was to be, with nothing changed
Result<std::filesystem::path> backUp(const DataFolder& folder, const std::vector<std::string>& names,
                                     std::chrono::local_seconds now);

/// The same for one file, in a subfolder of its own folder. One that cannot be read is kept as well where the file
/// system can give a file a second name: the caller may then replace the first one.
Result<std::filesystem::path> backUpFile(const std::filesystem::path& file, std::chrono::local_seconds now);

/// The same for paths: two files of the folder may have names that look alike as text.
Result<std::filesystem::path> backUpFiles(const DataFolder& folder, const std::vector<std::filesystem::path>& files,
                                          std::chrono::local_seconds now);

/// Copies every file of a backup back into the folder, over what is there by the same name. The backup stays.
/// @returns a failure that names the first file in the way; the others are put back all the same
Result<Done> putBack(const DataFolder& folder, const std::filesystem::path& backup);

} // namespace tallyhoop
