// files/own_program_windows.cpp - as Windows has it.
#ifdef _WIN32

#include "files/own_program.h"

#include <string>
#include <windows.h>

namespace tallyhoop {

std::filesystem::path ownProgram()
{
    constexpr DWORD kLongestPath = 32'768;
    std::wstring name(kLongestPath, L'\0');
    name.resize(::GetModuleFileNameW(nullptr, name.data(), kLongestPath));
    return name;
}

} // namespace tallyhoop

#endif
