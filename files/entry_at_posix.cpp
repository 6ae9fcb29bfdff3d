// files/entry_at_posix.cpp - a name has one spelling.
#ifndef _WIN32

#include "files/entry_at.h"

#include <system_error>

namespace tallyhoop {

std::optional<std::filesystem::path> entryAt(const std::filesystem::path& path)
{
    std::error_code ignored;
    const bool isThere = std::filesystem::exists(std::filesystem::symlink_status(path, ignored));
    return isThere ? std::optional{path} : std::nullopt;
}

} // namespace tallyhoop

#endif
