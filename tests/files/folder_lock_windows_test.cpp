// tests/files/folder_lock_windows_test.cpp - a held folder is in nobody's way on Windows.
#include "files/folder_lock.h"

#include "fakes/scratch_folder.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace tallyhoop::test {

// Wine renames without opening the folder, so this opens it as Windows does.
TEST(FolderLock, LetsWindowsOpenTheFolderToPutARenamedFileIntoIt)
{
    const ScratchFolder scratch;
    const FolderLock lock{scratch.path()};
    ASSERT_TRUE(lock.isHeldHere());
    const HANDLE opened =
        ::CreateFileW(scratch.path().c_str(), FILE_WRITE_DATA | SYNCHRONIZE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                      nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    ASSERT_NE(opened, INVALID_HANDLE_VALUE) << ::GetLastError();
    ::CloseHandle(opened);
}

} // namespace tallyhoop::test
