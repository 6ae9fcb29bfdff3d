// tests/screens/spreadsheet_test.cpp - what reaches a spreadsheet as a number, and what as a text.
#include "screens/spreadsheet.h"

#include <gtest/gtest.h>
#include <vector>

namespace tallyhoop::test {
namespace {

std::string lineOf(const std::vector<std::string>& cells) { return tabSeparatedLine(cells); }

TEST(SpreadsheetLine, SeparatesItsCellsByTabs)
{
    EXPECT_EQ(lineOf({"1", "AB, Adams", "", "48.4"}), "1\tAB, Adams\t\t48.4\r\n");
    EXPECT_EQ(lineOf({}), "\r\n");
}

TEST(SpreadsheetLine, LeavesNumbersNumbers) { EXPECT_EQ(lineOf({"-0.3", "+4.1", "-64"}), "-0.3\t+4.1\t-64\r\n"); }

TEST(SpreadsheetLine, MakesNoFormulaOfAName)
{
    EXPECT_EQ(lineOf({"=1+1, x", "+A, x", "-A, x", "@A, x"}), "'=1+1, x\t'+A, x\t'-A, x\t'@A, x\r\n");
    EXPECT_EQ(lineOf({" =A1", "\t=A1"}), "' =A1\t' =A1\r\n") << "also after blanks";
    EXPECT_EQ(lineOf({"A=1", "A - B"}), "A=1\tA - B\r\n");
}

TEST(SpreadsheetLine, BeginsNoQuotation) { EXPECT_EQ(lineOf({"\"A, x", "B \"C\""}), "'\"A, x\tB \"C\"\r\n"); }

TEST(SpreadsheetLine, StaysOneLine) { EXPECT_EQ(lineOf({"A\r\nB\tC"}), "A  B C\r\n"); }

} // namespace
} // namespace tallyhoop::test
