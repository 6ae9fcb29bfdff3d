// files/replace_file_steps.h - the part of replacing and reading a file that differs between systems.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

namespace tallyhoop {

/// Writes the bytes to the temporary file, flushes them to the disk and lets it take the target's place.
/// @param target    a full path without symbolic links at its end; it may not exist yet
/// @param temporary a path in the same folder; what is there is overwritten
/// @returns no error, or why the target is as it was; then the temporary is gone
std::error_code replaceThrough(const std::filesystem::path& temporary, const std::filesystem::path& target,
                               std::string_view bytes);

/// Makes the names in a folder last: what was created or renamed there is there after a power cut, as far as the system
/// can promise it.
void flushFolder(const std::filesystem::path& folder);

/// Reads a whole file.
/// @param bytes receives it; on an error anything
/// @returns no error, or why it could not be read: "file too large" beyond `mostBytes`, "is a directory" for a folder,
///          "invalid argument" for anything else that is no file
std::error_code readAll(const std::filesystem::path& file, std::size_t mostBytes, std::string& bytes);

} // namespace tallyhoop
