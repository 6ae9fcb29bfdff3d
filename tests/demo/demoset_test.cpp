// tests/demo/demoset_test.cpp - the installer itself, started in a folder of its own.
#include "demo/sample_pool.h"
#include "fakes/scratch_folder.h"

#include <cstdlib>
#include <filesystem>
#include <gmock/gmock.h>

namespace tallyhoop {
namespace {

namespace fs = std::filesystem;

struct DemosetTest : testing::Test {
    test::ScratchFolder scratch;
    fs::path folder = scratch.path() / "a pool's folder";

    DemosetTest()
    {
        fs::create_directory(folder);
        fs::copy_file(TALLYHOOP_DEMOSET, folder / "DEMOSET.EXE");
    }

    /// Starts it from somewhere else.
    /// @param before what the shell does before
    /// @returns whether it says that it succeeded
    bool start(const std::string& before = "cd /") const
    {
        const std::string command = before + " && \"" + (folder / "DEMOSET.EXE").string() + "\" 2>\"" +
                                    (scratch.path() / "words").string() + "\"";
        return std::system(command.c_str()) == 0;
    }
};

TEST_F(DemosetTest, WritesThePoolIntoItsOwnFolder)
{
    EXPECT_TRUE(start());
    for (const demo::SampleFile& file : demo::sampleFiles())
        EXPECT_EQ(scratch.get("a pool's folder/" + file.name), file.bytes) << file.name;
    EXPECT_EQ(std::distance(fs::directory_iterator{folder}, {}), 9) << "eight files and itself";
    EXPECT_EQ(scratch.get("words"), "");
}

TEST_F(DemosetTest, RefusesAFolderThatHasAFieldAndSaysSo)
{
    scratch.put("a pool's folder/POOLSTART.THS", "mine");
    EXPECT_FALSE(start());
    EXPECT_EQ(scratch.get("a pool's folder/POOLSTART.THS"), "mine");
    EXPECT_EQ(std::distance(fs::directory_iterator{folder}, {}), 2);
    EXPECT_THAT(scratch.get("words"), testing::HasSubstr("POOLSTART.THS"));
}

#ifndef _WIN32 // which has no such limit
TEST_F(DemosetTest, LeavesNothingBehindWhereFilesMayNotGrow)
{
    EXPECT_FALSE(start("ulimit -f 1")) << "a block: half a kilobyte or one, less than the sample field";
    EXPECT_EQ(std::distance(fs::directory_iterator{folder}, {}), 1) << "itself";
    EXPECT_THAT(scratch.get("words"), testing::HasSubstr("could not be written"));
}
#endif

} // namespace
} // namespace tallyhoop
