// app/program_version_windows.cpp - reads the version out of a program's file.
#include "app/program_version.h"

#include <vector>
#include <windows.h>

namespace tallyhoop {

std::optional<std::uint64_t> programVersion(const std::filesystem::path& program)
{
    DWORD ignored = 0;
    const DWORD size = ::GetFileVersionInfoSizeW(program.c_str(), &ignored);
    std::vector<std::byte> block(size);
    VS_FIXEDFILEINFO* fixed = nullptr;
    UINT length = 0;
    if (size == 0 || !::GetFileVersionInfoW(program.c_str(), 0, size, block.data()) ||
        !::VerQueryValueW(block.data(), L"\\", reinterpret_cast<void**>(&fixed), &length) || length < sizeof *fixed)
        return std::nullopt;
    return std::uint64_t{fixed->dwFileVersionMS} << 32 | fixed->dwFileVersionLS;
}

} // namespace tallyhoop
