// tests/screens/outlook/outlook_rows_test.cpp - what the cells of the table show, and what its columns mean.
#include "screens/outlook/outlook_rows.h"

#include "reports/outlook_words.h"

#include <gmock/gmock.h>

namespace tallyhoop::test {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

std::vector<std::string> cellsOf(const OutlookRow& row)
{
    std::vector<std::string> cells;
    for (std::size_t column = 0; column < kOutlookColumns; ++column)
        cells.push_back(cellOf(row, OutlookColumn(column)));
    return cells;
}

TEST(OutlookCells, ShowWhatIsKnownOfAPlayer)
{
    const OutlookRow row{0, "X, Ann", {2, 152, 168}, 50, 37.5, 0, {1, 1}, {2, 5}, Prospect::Alive, 4.06};
    EXPECT_THAT(cellsOf(row),
                ElementsAre("2", "X, Ann", "152", "168", "50.0 %", "37.5 %", "Alive", "1", "2-5", "+4.1"));
}

TEST(OutlookCells, AreEmptyWhereNothingIsKnownYet)
{
    const OutlookRow row{.name = "X, Ann", .best = {1, 3}, .worst = {1, 3}};
    EXPECT_THAT(cellsOf(row), ElementsAre("1", "X, Ann", "0", "0", "", "", "Open", "1-3", "1-3", ""));
}

TEST(OutlookCells, ShowTheErrorOfAForecast)
{
    OutlookRow row{.share = 34.44, .error = 0.26};
    EXPECT_EQ(cellOf(row, OutlookColumn::Share), "34.4 % \xB1"
                                                 "0.26");
    row.error = 0.002;
    EXPECT_EQ(cellOf(row, OutlookColumn::Share), "34.4 % \xB1"
                                                 "0.01")
        << "an error is never shown as none";
}

TEST(OutlookCells, NeverShowAChanceAsNoneOrAsCertainThatIsNot)
{
    EXPECT_EQ(cellOf({.first = 0.01}, OutlookColumn::First), "<0.1 %");
    EXPECT_EQ(cellOf({.share = 99.96}, OutlookColumn::Share), ">99.9 %");
}

TEST(OutlookCells, AgreeWithTheVerdict)
{
    const OutlookRow alive{.first = 0, .share = 0, .error = 0.001, .prospect = Prospect::Alive};
    EXPECT_EQ(cellOf(alive, OutlookColumn::First), "<0.1 %");
    EXPECT_EQ(cellOf(alive, OutlookColumn::Share), "<0.1 % \xB1"
                                                   "0.01");
    const OutlookRow out{.first = 0, .share = 0, .prospect = Prospect::Out};
    EXPECT_EQ(cellOf(out, OutlookColumn::First), "0.0 %");
    EXPECT_EQ(cellOf(out, OutlookColumn::Share), "0.0 %");
}

TEST(OutlookColumns, HaveAHeadingAndAnExplanation)
{
    const std::vector<ui::GridColumn> columns = outlookColumns(12);
    ASSERT_THAT(columns, SizeIs(kOutlookColumns));
    for (std::size_t i = 0; i < columns.size(); ++i)
        EXPECT_TRUE(explanationOf(OutlookColumn(i)).starts_with(columns[i].heading + ":")) << columns[i].heading;
    for (const Prospect prospect : {Prospect::Clinched, Prospect::Alive, Prospect::Out, Prospect::Open})
        EXPECT_TRUE(explanationOf(prospect).starts_with(verdictInWords(prospect) + ":"));
}

TEST(OutlookColumns, HaveRoomForThePlacesOfAllPlayers)
{
    const auto widthOf = [](std::size_t players, OutlookColumn column) {
        return outlookColumns(players)[static_cast<std::size_t>(column)].width;
    };
    EXPECT_EQ(widthOf(99, OutlookColumn::Worst), 5) << "12-99";
    EXPECT_EQ(widthOf(999, OutlookColumn::Worst), 7) << "980-999";
    EXPECT_EQ(widthOf(1005, OutlookColumn::Worst), 9) << "1001-1005";
    EXPECT_EQ(widthOf(1005, OutlookColumn::Best), 9);
    EXPECT_EQ(widthOf(1005, OutlookColumn::Now), 4);
    EXPECT_EQ(widthOf(9, OutlookColumn::Worst), 5) << "its heading";
}

} // namespace
} // namespace tallyhoop::test
