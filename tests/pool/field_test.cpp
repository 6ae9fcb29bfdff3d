// tests/pool/field_test.cpp - the field, and the one of a pool that nobody has set up yet.
#include "pool/field.h"

#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

TEST(DefaultField, NamesTheTeamsTeam1ToTeam64)
{
    const Field field = defaultField();
    EXPECT_EQ(field.teams[TeamRow{0}], "TEAM1");
    EXPECT_EQ(field.teams[TeamRow{32}], "TEAM33"); // first team of region 3
    EXPECT_EQ(field.teams[TeamRow{63}], "TEAM64");
}

TEST(DefaultField, GivesOneDigitSeedsALeadingBlank)
{
    EXPECT_EQ(defaultField().seeds, (SeedTexts{" 1", "16", " 8", " 9", " 5", "12", " 4", "13", " 6", "11", " 3", "14",
                                               " 7", "10", " 2", "15"}));
}

TEST(DefaultField, HasTitlesPayoffsNoCommentsAndIsOpen)
{
    const Field field = defaultField();
    EXPECT_EQ(field.title, "2001 NCAA Tournament");
    EXPECT_EQ(field.regionTitles[0], "West Region");
    EXPECT_EQ(field.regionTitles[1], "Midwest Region");
    EXPECT_EQ(field.regionTitles[2], "East Region");
    EXPECT_EQ(field.regionTitles[3], "South Region");
    EXPECT_EQ(field.payoffs.texts(), (std::array<std::string, 6>{"1", "2", "4", "8", "12", "16"}));
    EXPECT_EQ(*field.payoffs.points(), (Payoffs{1, 2, 4, 8, 12, 16}));
    EXPECT_EQ(field.comment1, "");
    EXPECT_EQ(field.comment2, "");
    EXPECT_EQ(field.finalized, "0");
}

TEST(Field, IsFinalizedByExactlyOne)
{
    Field field;
    for (const char* text : {"", "0", " 1", "1 ", "2"}) {
        field.finalized = text;
        EXPECT_FALSE(field.isFinalized()) << '"' << text << '"';
    }
    field.finalized = "1";
    EXPECT_TRUE(field.isFinalized());
}

TEST(Field, MayBeReplacedWhileNoNumberSaysThatItIsFinal)
{
    Field field;
    for (const char* text : {"", "0", "no", " 0 "}) {
        field.finalized = text;
        EXPECT_TRUE(field.mayBeReplaced()) << '"' << text << '"';
    }
    for (const char* text : {"1", " 1", "2", "-1", "1 yes"}) {
        field.finalized = text;
        EXPECT_FALSE(field.mayBeReplaced()) << '"' << text << '"';
    }
}

TEST(Field, HasTheSameSeedsInEveryRegion)
{
    const Field field = defaultField();
    EXPECT_EQ(field.seedOf(TeamRow{0}), " 1");
    EXPECT_EQ(field.seedOf(TeamRow{15}), "15");
    EXPECT_EQ(field.seedOf(TeamRow{16}), " 1");
    EXPECT_EQ(field.seedOf(TeamRow{63}), "15");
    EXPECT_EQ(field.seedOf(TeamRow{33}), "16");
}

TEST(SeedNumbers, AreThoseOfTheRowInEveryRegion)
{
    const ByTeamRow<std::int16_t> seeds = seedNumbers(defaultField());
    EXPECT_EQ(seeds[TeamRow{0}], 1);
    EXPECT_EQ(seeds[TeamRow{17}], 16);
    EXPECT_EQ(seeds[TeamRow{63}], 15);
}

TEST(SeedNumbers, AreZeroForATextThatIsNoNumberOrDoesNotFit)
{
    Field field = defaultField();
    field.seeds[0] = "";
    field.seeds[1] = "x";
    field.seeds[2] = "99999"; // far above 16 bits
    field.seeds[3] = "-40000";
    field.seeds[4] = "32767"; // the largest that fits
    const ByTeamRow<std::int16_t> seeds = seedNumbers(field);
    for (const int row : {0, 1, 2, 3, 16, 49, 50})
        EXPECT_EQ(seeds[TeamRow{row}], 0) << row;
    EXPECT_EQ(seeds[TeamRow{4}], 32767);
}

TEST(Field, IsEmptyEverywhereToBeginWith)
{
    const Field field;
    EXPECT_EQ(field.teams[TeamRow{63}], "");
    EXPECT_EQ(field.title, "");
    EXPECT_EQ(field.seeds[15], "");
    EXPECT_FALSE(field.isFinalized());
    EXPECT_EQ(field, Field{});
    EXPECT_NE(field, defaultField());
}

TEST(StartingBracket, PutsEveryTeamOnItsRowAndNobodyElsewhere)
{
    const Bracket bracket = startingBracket(defaultField());
    EXPECT_EQ(bracket.at(Position{0}), "TEAM1");
    EXPECT_EQ(bracket.at(Position{15}), "TEAM16");
    EXPECT_EQ(bracket.at(Position{31}), "TEAM17");
    EXPECT_EQ(bracket.at(Position{62}), "TEAM33");
    EXPECT_EQ(bracket.at(Position{108}), "TEAM64");
    for (const Position game : gamePositions())
        EXPECT_TRUE(bracket.isEmpty(game)) << index(game);
}

TEST(StartingBracket, KeepsEmptyAndRepeatedNames)
{
    Field field = defaultField();
    field.teams[TeamRow{1}] = "";
    field.teams[TeamRow{2}] = "TEAM1";
    const Bracket bracket = startingBracket(field);
    EXPECT_TRUE(bracket.isEmpty(Position{1}));
    EXPECT_EQ(bracket.at(Position{2}), "TEAM1");
}

} // namespace
} // namespace tallyhoop
