// tests/screens/demo_mode_test.cpp - entering and leaving demo mode, and what stays when that fails.
#include "screens/demo_pool.h"

#include <gtest/gtest.h>

namespace tallyhoop::test {
namespace {

namespace fs = std::filesystem;

std::string putBackFrom(const fs::path& backup)
{
    return "\r\n \r\nThe files of your own pool have been put back. Copies of them are in the folder:\r\n" +
           backup.string();
}

ui::Message noSamplePool(const OwnPool& pool, const std::string& reason)
{
    return {kCaption,
            "The sample pool could not be installed.\r\n \r\n" + (pool.scratch.path() / "DEMOSET.EXE").string() +
                "\r\n" + reason + putBackFrom(pool.scratch.path() / kBackup),
            ui::Buttons::Ok, ui::Icon::Critical};
}

TEST(ClearDemoDataFiles, DeletesThePoolAndTheSampleSelectionsOnly)
{
    OwnPool pool;
    pool.scratch.put("TALLYHOOP.INI", "1\r\n");
    for (const char* name : demo::kSelectionFiles)
        pool.scratch.put(name, "sample");
    EXPECT_TRUE(clearDemoDataFiles(pool.scratch.folder()));
    EXPECT_EQ(entriesOf(pool.scratch.path()), (std::vector<std::string>{"NCAALIST.THS", "Own_O.THC"}));
}

TEST(ClearDemoDataFiles, SucceedsWhenThereAreNone)
{
    const ScratchFolder scratch;
    EXPECT_TRUE(clearDemoDataFiles(scratch.folder()));
}

TEST(ClearDemoDataFiles, DeletesNothingMoreAfterAFileThatItCouldNotDelete)
{
    InstalledDemo demo;
    fs::remove(demo.scratch.path() / "PLAYERNAMES.CSV");
    fs::create_directory(demo.scratch.path() / "PLAYERNAMES.CSV");
    const Result<Done> outcome = clearDemoDataFiles(demo.scratch.folder());
    ASSERT_FALSE(outcome);
    EXPECT_TRUE(outcome.failure().message.starts_with((demo.scratch.path() / "PLAYERNAMES.CSV").string()));
    for (const char* name : demo::kSelectionFiles)
        EXPECT_TRUE(demo.scratch.has(name)) << name;
    EXPECT_TRUE(demo.scratch.has("POOLSTART.THS")) << "the board still has its field";
    EXPECT_TRUE(demo.scratch.has("TALLYHOOP.INI"));
}

TEST(ClearDemoDataFiles, KeepsTheFieldUntilEverythingButTheSettingsIsGone)
{
    InstalledDemo demo;
    fs::remove(demo.scratch.path() / "POOLSTART.THS");
    fs::create_directory(demo.scratch.path() / "POOLSTART.THS");
    EXPECT_FALSE(clearDemoDataFiles(demo.scratch.folder()));
    EXPECT_EQ(entriesOf(demo.scratch.path()), (std::vector<std::string>{"POOLSTART.THS", "TALLYHOOP.INI"}));
}

TEST(ClearDemoDataFiles, NamesTheFileItCouldNotDelete)
{
    OwnPool pool;
    fs::create_directory(pool.scratch.path() / "TALLYHOOP.INI");
    const Result<Done> outcome = clearDemoDataFiles(pool.scratch.folder());
    ASSERT_FALSE(outcome);
    EXPECT_EQ(outcome.failure().message, (pool.scratch.path() / "TALLYHOOP.INI").string() + "\r\nIs a directory");
    EXPECT_TRUE(pool.isCleared());
}

TEST(StartDemo, ClearsStartsTheInstallerAndWaitsForOk)
{
    OwnPool pool;
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
    OwnPool pool;
    int looks = 0;
    pool.platform.programs.whileWaitedFor = [&] {
        ++looks;
        if (looks == 2)
            pool.scratch.put("POOLSTART.THS", "*START*\r\n*END*\r\n");
        if (looks == 3)
            pool.scratch.put("TALLYHOOP.INI", "1\r\n"); // the last file
    };
    EXPECT_TRUE(startDemo(pool.scratch.folder(), pool.platform.services));
    EXPECT_TRUE(demoModeIsOn(pool.scratch.folder()));
    EXPECT_EQ(looks, 3);
    EXPECT_EQ(pool.platform.dialogs.shown,
              (std::vector<ui::Message>{kContinueInDemo, ownPoolIsIn(pool.scratch.path() / kBackup)}));
}

TEST(StartDemo, ShowsAtOnceThatTheInstallerHasFailedAndWhy)
{
    OwnPool pool;
    int looks = 0;
    pool.platform.programs.whileWaitedFor = [&] { ++looks; };
    pool.platform.programs.end = Failure{"The sample pool could not be written.\r\nNo space left on device"};
    EXPECT_TRUE(startDemo(pool.scratch.folder(), pool.platform.services)) << "files were written";
    EXPECT_EQ(looks, 1);
    EXPECT_EQ(pool.platform.dialogs.shown,
              (std::vector<ui::Message>{kContinueInDemo, noSamplePool(pool, "The sample pool could not be written.\r\n"
                                                                            "No space left on device")}));
    pool.expectPutBack();
}

TEST(StartDemo, ShowsThatTheInstallerHasEndedWithoutASamplePool)
{
    OwnPool pool;
    pool.platform.programs.end = Done{};
    EXPECT_TRUE(startDemo(pool.scratch.folder(), pool.platform.services)) << "files were written";
    EXPECT_EQ(pool.platform.dialogs.shown.back(), noSamplePool(pool, "It has ended without writing a sample pool."));
    pool.expectPutBack();
}

TEST(StartDemo, PutsThePoolBackInPlaceOfHalfASamplePool)
{
    OwnPool pool;
    pool.platform.programs.whenStarted = [&pool] {
        pool.scratch.put("POOLSTART.THS", "half a field");
        pool.scratch.put("Demo Prophet_DP.THC", "half a selection");
    };
    pool.platform.programs.end = Failure{"No space left on device"};
    EXPECT_TRUE(startDemo(pool.scratch.folder(), pool.platform.services));
    pool.expectPutBack();
}

TEST(StartDemo, SaysWhereThePoolIsWhenItCannotBePutBack)
{
    OwnPool pool;
    const fs::path inTheWay = pool.scratch.path() / "POOLSTART.THS";
    pool.platform.programs.whenStarted = [&] { fs::create_directories(inTheWay / "full"); };
    pool.platform.programs.end = Failure{"It broke."};
    EXPECT_TRUE(startDemo(pool.scratch.folder(), pool.platform.services));
    EXPECT_EQ(pool.platform.dialogs.shown.back().text,
              "The sample pool could not be installed.\r\n \r\n" + (pool.scratch.path() / "DEMOSET.EXE").string() +
                  "\r\nIt broke.\r\n \r\nYour own pool could not be put back:\r\n" + inTheWay.string() +
                  "\r\nIs a directory\r\n \r\nIts files are in the folder:\r\n" +
                  (pool.scratch.path() / kBackup).string());
    EXPECT_EQ(pool.scratch.get("TALLYHOOP.THS"), "own TALLYHOOP.THS") << "the others are put back";
}

TEST(StartDemo, TakesTheSamplePoolOfAnInstallerThatHasEnded)
{
    OwnPool pool;
    pool.platform.programs.whenStarted = [&pool] { pool.scratch.put("TALLYHOOP.INI", "1\r\n"); };
    pool.platform.programs.end = Done{};
    EXPECT_TRUE(startDemo(pool.scratch.folder(), pool.platform.services));
    EXPECT_TRUE(demoModeIsOn(pool.scratch.folder()));
}

TEST(StartDemo, GivesAnInstallerUpThatDoesNotFinish)
{
    OwnPool pool;
    int looks = 0;
    pool.platform.programs.whileWaitedFor = [&] { ++looks; };
    // What it writes until it is ended must not come after the own files.
    pool.platform.programs.whenStopped = [&] {
        EXPECT_TRUE(pool.isCleared());
        pool.scratch.put("TALLYHOOP.THS", "half a sample");
    };
    EXPECT_TRUE(startDemo(pool.scratch.folder(), pool.platform.services)) << "files were written";
    EXPECT_EQ(looks, 1000) << "a hundredth of a second each";
    EXPECT_EQ(pool.platform.programs.stops, 1);
    EXPECT_EQ(pool.platform.dialogs.shown.back(), noSamplePool(pool, "It has not finished."));
    pool.expectPutBack();
}

TEST(StartDemo, GivesTheInstallerUpWhenThePersonDoes)
{
    OwnPool pool;
    pool.platform.progress.cancelAt = 70;
    int looks = 0;
    pool.platform.programs.whileWaitedFor = [&] { ++looks; };
    EXPECT_TRUE(startDemo(pool.scratch.folder(), pool.platform.services)) << "files were written";
    EXPECT_EQ(looks, 70);
    EXPECT_EQ(pool.platform.dialogs.shown.back(), noSamplePool(pool, "It has not finished."));
    EXPECT_EQ(pool.platform.progress.ended, pool.platform.progress.begun);
}

TEST(StartDemo, LeavesNothingOfHalfASamplePoolOnAFirstStart)
{
    const ScratchFolder scratch;
    FakePlatform platform;
    platform.programs.whenStopped = [&scratch] { // a moment ago it wrote these, and the settings are still to come
        for (const demo::SampleFile& file : demo::sampleFiles())
            if (std::string_view{file.name} != "TALLYHOOP.INI")
                scratch.put(file.name, file.bytes);
    };
    platform.progress.cancelAt = 1;
    EXPECT_TRUE(startDemo(scratch.folder(), platform.services)) << "files were written";
    EXPECT_EQ(platform.programs.stops, 1);
    EXPECT_EQ(entriesOf(scratch.path()), std::vector<std::string>{});
    EXPECT_EQ(platform.dialogs.shown.back().text, "The sample pool could not be installed.\r\n \r\n" +
                                                      (scratch.path() / "DEMOSET.EXE").string() +
                                                      "\r\nIt has not finished.");
}

TEST(StartDemo, DeletesNothingWhenTheInstallerCannotBeStarted)
{
    OwnPool pool;
    pool.platform.programs.checkTrouble = Failure{"Permission denied"};
    EXPECT_FALSE(startDemo(pool.scratch.folder(), pool.platform.services));
    pool.expectUntouched();
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
    OwnPool pool;
    fs::create_directory(pool.scratch.path() / "TALLYHOOP.INI");
    EXPECT_TRUE(startDemo(pool.scratch.folder(), pool.platform.services)) << "files were written";
    EXPECT_TRUE(pool.platform.programs.started.empty());
    ASSERT_EQ(pool.platform.dialogs.shown.size(), 1u);
    EXPECT_EQ(pool.platform.dialogs.shown[0].icon, ui::Icon::Critical);
    for (const char* name : OwnPool::kNames)
        EXPECT_EQ(pool.scratch.get(name), std::string{"own "} + name);
}

TEST(StartDemo, SaysThatTheInstallerFailedToStartAfterAll)
{
    OwnPool pool;
    pool.platform.programs.startTrouble = Failure{"Out of memory"};
    EXPECT_TRUE(startDemo(pool.scratch.folder(), pool.platform.services)) << "files were written";
    ASSERT_EQ(pool.platform.dialogs.shown.size(), 1u);
    EXPECT_EQ(pool.platform.dialogs.shown[0].text,
              "Demonstration mode could not be started.\r\n \r\n" + (pool.scratch.path() / "DEMOSET.EXE").string() +
                  "\r\nOut of memory" + putBackFrom(pool.scratch.path() / kBackup));
    pool.expectPutBack();
    EXPECT_EQ(pool.platform.dialogs.shown[0].icon, ui::Icon::Critical);
}

TEST(EnterDemo, AsksFirst)
{
    OwnPool pool;
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
    OwnPool pool;
    pool.platform.dialogs.answer(ui::Answer::Cancel);
    EXPECT_FALSE(enterDemo(pool.scratch.folder(), pool.platform.services));
    pool.expectUntouched();
    EXPECT_TRUE(pool.platform.programs.started.empty());
}

TEST(LeaveDemo, ClearsWithoutAskingAndSaysWhatFollows)
{
    OwnPool pool;
    pool.scratch.put("tallyhoop.ini", "1\r\n");
    EXPECT_EQ(leaveDemo(pool.scratch.folder(), pool.platform.services), kOwnChangesAreKept);
    EXPECT_TRUE(pool.isCleared());
    EXPECT_FALSE(demoModeIsOn(pool.scratch.folder()));
    EXPECT_EQ(pool.platform.dialogs.shown,
              (std::vector<ui::Message>{kContinueNormally, ownChangesAreIn(pool.scratch.path() / kBackup)}));
}

TEST(LeaveDemo, StaysOnWhenAFileCannotBeDeletedAndCanBeTriedAgain)
{
    InstalledDemo demo;
    const fs::path inTheWay = demo.scratch.path() / "PLAYERNAMES.CSV";
    fs::remove(inTheWay);
    fs::create_directory(inTheWay);
    EXPECT_EQ(leaveDemo(demo.scratch.folder(), demo.platform.services), std::nullopt);
    EXPECT_TRUE(demoModeIsOn(demo.scratch.folder()));
    ASSERT_EQ(demo.platform.dialogs.shown.size(), 1u) << "and not that normal operation continues";
    EXPECT_EQ(demo.platform.dialogs.shown[0].text,
              "Demonstration mode cannot be left: a file could not be deleted.\r\n \r\n" + inTheWay.string() +
                  "\r\nIs a directory");

    fs::remove(inTheWay);
    EXPECT_EQ(leaveDemo(demo.scratch.folder(), demo.platform.services), "");
    EXPECT_FALSE(demoModeIsOn(demo.scratch.folder()));
    EXPECT_EQ(demo.platform.dialogs.shown.back(), kContinueNormally);
}

TEST(LeaveDemo, DeletesNothingWhenThereAreNoDemoFiles)
{
    const ScratchFolder scratch;
    FakePlatform platform;
    scratch.put("Own_O.THC", "own");
    EXPECT_EQ(leaveDemo(scratch.folder(), platform.services), "");
    EXPECT_TRUE(scratch.has("Own_O.THC"));
    EXPECT_EQ(platform.dialogs.shown, std::vector<ui::Message>{kContinueNormally});
}

TEST(LeaveDemo, SaysWhichFileStayed)
{
    OwnPool pool;
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

} // namespace
} // namespace tallyhoop::test
