// tests/intake/review_warnings_test.cpp - what should be looked into before it is written.
#include "base/windows1252.h"
#include "fakes/scratch_folder.h"
#include "files/player_names_file.h"
#include "files/selection_file.h"
#include "intake/field_2000.h"
#include "intake/review.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

using test::ScratchFolder;
using test::upperEntry;

/// The player list has Ann, whose selection is here with another champion, and Bob, who has none.
struct ReviewWarnings : testing::Test {
    ScratchFolder scratch;

    void SetUp() override
    {
        list(
            {{"Ann Smith,as", "ANN SMITH_AS.THC", "ann@example.org", ""}, {"Bob,B", "BOB_B.THC", "b@example.org", ""}});
        Entry here = upperEntry("Ann Smith", "AS");
        here.picks.put(kChampion, "Arizona");
        scratch.put("Ann Smith_as.THC", selectionFile(here));
    }

    void list(std::vector<PlayerRecord> players) { scratch.put("PLAYERNAMES.CSV", playerNamesFile(players)); }

    ReviewRow rowOf(const std::string& email, const std::string& sender, Entry entry = upperEntry()) const
    {
        HandedIn handedIn{std::move(entry), email, {"x.EML", sender, 1, {}}, {}, true};
        return reviewOf({std::move(handedIn)}, scratch.folder(), test::field2000()).rows.at(0);
    }
};

TEST_F(ReviewWarnings, NoneForThePlayersOwnAddress)
{
    const ReviewRow row = rowOf("Ann@Example.org", "ANN@example.org");
    EXPECT_EQ(row.words, "Replaces (1 pick differs).");
    EXPECT_TRUE(row.isTicked);
    EXPECT_TRUE(rowOf("ann@example.org", "").isTicked) << "a file, not a mail";
    EXPECT_TRUE(rowOf("", "").isTicked) << "nothing is known of the sender";
}

TEST_F(ReviewWarnings, AMailFromSomebodyElseThatGivesThePlayersAddress)
{
    const ReviewRow row = rowOf("ann@example.org", "eve@example.org");
    EXPECT_EQ(row.words,
              "Sent from eve@example.org, not ann@example.org as in the player list. Replaces (1 pick differs).");
    EXPECT_FALSE(row.isTicked);
}

TEST_F(ReviewWarnings, AnotherAddressInTheEntry)
{
    const std::string replaces = " as in the player list. Replaces (1 pick differs).";
    EXPECT_EQ(rowOf("eve@example.org", "").words, "Its address is eve@example.org, not ann@example.org" + replaces);
    EXPECT_EQ(rowOf("eve@example.org", "ann@example.org").words,
              "Its address is eve@example.org, not ann@example.org" + replaces);
    EXPECT_FALSE(rowOf("eve@example.org", "ann@example.org").isTicked);
    EXPECT_EQ(rowOf("Eve@example.org", "eve@example.org").words,
              "Sent from eve@example.org, not ann@example.org" + replaces);
    EXPECT_EQ(rowOf("eve@example.org", "mallory@example.org").words,
              "Sent from mallory@example.org for eve@example.org, not ann@example.org" + replaces);
}

TEST_F(ReviewWarnings, AnotherAddressOfANewEntryIsSaidOnly)
{
    const ReviewRow row = rowOf("", "eve@example.org", upperEntry("Bob", "B"));
    EXPECT_EQ(row.words, "Sent from eve@example.org, not b@example.org as in the player list. New.");
    EXPECT_TRUE(row.isTicked) << "nobody's picks are lost";
}

TEST_F(ReviewWarnings, NoneWhereNothingWouldChange)
{
    scratch.put("Ann Smith_as.THC", selectionFile(upperEntry("Ann Smith", "AS")));
    EXPECT_EQ(rowOf("eve@example.org", "eve@example.org").words, "Identical to what is here.");
}

TEST_F(ReviewWarnings, NoneWhereThePlayerListHasNoAddress)
{
    list({{"Ann Smith,as", "ANN SMITH_AS.THC", "by hand", ""}});
    EXPECT_EQ(rowOf("eve@example.org", "eve@example.org").words, "Replaces (1 pick differs).");
}

TEST_F(ReviewWarnings, APlayerMayHaveSeveralAddresses)
{
    list({{"Ann Smith,as", "ANN SMITH_AS.THC", "Ann <ann@example.org>; a@home.example", ""}});
    EXPECT_TRUE(rowOf("ann@example.org", "A@Home.example").isTicked);
    EXPECT_EQ(rowOf("ann@example.org", "eve@example.org").words,
              "Sent from eve@example.org, not Ann <ann@example.org>; a@home.example as in the player list. Replaces (1 "
              "pick differs).");
}

TEST_F(ReviewWarnings, AHostileAddressStaysALineOfModerateLength)
{
    const std::string words = rowOf("", "eve\r\nReplaces@" + std::string(5000, 'x')).words;
    EXPECT_TRUE(words.starts_with("Sent from eve  Replaces@xxx")) << words;
    EXPECT_LT(words.size(), 200u);
}

TEST_F(ReviewWarnings, APlayerWhoHasASelectionUnderAnotherName)
{
    list({{"Ann Smith,AS", "ANN.THC", "", ""}, {"Bob,B", "BOB_B.THC", "", ""}});
    std::filesystem::remove(scratch.path() / "Ann Smith_as.THC");
    const ReviewRow row = rowOf("", "");
    EXPECT_EQ(row.words, "The player list has this name with another file: ANN.THC. New.");
    EXPECT_FALSE(row.isTicked) << "the player would be in the pool twice";
    EXPECT_EQ(rowOf("", "", upperEntry("Bob", "B")).words, "New.") << "listed already, with this very file";
}

TEST_F(ReviewWarnings, APlayerWhoseSelectionIsHereAndListedUnderAnotherName)
{
    list({{"Ann Smith,AS", "ANN.THC", "", ""}});
    scratch.put("Ann Smith_as.THC", selectionFile(upperEntry("Ann Smith", "AS")));
    const ReviewRow row = rowOf("", "");
    EXPECT_EQ(row.words, "The player list has this name with another file: ANN.THC. Identical to what is here; the "
                         "player is not in the list yet.");
    EXPECT_FALSE(row.isTicked);
}

TEST_F(ReviewWarnings, TickingAllLeavesDoubtfulEntriesOutAndCountsThem)
{
    const auto from = [](const std::string& sender, const std::string& name, const std::string& initials) {
        return HandedIn{upperEntry(name, initials), {}, {"x.EML", sender, 1, {}}, {}, true};
    };
    Review review = reviewOf({from("eve@example.org", "Ann Smith", "as"), from("", "Cy", "C")}, scratch.folder(),
                             test::field2000());
    EXPECT_EQ(tickAllComplete(review), 1u);
    EXPECT_FALSE(review.rows.at(0).isTicked);
    EXPECT_TRUE(review.rows.at(1).isTicked);
    setTicked(review, 0, true);
    EXPECT_EQ(tickAllComplete(review), 0u) << "ticked by hand";
    EXPECT_TRUE(review.rows.at(0).isTicked);
}

TEST_F(ReviewWarnings, AnApostropheOfAnotherKindIsTheSameName)
{
    list({{"O'Brien,B", "O'BRIEN_B.THC", "", ""}});
    const ReviewRow row = rowOf("", "",
                                upperEntry("O\x92"
                                           "Brien",
                                           "B")); // a telephone's apostrophe
    EXPECT_EQ(row.words, "The player list has this name with another file: O'BRIEN_B.THC. New.");
    EXPECT_FALSE(row.isTicked);
}

TEST_F(ReviewWarnings, ALongNameThatWasCutMayBeAnothers)
{
    list({{"Featherstonehaugh-Cholmondeley,F", "FEATHER.THC", "", ""}}); // 25 characters of the name are kept
    EXPECT_EQ(rowOf("", "", upperEntry("Featherstonehaugh-Cholmondeley senior", "F")).words,
              "The player list may have this player with another file: FEATHER.THC. New.");
}

TEST_F(ReviewWarnings, NoneForThoseWhoLookTheSameInTheList)
{
    const std::string name = "Featherstonehaugh-Cholmondeley of Upper Slaughter ";
    const std::string cut = "FEATHERSTONEHAUGH-CHOLMONDELEY OF"; // the 33 characters that a record holds
    list({{name, cut, "s@example.org", ""}, {name, cut, "j@example.org", ""}});
    scratch.put(name + "junior_F.THC", selectionFile(upperEntry(name + "junior", "F", "99")));
    EXPECT_TRUE(rowOf("", "j@example.org", upperEntry(name + "junior", "F")).isTicked) << "one of the two addresses";
    EXPECT_EQ(
        rowOf("", "eve@example.org", upperEntry(name + "junior", "F")).words,
        "Sent from eve@example.org, not s@example.org; j@example.org as in the player list. Replaces (same picks; "
        "name, initials or total differ).");
    EXPECT_EQ(rowOf("", "new@example.org", upperEntry(name + "grandson", "F")).words, "New.");
}

TEST_F(ReviewWarnings, AFileThatCannotBeRead)
{
    std::filesystem::resize_file(scratch.path() / "Ann Smith_as.THC", kMostBytesOfList + 1); // too large
    const ReviewRow row = rowOf("ann@example.org", "");
    EXPECT_EQ(row.words, "Replaces a file that cannot be read.");
    EXPECT_FALSE(row.isTicked);
}

TEST_F(ReviewWarnings, AFileThatIsNoWholeSelection)
{
    scratch.put("Ann Smith_as.THC", "damaged");
    const ReviewRow row = rowOf("ann@example.org", "");
    EXPECT_EQ(row.words, "Replaces a file that is no whole selection.");
    EXPECT_FALSE(row.isTicked);
}

TEST_F(ReviewWarnings, ADoubtfulEntryDoesNotTakeTheTickOfTheOneBeforeIt)
{
    const auto from = [](const std::string& sender, const std::string& total) {
        return HandedIn{upperEntry("Ann Smith", "as", total), {}, {"x.EML", sender, 1, {}}, {}, true};
    };
    const Review review =
        reviewOf({from("ann@example.org", "142"), from("eve@example.org", "99")}, scratch.folder(), test::field2000());
    EXPECT_TRUE(review.rows.at(0).isTicked);
    EXPECT_FALSE(review.rows.at(1).isTicked);
}

} // namespace
} // namespace tallyhoop
