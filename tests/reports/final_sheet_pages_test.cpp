// tests/reports/final_sheet_pages_test.cpp - the final sheet laid out: as worked out by hand, and over several pages.
#include "reports/final_sheet.h"

#include "base/text.h"
#include "reports/approved_reports.h"
#include "reports/four_players.h"
#include "reports/standings.h"

#include <gmock/gmock.h>

namespace tallyhoop::test {
namespace {

using testing::ElementsAre;

FinalSheet inventedSheet(std::size_t players)
{
    FinalSheet sheet;
    sheet.rule = TieRule::Share;
    for (std::size_t i = 0; i < players; ++i)
        sheet.rows.push_back({.player = i, .name = "AB, Adams", .place = i + 1});
    return sheet;
}

TEST(FinalSheetPages, OfFourPlayersAreAsWorkedOutByHand)
{
    const Entry results = fourPlayersResults();
    const auto scores = scoreEntries(fourPlayers(), results.picks, kUsualPayoffs);
    const PrizeTable table{Money{1001}, Percent{1000}, {Percent{6000}, Percent{3000}, Percent{1000}}};

    const Result<FinalSheet> sheet = finalSheetOf(*scores, results, table);

    ASSERT_TRUE(sheet);
    expectApproved(fileOf(finalSheetLines(kSmallTitle, *sheet)), "small", kFinalSheetFile);
}

TEST(FinalSheetPages, ShowHowFarPredictionsAreOff)
{
    FinalSheet sheet;
    sheet.total = 150;
    sheet.rows = {{.name = "AB, Adams", .points = 20, .predicted = 160, .off = 10, .prize = {500}},
                  {.name = "C, Baker", .place = 2, .isLast = true, .points = 10}};

    // 6 + 11 + 6 + 9 + 3 + 5 + 4 and 6 gaps of 2 are 56: (56 - 4)/2 = 26, (56 - 11)/2 = 22.5, to even 22.
    EXPECT_THAT(finalSheetLines("Pool", sheet),
                ElementsAre(" ", std::string(26, ' ') + "Pool", std::string(22, ' ') + "Final Sheet", " ",
                            "The tournament is over", "Total points of the final: 150",
                            "Ties: the nearest prediction is ahead", " ",
                            "Place   Player Name  Points  Predicted  Off  Prize  Note",
                            "------  -----------  ------  ---------  ---  -----  ----",
                            "    1   AB, Adams       020        160  +10   5.00",
                            "    2   C, Baker        010                         Last"));
}

TEST(FinalSheetPages, BeginWithTheirHeader)
{
    // Title and name take 4 lines, two notes and a blank one 3, the heading 2: 38 rows or fewer are below 48.
    ASSERT_EQ(finalSheetLines("Pool", inventedSheet(38)).size(), 47u);
    const ReportLines full = finalSheetLines("Pool", inventedSheet(39));
    ASSERT_EQ(full.size(), 49u);
    EXPECT_EQ(full.back(), kFormFeedLine);
    const ReportLines two = finalSheetLines("Pool", inventedSheet(40));
    ASSERT_EQ(two.size(), 59u);
    EXPECT_TRUE(std::equal(two.begin(), two.begin() + 9, two.begin() + 49));
    EXPECT_EQ(two.back(), "   40   AB, Adams       000");
}

TEST(FinalSheetPages, KeepTheHeadingOfThePairsWithTheFirstOfThem)
{
    // After 36 rows the page has 45 lines: too few are left for a blank one, the four of the heading and three rows.
    FinalSheet sheet = inventedSheet(36);
    sheet.pairs = {{.place = 1, .lower = 0, .higher = 1}};
    const ReportLines lines = finalSheetLines("Pool", sheet);
    EXPECT_EQ(lines[45], kFormFeedLine);
    EXPECT_EQ(lines[53], "Ties, by the total points of the final");

    // 31 rows: 40 lines and 8 make 48, one too many; with 30 they fit.
    sheet.rows.resize(31);
    EXPECT_EQ(finalSheetLines("Pool", sheet)[40], kFormFeedLine);
    sheet.rows.resize(30);
    EXPECT_EQ(finalSheetLines("Pool", sheet)[40], "Ties, by the total points of the final");
}

TEST(FinalSheetPages, SayWhatTheTotalCannotChange)
{
    FinalSheet sheet = inventedSheet(3);
    sheet.rows[0].predicted = 150;
    sheet.rows[1].predicted = 150;
    sheet.pairs = {{1, 0, 1, TieEnd::AlwaysTied}, {1, 0, 2, TieEnd::LowerAlways}, {1, 0, 1, TieEnd::ByTotal, 164, 166}};
    const ReportLines lines = finalSheetLines("Pool", sheet);
    ASSERT_EQ(lines.size(), 20u);
    EXPECT_EQ(lines[15], "Place  Lower Prediction  Ahead Up To  Tied At  Higher Prediction  Ahead From");
    EXPECT_EQ(lines[17], "    1  AB, Adams (150)                    any  AB, Adams (150)");
    EXPECT_EQ(lines[18], "    1  AB, Adams (150)           any           AB, Adams (none)");
    EXPECT_EQ(lines[19], "    1  AB, Adams (150)           164      165  AB, Adams (150)           166");
}

TEST(FinalSheetPages, SayThatNotAllPairsOfACrowdAreCompared)
{
    FinalSheet sheet = inventedSheet(26);
    sheet.pairs = {{1, 0, 1, TieEnd::ByTotal, 164, 166}};
    for (FinalRow& row : sheet.rows)
        row.place = 1;
    const std::string kSentence = "Of more than 25 on one place only neighbouring predictions are compared.";
    EXPECT_THAT(finalSheetLines("Pool", sheet), testing::Contains(kSentence));
    sheet.rows.pop_back();
    EXPECT_THAT(finalSheetLines("Pool", sheet), testing::Not(testing::Contains(kSentence)));
}

TEST(FinalSheetPages, KeepEveryNameOnALine)
{
    FinalSheet sheet = inventedSheet(1);
    sheet.rows[0].name = "AB, Ad\r\nams";
    const ReportLines lines = finalSheetLines("Po\nol", sheet);
    EXPECT_EQ(lines[1].substr(lines[1].size() - 5), "Po ol");
    EXPECT_EQ(lines.back(), "    1   AB, Ad  ams     000");
}

TEST(StandingsOrder, IsThatOfTheReport)
{
    // Given: two with equal points and names of which one begins with the other; in the packed rows ";" follows the
    // shorter one, which is after the blank in the longer one, and so it comes first when they are read backwards.
    const auto named = [](std::int16_t points, std::string name) {
        PlayerScore score;
        score.points = points;
        score.playerName = std::move(name);
        return score;
    };
    const std::vector<PlayerScore> scores{named(90, "AB, ADAMS"), named(90, "AB, Adams Jr"), named(100, "C, Baker"),
                                          named(90, "AB, adams")};
    EXPECT_THAT(standingsOrder(scores), ElementsAre(2, 3, 0, 1));

    const Result<ReportLines> lines = standingsLines("Pool", scores);
    ASSERT_TRUE(lines);
    std::vector<std::string> names;
    for (std::size_t i = lines->size() - scores.size(); i < lines->size(); ++i)
        names.push_back(trimTrailingBlanks((*lines)[i].substr(7, 12)));
    EXPECT_THAT(names, ElementsAre("C, Baker", "AB, adams", "AB, ADAMS", "AB, Adams Jr"));
}

} // namespace
} // namespace tallyhoop::test
