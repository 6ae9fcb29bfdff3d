// tests/intake/known_teams_test.cpp - teams as people spell them.
#include "intake/known_teams.h"

#include "intake/field_2000.h"

#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

ByGame<std::string> picked(int game, const std::string& team)
{
    ByGame<std::string> picks;
    picks[Game{game}] = team;
    return picks;
}

TEST(KnownTeams, AreSpelledAsTheFieldHasThem)
{
    const KnownTeams teams{test::field2000()};
    EXPECT_EQ(teams.bracketOf(picked(7, "ST. JOHN\x92S")).at(Position{23}), "St. John's") << "plays there";
    EXPECT_EQ(teams.bracketOf(picked(0, "ST. JOHN\x92S")).at(Position{16}), "St. John's") << "plays elsewhere";
    EXPECT_EQ(teams.bracketOf(picked(0, "Harvard")).at(Position{16}), "Harvard") << "stays as it is";
    EXPECT_EQ(teams.bracketOf({}), startingBracket(test::field2000()));
}

TEST(KnownTeams, OfOneSpellingAreToldApartByTheGame)
{
    Field field = test::field2000();
    field.teams[TeamRow{1}] = "Miami";
    field.teams[TeamRow{2}] = "MIAMI";
    field.teams[TeamRow{3}] = "St. John\x92s"; // another one than row 14
    const KnownTeams teams{field};
    EXPECT_EQ(teams.bracketOf(picked(0, "miami")).at(Position{16}), "Miami");
    EXPECT_EQ(teams.bracketOf(picked(1, "miami")).at(Position{17}), "MIAMI");
    EXPECT_EQ(teams.bracketOf(picked(1, "st. john's")).at(Position{17}), "St. John\x92s");
    EXPECT_EQ(teams.bracketOf(picked(7, "St. John's")).at(Position{23}), "St. John's");
}

TEST(KnownTeams, ThatMeetAndDifferInCaseOnlyAreTakenAsWritten)
{
    Field field = test::field2000();
    field.teams[TeamRow{0}] = "Miami";
    field.teams[TeamRow{1}] = "MIAMI";
    const KnownTeams teams{field};
    EXPECT_EQ(teams.bracketOf(picked(0, "Miami")).at(Position{16}), "Miami");
    EXPECT_EQ(teams.bracketOf(picked(0, "MIAMI")).at(Position{16}), "MIAMI");
}

} // namespace
} // namespace tallyhoop
