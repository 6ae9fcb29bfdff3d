// tests/faults/writers_under_faults_test.cpp - every writer under every fault: a message appears, nothing is lost, and
// the next save works.
#include "demo/sample_pool.h"
#include "faults/own_process.h"
#include "faults/writers.h"
#include "files/file_names.h"
#include "screens/demo_mode.h"

#include <algorithm>
#include <gmock/gmock.h>

namespace tallyhoop::test {
namespace {

namespace fs = std::filesystem;
using Files = std::vector<std::pair<std::string, std::string>>;

std::string contentOf(const Files& files, const std::string& name)
{
    const auto at = std::ranges::find(files, name, &Files::value_type::first);
    return at == files.end() ? std::string{} : at->second;
}

std::vector<std::string> namesOf(const Files& files)
{
    std::vector<std::string> names;
    for (const auto& [name, bytes] : files)
        names.push_back(name);
    return names;
}

Files without(Files files, const std::string& name)
{
    std::erase_if(files, [&](const auto& file) { return file.first == name; });
    return files;
}

using Case = std::tuple<WriterKind, Fault>;

std::string nameOf(const testing::TestParamInfo<Case>& info)
{
    return std::string{std::get<0>(info.param).name} + "_" + std::get<1>(info.param).name;
}

class WritersUnderFaults : public testing::TestWithParam<Case>
{
protected:
    const WriterKind kind = std::get<0>(GetParam());
    const Fault fault = std::get<1>(GetParam());
    ScratchFolder scratch;
    const fs::path target = scratch.path() / kind.file;

    void preparePool()
    {
        putPool(scratch);
        if (kind.replaces && !fs::exists(target))
            scratch.put(kind.file, "an older file");
    }

    /// A report goes through the work file first, which is written when only the report's own file resists.
    Files comparable(const Files& files) const
    {
        const bool throughWorkFile = fault.wantsTarget && std::string{kind.file}.starts_with("RPTOPT");
        return throughWorkFile ? without(files, file_name::kWorkFile) : files;
    }

    void saveInVain(Writer& writer, const Files& before)
    {
        const std::string shownBefore = writer.onScreen();
        fault.strike(scratch.path(), target);
        writer.save();
        fault.repair(scratch.path(), target);
        EXPECT_EQ(comparable(filesIn(scratch.path())), comparable(before)) << "old files, and not one more";
        EXPECT_EQ(writer.onScreen(), shownBefore);
        EXPECT_EQ(writer.platform.dialogs.shown, kind.trouble(scratch.path(), fault));
        EXPECT_TRUE(writer.platform.printer.texts.empty());
        EXPECT_TRUE(writer.screens.unloads.empty()) << "the screen stays open";
        EXPECT_TRUE(writer.screens.loads.empty());
    }

    void saveAtLast(Writer& writer, const Files& before)
    {
        writer.platform.dialogs.shown.clear();
        writer.save();
        const Files after = filesIn(scratch.path());
        EXPECT_THAT(contentOf(after, kind.file), testing::HasSubstr(kind.newText));
        std::vector<std::string> expected = namesOf(before);
        if (!kind.replaces)
            expected.emplace_back(kind.file);
        std::sort(expected.begin(), expected.end());
        EXPECT_EQ(namesOf(after), expected);
        for (const ui::Message& message : writer.platform.dialogs.shown)
            EXPECT_NE(message.caption, "** ERROR IN WRITING FILE **");
    }
};

TEST_P(WritersUnderFaults, LoseNothingAndWorkAgainOnceItIsRepaired)
{
    inOwnProcess([this]() -> std::string {
        if (std::string cannot = fault.arrange(scratch.path()); !cannot.empty())
            return cannot;
        preparePool();
        const std::unique_ptr<Writer> writer = kind.open(scratch.path());
        writer->forgetOpening();
        const Files before = filesIn(scratch.path());
        EXPECT_THAT(contentOf(before, kind.file), testing::Not(testing::HasSubstr(kind.newText)));
        saveInVain(*writer, before);
        saveAtLast(*writer, before);
        return {};
    });
}

/// Every writer with every fault that it can meet: a new file cannot be held by anybody.
std::vector<Case> allCases()
{
    std::vector<Case> cases;
    for (const WriterKind& kind : allWriters())
        for (const Fault& fault : allFaults())
            if (kind.replaces || !fault.wantsTarget)
                cases.emplace_back(kind, fault);
    return cases;
}

INSTANTIATE_TEST_SUITE_P(All, WritersUnderFaults, testing::ValuesIn(allCases()), nameOf);

/// What DEMOSET.EXE does in the folder, and the step that keeps a pool of one's own before it.
class DemoUnderFaults : public testing::TestWithParam<Fault>
{
protected:
    ScratchFolder scratch;

    void inFaultyFolder(const std::function<void(const Fault&)>& part)
    {
        inOwnProcess([this, &part]() -> std::string {
            const Fault fault = GetParam();
            if (std::string cannot = fault.arrange(scratch.path()); !cannot.empty())
                return cannot;
            part(fault);
            return {};
        });
    }

    /// A folder that takes no file at all is noticed before anything is copied; missing room by the first copy. Wine
    /// has no room for an empty file either. @pre the fault has struck
    fs::path whereItStops(const Fault& fault) const
    {
        return fault.takesEmptyFiles && scratch.folder().checkWritable()
                   ? scratch.path() / "Backup 2001-03-05 101530" / file_name::kResults
                   : scratch.path();
    }
};

TEST_P(DemoUnderFaults, TheInstallerTakesEverythingBackAndWorksOnceItIsRepaired)
{
    inFaultyFolder([this](const Fault& fault) {
        scratch.put("Own_O.THC", "own");
        const Files before = filesIn(scratch.path());
        fault.strike(scratch.path(), {});
        const Result<Done> installed = demo::installSamplePool(scratch.folder());
        fault.repair(scratch.path(), {});
        ASSERT_FALSE(installed);
        EXPECT_EQ(installed.failure().message,
                  "The sample pool could not be written: " + (scratch.path() / file_name::kResults).string() + "\r\n" +
                      fault.reason);
        EXPECT_EQ(filesIn(scratch.path()), before);
        EXPECT_TRUE(demo::installSamplePool(scratch.folder()));
        EXPECT_TRUE(scratch.has(file_name::kSettings));
    });
}

TEST_P(DemoUnderFaults, APoolOfOnesOwnStaysWhereItIsWhenItCannotBeKept)
{
    inFaultyFolder([this](const Fault& fault) {
        putPool(scratch);
        FakePlatform platform;
        const Files before = filesIn(scratch.path());
        fault.strike(scratch.path(), {});
        const fs::path place = whereItStops(fault);
        EXPECT_FALSE(startDemo(scratch.folder(), platform.services));
        fault.repair(scratch.path(), {});
        EXPECT_EQ(filesIn(scratch.path()), before);
        EXPECT_TRUE(platform.programs.started.empty());
        const ui::Message nothingChanged{"STALLYHOOP DEMOSTRATION MODE", // letter for letter
                                         "Demonstration mode cannot be started. Nothing was changed.\r\n \r\n" +
                                             place.string() + "\r\n" + fault.reason,
                                         ui::Buttons::Ok, ui::Icon::Critical};
        EXPECT_EQ(platform.dialogs.shown, std::vector{nothingChanged});
    });
}

INSTANTIATE_TEST_SUITE_P(All, DemoUnderFaults, testing::ValuesIn(faultsOfTheFolder()),
                         [](const auto& instance) { return std::string{instance.param.name}; });

TEST(DemoOnANearlyFullDisk, IsTakenBackAfterTheFirstFiles)
{
    const ScratchFolder scratch;
    inOwnProcess([&scratch]() -> std::string {
        if (std::string cannot = mountSmallDisk(scratch.path()); !cannot.empty())
            return cannot;
        constexpr std::size_t kRoomForThreeFiles = 3 * 4096;
        fillDisk(scratch.path(), kRoomForThreeFiles);
        const Result<Done> installed = demo::installSamplePool(scratch.folder());
        EXPECT_FALSE(installed);
        EXPECT_TRUE(filesIn(scratch.path()).empty());
        return {};
    });
}

TEST(OwnPoolOnANearlyFullDisk, StaysWhereItIsWhenOnlyPartOfItFits)
{
    const ScratchFolder scratch;
    inOwnProcess([&scratch]() -> std::string {
        if (std::string cannot = mountSmallDisk(scratch.path()); !cannot.empty())
            return cannot;
        putPool(scratch);
        fillDisk(scratch.path(), 4096); // one of the three files
        const Files before = filesIn(scratch.path());
        FakePlatform platform;
        EXPECT_FALSE(startDemo(scratch.folder(), platform.services));
        EXPECT_EQ(filesIn(scratch.path()), before);
        EXPECT_TRUE(platform.programs.started.empty());
        return {};
    });
}

} // namespace
} // namespace tallyhoop::test
