// cli/own_folder.cpp - as the system has it.
#include "cli/own_folder.h"

#include <system_error>

#ifdef _WIN32
#include <array>
#include <windows.h>
#endif

namespace tallyhoop::cli {

std::filesystem::path ownFolder()
{
#ifdef _WIN32
    std::array<wchar_t, 32'768> name{};
    const DWORD length = GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size()));
    return std::filesystem::path{std::wstring{name.data(), length}}.parent_path();
#else
    std::error_code systemDoesNotSay;
    return std::filesystem::read_symlink("/proc/self/exe", systemDoesNotSay).parent_path();
#endif
}

} // namespace tallyhoop::cli
