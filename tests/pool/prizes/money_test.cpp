// tests/pool/prizes/money_test.cpp - amounts and percentages, read and written to the cent.
#include "pool/prizes/money.h"

#include <gtest/gtest.h>
#include <limits>

namespace tallyhoop {
namespace {

TEST(Money, IsWrittenWithTwoDecimals)
{
    EXPECT_EQ(moneyInWords({}), "0.00");
    EXPECT_EQ(moneyInWords({5}), "0.05");
    EXPECT_EQ(moneyInWords({125'000}), "1250.00");
    EXPECT_EQ(moneyInWords({-5}), "-0.05");
    EXPECT_EQ(moneyInWords({-1234}), "-12.34");
    EXPECT_EQ(moneyInWords({std::numeric_limits<std::int64_t>::min()}), "-92233720368547758.08");
}

TEST(Money, IsReadToTheCent)
{
    EXPECT_EQ(moneyOf("12"), Money{1200});
    EXPECT_EQ(moneyOf("12.5"), Money{1250});
    EXPECT_EQ(moneyOf(" 12,55 "), Money{1255});
    EXPECT_EQ(moneyOf("0.07"), Money{7});
    EXPECT_EQ(moneyOf("007"), Money{700});
    EXPECT_EQ(moneyOf("1000000.00"), kMostMoney);
}

TEST(Money, IsNotReadFromWhatCouldMeanSomethingElse)
{
    for (const char* text : {"", " ", ".", ".5", "5.", "1.234", "1,000", "1,000.00", "-5", "+5", "5 $", "1e3", "1 000",
                             "5%", "1000000.01", "99999999999999999999999999"})
        EXPECT_EQ(moneyOf(text), std::nullopt) << text;
}

TEST(Percentage, IsWrittenWithDecimalsOnlyWhereThereAreSome)
{
    EXPECT_EQ(percentageInWords({}), "0 %");
    EXPECT_EQ(percentageInWords({6000}), "60 %");
    EXPECT_EQ(percentageInWords({3333}), "33.33 %");
    EXPECT_EQ(percentageInWords({3305}), "33.05 %");
}

TEST(Percentage, IsReadUpToTheWhole)
{
    EXPECT_EQ(percentageOf("60%"), Percent{6000});
    EXPECT_EQ(percentageOf(" 33,3 % "), Percent{3330});
    EXPECT_EQ(percentageOf("100 %"), kWhole);
    for (const char* text : {"", "%", "60", "100.01 %", "% 60", "-1 %", "6 0 %", "60 %%"})
        EXPECT_EQ(percentageOf(text), std::nullopt) << text;
}

} // namespace
} // namespace tallyhoop
