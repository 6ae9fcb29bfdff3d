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

    bool wouldUndo(std::string_view bytes) const
    {
        return known.wouldUndoChanges(file, KnownFiles::contentOf(file), bytes);
    }
    bool replace(std::string_view bytes)
    {
        return known.replace(file, bytes, KnownFiles::contentOf(file)).replaced == KnownFiles::Replaced::Yes;
    }
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
    EXPECT_FALSE(known.wouldUndoChanges(scratch.path() / "B.THC", {true, {}, "b"}, "mine"));
    EXPECT_TRUE(wouldUndo("mine"));
}

TEST_F(KnownFilesTest, KnowAFileByAnotherSpellingOfItsPath)
{
    scratch.put("A.THC", "old");
    known.note(scratch.path() / "." / "A.THC");
    scratch.put("A.THC", "theirs");
    EXPECT_TRUE(wouldUndo("ours"));
}

TEST_F(KnownFilesTest, FailWhereTheFileCannotBeWritten)
{
    fs::create_directory(file); // in the way of every write
    const KnownFiles::Outcome outcome = known.replace(file, "new", KnownFiles::contentOf(file));
    EXPECT_EQ(outcome.replaced, KnownFiles::Replaced::No);
    EXPECT_EQ(outcome.failure.message, "Is a directory");
    fs::remove(file);
    EXPECT_FALSE(wouldUndo("new"));
    EXPECT_TRUE(replace("new"));
}

TEST_F(KnownFilesTest, ReplaceNothingThatWasChangedAfterItWasSeen)
{
    scratch.put("A.THC", "old");
    known.note(file);
    const FileContent seen = KnownFiles::contentOf(file);
    scratch.put("A.THC", "theirs");
    EXPECT_EQ(known.replace(file, "ours", seen).replaced, KnownFiles::Replaced::ChangedMeanwhile);
    EXPECT_EQ(scratch.get("A.THC"), "theirs");
    EXPECT_TRUE(wouldUndo("ours")) << "it is still not known";
    EXPECT_EQ(known.replace(file, "theirs", seen).replaced, KnownFiles::Replaced::Yes) << "the same in both";
}

TEST_F(KnownFilesTest, ReplaceAFileThatHasVanishedAfterItWasSeen)
{
    scratch.put("A.THC", "old");
    const FileContent seen = KnownFiles::contentOf(file);
    fs::remove(file);
    EXPECT_EQ(known.replace(file, "ours", seen).replaced, KnownFiles::Replaced::Yes);
    EXPECT_EQ(scratch.get("A.THC"), "ours");
}

TEST_F(KnownFilesTest, CallNoFileChangedThatCannotBeRead)
{
    scratch.put("A.THC", "old");
    known.note(file);
    const FileContent unreadable{true, Failure{"Permission denied"}, {}};
    EXPECT_FALSE(known.wouldUndoChanges(file, unreadable, "new")) << "nobody can tell";
    EXPECT_TRUE(known.wouldLoseUnread(file, unreadable));
    EXPECT_FALSE(known.wouldLoseUnread(file, KnownFiles::contentOf(file)));
    EXPECT_FALSE(known.wouldLoseUnread(file, {})) << "there is nothing to lose";
}

TEST_F(KnownFilesTest, TakeAFileThatIsTooLargeForOneThatCannotBeRead)
{
    scratch.put("A.THC", "x");
    fs::resize_file(file, std::uintmax_t{200} << 20); // a hole: takes no room
    const FileContent content = KnownFiles::contentOf(file);
    EXPECT_TRUE(content.isThere && content.trouble);
    EXPECT_TRUE(known.wouldLoseUnread(file, content));
}

TEST_F(KnownFilesTest, RememberDamageUntilTheFileIsReplacedOrAnother)
{
    scratch.put("A.THC", "half");
    known.note(file);
    known.noteDamage(file);
    EXPECT_TRUE(known.wouldLoseUnread(file, KnownFiles::contentOf(file)));
    scratch.put("A.THC", "repaired by somebody");
    EXPECT_FALSE(known.wouldLoseUnread(file, KnownFiles::contentOf(file))) << "that is a change to be asked about";
    scratch.put("A.THC", "half");
    EXPECT_TRUE(replace("new"));
    EXPECT_FALSE(known.wouldLoseUnread(file, KnownFiles::contentOf(file)));
}

} // namespace
} // namespace tallyhoop
