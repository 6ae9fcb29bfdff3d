// tests/reports/csv_tables_test.cpp - the tables for spreadsheets, byte for byte: numbers, quotation, formulas, order.
#include "reports/csv_tables.h"

#include "base/csv_cells.h"
#include "reports/counted_outlook.h"
#include "reports/four_players.h"

#include <gmock/gmock.h>

namespace tallyhoop::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

constexpr const char* kMark = "\xEF\xBB\xBF";

std::vector<PlayerScore> scores(const std::vector<Entry>& players)
{
    return *scoreEntries(players, fourPlayersResults().picks, kUsualPayoffs);
}

/// @returns the cells of a table, its byte order mark left out
std::vector<CsvRow> rowsIn(const std::string& table)
{
    EXPECT_TRUE(table.starts_with(kMark));
    return *csvRows(table.substr(3));
}

TEST(StandingsCsv, HasTheRowsOfTheReport)
{
    // The rows of tests/approved/small/RPTOPT1.TXT, leading zeros left out.
    EXPECT_EQ(standingsCsv(scores(fourPlayers())),
              std::string{kMark} +
                  "Points Earned,Player Name,File Name,Poss. Score,Good Picks,Bad Picks,Open Picks,Tie Breaker,Winner "
                  "Picked\r\n"
                  "128,\"AB, Adams\",Adams_AB.THC,168,60,0,3,150,CEDAR RAPIDS\r\n"
                  "96,\"EF, Dunn\",Dunn_EF.THC,136,45,15,3,250,PINE BLUFF\r\n"
                  "96,\"C, Baker\",Baker_C.THC,136,45,15,3,99,SALT LAKE\r\n"
                  "0,\"D, Clark\",Clark_D.THC,0,0,63,0,0,\r\n");
}

TEST(StandingsCsv, KeepsEachColumnWhatItIsWhateverTheNames)
{
    // The report cuts its rows at semicolons: what follows them is in other columns there.
    std::vector<PlayerScore> one = scores({fourPlayers().front()});
    one.front().playerName = "AB, Ad;a\"m,s";
    one.front().fileName = "a;b.THC";
    one.front().winningPick = "A;B";
    EXPECT_THAT(rowsIn(standingsCsv(one)).at(1),
                ElementsAre("128", "AB, Ad;a\"m,s", "a;b.THC", "168", "60", "0", "3", "150", "A;B"));
}

TEST(StandingsCsv, HasTheOrderOfTheReport)
{
    // Among equal points the later name comes first, by the packed rows: there "B" is "B;", after "B ".
    std::vector<Entry> players(3, fourPlayers().front());
    players[0].name = "B";
    players[1].name = "C";
    players[2].name = "B A";
    const std::vector<CsvRow> rows = rowsIn(standingsCsv(scores(players)));
    ASSERT_EQ(rows.size(), 4u);
    EXPECT_THAT((std::vector{rows[1][1], rows[2][1], rows[3][1]}), ElementsAre("AB, C", "AB, B", "AB, B A"));
}

TEST(StandingsCsv, KeepsFormulasTexts)
{
    std::vector<Entry> players{fourPlayers().front()};
    players.front().initials = "=A";
    players.front().fileName = "@x.THC";
    EXPECT_THAT(rowsIn(standingsCsv(scores(players))).at(1),
                ElementsAre("128", "'=A, Adams", "'@x.THC", "168", "60", "0", "3", "150", "CEDAR RAPIDS"));
}

TEST(StandingsCsv, KeepsANegativeNumberANumber)
{
    std::vector<PlayerScore> one = scores({fourPlayers().front()});
    one.front().points = -5;
    EXPECT_EQ(rowsIn(standingsCsv(one)).at(1).front(), "-5");
}

TEST(StandingsCsv, KeepsAPlayerOnOneLine)
{
    std::vector<Entry> players{fourPlayers().front()};
    players.front().fileName = "a\r\nb.THC";
    EXPECT_EQ(rowsIn(standingsCsv(scores(players))).at(1).at(2), "a  b.THC");
}

TEST(PicksCsv, HasTheRowsOfTheSummary)
{
    const std::vector<CsvRow> rows = rowsIn(picksCsv(fourPlayers()));
    EXPECT_THAT(rows.at(0), ElementsAre("Team", "2nd Round", "3rd Round", "4th Round", "Region Finals", "Tour Finals",
                                        "Tour Champion"));
    // Adams and Dunn send CEDAR RAPIDS into every round but the last, where only Adams does; three players send E03
    // into the second: tests/approved/small/RPTOPT3.TXT.
    EXPECT_THAT(rows.at(1), ElementsAre("CEDAR RAPIDS", "2", "2", "2", "2", "2", "1"));
    EXPECT_THAT(rows.at(2), ElementsAre("E03", "3", "0", "0", "0", "0", "0"));
}

TEST(PicksByPlayerCsv, HasTheRowsOfTheDetail)
{
    const std::vector<CsvRow> rows = rowsIn(picksByPlayerCsv(fourPlayers()));
    EXPECT_THAT(rows.at(0), ElementsAre("Team", "Player", "2nd Round", "3rd Round", "4th Round", "Region Finals",
                                        "Tour Finals", "Tour Champion"));
    EXPECT_THAT(rows.at(1), ElementsAre("CEDAR RAPIDS", "Adams_AB", "1", "1", "1", "1", "1", "1"));
    EXPECT_THAT(rows.at(2), ElementsAre("CEDAR RAPIDS", "Dunn_EF", "1", "1", "1", "1", "1", "0"));
    EXPECT_THAT(rows.at(3), ElementsAre("E03", "Adams_AB", "1", "0", "0", "0", "0", "0"));
}

TEST(PicksCsv, HaveNamesWithSeparatorsAndFormulasInOneCell)
{
    Entry entry;
    entry.name = "=Ann, Jr";
    entry.initials = "A;B";
    entry.picks.put(gamePositions().front(), "a\"b,c");
    EXPECT_THAT(rowsIn(picksCsv(std::vector{entry})).at(1), ElementsAre("a\"b,c", "1", "0", "0", "0", "0", "0"));
    EXPECT_THAT(rowsIn(picksByPlayerCsv(std::vector{entry})).at(1),
                ElementsAre("a\"b,c", "'=Ann, Jr_A;B", "1", "0", "0", "0", "0", "0"));
}

TEST(OutlookCsv, HasTheRowsOfTheReport)
{
    // The rows of tests/approved/small/OUTLOOK.TXT.
    std::vector<OutlookRow> rows = countedRows(fourPlayers(), fourPlayersResults().picks);
    sortRows(rows, {});
    EXPECT_EQ(outlookCsv(rows), std::string{kMark} +
                                    "Now,Player,Points,Possible,First %,Share %,Error %,Verdict,Best,Worst,Change\r\n"
                                    "1,\"AB, Adams\",128,168,87.5,87.5,0.00,Alive,1,2,\r\n"
                                    "2,\"C, Baker\",96,136,12.5,12.5,0.00,Alive,1,3,\r\n"
                                    "2,\"EF, Dunn\",96,136,0.0,0.0,0.00,Out,2,3,\r\n"
                                    "4,\"D, Clark\",0,0,0.0,0.0,0.00,Out,4,4,\r\n");
}

TEST(OutlookCsv, HasPlacesThatAreNoDates)
{
    EXPECT_THAT(outlookCsv(std::vector{OutlookRow{.name = "Ann", .best = {2, 5}}}), HasSubstr("2 to 5"));
}

TEST(OutlookCsv, HasAChangeThatIsNoFormula)
{
    const std::vector<CsvRow> rows = rowsIn(outlookCsv(std::vector{OutlookRow{.name = "+Ann", .change = 4.1}}));
    EXPECT_EQ(rows.at(1).at(1), "'+Ann");
    EXPECT_EQ(rows.at(1).back(), "+4.1");
}

} // namespace
} // namespace tallyhoop::test
