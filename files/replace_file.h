// files/replace_file.h - the one way a file of ours is written: as a whole, or not at all.
#pragma once

#include "base/result.h"

#include <filesystem>
#include <string_view>

namespace tallyhoop {

/// Replaces a file, or creates it, with these bytes. They go to a hidden temporary file of fixed name beside it, are
/// flushed to the disk, and take the file's place by a rename. A symbolic link is followed, a file's mode is kept.
/// @returns a failure with the system's reason; then the old file is untouched and the temporary is gone
Result<Done> replaceFile(const std::filesystem::path& file, std::string_view bytes);

/// Has a limit on the size of files met like a full disk: by a failed write, not by the end of the program. To be
/// called once, before anything is written.
void outliveFileSizeLimits();

/// Reads a whole file.
/// @returns a failure with the system's reason when it is missing, not a file, or unreadable
Result<std::string> readFile(const std::filesystem::path& file);

} // namespace tallyhoop
