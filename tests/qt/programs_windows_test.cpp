// tests/qt/programs_windows_test.cpp - other programs, which are batch files here.
#include "fakes/scratch_folder.h"
#include "files/own_program.h"
#include "qt/services/qt_system.h"

#include <QTest>
#include <gtest/gtest.h>

using namespace tallyhoop;
using namespace tallyhoop::qt;

namespace {

using namespace std::chrono_literals;

constexpr auto kPatience = 60s; ///< only a failing test ever waits that long

/// @returns the outcome of a program that consists of these lines
std::optional<Result<Done>> endOf(QtPrograms& programs, const std::string& lines)
{
    const tallyhoop::test::ScratchFolder scratch;
    EXPECT_TRUE(programs.start(scratch.put("program.bat", "@echo off\r\n" + lines)));
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

TEST(QtPrograms, AFolderOrATextIsNoProgram)
{
    const tallyhoop::test::ScratchFolder scratch;
    QtPrograms programs;
    EXPECT_FALSE(programs.check(scratch.path()));
    EXPECT_FALSE(programs.check(scratch.put("DEMOSET.TXT", "@echo off\r\n")));
    EXPECT_TRUE(programs.check(ownProgram()));
}

TEST(QtPrograms, AFileThatOnlyHasTheNameOfAProgramFailsToStart)
{
    const tallyhoop::test::ScratchFolder scratch;
    QtPrograms programs;
    for (const std::string& bytes : {std::string{}, std::string{"a text\r\n"}, "MZ" + std::string(62, '\x01')})
        EXPECT_FALSE(programs.start(scratch.put("DEMOSET.EXE", bytes))) << bytes.size() << " bytes";
}

TEST(QtPrograms, StartsAProgramInItsOwnFolderWithoutWaiting)
{
    const tallyhoop::test::ScratchFolder scratch;
    const auto file = scratch.put("run me.bat", "@echo here> where.txt\r\n");
    QtPrograms programs;
    ASSERT_TRUE(programs.start(file));
    EXPECT_TRUE(QTest::qWaitFor([&] { return scratch.has("where.txt"); }, 60000));
}

TEST(QtPrograms, AProgramThatStillRunsCanBeEnded)
{
    const tallyhoop::test::ScratchFolder scratch;
    const auto file = scratch.put("patient.bat", "@echo off\r\n:again\r\nif not exist go goto again\r\n");
    QtPrograms programs;
    EXPECT_FALSE(programs.waitForEnd(0ms)) << "none was started";
    programs.stop();
    ASSERT_TRUE(programs.start(file));
    EXPECT_FALSE(programs.waitForEnd(1ms));
    programs.stop();
    const auto end = programs.waitForEnd(0ms);
    ASSERT_TRUE(end.has_value()) << "it is gone already";
    EXPECT_FALSE(*end);
}

TEST(QtPrograms, AProgramThatSucceedsIsDone)
{
    QtPrograms programs;
    const auto end = endOf(programs, "echo all is well 1>&2\r\n");
    ASSERT_TRUE(end.has_value());
    EXPECT_TRUE(*end);
    EXPECT_TRUE(*programs.waitForEnd(0ms)) << "and it can be asked again";
}

TEST(QtPrograms, AProgramThatFailsGivesItsOutputAsTheReason)
{
    QtPrograms programs;
    const auto end = endOf(programs, "echo the shop>&2\r\necho is closed>&2\r\nexit 1\r\n");
    ASSERT_TRUE(end.has_value());
    ASSERT_FALSE(*end);
    EXPECT_EQ(end->failure().message, "the shop\r\nis closed");
}

TEST(QtPrograms, AProgramThatFailsWithoutOutputIsAFailureToo)
{
    QtPrograms programs;
    const auto end = endOf(programs, "exit 3\r\n");
    ASSERT_TRUE(end.has_value());
    ASSERT_FALSE(*end);
    EXPECT_EQ(end->failure().message, "It ended without saying why.");
}
