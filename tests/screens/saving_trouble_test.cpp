// tests/screens/saving_trouble_test.cpp - what cannot be read is not lost, and two saves at once are noticed.
#include "screens/saving.h"

#include "fakes/fake_platform.h"
#include "fakes/held_file.h"
#include "fakes/scratch_folder.h"

#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

namespace fs = std::filesystem;

struct SavingInTrouble : testing::Test {
    test::ScratchFolder scratch;
    test::FakePlatform platform;
    KnownFiles known;
    fs::path file = scratch.path() / "TALLYHOOP.THS";
    const std::string backup = "Backup 2001-03-05 101530"; // the moment of the fake clock

    bool save(std::string_view bytes)
    {
        return saveFile(platform.services, known, file, bytes, "TALLYHOOP.THS of the pool", " Retry.");
    }
    const std::vector<ui::Message>& shownMessages() const { return platform.dialogs.shown; }

    /// Makes the file one that is refused by every reader, whoever the person is: far too large, and all of it a hole.
    void makeUnreadable() const { fs::resize_file(file, std::uintmax_t{200} << 20); }
};

TEST_F(SavingInTrouble, AFileThatCannotBeReadIsKeptBeforeItIsReplaced)
{
    scratch.put("TALLYHOOP.THS", "the results of three weeks");
    makeUnreadable();
    known.note(file);
    EXPECT_TRUE(save("one game"));
    EXPECT_EQ(scratch.get("TALLYHOOP.THS"), "one game");
    EXPECT_EQ(fs::file_size(scratch.path() / backup / "TALLYHOOP.THS"), std::uintmax_t{200} << 20);
    ASSERT_EQ(shownMessages().size(), 1u);
    EXPECT_EQ(shownMessages().front().text,
              "This file could not be read, or not whole, and has been replaced now:\r\n" + file.string() +
                  "\r\n \r\nWhat it held before is kept in the folder:\r\n" + (scratch.path() / backup).string());
    EXPECT_TRUE(save("two games"));
    EXPECT_EQ(shownMessages().size(), 1u) << "now it is a sound file of ours";
}

TEST_F(SavingInTrouble, AFileThatHasBecomeUnreadableIsNotCalledChangedByAnotherProgram)
{
    scratch.put("TALLYHOOP.THS", "old");
    known.note(file);
    makeUnreadable();
    EXPECT_TRUE(save("new"));
    ASSERT_EQ(shownMessages().size(), 1u);
    EXPECT_NE(shownMessages().front().caption, "** FILE HAS BEEN CHANGED **");
    EXPECT_TRUE(scratch.has(backup + "/TALLYHOOP.THS"));
}

TEST_F(SavingInTrouble, ADamagedFileIsKeptToo)
{
    scratch.put("TALLYHOOP.THS", "half a file");
    known.note(file);
    known.noteDamage(file);
    EXPECT_TRUE(save("new"));
    EXPECT_EQ(scratch.get(backup + "/TALLYHOOP.THS"), "half a file");
    EXPECT_EQ(shownMessages().size(), 1u);
}

TEST_F(SavingInTrouble, AFileThatCannotBeThereIsNotCalledUnreadable)
{
    const ui::Message trouble{"** ERROR IN WRITING FILE **",
                              "There is a problem writing file: TALLYHOOP.THS of the pool\r\n Retry.", ui::Buttons::Ok,
                              ui::Icon::Critical};
    file = scratch.path() / (std::string(300, 'A') + ".THC");
    EXPECT_FALSE(save("new"));
    EXPECT_EQ(shownMessages(), std::vector{trouble}) << "the name is too long";
    platform.dialogs.shown.clear();
#ifndef _WIN32 // where only administrators make links
    file = scratch.path() / "A.THC";
    fs::create_symlink("A.THC", file);
    EXPECT_FALSE(save("new"));
    EXPECT_EQ(shownMessages(), std::vector{trouble}) << "a link that leads to itself";
#endif
    EXPECT_FALSE(scratch.has(backup));
}

#ifndef _WIN32 // which has no such file
TEST_F(SavingInTrouble, WhatCannotBeKeptIsNotReplaced)
{
    fs::create_symlink("/proc/self/mem",
                       file); // a file by its kind, and one that cannot be read, and has no other name
    known.note(file);
    EXPECT_FALSE(save("new"));
    ASSERT_EQ(shownMessages().size(), 1u);
    EXPECT_EQ(shownMessages().front().caption, "** ERROR IN WRITING FILE **");
    EXPECT_NE(shownMessages().front().text.find("could not be kept first"), std::string::npos);
    EXPECT_FALSE(scratch.has(backup));
}
#endif

TEST_F(SavingInTrouble, NoBackupIsLeftWhenTheFileWasNotReplacedAfterAll)
{
    scratch.put("TALLYHOOP.THS", "half a file");
    known.note(file);
    known.noteDamage(file);
    const fs::path temporary = scratch.put(".TALLYHOOP.THS.tmp~", "");
    {
        const test::HeldFile held{temporary};
        EXPECT_FALSE(save("new"));
    }
    EXPECT_EQ(scratch.get("TALLYHOOP.THS"), "half a file");
    EXPECT_FALSE(scratch.has(backup));
    ASSERT_EQ(shownMessages().size(), 2u);
    EXPECT_EQ(shownMessages().front().caption, "** ERROR IN WRITING FILE **");
    EXPECT_EQ(shownMessages().back().text, "Another program is saving this file just now. Try again in a moment.");
}

TEST_F(SavingInTrouble, AFileThatBecomesUnreadableWhileTheQuestionIsShownIsKept)
{
    scratch.put("TALLYHOOP.THS", "old");
    known.note(file);
    scratch.put("TALLYHOOP.THS", "theirs");
    platform.dialogs.whileShown = [&](const ui::Message&) {
        if (shownMessages().size() == 1)
            makeUnreadable();
    };
    platform.dialogs.answer(ui::Answer::Yes).answer(ui::Answer::Yes);
    EXPECT_TRUE(save("ours"));
    EXPECT_EQ(scratch.get("TALLYHOOP.THS"), "ours");
    EXPECT_TRUE(scratch.has(backup + "/TALLYHOOP.THS"));
    ASSERT_EQ(shownMessages().size(), 3u);
    EXPECT_NE(shownMessages().back().text.find("is kept in the folder"), std::string::npos);
}

TEST_F(SavingInTrouble, WhatAnotherProgramSavesWhileTheQuestionIsShownIsAskedAboutAgain)
{
    scratch.put("TALLYHOOP.THS", "old");
    known.note(file);
    scratch.put("TALLYHOOP.THS", "theirs");
    int questions = 0;
    platform.dialogs.whileShown = [&](const ui::Message&) {
        if (++questions == 1)
            scratch.put("TALLYHOOP.THS", "theirs, once more");
    };
    platform.dialogs.answer(ui::Answer::Yes).answer(ui::Answer::No);
    EXPECT_FALSE(save("ours"));
    EXPECT_EQ(questions, 2);
    EXPECT_EQ(scratch.get("TALLYHOOP.THS"), "theirs, once more");
}

} // namespace
} // namespace tallyhoop
