// tests/screens/outlook/pool_opening_test.cpp - who is missing, what is said of damaged files, and cancelling.
#include "screens/outlook/pool_opening.h"

#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "fakes/scratch_folder.h"
#include "files/selection_file.h"
#include "pool/outlook/final_pool.h"

#include <filesystem>
#include <fmt/format.h>
#include <gmock/gmock.h>

namespace tallyhoop::test {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

struct PoolOpening : testing::Test {
    ScratchFolder scratch;
    FakePlatform platform;
    FakeBoard board;
    Pool pool = finalPool();

    PoolOpening()
    {
        scratch.put("TALLYHOOP.THS", selectionFile(*pool.results));
        for (const Entry& entry : pool.entries)
            scratch.put(entry.fileName, selectionFile(entry));
    }

    OpenedPool open() { return openPool(scratch.folder(), platform.services, board); }

    static OpenedPool withTrouble(std::size_t files)
    {
        OpenedPool opened;
        for (std::size_t i = 1; i <= files; ++i)
            opened.pool.trouble.push_back(Failure{fmt::format("<{}>", i)});
        return opened;
    }
};

TEST_F(PoolOpening, TakesEverybody)
{
    const OpenedPool opened = open();
    EXPECT_EQ(opened.pool.entries, pool.entries);
    EXPECT_EQ(opened.missing, 0u);
    EXPECT_EQ(opened.inPart, 0u);
    EXPECT_FALSE(opened.isCancelled);
    EXPECT_FALSE(opened.unsavedResults);
    EXPECT_THAT(unreadInWords(opened), IsEmpty());
}

TEST_F(PoolOpening, LeavesOutPlayersOfWhomNothingCanBeRead)
{
    scratch.put("Aaron_A.THC", "");
    scratch.put("Bob_X.THC", "");
    const OpenedPool opened = open();
    ASSERT_THAT(opened.pool.entries, SizeIs(2));
    EXPECT_EQ(opened.pool.entries[0].name, "Ann");
    EXPECT_EQ(opened.pool.entries[1].name, "Cleo");
    EXPECT_EQ(opened.missing, 2u);
    EXPECT_EQ(opened.inPart, 0u);
    EXPECT_THAT(unreadInWords(opened), ElementsAre("2 players are missing: their selections cannot be read"));
}

TEST_F(PoolOpening, KeepsPlayersOfWhomAPartCanBeRead)
{
    scratch.put("Bob_X.THC", selectionFile(pool.entries[1]) + "more\r\n");
    const OpenedPool opened = open();
    EXPECT_EQ(opened.pool.entries, pool.entries);
    EXPECT_EQ(opened.missing, 0u);
    EXPECT_THAT(unreadInWords(opened), ElementsAre("1 selection was read only in part"));
}

TEST_F(PoolOpening, KeepsAPlayerOfWhomOnlyTheNameCanBeRead)
{
    Entry named;
    named.name = "Bob";
    scratch.put("Bob_X.THC", selectionFile(named) + "more\r\n");
    const OpenedPool opened = open();
    ASSERT_THAT(opened.pool.entries, SizeIs(3));
    EXPECT_EQ(opened.pool.entries[1].name, "Bob");
    EXPECT_EQ(opened.missing, 0u);
    EXPECT_EQ(opened.inPart, 1u);
}

TEST_F(PoolOpening, KeepsAnEmptySelectionThatIsWhole)
{
    scratch.put("Zoe_Z.THC", selectionFile(Entry{}));
    const OpenedPool opened = open();
    EXPECT_THAT(opened.pool.entries, SizeIs(4)) << "nothing is wrong with the file";
    EXPECT_EQ(opened.missing, 0u);
}

TEST_F(PoolOpening, SaysOfResultsWithoutTheirEndThatWinnersMayBeMissing)
{
    const std::string whole = selectionFile(*pool.results);
    scratch.put("TALLYHOOP.THS", whole.substr(0, whole.size() / 2));
    const OpenedPool opened = open();
    EXPECT_TRUE(opened.areResultsDamaged);
    EXPECT_THAT(unreadInWords(opened), ElementsAre("The results file is damaged: some winners may be missing"));
    EXPECT_EQ(opened.missing, 0u) << "they are nobody's";
    EXPECT_EQ(opened.inPart, 0u);
}

TEST_F(PoolOpening, SaysTheSameOfResultsThatAreAFolder)
{
    std::filesystem::remove(scratch.path() / "TALLYHOOP.THS");
    std::filesystem::create_directory(scratch.path() / "TALLYHOOP.THS");
    EXPECT_THAT(unreadInWords(open()), ElementsAre("The results file is damaged: some winners may be missing"));
}

TEST_F(PoolOpening, SaysOfASetupFileThatIsCutWhatMayBeMissing)
{
    scratch.put("POOLSTART.THS", "Team 1\r\n");
    EXPECT_THAT(unreadInWords(open()),
                ElementsAre("The setup file is damaged: some teams, seeds or payoffs may be missing"));
}

TEST_F(PoolOpening, SaysAllThatIsMissing)
{
    OpenedPool opened;
    opened.areResultsDamaged = true;
    opened.isListDamaged = true;
    opened.inPart = 2;
    EXPECT_THAT(unreadInWords(opened), ElementsAre("The results file is damaged: some winners may be missing",
                                                   "The folder cannot be read whole: some players may be missing",
                                                   "2 selections were read only in part"));
}

TEST_F(PoolOpening, ShowsItsProgressAndCanBeCancelled)
{
    platform.progress.cancelAt = 2;
    const OpenedPool opened = open();
    EXPECT_TRUE(opened.isCancelled);
    EXPECT_THAT(opened.pool.entries, SizeIs(2));
    EXPECT_EQ(platform.progress.begun, 1);
    EXPECT_EQ(platform.progress.ended, 1);
}

TEST_F(PoolOpening, NoticesResultsOnTheBoardThatAreNotSaved)
{
    board.unsavedResults = true;
    EXPECT_TRUE(open().unsavedResults);
}

TEST_F(PoolOpening, SaysNothingWhereAllWasRead)
{
    showUnread(platform.dialogs, open());
    EXPECT_THAT(platform.dialogs.shown, IsEmpty());
}

TEST_F(PoolOpening, NamesDamagedFilesInOneMessage)
{
    scratch.put("Ann_X.THC", "");
    scratch.put("Bob_X.THC", selectionFile(pool.entries[1]) + "more\r\n");
    scratch.put("TALLYHOOP.THS", "");
    showUnread(platform.dialogs, open());
    ASSERT_THAT(platform.dialogs.shown, SizeIs(1));
    EXPECT_THAT(platform.dialogs.shown[0].text,
                AllOf(HasSubstr(scratch.shownPrefix() + "Ann_X.THC: "), HasSubstr("Bob_X.THC: "),
                      HasSubstr("TALLYHOOP.THS: "),
                      HasSubstr("\r\n \r\nThe results file is damaged: some winners may be missing. "
                                "1 player is missing: the selection cannot be read. "
                                "1 selection was read only in part.")));
    EXPECT_EQ(platform.dialogs.shown[0].moreButton, "");
}

TEST_F(PoolOpening, TurnsOverThePagesOfManyDamagedFiles)
{
    platform.dialogs.answer(ui::Answer::More).answer(ui::Answer::More);
    showUnread(platform.dialogs, withTrouble(25));
    ASSERT_THAT(platform.dialogs.shown, SizeIs(3));
    EXPECT_THAT(platform.dialogs.shown[0].text, AllOf(HasSubstr("(1 to 12 of 25)"), HasSubstr("<1>\r\n<2>"),
                                                      HasSubstr("<12>"), Not(HasSubstr("<13>"))));
    EXPECT_THAT(platform.dialogs.shown[1].text,
                AllOf(HasSubstr("(13 to 24 of 25)"), HasSubstr("<13>"), HasSubstr("<24>")));
    EXPECT_EQ(platform.dialogs.shown[1].moreButton, "&Next Files");
    EXPECT_THAT(platform.dialogs.shown[2].text, AllOf(HasSubstr("(25 to 25 of 25)"), HasSubstr("<25>")));
    EXPECT_EQ(platform.dialogs.shown[2].moreButton, "");
}

TEST_F(PoolOpening, HasNoButtonAfterAFullPage)
{
    showUnread(platform.dialogs, withTrouble(12));
    ASSERT_THAT(platform.dialogs.shown, SizeIs(1));
    EXPECT_EQ(platform.dialogs.shown[0].moreButton, "");
    EXPECT_THAT(platform.dialogs.shown[0].text, Not(HasSubstr("of 12")));
}

TEST_F(PoolOpening, NeedsOneAnswerForAHundredDamagedFiles)
{
    showUnread(platform.dialogs, withTrouble(100)); // the person presses OK
    EXPECT_THAT(platform.dialogs.shown, SizeIs(1));
}

} // namespace
} // namespace tallyhoop::test
