// tests/screens/money/money_words_test.cpp - sums in sentences.
#include "screens/money/money_words.h"

#include <gmock/gmock.h>

namespace tallyhoop {
namespace {

using testing::ElementsAre;

TEST(MoneyWords, SayWhoHasPaidAndWhatItComesTo)
{
    EXPECT_EQ(feesInWords(Money{1050}, 3, 4), "3 of 4 players paid: 31.50 received, 10.50 owed.");
    EXPECT_EQ(feesInWords(Money{1050}, 0, 1), "0 of 1 player paid: 0.00 received, 10.50 owed.");
    EXPECT_EQ(feesInWords({}, 1, 4), "1 of 4 players ticked; there is no entry fee.");
    EXPECT_EQ(feesInWords(Money{1050}, 0, 0), "There are no players yet.");
}

TEST(MoneyWords, SayWhereTheFeesGo)
{
    EXPECT_EQ(purseInWords({Money{4000}, Money{400}, {Money{3000}, Money{500}}, Money{100}}),
              "Fees 40.00: kept back 4.00, prizes 35.00, left 1.00.");
    EXPECT_EQ(purseInWords({{}, {}, {Money{2500}}, Money{-2500}}),
              "Fees 0.00: kept back 0.00, prizes 25.00, from elsewhere 25.00.");
}

TEST(MoneyWords, SayWhichTotalCounts)
{
    Entry results;
    EXPECT_EQ(totalInWords(results, TieRule::Nearest), "The total of the final is entered with the results.");
    EXPECT_EQ(totalInWords(std::nullopt, TieRule::NotOver), "The total of the final is entered with the results.");
    results.finalPoints = "150 ";
    EXPECT_EQ(totalInWords(results, TieRule::NotOver), "Total of the final: 150.");
    EXPECT_EQ(totalInWords(results, TieRule::Share), "The predicted totals do not count.");
}

TEST(MoneyWords, SayWhichPrizesHaveNoBox)
{
    EXPECT_EQ(furtherPrizesInWords(0), "");
    EXPECT_EQ(furtherPrizesInWords(1), "and 1 prize for further places, as in PRIZES.CSV");
    EXPECT_EQ(furtherPrizesInWords(2), "and 2 prizes for further places, as in PRIZES.CSV");
}

TEST(FeeCells, SayWhoOwesWhat)
{
    Entry player;
    player.initials = "AB";
    player.name = "Ad\r\nams";
    player.fileName = "Adams_AB.THC";
    EXPECT_THAT(feeCells(player, false, Money{1000}),
                ElementsAre("not ticked", "AB, Ad  ams", "Adams_AB.THC", "10.00"));
    EXPECT_THAT(feeCells(player, true, Money{1000}), ElementsAre("ticked", "AB, Ad  ams", "Adams_AB.THC", ""));
    EXPECT_THAT(feeCells(player, false, {}), ElementsAre("not ticked", "AB, Ad  ams", "Adams_AB.THC", ""));
    EXPECT_EQ(feeColumns().size(), 4u);
}

} // namespace
} // namespace tallyhoop
