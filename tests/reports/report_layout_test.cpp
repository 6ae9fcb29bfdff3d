// tests/reports/report_layout_test.cpp - centring, page headers, work rows.
#include "reports/report_layout.h"

#include <gtest/gtest.h>

namespace tallyhoop::test {
namespace {

TEST(CentringOnce, RoundsHalfTheFreeWidthToEven)
{
    EXPECT_EQ(centredOnce(77, 16), 30); // 30.5
    EXPECT_EQ(centredOnce(77, 20), 28); // 28.5
    EXPECT_EQ(centredOnce(58, 27), 16); // 15.5
    EXPECT_EQ(centredOnce(58, 16), 21);
    EXPECT_EQ(centredOnce(10, 10), 0);
}

TEST(CentringOnce, IsNegativeForATextWiderThanTheLine)
{
    EXPECT_EQ(centredOnce(10, 11), 0); // -0.5, to even
    EXPECT_EQ(centredOnce(10, 12), -1);
    EXPECT_EQ(centredOnce(10, 13), -2); // -1.5, to even
}

TEST(CentringTwice, RoundsTheHalfTextFirst)
{
    EXPECT_EQ(centredTwice(115, 23), 46); // 57.5 - 12 = 45.5
    EXPECT_EQ(centredTwice(115, 21), 48); // 57.5 - 10 = 47.5
    EXPECT_EQ(centredTwice(74, 21), 27);  // 37 - 10
    EXPECT_EQ(centredTwice(74, 23), 25);  // 37 - 12
    EXPECT_EQ(centredTwice(80, 25), 28);  // 40 - 12
}

TEST(CentringTwice, DiffersFromRoundingOnce)
{
    EXPECT_EQ(centredOnce(115, 21), 47);
    EXPECT_EQ(centredTwice(115, 21), 48);
}

TEST(CentringTwice, IsNegativeForATextWiderThanTheLine)
{
    EXPECT_EQ(centredTwice(74, 74), 0);
    EXPECT_EQ(centredTwice(74, 75), -1);   // 37 - 38
    EXPECT_EQ(centredTwice(115, 117), 0);  // 57.5 - 58 = -0.5
    EXPECT_EQ(centredTwice(115, 118), -2); // 57.5 - 59 = -1.5
}

TEST(Indenting, FailsForANegativeCountAndNamesTheText)
{
    const Result<std::string> line = indented(-1, "A very long title");

    ASSERT_FALSE(line);
    EXPECT_EQ(line.failure().message, "This text is too wide for the report:\r\nA very long title");
}

TEST(Indenting, PutsBlanksBeforeTheText)
{
    EXPECT_EQ(*indented(3, "abc"), "   abc");
    EXPECT_EQ(*indented(0, "abc"), "abc");
}

TEST(Indenting, StartsAtTheLeftEdgeWhereNegativeCountsAreClamped)
{
    EXPECT_EQ(indentedOrFlush(-5, "abc"), "abc");
    EXPECT_EQ(indentedOrFlush(2, "abc"), "  abc");
}

TEST(PageHeader, IsAnEmptyLineTheTitleTheNameAndAnEmptyLine)
{
    ReportLines lines;

    ASSERT_TRUE(addCentredPageHeader(lines, centredOnce, 20, "Title", "Name"));

    EXPECT_EQ(lines, (ReportLines{" ", "        Title", "        Name", " "})); // 7.5 and 8
}

TEST(PageHeader, FailsWhenTheTitleIsTooWide)
{
    ReportLines lines;

    EXPECT_FALSE(addCentredPageHeader(lines, centredOnce, 4, "Too wide", "Name"));
    EXPECT_TRUE(lines.empty());
}

TEST(FormFeed, IsALineOfItsOwn) { EXPECT_EQ(std::string{kFormFeedLine}, std::string(1, '\x0C')); }

TEST(WorkRows, AreKeptAscendingWithoutRegardToCase)
{
    std::vector<std::string> rows{"b", "C", "A", "\xC9lan", "\xE9lan", "d"};

    sortWorkRows(rows);

    EXPECT_EQ(rows, (std::vector<std::string>{"A", "b", "C", "d", "\xC9lan", "\xE9lan"}));
}

TEST(WorkRows, ThatDifferOnlyInCaseKeepTheOrderOfArrival)
{
    std::vector<std::string> rows{"smith", "SMITH", "Smith"};

    sortWorkRows(rows);

    EXPECT_EQ(rows, (std::vector<std::string>{"smith", "SMITH", "Smith"}));
}

TEST(WorkRowFields, LoseWhatComesAfterTheLastOne)
{
    EXPECT_EQ(workRowFields("a;b;c;d", ';', 3), (std::vector<std::string>{"a", "b", "c"}));
}

TEST(WorkRowFields, MayBeEmpty) { EXPECT_EQ(workRowFields("a,,", ',', 3), (std::vector<std::string>{"a", "", ""})); }

} // namespace
} // namespace tallyhoop::test
