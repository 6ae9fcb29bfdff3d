// tests/reports/player_selection_detail_test.cpp - the table of one player and the pages of all.
#include "reports/player_selection_detail.h"

#include "reports/four_players.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace tallyhoop::test {
namespace {

constexpr std::size_t kFirstRow = 9; ///< after the header of the first player's page

ReportLines linesFor(const std::vector<Entry>& players, std::string_view title = "Pool")
{
    const Result<ReportLines> lines = playerSelectionDetailLines(title, playersByFileName(players));
    EXPECT_TRUE(lines) << lines.failure().message;
    return lines ? *lines : ReportLines{};
}

Entry adams() { return fourPlayers()[0]; }

TEST(PlayerSelectionTable, HasEightRowsOfEachRegion)
{
    const PlayerSelectionTable table = playerSelectionTable(adams().picks);

    EXPECT_EQ(table.teams[0], "CEDAR RAPIDS");
    EXPECT_EQ(table.teams[7], "W15");
    EXPECT_EQ(table.teams[8], "OLD HARBOR");
    EXPECT_EQ(table.teams[16], "PINE BLUFF");
    EXPECT_EQ(table.teams[24], "SALT LAKE");
    EXPECT_EQ(table.teams[31], "S15");
}

TEST(PlayerSelectionTable, MarksAChampionInAllSixColumnsAndARegionWinnerInFour)
{
    const PlayerSelectionTable table = playerSelectionTable(adams().picks);
    const auto marksOf = [&](std::size_t row) {
        std::string marks;
        for (const auto& column : table.marks)
            marks += column[row] ? 'x' : '-';
        return marks;
    };

    EXPECT_EQ(marksOf(0), "xxxxxx");
    EXPECT_EQ(marksOf(1), "x-----");
    EXPECT_EQ(marksOf(2), "xx----");
    EXPECT_EQ(marksOf(4), "xxx---");
    EXPECT_EQ(marksOf(8), "xxxx--");
    EXPECT_EQ(marksOf(16), "xxxxx-");
}

TEST(PlayerSelectionTable, NeverMarksForAnEmptyPick)
{
    const PlayerSelectionTable table = playerSelectionTable(fourPlayers()[2].picks);

    for (std::size_t column = 1; column < PlayerSelectionTable::kColumns; ++column)
        EXPECT_EQ(std::ranges::count(table.marks[column], true), 0) << column;
    EXPECT_EQ(std::ranges::count(table.marks[0], true), 32);
}

TEST(PlayerSelectionTable, MarksATeamWhereItIsSentOnWithoutTheRoundBefore)
{
    Bracket picks = adams().picks;
    picks.put(gamesOfRegion(kWest)[12], "W03"); // the region finals, without a third round

    const PlayerSelectionTable table = playerSelectionTable(picks);

    EXPECT_TRUE(table.marks[0][1]);
    EXPECT_FALSE(table.marks[1][1]);
    EXPECT_TRUE(table.marks[2][1]);
}

TEST(PlayerOfFileName, IsTheNameBeforeTheExtensionInAnyCase)
{
    EXPECT_EQ(playerOfFileName("Smith_JS.THC"), "Smith_JS");
    EXPECT_EQ(playerOfFileName("Smith_JS.thc"), "Smith_JS");
    EXPECT_EQ(playerOfFileName("Smith.THCx.thc"), "Smith");
    EXPECT_EQ(playerOfFileName("Smith"), "Smith");
}

TEST(PlayerSelectionDetail, BeginsWithTheHeaderOfTheFirstPlayer)
{
    const ReportLines lines = linesFor({adams()}, "Office Pool 2001");

    const ReportLines header{
        " ",
        " ",
        " ",
        std::string(50, ' ') + "Office Pool 2001",        // 57.5 - 8 = 49.5
        std::string(46, ' ') + "Player Selection Detail", // 57.5 - 12 = 45.5
        " ",
        "                           2nd             3rd           Region           Final           Tour            "
        "Tour  "
        "    ",
        "                          Round           Round          Finals           Four           Finals         "
        "Champion    ",
        "                     +------------+  +------------+  +------------+  +------------+  +------------+  "
        "+------------+ ",
    };
    ASSERT_GT(lines.size(), header.size());
    EXPECT_TRUE(std::equal(header.begin(), header.end(), lines.begin()));
}

TEST(PlayerSelectionDetail, OfOnePlayerIsThirtyTwoRowsWithALineBetweenTheRegions)
{
    const ReportLines lines = linesFor({adams()});

    ASSERT_EQ(lines.size(), kFirstRow + 32 + 3);
    for (const std::size_t box : {kFirstRow + 8, kFirstRow + 17, kFirstRow + 26})
        EXPECT_EQ(lines[box], lines[kFirstRow - 1]);
    EXPECT_TRUE(lines.back().starts_with(std::string(21, ' ') + "S15 "));
}

TEST(PlayerSelectionDetail, PrintsTheChampionSixTimesAndEveryRegionWinnerAtLeastFourTimes)
{
    const ReportLines lines = linesFor({adams()});

    EXPECT_EQ(lines[kFirstRow], "Adams_AB             CEDAR RAPIDS    CEDAR RAPIDS    CEDAR RAPIDS    CEDAR RAPIDS    "
                                "CEDAR RAPIDS    CEDAR RAPIDS    ");
    EXPECT_EQ(lines[kFirstRow + 9],
              "                     OLD HARBOR      OLD HARBOR      OLD HARBOR      OLD HARBOR       ");
}

TEST(PlayerSelectionDetail, PutsEachColumnSixteenCharactersFurther)
{
    const std::string row = linesFor({adams()})[kFirstRow];

    for (std::size_t column = 0; column < 6; ++column)
        EXPECT_EQ(row.substr(21 + 16 * column, 16), "CEDAR RAPIDS    ");
}

TEST(PlayerSelectionDetail, PrintsBlankNamesForEmptyPicks)
{
    const ReportLines lines = linesFor({fourPlayers()[2]});

    ASSERT_EQ(lines.size(), kFirstRow + 32 + 3);
    EXPECT_EQ(lines[kFirstRow], "Clark_D" + std::string(14 + 16 + 1, ' '));
    EXPECT_EQ(lines[kFirstRow + 1], std::string(21 + 16 + 1, ' '));
}

TEST(PlayerSelectionDetail, SeparatesPlayersByABlankLineAFormFeedAndABlankLine)
{
    const ReportLines lines = linesFor({adams(), fourPlayers()[1]});

    const std::size_t second = kFirstRow + 35;
    ASSERT_EQ(lines.size(), 2 * second + 2);
    EXPECT_EQ(lines[second], " ");
    EXPECT_EQ(lines[second + 1], kFormFeedLine);
    EXPECT_EQ(lines[second + 2], " ");
    EXPECT_TRUE(std::equal(lines.begin() + 1, lines.begin() + 9, lines.begin() + static_cast<long>(second) + 3));
    EXPECT_TRUE(lines[second + 2 + kFirstRow].starts_with("Baker_C "));
}

TEST(PlayerSelectionDetail, TakesPlayersInTheAlphabeticalOrderOfTheirFiles)
{
    Entry first = adams();
    Entry second = adams();
    first.fileName = "b.THC";
    second.fileName = "A.THC";

    const ReportLines lines = linesFor({first, second});

    EXPECT_TRUE(lines[kFirstRow].starts_with("A   "));
}

TEST(PlayerSelectionDetail, CutsATeamToFourteenCharactersInEveryColumn)
{
    Entry player = adams();
    for (const Position position : allPositions())
        if (player.picks.at(position) == "CEDAR RAPIDS")
            player.picks.put(position, "CEDAR RAPIDS UNIVERSITY");

    const std::string row = linesFor({player})[kFirstRow];

    for (std::size_t column = 0; column < 6; ++column)
        EXPECT_EQ(row.substr(21 + 16 * column, 16), "CEDAR RAPIDS U  ");
}

TEST(PlayerSelectionDetail, CutsAFileNameToTwentyOneCharacters)
{
    Entry player = adams();
    player.fileName = "Wolfeschlegelsteinhausenberger_HB.THC";

    EXPECT_TRUE(linesFor({player})[kFirstRow].starts_with("WolfeschlegelsteinhauCEDAR RAPIDS"));
}

TEST(PlayerSelectionDetail, LetsTheNamesOfAnInconsistentBracketSlideLeft)
{
    Entry player = adams();
    player.picks.put(gamesOfRegion(kWest)[12], "W03"); // sent into the region finals without a third round

    const std::string row = linesFor({player})[kFirstRow + 1];

    EXPECT_EQ(row, std::string(21, ' ') + "W03             W03              ");
}

TEST(PlayerSelectionDetail, FailsForATitleWiderThanThePage)
{
    const std::vector<Entry> entries{adams()};
    const std::vector<const Entry*> players = playersByFileName(entries);

    EXPECT_TRUE(playerSelectionDetailLines(std::string(117, 'T'), players)); // 57.5 - 58, to even 0
    const Result<ReportLines> lines = playerSelectionDetailLines(std::string(118, 'T'), players); // -1.5
    ASSERT_FALSE(lines);
    EXPECT_TRUE(lines.failure().message.starts_with("This text is too wide for the report:\r\n"));
}

} // namespace
} // namespace tallyhoop::test
