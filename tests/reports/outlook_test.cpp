// tests/reports/outlook_test.cpp - the outlook's rows, words, widths and pages.
#include "reports/outlook.h"

#include "pool/outlook/first_count.h"
#include "reports/approved_reports.h"
#include "reports/four_players.h"

namespace tallyhoop::test {
namespace {

/// Counts everything for players, as screens do for few open games.
std::vector<OutlookReportRow> countedRows(const std::vector<Entry>& players, const Bracket& results)
{
    std::vector<Bracket> picks;
    for (const Entry& player : players)
        picks.push_back(player.picks);
    const Contest contest{results, picks, kUsualPayoffs};
    std::vector<FirstChances> chances;
    for (const PlayerChances& player : countChances(contest, alikeChances()).players)
        chances.push_back(player.all);
    std::vector<PlayerProspect> prospects = findProspects(contest);
    addCount(prospects, countFirsts(contest));
    addCount(prospects, countPlaces(contest));
    return outlookReportRows(*scoreEntries(players, results, kUsualPayoffs), chances, prospects);
}

std::vector<OutlookReportRow> invented(std::size_t players)
{
    return std::vector<OutlookReportRow>(players, OutlookReportRow{.playerName = "AB, Adams"});
}

TEST(OutlookReportRows, AreTheStandingsWithWhatCanBecomeOfThem)
{
    // tests/approved/WORKSHEET.md has all eight outcomes.
    const std::vector<OutlookReportRow> rows = countedRows(fourPlayers(), fourPlayersResults().picks);

    ASSERT_EQ(rows.size(), 4u);
    EXPECT_EQ(rows[0].playerName, "AB, Adams");
    EXPECT_EQ(rows[0].player, 0u);
    EXPECT_EQ(rows[0].place, 1u);
    EXPECT_EQ(rows[0].points, 128);
    EXPECT_EQ(rows[0].possible, 168);
    EXPECT_EQ(rows[0].first, 7.0 / 8);
    EXPECT_EQ(rows[0].share, 7.0 / 8);
    EXPECT_EQ(rows[0].best, (PlaceBetween{1, 1}));
    EXPECT_EQ(rows[0].worst, (PlaceBetween{2, 2}));
    EXPECT_EQ(rows[0].verdict, Prospect::Alive);
    EXPECT_EQ(rows[1].playerName, "EF, Dunn") << "the later in the alphabet of two with 96 points";
    EXPECT_EQ(rows[1].player, 3u);
    EXPECT_EQ(rows[1].place, 2u);
    EXPECT_EQ(rows[1].first, 0);
    EXPECT_EQ(rows[1].best, (PlaceBetween{2, 2}));
    EXPECT_EQ(rows[1].verdict, Prospect::Out);
    EXPECT_EQ(rows[2].playerName, "C, Baker");
    EXPECT_EQ(rows[2].player, 1u);
    EXPECT_EQ(rows[2].place, 2u);
    EXPECT_EQ(rows[2].first, 1.0 / 8);
    EXPECT_EQ(rows[2].worst, (PlaceBetween{3, 3}));
    EXPECT_EQ(rows[3].playerName, "D, Clark");
    EXPECT_EQ(rows[3].place, 4u) << "after three with more points";
    EXPECT_EQ(rows[3].best, (PlaceBetween{4, 4}));
}

TEST(OutlookReportRows, TellBeingFirstFromTheShareOfIt)
{
    // Given: a second player with the picks of Baker, who is first in one of eight outcomes.
    std::vector<Entry> players = fourPlayers();
    players.push_back(players[1]);
    const std::vector<OutlookReportRow> rows = countedRows(players, fourPlayersResults().picks);

    EXPECT_EQ(rows[2].player, 4u) << "equal rows are read backwards";
    EXPECT_EQ(rows[3].player, 1u);
    for (const std::size_t row : {2u, 3u}) {
        EXPECT_EQ(rows[row].first, 1.0 / 8);
        EXPECT_EQ(rows[row].share, 1.0 / 16);
        EXPECT_EQ(rows[row].place, 2u);
    }
}

TEST(OutlookReport, OfFourPlayersIsAsWorkedOutByHand)
{
    const std::vector<OutlookReportRow> rows = countedRows(fourPlayers(), fourPlayersResults().picks);
    const ReportLines lines = outlookLines(kSmallTitle, {.openGames = 3}, rows);

    expectApproved(fileOf(lines), "small", kOutlookFile);
}

TEST(OutlookReport, IsEmptyWithoutPlayers) { EXPECT_TRUE(outlookLines("Pool", {}, {}).empty()); }

TEST(OutlookReport, GrowsWithNamesAndWithPlacesThatAreNotKnown)
{
    const std::vector<OutlookReportRow> rows{
        {.playerName = "AB, Adams-Baker", .best = {1, 250}, .worst = {1000, 1200}},
        {.playerName = "C, D", .first = 0.0001, .share = 0.0001},
    };
    const ReportLines lines = outlookLines("Pool", {.openGames = 63, .samples = 200'000, .seed = 2000}, rows);

    // Names 15, best 5 and worst 9 wide: the line has 15 + 5 + 9 + 54 = 83, and (83 - 4)/2 = 39.5, to even 40.
    EXPECT_EQ(lines[1], std::string(40, ' ') + "Pool");
    EXPECT_EQ(lines[10], "-----  ---------------  ------  -----  -------  -------  -----  ---------  --------");
    EXPECT_EQ(lines[11], "    1  AB, Adams-Baker     000    000      0.0      0.0  1-250  1000-1200  Open");
    EXPECT_EQ(lines[12], "    1  C, D                000    000     <0.1     <0.1      1          1  Open");
}

TEST(OutlookReport, RepeatsItsHeaderOnEachPage)
{
    // Ten lines of header and 38 rows fill a page.
    const ReportLines onePage = outlookLines("Pool", {.openGames = 3}, invented(38));
    ASSERT_EQ(onePage.size(), 49u);
    EXPECT_EQ(onePage.back(), kFormFeedLine);
    EXPECT_EQ(outlookLines("Pool", {.openGames = 3}, invented(37)).size(), 47u);

    const ReportLines twoPages = outlookLines("Pool", {.openGames = 3}, invented(39));
    ASSERT_EQ(twoPages.size(), 60u);
    EXPECT_TRUE(std::equal(twoPages.begin(), twoPages.begin() + 11, twoPages.begin() + 49));
}

TEST(OutlookBasisInWords, AreThoseOfTheChancesAndOfTheCount)
{
    EXPECT_EQ(basisInWords({ChanceModel::Alike, 1}),
              (std::vector<std::string>{"Chances: all outcomes alike", "Counted: every outcome of 1 open game"}));
    EXPECT_EQ(basisInWords({ChanceModel::BySeed, 31}).front(), "Chances: by seed, the better seed wins more often");
    EXPECT_EQ(basisInWords({ChanceModel::AsPicked, 31}).front(),
              "Chances: as this pool picked, the team with more picks wins more often");
    EXPECT_EQ(basisInWords({ChanceModel::Alike, 0}),
              std::vector<std::string>{"No game is open: these are the final places"});
}

TEST(OutlookBasisInWords, SayThatItIsAForecastItsSeedAndItsError)
{
    EXPECT_EQ(basisInWords({ChanceModel::BySeed, 48, 200'000, 2000, 0.00114}),
              (std::vector<std::string>{"Chances: by seed, the better seed wins more often",
                                        "Forecast: 200000 samples of 48 open games, seed 2000",
                                        "Standard error of the share: at most 0.11 percentage points"}));
}

TEST(OutlookVerdictInWords, IsOneWord)
{
    EXPECT_EQ(verdictInWords(Prospect::Clinched), "Clinched");
    EXPECT_EQ(verdictInWords(Prospect::Alive), "Alive");
    EXPECT_EQ(verdictInWords(Prospect::Out), "Out");
    EXPECT_EQ(verdictInWords(Prospect::Open), "Open");
}

TEST(OutlookPercentInWords, NeverMakesNothingOrEverythingOfWhatIsNot)
{
    EXPECT_EQ(percentInWords(0), "0.0");
    EXPECT_EQ(percentInWords(0.0004), "<0.1");
    EXPECT_EQ(percentInWords(0.0006), "0.1");
    EXPECT_EQ(percentInWords(0.0625), "6.2") << "halves to even";
    EXPECT_EQ(percentInWords(0.9994), "99.9");
    EXPECT_EQ(percentInWords(0.9996), ">99.9");
    EXPECT_EQ(percentInWords(1), "100.0");
    EXPECT_EQ(percentInWords(1 - 1e-15), "100.0") << "a rounded sum of all chances";
}

} // namespace
} // namespace tallyhoop::test
