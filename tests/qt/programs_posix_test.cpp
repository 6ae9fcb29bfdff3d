// tests/qt/programs_posix_test.cpp - other programs, which are scripts here.
#include "fakes/scratch_folder.h"
#include "qt/services/qt_system.h"

#include <QTest>
#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace tallyhoop;
using namespace tallyhoop::qt;

namespace {

using namespace std::chrono_literals;

constexpr auto kPatience = 30s; ///< only a failing test ever waits that long

void makeExecutable(const std::filesystem::path& file)
{
    std::filesystem::permissions(file, std::filesystem::perms::owner_all);
}

/// @returns the outcome of a program that consists of these lines
std::optional<Result<Done>> endOf(QtPrograms& programs, const std::string& lines)
{
    const tallyhoop::test::ScratchFolder scratch;
    const auto file = scratch.put("program", "#!/bin/sh\n" + lines);
    makeExecutable(file);
    EXPECT_TRUE(programs.start(file));
    return programs.waitForEnd(kPatience);
}

} // namespace

TEST(QtPrograms, AMissingProgramIsRefusedWithTheSystemsReason)
{
    const tallyhoop::test::ScratchFolder scratch;
    QtPrograms programs;
    const auto outcome = programs.check(scratch.path() / "DEMOSET.EXE");
    ASSERT_FALSE(outcome);
    EXPECT_EQ(outcome.failure().message, "No such file or directory"); // the caller adds which program it was
    EXPECT_FALSE(programs.start(scratch.path() / "DEMOSET.EXE"));
}

TEST(QtPrograms, AFileThatMayNotBeStartedIsRefused)
{
    const tallyhoop::test::ScratchFolder scratch;
    const auto file = scratch.put("DEMOSET.EXE", "#!/bin/sh\n");
    QtPrograms programs;
    const auto outcome = programs.check(file);
    ASSERT_FALSE(outcome);
    EXPECT_EQ(outcome.failure().message, "Permission denied");
    EXPECT_FALSE(programs.check(scratch.path()));
}

TEST(QtPrograms, StartsAProgramInItsOwnFolderWithoutWaiting)
{
    const tallyhoop::test::ScratchFolder scratch;
    const auto file = scratch.put("run me", "#!/bin/sh\npwd > where.txt\n");
    makeExecutable(file);
    QtPrograms programs;
    EXPECT_TRUE(programs.check(file));
    ASSERT_TRUE(programs.start(file));
    EXPECT_TRUE(QTest::qWaitFor([&] { return scratch.has("where.txt") && !scratch.get("where.txt").empty(); }));
    EXPECT_EQ(scratch.get("where.txt"), std::filesystem::canonical(scratch.path()).string() + "\n");
}

TEST(QtPrograms, AProgramOfNoKnownKindFailsToStart)
{
    const tallyhoop::test::ScratchFolder scratch;
    const auto file = scratch.put("odd", std::string(64, '\x01'));
    makeExecutable(file);
    QtPrograms programs;
    EXPECT_FALSE(programs.start(file));
}

TEST(QtPrograms, AFileThatIsNoProgramIsRefusedBeforeAnythingIsStarted)
{
    const tallyhoop::test::ScratchFolder scratch;
    QtPrograms programs;
    const std::string mark = "\177ELF"; // of a program
    for (const std::string& bytes : {std::string{}, std::string{"a text\n"}, mark, mark + std::string(60, '\x01')}) {
        const auto file = scratch.put("DEMOSET.EXE", bytes);
        makeExecutable(file);
        const auto outcome = programs.check(file);
        ASSERT_FALSE(outcome) << bytes.size() << " bytes";
        EXPECT_EQ(outcome.failure().message, "Exec format error");
    }
    EXPECT_TRUE(programs.check("/proc/self/exe")) << "a program for this computer";
}

TEST(QtPrograms, APipeIsNoProgramAndIsNotWaitedFor)
{
    const tallyhoop::test::ScratchFolder scratch;
    const std::filesystem::path pipe = scratch.path() / "DEMOSET.EXE";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0700), 0);
    QtPrograms programs;
    EXPECT_FALSE(programs.check(pipe));
}

TEST(QtPrograms, AProgramThatStillRunsHasNoOutcome)
{
    const tallyhoop::test::ScratchFolder scratch;
    const auto file = scratch.put("patient", "#!/bin/sh\nuntil [ -e go ]; do sleep 0.01; done\ntouch gone\n");
    makeExecutable(file);
    {
        QtPrograms programs;
        EXPECT_FALSE(programs.waitForEnd(0ms)) << "none was started";
        ASSERT_TRUE(programs.start(file));
        EXPECT_FALSE(programs.waitForEnd(1ms));
    }
    scratch.put("go", "");
    EXPECT_TRUE(QTest::qWaitFor([&] { return scratch.has("gone"); })) << "it keeps running";
}

TEST(QtPrograms, AProgramThatStillRunsCanBeEnded)
{
    const tallyhoop::test::ScratchFolder scratch;
    const auto file = scratch.put("patient", "#!/bin/sh\nuntil [ -e go ]; do sleep 0.01; done\ntouch gone\n");
    makeExecutable(file);
    QtPrograms programs;
    programs.stop(); // none was started
    ASSERT_TRUE(programs.start(file));
    programs.stop();
    const auto end = programs.waitForEnd(0ms);
    ASSERT_TRUE(end.has_value()) << "it is gone already";
    EXPECT_FALSE(*end);
}

TEST(QtPrograms, AProgramThatSucceedsIsDone)
{
    QtPrograms programs;
    const auto end = endOf(programs, "echo all is well >&2\n");
    ASSERT_TRUE(end.has_value());
    EXPECT_TRUE(*end);
    EXPECT_TRUE(*programs.waitForEnd(0ms)) << "and it can be asked again";
}

TEST(QtPrograms, AProgramThatFailsGivesItsOutputAsTheReason)
{
    QtPrograms programs;
    const auto end = endOf(programs, "printf 'caf\\303\\251\\r\\nis closed\\n' >&2\nexit 1\n");
    ASSERT_TRUE(end.has_value());
    ASSERT_FALSE(*end);
    EXPECT_EQ(end->failure().message, "caf\xE9\r\nis closed");
}

TEST(QtPrograms, AProgramThatFailsWithoutOutputIsAFailureToo)
{
    for (const char* last : {"exit 3\n", "kill -9 $$\n"}) {
        QtPrograms programs;
        const auto end = endOf(programs, last);
        ASSERT_TRUE(end.has_value());
        ASSERT_FALSE(*end) << last;
        EXPECT_EQ(end->failure().message, "It ended without saying why.");
    }
}
