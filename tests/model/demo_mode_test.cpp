// tests/model/demo_mode_test.cpp - entering and leaving demo mode, and what stays when that fails.
#include "model/demo_mode.h"

#include "fakes/fake_platform.h"
#include "fakes/scratch_folder.h"
#include "model/player_names_file.h"
#include "model/settings_file.h"

#include <gtest/gtest.h>
#include <thread>

namespace tallyhoop {
namespace {

namespace fs = std::filesystem;
using test::FakePlatform;
using test::ScratchFolder;

constexpr const char* kCaption = "STALLYHOOP DEMOSTRATION MODE"; // sic
const ui::Message kContinueInDemo{kCaption, "Select the OK Key to Continue in Demonstration Mode", ui::Buttons::Ok,
                                  ui::Icon::Information};
const ui::Message kContinueNormally{kCaption, "Select the OK Key to Continue Normal Operation of Program",
                                    ui::Buttons::Ok, ui::Icon::Information};

constexpr const char* kBackup = "Backup 2001-03-05 101530"; // the fake clock's moment

ui::Message whereBox(const char* first, const fs::path& backup)
{
    return {kCaption, std::string{first} + "\r\nThey have been moved to the folder:\r\n \r\n" + backup.string(),
            ui::Buttons::Ok, ui::Icon::Information};
}

ui::Message ownPoolIsIn(const fs::path& backup)
{
    return whereBox("The files of the pool that was here are kept.", backup);
}

ui::Message ownChangesAreIn(const fs::path& backup)
{
    return whereBox("Files that you changed or added in DEMO Mode are kept.", backup);
}

/// @returns the names of a folder's files and subfolders, sorted
std::vector<std::string> entriesOf(const fs::path& folder)
{
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator{folder})
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

/// A folder with the demo as an installer leaves it.
struct InstalledDemo {
    ScratchFolder scratch;
    FakePlatform platform;

    InstalledDemo()
    {
        std::vector<DemoFile> files{{"POOLSTART.THS", "sample field"},
                                    {"TALLYHOOP.THS", "sample results"},
                                    {"PLAYERNAMES.CSV", "sample players"}};
        for (const char* name : kDemoSelectionFiles)
            files.push_back({name, std::string{"picks of "} + name});
        for (const DemoFile& file : files)
            scratch.put(file.name, file.bytes);
        scratch.put("TALLYHOOP.INI", demoSettings(files));
    }
};

/// A folder with a pool of one's own: what demo mode replaces, and what it must not touch.
struct Pool {
    ScratchFolder scratch;
    FakePlatform platform;

    Pool()
    {
        for (const char* name : {"POOLSTART.THS", "TALLYHOOP.THS", "PLAYERNAMES.CSV", "NCAALIST.THS", "Own_O.THC"})
            scratch.put(name, "own");
    }
    bool isUntouched() const
    {
        return scratch.has("POOLSTART.THS") && scratch.has("TALLYHOOP.THS") && scratch.has("PLAYERNAMES.CSV") &&
               scratch.has("NCAALIST.THS") && scratch.has("Own_O.THC");
    }
    bool isCleared() const
    {
        return !scratch.has("POOLSTART.THS") && !scratch.has("TALLYHOOP.THS") && !scratch.has("PLAYERNAMES.CSV");
    }
};

TEST(ClearDemoDataFiles, DeletesThePoolAndTheSampleSelectionsOnly)
{
    Pool pool;
    pool.scratch.put("TALLYHOOP.INI", "1\r\n");
    for (const char* name : kDemoSelectionFiles)
        pool.scratch.put(name, "sample");
    EXPECT_TRUE(clearDemoDataFiles(pool.scratch.folder()));
    EXPECT_EQ(entriesOf(pool.scratch.path()), (std::vector<std::string>{"NCAALIST.THS", "Own_O.THC"}));
}

TEST(ClearDemoDataFiles, SucceedsWhenThereAreNone)
{
    const ScratchFolder scratch;
    EXPECT_TRUE(clearDemoDataFiles(scratch.folder()));
}

TEST(ClearDemoDataFiles, NamesTheFirstFileItCouldNotDeleteAndDeletesTheOthers)
{
    Pool pool;
    fs::create_directory(pool.scratch.path() / "TALLYHOOP.INI");
    const Result<Done> outcome = clearDemoDataFiles(pool.scratch.folder());
    ASSERT_FALSE(outcome);
    EXPECT_EQ(outcome.failure().message, (pool.scratch.path() / "TALLYHOOP.INI").string() + "\r\nIs a directory");
    EXPECT_TRUE(pool.isCleared());
}

TEST(StartDemo, ClearsStartsTheInstallerAndWaitsForOk)
{
    Pool pool;
    pool.platform.programs.whenStarted = [&pool] {
        EXPECT_TRUE(pool.isCleared()) << "the installer must find a cleared folder";
        EXPECT_TRUE(pool.platform.dialogs.shown.empty());
        pool.scratch.put("TALLYHOOP.INI", "1\r\n");
    };
    EXPECT_TRUE(startDemo(pool.scratch.folder(), pool.platform.services));
    EXPECT_EQ(pool.platform.programs.started, std::vector<fs::path>{pool.scratch.path() / "DEMOSET.EXE"});
    EXPECT_EQ(pool.platform.dialogs.shown,
              (std::vector<ui::Message>{kContinueInDemo, ownPoolIsIn(pool.scratch.path() / kBackup)}));
    EXPECT_TRUE(demoModeIsOn(pool.scratch.folder()));
    EXPECT_TRUE(pool.scratch.has("NCAALIST.THS"));
    EXPECT_TRUE(pool.scratch.has("Own_O.THC"));
}

TEST(StartDemo, LetsASlowInstallerFinishAfterAHastyOk)
{
    Pool pool;
    std::thread installer;
    pool.platform.dialogs.whileShown = [&](const ui::Message& message) {
        if (message != ownPoolIsIn(pool.scratch.path() / kBackup))
            return;
        installer = std::thread{[&pool] {
            pool.scratch.put("POOLSTART.THS", "*START*\r\n*END*\r\n");
            pool.scratch.put("TALLYHOOP.INI", "1\r\n");
        }};
    };
    EXPECT_TRUE(startDemo(pool.scratch.folder(), pool.platform.services));
    EXPECT_TRUE(pool.scratch.has("POOLSTART.THS"));
    EXPECT_TRUE(demoModeIsOn(pool.scratch.folder()));
    installer.join();
}

TEST(StartDemo, DeletesNothingWhenTheInstallerCannotBeStarted)
{
    Pool pool;
    pool.platform.programs.checkTrouble = Failure{"Permission denied"};
    EXPECT_FALSE(startDemo(pool.scratch.folder(), pool.platform.services));
    EXPECT_TRUE(pool.isUntouched());
    EXPECT_TRUE(pool.platform.programs.started.empty());
    ASSERT_EQ(pool.platform.dialogs.shown.size(), 1u);
    const ui::Message& message = pool.platform.dialogs.shown[0];
    EXPECT_EQ(message.caption, kCaption);
    EXPECT_EQ(message.icon, ui::Icon::Critical);
    EXPECT_EQ(message.buttons, ui::Buttons::Ok);
    EXPECT_EQ(message.text, "Demonstration mode cannot be started. Nothing was changed.\r\n \r\n" +
                                (pool.scratch.path() / "DEMOSET.EXE").string() + "\r\nPermission denied");
}

TEST(StartDemo, StartsNothingWhenTheFolderCannotBeWritten)
{
    const ScratchFolder scratch;
    FakePlatform platform;
    const DataFolder gone{scratch.path() / "gone"};
    EXPECT_FALSE(startDemo(gone, platform.services));
    EXPECT_TRUE(platform.programs.started.empty());
    ASSERT_EQ(platform.dialogs.shown.size(), 1u);
    EXPECT_EQ(platform.dialogs.shown[0].caption, kCaption);
    EXPECT_EQ(platform.dialogs.shown[0].text, "Demonstration mode cannot be started. Nothing was changed.\r\n \r\n" +
                                                  gone.folder().string() + "\r\nNo such file or directory");
}

TEST(StartDemo, DoesNotStartTheInstallerOverAFileThatCouldNotBeDeleted)
{
    Pool pool;
    fs::create_directory(pool.scratch.path() / "TALLYHOOP.INI");
    EXPECT_FALSE(startDemo(pool.scratch.folder(), pool.platform.services));
    EXPECT_TRUE(pool.platform.programs.started.empty());
    ASSERT_EQ(pool.platform.dialogs.shown.size(), 2u);
    EXPECT_EQ(pool.platform.dialogs.shown[0].icon, ui::Icon::Critical);
    EXPECT_EQ(pool.platform.dialogs.shown[1], ownPoolIsIn(pool.scratch.path() / kBackup)) << "part of it is gone";
}

TEST(StartDemo, SaysThatTheInstallerFailedToStartAfterAll)
{
    Pool pool;
    pool.platform.programs.startTrouble = Failure{"Out of memory"};
    EXPECT_FALSE(startDemo(pool.scratch.folder(), pool.platform.services));
    ASSERT_EQ(pool.platform.dialogs.shown.size(), 2u);
    EXPECT_EQ(pool.platform.dialogs.shown[1], ownPoolIsIn(pool.scratch.path() / kBackup));
    EXPECT_EQ(pool.platform.dialogs.shown[0].text, "Demonstration mode could not be started.\r\n \r\n" +
                                                       (pool.scratch.path() / "DEMOSET.EXE").string() +
                                                       "\r\nOut of memory");
    EXPECT_EQ(pool.platform.dialogs.shown[0].icon, ui::Icon::Critical);
}

TEST(StartDemo, MovesAPoolOfOnesOwnIntoADatedSubfolder)
{
    Pool pool;
    pool.scratch.put("Demo Halfway_DH.THC", "a real player of this name");
    pool.scratch.put("TALLYHOOP.INI", "0\r\n");
    pool.platform.programs.whenStarted = [&pool] {
        EXPECT_EQ(entriesOf(pool.scratch.path()), (std::vector<std::string>{kBackup, "NCAALIST.THS", "Own_O.THC"}));
        pool.scratch.put("TALLYHOOP.INI", "1\r\n");
    };
    EXPECT_TRUE(startDemo(pool.scratch.folder(), pool.platform.services));
    EXPECT_EQ(entriesOf(pool.scratch.path() / kBackup),
              (std::vector<std::string>{"Demo Halfway_DH.THC", "PLAYERNAMES.CSV", "POOLSTART.THS", "TALLYHOOP.INI",
                                        "TALLYHOOP.THS"}));
    EXPECT_EQ(pool.scratch.get(std::string{kBackup} + "/PLAYERNAMES.CSV"), "own");
}

TEST(StartDemo, SaysNothingMoreOnAFirstStart)
{
    const ScratchFolder scratch;
    FakePlatform platform;
    scratch.put("PLAYERNAMES.CSV", playerNamesFile({})); // what the program itself puts into an empty folder
    platform.programs.whenStarted = [&scratch] {
        EXPECT_FALSE(scratch.has("PLAYERNAMES.CSV"));
        scratch.put("TALLYHOOP.INI", "1\r\n");
    };
    EXPECT_TRUE(startDemo(scratch.folder(), platform.services));
    EXPECT_EQ(platform.dialogs.shown, std::vector<ui::Message>{kContinueInDemo});
    EXPECT_EQ(entriesOf(scratch.path()), std::vector<std::string>{"TALLYHOOP.INI"});
}

TEST(StartDemo, KeepsTwoPoolsOfTheSameSecondApart)
{
    Pool pool;
    pool.platform.programs.whenStarted = [&pool] { pool.scratch.put("TALLYHOOP.INI", "1\r\n"); };
    EXPECT_TRUE(startDemo(pool.scratch.folder(), pool.platform.services));
    pool.scratch.put("POOLSTART.THS", "copied back, and changed");
    EXPECT_TRUE(startDemo(pool.scratch.folder(), pool.platform.services));
    EXPECT_EQ(pool.scratch.get(std::string{kBackup} + "/POOLSTART.THS"), "own");
    EXPECT_EQ(pool.scratch.get(std::string{kBackup} + " (2)/POOLSTART.THS"), "copied back, and changed");
    EXPECT_EQ(pool.platform.dialogs.shown.back(), ownPoolIsIn(pool.scratch.path() / (std::string{kBackup} + " (2)")));
}

TEST(StartDemo, ReplacesAnUntouchedDemoWithoutKeepingIt)
{
    InstalledDemo demo;
    demo.platform.programs.whenStarted = [&demo] { demo.scratch.put("TALLYHOOP.INI", "1\r\n"); };
    EXPECT_TRUE(startDemo(demo.scratch.folder(), demo.platform.services));
    EXPECT_EQ(demo.platform.dialogs.shown, std::vector<ui::Message>{kContinueInDemo});
    EXPECT_EQ(entriesOf(demo.scratch.path()), std::vector<std::string>{"TALLYHOOP.INI"});
}

TEST(StartDemo, RemovesNothingWhenThePoolCannotBeKept)
{
    Pool pool;
    const fs::path file = pool.scratch.path() / "TALLYHOOP.THS";
    fs::resize_file(file, (64u << 20) + 1); // more than the program reads, for root too
    EXPECT_FALSE(startDemo(pool.scratch.folder(), pool.platform.services));
    EXPECT_TRUE(pool.isUntouched());
    EXPECT_TRUE(pool.platform.programs.started.empty());
    EXPECT_EQ(entriesOf(pool.scratch.path()).size(), 5u) << "and nothing half done is left";
    ASSERT_EQ(pool.platform.dialogs.shown.size(), 1u);
    EXPECT_EQ(pool.platform.dialogs.shown[0].text, "Demonstration mode cannot be started. Nothing was changed.\r\n"
                                                   " \r\n" +
                                                       file.string() + "\r\nFile too large");
    EXPECT_EQ(pool.platform.dialogs.shown[0].icon, ui::Icon::Critical);
}

TEST(EnterDemo, AsksFirst)
{
    Pool pool;
    pool.platform.dialogs.answer(ui::Answer::Ok);
    pool.platform.programs.whenStarted = [&pool] {
        EXPECT_TRUE(pool.isCleared());
        pool.scratch.put("TALLYHOOP.INI", "1\r\n");
    };
    EXPECT_TRUE(enterDemo(pool.scratch.folder(), pool.platform.services));
    const ui::Message question{"** DEMO MODE SET **",
                               "You have selected to enter DEMO MODE\r\n"
                               " \r\n"
                               "If you continue, any setup activity INCLUDING the \r\n"
                               "files defining the starting tournament teams and\r\n"
                               "the special comments will be deleted..\r\n"
                               " \r\n"
                               "Do you want to enter DEMO Mode?",
                               ui::Buttons::OkCancel, ui::Icon::Question};
    EXPECT_EQ(pool.platform.dialogs.shown,
              (std::vector<ui::Message>{question, kContinueInDemo, ownPoolIsIn(pool.scratch.path() / kBackup)}));
    EXPECT_TRUE(pool.scratch.has("TALLYHOOP.INI"));
}

TEST(EnterDemo, ChangesNothingOnCancel)
{
    Pool pool;
    pool.platform.dialogs.answer(ui::Answer::Cancel);
    EXPECT_FALSE(enterDemo(pool.scratch.folder(), pool.platform.services));
    EXPECT_TRUE(pool.isUntouched());
    EXPECT_TRUE(pool.platform.programs.started.empty());
}

TEST(LeaveDemo, ClearsWithoutAskingAndSaysWhatFollows)
{
    Pool pool;
    pool.scratch.put("tallyhoop.ini", "1\r\n");
    EXPECT_TRUE(leaveDemo(pool.scratch.folder(), pool.platform.services));
    EXPECT_TRUE(pool.isCleared());
    EXPECT_FALSE(demoModeIsOn(pool.scratch.folder()));
    EXPECT_EQ(pool.platform.dialogs.shown,
              (std::vector<ui::Message>{kContinueNormally, ownChangesAreIn(pool.scratch.path() / kBackup)}))
        << "settings without marks leave open whose these files are";
}

TEST(LeaveDemo, DeletesNothingWhenThereAreNoDemoFiles)
{
    const ScratchFolder scratch;
    FakePlatform platform;
    scratch.put("Own_O.THC", "own");
    EXPECT_TRUE(leaveDemo(scratch.folder(), platform.services));
    EXPECT_TRUE(scratch.has("Own_O.THC"));
    EXPECT_EQ(platform.dialogs.shown, std::vector<ui::Message>{kContinueNormally});
}

TEST(LeaveDemo, SaysWhichFileStayed)
{
    Pool pool;
    fs::create_directory(pool.scratch.path() / "POOLSTART.THS.d");
    fs::remove(pool.scratch.path() / "POOLSTART.THS");
    fs::rename(pool.scratch.path() / "POOLSTART.THS.d", pool.scratch.path() / "POOLSTART.THS");
    EXPECT_TRUE(leaveDemo(pool.scratch.folder(), pool.platform.services));
    ASSERT_EQ(pool.platform.dialogs.shown.size(), 3u);
    EXPECT_EQ(pool.platform.dialogs.shown[0].text, "A file of the demonstration could not be deleted.\r\n \r\n" +
                                                       (pool.scratch.path() / "POOLSTART.THS").string() +
                                                       "\r\nIs a directory");
    EXPECT_EQ(pool.platform.dialogs.shown[1], kContinueNormally);
}

TEST(LeaveDemo, DeletesAnUntouchedDemoWithoutAWordMore)
{
    InstalledDemo demo;
    demo.scratch.put("Own_O.THC", "own");
    EXPECT_TRUE(leaveDemo(demo.scratch.folder(), demo.platform.services));
    EXPECT_EQ(entriesOf(demo.scratch.path()), std::vector<std::string>{"Own_O.THC"});
    EXPECT_EQ(demo.platform.dialogs.shown, std::vector<ui::Message>{kContinueNormally});
}

TEST(LeaveDemo, KeepsWhatThePersonChangedMeanwhile)
{
    InstalledDemo demo;
    demo.scratch.put("TALLYHOOP.THS", "my results");
    demo.scratch.put("Demo Prophet_DP.THC", "my picks");
    EXPECT_TRUE(leaveDemo(demo.scratch.folder(), demo.platform.services));
    EXPECT_EQ(entriesOf(demo.scratch.path()), std::vector<std::string>{kBackup});
    EXPECT_EQ(entriesOf(demo.scratch.path() / kBackup),
              (std::vector<std::string>{"Demo Prophet_DP.THC", "TALLYHOOP.THS"}));
    EXPECT_EQ(demo.scratch.get(std::string{kBackup} + "/TALLYHOOP.THS"), "my results");
    EXPECT_EQ(demo.platform.dialogs.shown,
              (std::vector<ui::Message>{kContinueNormally, ownChangesAreIn(demo.scratch.path() / kBackup)}));
}

TEST(LeaveDemo, RemovesNothingAndStaysOnWhenAChangedFileCannotBeKept)
{
    InstalledDemo demo;
    fs::resize_file(demo.scratch.path() / "TALLYHOOP.THS", (64u << 20) + 1); // more than the program reads
    EXPECT_FALSE(leaveDemo(demo.scratch.folder(), demo.platform.services));
    EXPECT_EQ(entriesOf(demo.scratch.path()).size(), 8u);
    EXPECT_TRUE(demoModeIsOn(demo.scratch.folder()));
    ASSERT_EQ(demo.platform.dialogs.shown.size(), 1u);
    EXPECT_EQ(demo.platform.dialogs.shown[0].text, "Demonstration mode cannot be left. Nothing was changed.\r\n \r\n" +
                                                       (demo.scratch.path() / "TALLYHOOP.THS").string() +
                                                       "\r\nFile too large");
}

} // namespace
} // namespace tallyhoop
