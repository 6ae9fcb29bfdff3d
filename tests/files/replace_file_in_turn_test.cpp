// tests/files/replace_file_in_turn_test.cpp - several programs, or several users, want to replace one file.
#include "files/replace_file.h"

#include "fakes/scratch_folder.h"

#include <algorithm>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace tallyhoop {
namespace {

namespace fs = std::filesystem;
using test::ScratchFolder;

std::vector<std::string> entriesIn(const fs::path& folder)
{
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator{folder})
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

TEST(ReplaceFileInTurn, GivesUpOnAProgramThatWasStoppedInTheMiddleOfASave)
{
    const ScratchFolder scratch;
    const fs::path file = scratch.put("A.THC", "old");
    const fs::path temporary = scratch.put(".A.THC.tmp~", "half of theirs");
    const int held = ::open(temporary.c_str(), O_WRONLY | O_CLOEXEC);
    ASSERT_EQ(::flock(held, LOCK_EX), 0);
    const Result<Done> outcome = replaceFile(file, "new");
    ASSERT_FALSE(outcome);
    EXPECT_EQ(outcome.failure().message, "Another program is saving this file just now. Try again in a moment.");
    EXPECT_EQ(scratch.get("A.THC"), "old");
    EXPECT_EQ(scratch.get(".A.THC.tmp~"), "half of theirs") << "it may still go on";
    ::close(held);
    EXPECT_TRUE(replaceFile(file, "new"));
    EXPECT_EQ(scratch.get("A.THC"), "new");
}

TEST(ReplaceFileInTurn, GoesRoundAFolderInTheTemporarysPlace)
{
    const ScratchFolder scratch;
    fs::create_directory(scratch.path() / ".A.THC.tmp~");
    EXPECT_TRUE(replaceFile(scratch.path() / "A.THC", "new"));
    EXPECT_EQ(scratch.get("A.THC"), "new");
    EXPECT_EQ(entriesIn(scratch.path()), (std::vector<std::string>{".A.THC.tmp~", "A.THC"}));
}

TEST(ReplaceFileInTurn, GoesRoundAPipeInTheTemporarysPlace)
{
    const ScratchFolder scratch;
    ASSERT_EQ(mkfifo((scratch.path() / ".A.THC.tmp~").c_str(), 0600), 0);
    EXPECT_TRUE(replaceFile(scratch.path() / "A.THC", "new"));
    EXPECT_EQ(scratch.get("A.THC"), "new");
}

TEST(ReplaceFileInTurn, LeavesAFileAloneThatHasTheTemporarysNameAsASecondOne)
{
    const ScratchFolder scratch;
    scratch.put("PRECIOUS", "keep");
    fs::create_hard_link(scratch.path() / "PRECIOUS", scratch.path() / ".A.THC.tmp~");
    EXPECT_TRUE(replaceFile(scratch.path() / "A.THC", "new"));
    EXPECT_EQ(scratch.get("PRECIOUS"), "keep");
    EXPECT_EQ(scratch.get("A.THC"), "new");
}

TEST(ReplaceFileInTurn, GoesRoundATemporaryThatBelongsToAnotherUser)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "only root can play two users";
    const ScratchFolder scratch;
    const fs::path temporary = scratch.put(".A.THC.tmp~", "left by root");
    fs::permissions(temporary, fs::perms{0600});
    fs::permissions(scratch.path(), fs::perms{0777});
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0)
        ::_exit(::setuid(65534) == 0 && replaceFile(scratch.path() / "A.THC", "new") ? 0 : 1);
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
    EXPECT_EQ(scratch.get("A.THC"), "new");
    EXPECT_EQ(entriesIn(scratch.path()), (std::vector<std::string>{".A.THC.tmp~", "A.THC"}));
}

TEST(ReplaceFileInTurn, AsksLastOfAllWhetherItMay)
{
    const ScratchFolder scratch;
    const fs::path file = scratch.put("A.THC", "old");
    const bool refused = !replaceFile(file, "new", [&] {
        EXPECT_EQ(scratch.get(".A.THC.tmp~"), "new") << "everything else is done";
        const int other = ::open((scratch.path() / ".A.THC.tmp~").c_str(), O_WRONLY | O_CLOEXEC);
        EXPECT_NE(::flock(other, LOCK_EX | LOCK_NB), 0) << "and nobody else can be at the same point";
        ::close(other);
        return false;
    });
    EXPECT_TRUE(refused);
    EXPECT_EQ(scratch.get("A.THC"), "old");
    EXPECT_EQ(entriesIn(scratch.path()), std::vector<std::string>{"A.THC"});
}

} // namespace
} // namespace tallyhoop
