// tests/files/replace_file_posix_test.cpp - a file is written as a whole or not at all, with links, pipes, modes and
// limits.
#include "files/replace_file.h"

#include "fakes/scratch_folder.h"

#include <algorithm>
#include <csignal>
#include <gtest/gtest.h>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace tallyhoop {
namespace {

namespace fs = std::filesystem;
using test::ScratchFolder;

/// While it lives, no file may grow beyond a few bytes: a disk that is full in the middle of a write.
class AlmostFullDisk
{
public:
    explicit AlmostFullDisk(rlim_t bytes) : m_oldHandler{std::signal(SIGXFSZ, SIG_IGN)}
    {
        getrlimit(RLIMIT_FSIZE, &m_old);
        rlimit small = m_old;
        small.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~AlmostFullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_old);
        std::signal(SIGXFSZ, m_oldHandler);
    }
    AlmostFullDisk(const AlmostFullDisk&) = delete;
    AlmostFullDisk& operator=(const AlmostFullDisk&) = delete;

private:
    rlimit m_old{};
    void (*m_oldHandler)(int);
};

/// @returns the names of a folder's entries, sorted
std::vector<std::string> namesBelow(const fs::path& folder)
{
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator{folder})
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

using Listing = std::vector<std::string>;

TEST(ReplaceFile, LeavesTheOldFileWhenTheDiskFillsInTheMiddle)
{
    const ScratchFolder scratch;
    const fs::path file = scratch.put("A.THC", "old");
    std::string message;
    {
        const AlmostFullDisk full{1000};
        const Result<Done> outcome = replaceFile(file, std::string(5000, 'x'));
        ASSERT_FALSE(outcome);
        message = outcome.failure().message;
    }
    EXPECT_EQ(message, "File too large");
    EXPECT_EQ(scratch.get("A.THC"), "old");
    EXPECT_EQ(namesBelow(scratch.path()), Listing{"A.THC"});
}

TEST(ReplaceFile, LeavesNoFileWhenANewOneDoesNotFit)
{
    const ScratchFolder scratch;
    {
        const AlmostFullDisk full{1000};
        EXPECT_FALSE(replaceFile(scratch.path() / "A.THC", std::string(5000, 'x')));
    }
    EXPECT_EQ(namesBelow(scratch.path()), Listing{});
}

TEST(ReplaceFile, FollowsASymbolicLink)
{
    const ScratchFolder scratch;
    fs::create_directory(scratch.path() / "elsewhere");
    scratch.put("elsewhere/REAL.THC", "old");
    fs::create_symlink("elsewhere/REAL.THC", scratch.path() / "LINK.THC");
    EXPECT_TRUE(replaceFile(scratch.path() / "LINK.THC", "new"));
    EXPECT_TRUE(fs::is_symlink(scratch.path() / "LINK.THC"));
    EXPECT_EQ(scratch.get("elsewhere/REAL.THC"), "new");
    EXPECT_EQ(namesBelow(scratch.path() / "elsewhere"), Listing{"REAL.THC"});
}

TEST(ReplaceFile, CreatesTheFileThatADanglingLinkMeans)
{
    const ScratchFolder scratch;
    fs::create_symlink("REAL.THC", scratch.path() / "LINK.THC");
    EXPECT_TRUE(replaceFile(scratch.path() / "LINK.THC", "new"));
    EXPECT_EQ(scratch.get("REAL.THC"), "new");
    EXPECT_TRUE(fs::is_symlink(scratch.path() / "LINK.THC"));
}

TEST(ReplaceFile, GivesUpOnLinksThatRunInACircle)
{
    const ScratchFolder scratch;
    fs::create_symlink("B", scratch.path() / "A");
    fs::create_symlink("A", scratch.path() / "B");
    EXPECT_FALSE(replaceFile(scratch.path() / "A", "new"));
    EXPECT_EQ(namesBelow(scratch.path()), (Listing{"A", "B"}));
}

TEST(ReplaceFile, KeepsTheFilesMode)
{
    const ScratchFolder scratch;
    const fs::path file = scratch.put("A.THC", "old");
    fs::permissions(file, fs::perms{0640});
    EXPECT_TRUE(replaceFile(file, "new"));
    EXPECT_EQ(fs::status(file).permissions(), fs::perms{0640});
}

TEST(ReplaceFile, RefusesAWriteProtectedFile)
{
    const ScratchFolder scratch;
    const fs::path file = scratch.put("A.THC", "old");
    fs::permissions(file, fs::perms{0444});
    fs::permissions(scratch.path(), fs::perms{0777});
    // No protection stops the superuser, so a child without rights tries.
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        if (geteuid() == 0 && setuid(65534) != 0)
            _exit(2);
        _exit(replaceFile(file, "new") ? 1 : 0);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 0);
    EXPECT_EQ(scratch.get("A.THC"), "old");
    EXPECT_EQ(namesBelow(scratch.path()), Listing{"A.THC"});
}

TEST(ReplaceFile, DoesNotFollowALinkInTheTemporarysPlace)
{
    const ScratchFolder scratch;
    scratch.put("PRECIOUS", "keep");
    fs::create_symlink("PRECIOUS", scratch.path() / ".A.THC.tmp~");
    EXPECT_TRUE(replaceFile(scratch.path() / "A.THC", "new"));
    EXPECT_EQ(scratch.get("PRECIOUS"), "keep");
    EXPECT_EQ(scratch.get("A.THC"), "new");
    EXPECT_EQ(namesBelow(scratch.path()), (Listing{".A.THC.tmp~", "A.THC", "PRECIOUS"}));
}

TEST(ReplaceFile, GivesEachOfManyWritersAWholeFile)
{
    const ScratchFolder scratch;
    const fs::path file = scratch.put("A.THC", "");
    constexpr int kWriters = 4;
    for (int writer = 0; writer < kWriters; ++writer) {
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            bool succeeded = true;
            for (int round = 0; round < 25; ++round)
                succeeded = replaceFile(file, std::string(20'000, static_cast<char>('a' + writer))) && succeeded;
            _exit(succeeded ? 0 : 1);
        }
    }
    for (int writer = 0; writer < kWriters; ++writer) {
        int status = 0;
        ASSERT_GT(wait(&status), 0);
        EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "a writer failed";
    }
    const std::string left = scratch.get("A.THC");
    EXPECT_EQ(left, std::string(20'000, left.at(0)));
    EXPECT_EQ(namesBelow(scratch.path()), Listing{"A.THC"});
}

TEST(ReplaceFile, RefusesToReplaceAPipe)
{
    const ScratchFolder scratch;
    ASSERT_EQ(mkfifo((scratch.path() / "PIPE").c_str(), 0600), 0);
    EXPECT_FALSE(replaceFile(scratch.path() / "PIPE", "new"));
    EXPECT_TRUE(fs::is_fifo(scratch.path() / "PIPE"));
}

TEST(ReadFile, GivesAFileWholeThatDoesNotSayHowLongItIs)
{
    ASSERT_EQ(fs::file_size("/proc/self/maps"), 0u) << "otherwise this test shows nothing";
    const Result<std::string> maps = readFile("/proc/self/maps");
    ASSERT_TRUE(maps);
    EXPECT_GT(maps->size(), 1000u) << "a line for each library";
    EXPECT_EQ(maps->back(), '\n');
}

TEST(ReadFile, DoesNotWaitForAPipe)
{
    const ScratchFolder scratch;
    ASSERT_EQ(mkfifo((scratch.path() / "PIPE").c_str(), 0600), 0);
    EXPECT_FALSE(readFile(scratch.path() / "PIPE"));
}

} // namespace
} // namespace tallyhoop
