// tests/base/lines_test.cpp - lines in and out of text files.
#include "base/lines.h"

#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

using Lines = std::vector<std::string>;

TEST(LinesOf, AcceptsEveryKindOfLineEnd)
{
    EXPECT_EQ(linesOf("a\r\nb\r\n"), (Lines{"a", "b"}));
    EXPECT_EQ(linesOf("a\nb\n"), (Lines{"a", "b"}));
    EXPECT_EQ(linesOf("a\rb\r"), (Lines{"a", "b"}));
    EXPECT_EQ(linesOf("a\r\nb\nc\rd"), (Lines{"a", "b", "c", "d"}));
}

TEST(LinesOf, CountsALastLineWithoutEnd) { EXPECT_EQ(linesOf("a\r\nb"), (Lines{"a", "b"})); }

TEST(LinesOf, KeepsEmptyLines)
{
    EXPECT_EQ(linesOf("\r\n\r\na\r\n\r\n"), (Lines{"", "", "a", ""}));
    EXPECT_EQ(linesOf("\n\r"), (Lines{"", ""}));
}

TEST(LinesOf, FindsNoLinesInAnEmptyFile) { EXPECT_EQ(linesOf(""), Lines{}); }

TEST(LinesOf, KeepsEveryOtherByte)
{
    const std::string line{"\0\x1A\xFF\t ", 5};
    EXPECT_EQ(linesOf(line + "\r\n"), Lines{line});
}

TEST(FileOf, EndsEveryLine)
{
    EXPECT_EQ(fileOf(Lines{"a", "", "b"}), "a\r\n\r\nb\r\n");
    EXPECT_EQ(fileOf(Lines{}), "");
}

} // namespace
} // namespace tallyhoop
