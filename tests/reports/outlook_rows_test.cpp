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

/// A forecast of two players, by which the first is in front.
OutlookFigures forecastOfTwo(double share, double error)
{
    OutlookFigures figures;
    figures.source = ChanceSource::Forecast;
    figures.prospects.resize(2);
    figures.chances.players.resize(2);
    figures.chances.players[0].all = {.alone = share, .share = share};
    figures.chances.players[1].all = {.alone = 1 - share, .share = 1 - share};
    figures.errors = {error, error};
    return figures;
}

std::vector<OutlookRow> rowsOfTwo(const OutlookFigures& figures, const SharesAsEntered& entered = {})
{
    const std::vector<Entry> players{{{}, "X", "Ann", {}, {}}, {{}, "X", "Bob", {}, {}}};
    return outlookRows(players, std::vector<PlayerStanding>(2), figures, entered);
}

TEST(OutlookRows, OfAForecastDoNotContradictWhatIsProven)
{
    // Given: a forecast in which the second player was first in one sample of a hundred.
    OutlookFigures figures = forecastOfTwo(0.99, 0.01);
    figures.prospects[0].prospect = Prospect::Clinched;
    figures.prospects[1].prospect = Prospect::Out;
    const std::vector<OutlookRow> rows = rowsOfTwo(figures);

    EXPECT_EQ(rows[0].first, 100);
    EXPECT_EQ(rows[0].share, 99) << "first place may be shared";
    EXPECT_EQ(rows[0].error, 1);
    EXPECT_EQ(rows[1].first, 0);
    EXPECT_EQ(rows[1].share, 0);
    EXPECT_EQ(rows[1].error, 0);
}

TEST(OutlookRows, OfAForecastKeepWhatIsNotProven)
{
    OutlookFigures figures = forecastOfTwo(1, 0.01);
    figures.prospects[0].prospect = Prospect::Alive;
    const std::vector<OutlookRow> rows = rowsOfTwo(figures);

    EXPECT_EQ(rows[0].first, 100);
    EXPECT_EQ(rows[1].share, 0) << "Open";
    EXPECT_EQ(rows[1].error, 1);
}

TEST(OutlookRows, ShowNoChangeWithinTheErrorsOfBothForecasts)
{
    // The errors of 0.03 and 0.04 make one of 0.05 points of a share: twice that is 0.1.
    const OutlookFigures figures = forecastOfTwo(0.5, 0.03);
    EXPECT_EQ(rowsOfTwo(figures, {{0.41, 0.39}, {0.04, 0.04}})[0].change, 0);
    EXPECT_NEAR(rowsOfTwo(figures, {{0.41, 0.39}, {0.04, 0.04}})[1].change.value(), 11, 1e-9);
    EXPECT_NEAR(rowsOfTwo(figures, {{0.43, 0.57}, {0, 0}})[0].change.value(), 7, 1e-9)
        << "more than two of 0.03: the results as entered are counted";
}

TEST(OutlookRows, OfWhoIsAliveNeverSayNothingOrEverything)
{
    const OutlookRow alive{.prospect = Prospect::Alive};
    EXPECT_EQ(chanceInWords(alive, 0), "<0.1");
    EXPECT_EQ(chanceInWords(alive, 100), ">99.9");
    EXPECT_EQ(chanceInWords(alive, 12.5), "12.5");
    EXPECT_EQ(chanceInWords(alive, std::nullopt), "");
    EXPECT_EQ(chanceInWords({.prospect = Prospect::Out}, 0), "0.0");
    EXPECT_EQ(chanceInWords({.prospect = Prospect::Clinched}, 100), "100.0");
    EXPECT_EQ(chanceInWords({.prospect = Prospect::Open}, 0), "0.0");
}

TEST(OutlookRows, HaveANumberWhereOneAgreesWithTheVerdict)
{
    const OutlookRow alive{.prospect = Prospect::Alive};
    EXPECT_EQ(chanceAsNumber(alive, 0.04), "0.04");
    EXPECT_EQ(chanceAsNumber(alive, 12.5), "12.5");
    EXPECT_EQ(chanceAsNumber(alive, 0), "<0.1") << "there is no number for it";
    EXPECT_EQ(chanceAsNumber(alive, 100), ">99.9");
    EXPECT_EQ(chanceAsNumber(alive, std::nullopt), "");
    EXPECT_EQ(chanceAsNumber({.prospect = Prospect::Out}, 0), "0.0");
    EXPECT_EQ(chanceAsNumber({.prospect = Prospect::Clinched}, 100), "100.0");
}

TEST(OutlookRows, OfWhoIsAliveComeBeforeThoseWhoAreOut)
{
    const OutlookRow out{.name = "A, Out", .first = 0.0, .share = 0.0, .prospect = Prospect::Out};
    const OutlookRow alive{.name = "B, Alive", .first = 0.0, .share = 0.0, .prospect = Prospect::Alive};
    EXPECT_THAT(namesBy({out, alive}, {OutlookColumn::Share}), ElementsAre("B, Alive", "A, Out"));
    EXPECT_THAT(namesBy({out, alive}, {OutlookColumn::First}), ElementsAre("B, Alive", "A, Out"));
}

TEST(OutlookNames, AreThoseOfTheFileWhereThereIsNothingElse)
{
    const Entry whole{{}, "JB", "Joe", "", "Joe_JB.THC"};
    EXPECT_EQ(nameInRow(whole), "JB, Joe");
    EXPECT_EQ(nameInSentence(whole), "Joe");
    EXPECT_EQ(nameInSentence({{}, "JB", "", "", "_JB.THC"}), "JB");
    const Entry nameless{{}, "", "", "", "_.THC"};
    EXPECT_EQ(nameInRow(nameless), "_.THC");
    EXPECT_EQ(nameInSentence(nameless), "_.THC");
}

TEST(OutlookRows, HaveNoChancesBeforeAnythingIsCounted)
{
    const std::vector<Entry> players = fourPlayers();
    OutlookFigures nothing;
    nothing.prospects.resize(4);
    nothing.prospects[0].best = {1, 4};
    const std::vector<OutlookRow> rows =
        outlookRows(players, standingsBy(players, fourPlayersResults().picks, kUsualPayoffs), nothing);

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
