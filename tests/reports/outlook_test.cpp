// tests/reports/outlook_test.cpp - the outlook's columns, widths and pages.
#include "reports/outlook.h"

#include "pool/moves.h"
#include "reports/approved_reports.h"
#include "reports/counted_outlook.h"
#include "reports/outlook_words.h"

#include <gmock/gmock.h>

namespace tallyhoop::test {
namespace {

using testing::ElementsAre;

OutlookHeading headingOf(const std::string& title, std::size_t openGames)
{
    return {title, {}, basisInWords({ChanceKind::Alike, openGames})};
}

std::vector<OutlookRow> inventedRows(std::size_t players)
{
    return std::vector<OutlookRow>(players, OutlookRow{.name = "AB, Adams"});
}

TEST(OutlookReport, OfFourPlayersIsAsWorkedOutByHand)
{
    std::vector<OutlookRow> rows = countedRows(fourPlayers(), fourPlayersResults().picks);
    sortRows(rows, {});
    const ReportLines lines = outlookLines(headingOf(kSmallTitle, 3), rows);

    expectApproved(fileOf(lines), "small", kOutlookFile);
}

TEST(OutlookReport, SaysWhatIsSupposedAndWhatItChanges)
{
    // Given: that SALT LAKE wins its semi-final. Of the eight rows of the worksheet those with SL in the final are
    // left: Adams is first in 3 of 4, Baker, who has 12 points more, in 1 of 4; at most 128 + 12 + 16 and 108 + 12
    // + 16. The line has 8 characters more, 83: (83 - 16)/2 = 33.5, to even 34, and (83 - 12)/2 = 35.5, to even 36.
    const Bracket entered = fourPlayersResults().picks;
    const Bracket supposed = advanced(entered, regionWinner(kSouth));
    std::vector<OutlookRow> rows = countedRows(fourPlayers(), supposed, {0.875, 0.125, 0, 0});
    sortRows(rows, {});
    OutlookHeading heading = headingOf(kSmallTitle, 2);
    heading.whatIf = whatIfInWords(entered, supposed);

    EXPECT_THAT(outlookLines(heading, rows),
                ElementsAre(" ", std::string(34, ' ') + "Office Pool 2001", std::string(36, ' ') + "Pool Outlook", " ",
                            "What if: 1 supposed winner; these are not the results as entered",
                            "Supposed: SALT LAKE (round 5)", "Chances: all outcomes alike",
                            "Counted: all 4 outcomes of 2 open games", " ",
                            "  Now               Points  Poss.    First    Share   Share   Best  Worst",
                            "Place  Player Name  Earned  Score  Percent  Percent  Change  Place  Place  Verdict",
                            "-----  -----------  ------  -----  -------  -------  ------  -----  -----  --------",
                            "    1  AB, Adams       128    156     75.0     75.0   -12.5      1      2  Alive",
                            "    2  C, Baker        108    136     25.0     25.0   +12.5      1      2  Alive",
                            "    3  EF, Dunn        096    108      0.0      0.0     0.0      2      3  Out",
                            "    4  D, Clark        000    000      0.0      0.0     0.0      4      4  Out"));
}

TEST(OutlookReport, IsEmptyWithoutPlayers) { EXPECT_TRUE(outlookLines(headingOf("Pool", 3), {}).empty()); }

TEST(OutlookReport, GrowsWithNamesAndWithPlacesThatAreNotKnown)
{
    const std::vector<OutlookRow> rows{
        {.name = "AB, Adams-Baker", .best = {1, 250}, .worst = {1000, 1200}},
        {.name = "C, D", .first = 0.01, .share = 0.01},
        {.name = "E, F", .first = 0.0, .share = 0.0, .prospect = Prospect::Alive},
    };
    OutlookHeading heading{"Pool", {}, basisInWords({ChanceKind::Alike, 63, ChanceSource::Forecast, 200'000})};
    const ReportLines lines = outlookLines(heading, rows);

    // Names 15, best 5 and worst 9 wide: the line has 15 + 5 + 9 + 54 = 83, and (83 - 4)/2 = 39.5, to even 40.
    EXPECT_EQ(lines[1], std::string(40, ' ') + "Pool");
    EXPECT_EQ(lines[10], "-----  ---------------  ------  -----  -------  -------  -----  ---------  --------");
    EXPECT_EQ(lines[11], "    1  AB, Adams-Baker     000    000                    1-250  1000-1200  Open")
        << "no chance where none is known";
    EXPECT_EQ(lines[12], "    1  C, D                000    000     <0.1     <0.1      1          1  Open");
    EXPECT_EQ(lines[13], "    1  E, F                000    000     <0.1     <0.1      1          1  Alive")
        << "who is proven to be alive has a chance, also when no sample shows it";
}

TEST(OutlookReport, KeepsEveryNameOnALine)
{
    OutlookHeading heading = headingOf("Po\nol", 3);
    heading.whatIf = {"Supposed: Du\r\nke"};
    const ReportLines lines = outlookLines(heading, std::vector<OutlookRow>{{.name = "AB, Ad\nams"}});
    EXPECT_EQ(lines[1].substr(lines[1].size() - 5), "Po ol");
    EXPECT_EQ(lines[4], "Supposed: Du  ke");
    EXPECT_EQ(lines.back().substr(7, 10), "AB, Ad ams");
}

TEST(OutlookReport, RepeatsItsHeaderOnEachPage)
{
    // Ten lines of header and 38 rows fill a page.
    const OutlookHeading heading = headingOf("Pool", 3);
    const ReportLines onePage = outlookLines(heading, inventedRows(38));
    ASSERT_EQ(onePage.size(), 49u);
    EXPECT_EQ(onePage.back(), kFormFeedLine);
    EXPECT_EQ(outlookLines(heading, inventedRows(37)).size(), 47u);

    const ReportLines twoPages = outlookLines(heading, inventedRows(39));
    ASSERT_EQ(twoPages.size(), 60u);
    EXPECT_TRUE(std::equal(twoPages.begin(), twoPages.begin() + 11, twoPages.begin() + 49));
}

} // namespace
} // namespace tallyhoop::test
