// tests/files/replace_file_test.cpp - a file is written as a whole or not at all, whatever goes wrong.
#include "files/replace_file.h"

#include "fakes/scratch_folder.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <vector>

namespace tallyhoop {
namespace {

namespace fs = std::filesystem;
using test::ScratchFolder;

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

TEST(ReplaceFile, FailsWhenTheFolderHasVanished)
{
    const ScratchFolder scratch;
    const Result<Done> outcome = replaceFile(scratch.path() / "gone" / "A.THC", "x");
    ASSERT_FALSE(outcome);
    EXPECT_EQ(outcome.failure().message, "No such file or directory");
    EXPECT_EQ(namesIn(scratch.path()), Names{});
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

TEST(ReplaceFile, RefusesToReplaceAFolder)
{
    const ScratchFolder scratch;
    fs::create_directory(scratch.path() / "FOLDER");
    EXPECT_FALSE(replaceFile(scratch.path() / "FOLDER", "new"));
    EXPECT_TRUE(fs::is_directory(scratch.path() / "FOLDER"));
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

TEST(ReadFile, SaysWhyItFailed)
{
    const ScratchFolder scratch;
    EXPECT_EQ(readFile(scratch.path() / "missing").failure().message, "No such file or directory");
    EXPECT_EQ(readFile(scratch.path()).failure().message, "Is a directory");
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
