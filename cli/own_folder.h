// cli/own_folder.h - the folder that holds the program: a pool lives there.
#pragma once

#include <filesystem>

namespace tallyhoop::cli {

/// @returns the executable's folder; empty when the system does not say
std::filesystem::path ownFolder();

} // namespace tallyhoop::cli
