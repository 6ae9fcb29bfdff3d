// tests/intake/check_value_test.cpp - the check value against known ones.
#include "intake/check_value.h"

#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

TEST(Crc32, IsThatOfZipFiles)
{
    EXPECT_EQ(crc32("123456789"), 0xCBF43926u) << "the check that every description of this CRC gives";
    EXPECT_EQ(crc32(""), 0u);
}

TEST(EightDigits, HasLeadingZerosAndCapitals)
{
    EXPECT_EQ(eightDigits(0xABCu), "00000ABC");
    EXPECT_EQ(eightDigits(0xFFFFFFFFu), "FFFFFFFF");
}

TEST(CheckValue, DependsOnEveryText)
{
    CheckedTexts texts{"Ann", "A", "100", {}};
    const std::string before = checkValue(texts);
    texts.picks[Game{62}] = "Duke";
    EXPECT_NE(checkValue(texts), before);
    texts.picks[Game{62}] = "";
    texts.initials = "B";
    EXPECT_NE(checkValue(texts), before);
}

} // namespace
} // namespace tallyhoop
