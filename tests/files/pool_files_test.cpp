// tests/files/pool_files_test.cpp - a whole pool read at once.
#include "files/pool_files.h"

#include "fakes/scratch_folder.h"
#include "files/selection_file.h"
#include "files/setup_file.h"
#include "pool/sample_brackets.h"
#include "pool/scoring.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <thread>

namespace tallyhoop {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// A folder with four players and the results up to the Final Four.
struct PoolFiles : testing::Test {
    test::ScratchFolder scratch;
    const Entry adams{test::everyUpperTeamWins(), "AB", "Adams", "150", "Adams_AB.THC"};
    const Entry baker{test::everyLowerTeamWins(), "C", "Baker", "99", "Baker_C.THC"};
    const Entry clark{test::startingField(), "D", "Clark", "", "Clark_D.THC"};
    const Entry dunn{withStranger(), "EF", "Dunn", "250", "Dunn_EF.THC"};
    const Entry results{test::without(test::everyUpperTeamWins(), 124, 126), "A", "FinalResults", "", "TALLYHOOP.THS"};

    PoolFiles()
    {
        for (const Entry& entry : {dunn, baker, adams, clark, results}) // not in the order of their names
            scratch.put(entry.fileName, selectionFile(entry));
        scratch.put("POOLSTART.THS", setupFile(field()));
    }

    static Bracket withStranger()
    {
        Bracket picks = test::everyUpperTeamWins();
        picks.put(kChampion, "A team of no field");
        return picks;
    }

    static Field field()
    {
        Field field = defaultField();
        for (const TeamRow row : allTeamRows())
            field.teams[row] = "Team " + std::to_string(index(row) + 1);
        field.title = "A test of the pool";
        return field;
    }

    std::vector<Read<Entry>> readBy(std::size_t readers, std::span<const FolderFile> files) const
    {
        std::vector<Read<Entry>> all;
        readSelections(
            files, results.picks,
            [&](const FolderFile&, Read<Entry>& selection) {
                all.push_back(std::move(selection));
                return true;
            },
            readers);
        return all;
    }

    static bool isSame(const Read<Entry>& left, const Read<Entry>& right)
    {
        const auto troubleOf = [](const Read<Entry>& read) { return read.trouble ? read.trouble->message : ""; };
        return left.value == right.value && troubleOf(left) == troubleOf(right);
    }

    ReadEntries readAll(const Step& step = goOn) const
    {
        return readEntries(scratch.folder().files(".THC"), results.picks, step);
    }
};

TEST_F(PoolFiles, GiveEveryEntryInTheOrderOfTheList)
{
    const ReadEntries read = readAll();
    EXPECT_THAT(read.entries, ElementsAre(adams, baker, clark, dunn));
    EXPECT_TRUE(read.troubles.empty());
}

TEST_F(PoolFiles, NameAFileThatIsNotWholeAndKeepWhatWasRead)
{
    scratch.put("Baker_C.THC", "first\r\nsecond\r\n");
    const ReadEntries read = readAll();
    ASSERT_EQ(read.entries.size(), 4u);
    EXPECT_EQ(read.entries[1].picks.at(Position{1}), "second");
    EXPECT_TRUE(read.entries[1].picks.isEmpty(Position{2}));
    EXPECT_EQ(read.entries[1].fileName, "Baker_C.THC");
    EXPECT_EQ(read.entries[2], clark);
    ASSERT_EQ(read.troubles.size(), 1u);
    EXPECT_EQ(read.troubles[0].file, scratch.path() / "Baker_C.THC");
    EXPECT_EQ(read.troubles[0].failure.message, "The file has fewer than 131 lines.");
}

TEST_F(PoolFiles, NameAFileThatHasVanishedSinceItWasListed)
{
    const std::vector<FolderFile> files = scratch.folder().files(".THC");
    std::filesystem::remove(scratch.path() / "Clark_D.THC");
    const ReadEntries read = readEntries(files, results.picks);
    ASSERT_EQ(read.entries.size(), 4u);
    EXPECT_EQ(read.entries[2], (Entry{{}, "", "", "", "Clark_D.THC"}));
    ASSERT_EQ(read.troubles.size(), 1u);
    EXPECT_EQ(read.troubles[0].file, scratch.path() / "Clark_D.THC");
}

TEST_F(PoolFiles, AreReadOneStepEach)
{
    int steps = 0;
    EXPECT_EQ(readAll([&steps] { return ++steps > 0; }).entries.size(), 4u);
    EXPECT_EQ(steps, 4);
}

TEST_F(PoolFiles, AreNoLongerReadAfterAStepThatSaysSo)
{
    int steps = 0;
    const ReadEntries read = readAll([&steps] { return ++steps < 2; });
    EXPECT_THAT(read.entries, ElementsAre(adams, baker));
    EXPECT_EQ(steps, 2);
}

TEST_F(PoolFiles, AreTheSameHoweverManyAreReadAtATime)
{
    for (int player = 0; player < 150; ++player) {
        const Entry entry{player % 2 == 0 ? adams.picks : withStranger(), "P", std::to_string(player), "", ""};
        const std::string file = selectionFile(entry);
        const std::string name = "Player " + std::to_string(player) + ".THC";
        scratch.put(name, player % 7 == 0 ? file.substr(0, static_cast<std::size_t>(player)) : file);
    }
    const std::vector<FolderFile> files = scratch.folder().files(".THC");
    std::filesystem::remove(scratch.path() / "Player 40.THC");
    std::filesystem::create_directory(scratch.path() / "Player 40.THC");
    std::filesystem::remove(scratch.path() / "Player 90.THC");

    const std::vector<Read<Entry>> one = readBy(1, files);
    ASSERT_EQ(one.size(), 154u);
    EXPECT_EQ(std::ranges::count_if(one, [](const Read<Entry>& read) { return read.trouble.has_value(); }), 24)
        << "22 cut short, a folder and one that is gone";
    for (const std::size_t readers : {0, 2, 3, 8, 200})
        EXPECT_TRUE(std::ranges::equal(readBy(readers, files), one, isSame)) << readers;
}

TEST_F(PoolFiles, AreTakenByTheThreadThatAsksForThemInTheOrderOfTheList)
{
    for (int player = 0; player < 100; ++player)
        scratch.put("Player " + std::to_string(player) + ".THC", selectionFile(adams));
    const std::vector<FolderFile> files = scratch.folder().files(".THC");
    const std::thread::id caller = std::this_thread::get_id();
    auto next = files.begin();
    readSelections(
        files, results.picks,
        [&](const FolderFile& file, Read<Entry>& selection) {
            EXPECT_EQ(&file, &*next++);
            EXPECT_EQ(selection.value.fileName, file.name);
            EXPECT_EQ(std::this_thread::get_id(), caller);
            return true;
        },
        4);
    EXPECT_EQ(next, files.end());
}

TEST_F(PoolFiles, AreNoLongerTakenWhenNoMoreAreWantedHoweverManyAreReadAtATime)
{
    for (int player = 0; player < 500; ++player)
        scratch.put("Player " + std::to_string(player) + ".THC", selectionFile(adams));
    const std::vector<FolderFile> files = scratch.folder().files(".THC");
    for (const int wanted : {1, 16, 17, 40}) {
        int taken = 0;
        readSelections(
            files, results.picks, [&](const FolderFile&, Read<Entry>&) { return ++taken < wanted; }, 4);
        EXPECT_EQ(taken, wanted);
    }
}

TEST_F(PoolFiles, ShareTheNamesOfTheResultsWhenTheyHaveNoOthers)
{
    const ReadEntries read = readAll();
    EXPECT_EQ(&read.entries[0].picks.names(), &results.picks.names());
    EXPECT_EQ(&read.entries[1].picks.names(), &results.picks.names());
    EXPECT_NE(&read.entries[3].picks.names(), &results.picks.names()) << "a name of its own";
}

TEST_F(PoolFiles, ShareTheNamesOfTheResultsAlsoWhereThoseAreNotOfTheField)
{
    std::filesystem::remove(scratch.path() / "POOLSTART.THS");
    const Pool pool = readPool(scratch.folder());
    ASSERT_TRUE(pool.results);
    ASSERT_EQ(pool.entries.size(), 4u);
    EXPECT_EQ(&pool.entries[0].picks.names(), &pool.results->picks.names());
}

TEST_F(PoolFiles, MakeAPool)
{
    const Pool pool = readPool(scratch.folder());
    EXPECT_EQ(pool.field, field());
    ASSERT_TRUE(pool.results);
    EXPECT_EQ(*pool.results, results);
    EXPECT_THAT(pool.entries, ElementsAre(adams, baker, clark, dunn));
    EXPECT_THAT(pool.trouble, IsEmpty());
}

TEST_F(PoolFiles, MakeAPoolThatIsScoredWithoutMore)
{
    const Pool pool = readPool(scratch.folder());
    const auto scores = scoreEntries(pool.entries, pool.results->picks, *pool.field.payoffs.points());
    ASSERT_TRUE(scores);
    // The regions are worth 4 * 32 = 128, the last three games 40.
    EXPECT_EQ((*scores)[0].points, 128);
    EXPECT_EQ((*scores)[0].maxPoints, 168);
    EXPECT_EQ((*scores)[1].maxPoints, 0) << "wrong everywhere";
    EXPECT_EQ((*scores)[3].maxPoints, 168) << "nobody has seen the stranger lose";
}

TEST_F(PoolFiles, MakeAPoolWithoutResultsBeforeTheFirstGame)
{
    std::filesystem::remove(scratch.path() / "TALLYHOOP.THS");
    const Pool pool = readPool(scratch.folder());
    EXPECT_FALSE(pool.results);
    EXPECT_THAT(pool.entries, ElementsAre(adams, baker, clark, dunn));
    EXPECT_THAT(pool.trouble, IsEmpty());
}

TEST_F(PoolFiles, MakeAPoolThatSaysWhatCouldNotBeRead)
{
    scratch.put("POOLSTART.THS", "Duke\r\n");
    scratch.put("TALLYHOOP.THS", selectionFile(results) + "more\r\n");
    scratch.put("Clark_D.THC", "");
    const Pool pool = readPool(scratch.folder());
    EXPECT_EQ(pool.field, defaultField());
    ASSERT_TRUE(pool.results);
    EXPECT_EQ(*pool.results, results) << "what was read is there";
    EXPECT_EQ(pool.entries.size(), 4u);
    ASSERT_EQ(pool.trouble.size(), 3u);
    EXPECT_EQ(pool.trouble[0].message,
              scratch.shownPrefix() + "POOLSTART.THS: Problem with file, will use default values");
    EXPECT_EQ(pool.trouble[1].message, scratch.shownPrefix() + "TALLYHOOP.THS: The file has more than 131 lines.");
    EXPECT_THAT(pool.trouble[2].message, HasSubstr("Clark_D.THC: "));
}

TEST_F(PoolFiles, NameTheEntriesThatAreNotWhole)
{
    scratch.put("Baker_C.THC", "");
    scratch.put("Dunn_EF.THC", selectionFile(dunn) + "more\r\n");
    const ReadPool read = readPoolInSteps(scratch.folder(), goOn);
    EXPECT_THAT(read.damagedEntries, ElementsAre(1, 3));
    EXPECT_EQ(read.pool.entries.at(3), dunn);
}

TEST_F(PoolFiles, SayWhichOfTheOthersIsNotWhole)
{
    ReadPool read = readPoolInSteps(scratch.folder(), goOn);
    EXPECT_FALSE(read.isFieldDamaged);
    EXPECT_TRUE(read.isFieldWhole);
    EXPECT_FALSE(read.areResultsDamaged);
    EXPECT_FALSE(read.isListDamaged);
    scratch.put("TALLYHOOP.THS", "");
    read = readPoolInSteps(scratch.folder(), goOn);
    EXPECT_FALSE(read.isFieldDamaged);
    EXPECT_TRUE(read.areResultsDamaged);
    scratch.put("POOLSTART.THS", "x\r\n"); // does not begin as one
    read = readPoolInSteps(scratch.folder(), goOn);
    EXPECT_TRUE(read.isFieldDamaged);
    EXPECT_FALSE(read.isFieldWhole);
}

TEST_F(PoolFiles, SayThatAFieldWithoutTroubleIsNotWhole)
{
    scratch.put("POOLSTART.THS", std::string((1u << 20) + 1, 'x')); // far too long to be one
    const ReadPool read = readPoolInSteps(scratch.folder(), goOn);
    EXPECT_FALSE(read.isFieldDamaged);
    EXPECT_FALSE(read.isFieldWhole);
}

TEST_F(PoolFiles, AreReadStepByStepUntilSomebodyStops)
{
    int steps = 0;
    const ReadPool read = readPoolInSteps(scratch.folder(), [&] { return ++steps < 2; });
    EXPECT_THAT(read.pool.entries, ElementsAre(adams, baker));
}

TEST(PoolFilesOfAnEmptyFolder, MakeThePoolThatNobodyHasSetUpYet)
{
    const test::ScratchFolder scratch;
    const Pool pool = readPool(scratch.folder());
    EXPECT_EQ(pool.field, defaultField());
    EXPECT_FALSE(pool.results);
    EXPECT_THAT(pool.entries, IsEmpty());
    EXPECT_THAT(pool.trouble, IsEmpty());
}

} // namespace
} // namespace tallyhoop
