// files/whole_path.h - paths without what they leave to the moment, also those of a network.
//
// On Windows, <filesystem> takes the two separators before the name of a computer for one, and so a path of a network
// for one of the current drive.
#pragma once

#include <filesystem>
#include <system_error>

namespace tallyhoop {

/// @returns the path from the root on; the path as it is, and the error, when the system does not say
std::filesystem::path wholePath(const std::filesystem::path& path, std::error_code& error);

/// @returns the path without "." and "..", as far as the text alone tells
std::filesystem::path normalPath(const std::filesystem::path& path);

} // namespace tallyhoop
