// app/program_folder.h - the folder in which the program and its pool are.
#pragma once

#include "base/result.h"

#include <filesystem>

namespace tallyhoop {

/// Checks the folder before anything is read or written. A name that the library of the windows cannot express, because
/// it is not UTF-8, would come out as that of another folder, and the pool would be started anew there.
/// @param asNamed    the executable's folder in the words of that library
/// @param executable as the system has it; empty when the system does not say
/// @returns the folder; a failure that names it, and says why, when the library's name does not lead there
Result<std::filesystem::path> programFolder(const std::filesystem::path& asNamed,
                                            const std::filesystem::path& executable);

} // namespace tallyhoop
