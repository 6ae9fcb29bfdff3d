// tests/files/known_files_test.cpp - what somebody else has done to a file is noticed.
#include "files/known_files.h"

#include "fakes/scratch_folder.h"

#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

namespace fs = std::filesystem;

struct KnownFilesTest : testing::Test {
    test::ScratchFolder scratch;
    KnownFiles known;
    fs::path file = scratch.path() / "A.THC";

    bool wouldUndo(std::string_view bytes) const { return known.wouldUndoChanges(file, bytes); }
    bool replace(std::string_view bytes) { return static_cast<bool>(known.replace(file, bytes)); }
};

TEST_F(KnownFilesTest, SeeNoChangeInAFileThatIsAsItWas)
{
    scratch.put("A.THC", "old");
    known.note(file);
    EXPECT_FALSE(wouldUndo("new"));
    EXPECT_TRUE(replace("new"));
    EXPECT_EQ(scratch.get("A.THC"), "new");
}

TEST_F(KnownFilesTest, SeeTheChangesOfSomebodyElse)
{
    scratch.put("A.THC", "old");
    known.note(file);
    scratch.put("A.THC", "theirs");
    EXPECT_TRUE(wouldUndo("ours"));
    EXPECT_EQ(scratch.get("A.THC"), "theirs") << "looking changes nothing";
    EXPECT_TRUE(wouldUndo("ours")) << "nor does it make the change known";
}

TEST_F(KnownFilesTest, ReplaceTheFileAllTheSame)
{
    scratch.put("A.THC", "old");
    known.note(file);
    scratch.put("A.THC", "theirs");
    EXPECT_TRUE(replace("ours")) << "whoever asks has asked before";
    EXPECT_EQ(scratch.get("A.THC"), "ours");
}

TEST_F(KnownFilesTest, SeeAChangeThatKeepsLengthAndTime)
{
    scratch.put("A.THC", "old");
    known.note(file);
    const fs::file_time_type time = fs::last_write_time(file);
    scratch.put("A.THC", "0ld");
    fs::last_write_time(file, time);
    EXPECT_TRUE(wouldUndo("new"));
}

TEST_F(KnownFilesTest, SeeNoChangeWhenOnlyTheTimeIsNew)
{
    scratch.put("A.THC", "old");
    known.note(file);
    fs::last_write_time(file, fs::last_write_time(file) + std::chrono::hours{1});
    EXPECT_FALSE(wouldUndo("new"));
}

TEST_F(KnownFilesTest, TakeWhatWasWrittenHereForKnown)
{
    known.note(file);
    EXPECT_TRUE(replace("first"));
    EXPECT_FALSE(wouldUndo("second"));
    EXPECT_TRUE(replace("second"));
    scratch.put("A.THC", "theirs");
    EXPECT_TRUE(wouldUndo("third"));
    EXPECT_TRUE(replace("third"));
    EXPECT_FALSE(wouldUndo("fourth")) << "once replaced the file is ours again";
}

TEST_F(KnownFilesTest, KnowAFileThatWasOnlyEverWrittenHere)
{
    EXPECT_TRUE(replace("ours"));
    scratch.put("A.THC", "theirs");
    EXPECT_TRUE(wouldUndo("ours again"));
}

TEST_F(KnownFilesTest, SeeThatSomebodyElseHasCreatedTheFileMeanwhile)
{
    known.note(file);
    scratch.put("A.THC", "theirs");
    EXPECT_TRUE(wouldUndo("ours"));
}

TEST_F(KnownFilesTest, SeeAnEmptyFileWhereThereWasNone)
{
    known.note(file);
    scratch.put("A.THC", "");
    EXPECT_TRUE(wouldUndo("ours"));
}

TEST_F(KnownFilesTest, MindAFileThatHasVanishedNoLonger)
{
    scratch.put("A.THC", "old");
    known.note(file);
    fs::remove(file);
    EXPECT_FALSE(wouldUndo("new"));
    EXPECT_TRUE(replace("new"));
    EXPECT_EQ(scratch.get("A.THC"), "new");
}

TEST_F(KnownFilesTest, SayNothingOfAFileThatWasNeverNoted)
{
    scratch.put("A.THC", "somebody's");
    EXPECT_FALSE(wouldUndo("new")) << "the caller has asked its own question, or there was no file";
}

TEST_F(KnownFilesTest, SeeNoChangeToUndoWhenTheOtherOneSavedTheSame)
{
    scratch.put("A.THC", "old");
    known.note(file);
    scratch.put("A.THC", "new");
    EXPECT_FALSE(wouldUndo("new"));
    EXPECT_TRUE(wouldUndo("newer"));
}

TEST_F(KnownFilesTest, DifferFromFileToFile)
{
    scratch.put("A.THC", "a");
    scratch.put("B.THC", "b");
    known.note(file);
    known.note(scratch.path() / "B.THC");
    scratch.put("A.THC", "theirs");
    EXPECT_FALSE(known.wouldUndoChanges(scratch.path() / "B.THC", "mine"));
    EXPECT_TRUE(wouldUndo("mine"));
}

TEST_F(KnownFilesTest, KnowAFileByAnotherSpellingOfItsPath)
{
    scratch.put("A.THC", "old");
    known.note(scratch.path() / "." / "A.THC");
    scratch.put("A.THC", "theirs");
    EXPECT_TRUE(wouldUndo("ours"));
}

TEST_F(KnownFilesTest, FailWhereTheFileCannotBeWrittenAndStillKnowItAsItIs)
{
    scratch.put("A.THC", "old");
    known.note(file);
    fs::create_directory(scratch.path() / ".A.THC.tmp~"); // in the way of every write
    const Result<Done> replaced = known.replace(file, "new");
    ASSERT_FALSE(replaced);
    EXPECT_NE(replaced.failure().message, "");
    EXPECT_EQ(scratch.get("A.THC"), "old");
    fs::remove(scratch.path() / ".A.THC.tmp~");
    EXPECT_FALSE(wouldUndo("new"));
    EXPECT_TRUE(replace("new"));
}

} // namespace
} // namespace tallyhoop
