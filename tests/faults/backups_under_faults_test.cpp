// tests/faults/backups_under_faults_test.cpp - copies into a dated folder and back under every fault: whole, or nothing
// has changed.
#include "faults/messages.h"
#include "faults/own_process.h"
#include "faults/writers.h"
#include "files/file_names.h"
#include "files/pool_backup.h"
#include "files/pool_files.h"
#include "files/selection_of_player.h"
#include "screens/board/pool_copy.h"
#include "screens/saving.h"

#include <algorithm>

namespace tallyhoop::test {
namespace {

namespace fs = std::filesystem;

constexpr const char* kBackup = "Backup 2001-03-05 101530"; // the moment of the fake clock

class FaultyFolder : public testing::Test
{
protected:
    ScratchFolder scratch;
    FakePlatform platform;
    const DataFolder folder = scratch.folder();

    /// Runs a part in a process of its own, in a folder with a pool, in which the fault can strike.
    void withPool(const Fault& fault, const std::function<void()>& part)
    {
        inOwnProcess([this, &fault, &part]() -> std::string {
            if (std::string cannot = fault.arrange(scratch.path()); !cannot.empty())
                return cannot;
            putPool(scratch);
            part();
            return {};
        });
    }

    void during(const Fault& fault, const std::function<void()>& part)
    {
        fault.strike(scratch.path(), {});
        part();
        fault.repair(scratch.path(), {});
    }

    ui::Message notCopied(const std::string& reason) const
    {
        return {"", "The pool could not be copied.\r\n \r\n" + reason, ui::Buttons::Ok, ui::Icon::Critical};
    }
};

class BackupsUnderFaults : public FaultyFolder, public testing::WithParamInterface<Fault>
{
protected:
    const Fault fault = GetParam();

    /// @returns what a failure says of the first file that has no room, or of the folder that takes none at all
    std::string whereItStops() const
    {
        const fs::path place = fault.takesEmptyFiles ? scratch.path() / kBackup / file_name::kSetup : scratch.path();
        return place.string() + "\r\n" + fault.reason;
    }
};

TEST_P(BackupsUnderFaults, BackUpPoolCopiesNothingAndWorksOnceItIsRepaired)
{
    withPool(fault, [this] {
        const auto before = filesIn(scratch.path());
        std::string news;
        during(fault, [&] { news = backUpPool(folder, platform.services); });
        EXPECT_EQ(news, "The pool was not copied.");
        EXPECT_EQ(platform.dialogs.shown, std::vector{notCopied(whereItStops())});
        EXPECT_EQ(filesIn(scratch.path()), before);
        EXPECT_TRUE(backUpPool(folder, platform.services).starts_with("Copied "));
    });
}

TEST_P(BackupsUnderFaults, ADamagedFileIsNotReplacedAndIsKeptOnceItIsRepaired)
{
    withPool(fault, [this] {
        const fs::path file = scratch.put(file_name::kSetup, "half a field");
        KnownFiles known;
        known.note(file);
        known.noteDamage(file);
        const auto save = [&] {
            return saveDataFile(platform.services, known, folder, file_name::kSetup, "a whole field");
        };
        const auto before = filesIn(scratch.path());
        during(fault, [&] { EXPECT_FALSE(save()); });
        const ui::Message notKept{"** ERROR IN WRITING FILE **",
                                  "This file is there, but could not be read, or not whole:\r\n" + file.string() +
                                      "\r\n \r\nIt was not replaced, because it could not be kept first:\r\n" +
                                      whereItStops(),
                                  ui::Buttons::Ok, ui::Icon::Critical};
        EXPECT_EQ(platform.dialogs.shown, std::vector{fault.hidesFolder ? checkSpace(file) : notKept});
        EXPECT_EQ(filesIn(scratch.path()), before);
        EXPECT_TRUE(save());
        EXPECT_EQ(scratch.get(file_name::kSetup), "a whole field");
        EXPECT_EQ(scratch.get(std::string{kBackup} + "/" + file_name::kSetup), "half a field");
    });
}

TEST_P(BackupsUnderFaults, WhatCannotBePutBackStaysInTheBackup)
{
    withPool(fault, [this] {
        const std::string own = scratch.get(file_name::kSetup);
        const Result<fs::path> backup = backUp(folder, {file_name::kSetup}, platform.services.clock.now());
        ASSERT_TRUE(backup);
        scratch.put(file_name::kSetup, "the demo's");
        const auto before = filesIn(scratch.path());
        std::string reason;
        during(fault, [&] {
            const Result<Done> outcome = putBack(folder, *backup);
            reason = outcome ? "" : outcome.failure().message;
        });
        const fs::path place = fault.hidesFolder ? *backup : scratch.path() / file_name::kSetup;
        EXPECT_EQ(reason, place.string() + "\r\n" + fault.reason);
        EXPECT_EQ(filesIn(scratch.path()), before);
        EXPECT_TRUE(putBack(folder, *backup));
        EXPECT_EQ(scratch.get(file_name::kSetup), own);
    });
}

INSTANTIATE_TEST_SUITE_P(All, BackupsUnderFaults, testing::ValuesIn(faultsOfTheFolder()),
                         [](const auto& instance) { return std::string{instance.param.name}; });

/// A folder may be entered and written into although it cannot be listed.
class UnlistedFolder : public FaultyFolder
{
protected:
    const Fault& fault = unlistedFolder();
};

TEST_F(UnlistedFolder, IsNotCopiedWithoutItsSelections)
{
    withPool(fault, [this] {
        const auto before = filesIn(scratch.path());
        during(fault, [&] { EXPECT_EQ(backUpPool(folder, platform.services), "The pool was not copied."); });
        EXPECT_EQ(platform.dialogs.shown, std::vector{notCopied(scratch.path().string() + "\r\nPermission denied")});
        EXPECT_EQ(filesIn(scratch.path()), before);
    });
}

TEST_F(UnlistedFolder, HasNoFileForARecordWithACutName)
{
    withPool(fault, [this] {
        scratch.put("Wilhelmina Featherstonehaugh-Cholmondeley_WF.THC", "");
        const std::string recorded = "WILHELMINA FEATHERSTONEHAUGH-CHOL"; // 33 characters
        EXPECT_TRUE(selectionFileOf(folder, recorded));
        during(fault, [&] { EXPECT_FALSE(selectionFileOf(folder, recorded)); });
    });
}

TEST_F(UnlistedFolder, IsNamedByTheTroublesOfItsPool)
{
    withPool(fault, [this] {
        Pool pool;
        during(fault, [&] { pool = readPool(folder); });
        ASSERT_EQ(pool.trouble.size(), 1u);
        EXPECT_EQ(pool.trouble.front().message, scratch.path().string() + ": Permission denied");
    });
}

} // namespace
} // namespace tallyhoop::test
