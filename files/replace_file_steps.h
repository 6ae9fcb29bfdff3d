// files/replace_file_steps.h - the part of replacing and reading a file that differs between systems.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <system_error>

namespace tallyhoop {

/// Where the bytes go first; both in the target's folder.
struct Temporaries {
    std::filesystem::path shared; ///< every program that saves the target uses it, one at a time; it is overwritten
    std::filesystem::path own;    ///< nobody else's, for when the shared one cannot be used
};

/// Writes the bytes to a temporary file, flushes them to the disk and lets it take the target's place.
/// @param target     a full path without symbolic links at its end; it may not exist yet
/// @param mayReplace asked last, while the temporary file is ours alone
/// @returns no error, or why the target is as it was; then the temporary is gone. "Operation would block" when other
///          programs have held the shared one for half a second in all, "operation canceled" when it may not be
///          replaced
std::error_code replaceThrough(const Temporaries& temporaries, const std::filesystem::path& target,
                               std::string_view bytes, const std::function<bool()>& mayReplace);

/// Makes the names in a folder last: what was created or renamed there is there after a power cut, as far as the system
/// can promise it.
void flushFolder(const std::filesystem::path& folder);

/// Reads a whole file.
/// @param bytes receives it; on an error anything
/// @returns no error, or why it could not be read: "file too large" beyond `mostBytes`, "is a directory" for a folder,
///          "invalid argument" for anything else that is no file
std::error_code readAll(const std::filesystem::path& file, std::size_t mostBytes, std::string& bytes);

} // namespace tallyhoop
