// tests/base/numbers_test.cpp - numbers held as text.
#include "base/numbers.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace tallyhoop {
namespace {

TEST(LeadingNumber, IgnoresBlanksBeforeAndTextAfterIt)
{
    EXPECT_EQ(leadingNumber(" 12abc"), 12);
    EXPECT_EQ(leadingNumber("  7 8"), 7);
}

TEST(LeadingNumber, IsZeroWithoutOne)
{
    for (const char* text : {"", "abc", "-", "+", ".", "- 5", "x12", "--5", "inf", "nan"})
        EXPECT_EQ(leadingNumber(text), 0) << text;
}

TEST(LeadingNumber, TakesSignsAndFractions)
{
    EXPECT_EQ(leadingNumber("-12.5"), -12.5);
    EXPECT_EQ(leadingNumber("+3"), 3);
    EXPECT_EQ(leadingNumber(".5"), 0.5);
    EXPECT_EQ(leadingNumber("5."), 5);
    EXPECT_EQ(leadingNumber("1.2.3"), 1.2);
}

TEST(LeadingNumber, KnowsNoExponentAndNoHexadecimal)
{
    EXPECT_EQ(leadingNumber("1e5"), 1);
    EXPECT_EQ(leadingNumber("0x10"), 0);
    EXPECT_EQ(leadingNumber("1,000"), 1);
}

TEST(LeadingNumber, SurvivesHugeAndTinyNumbers)
{
    EXPECT_EQ(leadingNumber(std::string(1'000'000, '9')), std::numeric_limits<double>::max());
    EXPECT_EQ(leadingNumber("-" + std::string(500, '9')), -std::numeric_limits<double>::max());
    EXPECT_EQ(leadingNumber(std::string(1'000'000, '0') + "42"), 42);
    EXPECT_EQ(leadingNumber("0." + std::string(1'000, '0') + "1"), 0);
}

TEST(IsNumber, WantsTheWholeTextToBeOne)
{
    for (const char* text : {"12", " 12 ", "-1.5", "+0", "1."})
        EXPECT_TRUE(isNumber(text)) << text;
    for (const char* text : {"", " ", "12a", "1 2", "-", ".", "1e5", "abc"})
        EXPECT_FALSE(isNumber(text)) << text;
}

TEST(RoundHalfEven, TakesHalvesToTheEvenNeighbour)
{
    EXPECT_EQ(roundHalfEven(0.5), 0);
    EXPECT_EQ(roundHalfEven(1.5), 2);
    EXPECT_EQ(roundHalfEven(2.5), 2);
    EXPECT_EQ(roundHalfEven(-0.5), 0);
    EXPECT_EQ(roundHalfEven(-1.5), -2);
    EXPECT_EQ(roundHalfEven(-2.5), -2);
}

TEST(RoundHalfEven, TakesOtherValuesToTheNearest)
{
    EXPECT_EQ(roundHalfEven(2.4999), 2);
    EXPECT_EQ(roundHalfEven(2.5001), 3);
    EXPECT_EQ(roundHalfEven(-2.5001), -3);
    EXPECT_EQ(roundHalfEven(7), 7);
}

TEST(RoundHalfEven, StaysInRange)
{
    EXPECT_EQ(roundHalfEven(1e300), std::numeric_limits<long long>::max());
    EXPECT_EQ(roundHalfEven(-1e300), std::numeric_limits<long long>::min());
    EXPECT_EQ(roundHalfEven(std::nan("")), 0);
}

TEST(WholeNumber, RoundsTheLeadingNumber)
{
    EXPECT_EQ(*wholeNumber("12.5 points"), 12);
    EXPECT_EQ(*wholeNumber("abc"), 0);
    EXPECT_EQ(*wholeNumber("-3"), -3);
}

TEST(WholeNumber, FitsSixteenBits)
{
    EXPECT_EQ(*wholeNumber("32767"), 32767);
    EXPECT_EQ(*wholeNumber("-32768"), -32768);
    EXPECT_EQ(*wholeNumber("-32768.5"), -32768);
    EXPECT_FALSE(wholeNumber("32768"));
    EXPECT_FALSE(wholeNumber("32767.5"));
    EXPECT_FALSE(wholeNumber("-32769"));
}

TEST(WholeNumber, NamesTheNumberThatDoesNotFit)
{
    EXPECT_EQ(wholeNumber("99999").failure().message,
              "The number \"99999\" is out of range: it must lie between -32768 and 32767.");
}

TEST(WholeNumber, NamesANumberOfMoreThanFortyCharactersByItsBeginning)
{
    const std::string forty(40, '9');
    EXPECT_EQ(wholeNumber(forty).failure().message,
              "The number \"" + forty + "\" is out of range: it must lie between -32768 and 32767.");
    EXPECT_EQ(wholeNumber(forty + "9").failure().message,
              "The number \"" + forty + "...\" is out of range: it must lie between -32768 and 32767.");
}

TEST(ThreeDigits, FillsWithZerosAfterTheMinus)
{
    EXPECT_EQ(threeDigits(7), "007");
    EXPECT_EQ(threeDigits(0), "000");
    EXPECT_EQ(threeDigits(168), "168");
    EXPECT_EQ(threeDigits(-64), "-064");
    EXPECT_EQ(threeDigits(1234), "1234");
    EXPECT_EQ(threeDigits(std::numeric_limits<long long>::min()), "-9223372036854775808");
}

TEST(ThreeColumns, AlignsToTheRight)
{
    EXPECT_EQ(threeColumns(7), "  7");
    EXPECT_EQ(threeColumns(-64), "-64");
    EXPECT_EQ(threeColumns(1234), "1234");
}

TEST(Counted, HasTheFormOfItsNumber)
{
    EXPECT_EQ(counted(0, "pick", "picks"), "0 picks");
    EXPECT_EQ(counted(1, "pick", "picks"), "1 pick");
    EXPECT_EQ(counted(2, "pick", "picks"), "2 picks");
}

} // namespace
} // namespace tallyhoop
