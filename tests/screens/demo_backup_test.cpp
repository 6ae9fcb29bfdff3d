// tests/screens/demo_backup_test.cpp - what demo mode keeps: a pool of one's own, and what was changed in the demo.
#include "files/player_names_file.h"
#include "screens/demo_pool.h"

#include <gtest/gtest.h>

namespace tallyhoop::test {
namespace {

namespace fs = std::filesystem;

TEST(StartDemo, KeepsAPoolOfOnesOwnWholeEvenWhereAFileIsLikeTheDemos)
{
    OwnPool pool;
    const demo::SampleFile results = demo::sampleFiles().front();
    pool.scratch.put(results.name, results.bytes);
    pool.platform.programs.whenStarted = [&pool] { pool.scratch.put("TALLYHOOP.INI", "1\r\n"); };
    EXPECT_TRUE(startDemo(pool.scratch.folder(), pool.platform.services));
    EXPECT_EQ(entriesOf(pool.scratch.path() / kBackup),
              (std::vector<std::string>{"PLAYERNAMES.CSV", "POOLSTART.THS", "TALLYHOOP.THS"}));
}

TEST(StartDemo, MovesAPoolOfOnesOwnIntoADatedSubfolder)
{
    OwnPool pool;
    pool.scratch.put("Demo Halfway_DH.THC", "a real player of this name");
    pool.scratch.put("TALLYHOOP.INI", "0\r\n");
    pool.scratch.put("PRIZES.CSV", "own prizes");
    pool.platform.programs.whenStarted = [&pool] {
        EXPECT_EQ(entriesOf(pool.scratch.path()), (std::vector<std::string>{kBackup, "NCAALIST.THS", "Own_O.THC"}));
        pool.scratch.put("TALLYHOOP.INI", "1\r\n");
    };
    EXPECT_TRUE(startDemo(pool.scratch.folder(), pool.platform.services));
    EXPECT_EQ(entriesOf(pool.scratch.path() / kBackup),
              (std::vector<std::string>{"Demo Halfway_DH.THC", "PLAYERNAMES.CSV", "POOLSTART.THS", "PRIZES.CSV",
                                        "TALLYHOOP.INI", "TALLYHOOP.THS"}));
    EXPECT_EQ(pool.scratch.get(std::string{kBackup} + "/PLAYERNAMES.CSV"), "own PLAYERNAMES.CSV");
}

#ifndef _WIN32 // where these are one file
TEST(StartDemo, MovesAFileOfTheSameNameInOtherLettersTooNextToTheDemos)
{
    OwnPool pool;
    pool.scratch.put("Demo Prophet_DP.THC", "one player of this name");
    pool.scratch.put("DEMO PROPHET_DP.THC", "another one");
    pool.platform.programs.whenStarted = [&pool] {
        EXPECT_EQ(entriesOf(pool.scratch.path()), (std::vector<std::string>{kBackup, "NCAALIST.THS", "Own_O.THC"}));
        pool.scratch.put("TALLYHOOP.INI", "1\r\n");
    };
    EXPECT_TRUE(startDemo(pool.scratch.folder(), pool.platform.services));
    EXPECT_EQ(pool.scratch.get(std::string{kBackup} + "/Demo Prophet_DP.THC"), "one player of this name");
    EXPECT_EQ(pool.scratch.get(std::string{kBackup} + "/DEMO PROPHET_DP.THC"), "another one");
}
#endif

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
    OwnPool pool;
    pool.platform.programs.whenStarted = [&pool] { pool.scratch.put("TALLYHOOP.INI", "1\r\n"); };
    EXPECT_TRUE(startDemo(pool.scratch.folder(), pool.platform.services));
    pool.scratch.put("POOLSTART.THS", "copied back, and changed");
    EXPECT_TRUE(startDemo(pool.scratch.folder(), pool.platform.services));
    EXPECT_EQ(pool.scratch.get(std::string{kBackup} + "/POOLSTART.THS"), "own POOLSTART.THS");
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
    OwnPool pool;
    const fs::path file = pool.scratch.path() / "TALLYHOOP.THS";
    fs::resize_file(file, (64u << 20) + 1); // more than the program reads, for root too
    EXPECT_FALSE(startDemo(pool.scratch.folder(), pool.platform.services));
    pool.expectUntouched("TALLYHOOP.THS");
    EXPECT_TRUE(pool.platform.programs.started.empty());
    ASSERT_EQ(pool.platform.dialogs.shown.size(), 1u);
    EXPECT_EQ(pool.platform.dialogs.shown[0].text, "Demonstration mode cannot be started. Nothing was changed.\r\n"
                                                   " \r\n" +
                                                       file.string() + "\r\nThe file is larger than 64 MB.");
    EXPECT_EQ(pool.platform.dialogs.shown[0].icon, ui::Icon::Critical);
}

TEST(LeaveDemo, DeletesAnUntouchedDemoWithoutAnotherMessage)
{
    InstalledDemo demo;
    demo.scratch.put("Own_O.THC", "own");
    EXPECT_EQ(leaveDemo(demo.scratch.folder(), demo.platform.services), "");
    EXPECT_EQ(entriesOf(demo.scratch.path()), std::vector<std::string>{"Own_O.THC"});
    EXPECT_EQ(demo.platform.dialogs.shown, std::vector<ui::Message>{kContinueNormally});
}

TEST(LeaveDemo, KeepsWhatThePersonChangedMeanwhile)
{
    InstalledDemo demo;
    demo.scratch.put("TALLYHOOP.THS", "my results");
    demo.scratch.put("Demo Prophet_DP.THC", "my picks");
    demo.scratch.put("PRIZES.CSV", "my prizes");
    EXPECT_EQ(leaveDemo(demo.scratch.folder(), demo.platform.services), kOwnChangesAreKept);
    EXPECT_EQ(entriesOf(demo.scratch.path()), std::vector<std::string>{kBackup});
    EXPECT_EQ(entriesOf(demo.scratch.path() / kBackup),
              (std::vector<std::string>{"Demo Prophet_DP.THC", "PRIZES.CSV", "TALLYHOOP.THS"}));
    EXPECT_EQ(demo.scratch.get(std::string{kBackup} + "/TALLYHOOP.THS"), "my results");
    EXPECT_EQ(demo.platform.dialogs.shown,
              (std::vector<ui::Message>{kContinueNormally, ownChangesAreIn(demo.scratch.path() / kBackup)}));
}

/// The player list comes after the results and before the selections when the demo is deleted.
void blockPlayerList(const InstalledDemo& demo)
{
    fs::remove(demo.scratch.path() / "PLAYERNAMES.CSV");
    fs::create_directory(demo.scratch.path() / "PLAYERNAMES.CSV");
}

TEST(LeaveDemo, KeepsOneCopyOfAChangedFileThatWasDeletedBeforeAnotherCouldNotBe)
{
    InstalledDemo demo;
    demo.scratch.put("TALLYHOOP.THS", "my results");
    demo.scratch.put("Demo Prophet_DP.THC", "my picks");
    blockPlayerList(demo);
    EXPECT_EQ(leaveDemo(demo.scratch.folder(), demo.platform.services), std::nullopt);
    const fs::path backup = demo.scratch.path() / kBackup;
    ASSERT_EQ(demo.platform.dialogs.shown.size(), 2u);
    EXPECT_EQ(demo.platform.dialogs.shown[1], (ui::Message{kCaption,
                                                           "Files that you changed in demo mode have been deleted.\r\n"
                                                           "Copies of them are in the folder:\r\n \r\n" +
                                                               backup.string(),
                                                           ui::Buttons::Ok, ui::Icon::Information}));
    EXPECT_FALSE(demo.scratch.has("TALLYHOOP.THS"));
    EXPECT_EQ(demo.scratch.get(std::string{kBackup} + "/TALLYHOOP.THS"), "my results");
    EXPECT_EQ(demo.scratch.get("Demo Prophet_DP.THC"), "my picks");

    EXPECT_EQ(leaveDemo(demo.scratch.folder(), demo.platform.services), std::nullopt);
    EXPECT_EQ(demo.platform.dialogs.shown.size(), 3u) << "only what is still in the way";
    EXPECT_FALSE(demo.scratch.has(std::string{kBackup} + " (2)"));

    fs::remove(demo.scratch.path() / "PLAYERNAMES.CSV");
    EXPECT_TRUE(leaveDemo(demo.scratch.folder(), demo.platform.services));
    EXPECT_EQ(demo.platform.dialogs.shown.back(), ownChangesAreIn(backup.string() + " (2)"));
    EXPECT_EQ(demo.scratch.get(std::string{kBackup} + " (2)/Demo Prophet_DP.THC"), "my picks");
}

TEST(LeaveDemo, MakesNoCopiesWhereEveryChangedFileHasStayed)
{
    InstalledDemo demo;
    demo.scratch.put("Demo Prophet_DP.THC", "my picks");
    blockPlayerList(demo);
    EXPECT_EQ(leaveDemo(demo.scratch.folder(), demo.platform.services), std::nullopt);
    ASSERT_EQ(demo.platform.dialogs.shown.size(), 1u);
    EXPECT_TRUE(demo.platform.dialogs.shown[0].text.starts_with("Demonstration mode cannot be left: "));
    EXPECT_FALSE(demo.scratch.has(kBackup));
    EXPECT_EQ(demo.scratch.get("Demo Prophet_DP.THC"), "my picks");
}

TEST(LeaveDemo, RemovesNothingAndStaysOnWhenAChangedFileCannotBeKept)
{
    InstalledDemo demo;
    fs::resize_file(demo.scratch.path() / "TALLYHOOP.THS", (64u << 20) + 1); // more than the program reads
    EXPECT_EQ(leaveDemo(demo.scratch.folder(), demo.platform.services), std::nullopt);
    EXPECT_EQ(entriesOf(demo.scratch.path()).size(), 8u);
    EXPECT_TRUE(demoModeIsOn(demo.scratch.folder()));
    ASSERT_EQ(demo.platform.dialogs.shown.size(), 1u);
    EXPECT_EQ(demo.platform.dialogs.shown[0].text, "Demonstration mode cannot be left. Nothing was changed.\r\n \r\n" +
                                                       (demo.scratch.path() / "TALLYHOOP.THS").string() +
                                                       "\r\nThe file is larger than 64 MB.");
}

} // namespace
} // namespace tallyhoop::test
