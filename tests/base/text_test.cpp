// tests/base/text_test.cpp - the small text helpers.
#include "base/text.h"

#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

TEST(TrimTrailingBlanks, RemovesBlanksFromTheEndOnly)
{
    EXPECT_EQ(trimTrailingBlanks("AB  "), "AB");
    EXPECT_EQ(trimTrailingBlanks("  A B"), "  A B");
    EXPECT_EQ(trimTrailingBlanks("A\t "), "A\t");
}

TEST(TrimTrailingBlanks, LeavesNothingOfAnEmptyOrBlankText)
{
    EXPECT_EQ(trimTrailingBlanks(""), "");
    EXPECT_EQ(trimTrailingBlanks("   "), "");
}

TEST(WithoutOuterBlanks, KeepsWhatIsBetweenThem)
{
    EXPECT_EQ(withoutOuterBlanks("  A B "), "A B");
    EXPECT_EQ(withoutOuterBlanks("AB"), "AB");
    EXPECT_EQ(withoutOuterBlanks(" \tA\t "), "\tA\t"); // other white space stays
}

TEST(WithoutOuterBlanks, LeavesNothingOfAnEmptyOrBlankText)
{
    EXPECT_EQ(withoutOuterBlanks(""), "");
    EXPECT_EQ(withoutOuterBlanks("   "), "");
}

TEST(LastNonBlank, CountsFromOne)
{
    EXPECT_EQ(lastNonBlank("AB  "), 2u);
    EXPECT_EQ(lastNonBlank(" A B"), 4u);
}

TEST(LastNonBlank, IsZeroForEmptyAndBlankTexts)
{
    EXPECT_EQ(lastNonBlank(""), 0u);
    EXPECT_EQ(lastNonBlank("    "), 0u);
}

TEST(BlankField, IsEmptyOrBeginsWithABlank)
{
    EXPECT_TRUE(isBlankField(""));
    EXPECT_TRUE(isBlankField(" Smith"));
    EXPECT_FALSE(isBlankField("Smith "));
    EXPECT_FALSE(isBlankField("\tSmith"));
}

TEST(LineBreaks, OfTwoLinesBecomeABar)
{
    EXPECT_EQ(encodeLineBreaks("a\r\nb"), "a|b");
    EXPECT_EQ(decodeLineBreaks("a|b"), "a\r\nb");
}

TEST(LineBreaks, AtTheEndOfATextBecomeABarAtItsEnd)
{
    EXPECT_EQ(encodeLineBreaks("a\r\n"), "a|");
    EXPECT_EQ(encodeLineBreaks("\r\n\r\n"), "||");
}

TEST(LineBreaks, AreOnlyCompletePairs)
{
    EXPECT_EQ(encodeLineBreaks("a\rb\nc\n\rd"), "a\rb\nc\n\rd");
    EXPECT_EQ(encodeLineBreaks("\r\r\n\n"), "\r|\n");
}

TEST(Fitted, PadsAndCutsToTheWidth)
{
    EXPECT_EQ(fitted("ab", 4), "ab  ");
    EXPECT_EQ(fitted("abcdef", 4), "abcd");
    EXPECT_EQ(fitted("", 2), "  ");
    EXPECT_EQ(fitted("abc", 0), "");
}

TEST(Repeated, GivesThatManyCharacters)
{
    EXPECT_EQ(repeated('-', 3), "---");
    EXPECT_EQ(blanks(2), "  ");
    EXPECT_EQ(blanks(0), "");
}

TEST(Split, KeepsEmptyPieces)
{
    EXPECT_EQ(split("a||b|", '|'), (std::vector<std::string>{"a", "", "b", ""}));
    EXPECT_EQ(split("", '|'), (std::vector<std::string>{""}));
}

TEST(InsertSorted, PutsARowAfterEqualOnes)
{
    std::vector<std::string> rows;
    EXPECT_EQ(insertSorted(rows, "duke"), 0u);
    EXPECT_EQ(insertSorted(rows, "UCLA"), 1u);
    EXPECT_EQ(insertSorted(rows, "Arizona"), 0u);
    EXPECT_EQ(insertSorted(rows, "DUKE"), 2u);
    EXPECT_EQ(rows, (std::vector<std::string>{"Arizona", "duke", "DUKE", "UCLA"}));
}

TEST(JoinLines, PutsBreaksBetweenLinesOnly)
{
    EXPECT_EQ(joinLines({"a", " ", "b"}), "a\r\n \r\nb");
    EXPECT_EQ(joinLines({"a"}), "a");
    EXPECT_EQ(joinLines({}), "");
}

TEST(Joined, PutsTheTextBetweenOnly)
{
    EXPECT_EQ(joined(std::vector<std::string>{"a", "", "b"}, ", "), "a, , b");
    EXPECT_EQ(joined(std::vector<std::string>{"a"}, ", "), "a");
    EXPECT_EQ(joined({}, ", "), "");
}

TEST(FewEnoughForAMessage, KeepsTwentyLinesAndCountsTheOthers)
{
    std::vector<std::string> lines(20, "x");
    EXPECT_EQ(fewEnoughForAMessage(lines), lines);
    lines.insert(lines.end(), {"y", "z"});
    std::vector<std::string> few(20, "x");
    few.emplace_back("and 2 more");
    EXPECT_EQ(fewEnoughForAMessage(lines), few);
}

TEST(AsOneLine, MakesABlankOfEveryControlCharacter)
{
    EXPECT_EQ(asOneLine("A\r\nB\tC\fD\x7F!"), "A  B C D !") << "each keeps its width";
    EXPECT_EQ(asOneLine("caf\xE9 \x85"), "caf\xE9 \x85");
}

} // namespace
} // namespace tallyhoop
