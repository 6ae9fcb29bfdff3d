// tests/files/replace_file_in_turn_test.cpp - several programs want to replace one file.
#include "files/replace_file.h"

#include "fakes/held_file.h"
#include "fakes/scratch_folder.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

namespace tallyhoop {
namespace {

namespace fs = std::filesystem;
using test::HeldFile;
using test::isHeld;
using test::ScratchFolder;

std::vector<std::string> entriesIn(const fs::path& folder)
{
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator{folder})
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

TEST(ReplaceFileInTurn, GivesUpOnAProgramThatWasStoppedInTheMiddleOfASave)
{
    const ScratchFolder scratch;
    const fs::path file = scratch.put("A.THC", "old");
    const fs::path temporary = scratch.put(".A.THC.tmp~", "half of theirs");
    std::optional<HeldFile> held{temporary};
    const Result<Done> outcome = replaceFile(file, "new");
    ASSERT_FALSE(outcome);
    EXPECT_EQ(outcome.failure().message, "Another program is saving this file just now. Try again in a moment.");
    EXPECT_EQ(scratch.get("A.THC"), "old");
    EXPECT_EQ(scratch.get(".A.THC.tmp~"), "half of theirs") << "it may still go on";
    held.reset();
    EXPECT_TRUE(replaceFile(file, "new"));
    EXPECT_EQ(scratch.get("A.THC"), "new");
}

TEST(ReplaceFileInTurn, GoesRoundAFolderInTheTemporarysPlace)
{
    const ScratchFolder scratch;
    fs::create_directory(scratch.path() / ".A.THC.tmp~");
    EXPECT_TRUE(replaceFile(scratch.path() / "A.THC", "new", [&] {
        EXPECT_TRUE(isHeld(scratch.path() / ".A.THC.tmp~")) << "others who go round it wait";
        return true;
    }));
    EXPECT_EQ(scratch.get("A.THC"), "new");
    EXPECT_EQ(entriesIn(scratch.path()), (std::vector<std::string>{".A.THC.tmp~", "A.THC"}));
}

TEST(ReplaceFileInTurn, LeavesAFileAloneThatHasTheTemporarysNameAsASecondOne)
{
    const ScratchFolder scratch;
    scratch.put("PRECIOUS", "keep");
    fs::create_hard_link(scratch.path() / "PRECIOUS", scratch.path() / ".A.THC.tmp~");
    EXPECT_TRUE(replaceFile(scratch.path() / "A.THC", "new"));
    EXPECT_EQ(scratch.get("PRECIOUS"), "keep");
    EXPECT_EQ(scratch.get("A.THC"), "new");
}

TEST(ReplaceFileInTurn, AsksLastOfAllWhetherItMay)
{
    const ScratchFolder scratch;
    const fs::path file = scratch.put("A.THC", "old");
    const bool refused = !replaceFile(file, "new", [&] {
        EXPECT_EQ(*readFile(scratch.path() / ".A.THC.tmp~"), "new") << "everything else is done";
        EXPECT_TRUE(isHeld(scratch.path() / ".A.THC.tmp~")) << "and nobody else can be at the same point";
        return false;
    });
    EXPECT_TRUE(refused);
    EXPECT_EQ(scratch.get("A.THC"), "old");
    EXPECT_EQ(entriesIn(scratch.path()), std::vector<std::string>{"A.THC"});
}

} // namespace
} // namespace tallyhoop
