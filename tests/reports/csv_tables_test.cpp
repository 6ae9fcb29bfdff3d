// tests/reports/csv_tables_test.cpp - the tables for spreadsheets, byte for byte: numbers, quotation, formulas, order.
#include "reports/csv_tables.h"

#include "base/csv_cells.h"
#include "reports/counted_outlook.h"
#include "reports/four_players.h"
#include "reports/team_selection.h"

#include <gmock/gmock.h>

namespace tallyhoop::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;

constexpr const char* kMark = "\xEF\xBB\xBF";

std::vector<PlayerScore> scores(const std::vector<Entry>& players)
{
    return *scoreEntries(players, fourPlayersResults().picks, kUsualPayoffs);
}

/// @returns the cells of a table, its byte order mark left out
std::vector<CsvRow> rowsIn(const Result<std::string>& table)
{
    EXPECT_TRUE(table);
    EXPECT_TRUE(table->starts_with(kMark));
    return *csvRows(table->substr(3));
}

TEST(StandingsCsv, HasTheRowsOfTheReport)
{
    // The rows of tests/approved/small/RPTOPT1.TXT, leading zeros left out.
    const Result<std::string> table = standingsCsv(scores(fourPlayers()));
    ASSERT_TRUE(table);
    EXPECT_EQ(*table,
              std::string{kMark} +
                  "Points Earned,Player Name,File Name,Poss. Score,Good Picks,Bad Picks,Open Picks,Tie Breaker,Winner "
                  "Picked\r\n"
                  "128,\"AB, Adams\",Adams_AB.THC,168,60,0,3,150,CEDAR RAPIDS\r\n"
                  "96,\"EF, Dunn\",Dunn_EF.THC,136,45,15,3,250,PINE BLUFF\r\n"
                  "96,\"C, Baker\",Baker_C.THC,136,45,15,3,99,SALT LAKE\r\n"
                  "0,\"D, Clark\",Clark_D.THC,0,0,63,0,0,\r\n");
}

TEST(StandingsCsv, TakesASemicolonInANameAsTheReportDoes)
{
    // The packed row is "128;AB, Ad;ams;Adams_AB.THC;168;060;000;CEDAR RAPIDS;150": what follows the name is shifted by
    // one field, and the last is lost. Good picks are 168 and bad ones 60, so that 63 - 168 - 60 = -165 are open.
    std::vector<Entry> players{fourPlayers().front()};
    players.front().name = "Ad;ams";
    EXPECT_THAT(rowsIn(standingsCsv(scores(players))).at(1),
                ElementsAre("128", "AB, Ad", "ams", "Adams_AB.THC", "168", "60", "-165", "CEDAR RAPIDS", "000"));
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
    EXPECT_EQ(rowsIn(standingsCsv(one)).at(1).front(), "-005");
}

TEST(StandingsCsv, KeepsAPlayerOnOneLine)
{
    std::vector<Entry> players{fourPlayers().front()};
    players.front().fileName = "a\r\nb.THC";
    EXPECT_EQ(rowsIn(standingsCsv(scores(players))).at(1).at(2), "a  b.THC");
}

TEST(PicksCsv, HasTheRowsOfTheSummary)
{
    const std::vector<CsvRow> rows = rowsIn(picksCsv(pickEntries(fourPlayers())));
    EXPECT_THAT(rows.at(0), ElementsAre("Team", "2nd Round", "3rd Round", "4th Round", "Region Finals", "Tour Finals",
                                        "Tour Champion"));
    // Adams and Dunn send CEDAR RAPIDS into every round but the last, where only Adams does; three players send E03
    // into the second: tests/approved/small/RPTOPT3.TXT.
    EXPECT_THAT(rows.at(1), ElementsAre("CEDAR RAPIDS", "2", "2", "2", "2", "2", "1"));
    EXPECT_THAT(rows.at(2), ElementsAre("E03", "3", "0", "0", "0", "0", "0"));
}

TEST(PicksByPlayerCsv, HasTheRowsOfTheDetail)
{
    const std::vector<CsvRow> rows = rowsIn(picksByPlayerCsv(pickEntries(fourPlayers())));
    EXPECT_THAT(rows.at(0), ElementsAre("Team", "Player", "2nd Round", "3rd Round", "4th Round", "Region Finals",
                                        "Tour Finals", "Tour Champion"));
    EXPECT_THAT(rows.at(1), ElementsAre("CEDAR RAPIDS", "Adams_AB", "1", "1", "1", "1", "1", "1"));
    EXPECT_THAT(rows.at(2), ElementsAre("CEDAR RAPIDS", "Dunn_EF", "1", "1", "1", "1", "1", "0"));
    EXPECT_THAT(rows.at(3), ElementsAre("E03", "Adams_AB", "1", "0", "0", "0", "0", "0"));
}

TEST(PicksCsv, FailsWhereTheReportDoes)
{
    EXPECT_FALSE(picksCsv({"DUKE,Smith,9"}));
    EXPECT_FALSE(picksByPlayerCsv({"DUKE,Smith,9"}));
}

TEST(PicksByPlayerCsv, TakesPlayersWhoDifferOnlyInCaseForTwo)
{
    EXPECT_THAT(rowsIn(picksByPlayerCsv({"DUKE,ann_A,1", "DUKE,Ann_A,1"})), SizeIs(3));
}

TEST(PicksByPlayerCsv, LeavesATeamWithoutANameOutAsTheDetailDoes)
{
    EXPECT_THAT(rowsIn(picksByPlayerCsv({",x,1"})), SizeIs(1));
    EXPECT_THAT(rowsIn(picksCsv({",x,1"})), SizeIs(2)) << "the summary has it";
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
