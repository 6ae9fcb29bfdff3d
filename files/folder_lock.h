// files/folder_lock.h - finds out whether a program is at work on a folder already, without leaving anything in it.
#pragma once

#include <cstdint>
#include <filesystem>

namespace tallyhoop {

/// Held as long as it lives. Another program is not kept out: it is told.
class FolderLock
{
public:
    /// Tries to hold the folder. Where the system or the file system cannot tell, nobody else has it.
    explicit FolderLock(const std::filesystem::path& folder);
    ~FolderLock();
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;

    /// @returns whether somebody else held it when this one tried
    bool isHeldElsewhere() const { return m_heldElsewhere; }

    /// @returns whether this one holds it, and everybody else would be told; false also where nobody can tell
    bool isHeldHere() const { return m_heldHere; }

private:
    std::intptr_t m_folder = -1; ///< what the system calls what is held; -1 = nothing is
    bool m_heldHere = false;
    bool m_heldElsewhere = false;
};

} // namespace tallyhoop
