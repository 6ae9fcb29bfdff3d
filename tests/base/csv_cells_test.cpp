// tests/base/csv_cells_test.cpp - rows and cells, quotation marks, separators and formulas.
#include "base/csv_cells.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

using testing::ElementsAre;

std::vector<CsvRow> rowsOf(std::string_view text)
{
    const Result<std::vector<CsvRow>> rows = csvRows(text);
    return rows ? *rows : std::vector<CsvRow>{{"failed: " + rows.failure().message}};
}

TEST(CsvRows, AreSeparatedByLineEndsAndCommas)
{
    EXPECT_THAT(rowsOf("a,b\r\nc,\n\nd"), ElementsAre(CsvRow{"a", "b"}, CsvRow{"c", ""}, CsvRow{""}, CsvRow{"d"}));
    EXPECT_THAT(rowsOf(""), ElementsAre());
}

TEST(CsvRows, HoldSeparatorsLineEndsAndQuotationMarksInQuotationMarks)
{
    EXPECT_THAT(rowsOf("\"Miami, FL\",\"say \"\"hi\"\"\",\"two\r\nlines\",\"\"\r\nx"),
                ElementsAre(CsvRow{"Miami, FL", "say \"hi\"", "two\r\nlines", ""}, CsvRow{"x"}));
    EXPECT_THAT(rowsOf("5\" disk,x"), ElementsAre(CsvRow{"5\" disk", "x"})) << "not at the beginning of the cell";
}

TEST(CsvRows, MayBeSeparatedBySemicolons)
{
    EXPECT_THAT(rowsOf("a;b,c;d\r\n1;2;3"), ElementsAre(CsvRow{"a", "b,c", "d"}, CsvRow{"1", "2", "3"}));
    EXPECT_THAT(rowsOf("\"a;b;c\",d"), ElementsAre(CsvRow{"a;b;c", "d"})) << "those in quotation marks do not count";
    EXPECT_THAT(rowsOf("sep=;\r\na;b,c,d"), ElementsAre(CsvRow{"a", "b,c,d"}));
    EXPECT_THAT(rowsOf("sep=;"), ElementsAre());
}

TEST(CsvRows, HaveTheSeparatorThatMakesThemAlike)
{
    EXPECT_THAT(rowsOf("Game 1 (West, round 1, game 1);Name\nArizona;Ann"),
                ElementsAre(CsvRow{"Game 1 (West, round 1, game 1)", "Name"}, CsvRow{"Arizona", "Ann"}))
        << "there are more commas";
    EXPECT_THAT(rowsOf("a, b\tc\nd\te"), ElementsAre(CsvRow{"a, b", "c"}, CsvRow{"d", "e"}));
    EXPECT_THAT(rowsOf("My pool, 2000\na;b;c\nd;e;f"),
                ElementsAre(CsvRow{"My pool, 2000"}, CsvRow{"a", "b", "c"}, CsvRow{"d", "e", "f"}));
    EXPECT_THAT(rowsOf("Smith, Ann;as;142"), ElementsAre(CsvRow{"Smith, Ann", "as", "142"})) << "more cells";
    EXPECT_THAT(rowsOf("a;b\nc;d\ne;\"f"), ElementsAre(CsvRow{"failed: A quotation mark in row 3 is not closed."}));
}

TEST(CsvRows, FailOnAQuotationMarkThatIsNotClosed)
{
    const Result<std::vector<CsvRow>> rows = csvRows("a,b\r\nc,\"d\r\ne");
    ASSERT_FALSE(rows);
    EXPECT_EQ(rows.failure().message, "A quotation mark in row 2 is not closed.");
}

TEST(CsvText, QuotesWhatNeedsIt)
{
    const std::vector<CsvRow> rows{{"a", "Miami, FL", "say \"hi\"", " b", "c;d", ""}, {"'x"}};
    EXPECT_EQ(csvText(rows), "a,\"Miami, FL\",\"say \"\"hi\"\"\",\" b\",\"c;d\",\r\n'x\r\n");
    EXPECT_EQ(rowsOf(csvText(rows)), rows);
}

TEST(Guarded, KeepsSpreadsheetsFromCalculating)
{
    EXPECT_EQ(guarded("=1+1"), "'=1+1");
    EXPECT_EQ(guarded("+1"), "'+1");
    EXPECT_EQ(guarded("-1"), "'-1");
    EXPECT_EQ(guarded("@SUM(A1)"), "'@SUM(A1)");
    EXPECT_EQ(guarded("\tx"), "'\tx");
    EXPECT_EQ(guarded("\rx"), "'\rx");
    EXPECT_EQ(guarded("  =1"), "'  =1") << "some spreadsheets leave the blanks out";
    EXPECT_EQ(guarded(" \t=1"), "' \t=1");
    EXPECT_EQ(guarded(" x=1"), " x=1");
    EXPECT_EQ(guarded("1-1"), "1-1");
    EXPECT_EQ(guarded("'80s fan"), "'80s fan");
    EXPECT_EQ(guarded(""), "");
}

TEST(Guarded, IsTakenBackExactly)
{
    for (const char* cell : {"=1", "'=1", "''=1", "'x", "'", "", "-", "x=1", "'+", "@", " =1", "' =1", "  ", " '"})
        EXPECT_EQ(unguarded(guarded(cell)), cell);
    EXPECT_EQ(guarded("'=1"), "''=1") << "typed with the apostrophe: one more, or it would be lost";
}

} // namespace
} // namespace tallyhoop
