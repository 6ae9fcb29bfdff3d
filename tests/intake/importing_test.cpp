// tests/intake/importing_test.cpp - what is written, what is not, and what is said about it.
#include "intake/importing.h"

#include "base/windows1252.h"
#include "fakes/scratch_folder.h"
#include "files/player_names_file.h"
#include "files/selection_file.h"
#include "intake/field_2000.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

namespace fs = std::filesystem;
using test::ScratchFolder;
using test::upperEntry;
using testing::HasSubstr;

constexpr std::chrono::local_seconds kNow{std::chrono::local_days{std::chrono::year{2026} / 11 / 20} +
                                          std::chrono::hours{10}};

HandedIn entryFrom(Entry entry, std::string email = {})
{
    return {std::move(entry), std::move(email), {"x.EML", "s@example.org", 1, {}}, {}, true};
}

Review reviewedIn(const ScratchFolder& scratch, std::vector<HandedIn> entries)
{
    return reviewOf(std::move(entries), scratch.folder(), test::field2000());
}

ImportOutcome imported(const ScratchFolder& scratch, std::vector<HandedIn> entries)
{
    return importTicked(reviewedIn(scratch, std::move(entries)), scratch.folder(), kNow);
}

std::string playerList(std::vector<PlayerRecord> records) { return playerNamesFile(records); }

/// The bytes that a save on the board writes, line by line.
std::string savedAnn()
{
    std::string bytes;
    for (const Position position : allPositions())
        bytes += test::upperTeamsWin().at(position) + "\r\n";
    return bytes + "AS\r\nAnn Smith\r\n142\r\n*END*\r\n";
}

TEST(Import, WritesWhatASaveOnTheBoardWould)
{
    const ScratchFolder scratch;
    const ImportOutcome outcome = imported(scratch, {entryFrom(upperEntry(), "ann@example.org")});
    EXPECT_EQ(outcome.created, 1u);
    EXPECT_EQ(scratch.get("Ann Smith_as.THC"), savedAnn());
    EXPECT_EQ(scratch.get("PLAYERNAMES.CSV"),
              playerList({{"Ann Smith,as", "ANN SMITH_AS.THC", "ann@example.org", ""}}));
    EXPECT_EQ(outcome.summary, "1 of 1 entry imported.\r\n"
                               "  1 new\r\n"
                               "\r\n"
                               "1 player was added to the player list.");
}

TEST(Import, ReplacesTheFileThatIsHereUnderItsOwnName)
{
    const ScratchFolder scratch;
    scratch.put("ANN SMITH_AS.thc", selectionFile(upperEntry("Ann Smith", "AS", "99")));
    scratch.put("PLAYERNAMES.CSV", playerList({{"Ann Smith,AS", "ANN SMITH_AS.THC", "a@example.org", "1"}}));
    const std::string list = scratch.get("PLAYERNAMES.CSV");
    Review review = reviewedIn(scratch, {entryFrom(upperEntry(), "a@example.org")});
    setTicked(review, 0, true);
    const ImportOutcome outcome = importTicked(review, scratch.folder(), kNow);
    EXPECT_EQ(outcome.replaced, 1u);
    EXPECT_EQ(scratch.get("ANN SMITH_AS.thc"), savedAnn());
    EXPECT_FALSE(scratch.has("Ann Smith_as.THC"));
    EXPECT_EQ(scratch.get("PLAYERNAMES.CSV"), list) << "who is in it stays as entered";
    EXPECT_EQ(outcome.summary, "1 of 1 entry imported.\r\n  1 replaced");
}

TEST(Import, WritesNothingThatIsNotTicked)
{
    const ScratchFolder scratch;
    Entry open = upperEntry("Bob", "B");
    open.picks.clear(kChampion);
    const ImportOutcome outcome = imported(scratch, {entryFrom(open), entryFrom(upperEntry("", "C"))});
    EXPECT_FALSE(scratch.has("Bob_B.THC"));
    EXPECT_FALSE(scratch.has("PLAYERNAMES.CSV"));
    EXPECT_EQ(outcome.summary, "0 of 2 entries imported.\r\n"
                               "  1 not ticked\r\n"
                               "\r\n"
                               "Refused:\r\n"
                               "  x.EML, from s@example.org: The name is missing.");
}

TEST(Import, TakesAnIncompleteOneThatIsTicked)
{
    const ScratchFolder scratch;
    Entry open = upperEntry("Bob", "B");
    open.picks.clear(kChampion);
    Review review = reviewedIn(scratch, {entryFrom(open)});
    setTicked(review, 0, true);
    EXPECT_EQ(importTicked(review, scratch.folder(), kNow).created, 1u);
    EXPECT_EQ(scratch.get("Bob_B.THC"), selectionFile(open));
}

TEST(Import, PutsAPlayerIntoTheListWhoseSelectionIsHereAlready)
{
    const ScratchFolder scratch;
    scratch.put("Ann Smith_as.THC", savedAnn());
    const fs::file_time_type before = fs::last_write_time(scratch.path() / "Ann Smith_as.THC");
    Review review = reviewedIn(scratch, {entryFrom(upperEntry())});
    setTicked(review, 0, true);
    const ImportOutcome outcome = importTicked(review, scratch.folder(), kNow);
    EXPECT_EQ(outcome.unchanged, 1u);
    EXPECT_EQ(outcome.playersAdded, 1u);
    EXPECT_EQ(fs::last_write_time(scratch.path() / "Ann Smith_as.THC"), before) << "not written again";
}

TEST(Import, CallsNothingUnchangedThatHasChanged)
{
    const ScratchFolder scratch;
    scratch.put("Ann Smith_as.THC", savedAnn());
    Review review = reviewedIn(scratch, {entryFrom(upperEntry())});
    setTicked(review, 0, true);
    scratch.put("Ann Smith_as.THC", "somebody else's");
    const ImportOutcome outcome = importTicked(review, scratch.folder(), kNow);
    EXPECT_EQ(outcome.unchanged, 0u);
    ASSERT_EQ(outcome.notWritten.size(), 1u);
    EXPECT_EQ(outcome.notWritten[0].reason, "The file has been changed since the review.");
}

TEST(Import, LeavesAFileAloneThatChangedSinceTheReview)
{
    const ScratchFolder scratch;
    const Review review = reviewedIn(scratch, {entryFrom(upperEntry()), entryFrom(upperEntry("Bob", "B"))});
    scratch.put("Ann Smith_as.THC", "somebody else's");
    const ImportOutcome outcome = importTicked(review, scratch.folder(), kNow);
    EXPECT_EQ(scratch.get("Ann Smith_as.THC"), "somebody else's");
    EXPECT_TRUE(scratch.has("Bob_B.THC"));
    EXPECT_EQ(outcome.summary, "1 of 2 entries imported.\r\n"
                               "  1 new\r\n"
                               "\r\n"
                               "Not written:\r\n"
                               "  Ann Smith_as.THC: The file has been changed since the review.\r\n"
                               "\r\n"
                               "1 player was added to the player list.");
    EXPECT_THAT(scratch.get("PLAYERNAMES.CSV"), testing::Not(HasSubstr("Ann"))) << "nobody without a selection";
}

TEST(Import, SaysWhyAFileCannotBeWritten)
{
    const ScratchFolder scratch;
    const Review review = reviewedIn(scratch, {entryFrom(upperEntry()), entryFrom(upperEntry("Bob", "B"))});
    fs::create_directory(scratch.path() / "Ann Smith_as.THC");
    const ImportOutcome outcome = importTicked(review, scratch.folder(), kNow);
    ASSERT_EQ(outcome.notWritten.size(), 1u);
    EXPECT_EQ(outcome.notWritten[0].row, 0u);
    EXPECT_EQ(outcome.created, 1u);
    EXPECT_TRUE(fs::is_directory(scratch.path() / "Ann Smith_as.THC"));
}

TEST(Import, WritesOnlyTheLatestWhenSeveralAreTickedForOneFile)
{
    const ScratchFolder scratch;
    Entry other = upperEntry();
    other.picks.put(kChampion, "Arizona");
    Review review = reviewedIn(scratch, {entryFrom(other), entryFrom(upperEntry())});
    review.rows[0].isTicked = review.rows[1].isTicked = true;
    const ImportOutcome outcome = importTicked(review, scratch.folder(), kNow);
    EXPECT_EQ(scratch.get("Ann Smith_as.THC"), savedAnn());
    ASSERT_EQ(outcome.notWritten.size(), 1u);
    EXPECT_EQ(outcome.notWritten[0].row, 0u);
    EXPECT_EQ(outcome.notWritten[0].reason, "Row 2 is for the same file.");
}

TEST(Import, LeavesAFaultyPlayerListAsItIs)
{
    const ScratchFolder scratch;
    scratch.put("PLAYERNAMES.CSV", "by hand\r\n");
    const ImportOutcome outcome = imported(scratch, {entryFrom(upperEntry())});
    EXPECT_EQ(scratch.get("PLAYERNAMES.CSV"), "by hand\r\n");
    EXPECT_TRUE(scratch.has("Ann Smith_as.THC"));
    EXPECT_THAT(outcome.summary, HasSubstr("No player was added to the player list. There are faulty records in it."));
}

TEST(Import, TakesTheSendersAddressWhenTheOneInTheEntryDoesNotFit)
{
    const ScratchFolder scratch;
    const ImportOutcome outcome = imported(scratch, {entryFrom(upperEntry(), std::string(40, 'a') + "@example.org")});
    EXPECT_THAT(
        outcome.summary,
        testing::EndsWith("1 player was added to the player list.\r\n  Ann Smith,as: the e-mail "
                          "address does not fit into the list; that of the mail's sender was entered instead."));
    EXPECT_EQ(scratch.get("PLAYERNAMES.CSV"), playerList({{"Ann Smith,as", "ANN SMITH_AS.THC", "s@example.org", ""}}));
}

TEST(Import, SaysWhoseAddressDoesNotFit)
{
    const ScratchFolder scratch;
    HandedIn entry = entryFrom(upperEntry(), std::string(40, 'a') + "@example.org");
    entry.origin.sender = std::string(41, 'b') + "@example.org";
    const ImportOutcome outcome = imported(scratch, {entry});
    EXPECT_THAT(outcome.summary, HasSubstr("  Ann Smith,as: the e-mail address does not fit into the list and was left "
                                           "out."));
    EXPECT_THAT(scratch.get("PLAYERNAMES.CSV"), testing::Not(HasSubstr("aaa")));
}

TEST(Import, ListsEachOfThoseWhoLookTheSameInTheList)
{
    const ScratchFolder scratch;
    const std::string name = "Featherstonehaugh-Cholmondeley of Upper Slaughter ";
    EXPECT_EQ(imported(scratch, {entryFrom(upperEntry(name + "senior", "F"))}).playersAdded, 1u);
    const ImportOutcome outcome =
        imported(scratch, {entryFrom(upperEntry(name + "junior", "F"), "j@example.org"), entryFrom(upperEntry())});
    EXPECT_EQ(outcome.playersAdded, 2u);
    EXPECT_THAT(outcome.summary,
                HasSubstr("2 players were added to the player list.\r\n  " + name +
                          "junior,F: the list cuts this name, and has another player who looks the same there."));
    const std::vector<PlayerRecord> players = readPlayerNames(scratch.folder());
    ASSERT_EQ(players.size(), 3u);
    EXPECT_EQ(players[1].fileName, "FEATHERSTONEHAUGH-CHOLMONDELEY OF");
    EXPECT_EQ(players[1].fileName, players[2].fileName);

    Review again = reviewedIn(scratch, {entryFrom(upperEntry(name + "senior", "F", "99"))});
    EXPECT_EQ(importTicked(again, scratch.folder(), kNow).playersAdded, 0u) << "both have their records";
}

TEST(Import, StopsWhenItIsToldTo)
{
    const ScratchFolder scratch;
    const Review review = reviewedIn(
        scratch, {entryFrom(upperEntry("A", "A")), entryFrom(upperEntry("B", "B")), entryFrom(upperEntry("C", "C"))});
    const ImportOutcome outcome = importTicked(
        review, scratch.folder(), kNow, [] { return false; }, 1);
    EXPECT_EQ(outcome.created, 1u);
    EXPECT_TRUE(scratch.has("A_A.THC"));
    EXPECT_FALSE(scratch.has("B_B.THC"));
    EXPECT_THAT(outcome.summary, HasSubstr("  B_B.THC: The import was stopped before.\r\n  C_C.THC: The import"));
}

TEST(Import, CountsEveryEntryHoweverManyAreWrittenAtATime)
{
    const ScratchFolder scratch;
    std::vector<HandedIn> entries;
    for (int i = 0; i < 40; ++i)
        entries.push_back(entryFrom(upperEntry("Player " + std::to_string(i), "P")));
    int steps = 0;
    const ImportOutcome outcome =
        importTicked(reviewedIn(scratch, entries), scratch.folder(), kNow, [&] { return ++steps > 0; });
    EXPECT_EQ(outcome.created, 40u);
    EXPECT_EQ(steps, 40);
}

TEST(Import, BeginsNothingMoreOnceItIsStopped)
{
    const ScratchFolder scratch;
    std::vector<HandedIn> entries;
    for (int i = 0; i < 40; ++i)
        entries.push_back(entryFrom(upperEntry("Player " + std::to_string(i), "P")));
    int steps = 0;
    const auto stopAtThird = [&] { return ++steps < 3; };
    const ImportOutcome outcome = importTicked(reviewedIn(scratch, entries), scratch.folder(), kNow, stopAtThird, 4);
    EXPECT_EQ(steps, 3) << "asked no more";
    EXPECT_GE(outcome.created, 3u);
    EXPECT_LE(outcome.created, 6u) << "four at first, and one more for each of the first two that were counted";
    EXPECT_EQ(outcome.created + outcome.notWritten.size(), 40u);
    EXPECT_EQ(scratch.folder().files(".THC").size(), outcome.created);
}

TEST(Import, WritesHundredsSeveralAtATime)
{
    const ScratchFolder scratch;
    std::vector<HandedIn> entries;
    for (int i = 0; i < 300; ++i)
        entries.push_back(entryFrom(upperEntry("Player " + std::to_string(i), "P"), "p@example.org"));
    const ImportOutcome outcome = imported(scratch, entries);
    EXPECT_EQ(outcome.created, 300u);
    EXPECT_EQ(outcome.playersAdded, 300u);
    EXPECT_EQ(scratch.folder().files(".THC").size(), 300u);
    EXPECT_EQ(readPlayerNames(scratch.folder()).size(), 300u);
    EXPECT_EQ(readSelectionFile(scratch.path() / "Player 299_P.THC").value.name, "Player 299");
    EXPECT_EQ(std::distance(fs::directory_iterator{scratch.path()}, {}), 301) << "no temporaries are left";
}

} // namespace
} // namespace tallyhoop
