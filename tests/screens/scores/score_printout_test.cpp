// tests/screens/scores/score_printout_test.cpp - the printed table, line by line, and the copied one.
#include "screens/scores/score_printout.h"

#include "reports/score_list.h"

#include "ui/screen.h"

#include <algorithm>
#include <gmock/gmock.h>

namespace tallyhoop {
namespace {

using testing::ElementsAre;

constexpr std::chrono::year_month_day kDay{std::chrono::year{2001}, std::chrono::March, std::chrono::day{5}};

struct ScorePrintout : testing::Test {
    ui::Screen screen{"screen", ""};
    ui::Grid grid{&screen, "grid"};

    ScorePrintout()
    {
        grid.columns = {{"File Name", ui::Alignment::Left, 32},
                        {"Player Name", ui::Alignment::Left, 19},
                        {"Score", ui::Alignment::Right, 8},
                        {"-MAX-", ui::Alignment::Right, 6},
                        {"Winning Pick", ui::Alignment::Left, 23}};
    }

    void putTwoColumns() { grid.columns = {{"A", ui::Alignment::Left, 1}, {"B", ui::Alignment::Left, 1}}; }
};

TEST(ShortDate, IsEnglishWithoutALeadingZero)
{
    using namespace std::chrono;
    EXPECT_EQ(shortDate(kDay), "5-March-01");
    EXPECT_EQ(shortDate(year{1999} / December / 31), "31-December-99");
    EXPECT_EQ(shortDate(year{2026} / January / 1), "1-January-26");
}

TEST_F(ScorePrintout, LaysTheColumnsOutByWhatTheyHold)
{
    grid.rows = {{"Smith_JS.THC", "JS, Smith", "59", "71", "Duke"},
                 {"Robinson_AB.THC", "AB, Robinson", "131", "167", "North Carolina"}};
    // Widths: 15, 12, 5 and 5 (to the right in 6), 14; two blanks between.
    EXPECT_THAT(scorePrintout(grid, kDay),
                ElementsAre("                TALLYHOOP POINT SUMMARY: 5-March-01", "", "",
                            "     File Name        Player Name    Score   -MAX-  Winning Pick  ", "",
                            "     Smith_JS.THC     JS, Smith         59      71  Duke          ",
                            "     Robinson_AB.THC  AB, Robinson     131     167  North Carolina"));
}

TEST_F(ScorePrintout, PrintsTheHeadingsAloneWithoutPlayers)
{
    EXPECT_THAT(scorePrintout(grid, kDay),
                ElementsAre("                TALLYHOOP POINT SUMMARY: 5-March-01", "", "",
                            "     File Name  Player Name   Score   -MAX-  Winning Pick", ""));
}

TEST_F(ScorePrintout, FollowsTheOrderOfTheColumnsOnScreen)
{
    std::rotate(grid.columns.begin(), grid.columns.begin() + 2, grid.columns.begin() + 3);
    grid.rows = {{"59", "Smith_JS.THC", "JS, Smith", "71", "Duke"}};
    EXPECT_EQ(scorePrintout(grid, kDay).at(3), "      Score  File Name     Player Name   -MAX-  Winning Pick");
    EXPECT_EQ(scorePrintout(grid, kDay).at(5), "         59  Smith_JS.THC  JS, Smith        71  Duke        ");
}

TEST_F(ScorePrintout, PutsABlankIntoAnEmptyCell)
{
    putTwoColumns();
    grid.rows = {{"", "x"}};
    EXPECT_EQ(scorePrintout(grid, kDay).at(5), "                  x");
}

TEST_F(ScorePrintout, PrintsALongTextWholeAndPadsOthersToTheWidestFormat)
{
    putTwoColumns();
    grid.rows = {{std::string(50, 'x'), "1"}, {"y", "2"}};
    const std::vector<std::string> lines = scorePrintout(grid, kDay);
    EXPECT_EQ(lines.at(5), "     " + std::string(50, 'x') + "       1");
    EXPECT_EQ(lines.at(6), "     y" + std::string(37, ' ') + "       2") << "38 characters, a gap of 2, a number in 6";
}

TEST_F(ScorePrintout, AlignsAColumnOfSixCharactersToTheLeft)
{
    putTwoColumns();
    grid.rows = {{"123456", "12345"}, {"1", "2"}};
    EXPECT_EQ(scorePrintout(grid, kDay).at(6), "     1            2");
}

TEST_F(ScorePrintout, CopiesTheTableAsASpreadsheetTakesIt)
{
    grid.columns = {{"File Name", ui::Alignment::Left, 12}, {"Score", ui::Alignment::Right, 5}};
    grid.rows = {{"Smith_JS.THC", "59"}, {"a\tb\r\nc", ""}};
    EXPECT_EQ(tabSeparated(grid), "File Name\tScore\r\nSmith_JS.THC\t59\r\na b  c\t\r\n");
}

} // namespace
} // namespace tallyhoop
