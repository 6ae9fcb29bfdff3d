// tests/files/replace_file_in_turn_posix_test.cpp - several programs, or several users, want to replace one file of a
// system with locks, pipes and users.
#include "files/replace_file.h"

#include "fakes/held_file.h"
#include "fakes/scratch_folder.h"

#include <algorithm>
#include <chrono>
#include <fcntl.h>
#include <future>
#include <gtest/gtest.h>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <utility>
#include <vector>

namespace tallyhoop {
namespace {

namespace fs = std::filesystem;
using test::isHeld;
using test::ScratchFolder;

std::vector<std::string> namesOfEntries(const fs::path& folder)
{
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator{folder})
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

/// Lets a file of this name be held by one program after the other: as soon as one lets go, it has been replaced by a
/// file that the next one holds.
class HoldersInTurn
{
public:
    explicit HoldersInTurn(const fs::path& file) : m_file{file}
    {
        passOn();
        m_thread = std::thread{[this, ended = m_ended.get_future()] {
            while (ended.wait_for(std::chrono::milliseconds{100}) != std::future_status::ready)
                passOn();
        }};
    }
    ~HoldersInTurn()
    {
        m_ended.set_value();
        m_thread.join();
        ::close(m_held);
    }
    HoldersInTurn(const HoldersInTurn&) = delete;
    HoldersInTurn& operator=(const HoldersInTurn&) = delete;

private:
    void passOn()
    {
        const fs::path next = m_file.string() + ".next";
        const int held = ::open(next.c_str(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600);
        EXPECT_EQ(::flock(held, LOCK_EX), 0);
        fs::rename(next, m_file);
        ::close(m_held);
        m_held = held;
    }

    fs::path m_file;
    int m_held = -1;
    std::promise<void> m_ended;
    std::thread m_thread;
};

TEST(ReplaceFileInTurn, WaitsHalfASecondInAllForOneProgramAfterTheOther)
{
    const ScratchFolder scratch;
    const fs::path file = scratch.put("A.THC", "old");
    const HoldersInTurn holders{scratch.path() / ".A.THC.tmp~"};
    const auto start = std::chrono::steady_clock::now();
    const Result<Done> outcome = replaceFile(file, "new");
    const auto waited = std::chrono::steady_clock::now() - start;
    ASSERT_FALSE(outcome);
    EXPECT_EQ(outcome.failure().message, kHeldByAnother);
    EXPECT_GE(waited, std::chrono::milliseconds{500});
    EXPECT_LT(waited, std::chrono::milliseconds{2500}) << "half a second for each holder would be far more";
    EXPECT_EQ(scratch.get("A.THC"), "old");
}

TEST(ReplaceFileInTurn, GoesRoundAPipeInTheTemporarysPlace)
{
    const ScratchFolder scratch;
    ASSERT_EQ(mkfifo((scratch.path() / ".A.THC.tmp~").c_str(), 0600), 0);
    EXPECT_TRUE(replaceFile(scratch.path() / "A.THC", "new"));
    EXPECT_EQ(scratch.get("A.THC"), "new");
}

TEST(ReplaceFileInTurn, GoesRoundATemporaryThatBelongsToAnotherUser)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "only root can play two users";
    const ScratchFolder scratch;
    const fs::path temporary = scratch.put(".A.THC.tmp~", "left by root");
    fs::permissions(scratch.path(), fs::perms{0777});
    for (const auto& [mode, mayBeRead] : {std::pair{0600u, false}, {0644u, true}}) {
        fs::permissions(temporary, fs::perms{mode});
        scratch.put("A.THC", "old");
        fs::permissions(scratch.path() / "A.THC", fs::perms{0666});
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            const bool isOther = ::setuid(65534) == 0;
            const auto holds = [&] { return !mayBeRead || isHeld(temporary); }; // root would wait meanwhile
            ::_exit(isOther && replaceFile(scratch.path() / "A.THC", "new", holds) ? 0 : 1);
        }
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << mode;
        EXPECT_EQ(scratch.get("A.THC"), "new");
        EXPECT_EQ(namesOfEntries(scratch.path()), (std::vector<std::string>{".A.THC.tmp~", "A.THC"}));
    }
}

} // namespace
} // namespace tallyhoop
