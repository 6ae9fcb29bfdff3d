// tests/screens/setup/field_doubts_test.cpp - teams that are allowed but seldom meant, in few words and in all.
#include "screens/setup/field_doubts.h"

#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

/// No name twice, none of the default's.
Field soundField()
{
    Field field = defaultField();
    for (const TeamRow row : allTeamRows())
        field.teams[row] = "College " + std::to_string(index(row));
    return field;
}

TEST(FieldDoubts, AreNoneInAFieldOfSixtyFourTeams)
{
    EXPECT_EQ(doubtsInShort(soundField()), "");
    EXPECT_EQ(doubtsInFull(soundField()), "");
    EXPECT_EQ(firstDoubt(soundField()), std::nullopt);
}

TEST(FieldDoubts, NameOneTeamOfEachKindInShort)
{
    Field field = soundField();
    for (const int row : {0, 10, 20})
        field.teams[TeamRow{row}] = "Duke";
    for (const int row : {1, 11})
        field.teams[TeamRow{row}] = "A name of far more than sixteen";
    for (const int row : {2, 12})
        field.teams[TeamRow{row}] = "Iowa";
    field.teams[TeamRow{30}] = "TEAM31";
    EXPECT_EQ(doubtsInShort(field), "More than once: Duke and 2 more.  Not named yet: TEAM31.");
    field.teams[TeamRow{0}] = "A name of far more than sixteen";
    field.teams[TeamRow{31}] = "TEAM32";
    EXPECT_EQ(doubtsInShort(field),
              "More than once: A name of far mo... and 2 more.  Not named yet: TEAM31 and 1 more.");
}

TEST(FieldDoubts, BeginWithTheSecondRowOfARepeatedTeamOrAnUnnamedRow)
{
    Field field = soundField();
    field.teams[TeamRow{3}] = field.teams[TeamRow{50}] = "Duke";
    EXPECT_EQ(firstDoubt(field), TeamRow{3});
    field.teams[TeamRow{2}] = "TEAM1";
    EXPECT_EQ(firstDoubt(field), TeamRow{2});
}

TEST(FieldDoubts, HaveALineForEachOfTheFirstTwenty)
{
    Field field = soundField();
    for (int row = 16; row < 36; ++row) // rows of regions 2 and 3
        field.teams[TeamRow{row}] = "TEAM" + std::to_string(row + 1);
    const std::string twenty = doubtsInFull(field);
    EXPECT_TRUE(twenty.starts_with("Not named yet: TEAM17 (Midwest Region, row 1).\r\n")) << twenty;
    EXPECT_TRUE(twenty.ends_with("\r\nNot named yet: TEAM36 (East Region, row 4).")) << twenty;
    field.teams[TeamRow{40}] = field.teams[TeamRow{41}] = "Duke";
    const std::string more = doubtsInFull(field);
    EXPECT_TRUE(more.starts_with("Duke is in the field 2 times: East Region, row 9; East Region, row 10.\r\n")) << more;
    EXPECT_TRUE(more.ends_with("TEAM35 (East Region, row 3).\r\nand 1 more")) << more;
}

} // namespace
} // namespace tallyhoop
