// files/folder_lock_posix.cpp - a lock on the open folder itself, which the system takes away with the program.
#ifndef _WIN32

#include "files/folder_lock.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace tallyhoop {

FolderLock::FolderLock(const std::filesystem::path& folder)
{
    const int opened =
        open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); // programs that this one starts do not hold it
    m_folder = opened;
    m_heldHere = opened >= 0 && flock(opened, LOCK_EX | LOCK_NB) == 0;
    m_heldElsewhere = opened >= 0 && !m_heldHere && errno == EWOULDBLOCK;
}

FolderLock::~FolderLock()
{
    if (m_folder >= 0)
        close(static_cast<int>(m_folder));
}

} // namespace tallyhoop

#endif
