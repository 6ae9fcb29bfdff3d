// tests/reports/final_sheet_test.cpp - the rows of the final sheet, and the sentences above them.
#include "reports/final_sheet.h"

#include "reports/final_sheet_words.h"
#include "reports/four_players.h"

#include <gmock/gmock.h>

namespace tallyhoop::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

/// CEDAR RAPIDS has beaten PINE BLUFF: Adams has 168 points, Dunn 96 + 12 + 12 = 120, Baker 96, Clark none.
Entry finished(const std::string& total)
{
    Entry results = fourPlayersResults();
    results.picks.put(kSemifinalA, "CEDAR RAPIDS");
    results.picks.put(kSemifinalB, "PINE BLUFF");
    results.picks.put(kChampion, "CEDAR RAPIDS");
    results.finalPoints = total;
    return results;
}

Result<FinalSheet> sheetOf(std::span<const Entry> entries, const Entry& results, const PrizeTable& table)
{
    return finalSheetOf(*scoreEntries(entries, results.picks, kUsualPayoffs), results, table);
}

/// @returns "2= EF, Dunn 096 7.21" and the like
std::vector<std::string> rowsOf(const FinalSheet& sheet)
{
    std::vector<std::string> rows;
    for (const FinalRow& row : sheet.rows)
        rows.push_back(placeInWords(row) + " " + row.name + " " + std::to_string(row.points) + " " +
                       moneyInWords(row.prize) + (row.isLast ? " last" : ""));
    return rows;
}

/// Two more like Baker, of whom one predicts 131 and the other 169.
std::vector<Entry> withTiedPlayers()
{
    std::vector<Entry> entries = fourPlayers();
    Entry evans = entries[1];
    evans.initials = "G";
    evans.name = "Evans";
    evans.finalPoints = "131";
    evans.fileName = "Evans_G.THC";
    Entry fox = evans;
    fox.name = "Fox";
    fox.finalPoints = "169";
    fox.fileName = "Fox_G.THC";
    entries.push_back(evans);
    entries.push_back(fox);
    return entries;
}

TEST(FinalSheet, HasThePlacesAndThePrizes)
{
    // Given: 10.00 each, all for the first two places.
    const Result<FinalSheet> sheet =
        sheetOf(fourPlayers(), finished("150"), {Money{1000}, {}, {Percent{7500}, Percent{2500}}});
    ASSERT_TRUE(sheet);
    EXPECT_THAT(rowsOf(*sheet), ElementsAre("1 AB, Adams 168 30.00", "2 EF, Dunn 120 10.00", "3 C, Baker 96 0.00",
                                            "4 D, Clark 0 0.00 last"));
    EXPECT_EQ(sheet->openGames, 0u);
    EXPECT_EQ(sheet->total, 150);
    EXPECT_THAT(sheet->pairs, IsEmpty());
}

TEST(FinalSheet, TellsTiesApartByTheTotal)
{
    // 96 points each: Baker 99, Evans 131, Fox 169. By 150 Evans and Fox are 19 off; not over it Evans is ahead.
    const std::vector<Entry> entries = withTiedPlayers();
    EXPECT_THAT(rowsOf(*sheetOf(entries, finished("150"), {})),
                ElementsAre("1 AB, Adams 168 0.00", "2 EF, Dunn 120 0.00", "3= G, Fox 96 0.00", "3= G, Evans 96 0.00",
                            "5 C, Baker 96 0.00", "6 D, Clark 0 0.00 last"));
    EXPECT_THAT(rowsOf(*sheetOf(entries, finished("150"), {.ties = TieRule::NotOver})),
                ElementsAre("1 AB, Adams 168 0.00", "2 EF, Dunn 120 0.00", "3 G, Evans 96 0.00", "4 C, Baker 96 0.00",
                            "5 G, Fox 96 0.00", "6 D, Clark 0 0.00 last"));
}

TEST(FinalSheet, SaysHowFarPredictionsAreOff)
{
    const Result<FinalSheet> sheet = sheetOf(fourPlayers(), finished("150"), {});
    ASSERT_TRUE(sheet);
    // Adams 150, Dunn 250, Baker 99, Clark none.
    EXPECT_EQ(offInWords(sheet->rows[0]), "0");
    EXPECT_EQ(offInWords(sheet->rows[1]), "+100");
    EXPECT_EQ(offInWords(sheet->rows[2]), "-51");
    EXPECT_EQ(offInWords(sheet->rows[3]), "");
    EXPECT_EQ(sheet->rows[3].predicted, std::nullopt);
}

TEST(FinalSheet, SharesPlacesAndComparesPairsWithoutATotal)
{
    const Result<FinalSheet> sheet = sheetOf(withTiedPlayers(), finished(""), {});
    ASSERT_TRUE(sheet);
    EXPECT_THAT(rowsOf(*sheet), ElementsAre("1 AB, Adams 168 0.00", "2 EF, Dunn 120 0.00", "3= G, Fox 96 0.00",
                                            "3= G, Evans 96 0.00", "3= C, Baker 96 0.00", "6 D, Clark 0 0.00 last"));
    // Entries: 1 is Baker (99), 4 Evans (131), 5 Fox (169). Middles: 115, 134, 150.
    EXPECT_THAT(sheet->pairs,
                ElementsAre(TiedPair{3, 1, 4, TieEnd::ByTotal, 114, 116}, TiedPair{3, 1, 5, TieEnd::ByTotal, 133, 135},
                            TiedPair{3, 4, 5, TieEnd::ByTotal, 149, 151}));
    EXPECT_THAT(finalSheetNotes(*sheet),
                ElementsAre("The tournament is over",
                            "Total points of the final: not entered, so equal points share a place",
                            "Ties: the nearest prediction is ahead"));
}

/// Groups of three tied players, at 100, 99, ... points; in each the predictions are 100, 110 and 120.
std::vector<PlayerScore> groupsOfThree(int groups)
{
    std::vector<PlayerScore> scores;
    for (int i = 0; i < 3 * groups; ++i) {
        PlayerScore& score = scores.emplace_back();
        score.playerName = "X, " + std::to_string(i);
        score.points = static_cast<std::int16_t>(100 - i / 3);
        score.finalPoints = static_cast<std::int16_t>(100 + 10 * (i % 3));
    }
    return scores;
}

TEST(FinalSheet, ComparesAllPairsWhileTheyAreFew)
{
    // Three pairs of each three: 45 of 15 groups are a page.
    const Result<FinalSheet> sheet = finalSheetOf(groupsOfThree(15), finished(""), {});
    ASSERT_TRUE(sheet);
    EXPECT_EQ(sheet->pairs.size(), 45u);
    EXPECT_EQ(pairsNotes(*sheet).size(), 1u);
}

TEST(FinalSheet, OfManyComparesThosePairsWhosePlaceWinsSomething)
{
    // Places 1, 4 and 7; the fifth prize is shared by those who are fourth.
    const Result<FinalSheet> sheet =
        finalSheetOf(groupsOfThree(16), finished(""), {.prizes = {Money{500}, {}, {}, {}, Money{100}}});
    ASSERT_TRUE(sheet);
    std::vector<std::size_t> places;
    for (const TiedPair& pair : sheet->pairs)
        places.push_back(pair.place);
    EXPECT_THAT(places, ElementsAre(1, 1, 1, 4, 4, 4));
    EXPECT_THAT(pairsNotes(*sheet), ElementsAre("Ties, by the total points of the final",
                                                "Those on places that win nothing are left out."));
    // The one who is last is tied with nobody: nothing is left out.
    std::vector<PlayerScore> crowd(11, groupsOfThree(1).front());
    crowd.emplace_back();
    const Result<FinalSheet> first = finalSheetOf(crowd, finished(""), {});
    EXPECT_EQ(first->pairs.size(), 55u);
    EXPECT_EQ(pairsNotes(*first).size(), 1u);
    // Without prizes the first place is worth something.
    EXPECT_EQ(finalSheetOf(groupsOfThree(16), finished(""), {})->pairs.size(), 3u);
}

TEST(FinalSheet, SaysWhatItMadeOfATotalThatIsNoPlainNumber)
{
    const auto said = [](const std::string& total) {
        return finalSheetNotes(*sheetOf(fourPlayers(), finished(total), {}));
    };
    for (const char* useless : {"abc", "-5", "abcdefghijklmn"}) {
        EXPECT_EQ(said(useless)[1], "Total points of the final: not usable, so equal points share a place");
        EXPECT_EQ(said(useless).back(), "The total of the final in the results, \"" +
                                            std::string{useless}.substr(0, 12) +
                                            (std::string{useless}.size() > 12 ? "..." : "") + "\", is no total");
    }
    EXPECT_EQ(said("150.5")[1], "Total points of the final: 150");
    EXPECT_EQ(said("150.5").back(), "The total of the final in the results, \"150.5\", is taken for 150");
    for (const char* plain : {"", " ", "0", "150", " 150 "})
        EXPECT_EQ(said(plain).size(), 3u) << plain;
}

TEST(FinalSheet, CountsOpenGamesAsTheOutlookDoes)
{
    // Given: no winner of a game of which the next one has it: nothing is open.
    Entry results = finished("150");
    results.picks.clear(gamesOfRegion(kWest)[0]);
    const Result<FinalSheet> settled = sheetOf(fourPlayers(), results, {});
    EXPECT_EQ(settled->openGames, 0u);
    EXPECT_EQ(settled->total, 150);
    // The game of rows 3 and 4 has a winner whom row 1 has beaten: it can end in two ways, and the total counts.
    results.picks.clear(gamesOfRegion(kWest)[1]);
    const Result<FinalSheet> open = sheetOf(fourPlayers(), results, {});
    EXPECT_EQ(open->openGames, 1u);
    EXPECT_EQ(open->total, 150);
}

TEST(FinalSheet, TakesNoTotalBeforeTheEnd)
{
    Entry results = fourPlayersResults();
    results.finalPoints = "150";
    const Result<FinalSheet> sheet = sheetOf(withTiedPlayers(), results, {});
    ASSERT_TRUE(sheet);
    EXPECT_EQ(sheet->openGames, 3u);
    EXPECT_EQ(sheet->total, std::nullopt);
    EXPECT_EQ(sheet->rows[1].off, std::nullopt);
}

TEST(FinalSheet, ListsTiedPlayersAsTheStandingsDo)
{
    // Without a rule Dunn, whose name is later in the alphabet, is before Baker, and gets the odd cent of 0.03.
    const Result<FinalSheet> sheet =
        sheetOf(fourPlayers(), fourPlayersResults(), {{}, {}, {{}, Money{3}}, TieRule::Share});
    ASSERT_TRUE(sheet);
    EXPECT_THAT(rowsOf(*sheet), ElementsAre("1 AB, Adams 128 0.00", "2= EF, Dunn 96 0.02", "2= C, Baker 96 0.01",
                                            "4 D, Clark 0 0.00 last"));
    EXPECT_THAT(sheet->pairs, IsEmpty());
    EXPECT_THAT(finalSheetNotes(*sheet),
                ElementsAre("If it ended like this: 3 games are open",
                            "Ties: players with equal points share their places", "Fees: 0.00 (4 players, 0.00 each)",
                            "Prizes: 0.03; from elsewhere: 0.03",
                            "Shared prizes: odd cents go to those who are listed first"));
}

TEST(FinalSheet, SaysWhatIsKeptBackAndLeft)
{
    const Result<FinalSheet> sheet =
        sheetOf(fourPlayers(), finished("150"), {Money{1000}, Money{500}, {Money{3000}}, TieRule::NotOver});
    ASSERT_TRUE(sheet);
    EXPECT_THAT(finalSheetNotes(*sheet),
                ElementsAre("The tournament is over", "Total points of the final: 150",
                            "Ties: the nearest prediction that is not over the total is ahead",
                            "Fees: 40.00 (4 players, 10.00 each)", "Kept back: 5.00; prizes: 30.00; left: 5.00"));
}

TEST(FinalSheet, SaysWhatWasNotRead)
{
    FinalSheet sheet = *sheetOf(fourPlayers(), finished("150"), {});
    sheet.remarks = {"1 player is missing: the selection cannot be read"};
    EXPECT_EQ(finalSheetNotes(sheet).back(), "1 player is missing: the selection cannot be read");
}

TEST(FinalSheet, CountsOneGameAsOne)
{
    Entry results = finished("");
    results.picks.clear(kChampion);
    EXPECT_THAT(finalSheetNotes(*sheetOf(fourPlayers(), results, {})),
                Contains("If it ended like this: 1 game is open"));
}

TEST(FinalSheet, NamesSelectionsWithoutANameByTheirFile)
{
    std::vector<Entry> entries = fourPlayers();
    entries[0].initials.clear();
    entries[0].name.clear();
    EXPECT_EQ(sheetOf(entries, finished("150"), {})->rows[0].name, "Adams_AB.THC");
}

TEST(FinalSheet, IsNotMadeBeforeTheLastFour)
{
    Entry results = fourPlayersResults();
    results.picks.clear(regionWinner(kSouth));
    const Result<FinalSheet> sheet = sheetOf(fourPlayers(), results, {});
    ASSERT_FALSE(sheet);
    EXPECT_EQ(sheet.failure().message, "The final sheet can be made when the winners of all four regions are known.");
}

TEST(FinalSheet, IsNotMadeOfATotalThatIsNoTotal)
{
    const Result<FinalSheet> sheet = sheetOf(fourPlayers(), finished("99999"), {});
    ASSERT_FALSE(sheet);
    EXPECT_EQ(sheet.failure().message, "The total of the final in the results cannot be used. The number \"99999\" is "
                                       "out of range: it must lie between -32768 and 32767.");
}

} // namespace
} // namespace tallyhoop::test
