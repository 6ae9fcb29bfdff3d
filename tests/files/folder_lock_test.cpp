// tests/files/folder_lock_test.cpp - one holder of a folder at a time, and no trace of it.
#include "files/folder_lock.h"

#include "fakes/scratch_folder.h"

#include <gtest/gtest.h>

namespace tallyhoop::test {

TEST(FolderLock, IsHeldByOneAtATime)
{
    const ScratchFolder scratch;
    {
        const FolderLock first{scratch.path()};
        EXPECT_FALSE(first.isHeldElsewhere());
        EXPECT_TRUE(first.isHeldHere());
        EXPECT_FALSE(FolderLock{scratch.path()}.isHeldHere());
        EXPECT_TRUE(FolderLock{scratch.path()}.isHeldElsewhere());
        EXPECT_TRUE(FolderLock{scratch.path() / "."}.isHeldElsewhere()) << "the same folder by another name";
    }
    EXPECT_FALSE(FolderLock{scratch.path()}.isHeldElsewhere()) << "given back";
}

TEST(FolderLock, OfOneFolderDoesNotConcernAnother)
{
    const ScratchFolder scratch;
    const ScratchFolder other;
    const FolderLock first{scratch.path()};
    EXPECT_FALSE(FolderLock{other.path()}.isHeldElsewhere());
}

TEST(FolderLock, LeavesNothingInTheFolder)
{
    const ScratchFolder scratch;
    const FolderLock lock{scratch.path()};
    EXPECT_TRUE(std::filesystem::is_empty(scratch.path()));
}

TEST(FolderLock, OfAFolderThatIsNotThereIsNotHeldElsewhere)
{
    const ScratchFolder scratch;
    const FolderLock lock{scratch.path() / "missing"};
    EXPECT_FALSE(FolderLock{scratch.path() / "missing"}.isHeldElsewhere());
    EXPECT_FALSE(lock.isHeldHere());
}

} // namespace tallyhoop::test
