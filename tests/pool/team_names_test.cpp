// tests/pool/team_names_test.cpp - names and their numbers.
#include "pool/team_names.h"

#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

TEST(TeamNames, AreNumberedFromOneOnInTheOrderInWhichTheyAreAdded)
{
    TeamNames names;
    EXPECT_EQ(names.add("Duke"), 1);
    EXPECT_EQ(names.add("UCLA"), 2);
    EXPECT_EQ(names.nameOf(1), "Duke");
    EXPECT_EQ(names.nameOf(2), "UCLA");
    EXPECT_EQ(names.numberOf("UCLA"), 2);
    EXPECT_EQ(names.size(), 2u);
}

TEST(TeamNames, AreAddedOnce)
{
    TeamNames names;
    names.add("Duke");
    names.add("UCLA");
    EXPECT_EQ(names.add("Duke"), 1);
    EXPECT_EQ(names.size(), 2u);
}

TEST(TeamNames, OfNobodyIsTheEmptyText)
{
    TeamNames names;
    EXPECT_EQ(names.add(""), kNoTeam);
    EXPECT_EQ(names.size(), 0u);
    EXPECT_EQ(names.numberOf(""), kNoTeam);
    EXPECT_EQ(names.nameOf(kNoTeam), "");
}

TEST(TeamNames, AreComparedExactly)
{
    TeamNames names;
    names.add("Duke");
    EXPECT_EQ(names.numberOf("DUKE"), kNoTeam);
    EXPECT_EQ(names.numberOf("Duke "), kNoTeam);
    EXPECT_EQ(names.numberOf("Duk"), kNoTeam);
}

TEST(TeamNames, MayBeAnyBytes)
{
    const std::string zeros("\0\x81\xFF", 3);
    TeamNames names;
    EXPECT_EQ(names.add(zeros), 1);
    EXPECT_EQ(names.add(zeros.substr(0, 2)), 2);
    EXPECT_EQ(names.nameOf(1), zeros);
    EXPECT_EQ(names.numberOf(zeros), 1);
}

TEST(TeamNames, HaveRoomForAsManyAsABracketHolds)
{
    TeamNames names;
    for (std::size_t i = 1; i <= TeamNames::kMost; ++i)
        EXPECT_EQ(names.add("name " + std::to_string(i)), i);
    EXPECT_EQ(names.size(), 127u);
    EXPECT_EQ(names.nameOf(127), "name 127");
}

} // namespace
} // namespace tallyhoop
