// tests/files/failing_calls_test.cpp - calls of the system that fail although the file is there, as on a network.
#include "files/known_files.h"
#include "files/pool_backup.h"
#include "files/replace_file.h"

#include "fakes/scratch_folder.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <cstddef>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <string>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tallyhoop {
namespace {

namespace fs = std::filesystem;

/// Lets every later question of this process about a file by its name fail. @returns whether the system does so
/// @param flags of the question: AT_SYMLINK_NOFOLLOW for one about a link itself, 0 for one about what it leads to
bool letStatFail(unsigned flags, unsigned error)
{
    constexpr auto kCall = static_cast<unsigned>(offsetof(seccomp_data, nr));
    constexpr auto kFlags = static_cast<unsigned>(offsetof(seccomp_data, args) + 3 * sizeof(__u64));
    std::array<sock_filter, 6> filter{
        {BPF_STMT(BPF_LD | BPF_W | BPF_ABS, kCall), BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, __NR_newfstatat, 0, 3),
         BPF_STMT(BPF_LD | BPF_W | BPF_ABS, kFlags), BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, flags, 0, 1),
         BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | error), BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW)}};
    const sock_fprog program{filter.size(), filter.data()};
    return ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 && ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
}

/// Runs a part in a child, where these calls fail; it is to return whether all is well. Skips the test where the system
/// does not let calls fail.
template <class Part>
void whileStatFails(unsigned flags, unsigned error, Part part)
{
    constexpr int kWell = 0;
    constexpr int kCannot = 77;
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0)
        ::_exit(!letStatFail(flags, error) ? kCannot : part() ? kWell : 1);
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFEXITED(status));
    if (WEXITSTATUS(status) == kCannot)
        GTEST_SKIP() << "the system does not let calls fail";
    EXPECT_EQ(WEXITSTATUS(status), kWell);
}

TEST(FailingCalls, ASaveEndsWhenItsTemporaryCannotBeExamined)
{
    const test::ScratchFolder scratch;
    const fs::path file = scratch.put("A.THC", "old");
    // It goes round a temporary of which nobody knows what it is.
    whileStatFails(AT_SYMLINK_NOFOLLOW, EIO,
                   [&] { return replaceFile(file, "new") && *readFile(file) == std::string{"new"}; });
}

TEST(FailingCalls, AFileThatCannotBeExaminedIsThereAndCannotBeRead)
{
    const test::ScratchFolder scratch;
    const fs::path file = scratch.put("A.THC", "old");
    whileStatFails(0, ESTALE, [&] {
        const KnownFiles known;
        const FileContent content = KnownFiles::contentOf(file);
        return content.isThere && content.trouble && content.trouble->message == "Stale file handle" &&
               known.wouldLoseUnread(file, content);
    });
}

TEST(FailingCalls, ABackupIsMadeWhereItsFolderCannotBeExamined)
{
    const test::ScratchFolder scratch;
    const fs::path file = scratch.put("A.THC", "old");
    whileStatFails(0, EIO, [&] {
        const Result<fs::path> backup = backUpFile(file, std::chrono::local_seconds{});
        return backup && *readFile(*backup / "A.THC") == std::string{"old"};
    });
}

TEST(FailingCalls, BehindALinkThatLeadsToItselfThereIsNoFile)
{
    const test::ScratchFolder scratch;
    const fs::path file = scratch.path() / "A.THC";
    fs::create_symlink("A.THC", file);
    EXPECT_FALSE(KnownFiles::contentOf(file).isThere);
}

TEST(FailingCalls, AFileWhoseNameIsLongerThanAnyCanBeIsNotThere)
{
    const test::ScratchFolder scratch;
    EXPECT_FALSE(KnownFiles::contentOf(scratch.path() / std::string(300, 'A')).isThere);
}

TEST(FailingCalls, AFileInAFolderThatIsNotThereIsNotThere)
{
    const test::ScratchFolder scratch;
    EXPECT_FALSE(KnownFiles::contentOf(scratch.path() / "gone" / "A.THC").isThere);
}

} // namespace
} // namespace tallyhoop
