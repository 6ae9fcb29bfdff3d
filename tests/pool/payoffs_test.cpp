// tests/pool/payoffs_test.cpp - payoffs as texts and as numbers.
#include "pool/payoffs.h"

#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

using Texts = std::array<std::string, kRounds>;

TEST(PayoffTexts, CountAsTheNumbersTheyBeginWith)
{
    const PayoffTexts payoffs{Texts{"1", " 2", "4 points", "abc", "12", ""}};
    ASSERT_TRUE(payoffs.points());
    EXPECT_EQ(*payoffs.points(), (Payoffs{1, 2, 4, 0, 12, 0}));
}

TEST(PayoffTexts, AreRoundedHalvesToEven)
{
    const PayoffTexts payoffs{Texts{"0.5", "1.5", "2.5", "-1", "2.4", "2.6"}};
    ASSERT_TRUE(payoffs.points());
    EXPECT_EQ(*payoffs.points(), (Payoffs{0, 2, 2, -1, 2, 3}));
}

TEST(PayoffTexts, FailWhenOneDoesNotFitSixteenBits)
{
    EXPECT_TRUE(PayoffTexts(Texts{"1", "2", "4", "8", "12", "32767"}).points());
    const PayoffTexts tooLarge{Texts{"1", "2", "4", "8", "12", "32768"}};
    ASSERT_FALSE(tooLarge.points());
    EXPECT_EQ(
        tooLarge.points().failure().message,
        "The payoff of round 6 cannot be used. The number \"32768\" is out of range: it must lie between -32768 and "
        "32767.");
}

TEST(PayoffTexts, StayAsTheyWereTyped)
{
    const Texts typed{"1", " 2", "four", "8.5", "", "99999"};
    const PayoffTexts payoffs{typed};
    EXPECT_EQ(payoffs.texts(), typed);
    EXPECT_EQ(payoffs.text(1), "1");
    EXPECT_EQ(payoffs.text(6), "99999");
}

TEST(PayoffTexts, AreNothingForEveryRoundWhenNothingWasTyped)
{
    EXPECT_EQ(*PayoffTexts{}.points(), Payoffs{});
    EXPECT_EQ(PayoffTexts{}.text(3), "");
}

TEST(PayoffTexts, AreEqualWhenTheTextsAre)
{
    const PayoffTexts one{Texts{"1", "", "", "", "", ""}};
    EXPECT_EQ(one, (PayoffTexts{Texts{"1", "", "", "", "", ""}}));
    EXPECT_NE(one, (PayoffTexts{Texts{"1.0", "", "", "", "", ""}})) << "the same number, typed differently";
}

} // namespace
} // namespace tallyhoop
