// files/folder_lock_windows.cpp - a name of the system's that only one can make at a time, which ends with the program.
#ifdef _WIN32

#include "files/folder_lock.h"

#include <string>
#include <windows.h>

namespace tallyhoop {

namespace {

/// The same for every path that leads to the folder.
/// @returns nothing when the folder is not there, or its file system cannot tell
std::wstring nameFor(const std::filesystem::path& folder)
{
    constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const HANDLE opened = ::CreateFileW(folder.c_str(), FILE_READ_ATTRIBUTES, kShareAll, nullptr, OPEN_EXISTING,
                                        FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (opened == INVALID_HANDLE_VALUE)
        return {};
    BY_HANDLE_FILE_INFORMATION about{};
    const bool isKnown = ::GetFileInformationByHandle(opened, &about) != 0;
    ::CloseHandle(opened);
    if (!isKnown)
        return {};
    return L"Global\\Tallyhoop " + std::to_wstring(about.dwVolumeSerialNumber) + L" " +
           std::to_wstring(about.nFileIndexHigh) + L" " + std::to_wstring(about.nFileIndexLow);
}

} // namespace

// The folder itself is not kept open without sharing: to rename a file, Windows opens the folder to write, and would
// not be let.
FolderLock::FolderLock(const std::filesystem::path& folder)
{
    const std::wstring name = nameFor(folder);
    if (name.empty()) { // or somebody removes it: while others have it open it is still there, and lets nobody in
        m_heldElsewhere = ::GetLastError() == ERROR_ACCESS_DENIED;
        return;
    }
    const HANDLE made = ::CreateMutexW(nullptr, FALSE, name.c_str());
    const DWORD outcome = ::GetLastError();
    // Whoever held it before may have removed it.
    m_heldHere = made != nullptr && outcome != ERROR_ALREADY_EXISTS && nameFor(folder) == name;
    // What another person's program has made may not be opened.
    m_heldElsewhere = !m_heldHere && (made != nullptr || outcome == ERROR_ACCESS_DENIED);
    if (m_heldHere)
        m_folder = reinterpret_cast<std::intptr_t>(made);
    else if (made != nullptr)
        ::CloseHandle(made);
}

FolderLock::~FolderLock()
{
    if (m_heldHere)
        ::CloseHandle(reinterpret_cast<HANDLE>(m_folder));
}

} // namespace tallyhoop

#endif
