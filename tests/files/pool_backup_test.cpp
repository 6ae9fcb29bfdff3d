// tests/files/pool_backup_test.cpp - files kept in a dated subfolder: whole, beside older ones, or not at all.
#include "files/pool_backup.h"

#include "fakes/scratch_folder.h"
#include "files/folder_lock.h"
#include "files/replace_file.h"

#include <algorithm>
#include <atomic>
#include <gtest/gtest.h>
#include <thread>
#include <vector>

namespace tallyhoop {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using test::ScratchFolder;

constexpr std::chrono::local_seconds kMoment =
    std::chrono::local_days{std::chrono::year{2026} / 11 / 20} + 10h + 15min + 30s;

/// @returns the names of a folder's entries, hidden ones too, sorted
std::vector<std::string> entriesOf(const fs::path& folder)
{
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator{folder})
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

TEST(BackUp, CopiesTheFilesIntoASubfolderNamedAfterTheMoment)
{
    const ScratchFolder scratch;
    scratch.put("POOLSTART.THS", "field\r\n");
    scratch.put("PLAYERNAMES.CSV", std::string{"caf\xE9\0\r\n", 7});
    scratch.put("Own_O.THC", "stays out");
    const Result<fs::path> backup = backUp(scratch.folder(), {"POOLSTART.THS", "PLAYERNAMES.CSV"}, kMoment);
    ASSERT_TRUE(backup) << backup.failure().message;
    EXPECT_EQ(*backup, scratch.path() / "Backup 2026-11-20 101530");
    EXPECT_EQ(entriesOf(*backup), (std::vector<std::string>{"PLAYERNAMES.CSV", "POOLSTART.THS"}));
    EXPECT_EQ(scratch.get("Backup 2026-11-20 101530/POOLSTART.THS"), "field\r\n");
    EXPECT_EQ(scratch.get("Backup 2026-11-20 101530/PLAYERNAMES.CSV"), (std::string{"caf\xE9\0\r\n", 7}));
    EXPECT_EQ(scratch.get("POOLSTART.THS"), "field\r\n") << "removing is somebody else's step";
    EXPECT_EQ(entriesOf(scratch.path()).size(), 4u) << "three files and the backup";
}

TEST(BackUp, WritesSingleDigitsWithALeadingZero)
{
    const ScratchFolder scratch;
    scratch.put("POOLSTART.THS", "field");
    const auto moment = std::chrono::local_days{std::chrono::year{2027} / 3 / 4} + 1h + 2min + 3s;
    const Result<fs::path> backup = backUp(scratch.folder(), {"POOLSTART.THS"}, moment);
    ASSERT_TRUE(backup);
    EXPECT_EQ(backup->filename(), "Backup 2027-03-04 010203");
}

TEST(BackUp, NeverAddsToAnExistingOne)
{
    const ScratchFolder scratch;
    scratch.put("POOLSTART.THS", "first");
    ASSERT_TRUE(backUp(scratch.folder(), {"POOLSTART.THS"}, kMoment));
    scratch.put("POOLSTART.THS", "second");
    const Result<fs::path> second = backUp(scratch.folder(), {"POOLSTART.THS"}, kMoment);
    scratch.put("POOLSTART.THS", "third");
    const Result<fs::path> third = backUp(scratch.folder(), {"POOLSTART.THS"}, kMoment);
    ASSERT_TRUE(second && third);
    EXPECT_EQ(second->filename(), "Backup 2026-11-20 101530 (2)");
    EXPECT_EQ(third->filename(), "Backup 2026-11-20 101530 (3)");
    EXPECT_EQ(scratch.get("Backup 2026-11-20 101530/POOLSTART.THS"), "first");
    EXPECT_EQ(scratch.get("Backup 2026-11-20 101530 (2)/POOLSTART.THS"), "second");
    EXPECT_EQ(scratch.get("Backup 2026-11-20 101530 (3)/POOLSTART.THS"), "third");
}

TEST(BackUp, StepsAsideForAFileAndForAnotherCase)
{
    const ScratchFolder scratch;
    scratch.put("POOLSTART.THS", "field");
    scratch.put("BACKUP 2026-11-20 101530", "a file of somebody");
    fs::create_directory(scratch.path() / "Backup 2026-11-20 101530 (2)"); // empty: a rename alone would take its place
    const Result<fs::path> backup = backUp(scratch.folder(), {"POOLSTART.THS"}, kMoment);
    ASSERT_TRUE(backup);
    EXPECT_EQ(backup->filename(), "Backup 2026-11-20 101530 (3)");
    EXPECT_EQ(scratch.get("BACKUP 2026-11-20 101530"), "a file of somebody");
    EXPECT_TRUE(fs::is_empty(scratch.path() / "Backup 2026-11-20 101530 (2)"));
}

TEST(BackUp, RemovesWhatACrashLeft)
{
    const ScratchFolder scratch;
    scratch.put("POOLSTART.THS", "field");
    fs::create_directory(scratch.path() / ".Backup.0badcafe.tmp~");
    scratch.put(".Backup.0badcafe.tmp~/TALLYHOOP.THS", "half a backup");
    const Result<fs::path> backup = backUp(scratch.folder(), {"POOLSTART.THS"}, kMoment);
    ASSERT_TRUE(backup);
    EXPECT_EQ(entriesOf(*backup), std::vector<std::string>{"POOLSTART.THS"});
    EXPECT_FALSE(scratch.has(".Backup.0badcafe.tmp~"));
}

TEST(BackUp, LeavesWhatAnotherProgramIsStillGathering)
{
    const ScratchFolder scratch;
    scratch.put("POOLSTART.THS", "field");
    const fs::path theirs = scratch.path() / ".Backup.0badcafe.tmp~";
    fs::create_directory(theirs);
    scratch.put(".Backup.0badcafe.tmp~/TALLYHOOP.THS", "half a backup");
    const FolderLock held{theirs};
    ASSERT_TRUE(backUp(scratch.folder(), {"POOLSTART.THS"}, kMoment));
    EXPECT_EQ(scratch.get(".Backup.0badcafe.tmp~/TALLYHOOP.THS"), "half a backup");
}

TEST(BackUp, IsWholeAlsoWhenSeveralProgramsMakeOneAtTheSameMoment)
{
    const ScratchFolder scratch;
    const fs::path file = scratch.put("POOLSTART.THS", "field");
    constexpr int kPrograms = 4;
    constexpr int kBackupsOfEach = 20;
    std::atomic<int> whole = 0;
    std::vector<std::thread> programs;
    for (int program = 0; program < kPrograms; ++program)
        programs.emplace_back([&] {
            for (int i = 0; i < kBackupsOfEach; ++i) {
                const Result<fs::path> backup = backUpFile(file, kMoment + std::chrono::seconds{i});
                if (!backup)
                    ADD_FAILURE() << backup.failure().message;
                else if (readFile(*backup / "POOLSTART.THS"))
                    ++whole;
            }
        });
    for (std::thread& program : programs)
        program.join();
    EXPECT_EQ(whole, kPrograms * kBackupsOfEach);
    EXPECT_EQ(entriesOf(scratch.path()).size(), 1u + kPrograms * kBackupsOfEach) << "the file and every backup";
}

TEST(BackUp, KeepsTimeAndMode)
{
    const ScratchFolder scratch;
    const fs::path file = scratch.put("PLAYERNAMES.CSV", "private");
    const fs::file_time_type lastYear = fs::last_write_time(file) - 8760h;
    fs::last_write_time(file, lastYear);
    fs::permissions(file, fs::perms::owner_read | fs::perms::owner_write);
    const Result<fs::path> backup = backUp(scratch.folder(), {"PLAYERNAMES.CSV"}, kMoment);
    ASSERT_TRUE(backup);
    EXPECT_EQ(fs::last_write_time(*backup / "PLAYERNAMES.CSV"), lastYear);
#ifndef _WIN32 // which has no modes
    EXPECT_EQ(fs::status(*backup / "PLAYERNAMES.CSV").permissions(), fs::perms::owner_read | fs::perms::owner_write);
#endif
}

#ifndef _WIN32 // where only administrators make links
TEST(BackUp, KeepsTheFileThatALinkLeadsTo)
{
    const ScratchFolder scratch;
    scratch.put("field on the server", "field");
    fs::create_symlink("field on the server", scratch.path() / "POOLSTART.THS");
    const Result<fs::path> backup = backUp(scratch.folder(), {"POOLSTART.THS"}, kMoment);
    ASSERT_TRUE(backup);
    EXPECT_FALSE(fs::is_symlink(fs::symlink_status(*backup / "POOLSTART.THS")));
    EXPECT_EQ(scratch.get("Backup 2026-11-20 101530/POOLSTART.THS"), "field");
}
#endif

TEST(BackUp, FindsAFileInAnotherCaseAndKeepsItsSpelling)
{
    const ScratchFolder scratch;
    scratch.put("poolstart.ths", "field");
    const Result<fs::path> backup = backUp(scratch.folder(), {"POOLSTART.THS"}, kMoment);
    ASSERT_TRUE(backup);
    EXPECT_EQ(entriesOf(*backup), std::vector<std::string>{"poolstart.ths"});
}

TEST(BackUp, LeavesNothingBehindWhenOneFileCannotBeRead)
{
    const ScratchFolder scratch;
    scratch.put("POOLSTART.THS", "field");
    fs::create_directory(scratch.path() / "TALLYHOOP.THS"); // readable for nobody as a file, root included
    const Result<fs::path> backup = backUp(scratch.folder(), {"POOLSTART.THS", "TALLYHOOP.THS"}, kMoment);
    ASSERT_FALSE(backup);
    EXPECT_EQ(backup.failure().message, (scratch.path() / "TALLYHOOP.THS").string() + "\r\nIs a directory");
    EXPECT_EQ(entriesOf(scratch.path()), (std::vector<std::string>{"POOLSTART.THS", "TALLYHOOP.THS"}));
}

TEST(BackUp, NamesTheFolderThatIsGone)
{
    const ScratchFolder scratch;
    const DataFolder gone{scratch.path() / "gone"};
    const Result<fs::path> backup = backUp(gone, {"POOLSTART.THS"}, kMoment);
    ASSERT_FALSE(backup);
    EXPECT_EQ(backup.failure().message, gone.folder().string() + "\r\nNo such file or directory");
}

TEST(BackUp, KeepsOneFileBesideItAlsoWhenItIsTooLargeToBeRead)
{
    const ScratchFolder scratch;
    const fs::path file = scratch.put("TALLYHOOP.THS", "x");
    fs::resize_file(file, std::uintmax_t{200} << 20); // a hole: takes no room
    const Result<fs::path> backup = backUpFile(file, kMoment);
    ASSERT_TRUE(backup) << backup.failure().message;
    EXPECT_EQ(*backup, scratch.path() / "Backup 2026-11-20 101530");
    fs::remove(file);
    EXPECT_EQ(fs::file_size(*backup / "TALLYHOOP.THS"), std::uintmax_t{200} << 20);
}

} // namespace
} // namespace tallyhoop
