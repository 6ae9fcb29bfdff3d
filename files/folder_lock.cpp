// files/folder_lock.cpp - a lock on the open folder itself, which the system takes away with the program.
#include "files/folder_lock.h"

#ifndef _WIN32
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#endif

namespace tallyhoop {

#ifdef _WIN32

FolderLock::FolderLock(const std::filesystem::path&) {}

FolderLock::~FolderLock() = default;

#else

FolderLock::FolderLock(const std::filesystem::path& folder)
    : m_folder{open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)} // programs that this one starts do not hold it
{
    m_heldHere = m_folder >= 0 && flock(m_folder, LOCK_EX | LOCK_NB) == 0;
    m_heldElsewhere = m_folder >= 0 && !m_heldHere && errno == EWOULDBLOCK;
}

FolderLock::~FolderLock()
{
    if (m_folder >= 0)
        close(m_folder);
}

#endif

} // namespace tallyhoop
