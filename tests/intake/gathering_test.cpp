// tests/intake/gathering_test.cpp - files and folders that were chosen, and their limits.
#include "intake/gathering.h"

#include "fakes/scratch_folder.h"
#include "intake/field_2000.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#ifndef _WIN32
#include <sys/stat.h>
#endif

namespace tallyhoop {
namespace {

namespace fs = std::filesystem;
using test::formText;
using test::ScratchFolder;
using test::upperEntry;
using testing::ElementsAre;

EntryReaders fileReaders()
{
    return {test::field2000(), [](std::string_view) -> Result<std::vector<MailPart>> { return Failure{"no mail"}; }};
}

std::vector<HandedIn> gathered(std::vector<fs::path> chosen, const Step& step = goOn)
{
    return gatherEntries(chosen, fileReaders(), step);
}

std::vector<std::string> namesOf(const std::vector<HandedIn>& entries)
{
    std::vector<std::string> names;
    for (const HandedIn& entry : entries)
        names.push_back(entry.refusals.empty() ? entry.entry.name : entry.refusals.front());
    return names;
}

TEST(Gathering, ReadsFilesInTheOrderInWhichTheyWereChosen)
{
    const ScratchFolder scratch;
    const fs::path b = scratch.put("b.txt", formText(upperEntry("Bob", "B")));
    const fs::path a = scratch.put("a.txt", formText(upperEntry("Ann", "A")));
    const fs::path p = scratch.put("p.png", "x");
    EXPECT_THAT(namesOf(gathered({b, a, p})),
                ElementsAre("Bob", "Ann", "Files of this kind are not read: only *.THC, *.EML, *.TXT and *.CSV."));
}

TEST(Gathering, KnowsWhenAFileWasChanged)
{
    const ScratchFolder scratch;
    const fs::path file = scratch.put("a.txt", formText(upperEntry()));
    fs::last_write_time(file,
                        std::chrono::file_clock::from_sys(std::chrono::sys_seconds{std::chrono::seconds{86'400}}));
    EXPECT_EQ(gathered({file}).at(0).origin.date, 86'400);
}

TEST(Gathering, ReadsOfAFolderWhatIsReadAndNotWhatIsBelow)
{
    const ScratchFolder scratch;
    scratch.put("b.TXT", formText(upperEntry("Bob", "B")));
    scratch.put("a.txt", formText(upperEntry("Ann", "A")));
    scratch.put("picture.png", "x");
    fs::create_directory(scratch.path() / "below.txt");
    scratch.put("below.txt/c.txt", formText(upperEntry("Cid", "C")));
    EXPECT_THAT(namesOf(gathered({scratch.path()})), ElementsAre("Ann", "Bob"));
}

TEST(Gathering, RefusesAFileThatIsMissingOrTooLarge)
{
    const ScratchFolder scratch;
    const fs::path most = scratch.put("most.txt", std::string(1u << 20, ' '));
    const fs::path more = scratch.put("more.txt", std::string((1u << 20) + 1, ' '));
    const std::vector<HandedIn> read = gathered({most, more, scratch.path() / "missing.txt"});
    ASSERT_EQ(read.size(), 3u);
    EXPECT_THAT(read[0].refusals, ElementsAre("There is no entry in this file."));
    EXPECT_THAT(read[1].refusals, ElementsAre(testing::HasSubstr("1 MB")));
    EXPECT_EQ(read[1].origin.file, "more.txt");
    EXPECT_EQ(read[2].refusals.size(), 1u);
}

#ifndef _WIN32
TEST(Gathering, SaysThatAPipeOrADeviceIsNoFile)
{
    const ScratchFolder scratch;
    const fs::path pipe = scratch.path() / "pipe.txt";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    fs::create_symlink("/dev/zero", scratch.path() / "zero.txt");
    EXPECT_THAT(namesOf(gathered({pipe, scratch.path() / "zero.txt"})),
                ElementsAre("It is a device or a pipe, not a file.", "It is a device or a pipe, not a file."));
}
#endif

TEST(Gathering, TakesAnotherTableOfAFolderForOneThatIsNotRead)
{
    const ScratchFolder scratch;
    scratch.put("a.txt", formText(upperEntry("Ann", "A")));
    scratch.put("PLAYERNAMES.CSV", "\"ANN,A\",\"ANN_A.THC\",\"\",\"\"\r\n\"BOB,B\",\"BOB_B.THC\",\"\",\"\"\r\n");
    EXPECT_THAT(namesOf(gathered({scratch.path()})),
                ElementsAre("This is not a table of entries: it has no header with \"Initials\", and no row has 66 "
                            "columns.",
                            "Ann"));
}

TEST(Gathering, RefusesWhatIsMoreThanTenMegabytesInAll)
{
    const ScratchFolder scratch;
    std::vector<fs::path> files;
    for (int i = 0; i < 10; ++i)
        files.push_back(scratch.put(std::to_string(i) + ".txt", std::string(1u << 20, ' ')));
    files.push_back(scratch.put("last.txt", "x"));
    const std::vector<std::string> names = namesOf(gathered(files));
    ASSERT_EQ(names.size(), 11u);
    EXPECT_EQ(names[9], "There is no entry in this file.");
    EXPECT_EQ(names[10], "The files are larger than 10 MB in all.");
}

TEST(Gathering, ReadsNoMoreThanTenThousandFiles)
{
    const ScratchFolder scratch;
    const std::vector<fs::path> files(10'001, scratch.put("a.txt", ""));
    const std::vector<std::string> names = namesOf(gathered(files));
    ASSERT_EQ(names.size(), 10'001u);
    EXPECT_EQ(names[9'999], "There is no entry in this file.");
    EXPECT_EQ(names.back(), "There are more than 10,000 files: the others are not read.");
}

TEST(Gathering, StopsWhenItIsToldTo)
{
    const ScratchFolder scratch;
    const fs::path file = scratch.put("a.txt", "");
    EXPECT_EQ(gathered({file, file, file}, [] { return false; }).size(), 1u);
}

} // namespace
} // namespace tallyhoop
