// tests/reports/standings_test.cpp - the standings' rows, widths, order and pages.
#include "reports/standings.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace tallyhoop::test {
namespace {

PlayerScore score(int points, std::string player, std::string file, std::string winner = "DUKE")
{
    PlayerScore line;
    line.points = static_cast<std::int16_t>(points);
    line.playerName = std::move(player);
    line.fileName = std::move(file);
    line.winningPick = std::move(winner);
    return line;
}

std::vector<PlayerScore> players(int count)
{
    std::vector<PlayerScore> scores;
    for (int i = 0; i < count; ++i)
        scores.push_back(score(100 + i, "AB, Somebody", "Somebody_AB.THC"));
    return scores;
}

ReportLines linesFor(std::span<const PlayerScore> scores, std::string_view title = "Pool")
{
    const Result<ReportLines> lines = standingsLines(title, scores);
    EXPECT_TRUE(lines);
    return lines ? *lines : ReportLines{};
}

TEST(StandingsWorkRow, PacksEightFieldsWithNumbersOfThreeDigits)
{
    const PlayerScore line{"Smith_JS.THC", "JS, Smith", 7, 168, 5, 12, "DUKE", "UTAH", 150, {}};

    EXPECT_EQ(standingsWorkRow(line), "007;JS, Smith;Smith_JS.THC;168;005;012;DUKE;150");
}

TEST(StandingsWorkRow, WidensANumberBeyondThreeDigits)
{
    EXPECT_TRUE(standingsWorkRow(score(1234, "A", "B")).starts_with("1234;A;"));
}

TEST(StandingsRow, IsSplitAgainIntoItsFields)
{
    const StandingsRow row = standingsRow("007;JS, Smith;Smith_JS.THC;168;005;012;DUKE;150");

    EXPECT_EQ(row.points, "007");
    EXPECT_EQ(row.playerName, "JS, Smith");
    EXPECT_EQ(row.fileName, "Smith_JS.THC");
    EXPECT_EQ(row.maxPoints, "168");
    EXPECT_EQ(row.goodPicks, "005");
    EXPECT_EQ(row.badPicks, "012");
    EXPECT_EQ(row.winningPick, "DUKE");
    EXPECT_EQ(row.finalPoints, "150");
}

TEST(StandingsRow, IsShiftedByASemicolonInsideAName)
{
    const StandingsRow row = standingsRow("007;JS, Smith; Jr;Smith.THC;168;005;012;DUKE;150");

    EXPECT_EQ(row.playerName, "JS, Smith");
    EXPECT_EQ(row.fileName, " Jr");
    EXPECT_EQ(row.maxPoints, "Smith.THC");
    EXPECT_EQ(row.goodPicks, "168");
    EXPECT_EQ(row.finalPoints, "DUKE"); // the tie-breaker is lost
}

TEST(Standings, OfOnePlayerAreSevenHeaderLinesAndOneRow)
{
    const std::vector<PlayerScore> scores{{"Smith_JS.THC", "JS, Smithson", 7, 168, 5, 12, "DUKE", "UTAH", 150, {}}};

    // Widths 12, 12, 4; the line is 72 wide: 36 - 2 = 34 and 36 - 10 = 26 blanks.
    EXPECT_EQ(linesFor(scores), (ReportLines{
                                    " ",
                                    "                                  Pool",
                                    "                          Tournament Standings",
                                    " ",
                                    "Points                              Poss. Good   Bad  Open    Tie",
                                    "Earned Player Name    File Name     Score Picks Picks Picks Breaker Winner Picked",
                                    "------ ------------   ------------  ----- ----- ----- ----- ------- ----",
                                    " 007   JS, Smithson   Smith_JS.THC   168   005   012   046    150   DUKE",
                                }));
}

TEST(Standings, OfFortyOnePlayersFillOnePageFollowedByAFormFeed)
{
    const ReportLines lines = linesFor(players(41));

    ASSERT_EQ(lines.size(), 7u + 41u + 1u);
    EXPECT_EQ(lines.back(), kFormFeedLine);
}

TEST(Standings, OfFortyPlayersHaveNoFormFeed)
{
    const ReportLines lines = linesFor(players(40));

    EXPECT_EQ(lines.size(), 7u + 40u);
    EXPECT_EQ(std::ranges::count(lines, kFormFeedLine), 0);
}

TEST(Standings, StartASecondPageUnderARepeatedHeaderWithTheFortySecondPlayer)
{
    const ReportLines lines = linesFor(players(42));

    ASSERT_EQ(lines.size(), 7u + 41u + 1u + 7u + 1u);
    EXPECT_EQ(lines[48], kFormFeedLine);
    EXPECT_TRUE(std::equal(lines.begin(), lines.begin() + 7, lines.begin() + 49));
    EXPECT_TRUE(lines[56].starts_with(" 100 ")); // the fewest points come last
}

TEST(Standings, OfEightyTwoPlayersHaveAFormFeedAfterTheSecondPage)
{
    const ReportLines lines = linesFor(players(82));

    EXPECT_EQ(lines.size(), 2u * (7u + 41u + 1u));
    EXPECT_EQ(lines.back(), kFormFeedLine);
}

TEST(Standings, LeaveTheSecondHeadingEmptyWhenAllPlayerNamesAreShort)
{
    const std::vector<PlayerScore> scores{score(1, "12345678", "Longer.THC")};

    const ReportLines lines = linesFor(scores);

    EXPECT_EQ(lines[4], "Points" + std::string(8 + 10 + 6, ' ') + "Poss. Good   Bad  Open    Tie");
    EXPECT_EQ(lines[5], "");
    EXPECT_EQ(lines[6], "------ --------   ----------  ----- ----- ----- ----- ------- ----");
}

TEST(Standings, LeaveTheSecondHeadingEmptyWhenAllFileNamesAreShort)
{
    EXPECT_EQ(linesFor(std::vector{score(1, "123456789", "ABC.THC")})[5], "");
}

TEST(Standings, WriteTheSecondHeadingFromNineAndEightCharactersOn)
{
    EXPECT_EQ(linesFor(std::vector{score(1, "123456789", "ABCD.THC")})[5],
              "Earned Player Name File Name Score Picks Picks Picks Breaker Winner Picked");
}

TEST(Standings, ListTheLaterNameFirstAmongEqualPoints)
{
    const std::vector<PlayerScore> scores{score(5, "AB, Adams", "1.THC"), score(5, "cd, Clark", "2.THC"),
                                          score(5, "BC, Baker", "3.THC")};

    const ReportLines lines = linesFor(scores);

    EXPECT_TRUE(lines[7].starts_with(" 005   cd, Clark"));
    EXPECT_TRUE(lines[8].starts_with(" 005   BC, Baker"));
    EXPECT_TRUE(lines[9].starts_with(" 005   AB, Adams"));
}

TEST(Standings, OrderEqualPlayersByFileNameBackwards)
{
    const std::vector<PlayerScore> scores{score(5, "AB, Adams", "First.THC"), score(5, "AB, Adams", "Second.THC")};

    const ReportLines lines = linesFor(scores);

    EXPECT_NE(lines[7].find("Second.THC"), std::string::npos);
    EXPECT_NE(lines[8].find("First.THC"), std::string::npos);
}

TEST(Standings, ReverseTheOrderOfArrivalOfRowsThatAreEqualButForCase)
{
    const std::vector<PlayerScore> scores{score(5, "ab, Adams", "X.THC"), score(5, "AB, ADAMS", "X.THC")};

    const ReportLines lines = linesFor(scores);

    EXPECT_TRUE(lines[7].starts_with(" 005   AB, ADAMS"));
    EXPECT_TRUE(lines[8].starts_with(" 005   ab, Adams"));
}

TEST(Standings, CountAPlayerWithoutPicksAsSixtyThreeMinusTheBadOnes)
{
    PlayerScore empty = score(0, "D, Clarkson", "Clark_D.THC", "");
    empty.badPicks = 63;

    EXPECT_EQ(linesFor(std::vector{empty})[7], " 000   D, Clarkson   Clark_D.THC   000   000   063   000    000   ");
}

TEST(Standings, ShowNegativeOpenPicksOfADamagedSelection)
{
    PlayerScore damaged = score(0, "D, Clarkson", "Clark_D.THC", "");
    damaged.badPicks = 127;

    EXPECT_NE(linesFor(std::vector{damaged})[7].find("   127   -064    "), std::string::npos);
}

TEST(Standings, StartATitleThatIsTooLongAtTheLeftEdge)
{
    const std::string title(120, 'T');

    EXPECT_EQ(linesFor(std::vector{score(1, "AB, Adams", "Adams.THC")}, title)[1], title);
}

TEST(Standings, ReadOpenPicksFromShiftedFieldsByTheirLeadingNumbers)
{
    PlayerScore shifted = score(7, "PO, O'Brien; Jr", "Brien_PO.THC");
    shifted.maxPoints = 40; // lands where the good picks are read
    shifted.goodPicks = 9;  // lands where the bad picks are read
    shifted.badPicks = 3;

    // 63 - 40 - 9 = 14
    EXPECT_NE(linesFor(std::vector{shifted})[7].find("   Brien_PO.THC   040   009   014    DUKE   003"),
              std::string::npos);
}

TEST(Standings, FailWhenAShiftedFieldHoldsAHugeNumber)
{
    const PlayerScore line = score(7, "A;B;C", "99999.THC"); // the file name lands where the good picks are read

    const Result<ReportLines> lines = standingsLines("Pool", std::vector{line});

    ASSERT_FALSE(lines);
    EXPECT_NE(lines.failure().message.find("99999"), std::string::npos);
}

TEST(StandingsOrder, IsThatOfTheReport)
{
    // The most points first; of equal points the later name.
    EXPECT_EQ(standingsOrder(std::vector{score(128, "AB, Adams", "Adams_AB.THC"), score(96, "C, Baker", "Baker_C.THC"),
                                         score(0, "D, Clark", "Clark_D.THC"), score(96, "EF, Dunn", "Dunn_EF.THC")}),
              (std::vector<std::size_t>{0, 3, 1, 2}));
}

} // namespace
} // namespace tallyhoop::test
