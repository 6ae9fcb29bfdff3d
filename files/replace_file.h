// files/replace_file.h - the one way a file of ours is written: as a whole, or not at all.
#pragma once

#include "base/result.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string_view>

namespace tallyhoop {

/// The failure of a save for which another program does not make way.
inline constexpr const char* kHeldByAnother = "Another program is saving this file just now. Try again in a moment.";

/// Replaces a file, or creates it, with these bytes. They go to a hidden temporary file of fixed name beside it, are
/// flushed to the disk, and take the file's place by a rename. Where that name cannot be used, the temporary gets one
/// of its own. A symbolic link is followed, a file's mode is kept.
/// @param mayReplace asked just before the file takes its place, when no other program can be about to replace it; no =
///                   it stays as it is. Empty = yes. (Two programs can be about to where the file system has no locks,
///                   or where what is in the way of the temporary is a link or may not even be read.)
/// @returns a failure with the system's reason, or kHeldByAnother when other programs have been saving the file for
///          half a second in all; then the old file is untouched and the temporary is gone
Result<Done> replaceFile(const std::filesystem::path& file, std::string_view bytes,
                         const std::function<bool()>& mayReplace = {});

/// Has a limit on the size of files met like a full disk: by a failed write, not by the end of the program. To be
/// called once, before anything is written.
void outliveFileSizeLimits();

/// The largest files that are read: no selection, no field and settings, and no list of ours comes near, and a larger
/// one would only fill the memory.
inline constexpr std::size_t kMostBytesOfSelection = 1u << 20;
inline constexpr std::size_t kMostBytesOfSetup = 1u << 20;
inline constexpr std::size_t kMostBytesOfList = 64u << 20;

/// Reads a whole file.
/// @returns a failure with the system's reason when it is missing, not a file, or unreadable; with a sentence that
///          names the limit when it is larger
Result<std::string> readFile(const std::filesystem::path& file, std::size_t mostBytes = kMostBytesOfList);

} // namespace tallyhoop
