// tests/base/one_line_test.cpp - words of several lines on one.
#include "base/one_line.h"

#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

TEST(OnOneLine, MakesALineBreakAndItsBlanksOneBlank)
{
    EXPECT_EQ(onOneLine("Row 2:\r\n  Fee,  , 1\n"), "Row 2: Fee, , 1");
    EXPECT_EQ(onOneLine(" \r\n"), "");
    EXPECT_EQ(onOneLine("as it is"), "as it is");
}

} // namespace
} // namespace tallyhoop
