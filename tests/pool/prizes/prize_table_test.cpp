// tests/pool/prizes/prize_table_test.cpp - how the fees are split.
#include "pool/prizes/prize_table.h"

#include <gmock/gmock.h>

namespace tallyhoop {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr Money kFee{1000}; ///< 10.00

TEST(PrizeTable, ReadsAmountsAndShares)
{
    EXPECT_EQ(prizeOf("50"), Prize{Money{5000}});
    EXPECT_EQ(prizeOf("50 %"), Prize{Percent{5000}});
    EXPECT_EQ(prizeOf("half"), std::nullopt);
    EXPECT_EQ(prizeInWords(Money{5000}), "50.00");
    EXPECT_EQ(prizeInWords(Percent{5000}), "50 %");
}

TEST(PrizeTable, RefusesSharesOfMoreThanEverything)
{
    EXPECT_FALSE(faultOf({.prizes = {Percent{6000}, Money{99}, Percent{4000}}}));
    const std::optional<Failure> fault = faultOf({.prizes = {Percent{6000}, Percent{4001}}});
    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->message, "The shares of the prizes come to 100.01 %: together they can be 100 % at most.");
}

TEST(Purse, OfNobodyIsEmpty) { EXPECT_EQ(purseOf({kFee, Percent{1000}, {Percent{10'000}}}, 0), Purse{}); }

TEST(Purse, SplitsByAmountsAndThenShares)
{
    // Given: 8 players pay 10.00 each; 10 % of the 80.00 are kept back, and the third place gets its 10.00 back.
    const Purse purse = purseOf({kFee, Percent{1000}, {Percent{7000}, Percent{3000}, Money{1000}}}, 8);

    // Then: 80.00 - 8.00 - 10.00 = 62.00 are shared, 70 % of them 43.40, 30 % of them 18.60.
    EXPECT_EQ(purse.fees, Money{8000});
    EXPECT_EQ(purse.keptBack, Money{800});
    EXPECT_THAT(purse.prizes, ElementsAre(Money{4340}, Money{1860}, Money{1000}));
    EXPECT_EQ(purse.left, Money{});
}

TEST(Purse, GivesRemainingCentsToTheLargestRemainders)
{
    // Given: 1.01 in shares of 33.33, 33.34 and 33.33 percent: 33.6633, 33.6734 and 33.6633 cents. Rounded down they
    // are 33 each; two cents remain. One goes to the second place, the other to the first of two equal remainders.
    const Purse purse = purseOf({Money{101}, Money{202}, {Percent{3333}, Percent{3334}, Percent{3333}}}, 3);
    EXPECT_THAT(purse.prizes, ElementsAre(Money{34}, Money{34}, Money{33}));
    EXPECT_EQ(purse.left, Money{});
}

TEST(Purse, SaysWhatNobodyWins)
{
    // 20.00 of which 60 % are won; the shares of places that nobody takes stay, too.
    const Purse purse = purseOf({kFee, {}, {Percent{5000}, Percent{1000}, Percent{4000}}}, 2);
    EXPECT_THAT(purse.prizes, ElementsAre(Money{1000}, Money{200}));
    EXPECT_EQ(purse.left, Money{800});
}

TEST(Purse, SaysWhatPrizesNeedFromElsewhere)
{
    // Nobody pays, and somebody gives a prize of 25.00; a share of nothing is nothing.
    const Purse purse = purseOf({{}, {}, {Money{2500}, Percent{10'000}}}, 2);
    EXPECT_THAT(purse.prizes, ElementsAre(Money{2500}, Money{}));
    EXPECT_EQ(purse.left, Money{-2500});
}

TEST(Purse, RoundsWhatIsKeptBackDown)
{
    // 12.5 % of 0.99 are 12.375 cents.
    EXPECT_EQ(purseOf({Money{99}, Percent{1250}, {}}, 1).keptBack, Money{12});
    EXPECT_EQ(purseOf({Money{99}, Percent{1250}, {}}, 1).left, Money{87});
    EXPECT_THAT(purseOf({Money{99}, Percent{1250}, {}}, 1).prizes, IsEmpty());
}

} // namespace
} // namespace tallyhoop
