// tests/files/replace_file_windows_test.cpp - a file is written as a whole or not at all, whatever Windows has to say
// to it.
#include "files/data_folder.h"
#include "files/replace_file.h"

#include "fakes/scratch_folder.h"

#include <future>
#include <gtest/gtest.h>
#include <iterator>
#include <memory>
#include <string>
#include <windows.h>

namespace tallyhoop {
namespace {

namespace fs = std::filesystem;
using test::ScratchFolder;

/// A file as another program has it open.
class OpenFile
{
public:
    OpenFile(const fs::path& file, DWORD share)
        : m_handle{::CreateFileW(file.c_str(), GENERIC_READ, share, nullptr, OPEN_EXISTING, 0, nullptr)}
    {
        EXPECT_NE(m_handle, INVALID_HANDLE_VALUE);
    }
    ~OpenFile() { ::CloseHandle(m_handle); }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

private:
    HANDLE m_handle;
};

std::ptrdiff_t entriesIn(const fs::path& folder) { return std::distance(fs::directory_iterator{folder}, {}); }

TEST(ReplaceFileOnWindows, RefusesAWriteProtectedFile)
{
    const ScratchFolder scratch;
    const fs::path file = scratch.put("A.THC", "old");
    ASSERT_TRUE(::SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY));
    const Result<Done> outcome = replaceFile(file, "new");
    ASSERT_FALSE(outcome);
    EXPECT_EQ(outcome.failure().message, "Permission denied");
    EXPECT_EQ(scratch.get("A.THC"), "old");
    EXPECT_EQ(entriesIn(scratch.path()), 1);
    ::SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST(ReplaceFileOnWindows, KeepsAHiddenFileHidden)
{
    const ScratchFolder scratch;
    const fs::path file = scratch.put("A.THC", "old");
    ASSERT_TRUE(::SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_HIDDEN));
    EXPECT_TRUE(replaceFile(file, "new"));
    EXPECT_EQ(scratch.get("A.THC"), "new");
    EXPECT_NE(::GetFileAttributesW(file.c_str()) & FILE_ATTRIBUTE_HIDDEN, 0u);
}

TEST(ReplaceFileOnWindows, SaysThatAnotherProgramHasTheFileOpen)
{
    const ScratchFolder scratch;
    const fs::path file = scratch.put("A.THC", "old");
    {
        const OpenFile spreadsheet{file, FILE_SHARE_READ};
        const Result<Done> outcome = replaceFile(file, "new");
        ASSERT_FALSE(outcome);
        EXPECT_EQ(outcome.failure().message, "Another program has the file open.");
        EXPECT_EQ(scratch.get("A.THC"), "old");
        EXPECT_EQ(entriesIn(scratch.path()), 1);
    }
    EXPECT_TRUE(replaceFile(file, "new"));
    EXPECT_EQ(scratch.get("A.THC"), "new");
}

TEST(ReplaceFileOnWindows, WaitsForAProgramThatHasTheFileOpenForAMoment)
{
    const ScratchFolder scratch;
    const fs::path file = scratch.put("A.THC", "old");
    auto scanner = std::make_unique<OpenFile>(file, FILE_SHARE_READ);
    const auto closed = std::async(std::launch::async, [&scanner] {
        ::Sleep(100);
        scanner.reset();
    });
    EXPECT_TRUE(replaceFile(file, "new"));
    closed.wait();
    EXPECT_EQ(scratch.get("A.THC"), "new");
}

TEST(ReplaceFileOnWindows, KeepsTheSpellingOfTheName)
{
    const ScratchFolder scratch;
    scratch.put("Poolstart.ths", "old");
    EXPECT_TRUE(scratch.folder().write("POOLSTART.THS", "new"));
    EXPECT_TRUE(scratch.has("Poolstart.ths"));
    EXPECT_FALSE(scratch.has("POOLSTART.THS")) << "has() tells them apart";
}

TEST(ReplaceFileOnWindows, MakesNoFileOfADevice)
{
    const ScratchFolder scratch;
    for (const char* name : {"NUL", "CON", "aux.thc"})
        EXPECT_FALSE(replaceFile(scratch.path() / name, "x")) << name;
    EXPECT_EQ(entriesIn(scratch.path()), 0);
}

TEST(ReplaceFileOnWindows, TakesNamesMadeSafeFromDevices)
{
    const ScratchFolder scratch;
    for (const char* name : {"CON.THC", "aux.thc", "COM1.THC", "LPT\xB9.THC", "NUL", "conout$"}) {
        const std::string safe = withoutUnsafeCharacters(name);
        EXPECT_TRUE(scratch.folder().write(safe, "x")) << safe;
        EXPECT_EQ(*readFile(scratch.folder().pathTo(safe)), "x") << safe;
    }
    EXPECT_EQ(entriesIn(scratch.path()), 6);
}

TEST(ReplaceFileOnWindows, TakesFoldersAndFilesWithAnyLetters)
{
    const ScratchFolder scratch;
    const fs::path folder = scratch.path() / u8"\u738B \u015F \U0001F3C0";
    ASSERT_TRUE(fs::create_directory(folder));
    for (const fs::path& file : {folder / "A.THC", folder / u8"\u0141ukasz_\u0141.THC"}) {
        EXPECT_TRUE(replaceFile(file, "old")) << file;
        EXPECT_TRUE(replaceFile(file, "new")) << file;
        EXPECT_EQ(*readFile(file), "new") << file;
    }
    EXPECT_EQ(entriesIn(folder), 2);
}

TEST(ReplaceFileOnWindows, TakesPathsOfMoreThan260Characters)
{
    const ScratchFolder scratch;
    const fs::path folder = scratch.path() / std::string(120, 'a');
    ASSERT_TRUE(fs::create_directory(folder));
    const std::string name = std::string(160, 'B') + ".THC";
    EXPECT_TRUE(replaceFile(folder / name, "old"));
    EXPECT_TRUE(DataFolder{folder}.write(name, "new"));
    EXPECT_EQ(*readFile(folder / name), "new");
    EXPECT_EQ(entriesIn(folder), 1);
}

TEST(ReadFileOnWindows, ReadsWhatAnotherProgramIsWriting)
{
    const ScratchFolder scratch;
    const fs::path file = scratch.put("A.THC", "old");
    const HANDLE writer = ::CreateFileW(file.c_str(), GENERIC_WRITE | DELETE, FILE_SHARE_READ | FILE_SHARE_DELETE,
                                        nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(writer, INVALID_HANDLE_VALUE);
    EXPECT_EQ(*readFile(file), "old");
    ::CloseHandle(writer);
}

TEST(ReadFileOnWindows, SaysThatAnotherProgramHasTheFileOpen)
{
    const ScratchFolder scratch;
    const fs::path file = scratch.put("A.THC", "old");
    const OpenFile alone{file, 0};
    EXPECT_EQ(readFile(file).failure().message, "Another program has the file open.");
}

// The nearest that wine has to the path of a network: it begins with two separators, too.
TEST(ReplaceFileOnWindows, TakesAPathThatBeginsWithTwoSeparators)
{
    const ScratchFolder scratch;
    const fs::path file = L"\\\\?\\" + (scratch.path() / "a.thc").make_preferred().native();
    EXPECT_TRUE(replaceFile(file, "new"));
    EXPECT_EQ(scratch.get("a.thc"), "new");
}

} // namespace
} // namespace tallyhoop
