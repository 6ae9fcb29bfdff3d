// tests/reports/player_listing_test.cpp - columns and pages of the player listing.
#include "reports/player_listing.h"

#include "files/player_names_file.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace tallyhoop::test {
namespace {

constexpr std::size_t kHead = 6;

std::vector<std::string> fileOfPlayers(const std::vector<PlayerRecord>& players)
{
    std::vector<std::string> lines{headerLine()};
    for (const PlayerRecord& player : players)
        lines.push_back(recordLine(player));
    return lines;
}

const PlayerRecord kSmith{"Smith, John", "Smith_JS.THC", "smith@example.org", "555-0100"};

TEST(PlayerListing, MakesEachColumnAsWideAsItsLongestEntry)
{
    const ReportLines lines = playerListingLines("Pool", fileOfPlayers({kSmith, {"Al", "Al.THC", "a@b.c", "1"}}));

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

TEST(PlayerListing, OfAListWithOnlyItsHeaderHasTwelveBlanksForHeaderAndRule)
{
    const ReportLines lines = playerListingLines("Pool", fileOfPlayers({}));

    ASSERT_EQ(lines.size(), kHead);
    EXPECT_EQ(lines[1], std::string(4, ' ') + "Pool"); // 6 - 2
    EXPECT_EQ(lines[2], "Player Listing");             // 6 - 7, never below 0
    EXPECT_EQ(lines[4], std::string(12, ' '));
    EXPECT_EQ(lines[5], std::string(12, ' '));
}

TEST(PlayerListing, HoldsFortyTwoPlayersOnAPage)
{
    const ReportLines fortyOne = playerListingLines("Pool", fileOfPlayers(std::vector(41, kSmith)));
    EXPECT_EQ(fortyOne.size(), kHead + 41);
    EXPECT_EQ(std::ranges::count(fortyOne, kFormFeedLine), 0);

    const ReportLines fortyTwo = playerListingLines("Pool", fileOfPlayers(std::vector(42, kSmith)));
    ASSERT_EQ(fortyTwo.size(), kHead + 42 + 1);
    EXPECT_EQ(fortyTwo.back(), kFormFeedLine);
}

TEST(PlayerListing, RepeatsHeadAndColumnHeaderForTheFortyThirdPlayer)
{
    const ReportLines lines = playerListingLines("Pool", fileOfPlayers(std::vector(43, kSmith)));

    ASSERT_EQ(lines.size(), kHead + 42 + 1 + kHead + 1);
    EXPECT_TRUE(std::equal(lines.begin(), lines.begin() + kHead, lines.begin() + kHead + 43));
    EXPECT_EQ(lines.back(), lines[kHead]);
}

TEST(PlayerListing, CutsAColumnsTitleToItsEntries)
{
    const ReportLines lines = playerListingLines("Pool", fileOfPlayers({{"Al", "Al", "a", "1"}}));

    EXPECT_EQ(lines[4], "Na    Fi    E    P");
    EXPECT_EQ(lines[5], "--    --    -    -");
}

TEST(PlayerListing, LetsAColumnWithoutEntriesCollapse)
{
    const ReportLines lines = playerListingLines("Pool", fileOfPlayers({{"Albert", "Albert.THC", "", "555"}}));

    EXPECT_EQ(lines[4], "Name      FileName          Pho");
    EXPECT_EQ(lines[5], "------    ----------        ---");
    EXPECT_EQ(lines[6], "Albert    Albert.THC        555");
}

TEST(PlayerListing, KeepsTheOrderOfTheFile)
{
    const ReportLines lines =
        playerListingLines("Pool", fileOfPlayers({{"Zoe", "Z", "z", "1"}, {"Abe", "A", "a", "2"}}));

    EXPECT_TRUE(lines[6].starts_with("Zoe"));
    EXPECT_TRUE(lines[7].starts_with("Abe"));
}

TEST(PlayerListing, CountsAnAccentedLetterAsOneCharacter)
{
    const ReportLines lines = playerListingLines("Pool", fileOfPlayers({{"\xD6zg\xFCr", "\xD6.THC", "", ""}}));

    EXPECT_EQ(lines[5], "-----    -----        ");
    EXPECT_EQ(lines[6], "\xD6zg\xFCr    \xD6.THC        ");
}

TEST(PlayerListing, StartsATitleThatIsTooLongAtTheLeftEdge)
{
    const std::string title(80, 'T');

    EXPECT_EQ(playerListingLines(title, fileOfPlayers({kSmith}))[1], title);
}

} // namespace
} // namespace tallyhoop::test
