// tests/files/known_files_test.cpp - somebody else's changes are not replaced unasked.
#include "files/known_files.h"

#include "fakes/fake_dialogs.h"
#include "fakes/scratch_folder.h"

#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

namespace fs = std::filesystem;

struct KnownFilesTest : testing::Test {
    test::ScratchFolder scratch;
    test::FakeDialogs dialogs;
    KnownFiles known;
    fs::path file = scratch.path() / "A.THC";
    const ui::Message trouble{"** TROUBLE **", "It cannot be written", ui::Buttons::Ok, ui::Icon::Critical};
    const ui::Message question{"** FILE HAS BEEN CHANGED **",
                               "Another program has changed the file: " + file.string() +
                                   "\r\nsince it was opened or last saved here.\r\n"
                                   " \r\n"
                                   "If you continue, the changes of the other program will be lost..\r\n"
                                   " \r\n"
                                   "Do you want to replace the file?",
                               ui::Buttons::YesNo, ui::Icon::Question};

    bool replace(std::string_view bytes) { return known.replace(file, bytes, dialogs, trouble); }
};

TEST_F(KnownFilesTest, AskNothingAboutAFileThatIsAsItWas)
{
    scratch.put("A.THC", "old");
    known.note(file);
    EXPECT_TRUE(replace("new"));
    EXPECT_EQ(scratch.get("A.THC"), "new");
    EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(KnownFilesTest, AskBeforeTheChangesOfSomebodyElseAreReplaced)
{
    scratch.put("A.THC", "old");
    known.note(file);
    scratch.put("A.THC", "theirs");
    dialogs.answer(ui::Answer::Yes);
    EXPECT_TRUE(replace("ours"));
    EXPECT_EQ(scratch.get("A.THC"), "ours");
    EXPECT_EQ(dialogs.shown, std::vector<ui::Message>{question});
}

TEST_F(KnownFilesTest, LeaveTheFileAloneOnNoAndAskAgainNextTime)
{
    scratch.put("A.THC", "old");
    known.note(file);
    scratch.put("A.THC", "theirs");
    dialogs.answer(ui::Answer::No).answer(ui::Answer::No);
    EXPECT_FALSE(replace("ours"));
    EXPECT_FALSE(replace("ours"));
    EXPECT_EQ(scratch.get("A.THC"), "theirs");
    EXPECT_EQ(dialogs.shown, (std::vector<ui::Message>{question, question}));
}

TEST_F(KnownFilesTest, NoticeAChangeThatKeepsLengthAndTime)
{
    scratch.put("A.THC", "old");
    known.note(file);
    const fs::file_time_type time = fs::last_write_time(file);
    scratch.put("A.THC", "0ld");
    fs::last_write_time(file, time);
    dialogs.answer(ui::Answer::No);
    EXPECT_FALSE(replace("new"));
}

TEST_F(KnownFilesTest, AskNothingWhenOnlyTheTimeIsNew)
{
    scratch.put("A.THC", "old");
    known.note(file);
    fs::last_write_time(file, fs::last_write_time(file) + std::chrono::hours{1});
    EXPECT_TRUE(replace("new"));
}

TEST_F(KnownFilesTest, TakeWhatWasWrittenHereForKnown)
{
    known.note(file);
    EXPECT_TRUE(replace("first"));
    EXPECT_TRUE(replace("second"));
    scratch.put("A.THC", "theirs");
    dialogs.answer(ui::Answer::Yes);
    EXPECT_TRUE(replace("third"));
    EXPECT_TRUE(replace("fourth")) << "after a Yes the file is ours again";
    EXPECT_EQ(scratch.get("A.THC"), "fourth");
}

TEST_F(KnownFilesTest, AskAboutAFileThatSomebodyElseHasCreatedMeanwhile)
{
    known.note(file);
    scratch.put("A.THC", "theirs");
    dialogs.answer(ui::Answer::No);
    EXPECT_FALSE(replace("ours"));
    EXPECT_EQ(scratch.get("A.THC"), "theirs");
}

TEST_F(KnownFilesTest, AskNothingAboutAFileThatHasVanished)
{
    scratch.put("A.THC", "old");
    known.note(file);
    fs::remove(file);
    EXPECT_TRUE(replace("new"));
    EXPECT_EQ(scratch.get("A.THC"), "new");
}

TEST_F(KnownFilesTest, AskNothingAboutAFileThatWasNeverNoted)
{
    scratch.put("A.THC", "somebody's");
    EXPECT_TRUE(replace("new")) << "the caller has asked its own question, or there was no file";
}

TEST_F(KnownFilesTest, AskNothingWhenTheOtherOneSavedTheSame)
{
    scratch.put("A.THC", "old");
    known.note(file);
    scratch.put("A.THC", "new");
    EXPECT_TRUE(replace("new"));
}

TEST_F(KnownFilesTest, TellFilesApart)
{
    scratch.put("A.THC", "a");
    scratch.put("B.THC", "b");
    known.note(file);
    known.note(scratch.path() / "B.THC");
    scratch.put("A.THC", "theirs");
    EXPECT_TRUE(known.replace(scratch.path() / "B.THC", "mine", dialogs, trouble));
    dialogs.answer(ui::Answer::No);
    EXPECT_FALSE(replace("mine"));
}

TEST_F(KnownFilesTest, KnowAFileByAnotherSpellingOfItsPath)
{
    scratch.put("A.THC", "old");
    known.note(scratch.path() / "." / "A.THC");
    scratch.put("A.THC", "theirs");
    dialogs.answer(ui::Answer::No);
    EXPECT_FALSE(replace("ours"));
}

TEST_F(KnownFilesTest, SayThatTheFileCannotBeWrittenAndStillKnowItAsItIs)
{
    scratch.put("A.THC", "old");
    known.note(file);
    fs::create_directory(scratch.path() / ".A.THC.tmp~"); // in the way of every write
    EXPECT_FALSE(replace("new"));
    EXPECT_EQ(dialogs.shown, std::vector<ui::Message>{trouble});
    EXPECT_EQ(scratch.get("A.THC"), "old");
    fs::remove(scratch.path() / ".A.THC.tmp~");
    EXPECT_TRUE(replace("new"));
    EXPECT_EQ(dialogs.shown.size(), 1u);
}

} // namespace
} // namespace tallyhoop
