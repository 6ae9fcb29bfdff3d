// files/entry_at.h - what is at a path, by the name that its folder has for it.
#pragma once

#include <filesystem>
#include <optional>

namespace tallyhoop {

/// @returns the path of what is there, a link itself and not what it leads to; where the system has one name in any
/// case,
///          spelled as the folder spells it. Nothing when nothing is there
std::optional<std::filesystem::path> entryAt(const std::filesystem::path& path);

} // namespace tallyhoop
