// tests/screens/outlook/outlook_rows_test.cpp - standings, percentages, and the order of the table's rows.
#include "screens/outlook/outlook_rows.h"

#include "screens/outlook/final_pool.h"

#include <gmock/gmock.h>

namespace tallyhoop::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

struct OutlookRowsTest : testing::Test {
    Pool pool = finalPool();
    std::vector<PlayerStanding> standings =
        standingsBy(pool.entries, pool.results->picks, *pool.field.payoffs.points());

    OutlookFigures workedOut() const
    {
        OutlookWork work{finalContest(), finalField(), ChanceKind::Alike};
        while (!work.isDone())
            work.advance();
        return work.figures();
    }

    static std::vector<std::string> column(const std::vector<OutlookRow>& rows, OutlookColumn column)
    {
        std::vector<std::string> cells;
        for (const OutlookRow& row : rows)
            cells.push_back(cellOf(row, column));
        return cells;
    }

    static std::vector<std::string> namesBy(std::vector<OutlookRow> rows, OutlookOrder order)
    {
        sortRows(rows, order);
        return column(rows, OutlookColumn::Player);
    }
};

TEST_F(OutlookRowsTest, GivesPlayersWithTheSamePointsTheSamePlace)
{
    pool.entries[1].picks.clear(kSemifinalA); // 12 points less
    standings = standingsBy(pool.entries, pool.results->picks, *pool.field.payoffs.points());
    EXPECT_EQ(standings[0].place, 1u);
    EXPECT_EQ(standings[1].place, 3u);
    EXPECT_EQ(standings[2].place, 1u);
    EXPECT_EQ(standings[0].points, 152);
    EXPECT_EQ(standings[0].possible, 168);
    EXPECT_EQ(standings[1].points, 140);
}

TEST_F(OutlookRowsTest, ShowsWhatIsKnownOfEachPlayer)
{
    const std::vector<OutlookRow> rows = outlookRows(pool.entries, standings, workedOut());
    ASSERT_THAT(rows, SizeIs(3));
    EXPECT_THAT(column(rows, OutlookColumn::Now), ElementsAre("1", "1", "1"));
    EXPECT_THAT(column(rows, OutlookColumn::Player), ElementsAre("X, Ann", "X, Bob", "X, Cleo"));
    EXPECT_THAT(column(rows, OutlookColumn::Points), ElementsAre("152", "152", "152"));
    EXPECT_THAT(column(rows, OutlookColumn::Possible), ElementsAre("168", "168", "168"));
    EXPECT_THAT(column(rows, OutlookColumn::First), ElementsAre("50.0 %", "50.0 %", "50.0 %"));
    EXPECT_THAT(column(rows, OutlookColumn::Share), ElementsAre("50.0 %", "25.0 %", "25.0 %"));
    EXPECT_THAT(column(rows, OutlookColumn::Best), ElementsAre("1", "1", "1"));
    EXPECT_THAT(column(rows, OutlookColumn::Worst), ElementsAre("3", "2", "2"));
    EXPECT_THAT(column(rows, OutlookColumn::Verdict), ElementsAre("Alive", "Alive", "Alive"));
    EXPECT_THAT(column(rows, OutlookColumn::Change), ElementsAre("", "", ""));
}

TEST_F(OutlookRowsTest, ComparesWithTheResultsAsEntered)
{
    const std::vector<double> entered{0.4, 0.25, 0.35};
    const std::vector<OutlookRow> rows = outlookRows(pool.entries, standings, workedOut(), entered);
    EXPECT_THAT(column(rows, OutlookColumn::Change), ElementsAre("+10.0", "0.0", "-10.0"));
}

TEST_F(OutlookRowsTest, LeavesEmptyWhatIsNotKnownYet)
{
    const OutlookFigures nothing = OutlookWork{finalContest(), finalField(), ChanceKind::Alike}.figures();
    const std::vector<OutlookRow> rows = outlookRows(pool.entries, standings, nothing);
    EXPECT_THAT(cellOf(rows[0], OutlookColumn::First), IsEmpty());
    EXPECT_THAT(cellOf(rows[0], OutlookColumn::Share), IsEmpty());
    EXPECT_EQ(cellOf(rows[0], OutlookColumn::Best), "1-3");
    EXPECT_EQ(cellOf(rows[0], OutlookColumn::Verdict), "Open");
}

TEST_F(OutlookRowsTest, ShowsTheErrorOfAForecast)
{
    OutlookRow row;
    row.share = 34.44;
    row.error = 0.26;
    EXPECT_EQ(cellOf(row, OutlookColumn::Share), "34.4 % \xB1" "0.3");
    row.error = 0.02;
    EXPECT_EQ(cellOf(row, OutlookColumn::Share), "34.4 % \xB1" "0.1") << "an error is never shown as none";
}

TEST_F(OutlookRowsTest, NeverShowsAChanceAsNoneOrAsCertainThatIsNot)
{
    EXPECT_EQ(percentText(0), "0.0 %");
    EXPECT_EQ(percentText(0.01), "< 0.1 %");
    EXPECT_EQ(percentText(0.06), "0.1 %");
    EXPECT_EQ(percentText(99.94), "99.9 %");
    EXPECT_EQ(percentText(99.96), "> 99.9 %");
    EXPECT_EQ(percentText(100), "100.0 %");
    EXPECT_EQ(changeText(-0.04), "0.0");
    EXPECT_EQ(changeText(4.06), "+4.1");
    EXPECT_EQ(changeText(-0.26), "-0.3");
}

TEST_F(OutlookRowsTest, SortsByAnyColumnTheBestFirst)
{
    OutlookRow first{0, "B, Last", {3, 10, 90}, 5, 5, 0, {1, 1}, {3, 3}, Prospect::Alive, -2};
    OutlookRow second{1, "a, First", {1, 30, 40}, 0, 0, 0, {2, 2}, {3, 3}, Prospect::Out, 0};
    OutlookRow third{2, "C, Middle", {1, 30, 60}, 95, 90, 0, {1, 1}, {2, 2}, Prospect::Clinched, 2};
    const std::vector<OutlookRow> rows{first, second, third};
    EXPECT_THAT(namesBy(rows, {OutlookColumn::Now}), ElementsAre("a, First", "C, Middle", "B, Last"));
    EXPECT_THAT(namesBy(rows, {OutlookColumn::Player}), ElementsAre("a, First", "B, Last", "C, Middle"));
    EXPECT_THAT(namesBy(rows, {OutlookColumn::Possible}), ElementsAre("B, Last", "C, Middle", "a, First"));
    EXPECT_THAT(namesBy(rows, {OutlookColumn::Share}), ElementsAre("C, Middle", "B, Last", "a, First"));
    EXPECT_THAT(namesBy(rows, {OutlookColumn::Best}), ElementsAre("C, Middle", "B, Last", "a, First"));
    EXPECT_THAT(namesBy(rows, {OutlookColumn::Worst}), ElementsAre("C, Middle", "a, First", "B, Last"));
    EXPECT_THAT(namesBy(rows, {OutlookColumn::Verdict}), ElementsAre("C, Middle", "B, Last", "a, First"));
    EXPECT_THAT(namesBy(rows, {OutlookColumn::Change}), ElementsAre("C, Middle", "a, First", "B, Last"));
    EXPECT_THAT(namesBy(rows, {OutlookColumn::Change, true}), ElementsAre("B, Last", "a, First", "C, Middle"));
    EXPECT_THAT(namesBy(rows, {OutlookColumn::Now, true}), ElementsAre("B, Last", "a, First", "C, Middle"))
        << "equal ones keep their order";
}

TEST_F(OutlookRowsTest, HasAHeadingAndAnExplanationForEveryColumn)
{
    const std::vector<ui::GridColumn> columns = outlookColumns();
    ASSERT_THAT(columns, SizeIs(kOutlookColumns));
    for (std::size_t i = 0; i < columns.size(); ++i)
        EXPECT_TRUE(explanationOf(OutlookColumn(i)).starts_with(columns[i].heading + ":")) << columns[i].heading;
    for (const Prospect prospect : {Prospect::Clinched, Prospect::Alive, Prospect::Out, Prospect::Open})
        EXPECT_TRUE(explanationOf(prospect).starts_with(wordOf(prospect) + ":"));
}

} // namespace
} // namespace tallyhoop::test
