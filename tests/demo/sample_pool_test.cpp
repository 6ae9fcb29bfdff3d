// tests/demo/sample_pool_test.cpp - the sample pool is a real pool: consistent, readable, and scored as worked out
// here.
#include "demo/sample_pool.h"

#include "base/lines.h"
#include "base/numbers.h"
#include "base/windows1252.h"
#include "demo/sample_brackets.h"
#include "fakes/fake_platform.h"
#include "fakes/scratch_folder.h"
#include "files/file_names.h"
#include "files/selection_file.h"
#include "files/settings_file.h"
#include "files/setup_file.h"
#include "pool/naive_scorer.h"
#include "pool/sample_brackets.h"
#include "pool/scoring.h"
#include "screens/demo_mode.h"

#include <gmock/gmock.h>

namespace tallyhoop {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

/// Every winner stands among the two teams that meet for it; an open game is followed by open games only.
void expectConsistent(const SelectionLines& lines)
{
    for (int slot = 1; slot <= 127; ++slot) {
        const std::string& winner = lines.at(static_cast<std::size_t>(slot));
        if (test::roundOfSlot(slot) == 0) {
            EXPECT_NE(winner, "") << "slot " << slot;
        } else if (!winner.empty()) {
            const auto [upper, lower] = test::entrantsOf(slot);
            EXPECT_TRUE(winner == lines.at(static_cast<std::size_t>(upper)) ||
                        winner == lines.at(static_cast<std::size_t>(lower)))
                << winner << " in slot " << slot;
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
void expectScore(const SelectionLines& lines, const ExpectedScore& expected)
{
    constexpr Payoffs kPayoffs{1, 2, 4, 8, 12, 16};
    const ScoredPicks scored = Scoring{demo::sampleResults(), kPayoffs}.score(lines);
    EXPECT_EQ(scored.points, expected.points);
    EXPECT_EQ(scored.points + scored.possible, expected.maximum);
    EXPECT_EQ(scored.goodPicks, expected.good);
    EXPECT_EQ(scored.badPicks, expected.bad);
    const ScoredPicks naive = test::scoreNaively(lines, demo::sampleResults(), kPayoffs);
    EXPECT_EQ(naive.points, expected.points);
    EXPECT_EQ(naive.points + naive.possible, expected.maximum);
}

TEST(SamplePool, HasTheFieldOf2000Finalized)
{
    const SetupLines setup = demo::sampleSetup();
    EXPECT_EQ(setup[0], "Arizona");
    EXPECT_EQ(setup[16], "Michigan St.");
    EXPECT_EQ(setup[32], "Duke");
    EXPECT_EQ(setup[63], "UNC Wilmington");
    EXPECT_EQ(setup[setup_line::kTitle], "2000 NCAA Tournament");
    EXPECT_EQ(setup[setup_line::kRegion], "West Region");
    EXPECT_EQ(setup[setup_line::kRegion + 3], "South Region");
    EXPECT_EQ(setup[setup_line::kPayoff + 5], "16");
    EXPECT_NE(setup[setup_line::kComment1], "");
    EXPECT_NE(setup[setup_line::kComment2], "");
    EXPECT_TRUE(isFinalized(setup));
}

TEST(SamplePool, ShowsTheSameFieldInEverySelection)
{
    const SetupLines setup = demo::sampleSetup();
    std::vector<SelectionLines> brackets{demo::sampleResults()};
    for (const demo::SamplePlayer& player : demo::samplePlayers())
        brackets.push_back(player.lines);
    for (const SelectionLines& lines : brackets)
        for (int team = 0; team < kTeams; ++team) {
            const Slot slot = slotOf(firstRoundPosition(team / 16, team % 16));
            EXPECT_EQ(lines.at(static_cast<std::size_t>(index(slot))), setup.at(static_cast<std::size_t>(team)));
        }
}

TEST(SamplePool, HasResultsUpToTheRegionalFinalsAndTheLastThreeGamesOpen)
{
    const SelectionLines results = demo::sampleResults();
    expectConsistent(results);
    for (std::size_t slot = 1; slot <= 124; ++slot)
        EXPECT_NE(results.at(slot), "") << "slot " << slot;
    EXPECT_EQ(results[31], "Wisconsin");
    EXPECT_EQ(results[62], "Michigan St.");
    EXPECT_EQ(results[93], "Florida");
    EXPECT_EQ(results[124], "North Carolina");
    EXPECT_EQ(results[125], "");
    EXPECT_EQ(results[126], "");
    EXPECT_EQ(results[127], "");
    EXPECT_EQ(results[selection_line::kInitials], "A");
    EXPECT_EQ(results[selection_line::kName], "FinalResults");
    EXPECT_EQ(results[selection_line::kFinalPoints], "");
}

TEST(SamplePool, HasFourPlayersWithBracketsThatCouldHaveBeenClicked)
{
    for (const demo::SamplePlayer& player : demo::samplePlayers()) {
        SCOPED_TRACE(player.fileName);
        expectConsistent(player.lines);
        const Result<std::int16_t> finalPoints = wholeNumber(player.lines[selection_line::kFinalPoints]);
        ASSERT_TRUE(finalPoints);
        EXPECT_GE(*finalPoints, 50);
        EXPECT_LE(*finalPoints, 250);
    }
}

TEST(SamplePool, NamesItsSelectionFilesAsTheProgramProposes)
{
    std::vector<std::string> names;
    for (const demo::SamplePlayer& player : demo::samplePlayers()) {
        EXPECT_EQ(player.fileName,
                  proposedFileName(player.lines[selection_line::kName], player.lines[selection_line::kInitials]));
        EXPECT_EQ(player.record.fileName, upperCase(player.fileName));
        EXPECT_LE(player.record.fileName.size(), kFileNameWidth);
        EXPECT_TRUE(endsWithFolded(player.record.email, "@example.org"));
        EXPECT_NE(player.record.phone, "");
        names.push_back(player.fileName);
    }
    EXPECT_TRUE(std::ranges::is_sorted(names)) << "the player list is kept in alphabetical order";
    EXPECT_THAT(names, testing::UnorderedElementsAreArray(kDemoSelectionFiles));
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
        champions.push_back(player.lines[selection_line::kName] + ": " + player.lines[selection_line::kChampion]);
    EXPECT_THAT(champions, ElementsAre("Demo Favorite: Duke", "Demo Halfway: ", "Demo Longshot: Gonzaga",
                                       "Demo Prophet: Michigan St."));
}

TEST(SamplePool, IsReadBackCleanlyByTheProgram)
{
    const test::ScratchFolder scratch;
    test::FakeDialogs dialogs;
    const DataFolder folder = scratch.folder();
    ASSERT_TRUE(demo::installSamplePool(folder));

    modTallyhoop state;
    ReadStartingField(folder, dialogs, state);
    EXPECT_EQ(state.setupLines, demo::sampleSetup());
    EXPECT_EQ(state.currentTitle, "2000 NCAA Tournament");

    SelectionLines lines;
    ReadSelections(scratch.path() / "TALLYHOOP.THS", dialogs, lines);
    EXPECT_EQ(lines, demo::sampleResults());
    for (const demo::SamplePlayer& player : demo::samplePlayers()) {
        ReadSelections(scratch.path() / player.fileName, dialogs, lines);
        EXPECT_EQ(lines, player.lines);
    }

    EXPECT_TRUE(validatePlayerNames(folder, dialogs));
    const std::vector<PlayerRecord> records = readPlayerNames(folder);
    ASSERT_EQ(records.size(), 4u);
    EXPECT_THAT(records[3].name, testing::StartsWith("Demo Prophet,DP "));
    EXPECT_THAT(records[3].fileName, testing::StartsWith("DEMO PROPHET_DP.THC "));
    EXPECT_TRUE(folder.exists(records[3].fileName.substr(0, records[3].fileName.find(' ', 5))));

    EXPECT_TRUE(demoModeIsOn(folder));
    EXPECT_TRUE(dialogs.shown.empty());
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
    test::FakeDialogs dialogs;
    ASSERT_TRUE(createPlayerNames(scratch.folder(), dialogs));
    ASSERT_TRUE(demo::installSamplePool(scratch.folder()));
    EXPECT_EQ(readPlayerNames(scratch.folder()).size(), 4u);
}

TEST(SamplePoolInstall, TakesEverythingBackWhenAFileCannotBeWritten)
{
    const test::ScratchFolder scratch;
    std::filesystem::create_directory(scratch.path() / ".TALLYHOOP.INI.tmp~"); // in the way of the last file
    const Result<Done> installed = demo::installSamplePool(scratch.folder());
    ASSERT_FALSE(installed);
    EXPECT_THAT(installed.failure().message, HasSubstr("TALLYHOOP.INI"));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator{scratch.path()}, {}), 1);

    std::filesystem::remove(scratch.path() / ".TALLYHOOP.INI.tmp~");
    EXPECT_TRUE(demo::installSamplePool(scratch.folder())) << "once the trouble is gone it works";
}

TEST(SamplePoolInstall, LeavesNothingToKeepWhenTheDemoIsLeftUntouched)
{
    const test::ScratchFolder scratch;
    test::FakePlatform platform;
    ASSERT_TRUE(demo::installSamplePool(scratch.folder()));
    std::string notice;
    EXPECT_TRUE(leaveDemo(scratch.folder(), platform.services, notice));
    EXPECT_EQ(platform.dialogs.shown.size(), 1u);
    EXPECT_EQ(notice, "");
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
