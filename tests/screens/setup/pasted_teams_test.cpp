// tests/screens/setup/pasted_teams_test.cpp - which team boxes a pasted text fills.
#include "screens/setup/pasted_teams.h"

#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

using Names = std::vector<std::string>;
using Filled = std::vector<std::pair<TeamRow, std::string>>;

const TeamNameList kTeamList{Names{"Duke", "Iowa St.", "Texas"}};

TEST(PastedTeams, FillTheBoxAndThoseThatFollowInTheListsSpelling)
{
    const PastedTeams pasted = pastedTeams(Names{"duke", "", "TEXAS"}, TeamRow{10}, &kTeamList);
    EXPECT_EQ(pasted.filled,
              (Filled{{TeamRow{10}, "Duke"}, {TeamRow{12}, "Texas"}})); // the empty line leaves box 11 alone
    EXPECT_EQ(refusedLines(pasted), "");
}

TEST(PastedTeams, RefuseWhatTheListLacksAndLeaveItsBoxAlone)
{
    const PastedTeams pasted = pastedTeams(Names{"Nowhere", "Duke", "Duk"}, TeamRow{0}, &kTeamList);
    EXPECT_EQ(pasted.filled, (Filled{{TeamRow{1}, "Duke"}}));
    EXPECT_EQ(pasted.notInList, (Names{"Nowhere", "Duk"}));
    EXPECT_EQ(refusedLines(pasted),
              "These lines are not in the list of team names and were not entered:\r\nNowhere\r\nDuk");
}

TEST(PastedTeams, EndAtTheLastBox)
{
    const PastedTeams pasted = pastedTeams(Names{"Duke", "Texas"}, TeamRow{63}, &kTeamList);
    EXPECT_EQ(pasted.filled, (Filled{{TeamRow{63}, "Duke"}}));
    EXPECT_EQ(pasted.noBoxLeft, Names{"Texas"});
    EXPECT_EQ(refusedLines(pasted), "These lines come after the last team box and were not entered:\r\nTexas");
}

TEST(PastedTeams, AreAnyTextWithoutAList)
{
    const PastedTeams pasted = pastedTeams(Names{"Nowhere", "duke"}, TeamRow{0}, nullptr);
    EXPECT_EQ(pasted.filled, (Filled{{TeamRow{0}, "Nowhere"}, {TeamRow{1}, "duke"}}));
    EXPECT_TRUE(pasted.notInList.empty());
}

TEST(PastedTeams, ListBothKindsOfRefusedLinesTwentyOfEach)
{
    PastedTeams pasted;
    pasted.notInList = Names(20, "x");
    pasted.noBoxLeft = Names(22, "y");
    std::string expected = "These lines are not in the list of team names and were not entered:\r\n";
    for (int i = 0; i < 20; ++i)
        expected += "x\r\n";
    expected += " \r\nThese lines come after the last team box and were not entered:\r\n";
    for (int i = 0; i < 20; ++i)
        expected += "y\r\n";
    EXPECT_EQ(refusedLines(pasted), expected + "and 2 more");
}

} // namespace
} // namespace tallyhoop
