// tests/files/settings_file_test.cpp - is demo mode on?
#include "files/settings_file.h"

#include "fakes/scratch_folder.h"

#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

using test::ScratchFolder;

TEST(DemoModeIsOn, WhenTheFirstLineIsOne)
{
    for (const char* bytes : {"1\r\n", "1", "1\n", "1\r\nmore\r\n"}) {
        const ScratchFolder scratch;
        scratch.put("TALLYHOOP.INI", bytes);
        EXPECT_TRUE(demoModeIsOn(scratch.folder())) << '"' << bytes << '"';
    }
}

TEST(DemoModeIsOff, WithBlanksAroundTheOne)
{
    for (const char* bytes : {"1 \r\n", " 1\r\n", "\t1"}) {
        const ScratchFolder scratch;
        scratch.put("TALLYHOOP.INI", bytes);
        EXPECT_FALSE(demoModeIsOn(scratch.folder())) << '"' << bytes << '"';
    }
}

TEST(DemoModeIsOff, WithAnyOtherFirstLine)
{
    for (const char* bytes : {"", "\r\n1\r\n", "0\r\n", "11\r\n", "*START*\r\n1\r\n"}) {
        const ScratchFolder scratch;
        scratch.put("TALLYHOOP.INI", bytes);
        EXPECT_FALSE(demoModeIsOn(scratch.folder())) << '"' << bytes << '"';
    }
}

TEST(DemoModeIsOff, WithAFileThatIsNoneOfOurs)
{
    const ScratchFolder scratch;
    scratch.put("TALLYHOOP.INI", "1\r\n" + std::string((1u << 20) - 3, 'x')); // 1 MB
    EXPECT_TRUE(demoModeIsOn(scratch.folder()));
    scratch.put("TALLYHOOP.INI", "1\r\n" + std::string((1u << 20) - 2, 'x'));
    EXPECT_FALSE(demoModeIsOn(scratch.folder()));
}

TEST(DemoModeIsOff, WithoutSettings)
{
    const ScratchFolder scratch;
    EXPECT_FALSE(demoModeIsOn(scratch.folder()));
    std::filesystem::create_directory(scratch.path() / "TALLYHOOP.INI");
    EXPECT_FALSE(demoModeIsOn(scratch.folder()));
}

TEST(DemoModeIsOn, IsReadAgainEveryTime)
{
    const ScratchFolder scratch;
    const DataFolder folder = scratch.folder();
    EXPECT_FALSE(demoModeIsOn(folder));
    scratch.put("tallyhoop.ini", "1\r\n");
    EXPECT_TRUE(demoModeIsOn(folder));
}

} // namespace
} // namespace tallyhoop
