// tests/demo/sample_pool_test.cpp - the sample pool is a real pool: consistent, readable, and scored as worked out
// here.
#include "demo/sample_pool.h"

#include "base/lines.h"
#include "base/numbers.h"
#include "base/windows1252.h"
#include "demo/sample_brackets.h"
#include "fakes/fake_platform.h"
#include "fakes/held_file.h"
#include "fakes/scratch_folder.h"
#include "files/file_names.h"
#include "files/pool_files.h"
#include "files/selection_file.h"
#include "files/settings_file.h"
#include "pool/faults.h"
#include "pool/naive_scorer.h"
#include "pool/sample_brackets.h"
#include "pool/scoring.h"
#include "screens/demo_mode.h"

#include <gmock/gmock.h>
#include <optional>

namespace tallyhoop {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr Payoffs kPayoffs{1, 2, 4, 8, 12, 16};

/// Every winner is one of the two teams that meet for its place; an open game is followed by open games only.
void expectConsistent(const Bracket& bracket)
{
    for (const Position position : allPositions()) {
        if (test::roundAt(position) == 0) {
            EXPECT_FALSE(bracket.isEmpty(position)) << "position " << index(position);
        } else if (!bracket.isEmpty(position)) {
            const auto [upper, lower] = test::entrantsOf(position);
            const std::string& winner = bracket.at(position);
            EXPECT_TRUE(winner == bracket.at(upper) || winner == bracket.at(lower))
                << winner << " on position " << index(position);
        }
    }
}

struct ExpectedScore {
    int points;
    int maximum;
    int good;
    int bad;
};

/// Scores a player against the sample results with the field's payoffs, by the program and by the naive scorer.
void expectScore(const Bracket& picks, const ExpectedScore& expected)
{
    for (const Score& scored : {score(picks, demo::sampleResults().picks, kPayoffs),
                                test::scoreNaively(picks, demo::sampleResults().picks, kPayoffs)}) {
        EXPECT_EQ(scored.points, expected.points);
        EXPECT_EQ(scored.points + scored.possible, expected.maximum);
        EXPECT_EQ(scored.goodPicks, expected.good);
        EXPECT_EQ(scored.badPicks, expected.bad);
    }
}

TEST(SamplePool, HasTheFieldOf2000Finalized)
{
    const Field field = demo::sampleField();
    EXPECT_EQ(field.teams[TeamRow{0}], "Arizona");
    EXPECT_EQ(field.teams[TeamRow{16}], "Michigan St.");
    EXPECT_EQ(field.teams[TeamRow{32}], "Duke");
    EXPECT_EQ(field.teams[TeamRow{63}], "UNC Wilmington");
    EXPECT_EQ(field.title, "2000 NCAA Tournament");
    EXPECT_EQ(field.regionTitles.front(), "West Region");
    EXPECT_EQ(field.regionTitles.back(), "South Region");
    EXPECT_EQ(*field.payoffs.points(), kPayoffs);
    EXPECT_NE(field.comment1, "");
    EXPECT_NE(field.comment2, "");
    EXPECT_TRUE(field.isFinalized());
}

TEST(SamplePool, ShowsTheSameFieldInEverySelection)
{
    const Field field = demo::sampleField();
    std::vector<Bracket> brackets{demo::sampleResults().picks};
    for (const demo::SamplePlayer& player : demo::samplePlayers())
        brackets.push_back(player.entry.picks);
    for (const Bracket& bracket : brackets)
        for (const TeamRow row : allTeamRows())
            EXPECT_EQ(bracket.at(positionOf(row)), field.teams[row]);
}

TEST(SamplePool, HasResultsUpToTheRegionalFinalsAndTheLastThreeGamesOpen)
{
    const Entry results = demo::sampleResults();
    expectConsistent(results.picks);
    for (int position = 0; position < 124; ++position)
        EXPECT_FALSE(results.picks.isEmpty(Position{position})) << "position " << position;
    EXPECT_EQ(results.picks.at(Position{30}), "Wisconsin");
    EXPECT_EQ(results.picks.at(Position{61}), "Michigan St.");
    EXPECT_EQ(results.picks.at(Position{92}), "Florida");
    EXPECT_EQ(results.picks.at(Position{123}), "North Carolina");
    EXPECT_TRUE(results.picks.isEmpty(Position{124}));
    EXPECT_TRUE(results.picks.isEmpty(Position{125}));
    EXPECT_TRUE(results.picks.isEmpty(Position{126}));
    EXPECT_EQ(results.initials, "A");
    EXPECT_EQ(results.name, "FinalResults");
    EXPECT_EQ(results.finalPoints, "");
}

TEST(SamplePool, HasFourPlayersWithBracketsThatCouldHaveBeenClicked)
{
    for (const demo::SamplePlayer& player : demo::samplePlayers()) {
        SCOPED_TRACE(player.entry.fileName);
        expectConsistent(player.entry.picks);
        const Result<std::int16_t> finalPoints = wholeNumber(player.entry.finalPoints);
        ASSERT_TRUE(finalPoints);
        EXPECT_GE(*finalPoints, 50);
        EXPECT_LE(*finalPoints, 250);
    }
}

TEST(SamplePool, HasOneBracketLeftUnfinishedAndNoOtherFault)
{
    const std::vector<Fault> favorite = faultsOf(demo::bracketOf(demo::favouritesBracket()), demo::sampleField());
    EXPECT_THAT(favorite, IsEmpty());
    // Not finished: the last two rounds of the East, 4 + 2 + 1 games of the South after the first round, and the three
    // last games but the first semi-final.
    const std::vector<Fault> halfway = faultsOf(demo::bracketOf(demo::incompleteBracket()), demo::sampleField());
    EXPECT_EQ(halfway.size(), 2u + 1u + 4u + 2u + 1u + 2u);
    for (const Fault& fault : halfway)
        EXPECT_EQ(fault.kind, FaultKind::NoPick);
}

TEST(SamplePool, NamesItsSelectionFilesAsTheProgramProposes)
{
    std::vector<std::string> names;
    for (const auto& [entry, record] : demo::samplePlayers()) {
        EXPECT_EQ(entry.fileName, proposedFileName(entry.name, entry.initials));
        EXPECT_EQ(record.fileName, upperCase(entry.fileName));
        EXPECT_LE(record.fileName.size(), kFileNameWidth);
        EXPECT_TRUE(endsWithFolded(record.email, "@example.org"));
        EXPECT_NE(record.phone, "");
        names.push_back(entry.fileName);
    }
    EXPECT_TRUE(std::ranges::is_sorted(names)) << "the player list is kept in alphabetical order";
    EXPECT_THAT(names, testing::UnorderedElementsAreArray(demo::kSelectionFiles));
}

TEST(SamplePool, ScoresTheFavouritesBracket)
{
    // Right by round: 7 + 8 + 6 + 8 = 29 of one point; 1 + 3 + 2 + 1 = 7 of two; Michigan St. and Iowa St. of four;
    // Michigan St. of eight: 29 + 14 + 8 + 8 = 59. Michigan St. can still win its semi-final (12); Duke is out.
    expectScore(bracketOf(demo::favouritesBracket()), {59, 71, 39, 23});
}

TEST(SamplePool, ScoresTheUpsetLoversBracket)
{
    // 5 + 4 + 5 + 5 = 19; 1 + 1 + 1 + 1 = 4 of two; Tulsa of four: 19 + 8 + 4 = 31. Gonzaga and Tulsa are out.
    expectScore(bracketOf(demo::upsetLoversBracket()), {31, 31, 24, 39});
}

TEST(SamplePool, ScoresTheBracketWithTheRightChampion)
{
    // 7 + 7 + 6 + 8 = 28; 3 + 3 + 3 + 1 = 10 of two; 1 + 2 + 1 + 0 = 4 of four; Michigan St. and Florida of eight:
    // 28 + 20 + 16 + 16 = 80. Both semi-finals and the title are possible: 12 + 12 + 16.
    expectScore(bracketOf(demo::rightChampionsBracket()), {80, 120, 44, 16});
}

TEST(SamplePool, ScoresTheIncompleteBracket)
{
    // 7 + 7 + 6 + 7 = 27; 1 + 3 + 2 + 0 = 6 of two; Purdue and Michigan St. of four; Michigan St. of eight:
    // 27 + 12 + 8 + 8 = 55. Michigan St. can win its semi-final; the other one and the title were never picked.
    // Bad: 5 + 10 + 6 + 3 in the four rounds, and two empty picks.
    expectScore(bracketOf(demo::incompleteBracket()), {55, 67, 36, 26});
}

TEST(SamplePool, GivesThePlayersTheseBrackets)
{
    std::vector<std::string> champions;
    for (const demo::SamplePlayer& player : demo::samplePlayers())
        champions.push_back(player.entry.name + ": " + player.entry.picks.at(kChampion));
    EXPECT_THAT(champions, ElementsAre("Demo Favorite: Duke", "Demo Halfway: ", "Demo Longshot: Gonzaga",
                                       "Demo Prophet: Michigan St."));
}

TEST(SamplePool, IsReadBackCleanlyByTheProgram)
{
    const test::ScratchFolder scratch;
    const DataFolder folder = scratch.folder();
    ASSERT_TRUE(demo::installSamplePool(folder));

    const Pool pool = readPool(folder);
    EXPECT_THAT(pool.trouble, IsEmpty());
    EXPECT_EQ(pool.field, demo::sampleField());
    ASSERT_TRUE(pool.results);
    Entry results = demo::sampleResults();
    results.fileName = "TALLYHOOP.THS";
    EXPECT_EQ(*pool.results, results);
    ASSERT_EQ(pool.entries.size(), 4u);
    for (std::size_t player = 0; player < 4; ++player)
        EXPECT_EQ(pool.entries[player], demo::samplePlayers().at(player).entry);

    EXPECT_TRUE(checkPlayerNames(folder));
    const std::vector<PlayerRecord> records = readPlayerNames(folder);
    ASSERT_EQ(records.size(), 4u);
    EXPECT_THAT(records[3].name, testing::StartsWith("Demo Prophet,DP "));
    EXPECT_THAT(records[3].fileName, testing::StartsWith("DEMO PROPHET_DP.THC "));
    EXPECT_TRUE(folder.exists(records[3].fileName.substr(0, records[3].fileName.find(' ', 5))));

    EXPECT_TRUE(demoModeIsOn(folder));
}

TEST(SamplePool, SwitchesDemoModeOnWithItsLastFile)
{
    const std::vector<demo::SampleFile> files = demo::sampleFiles();
    ASSERT_EQ(files.size(), 8u);
    EXPECT_EQ(files.back().name, file_name::kSettings);
    EXPECT_EQ(files.back().bytes, "1\r\n");
    EXPECT_EQ(files[6].name, file_name::kSetup) << "without a field the next start offers the demo again";
}

TEST(SamplePool, KnowsItsFilesByNameAndContent)
{
    for (const demo::SampleFile& file : demo::sampleFiles()) {
        EXPECT_TRUE(demo::isSampleFile(file.name, file.bytes)) << file.name;
        EXPECT_FALSE(demo::isSampleFile(file.name, file.bytes + "changed")) << file.name;
        EXPECT_FALSE(demo::isSampleFile("Own_O.THC", file.bytes)) << file.name;
    }
    EXPECT_TRUE(demo::isSampleFile("tallyhoop.ths", demo::sampleFiles().front().bytes));
}

TEST(SamplePoolInstall, RefusesAFolderThatHasAPool)
{
    const test::ScratchFolder scratch;
    scratch.put("poolstart.ths", "my own field");
    const Result<Done> installed = demo::installSamplePool(scratch.folder());
    ASSERT_FALSE(installed);
    EXPECT_THAT(installed.failure().message, HasSubstr("already has a pool"));
    EXPECT_EQ(scratch.get("poolstart.ths"), "my own field");
    EXPECT_FALSE(scratch.has("TALLYHOOP.INI"));
    EXPECT_FALSE(scratch.has("TALLYHOOP.THS"));
}

TEST(SamplePoolInstall, NeverReplacesAFileOfSomebodyElse)
{
    for (const demo::SampleFile& file : demo::sampleFiles()) {
        const test::ScratchFolder scratch;
        scratch.put(file.name, "mine");
        EXPECT_FALSE(demo::installSamplePool(scratch.folder())) << file.name;
        EXPECT_EQ(scratch.get(file.name), "mine");
        EXPECT_EQ(std::distance(std::filesystem::directory_iterator{scratch.path()}, {}), 1) << file.name;
    }
}

TEST(SamplePoolInstall, TakesThePlaceOfAPlayerListWithoutPlayers)
{
    const test::ScratchFolder scratch;
    scratch.put("PLAYERNAMES.CSV", playerNamesFile({}));
    ASSERT_TRUE(demo::installSamplePool(scratch.folder()));
    EXPECT_EQ(readPlayerNames(scratch.folder()).size(), 4u);
}

TEST(SamplePoolInstall, CompletesWhatAnotherInstallerHasBegun)
{
    const test::ScratchFolder scratch;
    const std::vector<demo::SampleFile> files = demo::sampleFiles();
    for (const demo::SampleFile& file : files) { // whichever of them it has written so far
        scratch.put(file.name, file.bytes);
        EXPECT_TRUE(demo::installSamplePool(scratch.folder())) << file.name;
        for (const demo::SampleFile& other : files)
            EXPECT_EQ(scratch.get(other.name), other.bytes);
        for (const demo::SampleFile& other : files)
            std::filesystem::remove(scratch.path() / other.name);
    }
}

TEST(SamplePoolInstall, TakesEverythingBackWhenAFileCannotBeWritten)
{
    const test::ScratchFolder scratch;
    const std::filesystem::path temporary = scratch.put(".TALLYHOOP.INI.tmp~", "");
    std::optional<test::HeldFile> held{temporary}; // another program seems to write the last file
    const Result<Done> installed = demo::installSamplePool(scratch.folder());
    ASSERT_FALSE(installed);
    EXPECT_THAT(installed.failure().message, HasSubstr("TALLYHOOP.INI"));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator{scratch.path()}, {}), 1);

    held.reset();
    EXPECT_TRUE(demo::installSamplePool(scratch.folder())) << "once the trouble is gone it works";
}

TEST(SamplePoolInstall, TakesBackOnlyWhatItHasWrittenItself)
{
    const test::ScratchFolder scratch;
    const std::vector<demo::SampleFile> files = demo::sampleFiles();
    scratch.put(files.front().name, files.front().bytes); // by another installer
    const std::filesystem::path temporary = scratch.put(".TALLYHOOP.INI.tmp~", "");
    std::optional<test::HeldFile> held{temporary};
    EXPECT_FALSE(demo::installSamplePool(scratch.folder()));
    held.reset();
    EXPECT_EQ(scratch.get(files.front().name), files.front().bytes);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator{scratch.path()}, {}), 2)
        << "the temporary is the other";
}

TEST(SamplePoolInstall, LeavesNothingToKeepWhenTheDemoIsLeftUntouched)
{
    const test::ScratchFolder scratch;
    test::FakePlatform platform;
    ASSERT_TRUE(demo::installSamplePool(scratch.folder()));
    EXPECT_EQ(leaveDemo(scratch.folder(), platform.services), "") << "left, and nothing more to say";
    EXPECT_EQ(platform.dialogs.shown.size(), 1u);
    EXPECT_TRUE(std::filesystem::is_empty(scratch.path()));
}

TEST(SamplePoolInstall, FailsInAFolderThatIsGone)
{
    const test::ScratchFolder scratch;
    EXPECT_FALSE(demo::installSamplePool(DataFolder{scratch.path() / "gone"}));
    EXPECT_FALSE(std::filesystem::exists(scratch.path() / "gone"));
}

} // namespace
} // namespace tallyhoop
