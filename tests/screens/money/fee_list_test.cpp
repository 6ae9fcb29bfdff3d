// tests/screens/money/fee_list_test.cpp - who has paid, by the names of selections.
#include "screens/money/fee_list.h"

#include "reports/four_players.h"

#include <gmock/gmock.h>

namespace tallyhoop::test {
namespace {

using testing::ElementsAre;

TEST(FeeList, TicksThoseWhoAreNamed)
{
    const std::vector<Entry> players = fourPlayers();
    const FeeList fees{players, std::vector<std::string>{"baker_c.thc", "Clark_D.THC"}};
    EXPECT_EQ(fees.players(), 4u);
    EXPECT_EQ(fees.paid(), 2u);
    EXPECT_FALSE(fees.hasPaid(0));
    EXPECT_TRUE(fees.hasPaid(1)) << "in any case";
    EXPECT_TRUE(fees.hasPaid(2));
    EXPECT_THAT(fees.filesOfPaid(players), ElementsAre("Baker_C.THC", "Clark_D.THC"));
}

TEST(FeeList, TakesTheExactNameOfTwoThatDifferInCase)
{
    std::vector<Entry> players = fourPlayers();
    players[1].fileName = "ADAMS_AB.THC";
    const FeeList fees{players, std::vector<std::string>{"ADAMS_AB.THC"}};
    EXPECT_FALSE(fees.hasPaid(0));
    EXPECT_TRUE(fees.hasPaid(1));
}

TEST(FeeList, KeepsThoseWhoAreNotThere)
{
    const std::vector<Entry> players = fourPlayers();
    FeeList fees{players, std::vector<std::string>{"Gone_G.THC", "Adams_AB.THC"}};
    EXPECT_EQ(fees.paid(), 1u);
    fees.setAll(false);
    EXPECT_THAT(fees.filesOfPaid(players), ElementsAre("Gone_G.THC"));
    fees.setPaid(3, true);
    EXPECT_THAT(fees.filesOfPaid(players), ElementsAre("Dunn_EF.THC", "Gone_G.THC"));
}

} // namespace
} // namespace tallyhoop::test
