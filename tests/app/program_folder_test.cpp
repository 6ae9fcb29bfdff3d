// tests/app/program_folder_test.cpp - the program works in its own folder or not at all.
#include "app/program_folder.h"

#include "fakes/scratch_folder.h"

#include <gtest/gtest.h>

namespace tallyhoop::test {
namespace {

namespace fs = std::filesystem;

TEST(ProgramFolder, IsTheOneThatHoldsTheExecutable)
{
    const ScratchFolder scratch;
    const Result<fs::path> folder = programFolder(scratch.path(), scratch.path() / "Tallyhoop");
    ASSERT_TRUE(folder);
    EXPECT_EQ(*folder, scratch.path());
}

#ifndef _WIN32 // where no name is lost
TEST(ProgramFolder, IsRefusedWhenItsNameIsLostOnTheWay)
{
    const ScratchFolder scratch;
    const fs::path real = scratch.path() / "Pool caf\xE9"; // an accented letter as older systems wrote it
    fs::create_directory(real);
    for (const fs::path& asNamed : {scratch.path() / "Pool caf\xEF\xBF\xBD", fs::path{}}) {
        const Result<fs::path> folder = programFolder(asNamed, real / "Tallyhoop");
        ASSERT_FALSE(folder);
        EXPECT_NE(folder.failure().message.find("Pool caf?\r\n"), std::string::npos) << "it says which folder";
        EXPECT_NE(folder.failure().message.find("they are not in UTF-8"), std::string::npos) << "and why";
    }
}
#endif

#ifndef _WIN32 // where no name is lost
TEST(ProgramFolder, IsRefusedWhenTheLostNameIsThatOfAnotherFolder)
{
    const ScratchFolder scratch;
    fs::create_directory(scratch.path() / "Pool caf\xE9");
    fs::create_directory(scratch.path() / "Pool caf");
    EXPECT_FALSE(programFolder(scratch.path() / "Pool caf", scratch.path() / "Pool caf\xE9" / "Tallyhoop"));
}
#endif

TEST(ProgramFolder, ThatCannotBeReachedIsNotBlamedOnItsName)
{
    const ScratchFolder scratch;
    const fs::path gone = scratch.path() / "gone";
    const Result<fs::path> folder = programFolder(gone, gone / "Tallyhoop");
    ASSERT_FALSE(folder);
    EXPECT_EQ(folder.failure().message,
              "Tallyhoop cannot work in its folder, because the system does not lead there:\r\n \r\n" + gone.string() +
                  "\r\nNo such file or directory\r\n \r\nNothing has been read or written.");
}

TEST(ProgramFolder, IsTakenAsNamedWhereTheSystemDoesNotSay)
{
    EXPECT_EQ(*programFolder("/pool", {}), fs::path{"/pool"});
    EXPECT_FALSE(programFolder({}, {}));
}

} // namespace
} // namespace tallyhoop::test
