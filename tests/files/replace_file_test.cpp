// tests/files/replace_file_test.cpp - a file is written as a whole or not at all, whatever goes wrong.
#include "files/replace_file.h"

#include "fakes/scratch_folder.h"

#include <csignal>
#include <gtest/gtest.h>
#include <iterator>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

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
std::vector<std::string> namesIn(const fs::path& folder)
{
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator{folder})
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

using Names = std::vector<std::string>;

TEST(ReplaceFile, CreatesAFileAndNothingElse)
{
    const ScratchFolder scratch;
    EXPECT_TRUE(replaceFile(scratch.path() / "NEW.THC", "abc\r\n"));
    EXPECT_EQ(scratch.get("NEW.THC"), "abc\r\n");
    EXPECT_EQ(namesIn(scratch.path()), Names{"NEW.THC"});
}

TEST(ReplaceFile, ReplacesALongerFileWhole)
{
    const ScratchFolder scratch;
    const fs::path file = scratch.put("A.THC", std::string(5000, 'x'));
    EXPECT_TRUE(replaceFile(file, "short"));
    EXPECT_EQ(scratch.get("A.THC"), "short");
}

TEST(ReplaceFile, WritesEveryByteAsItIs)
{
    const ScratchFolder scratch;
    std::string bytes;
    for (int i = 0; i < 300'000; ++i)
        bytes.push_back(static_cast<char>(i % 251));
    EXPECT_TRUE(replaceFile(scratch.path() / "A", bytes));
    EXPECT_EQ(scratch.get("A"), bytes);
}

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
    EXPECT_EQ(namesIn(scratch.path()), Names{"A.THC"});
}

TEST(ReplaceFile, LeavesNoFileWhenANewOneDoesNotFit)
{
    const ScratchFolder scratch;
    {
        const AlmostFullDisk full{1000};
        EXPECT_FALSE(replaceFile(scratch.path() / "A.THC", std::string(5000, 'x')));
    }
    EXPECT_EQ(namesIn(scratch.path()), Names{});
}

TEST(ReplaceFile, FailsWhenTheFolderHasVanished)
{
    const ScratchFolder scratch;
    const Result<Done> outcome = replaceFile(scratch.path() / "gone" / "A.THC", "x");
    ASSERT_FALSE(outcome);
    EXPECT_EQ(outcome.failure().message, "No such file or directory");
    EXPECT_EQ(namesIn(scratch.path()), Names{});
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
    EXPECT_EQ(namesIn(scratch.path() / "elsewhere"), Names{"REAL.THC"});
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
    EXPECT_EQ(namesIn(scratch.path()), (Names{"A", "B"}));
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
    EXPECT_EQ(namesIn(scratch.path()), Names{"A.THC"});
}

TEST(ReplaceFile, OverwritesAStaleTemporary)
{
    const ScratchFolder scratch;
    const fs::path file = scratch.put("A.THC", "old");
    scratch.put(".A.THC.tmp~", std::string(9000, 's'));
    EXPECT_TRUE(replaceFile(file, "new"));
    EXPECT_EQ(scratch.get("A.THC"), "new");
    EXPECT_EQ(namesIn(scratch.path()), Names{"A.THC"});
}

TEST(ReplaceFile, DoesNotFollowALinkInTheTemporarysPlace)
{
    const ScratchFolder scratch;
    scratch.put("PRECIOUS", "keep");
    fs::create_symlink("PRECIOUS", scratch.path() / ".A.THC.tmp~");
    EXPECT_TRUE(replaceFile(scratch.path() / "A.THC", "new"));
    EXPECT_EQ(scratch.get("PRECIOUS"), "keep");
    EXPECT_EQ(scratch.get("A.THC"), "new");
    EXPECT_EQ(namesIn(scratch.path()), (Names{".A.THC.tmp~", "A.THC", "PRECIOUS"}));
}

TEST(ReplaceFile, TakesTheLongestNameAFileCanHave)
{
    const ScratchFolder scratch;
    const std::string name = std::string(251, 'n') + ".THC";
    EXPECT_TRUE(replaceFile(scratch.path() / name, "new"));
    EXPECT_EQ(scratch.get(name), "new");
    EXPECT_EQ(namesIn(scratch.path()), Names{name});
}

TEST(ReplaceFile, RefusesANameThatIsTooLong)
{
    const ScratchFolder scratch;
    EXPECT_FALSE(replaceFile(scratch.path() / std::string(300, 'n'), "new"));
    EXPECT_EQ(namesIn(scratch.path()), Names{});
}

TEST(ReplaceFile, RefusesToReplaceAFolderOrAPipe)
{
    const ScratchFolder scratch;
    fs::create_directory(scratch.path() / "FOLDER");
    ASSERT_EQ(mkfifo((scratch.path() / "PIPE").c_str(), 0600), 0);
    EXPECT_FALSE(replaceFile(scratch.path() / "FOLDER", "new"));
    EXPECT_FALSE(replaceFile(scratch.path() / "PIPE", "new"));
    EXPECT_TRUE(fs::is_directory(scratch.path() / "FOLDER"));
    EXPECT_TRUE(fs::is_fifo(scratch.path() / "PIPE"));
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
    EXPECT_EQ(namesIn(scratch.path()), Names{"A.THC"});
}

TEST(ReadFile, GivesEveryByte)
{
    const ScratchFolder scratch;
    std::string bytes(200'000, '\0');
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<char>(i % 256);
    EXPECT_EQ(*readFile(scratch.put("A", bytes)), bytes);
    EXPECT_EQ(*readFile(scratch.put("B", "")), "");
}

TEST(ReadFile, GivesFilesOfEverySizeWhole)
{
    const ScratchFolder scratch;
    for (const std::size_t size : {0, 1, 4095, 4096, 4097, 8192, 100'000}) {
        std::string bytes;
        for (std::size_t i = 0; i < size; ++i)
            bytes.push_back(static_cast<char>(i * 7 % 256));
        EXPECT_EQ(*readFile(scratch.put("FILE", bytes)), bytes) << size;
    }
}

TEST(ReadFile, GivesAFileWholeThatDoesNotSayHowLongItIs)
{
    ASSERT_EQ(fs::file_size("/proc/self/maps"), 0u) << "otherwise this test shows nothing";
    const Result<std::string> maps = readFile("/proc/self/maps");
    ASSERT_TRUE(maps);
    EXPECT_GT(maps->size(), 1000u) << "a line for each library";
    EXPECT_EQ(maps->back(), '\n');
}

TEST(ReadFile, SaysWhyItFailed)
{
    const ScratchFolder scratch;
    ASSERT_EQ(mkfifo((scratch.path() / "PIPE").c_str(), 0600), 0);
    EXPECT_EQ(readFile(scratch.path() / "missing").failure().message, "No such file or directory");
    EXPECT_EQ(readFile(scratch.path()).failure().message, "Is a directory");
    EXPECT_FALSE(readFile(scratch.path() / "PIPE"));
}

TEST(ReadFile, RefusesAFileThatIsNoneOfOurs)
{
    const ScratchFolder scratch;
    const fs::path file = scratch.put("HUGE", "x");
    fs::resize_file(file, std::uintmax_t{200} << 20); // a hole: takes no room
    EXPECT_EQ(readFile(file).failure().message, "The file is larger than 64 MB.");
    EXPECT_EQ(readFile(file, kMostBytesOfSelection).failure().message, "The file is larger than 1 MB.");
}

} // namespace
} // namespace tallyhoop
