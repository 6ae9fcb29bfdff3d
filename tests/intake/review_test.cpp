// tests/intake/review_test.cpp - what an import would do, row by row.
#include "intake/review.h"

#include "base/windows1252.h"
#include "fakes/scratch_folder.h"
#include "files/player_names_file.h"
#include "files/replace_file.h"
#include "files/selection_file.h"
#include "intake/field_2000.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

using test::ScratchFolder;
using test::upperEntry;
using testing::ElementsAre;

HandedIn handedIn(Entry entry, std::optional<std::int64_t> date = {})
{
    return {std::move(entry), {}, {"x.EML", "s@example.org", 1, date}, {}, true};
}

Entry withChampion(Entry entry, std::string_view champion)
{
    entry.picks.put(kChampion, champion);
    return entry;
}

std::string savedBytes(Entry entry)
{
    entry.initials = upperCase(entry.initials);
    return selectionFile(entry);
}

void listPlayers(const ScratchFolder& scratch, std::vector<PlayerRecord> players)
{
    scratch.put("PLAYERNAMES.CSV", playerNamesFile(players));
}

Review reviewed(const ScratchFolder& scratch, std::vector<HandedIn> entries)
{
    return reviewOf(std::move(entries), scratch.folder(), test::field2000());
}

std::vector<bool> ticksOf(const Review& review)
{
    std::vector<bool> ticks;
    for (const ReviewRow& row : review.rows)
        ticks.push_back(row.isTicked);
    return ticks;
}

TEST(Review, ProposesANewFileForANewEntry)
{
    const ScratchFolder scratch;
    const Review review = reviewed(scratch, {handedIn(upperEntry())});
    ASSERT_EQ(review.rows.size(), 1u);
    const ReviewRow& row = review.rows[0];
    EXPECT_EQ(row.fileName, "Ann Smith_as.THC") << "initials as typed, as a save proposes";
    EXPECT_EQ(row.file, scratch.path() / "Ann Smith_as.THC");
    EXPECT_EQ(row.effect, Effect::New);
    EXPECT_EQ(row.picks, 63);
    EXPECT_EQ(row.words, "New.");
    EXPECT_TRUE(row.isTicked);
    EXPECT_EQ(review.summary, "1 entry: 1 new.");
}

TEST(Review, FindsTheVerySameThatIsHereAlready)
{
    const ScratchFolder scratch;
    scratch.put("ann smith_AS.thc", savedBytes(upperEntry()));
    listPlayers(scratch, {{"Ann Smith,AS", "ANN SMITH_AS.THC", "", ""}});
    const ReviewRow row = reviewed(scratch, {handedIn(upperEntry())}).rows.at(0);
    EXPECT_EQ(row.effect, Effect::Identical);
    EXPECT_EQ(row.fileName, "ann smith_AS.thc") << "the one that is here, in any case of letters";
    EXPECT_EQ(row.words, "Identical to what is here.");
    EXPECT_FALSE(row.isTicked);
}

TEST(Review, TicksTheVerySameWhosePlayerIsNotInTheListYet)
{
    const ScratchFolder scratch;
    scratch.put("Ann Smith_as.THC", savedBytes(upperEntry()));
    const ReviewRow row = reviewed(scratch, {handedIn(upperEntry())}).rows.at(0);
    EXPECT_EQ(row.words, "Identical to what is here; the player is not in the list yet.");
    EXPECT_TRUE(row.isTicked);

    Entry open = upperEntry();
    open.picks.clear(kChampion);
    scratch.put("Ann Smith_as.THC", savedBytes(open));
    EXPECT_FALSE(reviewed(scratch, {handedIn(open)}).rows.at(0).isTicked) << "incomplete";
}

TEST(Review, SaysWhenNoPlayerCanBeAdded)
{
    const ScratchFolder scratch;
    scratch.put("Ann Smith_as.THC", savedBytes(upperEntry()));
    scratch.put("PLAYERNAMES.CSV", "saved by a spreadsheet\r\n");
    const Review review = reviewed(scratch, {handedIn(upperEntry())});
    EXPECT_EQ(review.summary, "1 entry: 1 identical to what is here. No player can be added: there are faulty records "
                              "in the player list.");
    EXPECT_EQ(review.rows.at(0).words, "Identical to what is here.");
    EXPECT_FALSE(review.rows.at(0).isTicked) << "nothing would change";

    std::filesystem::resize_file(scratch.path() / "PLAYERNAMES.CSV", kMostBytesOfList + 1); // too large
    EXPECT_THAT(reviewed(scratch, {}).summary,
                testing::EndsWith(" No player can be added: the player list cannot be read."));
}

TEST(Review, RefusesWhatHasTheNameOfAFolderOrADevice)
{
    const ScratchFolder scratch;
    std::filesystem::create_directory(scratch.path() / "Ann Smith_as.THC");
#ifndef _WIN32 // which has devices in no folder
    std::filesystem::create_symlink("/dev/null", scratch.path() / "Bob_B.THC");
#endif
    const Review review = reviewed(scratch, {handedIn(upperEntry()), handedIn(upperEntry("Bob", "B"))});
    EXPECT_EQ(review.rows.at(0).words, "Refused: There is a folder of the name Ann Smith_as.THC.");
#ifndef _WIN32
    EXPECT_EQ(review.rows.at(1).words, "Refused: What has the name Bob_B.THC is no file, but a device or the like.");
    EXPECT_EQ(review.rows.at(1).effect, Effect::Refused);
#endif
}

TEST(Review, CountsThePicksThatDifferFromWhatItReplaces)
{
    const ScratchFolder scratch;
    Entry here = withChampion(upperEntry(), "Arizona");
    here.picks.clear(Position{17});
    scratch.put("Ann Smith_as.THC", savedBytes(here));
    const ReviewRow row = reviewed(scratch, {handedIn(upperEntry())}).rows.at(0);
    EXPECT_EQ(row.effect, Effect::Replaces);
    EXPECT_EQ(row.differentPicks, 2);
    EXPECT_EQ(row.words, "Replaces (2 picks differ).");
    EXPECT_TRUE(row.isTicked);
}

TEST(Review, SaysWhenOnlyTheTotalDiffers)
{
    const ScratchFolder scratch;
    scratch.put("Ann Smith_as.THC", savedBytes(upperEntry("Ann Smith", "as", "99")));
    EXPECT_EQ(reviewed(scratch, {handedIn(upperEntry())}).rows.at(0).words,
              "Replaces (same picks; name, initials or total differ).");
}

TEST(Review, LeavesIncompleteEntriesUnticked)
{
    const ScratchFolder scratch;
    Entry open = upperEntry();
    for (const int place : {92, 125, 126})
        open.picks.clear(Position{place});
    const Review review = reviewed(scratch, {handedIn(open)});
    EXPECT_EQ(review.rows.at(0).words, "New. Incomplete: 60 of 63 picks.");
    EXPECT_EQ(review.rows.at(0).picks, 60);
    EXPECT_FALSE(review.rows.at(0).isTicked);
    EXPECT_EQ(review.summary, "1 entry: 1 new, 1 incomplete.");
}

TEST(Review, LeavesLateEntriesUntickedAndSaysSoInTheSummary)
{
    const ScratchFolder scratch;
    Entry results{startingBracket(test::field2000()), "A", "FinalResults", "", {}};
    scratch.put("TALLYHOOP.THS", selectionFile(results));
    EXPECT_TRUE(reviewed(scratch, {handedIn(upperEntry())}).rows.at(0).isTicked) << "no game has been played yet";

    results.picks.put(Position{16}, "Arizona");
    scratch.put("TALLYHOOP.THS", selectionFile(results));
    const Review review = reviewed(scratch, {handedIn(upperEntry())});
    EXPECT_EQ(review.resultsHere, 1);
    EXPECT_EQ(review.rows.at(0).words, "New. Late.");
    EXPECT_FALSE(review.rows.at(0).isTicked);
    EXPECT_EQ(review.summary, "1 entry: 1 new. They are late: the results of 1 game are entered already.");
}

TEST(Review, RefusesWithEveryReason)
{
    const ScratchFolder scratch;
    const Review review = reviewed(scratch, {handedIn(upperEntry("", "x", "20"))});
    const ReviewRow& row = review.rows.at(0);
    EXPECT_EQ(row.effect, Effect::Refused);
    EXPECT_EQ(row.fileName, "");
    EXPECT_THAT(row.reasons,
                ElementsAre("The name is missing.", "The predicted total \"20\" is not a number from 50 to 250."));
    EXPECT_EQ(row.words, "Refused: The name is missing. The predicted total \"20\" is not a number from 50 to 250.");
    EXPECT_FALSE(row.isTicked);
}

TEST(Review, RefusesEverythingWhereNothingMayBeSaved)
{
    const ScratchFolder scratch;
    Field open = test::field2000();
    open.finalized = "0";
    EXPECT_THAT(reviewOf({handedIn(upperEntry())}, scratch.folder(), open).rows.at(0).reasons,
                ElementsAre("The field is not finalized yet."));
}

TEST(Review, InDemoModeTakesOnlyWhatIsSavedOverASelection)
{
    const ScratchFolder scratch;
    scratch.put("TALLYHOOP.INI", "1\r\n");
    scratch.put("Bob_B.THC", savedBytes(withChampion(upperEntry("Bob", "B"), "Arizona")));
    const Review review = reviewed(scratch, {handedIn(upperEntry()), handedIn(upperEntry("Bob", "B"))});
    EXPECT_THAT(review.rows.at(0).reasons, ElementsAre("The demo pool takes no new selections."));
    EXPECT_EQ(review.rows.at(0).effect, Effect::Refused);
    EXPECT_EQ(review.rows.at(0).fileName, "");
    EXPECT_EQ(review.rows.at(1).words, "Replaces (1 pick differs).") << "as the board saves an opened one";
}

TEST(Review, NamesTheFileThatItReplacesWhenItsLettersHaveAnotherCase)
{
    const ScratchFolder scratch;
    scratch.put("ANN SMITH_as.THC", savedBytes(withChampion(upperEntry(), "Arizona")));
    const ReviewRow row = reviewed(scratch, {handedIn(upperEntry("Ann Smith", "AS"))}).rows.at(0);
    EXPECT_EQ(row.words, "Replaces ANN SMITH_as.THC (1 pick differs).");
    EXPECT_EQ(row.file, scratch.path() / "ANN SMITH_as.THC") << "no second file beside it";
    EXPECT_TRUE(row.isTicked);
}

TEST(Review, TicksTheLatestOfSeveralForOneFile)
{
    const ScratchFolder scratch;
    const Review byOrder =
        reviewed(scratch, {handedIn(upperEntry()), handedIn(withChampion(upperEntry("Ann Smith", "AS"), "Arizona"))});
    EXPECT_THAT(ticksOf(byOrder), ElementsAre(false, true));
    EXPECT_EQ(byOrder.rows[0].words, "New. Handed in again later: row 2.");
    EXPECT_EQ(byOrder.rows[1].words, "New.");

    const Review byDate =
        reviewed(scratch, {handedIn(upperEntry(), 2000), handedIn(withChampion(upperEntry(), "Arizona"), 1000)});
    EXPECT_THAT(ticksOf(byDate), ElementsAre(true, false));
    EXPECT_EQ(byDate.rows[1].words, "New. Handed in again later: row 1.");
}

TEST(Review, SaysWhenALaterOneIsTheSame)
{
    const ScratchFolder scratch;
    const Review review = reviewed(scratch, {handedIn(upperEntry()), handedIn(upperEntry("Ann Smith", "AS"))});
    EXPECT_EQ(review.rows[0].words, "New. The same as row 2.");
}

TEST(Review, TicksAnEarlierOneWhenTheLatestIsIncomplete)
{
    const ScratchFolder scratch;
    Entry open = upperEntry();
    open.picks.clear(kChampion);
    EXPECT_THAT(ticksOf(reviewed(scratch, {handedIn(upperEntry()), handedIn(open)})), ElementsAre(true, false));
}

TEST(Review, LeavesAnEarlierOneUntickedWhenTheLatestIsHereAlready)
{
    const ScratchFolder scratch;
    scratch.put("Ann Smith_as.THC", savedBytes(upperEntry()));
    listPlayers(scratch, {{"Ann Smith,AS", "ANN SMITH_AS.THC", "", ""}});
    Review review = reviewed(scratch, {handedIn(withChampion(upperEntry(), "Arizona")), handedIn(upperEntry())});
    EXPECT_THAT(ticksOf(review), ElementsAre(false, false));
    EXPECT_EQ(review.rows[0].words, "Replaces (1 pick differs). Handed in again later: row 2.");
    tickAllComplete(review);
    EXPECT_THAT(ticksOf(review), ElementsAre(false, false));
}

TEST(Review, HasOneTickForEachFile)
{
    const ScratchFolder scratch;
    Review review = reviewed(scratch, {handedIn(upperEntry()), handedIn(withChampion(upperEntry(), "Arizona")),
                                       handedIn(upperEntry("Bob", "B")), handedIn(upperEntry("", "B"))});
    setTicked(review, 0, true);
    EXPECT_THAT(ticksOf(review), ElementsAre(true, false, true, false));
    setTicked(review, 2, false);
    setTicked(review, 3, true);
    EXPECT_THAT(ticksOf(review), ElementsAre(true, false, false, false)) << "a refused one gets no tick";
}

TEST(Review, TickingAllTakesTheLatestCompleteOneOfEachFile)
{
    const ScratchFolder scratch;
    Entry open = upperEntry("Cy", "C");
    open.picks.clear(kChampion);
    scratch.put("Di_D.THC", savedBytes(upperEntry("Di", "D")));
    listPlayers(scratch, {{"Di,D", "DI_D.THC", "", ""}});
    Review review =
        reviewed(scratch, {handedIn(upperEntry(), 2000), handedIn(withChampion(upperEntry(), "Arizona"), 1000),
                           handedIn(open), handedIn(upperEntry("Di", "D")), handedIn(upperEntry("", "E"))});
    setTicked(review, 1, true);
    tickAllComplete(review);
    EXPECT_THAT(ticksOf(review), ElementsAre(true, false, false, false, false));
    setTicked(review, 2, true);
    setTicked(review, 3, true);
    tickAllComplete(review);
    EXPECT_THAT(ticksOf(review), ElementsAre(true, false, true, true, false)) << "what is ticked by hand stays";
}

TEST(Review, KnowsWhichRowsAreForOneFile)
{
    const ScratchFolder scratch;
    const Review review = reviewed(scratch, {handedIn(upperEntry("Bob", "B")), handedIn(upperEntry()),
                                             handedIn(upperEntry("", "x")), handedIn(upperEntry("BOB", "b"))});
    EXPECT_THAT(review.files, ElementsAre(ElementsAre(0u, 3u), ElementsAre(1u)));
    EXPECT_EQ(review.rows[1].fileNumber, 1u);
    EXPECT_EQ(review.rows[3].fileNumber, 0u);
}

TEST(Review, StopsWhenItIsToldTo)
{
    const ScratchFolder scratch;
    int steps = 0;
    const Review review =
        reviewOf({handedIn(upperEntry("A", "A")), handedIn(upperEntry("B", "B")), handedIn(upperEntry("C", "C"))},
                 scratch.folder(), test::field2000(), [&] { return ++steps < 2; });
    EXPECT_EQ(review.rows.size(), 2u);
}

} // namespace
} // namespace tallyhoop
