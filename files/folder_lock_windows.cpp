// files/folder_lock_windows.cpp - the folder opened in a way that only one can at a time, which ends with the program.
#ifdef _WIN32

#include "files/folder_lock.h"

#include <windows.h>

namespace tallyhoop {

namespace {

/// Who lists the folder, or works in it, opens it to read, if at all: that is left to everybody. Opening it for new
/// files, without letting others do the same, is what only one can.
HANDLE openAlone(const std::filesystem::path& folder)
{
    return ::CreateFileW(folder.c_str(), FILE_ADD_FILE | FILE_LIST_DIRECTORY, FILE_SHARE_READ | FILE_SHARE_DELETE,
                         nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
}

} // namespace

FolderLock::FolderLock(const std::filesystem::path& folder)
{
    const HANDLE opened = openAlone(folder);
    m_heldHere = opened != INVALID_HANDLE_VALUE;
    m_heldElsewhere = !m_heldHere && ::GetLastError() == ERROR_SHARING_VIOLATION;
    if (m_heldHere)
        m_folder = reinterpret_cast<std::intptr_t>(opened);
}

FolderLock::~FolderLock()
{
    if (m_heldHere)
        ::CloseHandle(reinterpret_cast<HANDLE>(m_folder));
}

} // namespace tallyhoop

#endif
