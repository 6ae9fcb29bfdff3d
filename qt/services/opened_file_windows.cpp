// qt/services/opened_file_windows.cpp - asks the shell.
#include "qt/services/opened_file_windows.h"

#include "base/reason.h"

#include <system_error>
#include <windows.h>
// The comment keeps the order of the includes: the next header needs the one above.
#include <shellapi.h>

namespace tallyhoop::qt {

std::optional<Failure> openByItsProgram(const std::filesystem::path& file)
{
    const std::filesystem::path folder = file.parent_path();
    SHELLEXECUTEINFOW request{};
    request.cbSize = sizeof request;
    request.fMask = SEE_MASK_FLAG_NO_UI | SEE_MASK_NOASYNC; // the words about a failure are ours
    request.lpFile = file.c_str();
    request.lpDirectory = folder.c_str();
    request.nShow = SW_SHOWNORMAL;
    if (ShellExecuteExW(&request))
        return std::nullopt;
    const DWORD error = GetLastError();
    if (reinterpret_cast<INT_PTR>(request.hInstApp) == SE_ERR_NOASSOC) // no handle: how it went
        return Failure{"No program was found that opens message files."};
    return Failure{reasonOf(std::error_code{static_cast<int>(error), std::system_category()})};
}

} // namespace tallyhoop::qt
