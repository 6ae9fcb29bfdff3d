// files/entry_at_windows.cpp - asks the folder for the spelling.
#ifdef _WIN32

#include "files/entry_at.h"

#include <windows.h>

namespace tallyhoop {

std::optional<std::filesystem::path> entryAt(const std::filesystem::path& path)
{
    if (path.filename().native().find_first_of(L"*?<>\"") != std::wstring::npos) // patterns; no entry's name has them
        return std::nullopt;
    WIN32_FIND_DATAW entry{};
    const HANDLE search = ::FindFirstFileW(path.c_str(), &entry);
    if (search == INVALID_HANDLE_VALUE)
        return std::nullopt;
    ::FindClose(search);
    return path.parent_path() / entry.cFileName;
}

} // namespace tallyhoop

#endif
