// tests/reports/outlook_rows_test.cpp - standings, chances in percent, and the order of the rows.
#include "reports/outlook_rows.h"

#include "reports/counted_outlook.h"

#include <gmock/gmock.h>

namespace tallyhoop::test {
namespace {

using testing::ElementsAre;

std::vector<std::string> namesBy(std::vector<OutlookRow> rows, OutlookOrder order)
{
    sortRows(rows, order);
    std::vector<std::string> names;
    for (const OutlookRow& row : rows)
        names.push_back(row.name);
    return names;
}

TEST(OutlookRows, AreTheStandingsWithWhatCanBecomeOfThem)
{
    // tests/approved/WORKSHEET.md has all eight outcomes.
    const std::vector<OutlookRow> rows = countedRows(fourPlayers(), fourPlayersResults().picks);

    ASSERT_EQ(rows.size(), 4u);
    EXPECT_EQ(rows[0].name, "AB, Adams");
    EXPECT_EQ(rows[0].player, 0u);
    EXPECT_EQ(rows[0].standing.place, 1u);
    EXPECT_EQ(rows[0].standing.points, 128);
    EXPECT_EQ(rows[0].standing.possible, 168);
    EXPECT_EQ(rows[0].first, 87.5);
    EXPECT_EQ(rows[0].share, 87.5);
    EXPECT_EQ(rows[0].error, 0);
    EXPECT_EQ(rows[0].best, (PlaceBetween{1, 1}));
    EXPECT_EQ(rows[0].worst, (PlaceBetween{2, 2}));
    EXPECT_EQ(rows[0].prospect, Prospect::Alive);
    EXPECT_EQ(rows[0].change, std::nullopt);
    EXPECT_EQ(rows[1].name, "C, Baker");
    EXPECT_EQ(rows[1].standing.place, 2u) << "shared with Dunn, who has 96 points as well";
    EXPECT_EQ(rows[1].first, 12.5);
    EXPECT_EQ(rows[1].worst, (PlaceBetween{3, 3}));
    EXPECT_EQ(rows[2].name, "D, Clark");
    EXPECT_EQ(rows[2].standing.place, 4u) << "after three with more points";
    EXPECT_EQ(rows[2].best, (PlaceBetween{4, 4}));
    EXPECT_EQ(rows[3].player, 3u);
    EXPECT_EQ(rows[3].standing.place, 2u);
    EXPECT_EQ(rows[3].first, 0);
    EXPECT_EQ(rows[3].best, (PlaceBetween{2, 2}));
    EXPECT_EQ(rows[3].prospect, Prospect::Out);
}

TEST(OutlookRows, TellBeingFirstFromTheShareOfIt)
{
    // Given: a second player with the picks of Baker, who is first in one of eight outcomes.
    std::vector<Entry> players = fourPlayers();
    players.push_back(players[1]);
    const std::vector<OutlookRow> rows = countedRows(players, fourPlayersResults().picks);

    for (const std::size_t row : {1u, 4u}) {
        EXPECT_EQ(rows[row].first, 12.5);
        EXPECT_EQ(rows[row].share, 6.25);
        EXPECT_EQ(rows[row].standing.place, 2u);
    }
}

TEST(OutlookRows, CompareWithTheResultsAsEntered)
{
    const std::vector<OutlookRow> rows =
        countedRows(fourPlayers(), fourPlayersResults().picks, {0.75, 0.125, 0.125, 0});

    EXPECT_EQ(rows[0].change, 12.5);
    EXPECT_EQ(rows[1].change, 0);
    EXPECT_EQ(rows[2].change, -12.5);
}

TEST(OutlookRows, HaveNoChancesBeforeAnythingIsCounted)
{
    const std::vector<Entry> players = fourPlayers();
    OutlookFigures nothing;
    nothing.prospects.resize(4);
    nothing.prospects[0].best = {1, 4};
    const std::vector<OutlookRow> rows =
        outlookRows(players, standingsBy(players, fourPlayersResults().picks, kUsualPayoffs), nothing, {});

    EXPECT_EQ(rows[0].first, std::nullopt);
    EXPECT_EQ(rows[0].share, std::nullopt);
    EXPECT_EQ(rows[0].best, (PlaceBetween{1, 4}));
    EXPECT_EQ(rows[0].prospect, Prospect::Open);
}

TEST(OutlookRows, AreSortedByAnyColumnTheBestFirst)
{
    const OutlookRow last{0, "B, Last", {3, 10, 90}, 5, 5, 0, {1, 1}, {3, 3}, Prospect::Alive, -2};
    const OutlookRow first{1, "a, First", {1, 30, 40}, 0, 0, 0, {2, 2}, {3, 3}, Prospect::Out, 0};
    const OutlookRow middle{2, "C, Middle", {1, 30, 60}, 95, 90, 0, {1, 1}, {2, 2}, Prospect::Clinched, 2};
    const std::vector<OutlookRow> rows{last, first, middle};
    EXPECT_THAT(namesBy(rows, {OutlookColumn::Now}), ElementsAre("a, First", "C, Middle", "B, Last"));
    EXPECT_THAT(namesBy(rows, {OutlookColumn::Player}), ElementsAre("a, First", "B, Last", "C, Middle"));
    EXPECT_THAT(namesBy(rows, {OutlookColumn::Points}), ElementsAre("a, First", "C, Middle", "B, Last"));
    EXPECT_THAT(namesBy(rows, {OutlookColumn::Possible}), ElementsAre("B, Last", "C, Middle", "a, First"));
    EXPECT_THAT(namesBy(rows, {OutlookColumn::First}), ElementsAre("C, Middle", "B, Last", "a, First"));
    EXPECT_THAT(namesBy(rows, {OutlookColumn::Share}), ElementsAre("C, Middle", "B, Last", "a, First"));
    EXPECT_THAT(namesBy(rows, {OutlookColumn::Best}), ElementsAre("C, Middle", "B, Last", "a, First"));
    EXPECT_THAT(namesBy(rows, {OutlookColumn::Worst}), ElementsAre("C, Middle", "a, First", "B, Last"));
    EXPECT_THAT(namesBy(rows, {OutlookColumn::Verdict}), ElementsAre("C, Middle", "B, Last", "a, First"));
    EXPECT_THAT(namesBy(rows, {OutlookColumn::Change}), ElementsAre("C, Middle", "a, First", "B, Last"));
    EXPECT_THAT(namesBy(rows, {OutlookColumn::Change, true}), ElementsAre("B, Last", "a, First", "C, Middle"));
    EXPECT_THAT(namesBy(rows, {OutlookColumn::Now, true}), ElementsAre("B, Last", "a, First", "C, Middle"))
        << "equal ones keep their order";
}

TEST(OutlookRows, WithoutAChanceComeAfterThoseWithNone)
{
    const OutlookRow unknown{.name = "A, Unknown"};
    const OutlookRow none{.name = "B, None", .share = 0.0};
    EXPECT_THAT(namesBy({unknown, none}, {OutlookColumn::Share}), ElementsAre("B, None", "A, Unknown"));
}

} // namespace
} // namespace tallyhoop::test
