// files/own_program.h - where the program is that runs: a pool lives in its folder.
#pragma once

#include <filesystem>

namespace tallyhoop {

/// @returns the full path of the program's file, symbolic links followed; empty when the system does not say
std::filesystem::path ownProgram();

} // namespace tallyhoop
