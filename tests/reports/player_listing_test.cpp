// tests/reports/player_listing_test.cpp - columns and pages of the player listing.
#include "reports/player_listing.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace tallyhoop::test {
namespace {

constexpr std::size_t kHeader = 6;

/// The headings of PLAYERNAMES.CSV and these players, with the trailing blanks of its records.
std::vector<PlayerListingRow> rowsOf(const std::vector<PlayerListingRow>& players)
{
    std::vector<PlayerListingRow> rows{{"Name", "FileName", "Email", "Phone"}};
    rows.insert(rows.end(), players.begin(), players.end());
    for (PlayerListingRow& row : rows) {
        row.name.resize(25, ' ');
        row.fileName.resize(33, ' ');
        row.email.resize(43, ' ');
        row.phone.resize(14, ' ');
    }
    return rows;
}

const PlayerListingRow kSmith{"Smith, John", "Smith_JS.THC", "smith@example.org", "555-0100"};

TEST(PlayerListing, MakesEachColumnAsWideAsItsLongestEntry)
{
    const ReportLines lines = playerListingLines("Pool", rowsOf({kSmith, {"Al", "Al.THC", "a@b.c", "1"}}));

    // 11 + 12 + 17 + 8 + 12 = 60
    EXPECT_EQ(lines, (ReportLines{
                         " ",
                         std::string(28, ' ') + "Pool",           // 30 - 2
                         std::string(23, ' ') + "Player Listing", // 30 - 7
                         " ",
                         "Name           FileName        Email                Phone   ",
                         "-----------    ------------    -----------------    --------",
                         "Smith, John    Smith_JS.THC    smith@example.org    555-0100",
                         "Al             Al.THC          a@b.c                1       ",
                     }));
}

TEST(PlayerListing, OfAListWithoutPlayersHasTwelveBlanksForHeadingsAndRule)
{
    const ReportLines lines = playerListingLines("Pool", rowsOf({}));

    ASSERT_EQ(lines.size(), kHeader);
    EXPECT_EQ(lines[1], std::string(4, ' ') + "Pool"); // 6 - 2
    EXPECT_EQ(lines[2], "Player Listing");             // 6 - 7, never below 0
    EXPECT_EQ(lines[4], std::string(12, ' '));
    EXPECT_EQ(lines[5], std::string(12, ' '));
}

TEST(PlayerListing, HoldsFortyTwoPlayersOnAPage)
{
    const ReportLines fortyOne = playerListingLines("Pool", rowsOf(std::vector(41, kSmith)));
    EXPECT_EQ(fortyOne.size(), kHeader + 41);
    EXPECT_EQ(std::ranges::count(fortyOne, kFormFeedLine), 0);

    const ReportLines fortyTwo = playerListingLines("Pool", rowsOf(std::vector(42, kSmith)));
    ASSERT_EQ(fortyTwo.size(), kHeader + 42 + 1);
    EXPECT_EQ(fortyTwo.back(), kFormFeedLine);
}

TEST(PlayerListing, RepeatsHeaderAndColumnHeadingsForTheFortyThirdPlayer)
{
    const ReportLines lines = playerListingLines("Pool", rowsOf(std::vector(43, kSmith)));

    ASSERT_EQ(lines.size(), kHeader + 42 + 1 + kHeader + 1);
    EXPECT_TRUE(std::equal(lines.begin(), lines.begin() + kHeader, lines.begin() + kHeader + 43));
    EXPECT_EQ(lines.back(), lines[kHeader]);
}

TEST(PlayerListing, CutsAHeadingToTheEntriesOfItsColumn)
{
    const ReportLines lines = playerListingLines("Pool", rowsOf({{"Al", "Al", "a", "1"}}));

    EXPECT_EQ(lines[4], "Na    Fi    E    P");
    EXPECT_EQ(lines[5], "--    --    -    -");
}

TEST(PlayerListing, LeavesNoRoomForAColumnWithoutEntries)
{
    const ReportLines lines = playerListingLines("Pool", rowsOf({{"Albert", "Albert.THC", "", "555"}}));

    EXPECT_EQ(lines[4], "Name      FileName          Pho");
    EXPECT_EQ(lines[5], "------    ----------        ---");
    EXPECT_EQ(lines[6], "Albert    Albert.THC        555");
}

TEST(PlayerListing, OfNoRowsAtAllIsEmpty) { EXPECT_TRUE(playerListingLines("Pool", {}).empty()); }

TEST(PlayerListing, KeepsTheOrderOfItsRows)
{
    const ReportLines lines = playerListingLines("Pool", rowsOf({{"Zoe", "Z", "z", "1"}, {"Abe", "A", "a", "2"}}));

    EXPECT_TRUE(lines[6].starts_with("Zoe"));
    EXPECT_TRUE(lines[7].starts_with("Abe"));
}

TEST(PlayerListing, CountsAnAccentedLetterAsOneCharacter)
{
    const ReportLines lines = playerListingLines("Pool", rowsOf({{"\xD6zg\xFCr", "\xD6.THC", "", ""}}));

    EXPECT_EQ(lines[5], "-----    -----        ");
    EXPECT_EQ(lines[6], "\xD6zg\xFCr    \xD6.THC        ");
}

TEST(PlayerListing, StartsATitleThatIsTooLongAtTheLeftEdge)
{
    const std::string title(80, 'T');

    EXPECT_EQ(playerListingLines(title, rowsOf({kSmith}))[1], title);
}

} // namespace
} // namespace tallyhoop::test
